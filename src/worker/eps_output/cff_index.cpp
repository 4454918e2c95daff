#include "worker/eps_output/cff_index.h"

#include "worker/eps_output/cff_texts.h"
#include "worker/eps_output/postscript_tokens.h"

namespace norvex::engine {

quint32 ByteReader::number(qsizetype at, int size) {
  if (at < 0 || at > bytes_.size() - size) return valid_ = false, 0;
  quint32 value = 0;
  for (int i = 0; i < size; ++i) value = (value << 8) | quint8(bytes_[at + i]);
  return value;
}

void putNumber(QByteArray& bytes, qsizetype at, int size, quint32 value) {
  for (int i = size - 1; i >= 0; --i, value >>= 8) bytes[at + i] = char(value);
}

qsizetype CffIndex::offset(ByteReader& read, int item) const {
  const qsizetype base =
      start + 2 + qsizetype(count + 1) * offsetSize;  // offsets count from the byte before the data
  return base + qsizetype(read.number(start + 3 + qsizetype(item) * offsetSize, offsetSize));
}

std::optional<CffIndex> cffIndexAt(ByteReader& read, qsizetype start) {
  CffIndex index{start, int(read.number(start, 2)), 0, start + 2};
  if (!read.valid()) return {};
  if (index.count == 0) return index;
  index.offsetSize = int(read.number(start + 2, 1));
  if (index.offsetSize < 1 || index.offsetSize > 4) return {};
  qsizetype before = start + 3 + qsizetype(index.count + 1) * index.offsetSize;
  for (int i = 0; i <= index.count; ++i) {
    const qsizetype at = index.offset(read, i);
    if (!read.valid() || at < before) return {};
    before = at;
  }
  index.end = before;
  return index;
}

std::map<int, qint64> cffOperands(QByteArrayView dict) {
  std::map<int, qint64> found;
  qint64 last = 0;
  const auto byte = [&](qsizetype at) { return at < dict.size() ? int(quint8(dict[at])) : 0; };
  for (qsizetype i = 0; i < dict.size(); ++i) {
    const int b = byte(i);
    if (b <= 21) {
      found[b == 12 ? cffEscape | byte(++i) : b] = last;
      last = 0;
    } else if (b == 28) {
      last = qint16(byte(i + 1) << 8 | byte(i + 2));
      i += 2;
    } else if (b == 29) {
      last = qint32(quint32(byte(i + 1)) << 24 | quint32(byte(i + 2)) << 16 | quint32(byte(i + 3)) << 8 |
                    quint32(byte(i + 4)));
      i += 4;
    } else if (b == 30) {
      for (++i; i < dict.size() && (byte(i) & 0xF) != 0xF && (byte(i) >> 4) != 0xF;) ++i;
      last = 0;
    } else if (b <= 246) {
      last = b - 139;
    } else {
      const int second = byte(++i);
      last = b <= 250 ? (b - 247) * 256 + second + 108 : -(b - 251) * 256 - second - 108;
    }
  }
  return found;
}

namespace {

/// In texts that are read by people, as strings between parentheses, a blank does no harm.
void keepBlanks(const QByteArray& cff, ByteReader& read, const CffIndex& fonts, const CffIndex& texts,
                QByteArray& plain) {
  if (fonts.count != 1 || fonts.end > cff.size()) return;
  const qsizetype dict = fonts.offset(read, 0);
  for (const int text : textsForReading(cff, QByteArrayView(cff).sliced(dict, fonts.end - dict), texts.count))
    for (qsizetype i = texts.offset(read, text); i < texts.offset(read, text + 1); ++i)
      if (cff[i] == ' ') plain[i] = ' ';
}

}  // namespace

std::optional<QByteArray> withPlainTexts(const QByteArray& cff) {
  ByteReader read(cff);
  const auto names = cffIndexAt(read, qsizetype(read.number(2, 1)));
  const auto fonts = names ? cffIndexAt(read, names->end) : std::nullopt;
  const auto texts = fonts ? cffIndexAt(read, fonts->end) : std::nullopt;
  if (!texts || texts->end > cff.size()) return {};
  QByteArray result = cff;
  for (const CffIndex& list : {*names, *texts}) {
    if (list.count == 0) continue;
    const qsizetype from = list.offset(read, 0);
    result.replace(from, list.end - from, plainName(cff.mid(from, list.end - from)));
  }
  keepBlanks(cff, read, *fonts, *texts, result);
  return result;
}

}  // namespace norvex::engine
