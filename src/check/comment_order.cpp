#include "check/comment_order.h"

#include <array>

namespace norvex {
namespace {

constexpr std::array kOrder{"%%EndComments", "%%BeginProlog", "%%EndProlog", "%%BeginSetup", "%%EndSetup",
                            "%%Page",        "%%PageTrailer", "%%Trailer",   "%%EOF"};
enum Place { BeginProlog = 1, EndProlog, BeginSetup, EndSetup, Page, PageTrailer, Trailer, EndOfFile };
constexpr size_t kPlaces = kOrder.size();

/// The document is made of pages and its end; what begins and ends its other sections is less of a loss.
int weightOf(int place) {
  return place >= Page ? 3 : 1;
}

/// One comment and the heaviest chain of comments in order that ends with it.
struct Link {
  qsizetype line;
  int place;
  int weight;
  qsizetype before;  ///< index of a link; -1: it is the first
};

int otherEnd(int place) {
  switch (place) {
    case BeginProlog:
      return EndProlog;
    case EndProlog:
      return BeginProlog;
    case BeginSetup:
      return EndSetup;
    case EndSetup:
      return BeginSetup;
    default:
      return -1;
  }
}

/// All comments with a place, each behind the heaviest chain that it may follow.
QList<Link> linksOf(const QList<ProgramLine>& lines) {
  QList<Link> links;
  std::array<qsizetype, kPlaces> best;  // link at the end of the heaviest chain that ends in that place
  best.fill(-1);
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const int place = isStructure(lines[i]) ? placeOf(lines[i]) : -1;
    if (place <= 0) continue;
    Link link{i, place, 0, -1};
    for (size_t last = 1; last < kPlaces; ++last)
      if (best[last] >= 0 && mayFollow(place, int(last)) && links[best[last]].weight > link.weight)
        link.weight = links[best[last]].weight, link.before = best[last];
    link.weight += weightOf(place);
    if (best[size_t(place)] < 0 || links[best[size_t(place)]].weight <= link.weight)
      best[size_t(place)] = links.size();
    links << link;
  }
  return links;
}

}  // namespace

bool isStructure(const ProgramLine& line) {
  return (line.part == LinePart::Header || line.part == LinePart::Program) && line.text.startsWith("%%");
}

int placeOf(const ProgramLine& line) {
  for (size_t i = 0; i < kPlaces; ++i)
    if (isComment(line, kOrder[i])) return int(i);
  return -1;
}

QLatin1String nameOfPlace(int place) {
  return QLatin1String(kOrder[size_t(place)]);
}

bool mayFollow(int place, int last) {
  return place >= last || (place == Page && last == PageTrailer);
}

QSet<qsizetype> misplacedComments(const QList<ProgramLine>& lines) {
  const QList<Link> links = linksOf(lines);
  qsizetype end = -1;
  for (qsizetype i = 0; i < links.size(); ++i)
    if (end < 0 || links[i].weight > links[end].weight) end = i;
  QSet<qsizetype> kept, misplaced;
  for (; end >= 0; end = links[end].before) kept.insert(links[end].line);
  QSet<int> broken;  // sections that have lost an end
  for (const Link& link : links)
    if (!kept.contains(link.line)) broken.insert(otherEnd(link.place));
  for (const Link& link : links)
    if (!kept.contains(link.line) || broken.contains(link.place)) misplaced.insert(link.line);
  return misplaced;
}

}  // namespace norvex
