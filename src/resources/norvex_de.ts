<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>About Norvex</source>
        <translation>Über Norvex</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Bad data.</source>
        <translation>Die Datei enthält keine lesbaren Daten.</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>Schriften:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Verwendete Farben:</translation>
    </message>
    <message>
        <source>%1 What is shown was read before.</source>
        <translation>%1 Gezeigt wird, was zuvor gelesen wurde.</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>Begrenzungsrahmen:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Chooses pictures and opens each in a window of its own</source>
        <translation>Wählt Bilder aus und öffnet jedes in einem eigenen Fenster</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Suchleiste schließen</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>Farbraum:</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Befehle und ihre Tasten</translation>
    </message>
    <message>
        <source>Compressed SVG image (SVGZ)</source>
        <translation>Komprimiertes SVG-Bild (SVGZ)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy Selected Text</source>
        <translation>Markierten Text kopieren</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Wird kopiert …</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>Copyright:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Erstellt:</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>Erzeuger:</translation>
    </message>
    <message>
        <source>D.M.S.</source>
        <translation>Grad, Minuten und Sekunden: 12,3045 bedeutet 12° 30′ 45″</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Down by %1 pt</source>
        <translation>Um %1 pt nach unten</translation>
    </message>
    <message>
        <source>Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another program as a file.</source>
        <translation>Zweimal ziehen, um ein Rechteck zu markieren. Mit gehaltener Strg-Taste ziehen, um es als Datei an ein anderes Programm zu geben.</translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Wird gezeichnet …</translation>
    </message>
    <message>
        <source>EPS, Illustrator, PDF and SVG pictures</source>
        <translation>EPS-, Illustrator-, PDF- und SVG-Bilder</translation>
    </message>
    <message>
        <source>Encapsulated PostScript (EPS)</source>
        <translation>Encapsulated PostScript (EPS)</translation>
    </message>
    <message>
        <source>Encapsulated PostScript with interchange preview (EPSI)</source>
        <translation>Encapsulated PostScript mit Austauschvorschau (EPSI)</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodierung des Quelltexts</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>Kodierung:</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Datei dieses Dokuments</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>Für:</translation>
    </message>
    <message>
        <source>GIF image</source>
        <translation>GIF-Bild</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Hide extension</source>
        <translation>Dateiendung ausblenden</translation>
    </message>
    <message>
        <source>High resolution:</source>
        <translation>Hohe Auflösung:</translation>
    </message>
    <message>
        <source>Higher by %1 pt</source>
        <translation>Um %1 pt höher</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG-Bild</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>&amp;Einstellungen …</translation>
    </message>
    <message>
        <source>Di&amp;m Outside of Selection</source>
        <translation>Außerhalb der Auswahl &amp;abblenden</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Window fits picture</source>
        <translation>&amp;Fenster passt sich dem Bild an</translation>
    </message>
    <message>
        <source>No larger than the picture, and smaller with it.</source>
        <translation>Nie größer als das Bild; wird mit ihm kleiner.</translation>
    </message>
    <message>
        <source>Chec&amp;kerboard behind new pictures</source>
        <translation>Schach&amp;brett hinter neuen Bildern</translation>
    </message>
    <message>
        <source>Shows where nothing is painted, instead of the background colour.</source>
        <translation>Zeigt anstelle der Hintergrundfarbe, wo nichts gezeichnet ist.</translation>
    </message>
    <message>
        <source>Di&amp;m what is outside of the selection</source>
        <translation>Abblenden, &amp;was außerhalb der Auswahl liegt</translation>
    </message>
    <message>
        <source>What is copied, saved or printed stands out.</source>
        <translation>Hebt hervor, was kopiert, gespeichert oder gedruckt wird.</translation>
    </message>
    <message>
        <source>&amp;Unit of lengths:</source>
        <translation>&amp;Längeneinheit:</translation>
    </message>
    <message>
        <source>Of coordinates, of the size of a selection, and of typed numbers.</source>
        <translation>Für Koordinaten, die Größe einer Auswahl und eingegebene Zahlen.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>Pica</translation>
    </message>
    <message>
        <source>&amp;Reload changed files by itself</source>
        <translation>Geänderte Dateien automatisch neu la&amp;den</translation>
    </message>
    <message>
        <source>Otherwise a bar in the window asks.</source>
        <translation>Andernfalls fragt eine Leiste im Fenster nach.</translation>
    </message>
    <message>
        <source>R&amp;emember files</source>
        <translation>Dateien &amp;merken</translation>
    </message>
    <message>
        <source>Recent files, and how their pictures were shown. Switching it off forgets all.</source>
        <translation>Zuletzt benutzte Dateien und wie ihre Bilder gezeigt wurden. Beim Abschalten wird alles vergessen.</translation>
    </message>
    <message>
        <source>C&amp;lear History</source>
        <translation>&amp;Verlauf löschen</translation>
    </message>
    <message>
        <source>Forgets the recent files, and how their pictures were shown.</source>
        <translation>Vergisst die zuletzt benutzten Dateien und wie ihre Bilder gezeigt wurden.</translation>
    </message>
    <message>
        <source>Colours:</source>
        <translation>Farben:</translation>
    </message>
    <message>
        <source>RGB for screens</source>
        <translation>RGB für Bildschirme</translation>
    </message>
    <message>
        <source>Shades of grey</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>CMYK for print</source>
        <translation>CMYK für den Druck</translation>
    </message>
    <message>
        <source>&amp;Real Size on This Screen</source>
        <translation>Wirkliche Größe auf die&amp;sem Bildschirm</translation>
    </message>
    <message>
        <source>Size the selection</source>
        <translation>Größe der Auswahl ändern</translation>
    </message>
    <message>
        <source>Drag a square beside it</source>
        <translation>Ein Quadrat an ihrem Rand ziehen</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>Auswahl verschieben</translation>
    </message>
    <message>
        <source>Drag its size</source>
        <translation>Das Schild mit ihrer Größe ziehen</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Left by %1 pt</source>
        <translation>Um %1 pt nach links</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Zeilennummern</translation>
    </message>
    <message>
        <source>Lower by %1 pt</source>
        <translation>Um %1 pt niedriger</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>Move Selection</source>
        <translation>Auswahl verschieben</translation>
    </message>
    <message>
        <source>Narrower by %1 pt</source>
        <translation>Um %1 pt schmaler</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>Keine zuletzt benutzten Dateien</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Nicht auf dieser Seite</translation>
    </message>
    <message>
        <source>Not possible for this picture: %1</source>
        <translation>Für dieses Bild nicht möglich: %1</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Nichts ist ausgewählt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Only files on this computer can be opened.</source>
        <translation>Nur Dateien auf diesem Rechner können geöffnet werden.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Opening was stopped</source>
        <translation>Das Öffnen wurde angehalten</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Wird geöffnet …</translation>
    </message>
    <message>
        <source>Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.</source>
        <translation>Öffnet EPS-, Illustrator-, PDF- und SVG-Bilder und gibt jeden Ausschnitt davon als Vektoren weiter.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>OrderfrontColorWell</source>
        <translation>Farbauswahl zeigen</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF-Dokument</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Pictures that you open are listed here.</source>
        <translation>Geöffnete Bilder werden hier aufgeführt.</translation>
    </message>
    <message>
        <source>Please retry with other format.</source>
        <translation>Bitte mit einem anderen Format erneut versuchen.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken …</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt benutzte Dateien</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Resize Selection</source>
        <translation>Größe der Auswahl ändern</translation>
    </message>
    <message>
        <source>Right by %1 pt</source>
        <translation>Um %1 pt nach rechts</translation>
    </message>
    <message>
        <source>RotateImageByMousedragg</source>
        <translation>Ziehen, um das Bild zu drehen. Mit der Umschalttaste rastet es alle 15° ein, ein Doppelklick setzt es auf 0°.</translation>
    </message>
    <message>
        <source>SVG image</source>
        <translation>SVG-Bild</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save Selection</source>
        <translation>Auswahl speichern</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>Speichern in …</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Seitwärts scrollen</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Auf und ab scrollen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Selected from %1, %2 to %3, %4: %5 by %6 points.</source>
        <translation>Ausgewählt von %1; %2 bis %3; %4: %5 mal %6 Punkt.</translation>
    </message>
    <message>
        <source>Selected range of image data is written or displayed.</source>
        <translation>Die Auswahl oder den sichtbaren Teil in eine Datei schreiben.</translation>
    </message>
    <message>
        <source>SelectedRectangle</source>
        <translation>Ecken des ausgewählten Rechtecks</translation>
    </message>
    <message>
        <source>Selection is determined by dragging the mouse twice.</source>
        <translation>Einmal ziehen setzt den Startpunkt, noch einmal ziehen spannt das Rechteck auf.</translation>
    </message>
    <message>
        <source>SourceCode</source>
        <translation>Quelltext des Dokuments</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF-Bild</translation>
    </message>
    <message>
        <source>The picture is still being printed.</source>
        <translation>Das Bild wird noch gedruckt.</translation>
    </message>
    <message>
        <source>A file is still being written.</source>
        <translation>Eine Datei wird noch geschrieben.</translation>
    </message>
    <message>
        <source>Close When Finished</source>
        <translation>Danach schließen</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Anhalten und schließen</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Geöffnet lassen</translation>
    </message>
    <message>
        <source>The writing was stopped</source>
        <translation>Das Schreiben wurde angehalten</translation>
    </message>
    <message>
        <source>The file was deleted or moved. What is shown was read before.</source>
        <translation>Die Datei wurde gelöscht oder verschoben. Gezeigt wird, was zuvor gelesen wurde.</translation>
    </message>
    <message>
        <source>Preparing “%1” for printing…</source>
        <translation>„%1“ wird für den Druck vorbereitet …</translation>
    </message>
    <message>
        <source>“%1” exists already. Do you want to replace it?</source>
        <translation>„%1“ gibt es bereits. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>The file has changed on disk.</source>
        <translation>Die Datei auf dem Datenträger hat sich geändert.</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>Das Bild kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>The picture cannot be written in this format</source>
        <translation>Das Bild kann nicht in diesem Format geschrieben werden</translation>
    </message>
    <message>
        <source>The picture could not be copied. The clipboard holds what it held before.</source>
        <translation>Das Bild konnte nicht kopiert werden. Die Zwischenablage enthält noch, was sie vorher enthielt.</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are copied onto the paste board.</source>
        <translation>Die Auswahl oder den sichtbaren Teil in die Zwischenablage kopieren.</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are printed.</source>
        <translation>Die Auswahl oder den sichtbaren Teil drucken.</translation>
    </message>
    <message>
        <source>The selection starts at %1, %2.</source>
        <translation>Die Auswahl beginnt bei %1; %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for this</source>
        <translation>Dafür ist nicht genug Speicher vorhanden</translation>
    </message>
    <message>
        <source>This could not be done.</source>
        <translation>Das war nicht möglich.</translation>
    </message>
    <message>
        <source>This is not an EPS, Illustrator, PDF or SVG picture.</source>
        <translation>Das ist kein EPS-, Illustrator-, PDF- oder SVG-Bild.</translation>
    </message>
    <message>
        <source>The file's name is not text in UTF-8. Please rename the file.</source>
        <translation>Der Name der Datei ist kein Text in UTF-8. Bitte benennen Sie die Datei um.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Up by %1 pt</source>
        <translation>Um %1 pt nach oben</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>ViewBox</source>
        <translation>View-Box oder Grenzen des Bildes, in dessen eigenen Einheiten</translation>
    </message>
    <message>
        <source>What it holds will be lost.</source>
        <translation>Ihr bisheriger Inhalt geht verloren.</translation>
    </message>
    <message>
        <source>Wider by %1 pt</source>
        <translation>Um %1 pt breiter</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Wird geschrieben …</translation>
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
        <translation>oder Bilder hierher ziehen</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>%1 Dateien konnten nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>„%1“ gibt es bereits.</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>&amp;Unten:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Exemplare:</translation>
    </message>
    <message>
        <source>&amp;Fit on one page</source>
        <translation>Auf eine Seite einpasse&amp;n</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>&amp;Rechts:</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>&amp;Skalierung:</translation>
    </message>
    <message>
        <source>&amp;Horizontally</source>
        <translation>&amp;Waagerecht</translation>
    </message>
    <message>
        <source>&amp;Vertically</source>
        <translation>S&amp;enkrecht</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Fro&amp;m</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>Hea&amp;der and footer</source>
        <translation>Ko&amp;pf- und Fußzeile</translation>
    </message>
    <message>
        <source>Centred:</source>
        <translation>Zentriert:</translation>
    </message>
    <message>
        <source>Centred horizontally</source>
        <translation>Waagerecht zentriert</translation>
    </message>
    <message>
        <source>Centred vertically</source>
        <translation>Senkrecht zentriert</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Lef&amp;t:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>This printer is no longer there.</source>
        <translation>Diesen Drucker gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Print Selected or Visible Pa&amp;rt…</source>
        <translation>Ausgewählten oder sichtbaren &amp;Teil drucken …</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Drucker werden gesucht …</translation>
    </message>
    <message>
        <source>Makes the picture smaller until one page holds it</source>
        <translation>Verkleinert das Bild, bis es auf eine Seite passt</translation>
    </message>
    <message>
        <source>Margins:</source>
        <translation>Ränder:</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Druc&amp;ker:</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>Seite e&amp;inrichten …</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>Pap&amp;ier:</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>&amp;Hochformat</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Vorschau der Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>„%1“ drucken</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Printing “%1”: page %2 of %3…</source>
        <translation>„%1“ wird gedruckt: Seite %2 von %3 …</translation>
    </message>
    <message>
        <source>Printing “%1”…</source>
        <translation>„%1“ wird gedruckt …</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>Spei&amp;chern …</translation>
    </message>
    <message>
        <source>Save as PDF file</source>
        <translation>Als PDF-Datei speichern</translation>
    </message>
    <message>
        <source>Save the pages as PDF</source>
        <translation>Die Seiten als PDF speichern</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>T&amp;op:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>Nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>The date above the picture and the file's location below it, on every page</source>
        <translation>Auf jeder Seite das Datum über dem Bild und der Ort der Datei darunter</translation>
    </message>
    <message>
        <source>The margins leave no room on the paper.</source>
        <translation>Die Ränder lassen auf dem Papier keinen Platz.</translation>
    </message>
    <message>
        <source>The pages become a PDF file.</source>
        <translation>Die Seiten werden als eine PDF-Datei geschrieben.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>Es gibt keinen Drucker.</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>“%1” was not printed.</source>
        <translation>„%1“ wurde nicht gedruckt.</translation>
    </message>
    <message>
        <source>With the mouse</source>
        <translation>Mit der Maus</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>Befehle und Tasten durchsuchen</translation>
    </message>
    <message>
        <source>Is the preview added the occasion where it writes out?</source>
        <translation>Soll der Datei eine Vorschau für Programme hinzugefügt werden, die kein EPS zeichnen können?</translation>
    </message>
    <message>
        <source>With preview</source>
        <translation>Mit Vorschau</translation>
    </message>
    <message>
        <source>The new file would hold less than the picture does.</source>
        <translation>Die neue Datei würde weniger enthalten als das Bild.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. The interpreter of PostScript is under the GNU Affero General Public License, version 3 or later.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder neuer. Der PostScript-Interpreter steht unter der GNU Affero General Public License, Version 3 oder neuer.</translation>
    </message>
    <message>
        <source>The drawing was stopped</source>
        <translation>Das Zeichnen wurde angehalten</translation>
    </message>
    <message>
        <source>Norvex ended unexpectedly the last time.</source>
        <translation>Norvex wurde beim letzten Mal unerwartet beendet.</translation>
    </message>
    <message>
        <source>“%1” was open then, and may be the reason.</source>
        <translation>„%1“ war dabei geöffnet und ist vielleicht der Grund.</translation>
    </message>
    <message>
        <source>Do Not Open</source>
        <translation>Nicht öffnen</translation>
    </message>
    <message>
        <source>Open It Again</source>
        <translation>Noch einmal öffnen</translation>
    </message>
    <message>
        <source>%1 files were open then. “%2” was used last, and may be the reason.</source>
        <translation>Dabei waren %1 Dateien geöffnet. „%2“ wurde zuletzt benutzt und ist vielleicht der Grund.</translation>
    </message>
    <message>
        <source>Open the Others</source>
        <translation>Die anderen öffnen</translation>
    </message>
    <message>
        <source>Open All Again</source>
        <translation>Alle noch einmal öffnen</translation>
    </message>
    <message>
        <source>Norvex Manual</source>
        <translation>Norvex-Handbuch</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>Remember Files</source>
        <translation>Dateien merken</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Handbuch durchsuchen</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Seite des Handbuchs</translation>
    </message>
    <message>
        <source>Place the first corner of a selection</source>
        <translation>Die erste Ecke einer Auswahl setzen</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Draw the selection from there</source>
        <translation>Von dort die Auswahl aufziehen</translation>
    </message>
    <message>
        <source>Drag again</source>
        <translation>Noch einmal ziehen</translation>
    </message>
    <message>
        <source>Take the selection to another program</source>
        <translation>Die Auswahl in ein anderes Programm bringen</translation>
    </message>
    <message>
        <source>Ctrl + Drag</source>
        <translation>Strg + Ziehen</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Am Zeiger zoomen</translation>
    </message>
    <message>
        <source>Ctrl + Wheel</source>
        <translation>Strg + Mausrad</translation>
    </message>
    <message>
        <source>Move the picture</source>
        <translation>Das Bild verschieben</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Commands for the picture</source>
        <translation>Befehle für das Bild</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Rechte Taste</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>%1 What is shown is what it had drawn until then.</source>
        <translation>%1 Gezeigt wird, was bis dahin gezeichnet war.</translation>
    </message>
    <message>
        <source>How the documents that it opens are confined:</source>
        <translation>So werden die geöffneten Dokumente abgeschottet:</translation>
    </message>
    <message>
        <source>Read as:</source>
        <translation>Lesen als:</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>The encoding in which comments and source text are read</source>
        <translation>Die Kodierung, in der Kommentare und Quelltext gelesen werden</translation>
    </message>
    <message>
        <source>The source is not valid in %1.</source>
        <translation>Der Quelltext ist in %1 nicht gültig.</translation>
    </message>
    <message>
        <source>A guess, as nothing says how the source is encoded. Read as %1:</source>
        <translation>Eine Vermutung, da nichts angibt, wie der Quelltext kodiert ist. Gelesen als %1:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>What the library that reads the picture says</source>
        <translation>Was die Bibliothek meldet, die das Bild liest</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>None preview</source>
        <translation>Ohne Vorschau</translation>
    </message>
    <message>
        <source>WebP image</source>
        <translation>WebP-Bild</translation>
    </message>
    <message>
        <source>Copied %1 pt</source>
        <translation>%1 pt kopiert</translation>
    </message>
    <message>
        <source>Other Folder…</source>
        <translation>Anderer Ordner …</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Folder for the exported file</source>
        <translation>Ordner für die exportierte Datei</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>EPS with TIFF preview</source>
        <translation>EPS mit TIFF-Vorschau</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Diese Seite</translation>
    </message>
    <message>
        <source>Part:</source>
        <translation>Teil:</translation>
    </message>
    <message>
        <source> pixels an inch</source>
        <translation> Pixel pro Zoll</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Fill with</source>
        <translation>Füllen mit</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Hintergrund:</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualität:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Making a preview…</source>
        <translation>Vorschau wird erstellt …</translation>
    </message>
    <message>
        <source>File size: %1</source>
        <translation>Dateigröße: %1</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>Nicht möglich</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportieren …</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>Das Bild ist zu groß.</translation>
    </message>
    <message>
        <source>Exported “%1”</source>
        <translation>„%1“ exportiert</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Visible part</source>
        <translation>Sichtbarer Teil</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>Page &amp;Thumbnails</source>
        <translation>Seiten&amp;miniaturen</translation>
    </message>
    <message>
        <source>Page %1 has no area.</source>
        <translation>Seite %1 hat keine Fläche.</translation>
    </message>
    <message>
        <source>Where the pointer is in the picture. Click for another unit.</source>
        <translation>Wo der Zeiger im Bild steht. Klicken wechselt die Einheit.</translation>
    </message>
    <message>
        <source>Unit of lengths</source>
        <translation>Längeneinheit</translation>
    </message>
    <message>
        <source>&amp;Next Page</source>
        <translation>&amp;Nächste Seite</translation>
    </message>
    <message>
        <source>&amp;Previous Page</source>
        <translation>&amp;Vorige Seite</translation>
    </message>
    <message>
        <source>&amp;First Page</source>
        <translation>&amp;Erste Seite</translation>
    </message>
    <message>
        <source>&amp;Last Page</source>
        <translation>&amp;Letzte Seite</translation>
    </message>
    <message>
        <source>&amp;Go to Page…</source>
        <translation>&amp;Gehe zu Seite …</translation>
    </message>
    <message>
        <source>&amp;Window Fits Picture</source>
        <translation>&amp;Fenster an Bild anpassen</translation>
    </message>
    <message>
        <source>Reload Changed Files b&amp;y Itself</source>
        <translation>&amp;Geänderte Dateien automatisch neu laden</translation>
    </message>
    <message>
        <source>Select Rectangle</source>
        <translation>Rechteck auswählen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>In der &amp;Breite einpassen</translation>
    </message>
    <message>
        <source>Next Picture in F&amp;older</source>
        <translation>Nächstes Bild im &amp;Ordner</translation>
    </message>
    <message>
        <source>Previous Pictu&amp;re in Folder</source>
        <translation>Vo&amp;riges Bild im Ordner</translation>
    </message>
    <message>
        <source>&amp;Undo Selection</source>
        <translation>Auswahländerung rüc&amp;kgängig machen</translation>
    </message>
    <message>
        <source>&amp;Redo Selection</source>
        <translation>Auswahländerung wiederher&amp;stellen</translation>
    </message>
    <message>
        <source>Select Rectan&amp;gle…</source>
        <translation>Re&amp;chteck auswählen …</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>Von links:</translation>
    </message>
    <message>
        <source>From below:</source>
        <translation>Von unten:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Still working: wait, or stop and show what there is.</source>
        <translation>Noch in Arbeit: Sie können warten oder anhalten und sehen, was schon da ist.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>What the picture is for</source>
        <translation>Wofür das Bild ist</translation>
    </message>
    <message>
        <source>For Any Use</source>
        <translation>Für jeden Zweck</translation>
    </message>
    <message>
        <source>For Print</source>
        <translation>Für den Druck</translation>
    </message>
    <message>
        <source>For a Journal</source>
        <translation>Für eine Zeitschrift</translation>
    </message>
    <message>
        <source>For the Web</source>
        <translation>Für das Web</translation>
    </message>
    <message>
        <source>For an Archive</source>
        <translation>Für ein Archiv</translation>
    </message>
    <message>
        <source>From a File…</source>
        <translation>Aus einer Datei …</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>%1 more are not shown.</source>
        <translation>%1 weitere werden nicht angezeigt.</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Reparieren …</translation>
    </message>
    <message>
        <source>Repair All…</source>
        <translation>Alles reparieren …</translation>
    </message>
    <message>
        <source>Writes a mended copy of the file</source>
        <translation>Schreibt eine reparierte Kopie der Datei</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 Hinweis</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 Hinweise</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>at %1, %2 pt</source>
        <translation>bei %1; %2 pt</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>Die Prüfung wurde angehalten.</translation>
    </message>
    <message>
        <source>The file has changed while it was checked.</source>
        <translation>Die Datei hat sich während der Prüfung geändert.</translation>
    </message>
    <message>
        <source>There is no file to check.</source>
        <translation>Es gibt keine Datei zum Prüfen.</translation>
    </message>
    <message>
        <source>Not everything could be checked. %1</source>
        <translation>Nicht alles konnte geprüft werden. %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Profiles (*.toml)</source>
        <translation>Profile (*.toml)</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>A mended copy of the file is written. What it draws stays the same.</source>
        <translation>Eine reparierte Kopie der Datei wird geschrieben. Was sie zeichnet, bleibt gleich.</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Vorschau:</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Made anew</source>
        <translation>Neu erstellt</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Weggelassen</translation>
    </message>
    <message>
        <source>Repairing…</source>
        <translation>Wird repariert …</translation>
    </message>
    <message>
        <source>Nothing had to be changed.</source>
        <translation>Es musste nichts geändert werden.</translation>
    </message>
    <message>
        <source>This stays as it is:</source>
        <translation>Folgendes bleibt, wie es ist:</translation>
    </message>
    <message>
        <source>“%1” is written.</source>
        <translation>„%1“ wurde geschrieben.</translation>
    </message>
    <message>
        <source>Open It</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Inspector in t&amp;he Window</source>
        <translation>Informationen &amp;im Fenster</translation>
    </message>
    <message>
        <source>Go to Inspector or Pi&amp;cture</source>
        <translation>Zu Informationen oder Bild &amp;wechseln</translation>
    </message>
    <message>
        <source>The program lies in a wrapping of another system</source>
        <translation>Das Programm steckt in einer Verpackung eines anderen Systems</translation>
    </message>
    <message>
        <source>A section of the binary header lies outside the file</source>
        <translation>Ein Abschnitt des binären Kopfes liegt außerhalb der Datei</translation>
    </message>
    <message>
        <source>Sections of the binary header overlap</source>
        <translation>Abschnitte des binären Kopfes überlappen sich</translation>
    </message>
    <message>
        <source>Bytes before the first line</source>
        <translation>Bytes vor der ersten Zeile</translation>
    </message>
    <message>
        <source>Bytes behind the program's end</source>
        <translation>Bytes hinter dem Ende des Programms</translation>
    </message>
    <message>
        <source>The file is cut off</source>
        <translation>Die Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>The first line is not that of a PostScript file</source>
        <translation>Die erste Zeile ist nicht die einer PostScript-Datei</translation>
    </message>
    <message>
        <source>The first line does not declare EPSF</source>
        <translation>In der ersten Zeile fehlt die Angabe EPSF</translation>
    </message>
    <message>
        <source>The first line declares a version that does not exist</source>
        <translation>Die erste Zeile nennt eine Version, die es nicht gibt</translation>
    </message>
    <message>
        <source>There is no %%BoundingBox</source>
        <translation>Es gibt kein %%BoundingBox</translation>
    </message>
    <message>
        <source>%%BoundingBox: (atend) without a box at the end</source>
        <translation>%%BoundingBox: (atend), und am Ende steht kein Rahmen</translation>
    </message>
    <message>
        <source>%%BoundingBox does not hold four numbers</source>
        <translation>%%BoundingBox enthält keine vier Zahlen</translation>
    </message>
    <message>
        <source>The bounding box is empty</source>
        <translation>Der Begrenzungsrahmen ist leer</translation>
    </message>
    <message>
        <source>%%BoundingBox holds numbers that are not whole</source>
        <translation>%%BoundingBox enthält Zahlen, die keine ganzen sind</translation>
    </message>
    <message>
        <source>%%BoundingBox does not enclose %%HiResBoundingBox, or is far larger</source>
        <translation>%%BoundingBox umschließt %%HiResBoundingBox nicht oder ist viel größer</translation>
    </message>
    <message>
        <source>Ink lies outside the bounding box</source>
        <translation>Außerhalb des Begrenzungsrahmens ist etwas gezeichnet</translation>
    </message>
    <message>
        <source>The bounding box is larger than the ink</source>
        <translation>Der Begrenzungsrahmen ist größer als das Gezeichnete</translation>
    </message>
    <message>
        <source>The program draws nothing that is not white</source>
        <translation>Das Programm zeichnet nichts, was nicht weiß ist</translation>
    </message>
    <message>
        <source>The program stops with a PostScript error</source>
        <translation>Das Programm bricht mit einem PostScript-Fehler ab</translation>
    </message>
    <message>
        <source>The interpreter had something to remark</source>
        <translation>Der Interpreter hatte etwas anzumerken</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>showpage fehlt</translation>
    </message>
    <message>
        <source>An operator that has no place in an EPS file</source>
        <translation>Ein Operator, der nicht in eine EPS-Datei gehört</translation>
    </message>
    <message>
        <source>Operators of a higher language level than the comments declare</source>
        <translation>Operatoren einer höheren Sprachstufe, als die Kommentare angeben</translation>
    </message>
    <message>
        <source>%%EndComments is missing</source>
        <translation>%%EndComments fehlt</translation>
    </message>
    <message>
        <source>Comments stand in the wrong order</source>
        <translation>Kommentare stehen in der falschen Reihenfolge</translation>
    </message>
    <message>
        <source>A section begins and does not end, or the other way round</source>
        <translation>Ein Abschnitt beginnt und endet nicht, oder umgekehrt</translation>
    </message>
    <message>
        <source>Lines of more than 255 bytes</source>
        <translation>Zeilen von mehr als 255 Bytes</translation>
    </message>
    <message>
        <source>Lines end in different ways</source>
        <translation>Zeilen enden auf verschiedene Weise</translation>
    </message>
    <message>
        <source>Other bytes than %%DocumentData declares</source>
        <translation>Andere Bytes, als %%DocumentData angibt</translation>
    </message>
    <message>
        <source>The file needs fonts that it does not bring</source>
        <translation>Die Datei braucht Schriften, die sie nicht mitbringt</translation>
    </message>
    <message>
        <source>There is no preview</source>
        <translation>Es gibt keine Vorschau</translation>
    </message>
    <message>
        <source>The preview cannot be read</source>
        <translation>Die Vorschau ist nicht lesbar</translation>
    </message>
    <message>
        <source>The preview shows another picture than the program draws</source>
        <translation>Die Vorschau zeigt ein anderes Bild, als das Programm zeichnet</translation>
    </message>
    <message>
        <source>The preview has another shape than the bounding box</source>
        <translation>Die Vorschau hat eine andere Form als der Begrenzungsrahmen</translation>
    </message>
    <message>
        <source>A font is neither in the file nor on this machine</source>
        <translation>Eine Schrift ist weder in der Datei noch auf diesem Rechner</translation>
    </message>
    <message>
        <source>A font is not embedded</source>
        <translation>Eine Schrift ist nicht eingebettet</translation>
    </message>
    <message>
        <source>A font is embedded as a whole</source>
        <translation>Eine Schrift ist als Ganzes eingebettet</translation>
    </message>
    <message>
        <source>A Type 3 font</source>
        <translation>Eine Type-3-Schrift</translation>
    </message>
    <message>
        <source>Text smaller than the profile allows</source>
        <translation>Text, der kleiner ist, als das Profil erlaubt</translation>
    </message>
    <message>
        <source>A colour space that the profile does not name</source>
        <translation>Farbraum, den das Profil nicht nennt</translation>
    </message>
    <message>
        <source>RGB colours where the profile wants none</source>
        <translation>RGB-Farben, wo das Profil keine will</translation>
    </message>
    <message>
        <source>RGB in a CMYK picture</source>
        <translation>RGB in einem CMYK-Bild</translation>
    </message>
    <message>
        <source>Spot inks</source>
        <translation>Schmuckfarben</translation>
    </message>
    <message>
        <source>More ink in one place than the profile allows</source>
        <translation>An einer Stelle mehr Farbauftrag, als das Profil erlaubt</translation>
    </message>
    <message>
        <source>White that overprints vanishes</source>
        <translation>Weiß, das überdruckt, verschwindet</translation>
    </message>
    <message>
        <source>Black text that does not overprint</source>
        <translation>Schwarzer Text, der nicht überdruckt</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Lines thinner than the profile allows</source>
        <translation>Linien, die dünner sind, als das Profil erlaubt</translation>
    </message>
    <message>
        <source>An image has fewer pixels an inch than the profile asks for</source>
        <translation>Ein Bild hat weniger Pixel pro Zoll, als das Profil verlangt</translation>
    </message>
    <message>
        <source>Something is drawn outside the page's box</source>
        <translation>Etwas ist außerhalb des Seitenrahmens gezeichnet</translation>
    </message>
    <message>
        <source>The picture fits no column of the profile</source>
        <translation>Das Bild passt in keine Spalte des Profils</translation>
    </message>
    <message>
        <source>A part of the page was not looked at</source>
        <translation>Ein Teil der Seite wurde nicht angesehen</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>Die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>Das Dokument ist verschlüsselt</translation>
    </message>
    <message>
        <source>Its permissions forbid printing or changing it</source>
        <translation>Seine Berechtigungen verbieten das Drucken oder Ändern</translation>
    </message>
    <message>
        <source>It claims to keep a standard</source>
        <translation>Es gibt an, eine Norm einzuhalten</translation>
    </message>
    <message>
        <source>It claims PDF/X or PDF/A and has no output intent</source>
        <translation>Es gibt PDF/X oder PDF/A an und hat keine Ausgabebedingung</translation>
    </message>
    <message>
        <source>It needs other files, which are never loaded</source>
        <translation>Es braucht andere Dateien, die nie geladen werden</translation>
    </message>
    <message>
        <source>Filters become images in print</source>
        <translation>Filter werden im Druck zu Bildern</translation>
    </message>
    <message>
        <source>The size has no unit, or there is none</source>
        <translation>Die Größe hat keine Einheit oder fehlt</translation>
    </message>
    <message>
        <source>Scripts and animations are not run</source>
        <translation>Skripte und Animationen werden nicht ausgeführt</translation>
    </message>
    <message>
        <source>repair takes the program out</source>
        <translation>Die Reparatur entnimmt das Programm</translation>
    </message>
    <message>
        <source>repair writes the header anew</source>
        <translation>Die Reparatur schreibt den Kopf neu</translation>
    </message>
    <message>
        <source>repair leaves them out</source>
        <translation>Die Reparatur lässt sie weg</translation>
    </message>
    <message>
        <source>fetch the file again</source>
        <translation>Die Datei noch einmal holen</translation>
    </message>
    <message>
        <source>repair writes it</source>
        <translation>Die Reparatur schreibt sie</translation>
    </message>
    <message>
        <source>repair writes the versions 3.0</source>
        <translation>Die Reparatur schreibt die Versionen 3.0</translation>
    </message>
    <message>
        <source>repair computes it</source>
        <translation>Die Reparatur berechnet ihn</translation>
    </message>
    <message>
        <source>repair writes whole numbers</source>
        <translation>Die Reparatur schreibt ganze Zahlen</translation>
    </message>
    <message>
        <source>repair computes both</source>
        <translation>Die Reparatur berechnet beide</translation>
    </message>
    <message>
        <source>write the file again from the program that made it</source>
        <translation>Die Datei mit dem Programm neu schreiben, das sie erzeugt hat</translation>
    </message>
    <message>
        <source>repair puts it in</source>
        <translation>Die Reparatur fügt es ein</translation>
    </message>
    <message>
        <source>write the file again as EPS</source>
        <translation>Die Datei noch einmal als EPS schreiben</translation>
    </message>
    <message>
        <source>add %%LanguageLevel to the header</source>
        <translation>%%LanguageLevel im Kopf ergänzen</translation>
    </message>
    <message>
        <source>repair puts those of the header in order</source>
        <translation>Die Reparatur ordnet die des Kopfes</translation>
    </message>
    <message>
        <source>most readers take them</source>
        <translation>Die meisten Programme kommen damit zurecht</translation>
    </message>
    <message>
        <source>declare %%DocumentData: Binary</source>
        <translation>%%DocumentData: Binary angeben</translation>
    </message>
    <message>
        <source>embed the fonts, or draw text as outlines</source>
        <translation>Die Schriften einbetten oder Text als Umrisse zeichnen</translation>
    </message>
    <message>
        <source>repair makes one</source>
        <translation>Die Reparatur erstellt eine</translation>
    </message>
    <message>
        <source>embed the font</source>
        <translation>Die Schrift einbetten</translation>
    </message>
    <message>
        <source>use a font with outlines</source>
        <translation>Eine Schrift mit Umrissen verwenden</translation>
    </message>
    <message>
        <source>set the text larger</source>
        <translation>Den Text größer setzen</translation>
    </message>
    <message>
        <source>convert the colours</source>
        <translation>Die Farben umwandeln</translation>
    </message>
    <message>
        <source>choose colours with less ink</source>
        <translation>Farben mit weniger Farbauftrag wählen</translation>
    </message>
    <message>
        <source>let it knock out</source>
        <translation>Es aussparen lassen</translation>
    </message>
    <message>
        <source>let black text overprint</source>
        <translation>Schwarzen Text überdrucken lassen</translation>
    </message>
    <message>
        <source>flatten it where the printer asks for it</source>
        <translation>Sie reduzieren, wo die Druckerei es verlangt</translation>
    </message>
    <message>
        <source>draw them thicker</source>
        <translation>Sie dicker zeichnen</translation>
    </message>
    <message>
        <source>place it smaller, or with more pixels</source>
        <translation>Es kleiner platzieren oder mit mehr Pixeln versehen</translation>
    </message>
    <message>
        <source>enlarge the box, or leave it out</source>
        <translation>Den Rahmen vergrößern oder es weglassen</translation>
    </message>
    <message>
        <source>draw it for the column's width</source>
        <translation>Es für die Spaltenbreite zeichnen</translation>
    </message>
    <message>
        <source>convert it to PDF, and look whether anything is missing</source>
        <translation>In PDF umwandeln und nachsehen, ob etwas fehlt</translation>
    </message>
    <message>
        <source>write it without encryption</source>
        <translation>Es unverschlüsselt schreiben</translation>
    </message>
    <message>
        <source>write it without restrictions</source>
        <translation>Es ohne Einschränkungen schreiben</translation>
    </message>
    <message>
        <source>add the output intent</source>
        <translation>Die Ausgabebedingung ergänzen</translation>
    </message>
    <message>
        <source>embed them</source>
        <translation>Sie einbetten</translation>
    </message>
    <message>
        <source>draw the effect, or accept an image</source>
        <translation>Den Effekt zeichnen oder ein Rasterbild hinnehmen</translation>
    </message>
    <message>
        <source>give width and height in mm, pt or in</source>
        <translation>Breite und Höhe in mm, pt oder in angeben</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Das Passwort ist falsch.</translation>
    </message>
    <message>
        <source>The document is protected by a password.</source>
        <translation>Das Dokument ist mit einem Passwort geschützt.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>La&amp;yers</source>
        <translation>E&amp;benen</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>The document locks this layer.</source>
        <translation>Das Dokument sperrt diese Ebene.</translation>
    </message>
    <message>
        <source>Find in P&amp;icture…</source>
        <translation>Im Bil&amp;d suchen …</translation>
    </message>
    <message>
        <source>The text of the picture cannot be read.</source>
        <translation>Der Text des Bildes lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>Select &amp;Text</source>
        <translation>&amp;Text auswählen</translation>
    </message>
    <message>
        <source>Copy Te&amp;xt</source>
        <translation>Te&amp;xt kopieren</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Text kopiert</translation>
    </message>
    <message>
        <source>Links of this kind are not followed.</source>
        <translation>Verweisen dieser Art wird nicht gefolgt.</translation>
    </message>
    <message>
        <source>No program here opens this address.</source>
        <translation>Kein Programm öffnet hier diese Adresse.</translation>
    </message>
    <message>
        <source>The picture links to this address. Open it?</source>
        <translation>Das Bild verweist auf diese Adresse. Soll sie geöffnet werden?</translation>
    </message>
    <message>
        <source>Open Address</source>
        <translation>Adresse öffnen</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>Druckfarben</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Druckfarbe</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Deckung</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Only This Ink</source>
        <translation>Nur diese Druckfarbe</translation>
    </message>
    <message>
        <source>All Inks</source>
        <translation>Alle Druckfarben</translation>
    </message>
    <message>
        <source>Inks as grey plates</source>
        <translation>Druckfarben als graue Auszüge</translation>
    </message>
    <message>
        <source>The picture is separated into plates: %1</source>
        <translation>Das Bild ist in Druckplatten aufgeteilt: %1</translation>
    </message>
    <message>
        <source>Windows metafile, %1</source>
        <translation>Windows-Metadatei, %1</translation>
    </message>
    <message>
        <source>Keep text as text, with its fonts</source>
        <translation>Text als Text behalten, mit seinen Schriften</translation>
    </message>
    <message>
        <source>Show the inks in the picture</source>
        <translation>Druckfarben im Bild zeigen</translation>
    </message>
    <message>
        <source>Simulate overprinting</source>
        <translation>Überdrucken simulieren</translation>
    </message>
    <message>
        <source>Mark ink above</source>
        <translation>Farbauftrag markieren über</translation>
    </message>
    <message>
        <source>Limit of all inks together</source>
        <translation>Grenze für alle Druckfarben zusammen</translation>
    </message>
    <message>
        <source>The page as its inks print it</source>
        <translation>Die Seite, wie ihre Druckfarben sie drucken</translation>
    </message>
    <message>
        <source>Most ink in one place: %1</source>
        <translation>Höchster Farbauftrag an einer Stelle: %1</translation>
    </message>
    <message>
        <source>All inks under the pointer: %1</source>
        <translation>Alle Druckfarben unter dem Zeiger: %1</translation>
    </message>
    <message>
        <source>The page is being separated into its inks…</source>
        <translation>Die Seite wird in ihre Druckfarben zerlegt …</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Es gibt kein Bild.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The shown page (%1)</source>
        <translation>Die gezeigte Seite (%1)</translation>
    </message>
    <message>
        <source>All %1 pages</source>
        <translation>Alle %1 Seiten</translation>
    </message>
    <message>
        <source>Some pages</source>
        <translation>Einige Seiten</translation>
    </message>
    <message>
        <source>From page</source>
        <translation>Von Seite</translation>
    </message>
    <message>
        <source>From page:</source>
        <translation>Von Seite:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Sei&amp;ten:</translation>
    </message>
    <message>
        <source>Sheets:</source>
        <translation>Blätter:</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>Neue Tasten</translation>
    </message>
    <message>
        <source>&amp;Remove Keys</source>
        <translation>Tasten &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Default Keys</source>
        <translation>&amp;Standardtasten</translation>
    </message>
    <message>
        <source>All De&amp;faults</source>
        <translation>Alle &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Keys of “%1”:</source>
        <translation>Tasten für „%1“:</translation>
    </message>
    <message>
        <source>Choose a command, and then press the keys that it shall have.</source>
        <translation>Wählen Sie einen Befehl und drücken Sie dann die Tasten, die er bekommen soll.</translation>
    </message>
    <message>
        <source>“%1” is for typing and for moving the picture. Take it together with Ctrl or Alt, or take a function key.</source>
        <translation>„%1“ dient zum Tippen und zum Bewegen des Bildes. Nehmen Sie Strg oder Alt hinzu, oder wählen Sie eine Funktionstaste.</translation>
    </message>
    <message>
        <source>“%1” cannot be written, and nothing was changed.</source>
        <translation>„%1“ kann nicht geschrieben werden; es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>“%1” belongs to “%2” already, and nothing was changed.</source>
        <translation>„%1“ gehört schon zu „%2“; es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>“%1” opens the menu “%2”, and nothing was changed.</source>
        <translation>„%1“ öffnet das Menü „%2“; es wurde nichts geändert.</translation>
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
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Facts about the picture</source>
        <translation>Angaben zum Bild</translation>
    </message>
    <message>
        <source>&amp;About Norvex</source>
        <translation>Ü&amp;ber Norvex</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>S&amp;uchen …</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Angle of rotation</source>
        <translation>Drehwinkel</translation>
    </message>
    <message>
        <source>Angle of rotation in degrees, minutes and seconds</source>
        <translation>Drehwinkel in Grad, Minuten und Sekunden</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>Farbraum:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>Copyright:</translation>
    </message>
    <message>
        <source>CreationDate:</source>
        <translation>Erstellt:</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>Erzeuger:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Nichts ist ausgewählt.</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>Kodierung:</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>Ende der Auswahl</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>Für:</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Kind of preview</source>
        <translation>Art der Vorschau</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Picture rectangle</source>
        <translation>Rechteck des Bildes</translation>
    </message>
    <message>
        <source>Picture to be written</source>
        <translation>Zu schreibendes Bild</translation>
    </message>
    <message>
        <source>Picture with zoom and scroll bars</source>
        <translation>Bild mit Zoom und Rollbalken</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Reset Rotatio&amp;n</source>
        <translation>&amp;Drehung zurücksetzen</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Nach &amp;links drehen</translation>
    </message>
    <message>
        <source>Rotate &amp;Right</source>
        <translation>Nach &amp;rechts drehen</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelltext</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Quelltext</translation>
    </message>
    <message>
        <source>Start of the selection</source>
        <translation>Anfang der Auswahl</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Copy Whole Picture</source>
        <translation>&amp;Ganzes Bild kopieren</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>&amp;Touch Bar</source>
        <translation>&amp;Touch Bar</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>What was noticed</source>
        <translation>Was aufgefallen ist</translation>
    </message>
    <message>
        <source>BoundingBox:</source>
        <translation>BoundingBox:</translation>
    </message>
    <message>
        <source>HiResBoundingBox:</source>
        <translation>HiResBoundingBox:</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>Schriften:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Verwendete Farben:</translation>
    </message>
    <message>
        <source>Encoding of the source</source>
        <translation>Kodierung des Quelltexts</translation>
    </message>
    <message>
        <source>About the encoding</source>
        <translation>Zur Kodierung</translation>
    </message>
    <message>
        <source>What the source seems to say</source>
        <translation>Was der Quelltext zu sagen scheint</translation>
    </message>
