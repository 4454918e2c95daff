#include "worker/eps_output/font_thinning.h"

#include <QHash>

#include <algorithm>
#include <vector>

#include "worker/eps_output/cff_index.h"

namespace norvex::engine {
namespace {

constexpr char kEndOfCharstring = 14;  // an outline without anything

struct Table {
  qsizetype entry = 0;  ///< where the directory tells of it
  qsizetype offset = 0;
  qsizetype length = 0;
};

std::optional<QHash<QByteArray, Table>> tablesOf(const QByteArray& font) {
  ByteReader read(font);
  QHash<QByteArray, Table> tables;
  const auto count = int(read.number(4, 2));
  for (int i = 0; i < count && read.valid(); ++i) {
    Table table{12 + 16 * i, qsizetype(read.number(20 + 16 * i, 4)), qsizetype(read.number(24 + 16 * i, 4))};
    if (table.offset > font.size() || table.length > font.size() - table.offset) return {};
    tables.insert(font.mid(table.entry, 4), table);
  }
  if (!read.valid()) return {};
  return tables;
}

// Outlines of TrueType, which may be composed of others.
class Outlines {
 public:
  Outlines(const QByteArray& font, const QHash<QByteArray, Table>& tables)
      : font_(font),
        read_(font),
        glyf_(tables.value("glyf")),
        loca_(tables.value("loca")),
        maxp_(tables.value("maxp")),
        hhea_(tables.value("hhea")),
        hmtx_(tables.value("hmtx")) {
    const Table head = tables.value("head");
    if (glyf_.length == 0 || head.length < 52 || maxp_.length < 6) return;
    places_ = read_.number(head.offset + 50, 2) == 0 ? 2 : 4;
    count_ = int(read_.number(maxp_.offset + 4, 2));
    if (loca_.length < qsizetype(count_ + 1) * places_) count_ = 0;
  }

  [[nodiscard]] std::optional<QByteArray> with(const std::set<int>& glyphs) {
    if (count_ == 0) return {};
    std::vector<bool> kept(size_t(count_), false);
    std::vector<int> open(glyphs.begin(), glyphs.end());
    open.push_back(0);
    qsizetype needed = 0;  // outlines that lie over each other would add up to gigabytes
    while (!open.empty()) {
      const int glyph = open.back();
      open.pop_back();
      if (glyph < 0 || glyph >= count_ || kept[size_t(glyph)]) continue;
      kept[size_t(glyph)] = true;
      needed += end(glyph) - begin(glyph);
      if (needed >= glyf_.length) return {};
      addParts(glyph, open);
    }
    // Glyphs behind the last one that is left are as if they had never been.
    const int left = int(kept.rend() - std::find(kept.rbegin(), kept.rend(), true));
    QByteArray outlines;
    QByteArray places((left + 1) * places_, '\0');
    for (int glyph = 0; glyph <= left; ++glyph) {
      putNumber(places, qsizetype(glyph) * places_, places_,
                quint32(places_ == 2 ? outlines.size() / 2 : outlines.size()));
      if (glyph == left || !kept[size_t(glyph)]) continue;
      outlines += font_.mid(begin(glyph), end(glyph) - begin(glyph));
      while (outlines.size() % 4 != 0) outlines += '\0';
    }
    if (!read_.valid() || outlines.size() >= glyf_.length) return {};
    QByteArray result = font_;
    replaceTable(result, glyf_, outlines);
    replaceTable(result, loca_, places);
    putNumber(result, maxp_.offset + 4, 2, quint32(left));
    shortenMetrics(result, left);
    return result;
  }

 private:
  static void replaceTable(QByteArray& font, const Table& table, const QByteArray& bytes) {
    font.replace(table.offset, bytes.size(), bytes);
    putNumber(font, table.entry + 12, 4, quint32(bytes.size()));
  }

  // Wholly listed metrics alone: where the last ones share a width, the list is short.
  void shortenMetrics(QByteArray& font, int left) {
    if (hhea_.length < 36 || hmtx_.length < 4 * qsizetype(left) ||
        int(read_.number(hhea_.offset + 34, 2)) < left)
      return;
    putNumber(font, hhea_.offset + 34, 2, quint32(left));
    putNumber(font, hmtx_.entry + 12, 4, quint32(4 * left));
  }

