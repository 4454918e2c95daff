#include "worker/web_fonts/cff_table.h"

#include "worker/web_fonts/big_endian.h"
#include "worker/web_fonts/type2_outline.h"

namespace norvex::engine {
namespace {

// Operators of dictionaries.
constexpr int kFontBox = 5, kCharset = 15, kCharStrings = 17, kPrivate = 18, kDefaultWidth = 20,
              kNominalWidth = 21, kFontMatrix = 0x0C07;
constexpr int kFirstOwnText = 391;  // the texts before it are known to everybody

QByteArray list(const QList<QByteArray>& items) {
  ByteWriter writer;
  writer.put(2, items.size());
  if (items.isEmpty()) return writer.bytes;
  qint64 offset = 1;
  writer.put(1, 4).put(4, offset);
  for (const QByteArray& item : items) writer.put(4, offset += item.size());
  for (const QByteArray& item : items) writer.put(item);
  return writer.bytes;
}

QByteArray operatorBytes(int code) {
  return code > 0xFF ? QByteArray(1, char(code >> 8)).append(char(code)) : QByteArray(1, char(code));
}

/// Always as long as any other: places are known only when everything has its length.
QByteArray place(qint64 value) {
  return ByteWriter().put(1, 29).put(4, value).bytes;
}

QByteArray shortNumber(int value) {
  QByteArray bytes;
  putType2Number(bytes, value);
  return bytes;
}

/// Half a byte for each character, 0xf at the end.
QByteArray realNumber(double value) {
  const QByteArray text = QByteArray::number(value, 'f', 10);
  QByteArray halves;
  for (const char c : text) halves.append(c == '.' ? char(0xA) : char(c - '0'));
  halves.append(char(0xF));
  if (halves.size() % 2 != 0) halves.append(char(0xF));
  QByteArray bytes(1, char(30));
  for (qsizetype i = 0; i < halves.size(); i += 2) bytes.append(char(halves[i] << 4 | halves[i + 1]));
  return bytes;
}

QByteArray topDictionary(const CffOutlines& outlines, qint64 charset, qint64 programs, qint64 privateSize,
                         qint64 privatePlace) {
  QByteArray dict;
  for (const int side : outlines.box) dict += shortNumber(side);
  dict += operatorBytes(kFontBox);
  if (outlines.unitsPerEm != 1000) {
    const QByteArray unit = realNumber(1.0 / outlines.unitsPerEm), none = shortNumber(0);
    dict += unit + none + none + unit + none + none + operatorBytes(kFontMatrix);
  }
  dict += place(charset) + operatorBytes(kCharset) + place(programs) + operatorBytes(kCharStrings);
  return dict + place(privateSize) + place(privatePlace) + operatorBytes(kPrivate);
}

}  // namespace

QByteArray cffTable(const CffOutlines& outlines) {
  const QByteArray header = ByteWriter().put(1, 1).put(1, 0).put(1, 4).put(1, 4).bytes;
  const QByteArray names = list({"Subset"});
  QList<QByteArray> glyphNames;
  for (qsizetype i = 1; i < outlines.programs.size(); ++i) glyphNames << "g" + QByteArray::number(i);
  const QByteArray texts = list(glyphNames), subroutines = list({});
  // One range: the texts in their order. The first glyph is never named.
  const QByteArray charset =
      glyphNames.isEmpty() ? ByteWriter().put(1, 0).bytes
                           : ByteWriter().put(1, 2).put(2, kFirstOwnText).put(2, glyphNames.size() - 1).bytes;
  const QByteArray programs = list(outlines.programs);
  const QByteArray own =
      shortNumber(0) + operatorBytes(kDefaultWidth) + shortNumber(0) + operatorBytes(kNominalWidth);
  const auto dictionary = [&](qint64 start) {
    const qint64 behindCharset = start + charset.size(), behindPrograms = behindCharset + programs.size();
    return list({topDictionary(outlines, start, behindCharset, own.size(), behindPrograms)});
  };
  const qint64 start =
      header.size() + names.size() + dictionary(0).size() + texts.size() + subroutines.size();
  return header + names + dictionary(start) + texts + subroutines + charset + programs + own;
}

}  // namespace norvex::engine
