// Every limit that a hostile document, a hostile picture process or a hostile file can run into, in one
// place, each with the attack that it stops. What the caller may choose for a document (time, memory,
// megapixels) is PictureLimits in protocol/worker_protocol.h; what the system enforces is worker/sandbox.cpp.
#pragma once

#include <QtGlobal>

#include <cstddef>

namespace norvex::limits {

// ---- bitmaps and geometry ----

/// A document of some kilobytes that asks for a bitmap of gigabytes (a huge page at a high zoom, a hostile
/// request).
inline constexpr int maximumSide = 65535;
/// Rows so long that their length times their number overflows: five samples of two bytes, and some room.
inline constexpr int maximumRowBytes = maximumSide * 16;
/// A coordinate or a side of the picture in points beyond which geometry is not to be trusted.
inline constexpr double maximumPoints = 1.0e7;
/// Matrices whose products overflow; far beyond every zoom.
inline constexpr double maximumFactor = 1.0e12;
/// Resolutions from which a size in pixels is worked out that overflows.
inline constexpr double maximumDpi = 1.0e5;

// ---- drawing ----

/// Glyphs that show text whose glyphs show text, each level a few bytes: as many levels are shown. At some
/// forty, cairo waits for itself; a glyph that shows itself has no last one.
inline constexpr int maximumGlyphLevels = 16;
/// Each of these levels showing the next one many times: glyphs within glyphs of one drawing, and in
/// PostScript that others will run, of one glyph.
inline constexpr int maximumInnerGlyphs = 100'000;
/// Tiles by the hundred thousand, among whose edges seams are looked for: edges of each sort that are kept
/// (the slanted ones are compared each with each), and corners of paths that are looked at again for each
/// edge.
inline constexpr size_t maximumSeamEdges = 20'000;
inline constexpr size_t maximumSlantedEdges = 512;
inline constexpr size_t maximumSeamLooks = 50'000'000;
/// A huge picture with seams, which is drawn finer than it is shown: pixels of the band that is drawn at a
/// time, an eighth of what a process may have by default, and bands, for each of which the page is walked
/// through.
inline constexpr double maximumFinePixels = 24.0e6;
inline constexpr double maximumFineBands = 16;

// ---- the line to the picture process ----

/// A length before a message that makes the other side wait for, and keep, gigabytes.
inline constexpr quint32 maximumMessageBytes = 4u << 20;
/// The same with bytes that never come: room is made as they arrive.
inline constexpr qsizetype messageGrowth = 64 << 10;
/// Maps within maps within maps, which a parser follows until its stack is gone.
inline constexpr int maximumMessageDepth = 4;
/// A caller that posts without waiting for answers until the memory is full.
inline constexpr size_t maximumWaitingRequests = 16;
// Bounds of a message. The encoders clip texts and lists to these, so that an honest document with a huge
// title is shown with a shorter one; the decoders refuse more: texts and lists that fill the window's memory
// or keep it busy laying them out. Together they stay below maximumMessageBytes.
inline constexpr int maximumTextLength = 16 << 10;     ///< UTF-16 units of a fact
inline constexpr int maximumSentenceLength = 1 << 10;  ///< of a warning or an error message
inline constexpr int maximumWarnings = 200;
inline constexpr int maximumAttributes = 32;
inline constexpr int maximumNames = 100;  ///< of fonts and of colour spaces, in PictureFacts
inline constexpr int maximumNameLength = 256;
inline constexpr int maximumPasswordLength = 1 << 10;
inline constexpr qsizetype maximumLayers = 500;  ///< that can be switched
inline constexpr int maximumTypeLength = 16;     ///< of the word that tells what a message is
/// Counts that overflow when they are worked with, and process numbers that would kill another process.
inline constexpr int maximumToldPages = 10'000'000;
inline constexpr int maximumPageNumber = 1'000'000;  ///< that may be asked for
inline constexpr int maximumRegions = 1'000'000;
inline constexpr qint64 maximumProcessId = 1 << 22;  ///< the system's own upper limit
/// Moments that no calendar holds: the years 0 to 9999, in milliseconds from 1970, and the widest zone.
inline constexpr qint64 firstInstant = -62167219200000;
inline constexpr qint64 lastInstant = 253402300799999;
inline constexpr int maximumZoneSeconds = 14 * 60 * 60;
/// PictureLimits that are none.
inline constexpr int maximumSeconds = 24 * 60 * 60;
inline constexpr int maximumMemoryMiB = 1 << 20;
inline constexpr double maximumMegapixels = 65536;
/// A picture at a tiny scale on endless paper: a print job that fills the disk.
inline constexpr int maximumSheets = 2000;
inline constexpr double maximumFontSize = 1000;  ///< of a sheet's lines, points

// ---- waiting for a picture process, in milliseconds ----

/// A process that hangs: engines that watch the time themselves get this long to say so before they are
/// killed.
inline constexpr qint64 answerGrace = 1000;
/// A process that does not hear a cancel: it is killed. With processFarewell it stays below cancelAnswer.
inline constexpr qint64 cancelGrace = 120;
/// A program that does not end with its line, or does not tell a process's number that is only to be killed.
inline constexpr qint64 programFarewell = 2000;
inline constexpr qint64 processFarewell = 50;
/// A cancel is answered within this, whatever the process does.
inline constexpr qint64 cancelAnswer = 200;
/// Seconds for a preview or the sheets of a job: what takes longer is an attack.
inline constexpr int toolSeconds = 20;

// ---- files ----

/// A file or a pipe without an end: its bytes are held in memory, in both processes.
inline constexpr qint64 maximumDocumentBytes = 512LL << 20;
/// A gzip bomb: some kilobytes of compressed SVG that inflate to gigabytes.
inline constexpr qint64 maximumInflatedBytes = 256LL << 20;
inline constexpr int maximumInflateRatio = 1000;  ///< checked beyond the first MiB
/// A text so long that its converted form is beyond what the converter can count.
inline constexpr qsizetype maximumConvertedLength = 0x7fffffff / 4;
/// Print settings that somebody else has written: a value of megabytes, texts without end.
inline constexpr qsizetype maximumSettingsBytes = 64 << 10;
inline constexpr qsizetype maximumSettingsText = 1000;

// ---- comments and previews of EPS files ----

/// An interchange preview that asks for a bitmap of gigabytes in a line of twenty characters.
inline constexpr qint64 maximumPreviewPixels = 100'000'000;
/// Resource comments by the million, and a trailer that is the whole file.
inline constexpr int maximumResourceNames = 200;
inline constexpr qsizetype maximumTrailerBytes = 64 << 10;
/// Metafiles that make objects, and save states, without end. An index of an object is a word.
inline constexpr size_t maximumMetafileObjects = 65'536;
inline constexpr size_t maximumMetafileStates = 1024;
/// Artwork that calls procedure sets without end, by names without end. Real files name seven.
inline constexpr qsizetype maximumProcedureSets = 64;
inline constexpr qsizetype maximumProcedureSetName = 80;

// ---- SVG ----

/// XML that nests until the parser's or the drawing's stack is gone.
inline constexpr int maximumXmlDepth = 512;
/// References from group to group, each of them allowed, whose drawing together uses up the renderer's stack
/// (some 5 KiB a level of 8 MiB).
inline constexpr int maximumDrawingDepth = 1000;
/// XML with millions of empty elements, each of which costs memory in two trees.
inline constexpr int maximumXmlElements = 1'000'000;
/// Elements with attributes by the hundred thousand: a parser compares each of them with all others. It is
/// what the renderer takes as well.
inline constexpr int maximumXmlAttributes = 65'535;
/// Entities that expand to one another ("a billion laughs"); what Illustrator writes stays far below.
inline constexpr qint64 maximumEntityExpansion = 64LL << 20;
/// Entities of a few bytes that are used millions of times: each use costs the parser far more than its
/// bytes.
inline constexpr int maximumEntityUses = 200'000;
/// A font shorthand made to be matched for ever: a match takes time that grows with the square of its length.
inline constexpr qsizetype maximumFontShorthand = 500;
/// Selectors within selectors (":not(:not(…") that use up the stack of who reads style sheets.
inline constexpr int maximumSelectorDepth = 500;
/// Letters whose outlines and shapes use up the memory; in user units, or in what the number stands before.
inline constexpr double maximumSvgFont = 1.0e6;
/// Numbers of a filter's matrix. Beyond it the renderer gives the matrix up, and itself with it.
inline constexpr double maximumFilterMatrix = 400;
/// Layers as large as the whole picture on the device, at a high zoom: pixels, and pixels a side.
inline constexpr double maximumLayerPixels = 32.0e6;
inline constexpr double maximumLayerSide = 16'000;
/// Filters and masks over a huge picture: pixels of the image that each becomes in a PDF.
inline constexpr double maximumEffectPixels = 16.0e6;

// ---- PDF ----

/// PostScript that fills the disk with files, or with the number of them.
inline constexpr qint64 maximumScratchBytes = 1LL << 30;
inline constexpr int maximumScratchFiles = 1000;
/// A program that opens file after file. The interpreter, fonts and pipes stay far below.
inline constexpr quint64 maximumOpenFiles = 128;
/// The same of a process that hands its results over as descriptors. The kernel lets it send none while the
/// user's processes together have more on their way than this; one that has been taken over can bring them
/// there, and leaves other programs, which usually may open 1024 files, their room.
inline constexpr quint64 maximumOpenFilesOfSender = 512;
/// A program that writes messages without end: the last bytes of them that are kept, and fonts that others
/// stand in for, that are told.
inline constexpr qsizetype maximumProgramMessages = 64 << 10;
inline constexpr qsizetype maximumSubstitutions = 20;
/// A process that has been taken over by its document and would fill the machine with interpreters: more than
/// a run ever works on at once.
inline constexpr size_t maximumInterpreters = 64;
/// The same of one process that asks: it needs one, and another that waits for what comes next. One that has
/// been taken over leaves the rest to the others.
inline constexpr size_t maximumInterpretersOfOneAsker = maximumInterpreters / 16;

/// A page tree made to be walked for ever.
inline constexpr int maximumPages = 100'000;
/// Pages whose boxes are told with the facts; later pages are told when they are asked for.
inline constexpr int maximumPageBoxes = 2'000;
/// Pages that are kept from being shown by the search for their fonts and colour spaces: contents that unpack
/// to gigabytes, resources without end.
inline constexpr qint64 maximumColourScan = 4LL << 20;
inline constexpr int maximumResources = 20'000;
/// Colour spaces within colour spaces and forms within forms, until the stack is gone.
inline constexpr int maximumResourceDepth = 32;
/// Direct objects within direct objects, likewise.
inline constexpr int maximumObjectDepth = 64;
/// A text of the document information, which is a line or two, of megabytes.
inline constexpr int maximumInformationLength = 64 * 1024;
/// An annotation as large as a country: units of the sheet that it is drawn on, what cairo's coordinates
/// hold.
inline constexpr double maximumAnnotationSheet = 1.0e6;
/// Arrays that name layers by the million, most of them again and again.
inline constexpr int maximumLayerEntries = 100'000;

/// Pages that are taken for the notice of an Illustrator file without PDF content: bytes of their contents as
/// they are stored, of which the notice takes about a tenth.
inline constexpr long long maximumNoticeBytes = 16 * 1024;

// ---- EPS output ----

/// Files of so many objects that a walk through them costs more than thinned fonts spare.
inline constexpr int maximumThinnedObjects = 20'000;
/// Transparency in thousands of places: regions that become images, and pixels of those that are drawn
/// together.
inline constexpr qsizetype maximumImageRegions = 100;
inline constexpr double maximumPixelsTogether = 16.0e6;
/// Huge pages, whose search for these regions would take minutes: pixels; they are compared more coarsely.
inline constexpr double maximumComparedPixels = 6.0e6;

// ---- SVG output ----

/// Elements that readers of SVG, ours among them, do not read any more; groups and clips within one another
/// that their stacks do not take.
inline constexpr qsizetype maximumSvgElements = 900'000;
inline constexpr int maximumSvgDepth = 200;
/// Patterns of patterns and glyphs of glyphs, each level a few bytes: elements with every reference followed.
inline constexpr double maximumSvgWeight = 4.0e6;
/// An attribute, a path or an image, that readers of XML refuse: they end at ten million bytes.
inline constexpr qsizetype maximumSvgAttribute = 9'500'000;
/// Fonts and images without end: files and outlines that are kept at a time.
inline constexpr qsizetype maximumSvgGlyphs = 200'000;
inline constexpr qsizetype maximumSvgFonts = 1'000;
/// A pattern of a tiny step on a large page: cells that are placed one by one.
inline constexpr double maximumSvgCells = 400;
/// Gradients that only an image can hold: pixels of each.
inline constexpr double maximumSvgShadingPixels = 4.0e6;
/// An image with a mask that is fine along one axis alone: pixels of both as one image.
inline constexpr double maximumSvgMaskedPixels = 16.0e6;
/// A font whose characters have outlines without end: faces that are made of it, and characters of each.
inline constexpr size_t maximumWebFaces = 8;
inline constexpr size_t maximumWebCharacters = 8000;

// ---- looking at what is in a page ----

/// A page of hundreds of thousands of small images, each with its own place.
inline constexpr int maximumToldImages = 500;
/// Sides of images that overflow when they are multiplied. No image is as large.
inline constexpr int maximumImageSide = 1 << 24;
/// Contents that unpack to gigabytes.
inline constexpr qint64 maximumReadContents = 64LL << 20;
/// Forms that show forms that show forms: operators that are carried out in all.
inline constexpr int maximumOperators = 3'000'000;
/// Operands without an operator.
inline constexpr int maximumOperands = 4096;
/// States saved and never brought back.
inline constexpr int maximumSavedStates = 4096;
/// XMP packets of megabytes.
inline constexpr qint64 maximumXmpBytes = 1LL << 20;
/// Pixels of one bitmap in which the ink's edge is looked for.
inline constexpr double maximumInkPixels = 24.0e6;
/// Pages by the thousand whose contents are looked at one by one: more are no picture.
inline constexpr int maximumExaminedPages = 100;
/// Inks by the hundred, each with a plate as large as the page: what the interpreter separates at most, and
/// pixels of one plate.
inline constexpr int maximumInks = 60;
inline constexpr double maximumPlatePixels = 16.0e6;
/// A document that is all colour spaces, in which those of its inks are looked for: objects, levels of each,
/// and spaces, for each of which a program of the document is run.
inline constexpr int maximumInkObjects = 50'000;
inline constexpr int maximumInkDepth = 8;
inline constexpr int maximumInkSpaces = 2000;
/// A page that says a book: letters of its text that are told, each with its place.
inline constexpr qsizetype maximumLetters = 500'000;
/// A profile of megabytes.
inline constexpr qint64 maximumProfileBytes = 1 << 20;

// ---- printers ----

/// Page numbers of a job's settings that overflow when they are worked with.
inline constexpr int maximumPrintPages = 1'000'000;

/// A print service that does not answer: milliseconds until it is connected, and seconds of each of so many
/// looks while nothing is heard from it.
inline constexpr int printerConnects = 5000;
inline constexpr double printerLookSeconds = 0.25;
inline constexpr int maximumPrinterLooks = 60;
/// Looks that one step takes as a whole: an answer may also come byte by byte, without end and without
/// silence.
inline constexpr int maximumPrinterStepLooks = 240;

}  // namespace norvex::limits