  [[nodiscard]] qsizetype place(int glyph) {
    const auto at = qsizetype(read_.number(loca_.offset + qsizetype(glyph) * places_, places_));
    return glyf_.offset + std::min(glyf_.length, places_ == 2 ? 2 * at : at);
  }
  [[nodiscard]] qsizetype begin(int glyph) { return place(glyph); }
  [[nodiscard]] qsizetype end(int glyph) { return std::max(place(glyph), place(glyph + 1)); }

  void addParts(int glyph, std::vector<int>& open) {
    const qsizetype stop = end(glyph);
    qsizetype at = begin(glyph);
    if (stop - at < 10 || read_.number(at, 2) < 0x8000) return;  // nothing, or contours of its own
    at += 10;
    for (bool more = true; more && at + 4 <= stop;) {
      const quint32 flags = read_.number(at, 2);
      open.push_back(int(read_.number(at + 2, 2)));
      at += 4 + (flags & 0x1 ? 4 : 2) + (flags & 0x8 ? 2 : flags & 0x40 ? 4 : flags & 0x80 ? 8 : 0);
      more = flags & 0x20;
    }
  }

  const QByteArray& font_;
  ByteReader read_;
  Table glyf_;
  Table loca_;
  Table maxp_;
  Table hhea_;
  Table hmtx_;
  int places_ = 2;  ///< bytes of an offset
  int count_ = 0;
};

std::optional<QByteArray> thinnedCff(const QByteArray& cff, const std::set<int>& glyphs) {
  ByteReader read(cff);
  const auto names = cffIndexAt(read, qsizetype(read.number(2, 1)));
  if (!names) return {};
  const auto fonts = cffIndexAt(read, names->end);
  if (!fonts || fonts->count != 1 || fonts->end > cff.size()) return {};
  const qsizetype dict = fonts->offset(read, 0);
  const auto operands = cffOperands(QByteArrayView(cff).sliced(dict, fonts->end - dict));
  const auto charStrings = operands.find(CffCharStrings);
  if (charStrings == operands.end() || charStrings->second <= 0) return {};
  const auto place = qsizetype(charStrings->second);
  const auto outlines = cffIndexAt(read, place);
  if (!outlines || outlines->count == 0 || outlines->end > cff.size()) return {};
  QByteArray data;
  QByteArray offsets((outlines->count + 1) * outlines->offsetSize, '\0');
  for (int glyph = 0; glyph <= outlines->count; ++glyph) {
    putNumber(offsets, qsizetype(glyph) * outlines->offsetSize, outlines->offsetSize,
              quint32(data.size() + 1));
    if (glyph == outlines->count) break;
    const qsizetype from = outlines->offset(read, glyph);
    const qsizetype length = outlines->offset(read, glyph + 1) - from;
    if (glyph == 0 || glyphs.count(glyph) > 0)
      data += cff.mid(from, length);
    else if (length > 0)
      data += kEndOfCharstring;
  }
  const qsizetype start = place + 3;
  if (!read.valid() || start + offsets.size() + data.size() >= outlines->end) return {};
  QByteArray result = cff;
  return result.replace(start, offsets.size() + data.size(), offsets + data);
}

}  // namespace

std::optional<QByteArray> thinnedFont(const QByteArray& font, const std::set<int>& glyphs) {
  if (font.startsWith(QByteArrayView("\x01\x00", 2))) return thinnedCff(font, glyphs);
  const bool holdsCff = font.startsWith("OTTO");
  if (!holdsCff && !font.startsWith("true") && !font.startsWith(QByteArrayView("\x00\x01\x00\x00", 4)))
    return {};
  const auto tables = tablesOf(font);
  if (!tables) return {};
  if (!holdsCff) return Outlines(font, *tables).with(glyphs);
  const Table table = tables->value("CFF ");
  const auto thinned = thinnedCff(font.mid(table.offset, table.length), glyphs);
  if (!thinned) return {};
  QByteArray result = font;
  return result.replace(table.offset, table.length, *thinned);
}

}  // namespace norvex::engine
