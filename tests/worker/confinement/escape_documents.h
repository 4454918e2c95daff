// Documents that try to get out, each in one way. In their text $SECRET is a file of the user's, $HOME the
// folder that holds it, $NEW a file there that does not exist yet, $FIFO one that whoever opens it waits at
// for ever, $SERVER a server of this machine that answers nobody.
#pragma once

#include <QByteArray>
#include <QList>

namespace norvex::kit {

/// What a program calls, and the secret says, when it got out.
inline constexpr char kEscaped[] = "ESCAPED";

struct EscapeDocument {
  const char* name;
  QByteArray text;
  bool stoppedElsewhere = false;  ///< before the confinement is asked
  bool isWide = false;            ///< is given in UTF-16
};

/// A program that calls kEscaped when `attack` was carried out without an error.
inline QByteArray programThat(const QByteArray& attack) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n{ " + attack +
         " } stopped not { ESCAPED } if\nclear 0 0 9 9 rectfill showpage\n%%EOF\n";
}

/// A program whose attack calls kEscaped itself when it was carried out.
inline QByteArray programItself(const QByteArray& attack) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n" + attack + "\nshowpage\n%%EOF\n";
}

inline QList<EscapeDocument> escapePrograms() {
  return {
      {"reads a file", programThat("($SECRET) (r) file closefile")},
      {"writes a file", programThat("($NEW) (w) file dup (x) writestring closefile")},
      {"appends to a file", programThat("($SECRET) (a) file dup (x) writestring closefile")},
      {"removes a file", programThat("($SECRET) deletefile")},
      {"renames a file", programThat("($SECRET) ($NEW) renamefile")},
      {"runs a file", programItself("($SECRET) run")},
      {"lists a folder",
       programThat("false ($HOME/*) { pop pop true } 256 string filenameforall not { stop } if")},
      {"starts a program to read from", programThat("(%pipe%touch $NEW) (r) file closefile")},
      {"starts a program to write to",
       programThat("(%pipe%cat > $NEW) (w) file dup (x) writestring closefile")},
      {"makes a temporary file elsewhere", programThat("($HOME/x) (w) .tempfile closefile pop")},
      {"sends its page to a file",
       programThat("<< /OutputFile ($NEW) >> systemdict /setpagedevice get exec showpage stop")},
      {"sends its page to a program",
       programThat("<< /OutputFile (%pipe%cat > $NEW) >> systemdict /setpagedevice get exec showpage stop")},
      {"puts a file into its device",
       programThat("mark /OutputFile ($NEW) currentdevice putdeviceprops setdevice showpage stop")},
      {"permits itself every file",
       programThat("<< /PermitFileReading [(*)] /PermitFileControl [(*)] >> setuserparams ($SECRET) (r) file "
                   "closefile")},
      {"restores what was before the permissions",
       programThat("save { << /LockFilePermissions false >> setuserparams } stopped pop restore ($SECRET) "
                   "(r) file closefile")},
      {"finds a library file", programThat("($SECRET) findlibfile not { stop } if closefile pop")},
      {"finds a resource",
       programItself("<< /GenericResourceDir ($HOME/) >> setsystemparams /secret /Encoding "
                     "findresource pop")},
      {"climbs out of the resources",
       programThat("(/usr/share/ghostscript/../../..$SECRET) (r) file closefile")},
      {"reads by way of the system's device", programThat("(%os%$SECRET) (r) file closefile")},
      {"makes a folder a disk",
       programThat("(%disk0%) << /Root ($HOME/) >> setdevparams (%disk0%secret.txt) (r) file closefile"),
       true},
      {"climbs out of memory", programThat("(%ram%/../../../..$SECRET) (r) file closefile"), true},
      {"fills memory's files", programThat("(%ram%$NEW) (w) file closefile ($NEW) (r) file closefile"), true},
      {"makes a file its colour profile",
       programThat("<< /OutputICCProfile ($FIFO) >> systemdict /setpagedevice get exec stop"), true},
      {"makes a folder that of the profiles",
       programThat("<< /ICCProfilesDir ($HOME/) >> setuserparams << /DefaultRGBProfile (secret.txt) >> "
                   "setuserparams 1 0 0 setrgbcolor 0 0 1 1 rectfill stop"),
       true},
      {"loads a file as a font", programThat("($FIFO) .loadfontfile"), true},
      {"makes a folder that of the fonts",
       programItself(
           "<< /FontResourceDir ($HOME/Encoding/) >> setsystemparams /secret /Font findresource pop"),
       true},
      {"makes a file a font's own",
       programThat("/F << /FontType 42 /Path ($FIFO) /CIDFontType 2 >> /CIDFont defineresource pop"), true},
      {"looks at the environment", programThat("(NORVEX_TEST_SECRET) getenv not { stop } if pop"), true},
      {"runs a library file", programItself("($SECRET) runlibfile")},
      {"takes the lock off its device",
       programThat("mark /.LockSafetyParams false /OutputFile ($NEW) currentdevice putdeviceprops setdevice "
                   "showpage stop")},
      {"draws on another device",
       programThat("mark /OutputFile ($NEW) /pngmono finddevice putdeviceprops setdevice 0 0 9 9 rectfill "
                   "showpage stop")},
      {"draws on a device of many files",
       programThat("mark /OutputFile ($NEW%d) /tiffsep finddevice putdeviceprops setdevice 0 0 9 9 rectfill "
                   "showpage stop")},
      {"loads a driver into a device",
       programThat("mark /Driver ($FIFO) /OutputFile (/dev/null) /opvp finddevice putdeviceprops setdevice "
                   "0 0 9 9 rectfill showpage stop"),
       true},
      {"makes a program its printer",
       programThat("mark /IjsServer (touch $NEW) /DeviceManufacturer (x) /DeviceModel (y) /OutputFile ($NEW) "
                   "/ijs finddevice putdeviceprops setdevice stop"),
       true},
      {"makes a file the profile of a proof",
       programThat("<< /ProofProfile ($FIFO) >> systemdict /setpagedevice get exec stop"), true},
      {"makes a file the profile of a link",
       programThat("<< /DeviceLinkProfile ($FIFO) >> systemdict /setpagedevice get exec stop"), true},
      {"makes a file the profile of its mixtures",
       programThat("mark /BlendColorProfile ($FIFO) currentdevice putdeviceprops setdevice stop"), true},
      {"makes a file the profile of a colour space",
       programThat("[ /ICCBased << /N 3 /DataSource ($FIFO) (r) file >> ] setcolorspace"), true},
      {"climbs out of the interpreter's own files",
       programThat("(%rom%/../../../..$SECRET) (r) file closefile"), true},
      {"names a resource by a way up",
       programItself("(../../../../../../../..$SECRET) cvn /Encoding findresource pop"), true},
      {"sends its page through a bar",
       programThat("<< /OutputFile (|cat > $NEW) >> systemdict /setpagedevice get exec showpage stop")},
      {"goes through the root of its process", programThat("(/proc/self/root$SECRET) (r) file closefile")},
      {"reads the memory of its process", programThat("(/proc/self/mem) (r) file closefile")},
      {"leaves a message in shared memory",
       programThat("(/dev/shm/norvex-escape) dup (w) file closefile deletefile")},
      {"adds a file to its document",
       programThat("[ /_objdef {f} /type /stream /OBJ pdfmark [ {f} ($SECRET) (r) file /PUT pdfmark")},
  };
}

