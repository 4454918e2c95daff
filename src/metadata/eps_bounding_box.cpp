#include "metadata/eps_bounding_box.h"

#include <cmath>

#include "base/blanks.h"
#include "metadata/dos_eps_header.h"
#include "metadata/eps_lines.h"
#include "metadata/text_encoding.h"

namespace norvex {
namespace {

/// The rest of the line that begins at `from`.
QByteArrayView lineAt(QByteArrayView text, qsizetype from) {
  return text.sliced(from, lineEndOf(text, from) - from);
}

/// The next number of a line, in the C notation whatever the locale; moves `at` behind it.
std::optional<double> nextNumber(QByteArrayView line, qsizetype& at) {
  while (at < line.size() && isCommentBlank(line[at])) ++at;
  const qsizetype from = at;
  while (at < line.size() && !isCommentBlank(line[at])) ++at;
  bool ok = false;
  const double value = line.sliced(from, at - from).toByteArray().toDouble(&ok);
  if (!ok || !std::isfinite(value)) return {};
  return value;
}

std::optional<QRectF> boxOf(QByteArrayView line) {
  double corner[4];
  qsizetype at = 0;
  for (double& number : corner) {
    const auto value = nextNumber(line, at);
    if (!value) return {};
    number = *value;
  }
  const QRectF box = QRectF(QPointF(corner[0], corner[1]), QPointF(corner[2], corner[3])).normalized();
  if (!(box.width() > 0 && box.height() > 0)) return {};
  if (!std::isfinite(box.width()) || !std::isfinite(box.height())) return {};
  return box;
}

/// Position behind `keyword` at the start of a line, from `from` on; -1 when there is none.
qsizetype behindKeyword(QByteArrayView text, QByteArrayView keyword, qsizetype from) {
  const qsizetype at = lineBeginningWith(text, keyword, from);
  return at < 0 ? at : at + keyword.size();
}

std::optional<QRectF> lastBox(QByteArrayView text, QByteArrayView keyword) {
  for (qsizetype at = text.lastIndexOf(keyword); at >= 0; at = text.lastIndexOf(keyword, at - 1)) {
    if (beginsLine(text, at))
      if (const auto box = boxOf(lineAt(text, at + keyword.size()))) return box;
    if (at == 0) break;
  }
  return {};
}

std::optional<QRectF> box(QByteArrayView text, QByteArrayView comments, QByteArrayView keyword) {
  const qsizetype inHeader = behindKeyword(comments, keyword, 0);
  if (inHeader >= 0) {
    const QByteArrayView line = lineAt(text, inHeader);
    return line.contains("(atend)") ? lastBox(text, keyword) : boxOf(line);
  }
  for (qsizetype at = 0; (at = behindKeyword(text, keyword, at)) >= 0;)
    if (const auto found = boxOf(lineAt(text, at))) return found;
  return {};
}

}  // namespace

EpsBoundingBoxes epsBoundingBoxes(QByteArrayView source) {
  QByteArray wide;  // a text in UTF-16, as UTF-8
  QByteArrayView text = postScriptOf(source);
  if (source.startsWith("\xFE\xFF") || source.startsWith("\xFF\xFE")) {
    wide = decodeText(source, encoding::Utf16).value_or(QString()).toUtf8();
    text = wide;
  }
  const qsizetype end = behindKeyword(text, "%%EndComments", 0);
  const QByteArrayView comments = end < 0 ? text : text.first(end);
  return {box(text, comments, "%%BoundingBox:"), box(text, comments, "%%HiResBoundingBox:")};
}

std::optional<QRectF> epsPictureBox(const EpsBoundingBoxes& boxes) {
  if (boxes.boundingBox || !boxes.hiResBoundingBox) return boxes.boundingBox;
  return QRectF(boxes.hiResBoundingBox->toAlignedRect());
}

}  // namespace norvex
