#include "check/plate_places.h"

#include <algorithm>

#include "metadata/eps_resources.h"

namespace norvex {
namespace {

constexpr QByteArrayView kComment("%%PlateFile:");

/// Where plates lie: from `first` up to `end`.
struct Places {
  qint64 first, end;
};

/// The digits of the offset that a comment names; empty: it names none among `places`.
QByteArrayView offsetIn(QByteArrayView comment, const Places& places) {
  // The name of an ink may hold anything but an end of its text.
  const qsizetype mark = comment.indexOf('#', std::max<qsizetype>(0, comment.lastIndexOf(')')));
  if (mark < 0) return {};
  qsizetype end = mark + 1;
  while (end < comment.size() && comment[end] >= '0' && comment[end] <= '9') ++end;
  const QByteArrayView digits = comment.sliced(mark + 1, end - mark - 1);
  const qint64 offset = digits.toLongLong();  // 0 where it is too long
  return offset >= places.first && offset < places.end ? digits : QByteArrayView();
}

/// `picture` with `distance` added to the offsets of its header that are among `places`, as wide as they were
/// where they have room. Any other is wrong, and stays as it is.
QByteArray moved(const QByteArray& picture, const Places& places, qint64 distance) {
  QByteArray result;
  bool isHeader = true;
  for (qsizetype at = 0; at < picture.size();) {
    qsizetype end = at;
    while (end < picture.size() && picture[end] != '\n' && picture[end] != '\r') ++end;
    const QByteArrayView line = QByteArrayView(picture).sliced(at, end - at);
    isHeader = isHeader && !line.startsWith("%%EndComments");
    const QByteArrayView offset =
        isHeader && line.startsWith(kComment) ? offsetIn(line, places) : QByteArrayView();
    if (!offset.isEmpty()) {
      const QByteArray now = QByteArray::number(offset.toLongLong() + distance);
      const qsizetype before = offset.data() - line.data();
      result.append(line.first(before)).append(now.rightJustified(offset.size(), '0'));
      result.append(line.sliced(before + offset.size()));
    } else {
      result.append(line);
    }
    if (end < picture.size()) result.append(picture[end]);
    at = end + 1;
  }
  return result;
}

}  // namespace

QByteArray withPlatesOf(const QByteArray& mended, const QByteArray& program) {
  const qsizetype length = compositeOf(program).size();
  if (length == program.size()) return mended;
  const Places places{length, program.size()};
  QByteArray picture = moved(mended, places, mended.size() - length);
  // A number with more digits than before moves the plates once more.
  for (int i = 0; i < 4; ++i) picture = moved(mended, places, picture.size() - length);
  return picture.append(QByteArrayView(program).sliced(length));
}

}  // namespace norvex
