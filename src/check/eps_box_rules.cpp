#include "check/eps_box_rules.h"

#include <algorithm>
#include <cmath>

#include "metadata/eps_bounding_box.h"

namespace norvex {
namespace {

constexpr char kBox[] = "%%BoundingBox";
constexpr char kHiResBox[] = "%%HiResBoundingBox";
/// Points by which whole numbers may be larger than the numbers that they stand for.
constexpr double kRounding = 2;

QList<QByteArray> wordsOf(QByteArrayView value) {
  return value.toByteArray().simplified().split(' ');
}

/// Nothing: the words are not four numbers.
std::optional<QRectF> rectOf(const QList<QByteArray>& words) {
  if (words.size() < 4) return std::nullopt;
  double n[4];
  for (int i = 0; i < 4; ++i) {
    bool good = false;
    n[i] = words[i].toDouble(&good);
    if (!good || !std::isfinite(n[i])) return std::nullopt;
  }
  return QRectF(QPointF(n[0], n[1]), QPointF(n[2], n[3]));
}

bool isWhole(const QByteArray& word) {
  return std::all_of(word.begin(), word.end(),
                     [](char c) { return (c >= '0' && c <= '9') || c == '-' || c == '+'; });
}

const ProgramLine* lineOf(const QList<ProgramLine>& lines, QByteArrayView keyword, bool last) {
  const ProgramLine* found = nullptr;
  for (const ProgramLine& line : lines) {
    if (line.part != LinePart::Header && line.part != LinePart::Program) continue;
    if (!isComment(line, keyword) || line.text.contains("(atend)")) continue;
    found = &line;
    if (!last) break;
  }
  return found;
}

const ProgramLine* deferredLine(const QList<ProgramLine>& lines, QByteArrayView keyword) {
  for (const ProgramLine& line : lines)
    if (line.part == LinePart::Header && isComment(line, keyword) && line.text.contains("(atend)"))
      return &line;
  return nullptr;
}

void checkNumbers(Findings& findings, const ProgramLine& line) {
  const QList<QByteArray> words = wordsOf(commentValue(line, kBox));
  const auto box = rectOf(words);
  const QString value = QString::fromLatin1(
      commentValue(line, kBox).first(std::min<qsizetype>(commentValue(line, kBox).size(), 80)));
  if (!box) {
    findings << finding(
        rule("eps.bounding-box.malformed"),
        QStringLiteral("%%BoundingBox holds \"") + value + QStringLiteral("\" instead of four numbers"),
        line.number);
  } else if (box->width() == 0 || box->height() == 0) {
    findings << finding(rule("eps.bounding-box.empty"),
                        QStringLiteral("the bounding box ") + boxText(*box) + QStringLiteral(" has no area"),
                        line.number);
  } else if (!std::all_of(words.begin(), words.begin() + 4, isWhole)) {
    findings << finding(rule("eps.bounding-box.not-integer"),
                        QStringLiteral("%%BoundingBox holds \"") + value +
                            QStringLiteral("\", which are not all whole numbers"),
                        line.number);
  }
}

void checkAgainstHiRes(Findings& findings, QByteArrayView program, const QList<ProgramLine>& lines) {
  const EpsBoundingBoxes boxes = epsBoundingBoxes(program);
  const ProgramLine* const line = lineOf(lines, kHiResBox, true);
  if (!boxes.boundingBox || !boxes.hiResBoundingBox || !line) return;
  const QRectF& box = *boxes.boundingBox;
  const QRectF& fine = *boxes.hiResBoundingBox;
  const double slack = 0.01;
  const bool encloses = box.adjusted(-slack, -slack, slack, slack).contains(fine);
  const bool isLarger = !fine.adjusted(-kRounding, -kRounding, kRounding, kRounding).contains(box);
  if (encloses && !isLarger) return;
  findings << finding(
      rule("eps.bounding-box.disagrees"),
      QStringLiteral("%%BoundingBox ") + boxText(box) +
          (encloses ? QStringLiteral(" is far larger than") : QStringLiteral(" does not enclose")) +
          QStringLiteral(" %%HiResBoundingBox ") + boxText(fine),
      line->number);
}

/// How far one rectangle reaches beyond another, on its worst side.
double beyond(const QRectF& outer, const QRectF& inner) {
  return std::max({inner.left() - outer.left(), outer.right() - inner.right(), inner.top() - outer.top(),
                   outer.bottom() - inner.bottom()});
}

QString points(double value) {
  return QString::number(value, 'f', value < 10 ? 1 : 0);
}

}  // namespace

QString boxText(const QRectF& box) {
  QStringList numbers;
  for (const double n : {box.left(), box.top(), box.right(), box.bottom()})
    numbers << QString::number(n, 'g', 9);
  return numbers.join(u' ');
}

Findings epsBoxFindings(QByteArrayView program, const QList<ProgramLine>& lines) {
  Findings findings;
  const ProgramLine* const deferred = deferredLine(lines, kBox);
  const ProgramLine* const line = lineOf(lines, kBox, deferred != nullptr);
  if (!line && deferred) {
    findings << finding(rule("eps.bounding-box.atend"),
                        QStringLiteral("%%BoundingBox is promised for the end and does not come"),
                        deferred->number);
  } else if (!line) {
    findings << finding(rule("eps.bounding-box.missing"), QStringLiteral("there is no %%BoundingBox"));
  } else {
    checkNumbers(findings, *line);
    checkAgainstHiRes(findings, program, lines);
  }
  return findings;
}

Findings epsInkFindings(const QRectF& box, const std::optional<QRectF>& ink, double slack) {
  if (!ink)
    return {
        finding(rule("eps.ink.none"), QStringLiteral("nothing but white is drawn inside the bounding box"))};
  const QRectF where = ink->translated(-box.topLeft());
  if (const double cut = beyond(*ink, box); cut > slack)
    return {finding(rule("eps.bounding-box.cuts-ink"),
                    QStringLiteral("the bounding box ") + boxText(box) +
                        QStringLiteral(" cuts the ink off, which reaches ") + points(cut) +
                        QStringLiteral(" pt beyond it: ") + boxText(*ink),
                    {}, {}, where)};
  // Margins are often wanted; half of the picture's size empty is not.
  const double loose = beyond(box, *ink);
  if (loose > slack && (ink->width() < box.width() / 2 || ink->height() < box.height() / 2))
    return {finding(rule("eps.bounding-box.loose"),
                    QStringLiteral("the bounding box ") + boxText(box) +
                        QStringLiteral(" is more than twice as large as the ink: ") + boxText(*ink),
                    {}, {}, where)};
  return {};
}

}  // namespace norvex
