<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>%1 What is shown is what it had drawn until then.</source>
        <translation>%1 What is shown is what it had drawn until then.</translation>
    </message>
    <message>
        <source>How the documents that it opens are confined:</source>
        <translation>How the documents that it opens are confined:</translation>
    </message>
    <message>
        <source>More</source>
        <translation>More</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Read as:</source>
        <translation>Read as:</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>The encoding in which comments and source text are read</source>
        <translation>The encoding in which comments and source text are read</translation>
    </message>
    <message>
        <source>The source is not valid in %1.</source>
        <translation>The source is not valid in %1.</translation>
    </message>
    <message>
        <source>A guess, as nothing says how the source is encoded. Read as %1:</source>
        <translation>A guess, as nothing says how the source is encoded. Read as %1:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>What the library that reads the picture says</source>
        <translation>What the library that reads the picture says</translation>
    </message>
    <message>
        <source>Is the preview added the occasion where it writes out?</source>
        <translation>Shall a preview for programs that cannot draw EPS be added to the file?</translation>
    </message>
    <message>
        <source>With preview</source>
        <translation>With Preview</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>None preview</source>
        <translation>Without Preview</translation>
    </message>
    <message>
        <source>The new file would hold less than the picture does.</source>
        <translation>The new file would hold less than the picture does.</translation>
    </message>
    <message>
        <source>The drawing was stopped</source>
        <translation>The drawing was stopped</translation>
    </message>
    <message>
        <source>WebP image</source>
        <translation>WebP image</translation>
    </message>
    <message>
        <source>About Norvex</source>
        <translation>About Norvex</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>Copied %1 pt</source>
        <translation>Copied %1 pt</translation>
    </message>
    <message>
        <source>Other Folder…</source>
        <translation>Other Folder…</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Folder for the exported file</source>
        <translation>Folder for the exported file</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>EPS with TIFF preview</source>
        <translation>EPS with TIFF preview</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>This page</translation>
    </message>
    <message>
        <source>Part:</source>
        <translation>Part:</translation>
    </message>
    <message>
        <source> pixels an inch</source>
        <translation> pixels an inch</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Width in pixels</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Height in pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolution:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Fill with</source>
        <translation>Fill with</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Background:</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Lossless</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Quality:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Making a preview…</source>
        <translation>Making a preview…</translation>
    </message>
    <message>
        <source>File size: %1</source>
        <translation>File size: %1</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>Not possible</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xport…</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>The picture is too large.</translation>
    </message>
    <message>
        <source>Exported “%1”</source>
        <translation>Exported “%1”</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selection</translation>
    </message>
    <message>
        <source>Visible part</source>
        <translation>Visible part</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Whole picture</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>All pages</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Previous Page</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Next Page</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>of %1</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Go</translation>
    </message>
    <message>
        <source>Page &amp;Thumbnails</source>
        <translation>Page &amp;Thumbnails</translation>
    </message>
    <message>
        <source>Page %1 has no area.</source>
        <translation>Page %1 has no area.</translation>
    </message>
    <message>
        <source>Where the pointer is in the picture. Click for another unit.</source>
        <translation>Where the pointer is in the picture. Click for another unit.</translation>
    </message>
    <message>
        <source>Unit of lengths</source>
        <translation>Unit of lengths</translation>
    </message>
    <message>
        <source>&amp;Next Page</source>
        <translation>&amp;Next Page</translation>
    </message>
    <message>
        <source>&amp;Previous Page</source>
        <translation>&amp;Previous Page</translation>
    </message>
    <message>
        <source>&amp;First Page</source>
        <translation>&amp;First Page</translation>
    </message>
    <message>
        <source>&amp;Last Page</source>
        <translation>&amp;Last Page</translation>
    </message>
    <message>
        <source>&amp;Go to Page…</source>
        <translation>&amp;Go to Page…</translation>
    </message>
    <message>
        <source>&amp;Window Fits Picture</source>
        <translation>Window Fits &amp;Picture</translation>
    </message>
    <message>
        <source>Reload Changed Files b&amp;y Itself</source>
        <translation>Reload Changed Files b&amp;y Itself</translation>
    </message>
    <message>
        <source>Select Rectangle</source>
        <translation>Select Rectangle</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Fit &amp;Width</translation>
    </message>
    <message>
        <source>Next Picture in F&amp;older</source>
        <translation>Next Picture in F&amp;older</translation>
    </message>
    <message>
        <source>Previous Pictu&amp;re in Folder</source>
        <translation>Previous Pictu&amp;re in Folder</translation>
    </message>
    <message>
        <source>&amp;Undo Selection</source>
        <translation>&amp;Undo Selection</translation>
    </message>
    <message>
        <source>&amp;Redo Selection</source>
        <translation>&amp;Redo Selection</translation>
    </message>
    <message>
        <source>Select Rectan&amp;gle…</source>
        <translation>Select Rectan&amp;gle…</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>From the left:</translation>
    </message>
    <message>
        <source>From below:</source>
        <translation>From below:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Bad data.</source>
        <translation>The file holds no data that can be read.</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>Fonts:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Colours used:</translation>
    </message>
    <message>
        <source>%1 What is shown was read before.</source>
        <translation>%1 What is shown was read before.</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>Bounding box:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>Chooses pictures and opens each in a window of its own</source>
        <translation>Chooses pictures and opens each in a window of its own</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Clear the list</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Close the find bar</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>Colour space:</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Commands and their keys</translation>
    </message>
    <message>
        <source>Compressed SVG image (SVGZ)</source>
        <translation>Compressed SVG image (SVGZ)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copy Path</translation>
    </message>
    <message>
        <source>Copy Selected Text</source>
        <translation>Copy Selected Text</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Copy Value</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Copying…</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>Copyright:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Created:</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>Creator:</translation>
    </message>
    <message>
        <source>D.M.S.</source>
        <translation>Degrees, minutes and seconds: 12.3045 is 12° 30′ 45″</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Dismiss</translation>
    </message>
    <message>
        <source>Down by %1 pt</source>
        <translation>Down by %1 pt</translation>
    </message>
    <message>
        <source>Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another program as a file.</source>
        <translation>Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another program as a file.</translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Drawing…</translation>
    </message>
    <message>
        <source>EPS, Illustrator, PDF and SVG pictures</source>
        <translation>EPS, Illustrator, PDF and SVG pictures</translation>
    </message>
    <message>
        <source>Encapsulated PostScript (EPS)</source>
        <translation>Encapsulated PostScript (EPS)</translation>
    </message>
    <message>
        <source>Encapsulated PostScript with interchange preview (EPSI)</source>
        <translation>Encapsulated PostScript with interchange preview (EPSI)</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Encoding of the source text</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>Encoding:</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>File of this document</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>For:</translation>
    </message>
    <message>
        <source>GIF image</source>
        <translation>GIF image</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>Hide extension</source>
        <translation>Hide extension</translation>
    </message>
    <message>
        <source>High resolution:</source>
        <translation>High resolution:</translation>
    </message>
    <message>
        <source>Higher by %1 pt</source>
        <translation>Higher by %1 pt</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG image</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>Preferenc&amp;es…</translation>
    </message>
    <message>
        <source>Di&amp;m Outside of Selection</source>
        <translation>Di&amp;m Outside of Selection</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>&amp;Window fits picture</source>
        <translation>&amp;Window fits picture</translation>
    </message>
    <message>
        <source>No larger than the picture, and smaller with it.</source>
        <translation>No larger than the picture, and smaller with it.</translation>
    </message>
    <message>
        <source>Chec&amp;kerboard behind new pictures</source>
        <translation>Chec&amp;kerboard behind new pictures</translation>
    </message>
    <message>
        <source>Shows where nothing is painted, instead of the background colour.</source>
        <translation>Shows where nothing is painted, instead of the background colour.</translation>
    </message>
    <message>
        <source>Di&amp;m what is outside of the selection</source>
        <translation>Di&amp;m what is outside of the selection</translation>
    </message>
    <message>
        <source>What is copied, saved or printed stands out.</source>
        <translation>What is copied, saved or printed stands out.</translation>
    </message>
    <message>
        <source>&amp;Unit of lengths:</source>
        <translation>&amp;Unit of lengths:</translation>
    </message>
    <message>
        <source>Of coordinates, of the size of a selection, and of typed numbers.</source>
        <translation>Of coordinates, of the size of a selection, and of typed numbers.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimetres</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Inches</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>Picas</translation>
    </message>
    <message>
        <source>&amp;Reload changed files by itself</source>
        <translation>&amp;Reload changed files by itself</translation>
    </message>
    <message>
        <source>Otherwise a bar in the window asks.</source>
        <translation>Otherwise a bar in the window asks.</translation>
    </message>
    <message>
        <source>R&amp;emember files</source>
        <translation>R&amp;emember files</translation>
    </message>
    <message>
        <source>Recent files, and how their pictures were shown. Switching it off forgets all.</source>
        <translation>Recent files, and how their pictures were shown. Switching it off forgets all.</translation>
    </message>
    <message>
        <source>C&amp;lear History</source>
        <translation>C&amp;lear History</translation>
    </message>
    <message>
        <source>Forgets the recent files, and how their pictures were shown.</source>
        <translation>Forgets the recent files, and how their pictures were shown.</translation>
    </message>
    <message>
        <source>Colours:</source>
        <translation>Colours:</translation>
    </message>
    <message>
        <source>RGB for screens</source>
        <translation>RGB for screens</translation>
    </message>
    <message>
        <source>Shades of grey</source>
        <translation>Shades of grey</translation>
    </message>
    <message>
        <source>CMYK for print</source>
        <translation>CMYK for print</translation>
    </message>
    <message>
        <source>&amp;Real Size on This Screen</source>
        <translation>Real &amp;Size on This Screen</translation>
    </message>
    <message>
        <source>Size the selection</source>
        <translation>Size the selection</translation>
    </message>
    <message>
        <source>Drag a square beside it</source>
        <translation>Drag a square beside it</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>Move the selection</translation>
    </message>
    <message>
        <source>Drag its size</source>
        <translation>Drag its size</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Keyboard Shortcuts</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Left by %1 pt</source>
        <translation>Left by %1 pt</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Line numbers</translation>
    </message>
    <message>
        <source>Lower by %1 pt</source>
        <translation>Lower by %1 pt</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Matches</translation>
    </message>
    <message>
        <source>Move Selection</source>
        <translation>Move Selection</translation>
    </message>
    <message>
        <source>Narrower by %1 pt</source>
        <translation>Narrower by %1 pt</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>No recent files</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Not on this page</translation>
    </message>
    <message>
        <source>Not possible for this picture: %1</source>
        <translation>Not possible for this picture: %1</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Nothing is selected.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Only files on this computer can be opened.</source>
        <translation>Only files on this computer can be opened.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Open Folder</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Open Recent</translation>
    </message>
    <message>
        <source>Opening was stopped</source>
        <translation>Opening was stopped</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Opening…</translation>
    </message>
    <message>
        <source>Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.</source>
        <translation>Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>OrderfrontColorWell</source>
        <translation>Show the colour panel</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF document</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>PNG image</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Pictures that you open are listed here.</source>
        <translation>Pictures that you open are listed here.</translation>
    </message>
    <message>
        <source>Please retry with other format.</source>
        <translation>Please try again with another format.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recent</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Recent files</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Reload</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Remove from the list</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Resize Selection</source>
        <translation>Resize Selection</translation>
    </message>
    <message>
        <source>Right by %1 pt</source>
        <translation>Right by %1 pt</translation>
    </message>
    <message>
        <source>RotateImageByMousedragg</source>
        <translation>Drag to rotate the picture. Hold Shift to snap to 15°, double-click for 0°.</translation>
    </message>
    <message>
        <source>SVG image</source>
        <translation>SVG image</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Save Selection</source>
        <translation>Save Selection</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>Save To</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>Save As…</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>Save To…</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Scroll sideways</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Scroll up and down</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Selected from %1, %2 to %3, %4: %5 by %6 points.</source>
        <translation>Selected from %1, %2 to %3, %4: %5 by %6 points.</translation>
    </message>
    <message>
        <source>Selected range of image data is written or displayed.</source>
        <translation>Write the selection, or what is visible, to a file.</translation>
    </message>
    <message>
        <source>SelectedRectangle</source>
        <translation>Corners of the selected rectangle</translation>
    </message>
    <message>
        <source>Selection is determined by dragging the mouse twice.</source>
        <translation>Drag once to place a start point, drag again to stretch a rectangle.</translation>
    </message>
    <message>
        <source>SourceCode</source>
        <translation>Source text of the document</translation>
    </message>
    <message>
        <source>Still working: wait, or stop and show what there is.</source>
        <translation>Still working: wait, or stop and show what there is.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF image</translation>
    </message>
    <message>
        <source>The picture is still being printed.</source>
        <translation>The picture is still being printed.</translation>
    </message>
    <message>
        <source>A file is still being written.</source>
        <translation>A file is still being written.</translation>
    </message>
    <message>
        <source>Close When Finished</source>
        <translation>Close When Finished</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Stop and Close</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Keep Open</translation>
    </message>
    <message>
        <source>The writing was stopped</source>
        <translation>The writing was stopped</translation>
    </message>
    <message>
        <source>The file was deleted or moved. What is shown was read before.</source>
        <translation>The file was deleted or moved. What is shown was read before.</translation>
    </message>
    <message>
        <source>Preparing “%1” for printing…</source>
        <translation>Preparing “%1” for printing…</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Wait</translation>
    </message>
    <message>
        <source>“%1” exists already. Do you want to replace it?</source>
        <translation>“%1” exists already. Do you want to replace it?</translation>
    </message>
    <message>
        <source>The file has changed on disk.</source>
        <translation>The file has changed on disk.</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>The picture cannot be shown.</translation>
    </message>
    <message>
        <source>The picture cannot be written in this format</source>
        <translation>The picture cannot be written in this format</translation>
    </message>
    <message>
        <source>The picture could not be copied. The clipboard holds what it held before.</source>
        <translation>The picture could not be copied. The clipboard holds what it held before.</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are copied onto the paste board.</source>
        <translation>Copy the selection, or what is visible, to the clipboard.</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are printed.</source>
        <translation>Print the selection, or what is visible.</translation>
    </message>
    <message>
        <source>The selection starts at %1, %2.</source>
        <translation>The selection starts at %1, %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for this</source>
        <translation>There is not enough memory for this</translation>
    </message>
    <message>
        <source>This could not be done.</source>
        <translation>This could not be done.</translation>
    </message>
    <message>
        <source>This is not an EPS, Illustrator, PDF or SVG picture.</source>
        <translation>This is not an EPS, Illustrator, PDF or SVG picture.</translation>
    </message>
    <message>
        <source>The file's name is not text in UTF-8. Please rename the file.</source>
        <translation>The file's name is not text in UTF-8. Please rename the file.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Try Again</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Up by %1 pt</source>
        <translation>Up by %1 pt</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Use</translation>
    </message>
    <message>
        <source>ViewBox</source>
        <translation>View box or bounds of the picture, in its own units</translation>
    </message>
    <message>
        <source>What it holds will be lost.</source>
        <translation>What it holds will be lost.</translation>
    </message>
    <message>
        <source>Wider by %1 pt</source>
        <translation>Wider by %1 pt</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Writing…</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>or drop pictures here</source>
        <translation>or drop pictures here</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>“%1” could not be opened.</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>%1 files could not be opened.</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>“%1” exists already.</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;All</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>&amp;Bottom:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies:</translation>
    </message>
    <message>
        <source>&amp;Fit on one page</source>
        <translation>&amp;Fit on one page</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>&amp;Landscape</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Print…</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>&amp;Right:</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>&amp;Scaling:</translation>
    </message>
    <message>
        <source>&amp;Horizontally</source>
        <translation>&amp;Horizontally</translation>
    </message>
    <message>
        <source>&amp;Vertically</source>
        <translation>&amp;Vertically</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>Fro&amp;m</source>
        <translation>Fro&amp;m</translation>
    </message>
    <message>
        <source>Hea&amp;der and footer</source>
        <translation>Hea&amp;der and footer</translation>
    </message>
    <message>
        <source>Centred:</source>
        <translation>Centred:</translation>
    </message>
    <message>
        <source>Centred horizontally</source>
        <translation>Centred horizontally</translation>
    </message>
    <message>
        <source>Centred vertically</source>
        <translation>Centred vertically</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>Lef&amp;t:</source>
        <translation>Lef&amp;t:</translation>
    </message>
    <message>
        <source>This printer is no longer there.</source>
        <translation>This printer is no longer there.</translation>
    </message>
    <message>
        <source>Print Selected or Visible Pa&amp;rt…</source>
        <translation>Print Selected or Visible Par&amp;t…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Looking for printers…</translation>
    </message>
    <message>
        <source>Makes the picture smaller until one page holds it</source>
        <translation>Makes the picture smaller until one page holds it</translation>
    </message>
    <message>
        <source>Margins:</source>
        <translation>Margins:</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation:</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>P&amp;rinter:</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>Page Set&amp;up…</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Page Setup</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages:</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>Pap&amp;er:</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>Portra&amp;it</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Preview of the page</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>Print “%1”</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Printing</translation>
    </message>
    <message>
        <source>Printing “%1”: page %2 of %3…</source>
        <translation>Printing “%1”: page %2 of %3…</translation>
    </message>
    <message>
        <source>Printing “%1”…</source>
        <translation>Printing “%1”…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>Sa&amp;ve…</translation>
    </message>
    <message>
        <source>Save as PDF file</source>
        <translation>Save as PDF file</translation>
    </message>
    <message>
        <source>Save the pages as PDF</source>
        <translation>Save the pages as PDF</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Scaling</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>T&amp;op:</source>
        <translation>T&amp;op:</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>Takes no jobs</translation>
    </message>
    <message>
        <source>The date above the picture and the file's location below it, on every page</source>
        <translation>The date above the picture and the file's location below it, on every page</translation>
    </message>
    <message>
        <source>The margins leave no room on the paper.</source>
        <translation>The margins leave no room on the paper.</translation>
    </message>
    <message>
        <source>The pages become a PDF file.</source>
        <translation>The pages become a PDF file.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>There is no printer.</translation>
    </message>
    <message>
        <source>to</source>
        <translation>to</translation>
    </message>
    <message>
        <source>“%1” was not printed.</source>
        <translation>“%1” was not printed.</translation>
    </message>
    <message>
        <source>With the mouse</source>
        <translation>With the mouse</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>Search commands and keys</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. The interpreter of PostScript is under the GNU Affero General Public License, version 3 or later.</source>
        <translation>Free software under the GNU General Public License, version 3 or later. The interpreter of PostScript is under the GNU Affero General Public License, version 3 or later.</translation>
    </message>
    <message>
        <source>Norvex ended unexpectedly the last time.</source>
        <translation>Norvex ended unexpectedly the last time.</translation>
    </message>
    <message>
        <source>“%1” was open then, and may be the reason.</source>
        <translation>“%1” was open then, and may be the reason.</translation>
    </message>
    <message>
        <source>Do Not Open</source>
        <translation>Do Not Open</translation>
    </message>
    <message>
        <source>Open It Again</source>
        <translation>Open It Again</translation>
    </message>
    <message>
        <source>%1 files were open then. “%2” was used last, and may be the reason.</source>
        <translation>%1 files were open then. “%2” was used last, and may be the reason.</translation>
    </message>
    <message>
        <source>Open the Others</source>
        <translation>Open the Others</translation>
    </message>
    <message>
        <source>Open All Again</source>
        <translation>Open All Again</translation>
    </message>
    <message>
        <source>Norvex Manual</source>
        <translation>Norvex Manual</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Clear History</translation>
    </message>
    <message>
        <source>Remember Files</source>
        <translation>Remember Files</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Search the manual</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Topics</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Page of the manual</translation>
    </message>
    <message>
        <source>Place the first corner of a selection</source>
        <translation>Place the first corner of a selection</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Drag</translation>
    </message>
    <message>
        <source>Draw the selection from there</source>
        <translation>Draw the selection from there</translation>
    </message>
    <message>
        <source>Drag again</source>
        <translation>Drag again</translation>
    </message>
    <message>
        <source>Take the selection to another program</source>
        <translation>Take the selection to another program</translation>
    </message>
    <message>
        <source>Ctrl + Drag</source>
        <translation>Ctrl + Drag</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Zoom at the pointer</translation>
    </message>
    <message>
        <source>Ctrl + Wheel</source>
        <translation>Ctrl + Wheel</translation>
    </message>
    <message>
        <source>Move the picture</source>
        <translation>Move the picture</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Wheel</translation>
    </message>
    <message>
        <source>Commands for the picture</source>
        <translation>Commands for the picture</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Right button</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Check Again</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Checking…</translation>
    </message>
    <message>
        <source>What the picture is for</source>
        <translation>What the picture is for</translation>
    </message>
    <message>
        <source>For Any Use</source>
        <translation>For Any Use</translation>
    </message>
    <message>
        <source>For Print</source>
        <translation>For Print</translation>
    </message>
    <message>
        <source>For a Journal</source>
        <translation>For a Journal</translation>
    </message>
    <message>
        <source>For the Web</source>
        <translation>For the Web</translation>
    </message>
    <message>
        <source>For an Archive</source>
        <translation>For an Archive</translation>
    </message>
    <message>
        <source>From a File…</source>
        <translation>From a File…</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nothing was found.</translation>
    </message>
    <message>
        <source>%1 more are not shown.</source>
        <translation>%1 more are not shown.</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Repair…</translation>
    </message>
    <message>
        <source>Repair All…</source>
        <translation>Repair All…</translation>
    </message>
    <message>
        <source>Writes a mended copy of the file</source>
        <translation>Writes a mended copy of the file</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 error</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 errors</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 warning</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 warnings</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 note</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 notes</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Line %1</translation>
    </message>
    <message>
        <source>at %1, %2 pt</source>
        <translation>at %1, %2 pt</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>The check was stopped.</translation>
    </message>
    <message>
        <source>The file has changed while it was checked.</source>
        <translation>The file has changed while it was checked.</translation>
    </message>
    <message>
        <source>There is no file to check.</source>
        <translation>There is no file to check.</translation>
    </message>
    <message>
        <source>Not everything could be checked. %1</source>
        <translation>Not everything could be checked. %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Profiles (*.toml)</source>
        <translation>Profiles (*.toml)</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Repair</translation>
    </message>
    <message>
        <source>A mended copy of the file is written. What it draws stays the same.</source>
        <translation>A mended copy of the file is written. What it draws stays the same.</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Preview:</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>As it is</translation>
    </message>
    <message>
        <source>Made anew</source>
        <translation>Made anew</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Left out</translation>
    </message>
    <message>
        <source>Repairing…</source>
        <translation>Repairing…</translation>
    </message>
    <message>
        <source>Nothing had to be changed.</source>
        <translation>Nothing had to be changed.</translation>
    </message>
    <message>
        <source>This stays as it is:</source>
        <translation>This stays as it is:</translation>
    </message>
    <message>
        <source>“%1” is written.</source>
        <translation>“%1” is written.</translation>
    </message>
    <message>
        <source>Open It</source>
        <translation>Open It</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Inspector in t&amp;he Window</source>
        <translation>Inspector in t&amp;he Window</translation>
    </message>
    <message>
        <source>Go to Inspector or Pi&amp;cture</source>
        <translation>Go to Inspector or Pi&amp;cture</translation>
    </message>
    <message>
        <source>The program lies in a wrapping of another system</source>
        <translation>The program lies in a wrapping of another system</translation>
    </message>
    <message>
        <source>A section of the binary header lies outside the file</source>
        <translation>A section of the binary header lies outside the file</translation>
    </message>
    <message>
        <source>Sections of the binary header overlap</source>
        <translation>Sections of the binary header overlap</translation>
    </message>
    <message>
        <source>Bytes before the first line</source>
        <translation>Bytes before the first line</translation>
    </message>
    <message>
        <source>Bytes behind the program's end</source>
        <translation>Bytes behind the program's end</translation>
    </message>
    <message>
        <source>The file is cut off</source>
        <translation>The file is cut off</translation>
    </message>
    <message>
        <source>The first line is not that of a PostScript file</source>
        <translation>The first line is not that of a PostScript file</translation>
    </message>
    <message>
        <source>The first line does not declare EPSF</source>
        <translation>The first line does not declare EPSF</translation>
    </message>
    <message>
        <source>The first line declares a version that does not exist</source>
        <translation>The first line declares a version that does not exist</translation>
    </message>
    <message>
        <source>There is no %%BoundingBox</source>
        <translation>There is no %%BoundingBox</translation>
    </message>
    <message>
        <source>%%BoundingBox: (atend) without a box at the end</source>
        <translation>%%BoundingBox: (atend) without a box at the end</translation>
    </message>
    <message>
        <source>%%BoundingBox does not hold four numbers</source>
        <translation>%%BoundingBox does not hold four numbers</translation>
    </message>
    <message>
        <source>The bounding box is empty</source>
        <translation>The bounding box is empty</translation>
    </message>
    <message>
        <source>%%BoundingBox holds numbers that are not whole</source>
        <translation>%%BoundingBox holds numbers that are not whole</translation>
    </message>
    <message>
        <source>%%BoundingBox does not enclose %%HiResBoundingBox, or is far larger</source>
        <translation>%%BoundingBox does not enclose %%HiResBoundingBox, or is far larger</translation>
    </message>
    <message>
        <source>Ink lies outside the bounding box</source>
        <translation>Ink lies outside the bounding box</translation>
    </message>
    <message>
        <source>The bounding box is larger than the ink</source>
        <translation>The bounding box is larger than the ink</translation>
    </message>
    <message>
        <source>The program draws nothing that is not white</source>
        <translation>The program draws nothing that is not white</translation>
    </message>
    <message>
        <source>The program stops with a PostScript error</source>
        <translation>The program stops with a PostScript error</translation>
    </message>
    <message>
        <source>The interpreter had something to remark</source>
        <translation>The interpreter had something to remark</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>showpage is missing</translation>
    </message>
    <message>
        <source>An operator that has no place in an EPS file</source>
        <translation>An operator that has no place in an EPS file</translation>
    </message>
    <message>
        <source>Operators of a higher language level than the comments declare</source>
        <translation>Operators of a higher language level than the comments declare</translation>
    </message>
    <message>
        <source>%%EndComments is missing</source>
        <translation>%%EndComments is missing</translation>
    </message>
    <message>
        <source>Comments stand in the wrong order</source>
        <translation>Comments stand in the wrong order</translation>
    </message>
    <message>
        <source>A section begins and does not end, or the other way round</source>
        <translation>A section begins and does not end, or the other way round</translation>
    </message>
    <message>
        <source>Lines of more than 255 bytes</source>
        <translation>Lines of more than 255 bytes</translation>
    </message>
    <message>
        <source>Lines end in different ways</source>
        <translation>Lines end in different ways</translation>
    </message>
    <message>
        <source>Other bytes than %%DocumentData declares</source>
        <translation>Other bytes than %%DocumentData declares</translation>
    </message>
    <message>
        <source>The file needs fonts that it does not bring</source>
        <translation>The file needs fonts that it does not bring</translation>
    </message>
    <message>
        <source>There is no preview</source>
        <translation>There is no preview</translation>
    </message>
    <message>
        <source>The preview cannot be read</source>
        <translation>The preview cannot be read</translation>
    </message>
    <message>
        <source>The preview shows another picture than the program draws</source>
        <translation>The preview shows another picture than the program draws</translation>
    </message>
    <message>
        <source>The preview has another shape than the bounding box</source>
        <translation>The preview has another shape than the bounding box</translation>
    </message>
    <message>
        <source>A font is neither in the file nor on this machine</source>
        <translation>A font is neither in the file nor on this machine</translation>
    </message>
    <message>
        <source>A font is not embedded</source>
        <translation>A font is not embedded</translation>
    </message>
    <message>
        <source>A font is embedded as a whole</source>
        <translation>A font is embedded as a whole</translation>
    </message>
    <message>
        <source>A Type 3 font</source>
        <translation>A Type 3 font</translation>
    </message>
    <message>
        <source>Text smaller than the profile allows</source>
        <translation>Text smaller than the profile allows</translation>
    </message>
    <message>
        <source>A colour space that the profile does not name</source>
        <translation>A colour space that the profile does not name</translation>
    </message>
    <message>
        <source>RGB colours where the profile wants none</source>
        <translation>RGB colours where the profile wants none</translation>
    </message>
    <message>
        <source>RGB in a CMYK picture</source>
        <translation>RGB in a CMYK picture</translation>
    </message>
    <message>
        <source>Spot inks</source>
        <translation>Spot inks</translation>
    </message>
    <message>
        <source>More ink in one place than the profile allows</source>
        <translation>More ink in one place than the profile allows</translation>
    </message>
    <message>
        <source>White that overprints vanishes</source>
        <translation>White that overprints vanishes</translation>
    </message>
    <message>
        <source>Black text that does not overprint</source>
        <translation>Black text that does not overprint</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparency</translation>
    </message>
    <message>
        <source>Lines thinner than the profile allows</source>
        <translation>Lines thinner than the profile allows</translation>
    </message>
    <message>
        <source>An image has fewer pixels an inch than the profile asks for</source>
        <translation>An image has fewer pixels an inch than the profile asks for</translation>
    </message>
    <message>
        <source>Something is drawn outside the page's box</source>
        <translation>Something is drawn outside the page's box</translation>
    </message>
    <message>
        <source>The picture fits no column of the profile</source>
        <translation>The picture fits no column of the profile</translation>
    </message>
    <message>
        <source>A part of the page was not looked at</source>
        <translation>A part of the page was not looked at</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>The file is damaged</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>The document is encrypted</translation>
    </message>
    <message>
        <source>Its permissions forbid printing or changing it</source>
        <translation>Its permissions forbid printing or changing it</translation>
    </message>
    <message>
        <source>It claims to keep a standard</source>
        <translation>It claims to keep a standard</translation>
    </message>
    <message>
        <source>It claims PDF/X or PDF/A and has no output intent</source>
        <translation>It claims PDF/X or PDF/A and has no output intent</translation>
    </message>
    <message>
        <source>It needs other files, which are never loaded</source>
        <translation>It needs other files, which are never loaded</translation>
    </message>
    <message>
        <source>Filters become images in print</source>
        <translation>Filters become images in print</translation>
    </message>
    <message>
        <source>The size has no unit, or there is none</source>
        <translation>The size has no unit, or there is none</translation>
    </message>
    <message>
        <source>Scripts and animations are not run</source>
        <translation>Scripts and animations are not run</translation>
    </message>
    <message>
        <source>repair takes the program out</source>
        <translation>repair takes the program out</translation>
    </message>
    <message>
        <source>repair writes the header anew</source>
        <translation>repair writes the header anew</translation>
    </message>
    <message>
        <source>repair leaves them out</source>
        <translation>repair leaves them out</translation>
    </message>
    <message>
        <source>fetch the file again</source>
        <translation>fetch the file again</translation>
    </message>
    <message>
        <source>repair writes it</source>
        <translation>repair writes it</translation>
    </message>
    <message>
        <source>repair writes the versions 3.0</source>
        <translation>repair writes the versions 3.0</translation>
    </message>
    <message>
        <source>repair computes it</source>
        <translation>repair computes it</translation>
    </message>
    <message>
        <source>repair writes whole numbers</source>
        <translation>repair writes whole numbers</translation>
    </message>
    <message>
        <source>repair computes both</source>
        <translation>repair computes both</translation>
    </message>
    <message>
        <source>write the file again from the program that made it</source>
        <translation>write the file again from the program that made it</translation>
    </message>
    <message>
        <source>repair puts it in</source>
        <translation>repair puts it in</translation>
    </message>
    <message>
        <source>write the file again as EPS</source>
        <translation>write the file again as EPS</translation>
    </message>
    <message>
        <source>add %%LanguageLevel to the header</source>
        <translation>add %%LanguageLevel to the header</translation>
    </message>
    <message>
        <source>repair puts those of the header in order</source>
        <translation>repair puts those of the header in order</translation>
    </message>
    <message>
        <source>most readers take them</source>
        <translation>most readers take them</translation>
    </message>
    <message>
        <source>declare %%DocumentData: Binary</source>
        <translation>declare %%DocumentData: Binary</translation>
    </message>
    <message>
        <source>embed the fonts, or draw text as outlines</source>
        <translation>embed the fonts, or draw text as outlines</translation>
    </message>
    <message>
        <source>repair makes one</source>
        <translation>repair makes one</translation>
    </message>
    <message>
        <source>embed the font</source>
        <translation>embed the font</translation>
    </message>
    <message>
        <source>use a font with outlines</source>
        <translation>use a font with outlines</translation>
    </message>
    <message>
        <source>set the text larger</source>
        <translation>set the text larger</translation>
    </message>
    <message>
        <source>convert the colours</source>
        <translation>convert the colours</translation>
    </message>
    <message>
        <source>choose colours with less ink</source>
        <translation>choose colours with less ink</translation>
    </message>
    <message>
        <source>let it knock out</source>
        <translation>let it knock out</translation>
    </message>
    <message>
        <source>let black text overprint</source>
        <translation>let black text overprint</translation>
    </message>
    <message>
        <source>flatten it where the printer asks for it</source>
        <translation>flatten it where the printer asks for it</translation>
    </message>
    <message>
        <source>draw them thicker</source>
        <translation>draw them thicker</translation>
    </message>
    <message>
        <source>place it smaller, or with more pixels</source>
        <translation>place it smaller, or with more pixels</translation>
    </message>
    <message>
        <source>enlarge the box, or leave it out</source>
        <translation>enlarge the box, or leave it out</translation>
    </message>
    <message>
        <source>draw it for the column's width</source>
        <translation>draw it for the column's width</translation>
    </message>
    <message>
        <source>convert it to PDF, and look whether anything is missing</source>
        <translation>convert it to PDF, and look whether anything is missing</translation>
    </message>
    <message>
        <source>write it without encryption</source>
        <translation>write it without encryption</translation>
    </message>
    <message>
        <source>write it without restrictions</source>
        <translation>write it without restrictions</translation>
    </message>
    <message>
        <source>add the output intent</source>
        <translation>add the output intent</translation>
    </message>
    <message>
        <source>embed them</source>
        <translation>embed them</translation>
    </message>
    <message>
        <source>draw the effect, or accept an image</source>
        <translation>draw the effect, or accept an image</translation>
    </message>
    <message>
        <source>give width and height in mm, pt or in</source>
        <translation>give width and height in mm, pt or in</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>The password is wrong.</translation>
    </message>
    <message>
        <source>The document is protected by a password.</source>
        <translation>The document is protected by a password.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layers</translation>
    </message>
    <message>
        <source>La&amp;yers</source>
        <translation>La&amp;yers</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Layer %1</translation>
    </message>
    <message>
        <source>The document locks this layer.</source>
        <translation>The document locks this layer.</translation>
    </message>
    <message>
        <source>Find in P&amp;icture…</source>
        <translation>Find in P&amp;icture…</translation>
    </message>
    <message>
        <source>The text of the picture cannot be read.</source>
        <translation>The text of the picture cannot be read.</translation>
    </message>
    <message>
        <source>Select &amp;Text</source>
        <translation>Select &amp;Text</translation>
    </message>
    <message>
        <source>Copy Te&amp;xt</source>
        <translation>Copy Te&amp;xt</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Text copied</translation>
    </message>
    <message>
        <source>Links of this kind are not followed.</source>
        <translation>Links of this kind are not followed.</translation>
    </message>
    <message>
        <source>No program here opens this address.</source>
        <translation>No program here opens this address.</translation>
    </message>
    <message>
        <source>The picture links to this address. Open it?</source>
        <translation>The picture links to this address. Open it?</translation>
    </message>
    <message>
        <source>Open Address</source>
        <translation>Open Address</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>Inks</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Ink</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Coverage</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Here</translation>
    </message>
    <message>
        <source>Only This Ink</source>
        <translation>Only This Ink</translation>
    </message>
    <message>
        <source>All Inks</source>
        <translation>All Inks</translation>
    </message>
    <message>
        <source>Inks as grey plates</source>
        <translation>Inks as grey plates</translation>
    </message>
    <message>
        <source>The picture is separated into plates: %1</source>
        <translation>The picture is separated into plates: %1</translation>
    </message>
    <message>
        <source>Windows metafile, %1</source>
        <translation>Windows metafile, %1</translation>
    </message>
    <message>
        <source>Keep text as text, with its fonts</source>
        <translation>Keep text as text, with its fonts</translation>
    </message>
    <message>
        <source>Show the inks in the picture</source>
        <translation>Show the inks in the picture</translation>
    </message>
    <message>
        <source>Simulate overprinting</source>
        <translation>Simulate overprinting</translation>
    </message>
    <message>
        <source>Mark ink above</source>
        <translation>Mark ink above</translation>
    </message>
    <message>
        <source>Limit of all inks together</source>
        <translation>Limit of all inks together</translation>
    </message>
    <message>
        <source>The page as its inks print it</source>
        <translation>The page as its inks print it</translation>
    </message>
    <message>
        <source>Most ink in one place: %1</source>
        <translation>Most ink in one place: %1</translation>
    </message>
    <message>
        <source>All inks under the pointer: %1</source>
        <translation>All inks under the pointer: %1</translation>
    </message>
    <message>
        <source>The page is being separated into its inks…</source>
        <translation>The page is being separated into its inks…</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>There is no picture.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The shown page (%1)</source>
        <translation>The shown page (%1)</translation>
    </message>
    <message>
        <source>All %1 pages</source>
        <translation>All %1 pages</translation>
    </message>
    <message>
        <source>Some pages</source>
        <translation>Some pages</translation>
    </message>
    <message>
        <source>From page</source>
        <translation>From page</translation>
    </message>
    <message>
        <source>From page:</source>
        <translation>From page:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;ges:</translation>
    </message>
    <message>
        <source>Sheets:</source>
        <translation>Sheets:</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>New keys</translation>
    </message>
    <message>
        <source>&amp;Remove Keys</source>
        <translation>&amp;Remove Keys</translation>
    </message>
    <message>
        <source>&amp;Default Keys</source>
        <translation>&amp;Default Keys</translation>
    </message>
    <message>
        <source>All De&amp;faults</source>
        <translation>All De&amp;faults</translation>
    </message>
    <message>
        <source>Keys of “%1”:</source>
        <translation>Keys of “%1”:</translation>
    </message>
    <message>
        <source>Choose a command, and then press the keys that it shall have.</source>
        <translation>Choose a command, and then press the keys that it shall have.</translation>
    </message>
    <message>
        <source>“%1” is for typing and for moving the picture. Take it together with Ctrl or Alt, or take a function key.</source>
        <translation>“%1” is for typing and for moving the picture. Take it together with Ctrl or Alt, or take a function key.</translation>
    </message>
    <message>
        <source>“%1” cannot be written, and nothing was changed.</source>
        <translation>“%1” cannot be written, and nothing was changed.</translation>
    </message>
    <message>
        <source>“%1” belongs to “%2” already, and nothing was changed.</source>
        <translation>“%1” belongs to “%2” already, and nothing was changed.</translation>
    </message>
    <message>
        <source>“%1” opens the menu “%2”, and nothing was changed.</source>
        <translation>“%1” opens the menu “%2”, and nothing was changed.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Fonts:</source>
        <translation>Fonts:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Colours used:</translation>
    </message>
    <message>
        <source>Encoding of the source</source>
        <translation>Encoding of the source</translation>
    </message>
    <message>
        <source>About the encoding</source>
        <translation>About the encoding</translation>
    </message>
    <message>
        <source>What the source seems to say</source>
        <translation>What the source seems to say</translation>
    </message>
    <message>
        <source>Facts about the picture</source>
        <translation>Facts about the picture</translation>
    </message>
    <message>
        <source>&amp;About Norvex</source>
        <translation>&amp;About Norvex</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Actual Size</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>&amp;Deselect</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Find…</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Fit</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Reload</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>Angle of rotation</source>
        <translation>Angle of rotation</translation>
    </message>
    <message>
        <source>Angle of rotation in degrees, minutes and seconds</source>
        <translation>Angle of rotation in degrees, minutes and seconds</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>AngleOfRotation</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Background colour</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>BackgroundColor</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>Bounds</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>ColorSpaceName:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>Copyright:</translation>
    </message>
    <message>
        <source>CreationDate:</source>
        <translation>CreationDate:</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>Creator:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Nothing is selected.</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>Encoding:</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>End of the selection</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>F&amp;ull Screen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>For:</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>Kind of preview</source>
        <translation>Kind of preview</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Picture rectangle</source>
        <translation>Picture rectangle</translation>
    </message>
    <message>
        <source>Picture to be written</source>
        <translation>Picture to be written</translation>
    </message>
    <message>
        <source>Picture with zoom and scroll bars</source>
        <translation>Picture with zoom and scroll bars</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Reset Rotatio&amp;n</source>
        <translation>Reset Rotatio&amp;n</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Rotate &amp;Left</translation>
    </message>
    <message>
        <source>Rotate &amp;Right</source>
        <translation>Rotate &amp;Right</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>SaveTo</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>Start of the selection</source>
        <translation>Start of the selection</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Use</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;In</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom &amp;Out</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Save &amp;As…</translation>
    </message>
    <message>
        <source>&amp;Copy Whole Picture</source>
        <translation>&amp;Copy Whole Picture</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Find &amp;Next</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Find &amp;Previous</translation>
    </message>
    <message>
        <source>&amp;Touch Bar</source>
        <translation>&amp;Touch Bar</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Keyboard Shortcuts</translation>
    </message>
    <message>
        <source>What was noticed</source>
        <translation>What was noticed</translation>
    </message>
    <message>
        <source>BoundingBox:</source>
        <translation>BoundingBox:</translation>
    </message>
    <message>
        <source>HiResBoundingBox:</source>
        <translation>HiResBoundingBox:</translation>
    </message>