</context>
<context>
    <name>SKTZoomingScrollView</name>
    <message>
        <source>10%</source>
        <translation>10 %</translation>
    </message>
    <message>
        <source>25%</source>
        <translation>25 %</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50 %</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75 %</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>125%</source>
        <translation>125 %</translation>
    </message>
    <message>
        <source>150%</source>
        <translation>150 %</translation>
    </message>
    <message>
        <source>200%</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>400%</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>800%</source>
        <translation>800 %</translation>
    </message>
    <message>
        <source>1600%</source>
        <translation>1600 %</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>the file is empty</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>Die Datei ist größer als %1 MiB.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>Es ist ein Ordner.</translation>
    </message>
    <message>
        <source>it is a pipe, not an ordinary file</source>
        <translation>Es ist eine Pipe, keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>it is a socket, not an ordinary file</source>
        <translation>Es ist ein Socket, keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>it is a device, not an ordinary file</source>
        <translation>Es ist ein Gerät, keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>it is being changed by another program</source>
        <translation>Ein anderes Programm ändert die Datei gerade.</translation>
    </message>
    <message>
        <source>only local files can be opened</source>
        <translation>Nur Dateien auf diesem Rechner lassen sich öffnen.</translation>
    </message>
    <message>
        <source>this type of document cannot be shown</source>
        <translation>Dokumente dieser Art können nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>this is not an EPS, Illustrator, PDF or SVG picture</source>
        <translation>Das ist kein EPS-, Illustrator-, PDF- oder SVG-Bild.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript</source>
        <translation>Das ist kein Encapsulated PostScript.</translation>
    </message>
    <message>
        <source>the PostScript header states no usable bounding box</source>
        <translation>Der Kopf der PostScript-Datei nennt keinen brauchbaren Begrenzungsrahmen.</translation>
    </message>
    <message>
        <source>the PostScript has no usable bounding box</source>
        <translation>Das PostScript hat keinen brauchbaren Begrenzungsrahmen.</translation>
    </message>
    <message>
        <source>the file holds no PostScript</source>
        <translation>Die Datei enthält kein PostScript.</translation>
    </message>
    <message>
        <source>the picture has no area to be drawn</source>
        <translation>Das Bild hat keine Fläche, die sich zeichnen ließe.</translation>
    </message>
    <message>
        <source>the SVG document has no area</source>
        <translation>Das SVG-Dokument hat keine Fläche.</translation>
    </message>
    <message>
        <source>the picture is empty: its width or height is zero</source>
        <translation>Das Bild ist leer: Breite oder Höhe ist null.</translation>
    </message>
    <message>
        <source>the file is cut off: %1 of the %2 bytes of %3 are missing</source>
        <translation>Die Datei ist abgeschnitten: %1 von %2 Bytes fehlen (%3).</translation>
    </message>
    <message>
        <source>the file seems cut off: its PostScript stops before its end</source>
        <translation>Die Datei scheint abgeschnitten: Ihr PostScript hört vor dem Ende auf.</translation>
    </message>
    <message>
        <source>the file is damaged; it was repaired as far as possible</source>
        <translation>Die Datei ist beschädigt; sie wurde so weit wie möglich repariert.</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of %1 can be read</source>
        <translation>Die Datei ist beschädigt; nichts davon lässt sich lesen (%1).</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of page %1 can be read</source>
        <translation>Die Datei ist beschädigt; nichts von Seite %1 lässt sich lesen.</translation>
    </message>
    <message>
        <source>the document is damaged and cannot be read as PDF</source>
        <translation>Das Dokument ist beschädigt und lässt sich nicht als PDF lesen.</translation>
    </message>
    <message>
        <source>the document is not a readable PDF</source>
        <translation>Das Dokument ist kein lesbares PDF.</translation>
    </message>
    <message>
        <source>the document is protected with a password</source>
        <translation>Das Dokument ist mit einem Passwort geschützt.</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>Das Passwort ist falsch.</translation>
    </message>
    <message>
        <source>the document uses an encryption that is not supported</source>
        <translation>Das Dokument ist auf eine Weise verschlüsselt, die nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>Das Dokument hat keine Seiten.</translation>
    </message>
    <message>
        <source>the document has more than %1 pages</source>
        <translation>Das Dokument hat mehr als %1 Seiten.</translation>
    </message>
    <message>
        <source>there is no page %1; the document has %2</source>
        <translation>Es gibt keine Seite %1; das Dokument hat %2.</translation>
    </message>
    <message>
        <source>there is no page %1, the document has %2</source>
        <translation>Es gibt keine Seite %1; das Dokument hat %2.</translation>
    </message>
    <message>
        <source>page %1 is too far behind</source>
        <translation>Seite %1 liegt zu weit hinten.</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>Seite %1 hat keine Fläche.</translation>
    </message>
    <message>
        <source>page %1 cannot be read</source>
        <translation>Seite %1 lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork</source>
        <translation>Diese Illustrator-Datei wurde ohne PDF-Inhalt gespeichert und zeigt deshalb einen Hinweis statt der Zeichnung.</translation>
    </message>
    <message>
        <source>the document is protected by encryption, and what is made of it is not</source>
        <translation>Das Dokument ist durch Verschlüsselung geschützt; was daraus gemacht wird, ist es nicht.</translation>
    </message>
    <message>
        <source>scripts of the document were left out</source>
        <translation>Skripte des Dokuments wurden weggelassen.</translation>
    </message>
    <message>
        <source>the PostScript program stops with an error</source>
        <translation>Das PostScript-Programm bricht mit einem Fehler ab.</translation>
    </message>
    <message>
        <source>the PostScript program tries to use a file, which no picture may</source>
        <translation>Das PostScript-Programm will eine Datei benutzen, was kein Bild darf.</translation>
    </message>
    <message>
        <source>the PostScript draws no page</source>
        <translation>Das PostScript zeichnet keine Seite.</translation>
    </message>
    <message>
        <source>the PostScript did not end within %1 seconds</source>
        <translation>Das PostScript wurde in %1 Sekunden nicht fertig.</translation>
    </message>
    <message>
        <source>the PostScript needs more memory than it was granted</source>
        <translation>Das PostScript braucht mehr Speicher, als ihm gewährt wird.</translation>
    </message>
    <message>
        <source>the PostScript used up the time or memory that it was granted</source>
        <translation>Das PostScript hat die Zeit oder den Speicher aufgebraucht, die ihm gewährt werden.</translation>
    </message>
    <message>
        <source>what follows the picture in the file was left out</source>
        <translation>Was in der Datei auf das Bild folgt, wurde weggelassen.</translation>
    </message>
    <message>
        <source>there is no interpreter of PostScript</source>
        <translation>Es gibt keinen Interpreter für PostScript.</translation>
    </message>
    <message>
        <source>the interpreter of PostScript has ended</source>
        <translation>Der PostScript-Interpreter hat sich beendet.</translation>
    </message>
    <message>
        <source>the interpreter of PostScript cannot be reached</source>
        <translation>Der PostScript-Interpreter ist nicht zu erreichen.</translation>
    </message>
    <message>
        <source>Ghostscript (gs) is not installed</source>
        <translation>Ghostscript (gs) ist nicht installiert.</translation>
    </message>
    <message>
        <source>Ghostscript failed on the PostScript</source>
        <translation>Ghostscript ist an diesem PostScript gescheitert.</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>Das Dokument ist leer.</translation>
    </message>
    <message>
        <source>the document is not XML</source>
        <translation>Das Dokument ist kein XML.</translation>
    </message>
    <message>
        <source>the document is XML but not SVG</source>
        <translation>Das Dokument ist XML, aber kein SVG.</translation>
    </message>
    <message>
        <source>the document is not well-formed XML</source>
        <translation>Das Dokument ist kein wohlgeformtes XML.</translation>
    </message>
    <message>
        <source>the compressed data is damaged</source>
        <translation>Die komprimierten Daten sind beschädigt.</translation>
    </message>
    <message>
        <source>the compressed data is cut off</source>
        <translation>Die komprimierten Daten sind abgeschnitten.</translation>
    </message>
    <message>
        <source>the compressed data grows to more than %1 times its size</source>
        <translation>Die komprimierten Daten wachsen auf mehr als das %1-Fache.</translation>
    </message>
    <message>
        <source>the compressed data holds more than %1 MiB</source>
        <translation>Die komprimierten Daten enthalten mehr als %1 MiB.</translation>
    </message>
    <message>
        <source>the document has more than %1 elements</source>
        <translation>Das Dokument hat mehr als %1 Elemente.</translation>
    </message>
    <message>
        <source>the elements of the document nest more than %1 deep</source>
        <translation>Die Elemente des Dokuments sind tiefer als %1 verschachtelt.</translation>
    </message>
    <message>
        <source>the references of the document nest more than %1 deep</source>
        <translation>Die Verweise des Dokuments sind tiefer als %1 verschachtelt.</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts nest more than %1 deep</source>
        <translation>Die Glyphen der Schriften des Dokuments sind tiefer als %1 verschachtelt.</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts show more than %1 others</source>
        <translation>Die Glyphen der Schriften des Dokuments zeigen mehr als %1 andere.</translation>
    </message>
    <message>
        <source>the document uses entities more than %1 times</source>
        <translation>Das Dokument benutzt Entitäten mehr als %1-mal.</translation>
    </message>
    <message>
        <source>the entities of the document expand to more than %1 MiB</source>
        <translation>Die Entitäten des Dokuments wachsen auf mehr als %1 MiB.</translation>
    </message>
    <message>
        <source>the entities of the document refer to one another without end</source>
        <translation>Die Entitäten des Dokuments verweisen endlos aufeinander.</translation>
    </message>
    <message>
        <source>the picture is wider or higher than %1 points</source>
        <translation>Das Bild ist breiter oder höher als %1 Punkt.</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>Das Bild lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>the picture holds something that cannot be drawn</source>
        <translation>Das Bild enthält etwas, das sich nicht zeichnen lässt.</translation>
    </message>
    <message>
        <source>the encoding %1 is not known</source>
        <translation>Die Kodierung %1 ist nicht bekannt.</translation>
    </message>
    <message>
        <source>the bytes are not text in the encoding %1</source>
        <translation>Die Bytes sind kein Text in der Kodierung %1.</translation>
    </message>
    <message>
        <source>the document refers to other files, which are never loaded (references: %1)</source>
        <translation>Das Dokument verweist auf andere Dateien, die nie geladen werden (Verweise: %1).</translation>
    </message>
    <message>
        <source>the document has scripts, which are never run</source>
        <translation>Das Dokument hat Skripte, die nie ausgeführt werden.</translation>
    </message>
    <message>
        <source>the document is animated and is shown as it stands at rest</source>
        <translation>Das Dokument ist animiert und wird im Ruhezustand gezeigt.</translation>
    </message>
    <message>
        <source>the font %1 is missing, another stands in for it</source>
        <translation>Die Schrift %1 fehlt; eine andere vertritt sie.</translation>
    </message>
    <message>
        <source>the font %1 is missing, %2 stands in for it</source>
        <translation>Die Schrift %1 fehlt; %2 vertritt sie.</translation>
    </message>
    <message>
        <source>the picture was not ready within %1 seconds</source>
        <translation>Das Bild war nach %1 Sekunden nicht fertig.</translation>
    </message>
    <message>
        <source>the picture was not ready within the time that it is allowed</source>
        <translation>Das Bild wurde in der Zeit, die es hat, nicht fertig.</translation>
    </message>
    <message>
        <source>the picture needs more memory than it is allowed</source>
        <translation>Das Bild braucht mehr Speicher, als es haben darf.</translation>
    </message>
    <message>
        <source>the picture needs more processor time than it is allowed</source>
        <translation>Das Bild braucht mehr Rechenzeit, als es haben darf.</translation>
    </message>
    <message>
        <source>the picture needs more temporary files than it is allowed</source>
        <translation>Das Bild braucht mehr temporäre Dateien, als es haben darf.</translation>
    </message>
    <message>
        <source>the picture nests deeper than can be drawn</source>
        <translation>Das Bild ist tiefer verschachtelt, als sich zeichnen lässt.</translation>
    </message>
    <message>
        <source>the picture is larger than the memory that it was granted</source>
        <translation>Das Bild ist größer als der Speicher, der ihm gewährt wird.</translation>
    </message>
    <message>
        <source>the picture would have more pixels than it is allowed</source>
        <translation>Das Bild hätte mehr Pixel, als es haben darf.</translation>
    </message>
    <message>
        <source>the image would have a side of more than %1 pixels</source>
        <translation>Eine Seite des Bildes hätte mehr als %1 Pixel.</translation>
    </message>
    <message>
        <source>the image would have more than %1 megapixels</source>
        <translation>Das Bild hätte mehr als %1 Megapixel.</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>Für das Bild ist nicht genug Speicher da.</translation>
    </message>
    <message>
        <source>there is not enough memory for the document</source>
        <translation>Für das Dokument ist nicht genug Speicher da.</translation>
    </message>
    <message>
        <source>there is not enough memory to draw the picture</source>
        <translation>Zum Zeichnen des Bildes ist nicht genug Speicher da.</translation>
    </message>
    <message>
        <source>there is not enough memory to read the document</source>
        <translation>Zum Lesen des Dokuments ist nicht genug Speicher da.</translation>
    </message>
    <message>
        <source>the picture is larger than files may become here</source>
        <translation>Das Bild ist größer, als Dateien hier werden dürfen.</translation>
    </message>
    <message>
        <source>too many files are open for another picture</source>
        <translation>Für ein weiteres Bild sind zu viele Dateien geöffnet.</translation>
    </message>
    <message>
        <source>the picture process ended without an answer</source>
        <translation>Der Bildprozess endete ohne Antwort.</translation>
    </message>
    <message>
        <source>the picture process did not answer in time</source>
        <translation>Der Bildprozess hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>the picture process was killed by the system, which has probably run out of memory</source>
        <translation>Das System hat den Bildprozess beendet, wahrscheinlich aus Mangel an Speicher.</translation>
    </message>
    <message>
        <source>the picture process gave an answer that cannot be true</source>
        <translation>Der Bildprozess gab eine Antwort, die nicht stimmen kann.</translation>
    </message>
    <message>
        <source>no process for the picture could be started</source>
        <translation>Für das Bild ließ sich kein Prozess starten.</translation>
    </message>
    <message>
        <source>the program that reads pictures could not be started</source>
        <translation>Das Programm, das Bilder liest, ließ sich nicht starten.</translation>
    </message>
    <message>
        <source>the program that reads pictures has ended</source>
        <translation>Das Programm, das Bilder liest, hat sich beendet.</translation>
    </message>
    <message>
        <source>the program that reads pictures has not answered yet</source>
        <translation>Das Programm, das Bilder liest, hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>the picture process could not be confined: this system offers neither Landlock nor user namespaces with seccomp filters</source>
        <translation>Der Bildprozess ließ sich nicht einschließen: Dieses System bietet weder Landlock noch Benutzer-Namensräume mit Seccomp-Filtern.</translation>
    </message>
    <message>
        <source>the drawing was stopped</source>
        <translation>Das Zeichnen wurde angehalten.</translation>
    </message>
    <message>
        <source>the picture could not be processed</source>
        <translation>Das Bild ließ sich nicht verarbeiten.</translation>
    </message>
    <message>
        <source>the picture cannot be drawn at this size</source>
        <translation>In dieser Größe lässt sich das Bild nicht zeichnen.</translation>
    </message>
    <message>
        <source>the file exists already</source>
        <translation>Die Datei gibt es schon.</translation>
    </message>
    <message>
        <source>the folder to write to does not exist</source>
        <translation>Den Ordner, in den geschrieben werden soll, gibt es nicht.</translation>
    </message>
    <message>
        <source>there is a folder of that name</source>
        <translation>Es gibt einen Ordner dieses Namens.</translation>
    </message>
    <message>
        <source>there is no space left to write to</source>
        <translation>Zum Schreiben ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>writing there is not permitted</source>
        <translation>Dort darf nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>the file could not be written (%1)</source>
        <translation>Die Datei konnte nicht geschrieben werden (%1).</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>Die Datei ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>the rectangle is empty or out of range</source>
        <translation>Das Rechteck ist leer oder liegt außerhalb.</translation>
    </message>
    <message>
        <source>no profile of a press is installed (%1)</source>
        <translation>Es ist kein Profil einer Druckmaschine installiert (%1).</translation>
    </message>
    <message>
        <source>the page cannot be written as PostScript</source>
        <translation>Die Seite lässt sich nicht als PostScript schreiben.</translation>
    </message>
    <message>
        <source>the page cannot be written as SVG</source>
        <translation>Die Seite lässt sich nicht als SVG schreiben.</translation>
    </message>
    <message>
        <source>the picture cannot be written as PDF</source>
        <translation>Das Bild lässt sich nicht als PDF schreiben.</translation>
    </message>
    <message>
        <source>the page is too large or too deeply nested to become SVG</source>
        <translation>Die Seite ist zu groß oder zu tief verschachtelt, um SVG zu werden.</translation>
    </message>
    <message>
        <source>only EPS files can be repaired</source>
        <translation>Nur EPS-Dateien lassen sich reparieren.</translation>
    </message>
    <message>
        <source>an SVG picture has no inks: its colours are those of a screen</source>
        <translation>Ein SVG-Bild hat keine Druckfarben: Seine Farben sind die eines Bildschirms.</translation>
    </message>
    <message>
        <source>at %1 dpi a plate has %2 million pixels, and at most %3 million can be handled</source>
        <translation>Bei %1 dpi hat eine Druckplatte %2 Millionen Pixel; höchstens %3 Millionen sind möglich.</translation>
    </message>
    <message>
        <source>the print service cannot be reached</source>
        <translation>Der Druckdienst ist nicht zu erreichen.</translation>
    </message>
    <message>
        <source>the print service does not answer</source>
        <translation>Der Druckdienst antwortet nicht.</translation>
    </message>
    <message>
        <source>the print service gives no answer that makes sense</source>
        <translation>Der Druckdienst gibt keine sinnvolle Antwort.</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>Es gibt keinen Drucker.</translation>
    </message>
    <message>
        <source>no printer is the default one</source>
        <translation>Kein Drucker ist als Standarddrucker eingestellt.</translation>
    </message>
    <message>
        <source>there is no printer named “%1”</source>
        <translation>Es gibt keinen Drucker „%1“.</translation>
    </message>
    <message>
        <source>the printer “%1” takes no jobs</source>
        <translation>Der Drucker „%1“ nimmt keine Aufträge an.</translation>
    </message>
    <message>
        <source>the printer “%1” is not open to this user</source>
        <translation>Der Drucker „%1“ ist für diesen Benutzer nicht freigegeben.</translation>
    </message>
    <message>
        <source>the printer “%1” wants a user name and a password, which are not asked for here</source>
        <translation>Der Drucker „%1“ verlangt Benutzername und Passwort, nach denen hier nicht gefragt wird.</translation>
    </message>
    <message>
        <source>the printer “%1” did not take the job: %2</source>
        <translation>Der Drucker „%1“ hat den Auftrag nicht angenommen: %2.</translation>
    </message>
    <message>
        <source>the document has %1 pages, and only the first %2 of them can be printed</source>
        <translation>Das Dokument hat %1 Seiten, und nur die ersten %2 lassen sich drucken.</translation>
    </message>
    <message>
        <source>there are no such pages: the document has %1</source>
        <translation>Diese Seiten gibt es nicht: Das Dokument hat %1.</translation>
    </message>
    <message>
        <source>there are no such pages: the picture takes %1</source>
        <translation>Diese Seiten gibt es nicht: Das Bild nimmt %1 ein.</translation>
    </message>
    <message>
        <source>the pages would take more than %1 sheets of paper</source>
        <translation>Die Seiten bräuchten mehr als %1 Blatt Papier.</translation>
    </message>
    <message>
        <source>the picture would take more than %1 sheets of paper</source>
        <translation>Das Bild bräuchte mehr als %1 Blatt Papier.</translation>
    </message>
    <message>
        <source>the margins leave no room on the paper</source>
        <translation>Die Ränder lassen auf dem Papier keinen Platz.</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Die Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Der Zugriff ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Das Gerät meldet einen Fehler beim Lesen oder Schreiben.</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Es sind zu viele Dateien geöffnet.</translation>
    </message>
    <message>
        <source>its PostScript</source>
        <translation>ihr PostScript</translation>
    </message>
    <message>
        <source>its preview</source>
        <translation>ihre Vorschau</translation>
    </message>
    <message>
        <source>its plates</source>
        <translation>ihre Druckplatten</translation>
    </message>
    <message>
        <source>its page</source>
        <translation>ihre Seite</translation>
    </message>
    <message>
        <source>its pages</source>
        <translation>ihre Seiten</translation>
    </message>
    <message>
        <source>no reason is given</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>actions that start programs or open other files were left out</source>
        <translation>Aktionen, die Programme starten oder andere Dateien öffnen, wurden weggelassen.</translation>
    </message>
    <message>
        <source>what the document does when it is opened was left out</source>
        <translation>Was das Dokument beim Öffnen tut, wurde weggelassen.</translation>
    </message>
    <message>
        <source>references to files beside the document were left out</source>
        <translation>Verweise auf Dateien neben dem Dokument wurden weggelassen.</translation>
    </message>
    <message>
        <source>PostScript programs that the document holds were left out</source>
        <translation>PostScript-Programme im Dokument wurden weggelassen.</translation>
    </message>
    <message>
        <source>glyphs that show themselves were left out</source>
        <translation>Zeichen, die sich selbst zeigen, wurden weggelassen.</translation>
    </message>
    <message>
        <source>glyphs that show too many others were left out</source>
        <translation>Zeichen, die zu viele andere zeigen, wurden weggelassen.</translation>
    </message>
    <message>
        <source>a font cannot be taken over; another stands in for it</source>
        <translation>Eine Schrift lässt sich nicht übernehmen; eine andere vertritt sie.</translation>
    </message>
    <message>
        <source>the font %1 cannot be taken over; another stands in for it</source>
        <translation>Die Schrift %1 lässt sich nicht übernehmen; eine andere vertritt sie.</translation>
    </message>
    <message>
        <source>the source has no PostScript, so the file holds a preview and nothing else</source>
        <translation>Die Quelle hat kein PostScript; die Datei enthält nur eine Vorschau.</translation>
    </message>
    <message>
        <source>the picture gives no PostScript, so the file holds a preview and nothing else</source>
        <translation>Das Bild ergibt kein PostScript; die Datei enthält nur eine Vorschau.</translation>
    </message>
    <message>
        <source>the PDF has no subject, because the document has a description but no title</source>
        <translation>Das PDF hat kein Thema, denn das Dokument hat eine Beschreibung, aber keinen Titel.</translation>
    </message>
    <message>
        <source>the preview could not be written as TIFF</source>
        <translation>Die Vorschau ließ sich nicht als TIFF schreiben.</translation>
    </message>
    <message>
        <source>the result could not be opened again: %1</source>
        <translation>Das Ergebnis ließ sich nicht wieder öffnen: %1.</translation>
    </message>
    <message>
        <source>an image with more pixels than are granted was left out</source>
        <translation>Ein Bild mit mehr Pixeln, als erlaubt sind, wurde weggelassen.</translation>
    </message>
    <message>
        <source>letters of more fonts or shapes than are granted were left out</source>
        <translation>Buchstaben von mehr Schriften oder Formen, als erlaubt sind, wurden weggelassen.</translation>
    </message>
    <message>
        <source>a group that knocks out or blends with what lies below it is put together by itself, as SVG has it</source>
        <translation>Eine Gruppe, die ausspart oder sich mit dem mischt, was unter ihr liegt, wird für sich zusammengesetzt, wie SVG es kennt.</translation>
    </message>
    <message>
        <source>some text stays outlines: it is a line or a clip, or its font may not or cannot be embedded</source>
        <translation>Mancher Text bleibt Umriss: Er dient als Linie oder Beschneidung, oder seine Schrift darf oder kann nicht eingebettet werden.</translation>
    </message>
    <message>
        <source>of some characters the document does not tell the meaning: they are shown, and no search finds them</source>
        <translation>Bei manchen Zeichen sagt das Dokument nicht, was sie bedeuten: Sie werden gezeigt, und keine Suche findet sie.</translation>
    </message>
    <message>
        <source>what is drawn through a filter (elements: %1) is held as an image</source>
        <translation>Was durch einen Filter gezeichnet wird (Elemente: %1), wird als Bild gehalten.</translation>
    </message>
    <message>
        <source>masks (elements: %1) are held as images, what they mask is not</source>
        <translation>Masken (Elemente: %1) werden als Bilder gehalten; was sie maskieren, nicht.</translation>
    </message>
    <message>
        <source>the text is in %1 and is handed on as UTF-8</source>
        <translation>Der Text ist in %1 und wird als UTF-8 weitergegeben.</translation>
    </message>
    <message>
        <source>the document's width or height is not a length and is passed over</source>
        <translation>Breite oder Höhe des Dokuments ist keine Länge und wird übergangen.</translation>
    </message>
    <message>
        <source>the document's view box is not readable and is passed over</source>
        <translation>Die viewBox des Dokuments ist nicht lesbar und wird übergangen.</translation>
    </message>
    <message>
        <source>it draws nothing and states no bounding box</source>
        <translation>Sie zeichnet nichts und nennt keinen Begrenzungsrahmen.</translation>
    </message>
    <message>
        <source>it cannot be mended: %1</source>
        <translation>Sie lässt sich nicht reparieren: %1.</translation>
    </message>
    <message>
        <source>the program was taken out of %1</source>
        <translation>Das Programm wurde aus %1 entnommen.</translation>
    </message>
    <message>
        <source>the program was taken out of its binary file</source>
        <translation>Das Programm wurde aus seiner binären Datei entnommen.</translation>
    </message>
    <message>
        <source>the preview was left out</source>
        <translation>Die Vorschau wurde weggelassen.</translation>
    </message>
    <message>
        <source>the Windows metafile was left out</source>
        <translation>Die Windows-Metadatei wurde weggelassen.</translation>
    </message>
    <message>
        <source>a preview of %1 by %2 pixels was made</source>
        <translation>Eine Vorschau von %1 × %2 Pixeln wurde erzeugt.</translation>
    </message>
    <message>
        <source>the first line is %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>Die erste Zeile ist %!PS-Adobe-3.0 EPSF-3.0.</translation>
    </message>
    <message>
        <source>%%EndComments was put in</source>
        <translation>%%EndComments wurde eingefügt.</translation>
    </message>
    <message>
        <source>a second %%EndComments was left out</source>
        <translation>Ein zweites %%EndComments wurde weggelassen.</translation>
    </message>
    <message>
        <source>showpage was put in</source>
        <translation>showpage wurde eingefügt.</translation>
    </message>
    <message>
        <source>%%EOF was put in</source>
        <translation>%%EOF wurde eingefügt.</translation>
    </message>
    <message>
        <source>what stood behind %%EOF was left out</source>
        <translation>Was hinter %%EOF stand, wurde weggelassen.</translation>
    </message>
    <message>
        <source>what stood before the first line was left out</source>
        <translation>Was vor der ersten Zeile stand, wurde weggelassen.</translation>
    </message>
    <message>
        <source>the box at the end of the file stands in its header</source>
        <translation>Der Rahmen vom Ende der Datei steht in ihrem Kopf.</translation>
    </message>
    <message>
        <source>the bounding box is %1 (%2)</source>
        <translation>Der Begrenzungsrahmen ist %1 (%2).</translation>
    </message>
    <message>
        <source>%1 was left out, because it stood out of order</source>
        <translation>%1 wurde weggelassen, weil es nicht an seinem Platz stand.</translation>
    </message>
    <message>
        <source>the document is larger than %1 MiB</source>
        <translation>Das Dokument ist größer als %1 MiB.</translation>
    </message>
    <message>
        <source>the compressed data is larger than %1 MiB</source>
        <translation>Die komprimierten Daten sind größer als %1 MiB.</translation>
    </message>
    <message>
        <source>there is not enough memory to inflate the data</source>
        <translation>Zum Entpacken der Daten ist nicht genug Speicher da.</translation>
    </message>
    <message>
        <source>the document has a filter with a matrix of more than %1 numbers</source>
        <translation>Das Dokument hat einen Filter mit einer Matrix von mehr als %1 Zahlen.</translation>
    </message>
    <message>
        <source>the selectors of the document's style sheets nest more than %1 deep</source>
        <translation>Die Selektoren in den Stilvorlagen des Dokuments sind tiefer als %1 verschachtelt.</translation>
    </message>
    <message>
        <source>the document has text of more than %1 units in size</source>
        <translation>Das Dokument hat Text von mehr als %1 Einheiten Größe.</translation>
    </message>
    <message>
        <source>the plates of the page have more pixels than can be handled; a lower resolution helps</source>
        <translation>Die Druckplatten der Seite haben mehr Pixel, als möglich sind; eine niedrigere Auflösung hilft.</translation>
    </message>
    <message>
        <source>Ghostscript did not separate the page</source>
        <translation>Ghostscript hat die Seite nicht in Druckfarben zerlegt.</translation>
    </message>
    <message>
        <source>Ghostscript (gs) cannot be started</source>
        <translation>Ghostscript (gs) lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>the interpreter of PostScript could not be confined</source>
        <translation>Der PostScript-Interpreter ließ sich nicht einschließen.</translation>
    </message>
    <message>
        <source>there is no %%BoundingBox</source>
        <translation>Es gibt kein %%BoundingBox.</translation>
    </message>
    <message>
        <source>the file is wrapped as %1, with a Macintosh picture (PICT) of %2 × %3 points as its preview</source>
        <translation>Die Datei ist verpackt als %1, mit einem Macintosh-Bild (PICT) von %2 × %3 Punkt als Vorschau.</translation>
    </message>
    <message>
        <source>there is no preview</source>
        <translation>Es gibt keine Vorschau.</translation>
    </message>
    <message>
        <source>the file does not begin with %!PS-Adobe</source>
        <translation>Die Datei beginnt nicht mit %!PS-Adobe.</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>showpage fehlt.</translation>
    </message>
    <message>
        <source>the font %1 is a Type 3 font</source>
        <translation>Die Schrift %1 ist eine Type-3-Schrift.</translation>
    </message>
    <message>
        <source>the font %1 is not embedded</source>
        <translation>Die Schrift %1 ist nicht eingebettet.</translation>
    </message>
    <message>
        <source>the font %1 is embedded as a whole</source>
        <translation>Die Schrift %1 ist vollständig eingebettet.</translation>
    </message>
    <message>
        <source>there are RGB colours</source>
        <translation>Es gibt RGB-Farben.</translation>
    </message>
    <message>
        <source>white overprints, and will vanish</source>
        <translation>Weiß überdruckt und wird verschwinden.</translation>
    </message>
    <message>
        <source>small black text does not overprint</source>
        <translation>Kleiner schwarzer Text überdruckt nicht.</translation>
    </message>
    <message>
        <source>the document is encrypted</source>
        <translation>Das Dokument ist verschlüsselt.</translation>
    </message>
    <message>
        <source>it has scripts or animations, which are not run</source>
        <translation>Es hat Skripte oder Animationen, die nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>its width or height is absent, or has no unit</source>
        <translation>Breite oder Höhe fehlt oder hat keine Einheit.</translation>
    </message>
    <message>
        <source>there is transparency</source>
        <translation>Es gibt Transparenz.</translation>
    </message>
    <message>
        <source>a part of the page was not looked at</source>
        <translation>Ein Teil der Seite wurde nicht angesehen.</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1" instead of four numbers</source>
        <translation>%%BoundingBox enthält „%1“ statt vier Zahlen.</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1", which are not all whole numbers</source>
        <translation>%%BoundingBox enthält „%1“; das sind nicht durchweg ganze Zahlen.</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 does not enclose %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 umschließt %%HiResBoundingBox %2 nicht.</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 is far larger than %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 ist viel größer als %%HiResBoundingBox %2.</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>ohne Namen</translation>
    </message>
    <message>
        <source>%%BoundingBox is promised for the end and does not come</source>
        <translation>%%BoundingBox ist für das Ende angekündigt und kommt nicht.</translation>
    </message>
    <message>
        <source>the bounding box %1 has no area</source>
        <translation>Der Begrenzungsrahmen %1 hat keine Fläche.</translation>
    </message>
    <message>
        <source>nothing but white is drawn inside the bounding box</source>
        <translation>Innerhalb des Begrenzungsrahmens wird nur Weiß gezeichnet.</translation>
    </message>
    <message>
        <source>the bounding box %1 cuts the ink off, which reaches %2 pt beyond it: %3</source>
        <translation>Der Begrenzungsrahmen %1 schneidet die Zeichnung ab, die %2 pt darüber hinausreicht: %3.</translation>
    </message>
    <message>
        <source>the bounding box %1 is more than twice as large as the ink: %2</source>
        <translation>Der Begrenzungsrahmen %1 ist mehr als doppelt so groß wie die Zeichnung: %2.</translation>
    </message>
    <message>
        <source>the %1 section ends at byte %2, the file at byte %3</source>
        <translation>Der Abschnitt %1 endet bei Byte %2, die Datei bei Byte %3.</translation>
    </message>
    <message>
        <source>the %1 section lies over another part of the file</source>
        <translation>Der Abschnitt %1 liegt über einem anderen Teil der Datei.</translation>
    </message>
    <message>
        <source>bytes before %!PS-Adobe: %1</source>
        <translation>Bytes vor %!PS-Adobe: %1.</translation>
    </message>
    <message>
        <source>bytes behind %%EOF: %1</source>
        <translation>Bytes hinter %%EOF: %1.</translation>
    </message>
    <message>
        <source>the file needs fonts that it does not bring: %1</source>
        <translation>Die Datei braucht Schriften, die sie nicht mitbringt: %1.</translation>
    </message>
    <message>
        <source>the preview is %1 by %2 pixels large, the bounding box %3 by %4 points</source>
        <translation>Die Vorschau ist %1 × %2 Pixel groß, der Begrenzungsrahmen %3 × %4 Punkt.</translation>
    </message>
    <message>
        <source>the preview shows another picture than the program draws (mean difference %1 %)</source>
        <translation>Die Vorschau zeigt ein anderes Bild, als das Programm zeichnet (mittlerer Unterschied %1 %).</translation>
    </message>
    <message>
        <source>the first line "%1" does not say %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>In der ersten Zeile „%1“ steht nicht %!PS-Adobe-3.0 EPSF-3.0.</translation>
    </message>
    <message>
        <source>the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist</source>
        <translation>Die erste Zeile nennt PS-Adobe-%1 und EPSF-%2, die es nicht gibt.</translation>
    </message>
    <message>
        <source>the header has no %%EndComments</source>
        <translation>Der Kopf hat kein %%EndComments.</translation>
    </message>
    <message>
        <source>%%EndComments stands behind the first line that is no comment</source>
        <translation>%%EndComments steht hinter der ersten Zeile, die kein Kommentar ist.</translation>
    </message>
    <message>
        <source>lines of more than 255 bytes: %1, the first is line %2</source>
        <translation>Zeilen mit mehr als 255 Bytes: %1; die erste ist Zeile %2.</translation>
    </message>
    <message>
        <source>lines end in %1 different ways</source>
        <translation>Zeilen enden auf %1 verschiedene Arten.</translation>
    </message>
    <message>
        <source>a line is %1 pt thin, %2 pt are asked for</source>
        <translation>Eine Linie ist nur %1 pt stark; %2 pt sind gefordert.</translation>
    </message>
    <message>
        <source>a text is %1 pt small, %2 pt are asked for</source>
        <translation>Ein Text ist nur %1 pt groß; %2 pt sind gefordert.</translation>
    </message>
    <message>
        <source>a colour takes %1 % of ink, %2 % are allowed</source>
        <translation>Eine Farbe braucht %1 % Farbauftrag; erlaubt sind %2 %.</translation>
    </message>
    <message>
        <source>the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for</source>
        <translation>Das Bild (%1) mit %2 × %3 Pixeln hat %4 dpi; %5 sind gefordert.</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>line art</source>
        <translation>Strichbild</translation>
    </message>
    <message>
        <source>it names the colour space %1, which the profile does not</source>
        <translation>Der Farbraum %1 kommt vor, den das Profil nicht nennt.</translation>
    </message>
    <message>
        <source>there is the spot ink %1</source>
        <translation>Die Schmuckfarbe %1 wird verwendet.</translation>
    </message>
    <message>
        <source>RGB colours stand beside CMYK colours</source>
        <translation>RGB-Farben stehen neben CMYK-Farben.</translation>
    </message>
    <message>
        <source>its permissions forbid %1</source>
        <translation>Seine Berechtigungen verbieten: %1.</translation>
    </message>
    <message>
        <source>it claims to keep %1</source>
        <translation>Es gibt an, %1 einzuhalten.</translation>
    </message>
    <message>
        <source>it claims to keep %1 and has no output intent</source>
        <translation>Es gibt an, %1 einzuhalten, und hat keine Ausgabebedingung.</translation>
    </message>
    <message>
        <source>it refers to other files, which are never loaded (references: %1)</source>
        <translation>Es verweist auf andere Dateien, die nie geladen werden (Verweise: %1).</translation>
    </message>
    <message>
        <source>elements drawn through filters become images in print: %1</source>
        <translation>Elemente mit Filtern, die im Druck zu Bildern werden: %1.</translation>
    </message>
    <message>
        <source>something is drawn up to %1 pt outside the page</source>
        <translation>Etwas ist bis zu %1 pt außerhalb der Seite gezeichnet.</translation>
    </message>
    <message>
        <source>only the first %1 pages were looked at</source>
        <translation>Nur die ersten %1 Seiten wurden angesehen.</translation>
    </message>
    <message>
        <source>the picture is %1 mm wide, columns are %2 mm</source>
        <translation>Das Bild ist %1 mm breit, Spalten sind %2 mm breit.</translation>
    </message>
    <message>
        <source>the file is wrapped as %1</source>
        <translation>Die Datei ist verpackt als %1.</translation>
    </message>
    <message>
        <source>%1 takes language level %2, and the header declares %3</source>
        <translation>%1 verlangt Sprachstufe %2, und der Kopf nennt: %3.</translation>
    </message>
    <message>
        <source>none above 1</source>
        <translation>keine über 1</translation>
    </message>
    <message>
        <source>%1 has no place in an EPS file</source>
        <translation>%1 gehört nicht in eine EPS-Datei.</translation>
    </message>
    <message>
        <source>%1 is declared, and line %2 holds the byte %3</source>
        <translation>Angegeben ist %1, und Zeile %2 enthält das Byte %3.</translation>
    </message>
    <message>
        <source>%1 stands behind %2</source>
        <translation>%1 steht hinter %2.</translation>
    </message>
    <message>
        <source>%1 ends what did not begin</source>
        <translation>%1 beendet, was nicht begonnen hat.</translation>
    </message>
    <message>
        <source>%1 has no end</source>
        <translation>%1 hat kein Ende.</translation>
    </message>
    <message>
        <source>the embedded preview is malformed</source>
        <translation>Die eingebettete Vorschau ist fehlerhaft.</translation>
    </message>
    <message>
        <source>the embedded preview is too large</source>
        <translation>Die eingebettete Vorschau ist zu groß.</translation>
    </message>
    <message>
        <source>the embedded preview lies outside of the file</source>
        <translation>Die eingebettete Vorschau liegt außerhalb der Datei.</translation>
    </message>
    <message>
        <source>the preview is not a readable TIFF image</source>
        <translation>Die Vorschau ist kein lesbares TIFF-Bild.</translation>
    </message>
    <message>
        <source>the preview has more than %1 megapixels</source>
        <translation>Die Vorschau hat mehr als %1 Megapixel.</translation>
    </message>
    <message>
        <source>the embedded Windows metafile is damaged</source>
        <translation>Die eingebettete Windows-Metadatei ist beschädigt.</translation>
    </message>
    <message>
        <source>the embedded Windows metafile tells no size</source>
        <translation>Die eingebettete Windows-Metadatei nennt keine Größe.</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is damaged</source>
        <translation>Ein Rasterbild in der Windows-Metadatei ist beschädigt.</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is of a kind that is not drawn</source>
        <translation>Ein Rasterbild in der Windows-Metadatei ist von einer Art, die nicht gezeichnet wird.</translation>
    </message>
    <message>
        <source>the part of norvex that this picture needs is missing or damaged: %1</source>
        <translation>Der Teil von Norvex, den dieses Bild braucht, fehlt oder ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>the measures of the picture are larger than can be handled</source>
        <translation>Die Maße des Bildes sind größer, als sich verarbeiten lässt.</translation>
    </message>
    <message>
        <source>the picture process cannot be waited for: too many files are open</source>
        <translation>Auf den Bildprozess kann nicht gewartet werden: Es sind zu viele Dateien geöffnet.</translation>
    </message>
    <message>
        <source>no connection to a picture process could be made</source>
        <translation>Zum Bildprozess ließ sich keine Verbindung herstellen.</translation>
    </message>
    <message>
        <source>the picture cannot be made in this size or at this place</source>
        <translation>In dieser Größe oder an dieser Stelle lässt sich das Bild nicht erzeugen.</translation>
    </message>
    <message>
        <source>the picture is too large to be drawn without seams</source>
        <translation>das Bild ist zu groß, um ohne Fugen gezeichnet zu werden</translation>
    </message>
    <message>
        <source>there was not enough memory for work in the background</source>
        <translation>für Arbeit im Hintergrund war nicht genug Speicher da</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>Es gibt kein Bild.</translation>
    </message>
    <message>
        <source>these pixels cannot be converted</source>
        <translation>Diese Pixel lassen sich nicht umwandeln.</translation>
    </message>
    <message>
        <source>the profile of the press cannot be used</source>
        <translation>Das Profil der Druckmaschine lässt sich nicht verwenden.</translation>
    </message>
    <message>
        <source>a section of it is missing</source>
        <translation>Ein Abschnitt davon fehlt.</translation>
    </message>
    <message>
        <source>it has no end</source>
        <translation>Es hat kein Ende.</translation>
    </message>
    <message>
        <source>the source has no PostScript</source>
        <translation>Die Quelle hat kein PostScript.</translation>
    </message>
    <message>
        <source>the source has no comments that a preview could follow</source>
        <translation>Die Quelle hat keine Kommentare, hinter denen eine Vorschau stehen könnte.</translation>
    </message>
    <message>
        <source>the document has a description but no title to store with it</source>
        <translation>Das Dokument hat eine Beschreibung, aber keinen Titel, der mit ihr gespeichert werden könnte.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %!</source>
        <translation>Das ist kein Encapsulated PostScript: Es beginnt nicht mit %!.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %! and states no bounding box</source>
        <translation>Das ist kein Encapsulated PostScript: Es beginnt nicht mit %! und nennt keinen Begrenzungsrahmen.</translation>
    </message>
    <message>
        <source>the document is protected by encryption and does not allow %1; what is made of it is not protected</source>
        <translation>Das Dokument ist durch Verschlüsselung geschützt und erlaubt nicht: %1. Was daraus gemacht wird, ist nicht geschützt.</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>changing</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>copying</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 is not understood and was left out</source>
        <translation>Der Illustrator-Operator %1 wird nicht verstanden und wurde weggelassen.</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 was left out where its operands are not understood</source>
        <translation>Der Illustrator-Operator %1 wurde weggelassen, wo seine Operanden nicht verstanden werden.</translation>
    </message>
    <message>
        <source>the pattern %1 is not in the file in a form that is understood and was left out</source>
        <translation>Das Muster %1 steht nicht in verständlicher Form in der Datei und wurde weggelassen.</translation>
    </message>
    <message>
        <source>the gradient %1 is not in the file: a plain colour stands for it</source>
        <translation>Der Verlauf %1 ist nicht in der Datei: Eine einfache Farbe vertritt ihn.</translation>
    </message>
    <message>
        <source>the placed picture %1 is not in the file</source>
        <translation>Das platzierte Bild %1 ist nicht in der Datei.</translation>
    </message>
    <message>
        <source>a pdfmark whose operands are wrong was left out</source>
        <translation>Ein pdfmark mit falschen Operanden wurde weggelassen.</translation>
    </message>
    <message>
        <source>a part of the artwork could not be drawn (%1)</source>
        <translation>Ein Teil der Zeichnung ließ sich nicht zeichnen (%1).</translation>
    </message>
    <message>
        <source>the page has errors, and something may be missing on its plates</source>
        <translation>Die Seite hat Fehler; auf ihren Druckplatten fehlt vielleicht etwas.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3.</translation>
    </message>
    <message>
        <source>there is no %1, only [limits] and [severities]</source>
        <translation>%1 gibt es nicht, nur [limits] und [severities].</translation>
    </message>
    <message>
        <source>%1 is a number from 0</source>
        <translation>%1 ist eine Zahl ab 0.</translation>
    </message>
    <message>
        <source>rgb is true or false</source>
        <translation>rgb ist true oder false.</translation>
    </message>
    <message>
        <source>colour-spaces is a list of names</source>
        <translation>colour-spaces ist eine Liste von Namen.</translation>
    </message>
    <message>
        <source>columns-mm is a list of numbers</source>
        <translation>columns-mm ist eine Liste von Zahlen.</translation>
    </message>
    <message>
        <source>there is no limit %1</source>
        <translation>Es gibt keine Grenze %1.</translation>
    </message>
    <message>
        <source>there is no rule %1</source>
        <translation>Es gibt keine Regel %1.</translation>
    </message>
    <message>
        <source>%1 is one of: error, warning, note, off</source>
        <translation>%1 ist eines von: error, warning, note, off.</translation>
    </message>
    <message>
        <source>this is neither a [table] nor a name with = and a value</source>
        <translation>Das ist weder eine [Tabelle] noch ein Name mit = und einem Wert.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file, as a profile has to be</source>
        <translation>%1 ist keine gewöhnliche Datei, wie es ein Profil sein muss.</translation>
    </message>
    <message>
        <source>there is no profile %1, and no file of that name; profiles are: %2</source>
        <translation>Es gibt kein Profil %1 und keine Datei dieses Namens; Profile sind: %2.</translation>
    </message>
    <message>
        <source>%1 is too large for a profile</source>
        <translation>%1 ist zu groß für ein Profil.</translation>
    </message>
    <message>
        <source>Landlock: on, version %1</source>
        <translation>Landlock: an, Version %1.</translation>
    </message>
    <message>
        <source>Landlock: missing</source>
        <translation>Landlock: fehlt.</translation>
    </message>
    <message>
        <source>No rules of the kernel about files</source>
        <translation>Keine Regeln des Kernels für Dateien.</translation>
    </message>
    <message>
        <source>Nothing but what engines need can be read, nothing but scratch files written</source>
        <translation>Nur was die Bilddienste brauchen, kann gelesen werden, nur Arbeitsdateien geschrieben.</translation>
    </message>
    <message>
        <source>Nothing is listed, removed or started besides</source>
        <translation>Sonst wird nichts aufgelistet, entfernt oder gestartet.</translation>
    </message>
    <message>
        <source>There is no TCP</source>
        <translation>Es gibt kein TCP.</translation>
    </message>
    <message>
        <source>There are no signals and no abstract sockets to others</source>
        <translation>Es gibt keine Signale und keine abstrakten Sockets zu anderen.</translation>
    </message>
    <message>
        <source>Devices cannot be controlled</source>
        <translation>Geräte können nicht gesteuert werden.</translation>
    </message>
    <message>
        <source>This version does not cover %1</source>
        <translation>Diese Version deckt nicht ab: %1.</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>signals and abstract sockets</source>
        <translation>Signale und abstrakte Sockets</translation>
    </message>
    <message>
        <source>control of devices</source>
        <translation>Steuerung von Geräten</translation>
    </message>
    <message>
        <source>cutting files off</source>
        <translation>Kürzen von Dateien</translation>
    </message>
    <message>
        <source>System calls (seccomp): on</source>
        <translation>Systemaufrufe (seccomp): an.</translation>
    </message>
    <message>
        <source>Only calls on a list: no programs, processes, sockets, tracing, mounts, keys, changed modes or owners</source>
        <translation>Nur Aufrufe einer Liste: keine Programme, Prozesse, Sockets, Ablaufverfolgung, Einhängungen, Schlüssel, geänderten Rechte oder Eigentümer.</translation>
    </message>
    <message>
        <source>Engines open nothing for writing</source>
        <translation>Die Bilddienste öffnen nichts zum Schreiben.</translation>
    </message>
    <message>
        <source>System calls (seccomp): missing</source>
        <translation>Systemaufrufe (seccomp): fehlt.</translation>
    </message>
    <message>
        <source>Every call can be made</source>
        <translation>Jeder Aufruf ist möglich.</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): on</source>
        <translation>Dateisicht (User- und Mount-Namensräume): an.</translation>
    </message>
    <message>
        <source>Files other than those that engines need do not exist, and all but scratch files are read-only</source>
        <translation>Andere Dateien als die, die die Bilddienste brauchen, gibt es nicht, und alle außer Arbeitsdateien sind schreibgeschützt.</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): missing</source>
        <translation>Dateisicht (User- und Mount-Namensräume): fehlt.</translation>
    </message>
    <message>
        <source>The system does not permit them to this user</source>
        <translation>Das System erlaubt sie diesem Benutzer nicht.</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): on</source>
        <translation>Netzwerk und Nachrichten (Namensräume): an.</translation>
    </message>
    <message>
        <source>No network exists</source>
        <translation>Es gibt kein Netzwerk.</translation>
    </message>
    <message>
        <source>No shared memory or queues of others exist</source>
        <translation>Es gibt weder gemeinsamen Speicher noch Warteschlangen anderer.</translation>
    </message>
    <message>
        <source>Of a single picture on the command line: off, for they take time</source>
        <translation>Für ein einzelnes Bild auf der Befehlszeile: aus, denn sie kosten Zeit.</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): missing</source>
        <translation>Netzwerk und Nachrichten (Namensräume): fehlt.</translation>
    </message>
    <message>
        <source>What else is on keeps pictures from them</source>
        <translation>Was sonst an ist, hält Bilder davon fern.</translation>
    </message>
    <message>
        <source>Limits: memory, processor time, size and number of files, scratch files; no core files</source>
        <translation>Grenzen: Speicher, Prozessorzeit, Größe und Zahl der Dateien, Arbeitsdateien; keine Speicherabbilder.</translation>
    </message>
    <message>
        <source>This build watches itself, for which it leaves layers out</source>
        <translation>Dieser Bau überwacht sich selbst und lässt dafür Schichten weg.</translation>
    </message>
    <message>
        <source>Each picture is read in a process of its own that is confined so</source>
        <translation>Jedes Bild wird in einem eigenen, so abgeschotteten Prozess gelesen.</translation>
    </message>
    <message>
        <source>Nothing keeps a picture from this user's files: norvex refuses to read any</source>
        <translation>Nichts hält ein Bild von den Dateien dieses Benutzers fern: norvex weigert sich, eines zu lesen.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
</context>
</TS>
