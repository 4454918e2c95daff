#include "worker/web_fonts/sfnt_tables.h"

#include <algorithm>
#include <numeric>

#include "worker/web_fonts/big_endian.h"

namespace norvex::engine {
namespace {

constexpr char32_t kLastOfPlane = 0xFFFF;
constexpr size_t kMostSegments = (0xFFFF - 16) / 8;  // the table tells its own length in 16 bits

/// Where a reader begins to halve a list: at the largest power of two that it is long.
struct SearchStart {
  explicit SearchStart(qint64 count) {
    while (power * 2 <= count) power *= 2, ++exponent;
  }
  qint64 power = 1, exponent = 0;
};

/// Characters behind one another that are shown by glyphs behind one another.
struct Segment {
  char32_t first = 0, last = 0;
  int glyph = 0;
};

std::vector<Segment> segments(const std::map<char32_t, int>& glyphs, char32_t last) {
  std::vector<Segment> found;
  for (const auto& [character, glyph] : glyphs) {
    if (character > last) break;
    Segment* const before = found.empty() ? nullptr : &found.back();
    if (before && before->last + 1 == character && before->glyph + int(character - before->first) == glyph)
      before->last = character;
    else
      found.push_back({character, character, glyph});
  }
  return found;
}

std::optional<QByteArray> shortMap(const std::map<char32_t, int>& glyphs) {
  std::vector<Segment> parts = segments(glyphs, kLastOfPlane - 1);
  parts.push_back({kLastOfPlane, kLastOfPlane, 0});
  if (parts.size() > kMostSegments) return std::nullopt;
  const auto count = qint64(parts.size());
  const SearchStart search(count);
  ByteWriter writer;
  writer.put(2, 4).put(2, 16 + 8 * count).put(2, 0).put(2, 2 * count);
  writer.put(2, 2 * search.power).put(2, search.exponent).put(2, 2 * (count - search.power));
  for (const Segment& part : parts) writer.put(2, part.last);
  writer.put(2, 0);
  for (const Segment& part : parts) writer.put(2, part.first);
  for (const Segment& part : parts) writer.put(2, qint64(part.glyph) - qint64(part.first));
  for (qint64 i = 0; i < count; ++i) writer.put(2, 0);
  return writer.bytes;
}

QByteArray longMap(const std::map<char32_t, int>& glyphs) {
  const std::vector<Segment> parts = segments(glyphs, 0x10FFFF);
  ByteWriter writer;
  writer.put(2, 12).put(2, 0).put(4, 16 + 12 * qint64(parts.size())).put(4, 0).put(4, qint64(parts.size()));
  for (const Segment& part : parts) writer.put(4, part.first).put(4, part.last).put(4, part.glyph);
  return writer.bytes;
}

std::optional<QByteArray> cmap(const std::map<char32_t, int>& glyphs) {
  const std::optional<QByteArray> brief = shortMap(glyphs);
  if (!brief) return std::nullopt;
  const bool isBeyond = !glyphs.empty() && glyphs.rbegin()->first > kLastOfPlane;
  ByteWriter writer;
  writer.put(2, 0).put(2, isBeyond ? 2 : 1);
  const qint64 start = isBeyond ? 20 : 12;
  writer.put(2, 3).put(2, 1).put(4, start);
  if (isBeyond) writer.put(2, 3).put(2, 10).put(4, start + brief->size());
  return writer.put(*brief).put(isBeyond ? longMap(glyphs) : QByteArray()).bytes;
}

QByteArray head(const SfntFacts& facts) {
  ByteWriter writer;
  writer.put(4, 0x00010000)
      .put(4, 0x00010000)
      .put(4, 0)
      .put(4, 0x5F0F3CF5)
      .put(2, 3)
      .put(2, facts.unitsPerEm);
  for (int i = 0; i < 4; ++i) writer.put(4, 0);  // no dates: the same outlines give the same bytes
  for (const int side : facts.box) writer.put(2, side);
  return writer.put(2, 0).put(2, 3).put(2, 2).put(2, 0).put(2, 0).bytes;
}

QByteArray hhea(const SfntFacts& facts) {
  ByteWriter writer;
  const int widest = *std::max_element(facts.advances.begin(), facts.advances.end());
  writer.put(4, 0x00010000).put(2, facts.ascent).put(2, -facts.descent).put(2, 0).put(2, widest);
  writer.put(2, facts.box[0]).put(2, 0).put(2, facts.box[2]).put(2, 1);
  for (int i = 0; i < 7; ++i) writer.put(2, 0);
  return writer.put(2, qint64(facts.advances.size())).bytes;
}

QByteArray hmtx(const SfntFacts& facts) {
  ByteWriter writer;
  for (size_t i = 0; i < facts.advances.size(); ++i) writer.put(2, facts.advances[i]).put(2, facts.lefts[i]);
  return writer.bytes;
}

QByteArray names() {
  constexpr const char* kNames[] = {"Subset", "Regular", "Subset", "Subset", "Version 1", "Subset"};
  ByteWriter records, texts;
  for (int number = 1; number <= 6; ++number) {
    const QByteArray name = kNames[number - 1];
    records.put(2, 3)
        .put(2, 1)
        .put(2, 0x409)
        .put(2, number)
        .put(2, 2 * name.size())
        .put(2, texts.bytes.size());
    for (const char c : name) texts.put(2, c);
  }
  return ByteWriter().put(2, 0).put(2, 6).put(2, 6 + records.bytes.size()).bytes + records.bytes +
         texts.bytes;
}

QByteArray os2(const SfntFacts& facts) {
  const qint64 sum = std::accumulate(facts.advances.begin(), facts.advances.end(), qint64(0));
  const auto bounded = [](char32_t character) { return qint64(std::min(character, kLastOfPlane)); };
  const qint64 first = facts.glyphs.empty() ? 0 : bounded(facts.glyphs.begin()->first);
  const qint64 last = facts.glyphs.empty() ? 0 : bounded(facts.glyphs.rbegin()->first);
  ByteWriter writer;
  writer.put(2, 3).put(2, sum / qint64(facts.advances.size())).put(2, 400).put(2, 5).put(2, 0);
  for (int i = 0; i < 11; ++i)
    writer.put(2, 0);  // places of small letters and lines, and its family: not told
  writer.put(QByteArray(10, '\0'));
  for (int i = 0; i < 4; ++i) writer.put(4, 0);
  writer.put(QByteArray(4, ' ')).put(2, 0x40).put(2, first).put(2, last);
  writer.put(2, facts.ascent).put(2, -facts.descent).put(2, 0).put(2, facts.ascent).put(2, facts.descent);
  return writer.put(4, 1).put(4, 0).put(2, 0).put(2, 0).put(2, 0).put(2, 32).put(2, 0).bytes;
}

QByteArray post() {
  ByteWriter writer;
  writer.put(4, 0x00030000);
  for (int i = 0; i < 7; ++i) writer.put(4, 0);
  return writer.bytes;
}

constexpr qint64 kPostScriptOutlines = 0x4F54544F;  // "OTTO"
constexpr qsizetype kSumOfFile = 8;                 // its place in `head`

}  // namespace

std::optional<std::map<QByteArray, QByteArray>> sfntTables(const SfntFacts& facts) {
  const std::optional<QByteArray> characters = cmap(facts.glyphs);
  if (!characters) return std::nullopt;
  return std::map<QByteArray, QByteArray>{
      {"OS/2", os2(facts)},
      {"cmap", *characters},
      {"head", head(facts)},
      {"hhea", hhea(facts)},
      {"hmtx", hmtx(facts)},
      {"maxp", ByteWriter().put(4, 0x00005000).put(2, qint64(facts.advances.size())).bytes},
      {"name", names()},
      {"post", post()}};
}

quint32 tableSum(const QByteArray& table) {
  quint32 sum = 0;
  for (qsizetype i = 0; i < table.size(); ++i) sum += quint32(quint8(table[i])) << (24 - 8 * (i % 4));
  return sum;
}

QByteArray sfntFile(std::map<QByteArray, QByteArray>& tables) {
  const auto count = qint64(tables.size());
  const SearchStart search(count);
  ByteWriter directory, data;
  directory.put(4, kPostScriptOutlines).put(2, count).put(2, 16 * search.power).put(2, search.exponent);
  directory.put(2, 16 * (count - search.power));
  qint64 headAt = 0;
  for (const auto& [tag, table] : tables) {
    const qint64 at = 12 + 16 * count + data.bytes.size();
    if (tag == "head") headAt = at;
    directory.put(tag).put(4, tableSum(table)).put(4, at).put(4, table.size());
    data.put(table).pad();
  }
  QByteArray file = directory.bytes + data.bytes;
  const QByteArray sum = ByteWriter().put(4, qint64(0xB1B0AFBA) - tableSum(file)).bytes;
  file.replace(headAt + kSumOfFile, 4, sum);
  tables["head"].replace(kSumOfFile, 4, sum);
  return file;
}

QByteArray woffFile(std::map<QByteArray, QByteArray> tables) {
  const auto plainSums = [&] {
    std::map<QByteArray, quint32> sums;
    for (const auto& [tag, table] : tables) sums[tag] = tableSum(table);
    return sums;
  }();
  const qint64 unpacked = sfntFile(tables).size();
  const auto count = qint64(tables.size());
  ByteWriter directory, data;
  for (const auto& [tag, table] : tables) {
    const QByteArray packed = qCompress(table, 9).mid(4);  // behind a length of Qt's own
    const QByteArray& stored = packed.size() < table.size() ? packed : table;
    directory.put(tag).put(4, 44 + 20 * count + data.bytes.size()).put(4, stored.size()).put(4, table.size());
    directory.put(4, plainSums.at(tag));
    data.put(stored).pad();
  }
  ByteWriter header;
  header.put(4, 0x774F4646)
      .put(4, kPostScriptOutlines)
      .put(4, 44 + directory.bytes.size() + data.bytes.size());
  header.put(2, count).put(2, 0).put(4, unpacked).put(2, 1).put(2, 0);
  for (int i = 0; i < 5; ++i) header.put(4, 0);
  return header.bytes + directory.bytes + data.bytes;
}

}  // namespace norvex::engine
