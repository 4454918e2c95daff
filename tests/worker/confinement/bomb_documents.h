// Documents of some kilobytes that ask for gigabytes or for an eternity, one for each way of packing and each
// place of a size.
#pragma once

#include <QByteArray>
#include <QList>

#include <climits>

#include "escape_documents.h"

namespace norvex::kit {

/// Big-endian.
inline QByteArray bytesOf(quint32 number, int count = 4) {
  QByteArray bytes;
  for (int shift = 8 * (count - 1); shift >= 0; shift -= 8) bytes.append(char(number >> shift));
  return bytes;
}

constexpr qsizetype kUnpacked = 24 << 20;

inline QByteArray deflated(const QByteArray& bytes) {
  return qCompress(bytes, 9).sliced(4);
}

/// The zlib stream without its own head and sum, in gzip's; whoever gets as far as gzip's sum finds it wrong.
inline QByteArray gzipped(const QByteArray& bytes) {
  const QByteArray stream = deflated(bytes);
  return QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\3", 10) + stream.sliced(2, stream.size() - 6) + bytesOf(0) +
         bytesOf(0);
}

/// LZW: each code stands for one byte more than the one before, until the table is full.
inline QByteArray lzwOfBlanks(int tables) {
  QByteArray packed;
  quint32 held = 0;
  int bits = 0;
  const auto put = [&](quint32 code, int width) {
    held = held << width | code;
    for (bits += width; bits >= 8; bits -= 8) packed.append(char(held >> (bits - 8)));
  };
  for (int table = 0; table < tables; ++table) {
    put(256, table == 0 ? 9 : 12);
    put(' ', 9);
    for (quint32 next = 258; next < 4090; ++next)
      put(next, next < 511 - 1 ? 9 : next < 1023 - 1 ? 10 : next < 2047 - 1 ? 11 : 12);
  }
  put(257, 12);
  put(0, 8);
  return packed;
}

inline QByteArray pageOfContents(const QByteArray& filter, const QByteArray& packed) {
  return "%PDF-1.7\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
         "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
         "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]/Contents 4 0 R/Resources<<>>>>endobj\n4 0 "
         "obj<</Filter" +
         filter + "/Length " + QByteArray::number(packed.size()) + ">>stream\n" + packed +
         "\nendstream endobj\ntrailer<</Root 1 0 R>>\n%%EOF\n";
}

inline QByteArray pageOfImage(const QByteArray& entries, const QByteArray& packed,
                              const QByteArray& space = "/DeviceGray", const QByteArray& others = {}) {
  return pageWith("/XObject<</I 5 0 R>>", "9 0 0 9 0 0 cm /I Do",
                  "5 0 obj<</Type/XObject/Subtype/Image/BitsPerComponent 8/ColorSpace" + space + entries +
                      "/Length " + QByteArray::number(packed.size()) + ">>stream\n" + packed +
                      "\nendstream endobj\n" + others);
}

inline QList<EscapeDocument> bombPages() {
  const QByteArray blanks(kUnpacked, ' ');
  const QByteArray lines = QByteArray("0 0 m 9 9 l ").repeated(kUnpacked / 12);
  const QByteArray large = "/Width 30000/Height 30000";
  const QByteArray jbig2 = bytesOf(0) + QByteArray("\x30\0\1", 3) + bytesOf(19) + bytesOf(INT_MAX) +
                           bytesOf(INT_MAX) + bytesOf(0) + bytesOf(0) + QByteArray(3, '\0');
  const QByteArray jpx = QByteArray("\xff\x4f\xff\x51\0\x29\0\0", 8) + bytesOf(INT_MAX) + bytesOf(INT_MAX) +
                         bytesOf(0) + bytesOf(0) + bytesOf(INT_MAX) + bytesOf(INT_MAX) + bytesOf(0) +
                         bytesOf(0) + QByteArray("\0\1\7\1\1", 5);
  const QByteArray jpeg("\xff\xd8\xff\xc0\0\x11\x08\xff\xff\xff\xff\3\1\x11\0\2\x11\0\3\x11\0\xff\xda", 23);
  const QByteArray profile = "6 0 obj<</N 3/Length 128>>stream\n" + bytesOf(INT_MAX) +
                             QByteArray(124, '\xff') + "\nendstream endobj\n";
  return {
      {"Flate", pageOfContents("/FlateDecode", deflated(lines))},
      {"Flate in Flate", pageOfContents("[/FlateDecode/FlateDecode]", deflated(deflated(blanks)))},
      {"LZW", pageOfContents("/LZWDecode", lzwOfBlanks(8))},
      {"run lengths", pageOfContents("[/FlateDecode/RunLengthDecode]",
                                     deflated(QByteArray("\x81 ").repeated(kUnpacked / 128)))},
      {"a Flate image", pageOfImage(large + "/Filter[/FlateDecode/FlateDecode]", deflated(deflated(blanks)))},
      {"an image without bytes", pageOfImage("/Width 2147483647/Height 2147483647", {})},
      {"a JBIG2 image", pageOfImage(large + "/Filter/JBIG2Decode", jbig2)},
      {"a JPX image", pageOfImage(large + "/Filter/JPXDecode", jpx)},
      {"a DCT image", pageOfImage("/Width 65535/Height 65535/Filter/DCTDecode", jpeg, "/DeviceRGB")},
      {"a CCITT image", pageOfImage("/Width 100000000/Height 100000000/Filter/CCITTFaxDecode/DecodeParms<</K "
                                    "-1/Columns 100000000/Rows 100000000>>",
                                    QByteArray(99, '\x80'))},
      {"a profile", pageOfImage("/Width 9/Height 9", QByteArray(243, '\1'), "[/ICCBased 6 0 R]", profile)},
      {"a pattern of a million cells",
       pageWith("/Pattern<</P 5 0 R>>", "/Pattern cs /P scn 0 0 9 9 re f",
                "5 0 obj<</PatternType 1/PaintType 1/TilingType 1/BBox[0 0 9 9]/XStep 0.00001/YStep 0.00001"
                "/Resources<<>>/Length 10>>stream\n0 0 9 9 re\nendstream endobj\n")},
      {"forms within each other",
       pageWith("/XObject<</X 5 0 R>>", "/X Do",
                "5 0 obj<</Type/XObject/Subtype/Form/BBox[0 0 9 9]/Resources<</XObject<</X 5 0 R>>>>/Length "
                "11>>stream\n/X Do /X Do\nendstream endobj\n")},
      {"a mask that masks itself",
       pageWith(
           "/ExtGState<</G<</SMask<</S/Luminosity/G 5 0 R>>>>>>", "/G gs 0 0 9 9 re f",
           "5 0 obj<</Type/XObject/Subtype/Form/BBox[0 0 9 9]/Group<</S/Transparency>>/Resources<</ExtGState"
           "<</G<</SMask<</S/Luminosity/G 5 0 R>>>>>>>>/Length 37>>stream\n/G gs 0 0 9 9 re f /G gs 0 0 9 9 "
           "re f\nendstream endobj\n")},
      {"a table of two thousand million objects",
       "%PDF-1.5\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages/Kids[3 0 R]/Count "
       "1>>endobj\n3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]>>endobj\nxref\n0 "
       "2000000000\n0000000000 "
       "65535 f \ntrailer<</Root 1 0 R/Size 2000000000/Prev 151/XRefStm 151>>\nstartxref\n151\n%%EOF\n"},
  };
}

/// Programs that never end, and make something all the time.
inline QList<EscapeDocument> bombPrograms() {
  return {
      {"pages", programItself("{ 0 0 9 9 rectfill showpage } loop")},
      {"lines", programItself("{ 0 0 moveto rand 9 mod rand 9 mod lineto stroke } loop")},
      {"messages", programItself("/s 60000 string def { s print flush } loop")},
      {"clips", programItself("{ 0 0 9 9 rectclip gsave } loop")},
  };
}

inline QList<EscapeDocument> bombDrawings() {
  const QByteArray groups = QByteArray("<g>").repeated(100'000);
  QByteArray masks;
  for (int i = 0; i < 40; ++i) {
    const QByteArray next = QByteArray::number(i + 1);
    const QByteArray twice = "<g mask='url(#m" + next + ")'><rect width='9' height='9' fill='#fff'/></g>";
    masks += "<mask id='m" + QByteArray::number(i) + "' width='1' height='1'>" + twice + twice + "</mask>";
  }
  return {
      {"a packed drawing", gzipped(drawing({}, QByteArray(kUnpacked, ' ')))},
      {"groups within each other", drawing({}, groups)},
      {"a huge filter", drawing({},
                                "<filter id='f' width='1e6' height='1e6'><feTurbulence numOctaves='99999'/>"
                                "</filter><rect width='9' height='9' filter='url(#f)'/>")},
      {"an image in the drawing",
       drawing({}, "<image width='9' height='9' href='data:image/png;base64," +
                       (QByteArray("\x89PNG\r\n\x1a\n") + bytesOf(13) + "IHDR" + bytesOf(INT_MAX) +
                        bytesOf(INT_MAX) + QByteArray("\x08\6\0\0\0", 5) + bytesOf(0))
                           .toBase64() +
                       "'/>")},
      {"masks that double", drawing({}, masks + "<rect width='9' height='9' mask='url(#m0)'/>")},
      {"a line of letters each moved", drawing({}, "<text dx='" + QByteArray("1 ").repeated(50'000) + "'>" +
                                                       QByteArray(200'000, 'a') + "</text>")},
  };
}

/// A TIFF of one directory with these fields, big-endian; each is tag, type, count, value.
inline QByteArray tiffOf(const QList<QList<quint32>>& fields, quint32 next = 0) {
  QByteArray tiff = QByteArray("MM\0\x2a", 4) + bytesOf(8) + bytesOf(quint32(fields.size()), 2);
  for (const QList<quint32>& field : fields) {
    tiff += bytesOf(field[0], 2) + bytesOf(field[1], 2) + bytesOf(field[2]);
    tiff += field[1] == 3 && field[2] == 1 ? bytesOf(field[3], 2) + bytesOf(0, 2) : bytesOf(field[3]);
  }
  return tiff + bytesOf(next);
}

inline QList<EscapeDocument> bombPreviews() {
  const auto image = [](quint32 wide, quint32 high, quint32 compression, quint32 offset, quint32 length,
                        quint32 strips = 1, quint32 next = 0) {
    return tiffOf({{256, 4, 1, wide},
                   {257, 4, 1, high},
                   {258, 3, 1, 8},
                   {259, 3, 1, compression},
                   {262, 3, 1, 1},
                   {273, 4, strips, offset},
                   {277, 3, 1, 1},
                   {278, 4, 1, high},
                   {279, 4, strips, length}},
                  next) +
           QByteArray(64, '\x81');
  };
  return {
      {"an offset beyond the end", image(9, 9, 1, 0x7fffffff, 81)},
      {"an offset that wraps around", image(9, 9, 1, 0xffffffff, 0xffffffff)},
      {"the directory as its pixels", image(9, 9, 1, 0, 81)},
      {"a directory that follows itself", image(9, 9, 1, 8, 81, 1, 8)},
      {"strips without end", image(9, 9, 1, 8, 81, 0xffffffff)},
      {"a picture without bytes", image(0x7fffffff, 0x7fffffff, 1, 8, 81)},
      {"PackBits", image(60000, 60000, 32773, 122, 64)},
      {"LZW", image(60000, 60000, 5, 122, 64)},
      {"Deflate", image(60000, 60000, 8, 122, 64)},
      {"a fax", image(60000, 60000, 4, 122, 64)},
      {"a JPEG", image(60000, 60000, 7, 122, 64)},
      {"a directory without end", QByteArray("MM\0\x2a\0\0\0\x8\xff\xff", 10) + QByteArray(64, '\1')},
      {"a first directory beyond the end", QByteArray("MM\0\x2a\xff\xff\xff\xf0", 8)},
  };
}

}  // namespace norvex::kit