</context>
<context>
    <name>SKTZoomingScrollView</name>
    <message>
        <source>10%</source>
        <translation>10%</translation>
    </message>
    <message>
        <source>25%</source>
        <translation>25%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75%</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>125%</source>
        <translation>125%</translation>
    </message>
    <message>
        <source>150%</source>
        <translation>150%</translation>
    </message>
    <message>
        <source>200%</source>
        <translation>200%</translation>
    </message>
    <message>
        <source>400%</source>
        <translation>400%</translation>
    </message>
    <message>
        <source>800%</source>
        <translation>800%</translation>
    </message>
    <message>
        <source>1600%</source>
        <translation>1600%</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>the file is empty</source>
        <translation>the file is empty</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>it is larger than %1 MiB</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>it is a pipe, not an ordinary file</source>
        <translation>it is a pipe, not an ordinary file</translation>
    </message>
    <message>
        <source>it is a socket, not an ordinary file</source>
        <translation>it is a socket, not an ordinary file</translation>
    </message>
    <message>
        <source>it is a device, not an ordinary file</source>
        <translation>it is a device, not an ordinary file</translation>
    </message>
    <message>
        <source>it is being changed by another program</source>
        <translation>it is being changed by another program</translation>
    </message>
    <message>
        <source>only local files can be opened</source>
        <translation>only local files can be opened</translation>
    </message>
    <message>
        <source>this type of document cannot be shown</source>
        <translation>this type of document cannot be shown</translation>
    </message>
    <message>
        <source>this is not an EPS, Illustrator, PDF or SVG picture</source>
        <translation>this is not an EPS, Illustrator, PDF or SVG picture</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript</source>
        <translation>this is not Encapsulated PostScript</translation>
    </message>
    <message>
        <source>the PostScript header states no usable bounding box</source>
        <translation>the PostScript header states no usable bounding box</translation>
    </message>
    <message>
        <source>the PostScript has no usable bounding box</source>
        <translation>the PostScript has no usable bounding box</translation>
    </message>
    <message>
        <source>the file holds no PostScript</source>
        <translation>the file holds no PostScript</translation>
    </message>
    <message>
        <source>the picture has no area to be drawn</source>
        <translation>the picture has no area to be drawn</translation>
    </message>
    <message>
        <source>the SVG document has no area</source>
        <translation>the SVG document has no area</translation>
    </message>
    <message>
        <source>the picture is empty: its width or height is zero</source>
        <translation>the picture is empty: its width or height is zero</translation>
    </message>
    <message>
        <source>the file is cut off: %1 of the %2 bytes of %3 are missing</source>
        <translation>the file is cut off: %1 of the %2 bytes of %3 are missing</translation>
    </message>
    <message>
        <source>the file seems cut off: its PostScript stops before its end</source>
        <translation>the file seems cut off: its PostScript stops before its end</translation>
    </message>
    <message>
        <source>the file is damaged; it was repaired as far as possible</source>
        <translation>the file is damaged; it was repaired as far as possible</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of %1 can be read</source>
        <translation>the file is damaged; nothing of %1 can be read</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of page %1 can be read</source>
        <translation>the file is damaged; nothing of page %1 can be read</translation>
    </message>
    <message>
        <source>the document is damaged and cannot be read as PDF</source>
        <translation>the document is damaged and cannot be read as PDF</translation>
    </message>
    <message>
        <source>the document is not a readable PDF</source>
        <translation>the document is not a readable PDF</translation>
    </message>
    <message>
        <source>the document is protected with a password</source>
        <translation>the document is protected with a password</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>the password is wrong</translation>
    </message>
    <message>
        <source>the document uses an encryption that is not supported</source>
        <translation>the document uses an encryption that is not supported</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>the document has no pages</translation>
    </message>
    <message>
        <source>the document has more than %1 pages</source>
        <translation>the document has more than %1 pages</translation>
    </message>
    <message>
        <source>there is no page %1; the document has %2</source>
        <translation>there is no page %1; the document has %2</translation>
    </message>
    <message>
        <source>there is no page %1, the document has %2</source>
        <translation>there is no page %1, the document has %2</translation>
    </message>
    <message>
        <source>page %1 is too far behind</source>
        <translation>page %1 is too far behind</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>page %1 has no area</translation>
    </message>
    <message>
        <source>page %1 cannot be read</source>
        <translation>page %1 cannot be read</translation>
    </message>
    <message>
        <source>this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork</source>
        <translation>this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork</translation>
    </message>
    <message>
        <source>the document is protected by encryption, and what is made of it is not</source>
        <translation>the document is protected by encryption, and what is made of it is not</translation>
    </message>
    <message>
        <source>scripts of the document were left out</source>
        <translation>scripts of the document were left out</translation>
    </message>
    <message>
        <source>the PostScript program stops with an error</source>
        <translation>the PostScript program stops with an error</translation>
    </message>
    <message>
        <source>the PostScript program tries to use a file, which no picture may</source>
        <translation>the PostScript program tries to use a file, which no picture may</translation>
    </message>
    <message>
        <source>the PostScript draws no page</source>
        <translation>the PostScript draws no page</translation>
    </message>
    <message>
        <source>the PostScript did not end within %1 seconds</source>
        <translation>the PostScript did not end within %1 seconds</translation>
    </message>
    <message>
        <source>the PostScript needs more memory than it was granted</source>
        <translation>the PostScript needs more memory than it was granted</translation>
    </message>
    <message>
        <source>the PostScript used up the time or memory that it was granted</source>
        <translation>the PostScript used up the time or memory that it was granted</translation>
    </message>
    <message>
        <source>what follows the picture in the file was left out</source>
        <translation>what follows the picture in the file was left out</translation>
    </message>
    <message>
        <source>there is no interpreter of PostScript</source>
        <translation>there is no interpreter of PostScript</translation>
    </message>
    <message>
        <source>the interpreter of PostScript has ended</source>
        <translation>the interpreter of PostScript has ended</translation>
    </message>
    <message>
        <source>the interpreter of PostScript cannot be reached</source>
        <translation>the interpreter of PostScript cannot be reached</translation>
    </message>
    <message>
        <source>Ghostscript (gs) is not installed</source>
        <translation>Ghostscript (gs) is not installed</translation>
    </message>
    <message>
        <source>Ghostscript failed on the PostScript</source>
        <translation>Ghostscript failed on the PostScript</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>the document is empty</translation>
    </message>
    <message>
        <source>the document is not XML</source>
        <translation>the document is not XML</translation>
    </message>
    <message>
        <source>the document is XML but not SVG</source>
        <translation>the document is XML but not SVG</translation>
    </message>
    <message>
        <source>the document is not well-formed XML</source>
        <translation>the document is not well-formed XML</translation>
    </message>
    <message>
        <source>the compressed data is damaged</source>
        <translation>the compressed data is damaged</translation>
    </message>
    <message>
        <source>the compressed data is cut off</source>
        <translation>the compressed data is cut off</translation>
    </message>
    <message>
        <source>the compressed data grows to more than %1 times its size</source>
        <translation>the compressed data grows to more than %1 times its size</translation>
    </message>
    <message>
        <source>the compressed data holds more than %1 MiB</source>
        <translation>the compressed data holds more than %1 MiB</translation>
    </message>
    <message>
        <source>the document has more than %1 elements</source>
        <translation>the document has more than %1 elements</translation>
    </message>
    <message>
        <source>the elements of the document nest more than %1 deep</source>
        <translation>the elements of the document nest more than %1 deep</translation>
    </message>
    <message>
        <source>the references of the document nest more than %1 deep</source>
        <translation>the references of the document nest more than %1 deep</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts nest more than %1 deep</source>
        <translation>the glyphs of the document's fonts nest more than %1 deep</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts show more than %1 others</source>
        <translation>the glyphs of the document's fonts show more than %1 others</translation>
    </message>
    <message>
        <source>the document uses entities more than %1 times</source>
        <translation>the document uses entities more than %1 times</translation>
    </message>
    <message>
        <source>the entities of the document expand to more than %1 MiB</source>
        <translation>the entities of the document expand to more than %1 MiB</translation>
    </message>
    <message>
        <source>the entities of the document refer to one another without end</source>
        <translation>the entities of the document refer to one another without end</translation>
    </message>
    <message>
        <source>the picture is wider or higher than %1 points</source>
        <translation>the picture is wider or higher than %1 points</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>the picture cannot be read</translation>
    </message>
    <message>
        <source>the picture holds something that cannot be drawn</source>
        <translation>the picture holds something that cannot be drawn</translation>
    </message>
    <message>
        <source>the encoding %1 is not known</source>
        <translation>the encoding %1 is not known</translation>
    </message>
    <message>
        <source>the bytes are not text in the encoding %1</source>
        <translation>the bytes are not text in the encoding %1</translation>
    </message>
    <message>
        <source>the document refers to other files, which are never loaded (references: %1)</source>
        <translation>the document refers to other files, which are never loaded (references: %1)</translation>
    </message>
    <message>
        <source>the document has scripts, which are never run</source>
        <translation>the document has scripts, which are never run</translation>
    </message>
    <message>
        <source>the document is animated and is shown as it stands at rest</source>
        <translation>the document is animated and is shown as it stands at rest</translation>
    </message>
    <message>
        <source>the font %1 is missing, another stands in for it</source>
        <translation>the font %1 is missing, another stands in for it</translation>
    </message>
    <message>
        <source>the font %1 is missing, %2 stands in for it</source>
        <translation>the font %1 is missing, %2 stands in for it</translation>
    </message>
    <message>
        <source>the picture was not ready within %1 seconds</source>
        <translation>the picture was not ready within %1 seconds</translation>
    </message>
    <message>
        <source>the picture was not ready within the time that it is allowed</source>
        <translation>the picture was not ready within the time that it is allowed</translation>
    </message>
    <message>
        <source>the picture needs more memory than it is allowed</source>
        <translation>the picture needs more memory than it is allowed</translation>
    </message>
    <message>
        <source>the picture needs more processor time than it is allowed</source>
        <translation>the picture needs more processor time than it is allowed</translation>
    </message>
    <message>
        <source>the picture needs more temporary files than it is allowed</source>
        <translation>the picture needs more temporary files than it is allowed</translation>
    </message>
    <message>
        <source>the picture nests deeper than can be drawn</source>
        <translation>the picture nests deeper than can be drawn</translation>
    </message>
    <message>
        <source>the picture is larger than the memory that it was granted</source>
        <translation>the picture is larger than the memory that it was granted</translation>
    </message>
    <message>
        <source>the picture would have more pixels than it is allowed</source>
        <translation>the picture would have more pixels than it is allowed</translation>
    </message>
    <message>
        <source>the image would have a side of more than %1 pixels</source>
        <translation>the image would have a side of more than %1 pixels</translation>
    </message>
    <message>
        <source>the image would have more than %1 megapixels</source>
        <translation>the image would have more than %1 megapixels</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>there is not enough memory for the picture</translation>
    </message>
    <message>
        <source>there is not enough memory for the document</source>
        <translation>there is not enough memory for the document</translation>
    </message>
    <message>
        <source>there is not enough memory to draw the picture</source>
        <translation>there is not enough memory to draw the picture</translation>
    </message>
    <message>
        <source>there is not enough memory to read the document</source>
        <translation>there is not enough memory to read the document</translation>
    </message>
    <message>
        <source>the picture is larger than files may become here</source>
        <translation>the picture is larger than files may become here</translation>
    </message>
    <message>
        <source>too many files are open for another picture</source>
        <translation>too many files are open for another picture</translation>
    </message>
    <message>
        <source>the picture process ended without an answer</source>
        <translation>the picture process ended without an answer</translation>
    </message>
    <message>
        <source>the picture process did not answer in time</source>
        <translation>the picture process did not answer in time</translation>
    </message>
    <message>
        <source>the picture process was killed by the system, which has probably run out of memory</source>
        <translation>the picture process was killed by the system, which has probably run out of memory</translation>
    </message>
    <message>
        <source>the picture process gave an answer that cannot be true</source>
        <translation>the picture process gave an answer that cannot be true</translation>
    </message>
    <message>
        <source>no process for the picture could be started</source>
        <translation>no process for the picture could be started</translation>
    </message>
    <message>
        <source>the program that reads pictures could not be started</source>
        <translation>the program that reads pictures could not be started</translation>
    </message>
    <message>
        <source>the program that reads pictures has ended</source>
        <translation>the program that reads pictures has ended</translation>
    </message>
    <message>
        <source>the program that reads pictures has not answered yet</source>
        <translation>the program that reads pictures has not answered yet</translation>
    </message>
    <message>
        <source>the picture process could not be confined: this system offers neither Landlock nor user namespaces with seccomp filters</source>
        <translation>the picture process could not be confined: this system offers neither Landlock nor user namespaces with seccomp filters</translation>
    </message>
    <message>
        <source>the drawing was stopped</source>
        <translation>the drawing was stopped</translation>
    </message>
    <message>
        <source>the picture could not be processed</source>
        <translation>the picture could not be processed</translation>
    </message>
    <message>
        <source>the picture cannot be drawn at this size</source>
        <translation>the picture cannot be drawn at this size</translation>
    </message>
    <message>
        <source>the file exists already</source>
        <translation>the file exists already</translation>
    </message>
    <message>
        <source>the folder to write to does not exist</source>
        <translation>the folder to write to does not exist</translation>
    </message>
    <message>
        <source>there is a folder of that name</source>
        <translation>there is a folder of that name</translation>
    </message>
    <message>
        <source>there is no space left to write to</source>
        <translation>there is no space left to write to</translation>
    </message>
    <message>
        <source>writing there is not permitted</source>
        <translation>writing there is not permitted</translation>
    </message>
    <message>
        <source>the file could not be written (%1)</source>
        <translation>the file could not be written (%1)</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>it is not an ordinary file</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>the file is read-only</translation>
    </message>
    <message>
        <source>the rectangle is empty or out of range</source>
        <translation>the rectangle is empty or out of range</translation>
    </message>
    <message>
        <source>no profile of a press is installed (%1)</source>
        <translation>no profile of a press is installed (%1)</translation>
    </message>
    <message>
        <source>the page cannot be written as PostScript</source>
        <translation>the page cannot be written as PostScript</translation>
    </message>
    <message>
        <source>the page cannot be written as SVG</source>
        <translation>the page cannot be written as SVG</translation>
    </message>
    <message>
        <source>the picture cannot be written as PDF</source>
        <translation>the picture cannot be written as PDF</translation>
    </message>
    <message>
        <source>the page is too large or too deeply nested to become SVG</source>
        <translation>the page is too large or too deeply nested to become SVG</translation>
    </message>
    <message>
        <source>only EPS files can be repaired</source>
        <translation>only EPS files can be repaired</translation>
    </message>
    <message>
        <source>an SVG picture has no inks: its colours are those of a screen</source>
        <translation>an SVG picture has no inks: its colours are those of a screen</translation>
    </message>
    <message>
        <source>at %1 dpi a plate has %2 million pixels, and at most %3 million can be handled</source>
        <translation>at %1 dpi a plate has %2 million pixels, and at most %3 million can be handled</translation>
    </message>
    <message>
        <source>the print service cannot be reached</source>
        <translation>the print service cannot be reached</translation>
    </message>
    <message>
        <source>the print service does not answer</source>
        <translation>the print service does not answer</translation>
    </message>
    <message>
        <source>the print service gives no answer that makes sense</source>
        <translation>the print service gives no answer that makes sense</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>there is no printer</translation>
    </message>
    <message>
        <source>no printer is the default one</source>
        <translation>no printer is the default one</translation>
    </message>
    <message>
        <source>there is no printer named “%1”</source>
        <translation>there is no printer named “%1”</translation>
    </message>
    <message>
        <source>the printer “%1” takes no jobs</source>
        <translation>the printer “%1” takes no jobs</translation>
    </message>
    <message>
        <source>the printer “%1” is not open to this user</source>
        <translation>the printer “%1” is not open to this user</translation>
    </message>
    <message>
        <source>the printer “%1” wants a user name and a password, which are not asked for here</source>
        <translation>the printer “%1” wants a user name and a password, which are not asked for here</translation>
    </message>
    <message>
        <source>the printer “%1” did not take the job: %2</source>
        <translation>the printer “%1” did not take the job: %2</translation>
    </message>
    <message>
        <source>the document has %1 pages, and only the first %2 of them can be printed</source>
        <translation>the document has %1 pages, and only the first %2 of them can be printed</translation>
    </message>
    <message>
        <source>there are no such pages: the document has %1</source>
        <translation>there are no such pages: the document has %1</translation>
    </message>
    <message>
        <source>there are no such pages: the picture takes %1</source>
        <translation>there are no such pages: the picture takes %1</translation>
    </message>
    <message>
        <source>the pages would take more than %1 sheets of paper</source>
        <translation>the pages would take more than %1 sheets of paper</translation>
    </message>
    <message>
        <source>the picture would take more than %1 sheets of paper</source>
        <translation>the picture would take more than %1 sheets of paper</translation>
    </message>
    <message>
        <source>the margins leave no room on the paper</source>
        <translation>the margins leave no room on the paper</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No such file or directory</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Input/output error</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Too many open files</translation>
    </message>
    <message>
        <source>its PostScript</source>
        <translation>its PostScript</translation>
    </message>
    <message>
        <source>its preview</source>
        <translation>its preview</translation>
    </message>
    <message>
        <source>its plates</source>
        <translation>its plates</translation>
    </message>
    <message>
        <source>its page</source>
        <translation>its page</translation>
    </message>
    <message>
        <source>its pages</source>
        <translation>its pages</translation>
    </message>
    <message>
        <source>no reason is given</source>
        <translation>no reason is given</translation>
    </message>
    <message>
        <source>actions that start programs or open other files were left out</source>
        <translation>actions that start programs or open other files were left out</translation>
    </message>
    <message>
        <source>what the document does when it is opened was left out</source>
        <translation>what the document does when it is opened was left out</translation>
    </message>
    <message>
        <source>references to files beside the document were left out</source>
        <translation>references to files beside the document were left out</translation>
    </message>
    <message>
        <source>PostScript programs that the document holds were left out</source>
        <translation>PostScript programs that the document holds were left out</translation>
    </message>
    <message>
        <source>glyphs that show themselves were left out</source>
        <translation>glyphs that show themselves were left out</translation>
    </message>
    <message>
        <source>glyphs that show too many others were left out</source>
        <translation>glyphs that show too many others were left out</translation>
    </message>
    <message>
        <source>a font cannot be taken over; another stands in for it</source>
        <translation>a font cannot be taken over; another stands in for it</translation>
    </message>
    <message>
        <source>the font %1 cannot be taken over; another stands in for it</source>
        <translation>the font %1 cannot be taken over; another stands in for it</translation>
    </message>
    <message>
        <source>the source has no PostScript, so the file holds a preview and nothing else</source>
        <translation>the source has no PostScript, so the file holds a preview and nothing else</translation>
    </message>
    <message>
        <source>the picture gives no PostScript, so the file holds a preview and nothing else</source>
        <translation>the picture gives no PostScript, so the file holds a preview and nothing else</translation>
    </message>
    <message>
        <source>the PDF has no subject, because the document has a description but no title</source>
        <translation>the PDF has no subject, because the document has a description but no title</translation>
    </message>
    <message>
        <source>the preview could not be written as TIFF</source>
        <translation>the preview could not be written as TIFF</translation>
    </message>
    <message>
        <source>the result could not be opened again: %1</source>
        <translation>the result could not be opened again: %1</translation>
    </message>
    <message>
        <source>an image with more pixels than are granted was left out</source>
        <translation>an image with more pixels than are granted was left out</translation>
    </message>
    <message>
        <source>letters of more fonts or shapes than are granted were left out</source>
        <translation>letters of more fonts or shapes than are granted were left out</translation>
    </message>
    <message>
        <source>a group that knocks out or blends with what lies below it is put together by itself, as SVG has it</source>
        <translation>a group that knocks out or blends with what lies below it is put together by itself, as SVG has it</translation>
    </message>
    <message>
        <source>some text stays outlines: it is a line or a clip, or its font may not or cannot be embedded</source>
        <translation>some text stays outlines: it is a line or a clip, or its font may not or cannot be embedded</translation>
    </message>
    <message>
        <source>of some characters the document does not tell the meaning: they are shown, and no search finds them</source>
        <translation>of some characters the document does not tell the meaning: they are shown, and no search finds them</translation>
    </message>
    <message>
        <source>what is drawn through a filter (elements: %1) is held as an image</source>
        <translation>what is drawn through a filter (elements: %1) is held as an image</translation>
    </message>
    <message>
        <source>masks (elements: %1) are held as images, what they mask is not</source>
        <translation>masks (elements: %1) are held as images, what they mask is not</translation>
    </message>
    <message>
        <source>the text is in %1 and is handed on as UTF-8</source>
        <translation>the text is in %1 and is handed on as UTF-8</translation>
    </message>
    <message>
        <source>the document's width or height is not a length and is passed over</source>
        <translation>the document's width or height is not a length and is passed over</translation>
    </message>
    <message>
        <source>the document's view box is not readable and is passed over</source>
        <translation>the document's view box is not readable and is passed over</translation>
    </message>
    <message>
        <source>it draws nothing and states no bounding box</source>
        <translation>it draws nothing and states no bounding box</translation>
    </message>
    <message>
        <source>it cannot be mended: %1</source>
        <translation>it cannot be mended: %1</translation>
    </message>
    <message>
        <source>the program was taken out of %1</source>
        <translation>the program was taken out of %1</translation>
    </message>
    <message>
        <source>the program was taken out of its binary file</source>
        <translation>the program was taken out of its binary file</translation>
    </message>
    <message>
        <source>the preview was left out</source>
        <translation>the preview was left out</translation>
    </message>
    <message>
        <source>the Windows metafile was left out</source>
        <translation>the Windows metafile was left out</translation>
    </message>
    <message>
        <source>a preview of %1 by %2 pixels was made</source>
        <translation>a preview of %1 by %2 pixels was made</translation>
    </message>
    <message>
        <source>the first line is %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>the first line is %!PS-Adobe-3.0 EPSF-3.0</translation>
    </message>
    <message>
        <source>%%EndComments was put in</source>
        <translation>%%EndComments was put in</translation>
    </message>
    <message>
        <source>a second %%EndComments was left out</source>
        <translation>a second %%EndComments was left out</translation>
    </message>
    <message>
        <source>showpage was put in</source>
        <translation>showpage was put in</translation>
    </message>
    <message>
        <source>%%EOF was put in</source>
        <translation>%%EOF was put in</translation>
    </message>
    <message>
        <source>what stood behind %%EOF was left out</source>
        <translation>what stood behind %%EOF was left out</translation>
    </message>
    <message>
        <source>what stood before the first line was left out</source>
        <translation>what stood before the first line was left out</translation>
    </message>
    <message>
        <source>the box at the end of the file stands in its header</source>
        <translation>the box at the end of the file stands in its header</translation>
    </message>
    <message>
        <source>the bounding box is %1 (%2)</source>
        <translation>the bounding box is %1 (%2)</translation>
    </message>
    <message>
        <source>%1 was left out, because it stood out of order</source>
        <translation>%1 was left out, because it stood out of order</translation>
    </message>
    <message>
        <source>the document is larger than %1 MiB</source>
        <translation>the document is larger than %1 MiB</translation>
    </message>
    <message>
        <source>the compressed data is larger than %1 MiB</source>
        <translation>the compressed data is larger than %1 MiB</translation>
    </message>
    <message>
        <source>there is not enough memory to inflate the data</source>
        <translation>there is not enough memory to inflate the data</translation>
    </message>
    <message>
        <source>the document has a filter with a matrix of more than %1 numbers</source>
        <translation>the document has a filter with a matrix of more than %1 numbers</translation>
    </message>
    <message>
        <source>the selectors of the document's style sheets nest more than %1 deep</source>
        <translation>the selectors of the document's style sheets nest more than %1 deep</translation>
    </message>
    <message>
        <source>the document has text of more than %1 units in size</source>
        <translation>the document has text of more than %1 units in size</translation>
    </message>
    <message>
        <source>the plates of the page have more pixels than can be handled; a lower resolution helps</source>
        <translation>the plates of the page have more pixels than can be handled; a lower resolution helps</translation>
    </message>
    <message>
        <source>Ghostscript did not separate the page</source>
        <translation>Ghostscript did not separate the page</translation>
    </message>
    <message>
        <source>Ghostscript (gs) cannot be started</source>
        <translation>Ghostscript (gs) cannot be started</translation>
    </message>
    <message>
        <source>the interpreter of PostScript could not be confined</source>
        <translation>the interpreter of PostScript could not be confined</translation>
    </message>
    <message>
        <source>there is no %%BoundingBox</source>
        <translation>there is no %%BoundingBox</translation>
    </message>
    <message>
        <source>the file is wrapped as %1, with a Macintosh picture (PICT) of %2 × %3 points as its preview</source>
        <translation>the file is wrapped as %1, with a Macintosh picture (PICT) of %2 × %3 points as its preview</translation>
    </message>
    <message>
        <source>there is no preview</source>
        <translation>there is no preview</translation>
    </message>
    <message>
        <source>the file does not begin with %!PS-Adobe</source>
        <translation>the file does not begin with %!PS-Adobe</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>showpage is missing</translation>
    </message>
    <message>
        <source>the font %1 is a Type 3 font</source>
        <translation>the font %1 is a Type 3 font</translation>
    </message>
    <message>
        <source>the font %1 is not embedded</source>
        <translation>the font %1 is not embedded</translation>
    </message>
    <message>
        <source>the font %1 is embedded as a whole</source>
        <translation>the font %1 is embedded as a whole</translation>
    </message>
    <message>
        <source>there are RGB colours</source>
        <translation>there are RGB colours</translation>
    </message>
    <message>
        <source>white overprints, and will vanish</source>
        <translation>white overprints, and will vanish</translation>
    </message>
    <message>
        <source>small black text does not overprint</source>
        <translation>small black text does not overprint</translation>
    </message>
    <message>
        <source>the document is encrypted</source>
        <translation>the document is encrypted</translation>
    </message>
    <message>
        <source>it has scripts or animations, which are not run</source>
        <translation>it has scripts or animations, which are not run</translation>
    </message>
    <message>
        <source>its width or height is absent, or has no unit</source>
        <translation>its width or height is absent, or has no unit</translation>
    </message>
    <message>
        <source>there is transparency</source>
        <translation>there is transparency</translation>
    </message>
    <message>
        <source>a part of the page was not looked at</source>
        <translation>a part of the page was not looked at</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1" instead of four numbers</source>
        <translation>%%BoundingBox holds "%1" instead of four numbers</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1", which are not all whole numbers</source>
        <translation>%%BoundingBox holds "%1", which are not all whole numbers</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 does not enclose %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 does not enclose %%HiResBoundingBox %2</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 is far larger than %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 is far larger than %%HiResBoundingBox %2</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>without a name</translation>
    </message>
    <message>
        <source>%%BoundingBox is promised for the end and does not come</source>
        <translation>%%BoundingBox is promised for the end and does not come</translation>
    </message>
    <message>
        <source>the bounding box %1 has no area</source>
        <translation>the bounding box %1 has no area</translation>
    </message>
    <message>
        <source>nothing but white is drawn inside the bounding box</source>
        <translation>nothing but white is drawn inside the bounding box</translation>
    </message>
    <message>
        <source>the bounding box %1 cuts the ink off, which reaches %2 pt beyond it: %3</source>
        <translation>the bounding box %1 cuts the ink off, which reaches %2 pt beyond it: %3</translation>
    </message>
    <message>
        <source>the bounding box %1 is more than twice as large as the ink: %2</source>
        <translation>the bounding box %1 is more than twice as large as the ink: %2</translation>
    </message>
    <message>
        <source>the %1 section ends at byte %2, the file at byte %3</source>
        <translation>the %1 section ends at byte %2, the file at byte %3</translation>
    </message>
    <message>
        <source>the %1 section lies over another part of the file</source>
        <translation>the %1 section lies over another part of the file</translation>
    </message>
    <message>
        <source>bytes before %!PS-Adobe: %1</source>
        <translation>bytes before %!PS-Adobe: %1</translation>
    </message>
    <message>
        <source>bytes behind %%EOF: %1</source>
        <translation>bytes behind %%EOF: %1</translation>
    </message>
    <message>
        <source>the file needs fonts that it does not bring: %1</source>
        <translation>the file needs fonts that it does not bring: %1</translation>
    </message>
    <message>
        <source>the preview is %1 by %2 pixels large, the bounding box %3 by %4 points</source>
        <translation>the preview is %1 by %2 pixels large, the bounding box %3 by %4 points</translation>
    </message>
    <message>
        <source>the preview shows another picture than the program draws (mean difference %1 %)</source>
        <translation>the preview shows another picture than the program draws (mean difference %1 %)</translation>
    </message>
    <message>
        <source>the first line "%1" does not say %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>the first line "%1" does not say %!PS-Adobe-3.0 EPSF-3.0</translation>
    </message>
    <message>
        <source>the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist</source>
        <translation>the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist</translation>
    </message>
    <message>
        <source>the header has no %%EndComments</source>
        <translation>the header has no %%EndComments</translation>
    </message>
    <message>
        <source>%%EndComments stands behind the first line that is no comment</source>
        <translation>%%EndComments stands behind the first line that is no comment</translation>
    </message>
    <message>
        <source>lines of more than 255 bytes: %1, the first is line %2</source>
        <translation>lines of more than 255 bytes: %1, the first is line %2</translation>
    </message>
    <message>
        <source>lines end in %1 different ways</source>
        <translation>lines end in %1 different ways</translation>
    </message>
    <message>
        <source>a line is %1 pt thin, %2 pt are asked for</source>
        <translation>a line is %1 pt thin, %2 pt are asked for</translation>
    </message>
    <message>
        <source>a text is %1 pt small, %2 pt are asked for</source>
        <translation>a text is %1 pt small, %2 pt are asked for</translation>
    </message>
    <message>
        <source>a colour takes %1 % of ink, %2 % are allowed</source>
        <translation>a colour takes %1 % of ink, %2 % are allowed</translation>
    </message>
    <message>
        <source>the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for</source>
        <translation>the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>colour</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>grey</translation>
    </message>
    <message>
        <source>line art</source>
        <translation>line art</translation>
    </message>
    <message>
        <source>it names the colour space %1, which the profile does not</source>
        <translation>it names the colour space %1, which the profile does not</translation>
    </message>
    <message>
        <source>there is the spot ink %1</source>
        <translation>there is the spot ink %1</translation>
    </message>
    <message>
        <source>RGB colours stand beside CMYK colours</source>
        <translation>RGB colours stand beside CMYK colours</translation>
    </message>
    <message>
        <source>its permissions forbid %1</source>
        <translation>its permissions forbid %1</translation>
    </message>
    <message>
        <source>it claims to keep %1</source>
        <translation>it claims to keep %1</translation>
    </message>
    <message>
        <source>it claims to keep %1 and has no output intent</source>
        <translation>it claims to keep %1 and has no output intent</translation>
    </message>
    <message>
        <source>it refers to other files, which are never loaded (references: %1)</source>
        <translation>it refers to other files, which are never loaded (references: %1)</translation>
    </message>
    <message>
        <source>elements drawn through filters become images in print: %1</source>
        <translation>elements drawn through filters become images in print: %1</translation>
    </message>
    <message>
        <source>something is drawn up to %1 pt outside the page</source>
        <translation>something is drawn up to %1 pt outside the page</translation>
    </message>
    <message>
        <source>only the first %1 pages were looked at</source>
        <translation>only the first %1 pages were looked at</translation>
    </message>
    <message>
        <source>the picture is %1 mm wide, columns are %2 mm</source>
        <translation>the picture is %1 mm wide, columns are %2 mm</translation>
    </message>
    <message>
        <source>the file is wrapped as %1</source>
        <translation>the file is wrapped as %1</translation>
    </message>
    <message>
        <source>%1 takes language level %2, and the header declares %3</source>
        <translation>%1 takes language level %2, and the header declares %3</translation>
    </message>
    <message>
        <source>none above 1</source>
        <translation>none above 1</translation>
    </message>
    <message>
        <source>%1 has no place in an EPS file</source>
        <translation>%1 has no place in an EPS file</translation>
    </message>
    <message>
        <source>%1 is declared, and line %2 holds the byte %3</source>
        <translation>%1 is declared, and line %2 holds the byte %3</translation>
    </message>
    <message>
        <source>%1 stands behind %2</source>
        <translation>%1 stands behind %2</translation>
    </message>
    <message>
        <source>%1 ends what did not begin</source>
        <translation>%1 ends what did not begin</translation>
    </message>
    <message>
        <source>%1 has no end</source>
        <translation>%1 has no end</translation>
    </message>
    <message>
        <source>the embedded preview is malformed</source>
        <translation>the embedded preview is malformed</translation>
    </message>
    <message>
        <source>the embedded preview is too large</source>
        <translation>the embedded preview is too large</translation>
    </message>
    <message>
        <source>the embedded preview lies outside of the file</source>
        <translation>the embedded preview lies outside of the file</translation>
    </message>
    <message>
        <source>the preview is not a readable TIFF image</source>
        <translation>the preview is not a readable TIFF image</translation>
    </message>
    <message>
        <source>the preview has more than %1 megapixels</source>
        <translation>the preview has more than %1 megapixels</translation>
    </message>
    <message>
        <source>the embedded Windows metafile is damaged</source>
        <translation>the embedded Windows metafile is damaged</translation>
    </message>
    <message>
        <source>the embedded Windows metafile tells no size</source>
        <translation>the embedded Windows metafile tells no size</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is damaged</source>
        <translation>a bitmap in the Windows metafile is damaged</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is of a kind that is not drawn</source>
        <translation>a bitmap in the Windows metafile is of a kind that is not drawn</translation>
    </message>
    <message>
        <source>the part of norvex that this picture needs is missing or damaged: %1</source>
        <translation>the part of norvex that this picture needs is missing or damaged: %1</translation>
    </message>
    <message>
        <source>the measures of the picture are larger than can be handled</source>
        <translation>the measures of the picture are larger than can be handled</translation>
    </message>
    <message>
        <source>the picture process cannot be waited for: too many files are open</source>
        <translation>the picture process cannot be waited for: too many files are open</translation>
    </message>
    <message>
        <source>no connection to a picture process could be made</source>
        <translation>no connection to a picture process could be made</translation>
    </message>
    <message>
        <source>the picture cannot be made in this size or at this place</source>
        <translation>the picture cannot be made in this size or at this place</translation>
    </message>
    <message>
        <source>the picture is too large to be drawn without seams</source>
        <translation>the picture is too large to be drawn without seams</translation>
    </message>
    <message>
        <source>there was not enough memory for work in the background</source>
        <translation>there was not enough memory for work in the background</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>there is no picture</translation>
    </message>
    <message>
        <source>these pixels cannot be converted</source>
        <translation>these pixels cannot be converted</translation>
    </message>
    <message>
        <source>the profile of the press cannot be used</source>
        <translation>the profile of the press cannot be used</translation>
    </message>
    <message>
        <source>a section of it is missing</source>
        <translation>a section of it is missing</translation>
    </message>
    <message>
        <source>it has no end</source>
        <translation>it has no end</translation>
    </message>
    <message>
        <source>the source has no PostScript</source>
        <translation>the source has no PostScript</translation>
    </message>
    <message>
        <source>the source has no comments that a preview could follow</source>
        <translation>the source has no comments that a preview could follow</translation>
    </message>
    <message>
        <source>the document has a description but no title to store with it</source>
        <translation>the document has a description but no title to store with it</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %!</source>
        <translation>this is not Encapsulated PostScript: it does not begin with %!</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %! and states no bounding box</source>
        <translation>this is not Encapsulated PostScript: it does not begin with %! and states no bounding box</translation>
    </message>
    <message>
        <source>the document is protected by encryption and does not allow %1; what is made of it is not protected</source>
        <translation>the document is protected by encryption and does not allow %1; what is made of it is not protected</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>printing</translation>
    </message>
    <message>
        <source>changing</source>
        <translation>changing</translation>
    </message>
    <message>
        <source>copying</source>
        <translation>copying</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 is not understood and was left out</source>
        <translation>the Illustrator operator %1 is not understood and was left out</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 was left out where its operands are not understood</source>
        <translation>the Illustrator operator %1 was left out where its operands are not understood</translation>
    </message>
    <message>
        <source>the pattern %1 is not in the file in a form that is understood and was left out</source>
        <translation>the pattern %1 is not in the file in a form that is understood and was left out</translation>
    </message>
    <message>
        <source>the gradient %1 is not in the file: a plain colour stands for it</source>
        <translation>the gradient %1 is not in the file: a plain colour stands for it</translation>
    </message>
    <message>
        <source>the placed picture %1 is not in the file</source>
        <translation>the placed picture %1 is not in the file</translation>
    </message>
    <message>
        <source>a pdfmark whose operands are wrong was left out</source>
        <translation>a pdfmark whose operands are wrong was left out</translation>
    </message>
    <message>
        <source>a part of the artwork could not be drawn (%1)</source>
        <translation>a part of the artwork could not be drawn (%1)</translation>
    </message>
    <message>
        <source>the page has errors, and something may be missing on its plates</source>
        <translation>the page has errors, and something may be missing on its plates</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, line %2: %3</translation>
    </message>
    <message>
        <source>there is no %1, only [limits] and [severities]</source>
        <translation>there is no %1, only [limits] and [severities]</translation>
    </message>
    <message>
        <source>%1 is a number from 0</source>
        <translation>%1 is a number from 0</translation>
    </message>
    <message>
        <source>rgb is true or false</source>
        <translation>rgb is true or false</translation>
    </message>
    <message>
        <source>colour-spaces is a list of names</source>
        <translation>colour-spaces is a list of names</translation>
    </message>
    <message>
        <source>columns-mm is a list of numbers</source>
        <translation>columns-mm is a list of numbers</translation>
    </message>
    <message>
        <source>there is no limit %1</source>
        <translation>there is no limit %1</translation>
    </message>
    <message>
        <source>there is no rule %1</source>
        <translation>there is no rule %1</translation>
    </message>
    <message>
        <source>%1 is one of: error, warning, note, off</source>
        <translation>%1 is one of: error, warning, note, off</translation>
    </message>
    <message>
        <source>this is neither a [table] nor a name with = and a value</source>
        <translation>this is neither a [table] nor a name with = and a value</translation>
    </message>
    <message>
        <source>%1 is no ordinary file, as a profile has to be</source>
        <translation>%1 is no ordinary file, as a profile has to be</translation>
    </message>
    <message>
        <source>there is no profile %1, and no file of that name; profiles are: %2</source>
        <translation>there is no profile %1, and no file of that name; profiles are: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a profile</source>
        <translation>%1 is too large for a profile</translation>
    </message>
    <message>
        <source>Landlock: on, version %1</source>
        <translation>Landlock: on, version %1.</translation>
    </message>
    <message>
        <source>Landlock: missing</source>
        <translation>Landlock: missing.</translation>
    </message>
    <message>
        <source>No rules of the kernel about files</source>
        <translation>No rules of the kernel about files.</translation>
    </message>
    <message>
        <source>Nothing but what engines need can be read, nothing but scratch files written</source>
        <translation>Nothing but what engines need can be read, nothing but scratch files written.</translation>
    </message>
    <message>
        <source>Nothing is listed, removed or started besides</source>
        <translation>Nothing is listed, removed or started besides.</translation>
    </message>
    <message>
        <source>There is no TCP</source>
        <translation>There is no TCP.</translation>
    </message>
    <message>
        <source>There are no signals and no abstract sockets to others</source>
        <translation>There are no signals and no abstract sockets to others.</translation>
    </message>
    <message>
        <source>Devices cannot be controlled</source>
        <translation>Devices cannot be controlled.</translation>
    </message>
    <message>
        <source>This version does not cover %1</source>
        <translation>This version does not cover %1.</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>signals and abstract sockets</source>
        <translation>signals and abstract sockets</translation>
    </message>
    <message>
        <source>control of devices</source>
        <translation>control of devices</translation>
    </message>
    <message>
        <source>cutting files off</source>
        <translation>cutting files off</translation>
    </message>
    <message>
        <source>System calls (seccomp): on</source>
        <translation>System calls (seccomp): on.</translation>
    </message>
    <message>
        <source>Only calls on a list: no programs, processes, sockets, tracing, mounts, keys, changed modes or owners</source>
        <translation>Only calls on a list: no programs, processes, sockets, tracing, mounts, keys, changed modes or owners.</translation>
    </message>
    <message>
        <source>Engines open nothing for writing</source>
        <translation>Engines open nothing for writing.</translation>
    </message>
    <message>
        <source>System calls (seccomp): missing</source>
        <translation>System calls (seccomp): missing.</translation>
    </message>
    <message>
        <source>Every call can be made</source>
        <translation>Every call can be made.</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): on</source>
        <translation>File view (user and mount namespaces): on.</translation>
    </message>
    <message>
        <source>Files other than those that engines need do not exist, and all but scratch files are read-only</source>
        <translation>Files other than those that engines need do not exist, and all but scratch files are read-only.</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): missing</source>
        <translation>File view (user and mount namespaces): missing.</translation>
    </message>
    <message>
        <source>The system does not permit them to this user</source>
        <translation>The system does not permit them to this user.</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): on</source>
        <translation>Network and messages (namespaces): on.</translation>
    </message>
    <message>
        <source>No network exists</source>
        <translation>No network exists.</translation>
    </message>
    <message>
        <source>No shared memory or queues of others exist</source>
        <translation>No shared memory or queues of others exist.</translation>
    </message>
    <message>
        <source>Of a single picture on the command line: off, for they take time</source>
        <translation>Of a single picture on the command line: off, for they take time.</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): missing</source>
        <translation>Network and messages (namespaces): missing.</translation>
    </message>
    <message>
        <source>What else is on keeps pictures from them</source>
        <translation>What else is on keeps pictures from them.</translation>
    </message>
    <message>
        <source>Limits: memory, processor time, size and number of files, scratch files; no core files</source>
        <translation>Limits: memory, processor time, size and number of files, scratch files; no core files.</translation>
    </message>
    <message>
        <source>This build watches itself, for which it leaves layers out</source>
        <translation>This build watches itself, for which it leaves layers out.</translation>
    </message>
    <message>
        <source>Each picture is read in a process of its own that is confined so</source>
        <translation>Each picture is read in a process of its own that is confined so.</translation>
    </message>
    <message>
        <source>Nothing keeps a picture from this user's files: norvex refuses to read any</source>
        <translation>Nothing keeps a picture from this user's files: norvex refuses to read any.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
</context>
</TS>