/// A drawing that shows red where what it refers to was read.
inline QByteArray drawing(const QByteArray& prolog, const QByteArray& body) {
  return prolog +
         "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
         "xmlns:xi='http://www.w3.org/2001/XInclude' width='9' height='9' viewBox='0 0 9 9'>" +
         body + "</svg>";
}

inline QList<EscapeDocument> escapeDrawings() {
  return {
      {"an entity from a file", drawing("<!DOCTYPE svg [<!ENTITY x SYSTEM 'file://$HOME/red.xml'>]>", "&x;")},
      {"a parameter entity from a file",
       drawing("<!DOCTYPE svg [<!ENTITY % x SYSTEM 'file://$HOME/red.dtd'> %x;]>", "&red;")},
      {"a document type from a file", drawing("<!DOCTYPE svg SYSTEM 'file://$HOME/red.dtd'>", "&red;")},
      {"an inclusion", drawing({}, "<xi:include href='file://$HOME/red.svg'/>")},
      {"an inclusion as text",
       drawing({},
               "<style><xi:include parse='text' href='file://$HOME/red.css'/></style><rect class='r' "
               "fill='none' width='9' height='9'/>")},
      {"an image from a file",
       drawing({}, "<image width='9' height='9' xlink:href='file://$HOME/red.svg'/>")},
      {"an image by its path", drawing({}, "<image width='9' height='9' href='$HOME/red.svg'/>")},
      {"an image by a way up",
       drawing({}, "<image width='9' height='9' href='../../../../../..$HOME/red.svg'/>")},
      {"a use of a file", drawing({}, "<use xlink:href='file://$HOME/red.svg#r'/>")},
      {"a filter's image", drawing({},
                                   "<filter id='f'><feImage href='file://$HOME/red.svg'/></filter><rect "
                                   "width='9' height='9' filter='url(#f)'/>")},
      {"an imported style sheet",
       drawing({},
               "<style>@import url('file://$HOME/red.css');</style><rect class='r' fill='none' width='9' "
               "height='9'/>")},
      {"a style sheet by instruction",
       drawing("<?xml-stylesheet type='text/css' href='file://$HOME/red.css'?>",
               "<rect class='r' fill='none' width='9' height='9'/>")},
      {"a font from a file",
       drawing({},
               "<style>@font-face { font-family: x; src: url('file://$FIFO') }</style><text y='9' "
               "font-family='x'>a</text>")},
      {"a font by its place in a pattern", drawing({}, "<text y='9' font-family='x:file=$FIFO'>a</text>")},
      {"an image beside another base",
       drawing({}, "<g xml:base='file://$HOME/'><image width='9' height='9' href='red.svg'/></g>")},
      {"an image within an image",
       drawing({},
               "<image width='9' height='9' href=\"data:image/svg+xml,%3Csvg "
               "xmlns='http://www.w3.org/2000/svg' width='9' height='9'%3E%3Cimage width='9' height='9' "
               "href='file://$HOME/red.svg'/%3E%3C/svg%3E\"/>")},
      {"an entity within an image",
       drawing({},
               "<image width='9' height='9' href=\"data:image/svg+xml,%3C!DOCTYPE svg [%3C!ENTITY x SYSTEM "
               "'file://$HOME/red.xml'%3E]%3E%3Csvg xmlns='http://www.w3.org/2000/svg' width='9' "
               "height='9'%3E%26x;%3C/svg%3E\"/>")},
      {"a style sheet within a style sheet",
       drawing({},
               "<style>@import url(\"data:text/css,@import url('file://$HOME/red.css');\");</style><rect "
               "class='r' fill='none' width='9' height='9'/>")},
      {"a catalogue of entities",
       drawing("<?oasis-xml-catalog catalog='file://$FIFO'?><!DOCTYPE svg PUBLIC '-//X//Y' 'y.dtd'>", {})},
      {"a schema", drawing({},
                           "<g xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                           "xsi:schemaLocation='x file://$FIFO'/>")},
      {"an image from a server", drawing({}, "<image width='9' height='9' href='http://$SERVER/red.svg'/>")},
      {"a document type from a server", drawing("<!DOCTYPE svg SYSTEM 'http://$SERVER/red.dtd'>", "&red;")},
      {"a parameter entity from a server",
       drawing("<!DOCTYPE svg [<!ENTITY % x SYSTEM 'http://$SERVER/red.dtd'> %x;]>", "&red;")},
      {"an inclusion from a server", drawing({}, "<xi:include href='http://$SERVER/red.svg'/>")},
      {"a style sheet from a server",
       drawing({},
               "<style>@import url('http://$SERVER/red.css');</style><rect class='r' fill='none' "
               "width='9' height='9'/>")},
      {"a marker from a file",
       drawing({},
               "<path d='M0 4.5h4.5h4.5' style='marker-mid: url(file://$HOME/red.svg#m)' stroke='none'/>")},
      {"a paint server from a file",
       drawing({}, "<rect width='9' height='9' fill=\"url('file://$HOME/red.svg#p')\"/>")},
      {"text by reference",
       drawing({}, "<text y='9' fill='red' font-size='20'><tref href='file://$SECRET'/></text>")},
      {"a transformation by instruction",
       drawing("<?xml-stylesheet type='text/xsl' href='file://$FIFO'?>", {})},
      {"a model by instruction", drawing("<?xml-model href='file://$FIFO'?>", {})},
      {"an image that never ends", drawing({}, "<image width='9' height='9' href='file://$FIFO'/>")},
      {"an image from a server of files",
       drawing({}, "<image width='9' height='9' href='ftp://$SERVER/red.svg'/>")},
      {"an image from a server of folders",
       drawing({}, "<image width='9' height='9' href='smb://$SERVER/red.svg'/>")},
      {"an entity in characters of two bytes",
       drawing("<!DOCTYPE svg [<!ENTITY x SYSTEM 'file://$HOME/red.xml'>]>", "&x;"), false, true},
      {"a font from a server",
       drawing({},
               "<style>@font-face { font-family: x; src: url('http://$SERVER/x.ttf') }</style><text y='9' "
               "font-family='x'>a</text>")},
      {"a parameter entity of another one",
       drawing("<!DOCTYPE svg [<!ENTITY % x 'file://$HOME/red.dtd'><!ENTITY % y '<!ENTITY &#37; z SYSTEM "
               "\"file://$HOME/red.dtd\">'> %y; %z;]>",
               "&red;")},
  };
}

/// A PDF of one page with this resource dictionary and content.
inline QByteArray pageWith(const QByteArray& resources, const QByteArray& content,
                           const QByteArray& others = {}, const QByteArray& catalogue = {}) {
  return "%PDF-1.7\n1 0 obj<</Type/Catalog/Pages 2 0 R" + catalogue +
         ">>endobj\n2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
         "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]/Contents 4 0 R/Resources<<" +
         resources + ">>>>endobj\n4 0 obj<</Length " + QByteArray::number(content.size()) + ">>stream\n" +
         content + "\nendstream endobj\n" + others + "trailer<</Root 1 0 R>>\n%%EOF\n";
}

/// In a name a slash is written #2F. The first path is that of a CMap beside Poppler's own.
inline QList<EscapeDocument> escapePages() {
  const QByteArray text = "BT /F 9 Tf <0001> Tj ET";
  const auto font = [](const QByteArray& encoding, const QByteArray& descendant) {
    return "5 0 obj<</Type/Font/Subtype/Type0/BaseFont/X/Encoding" + encoding +
           "/DescendantFonts[6 0 R]>>endobj\n6 0 "
           "obj<</Type/Font/Subtype/CIDFontType2/BaseFont/X/CIDSystemInfo"
           "<</Registry(Adobe)/Ordering(Japan1)/Supplement 1>>/FontDescriptor 7 0 R>>endobj\n"
           "7 0 obj<</Type/FontDescriptor/FontName/X/Flags 4" +
           descendant + ">>endobj\n";
  };
  return {
      {"a character map by a way up",
       pageWith("/Font<</F 5 0 R>>", text, font("/..#2F..#2F..#2F..#2F..#2F..#2F..#2F..$FIFO_AS_NAME", {}))},
      {"a character map by its path", pageWith("/Font<</F 5 0 R>>", text, font("/$FIFO_AS_NAME", {}))},
      {"a font in another file", pageWith("/Font<</F 5 0 R>>", text,
                                          font("/Identity-H", "/FontFile2 8 0 R") +
                                              "8 0 obj<</Length 0/F($FIFO)>>stream\n\nendstream endobj\n")},
      {"a picture in another file",
       pageWith(
           "/XObject<</I 5 0 R>>", "9 0 0 9 0 0 cm /I Do",
           "5 0 obj<</Type/XObject/Subtype/Image/Width 1/Height 1/BitsPerComponent 8/ColorSpace/DeviceGray"
           "/Length 0/F<</Type/Filespec/F($FIFO)>>>>stream\n\nendstream endobj\n")},
      {"a page in another file",
       pageWith(
           "/XObject<</X 5 0 R>>", "/X Do",
           "5 0 obj<</Type/XObject/Subtype/Form/BBox[0 0 9 9]/Ref<</F($FIFO)/Page 0>>/Length 0>>stream\n\n"
           "endstream endobj\n")},
      {"contents in another file",
       "%PDF-1.7\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages/Kids[3 0 R]/Count "
       "1>>endobj\n"
       "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]/Contents 4 0 R>>endobj\n"
       "4 0 obj<</Length 0/F($FIFO)>>stream\n\nendstream endobj\ntrailer<</Root 1 0 R>>\n%%EOF\n"},
      {"a profile in another file",
       pageWith("/ColorSpace<</C[/ICCBased 5 0 R]>>", "/C cs 1 0 0 sc 0 0 9 9 re f",
                "5 0 obj<</N 3/Alternate/DeviceGray/Length 0/F<</Type/Filespec/F($FIFO)>>>>stream\n\n"
                "endstream endobj\n")},
      {"segments of a picture in another file",
       pageWith(
           "/XObject<</I 5 0 R>>", "9 0 0 9 0 0 cm /I Do",
           "5 0 obj<</Type/XObject/Subtype/Image/Width 1/Height 1/BitsPerComponent 1/ColorSpace/DeviceGray"
           "/Filter/JBIG2Decode/DecodeParms<</JBIG2Globals 6 0 R>>/Length 0>>stream\n\nendstream endobj\n"
           "6 0 obj<</Length 0/F($FIFO)>>stream\n\nendstream endobj\n")},
      {"a picture at a server",
       pageWith(
           "/XObject<</I 5 0 R>>", "9 0 0 9 0 0 cm /I Do",
           "5 0 obj<</Type/XObject/Subtype/Image/Width 1/Height 1/BitsPerComponent 8/ColorSpace/DeviceGray"
           "/Length 0/F<</FS/URL/F(http://$SERVER/red)>>>>stream\n\nendstream endobj\n")},
      {"a character map in a character map",
       pageWith("/Font<</F 5 0 R>>", text,
                font("8 0 R", {}) + "8 0 obj<</Type/CMap/CMapName/X/UseCMap/$FIFO_AS_NAME/Length 54>>stream\n"
                                    "/..#2F..#2F..#2F..#2F..#2F..#2F..#2F..$FIFO_AS_NAME usecmap\n"
                                    "endstream endobj\n")},
      {"a program to be launched",
       pageWith({}, "0 0 9 9 re f", {}, "/OpenAction<</S/Launch/F(touch)/Unix<</F(touch $NEW)>>>>")},
      {"a program in the page",
       pageWith("/XObject<</X 5 0 R>>", "/X Do 0 0 9 9 re f",
                "5 0 obj<</Type/XObject/Subtype/PS/Length 39>>stream\n($NEW) (w) file closefile "
                "($SECRET) run\nendstream endobj\n")},
      {"a program in a form",
       pageWith(
           "/XObject<</X 5 0 R>>", "/X Do 0 0 9 9 re f",
           "5 0 obj<</Type/XObject/Subtype/Form/Subtype2/PS/BBox[0 0 9 9]/PS 6 0 R/Length 0>>stream\n\n"
           "endstream endobj\n6 0 obj<</Length 24>>stream\n($NEW) (w) file closefile\nendstream endobj\n")},
      {"a program in a font",
       pageWith(
           "/Font<</F 5 0 R>>", "BT /F 9 Tf (A) Tj ET",
           "5 0 obj<</Type/Font/Subtype/Type1/BaseFont/X/FirstChar 65/LastChar 65/Widths[900]/FontDescriptor "
           "6 0 R>>endobj\n6 0 obj<</Type/FontDescriptor/FontName/X/Flags 4/FontFile 7 0 R>>endobj\n"
           "7 0 obj<</Length 90/Length1 90/Length2 0/Length3 0>>stream\n%!PS-AdobeFont-1.0: X\n"
           "($NEW) (w) file closefile\n($SECRET) run\nendstream endobj\n")},
      {"a program in a character map",
       pageWith("/Font<</F 5 0 R>>", text,
                font("8 0 R", {}) + "8 0 obj<</Type/CMap/CMapName/X/Length 60>>stream\n"
                                    "($NEW) (w) file closefile ($FIFO) (r) file closefile\n"
                                    "endstream endobj\n")},
      {"a collection of characters by a way up",
       pageWith(
           "/Font<</F 5 0 R>>", text,
           "5 0 obj<</Type/Font/Subtype/Type0/BaseFont/X/Encoding/X/DescendantFonts[6 0 R]>>endobj\n6 0 "
           "obj<</Type/Font/Subtype/CIDFontType0/BaseFont/X/CIDSystemInfo<</Registry(..)/Ordering(/../../"
           "../../../../..$FIFO)/Supplement 1>>/FontDescriptor 7 0 R>>endobj\n"
           "7 0 obj<</Type/FontDescriptor/FontName/X/Flags 4>>endobj\n")},
      {"a film in another file",
       pageWith({}, "0 0 9 9 re f", {},
                "/Names<</Renditions<</Names[(x)<</Type/Rendition/S/MR/C<</S/MCD/D($FIFO)>>>>]>>>>")},
      {"a script",
       pageWith(
           {}, "0 0 9 9 re f", {},
           "/OpenAction<</S/JavaScript/JS(app.launchURL\\('http://$SERVER/'\\);this.saveAs\\('$NEW'\\))>>")},
      {"a form that is sent at once",
       pageWith(
           {}, "0 0 9 9 re f", {},
           "/OpenAction<</S/SubmitForm/F<</FS/URL/F(http://$SERVER/)>>/Flags 4>>/AcroForm<</Fields[]>>")},
      {"a form of another kind",
       pageWith(
           {}, "0 0 9 9 re f",
           "5 0 obj<</Length 66>>stream\n<xdp xmlns='http://ns.adobe.com/xdp/'><x href='http://$SERVER/'/>"
           "</xdp>\nendstream endobj\n",
           "/AcroForm<</XFA 5 0 R/Fields[]>>")},
      {"metadata in another file",
       pageWith({}, "0 0 9 9 re f",
                "5 0 obj<</Type/Metadata/Subtype/XML/Length 0/F($FIFO)>>stream\n\nendstream endobj\n",
                "/Metadata 5 0 R")},
      {"an annotation whose appearance is in another file",
       "%PDF-1.7\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages/Kids[3 0 R]/Count "
       "1>>endobj\n"
       "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]/Annots[<</Type/Annot/Subtype/Stamp/Rect[0 0 9 "
       "9]/AP<</N 4 0 R>>>><</Type/Annot/Subtype/Movie/Rect[0 0 9 9]/Movie<</F($FIFO)/Poster 4 "
       "0 R>>>><</Type/Annot/Subtype/FileAttachment/Rect[0 0 9 9]/FS<</Type/Filespec/F($FIFO)>>>>]>>endobj\n"
       "4 0 obj<</Type/XObject/Subtype/Form/BBox[0 0 9 9]/Length 0/F($FIFO)>>stream\n\nendstream "
       "endobj\ntrailer<</Root 1 0 R>>\n%%EOF\n"},
      {"a file to be gone to", pageWith({}, "0 0 9 9 re f", {}, "/OpenAction<</S/GoToR/F($FIFO)/D[0/Fit]>>")},
  };
}

}  // namespace norvex::kit
