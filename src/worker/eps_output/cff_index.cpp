#include "worker/eps_output/cff_index.h"

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
  return result;
}

}  // namespace norvex::engine
