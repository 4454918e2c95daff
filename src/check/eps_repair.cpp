#include "check/eps_repair.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

#include "base/blanks.h"
#include "check/comment_order.h"
#include "check/eps_structure_rules.h"
#include "check/file_wrapping.h"
#include "check/plate_places.h"
#include "check/program_lines.h"
#include "metadata/eps_lines.h"
#include "metadata/eps_program.h"
#include "metadata/eps_resources.h"

namespace norvex {
namespace {

constexpr QByteArrayView kFirstLine("%!PS-Adobe-3.0 EPSF-3.0");
/// Points by which white may miss the edge of a box that it fills.
constexpr double kNear = 1.5;
/// Points by which two measurements of the same ink may differ.
constexpr double kSame = 0.1;

QByteArray endOf(const ProgramLine& line) {
  return line.end == LineEnd::Cr ? "\r" : line.end == LineEnd::CrLf ? "\r\n" : "\n";
}

bool isProperFirstLine(QByteArrayView line) {
  static const QRegularExpression form(QStringLiteral("^%!PS-Adobe-[123]\\.[01]\\s+EPSF-[123]\\.[02]\\s*$"));
  return line.size() < 200 && form.match(QString::fromLatin1(line)).hasMatch();
}

bool isBox(const ProgramLine& line) {
  return isComment(line, "%%BoundingBox") || isComment(line, "%%HiResBoundingBox");
}

/// The ink's box is known no better than this: what is a hair beside a whole number is that number.
double nearWhole(double points) {
  constexpr double hair = 0.05;
  return std::abs(points - std::round(points)) < hair ? std::round(points) : points;
}

QByteArray wholeNumbers(const QRectF& box) {
  QByteArrayList numbers;
  for (const double n : {std::floor(nearWhole(box.left())), std::floor(nearWhole(box.top())),
                         std::ceil(nearWhole(box.right())), std::ceil(nearWhole(box.bottom()))})
    numbers << QByteArray::number(qint64(n));
  return numbers.join(' ');
}

QByteArray realNumbers(const QRectF& box) {
  QByteArrayList numbers;
  for (const double n : {box.left(), box.top(), box.right(), box.bottom()}) {
    QByteArray text = QByteArray::number(nearWhole(n), 'f', 3);
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
    numbers << (text == "-0" ? QByteArray("0") : text);
  }
  return numbers.join(' ');
}

bool areSame(const QRectF& one, const QRectF& other) {
  return one.adjusted(-kSame, -kSame, kSame, kSame).contains(other) &&
         other.adjusted(-kSame, -kSame, kSame, kSame).contains(one);
}

/// With an end of the document that stands in its header, before all of the drawing.
QSet<qsizetype> commentsToLeaveOut(const QList<ProgramLine>& lines) {
  QSet<qsizetype> misplaced = misplacedComments(lines);
  for (qsizetype i = 0; i < lines.size() && lines[i].part == LinePart::Header; ++i)
    if (isComment(lines[i], "%%EOF") && std::any_of(lines.begin() + i, lines.end(), isDrawing))
      misplaced.insert(i);
  return misplaced;
}

/// One program being put together.
class Mending {
 public:
  Mending(const QByteArray& program, const QRectF& box)
      : program_(program), lines_(programLines(program)), misplaced_(commentsToLeaveOut(lines_)), box_(box) {
    if (!lines_.isEmpty()) newline_ = endOf(lines_.first());
  }

  EpsRepair run(bool dropPreview) {
    writeHeader();
    writeBody(dropPreview);
    return std::move(result_);
  }

 private:
  void changed(const QString& sentence) {
    if (!result_.changes.contains(sentence)) result_.changes << sentence;
  }
  void write(QByteArrayView line) { result_.program.append(line).append(newline_); }

  void writeHeader() {
    const bool hasFirst = !lines_.isEmpty() && lines_.first().text.startsWith("%!");
    if (hasFirst && isProperFirstLine(lines_.first().text)) {
      write(lines_.first().text);
    } else {
      write(kFirstLine);
      changed(QStringLiteral("the first line is %!PS-Adobe-3.0 EPSF-3.0"));
    }
    writeBoxes();
    bool ended = false;
    for (body_ = hasFirst ? 1 : 0; body_ < lines_.size() && isHeader(lines_[body_]); ++body_) {
      const ProgramLine& line = lines_[body_];
      ended = isComment(line, "%%EndComments");
      if (ended || endsHeader(line)) break;
      if (!isBox(line)) append(line, body_);
    }
    if (ended)
      ++body_;
    else
      changed(QStringLiteral("%%EndComments was put in"));
    endLine();
    write("%%EndComments");
  }

  /// Data within the header are of it.
  [[nodiscard]] bool isHeader(const ProgramLine& line) const {
    const bool data = line.part == LinePart::Data && isHeaderData_;
    isHeaderData_ = line.part == LinePart::Header;
    return line.part == LinePart::Header || data;
  }

  void writeBoxes() {
    write(QByteArray("%%BoundingBox: ") + wholeNumbers(box_));
    write(QByteArray("%%HiResBoundingBox: ") + realNumbers(box_));
    QByteArray before;
    for (const ProgramLine& line : lines_)
      if (line.part == LinePart::Header && isBox(line)) before += line.text.toByteArray().simplified() + '\n';
    const QByteArray now = QByteArray("%%BoundingBox: ") + wholeNumbers(box_) +
                           "\n%%HiResBoundingBox: " + realNumbers(box_) + '\n';
    if (before != now)
      changed(QStringLiteral("the bounding box is ") + QString::fromLatin1(wholeNumbers(box_)) +
              QStringLiteral(" (") + QString::fromLatin1(realNumbers(box_)) + u')');
  }

  /// Where the trailer's comments begin: at %%Trailer, at %%EOF where there is none, at the end.
  [[nodiscard]] qsizetype trailerLine() const {
    for (const char* keyword : {"%%Trailer", "%%EOF"})
      for (qsizetype i = lines_.size() - 1; i >= body_; --i)
        if (isStructure(lines_[i]) && isComment(lines_[i], keyword) && !misplaced_.contains(i)) return i;
    return lines_.size();
  }

  void writeBody(bool dropPreview) {
    const qsizetype trailer = trailerLine();
    for (qsizetype i = body_; i < trailer; ++i) {
      const ProgramLine& line = lines_[i];
      const bool isPreview = line.part == LinePart::Preview || isComment(line, "%%BeginPreview");
      if (dropPreview && isPreview && line.part != LinePart::Embedded) {
        changed(QStringLiteral("the preview was left out"));
        continue;
      }
      // A second end of the header is no part of the drawing.
      if (line.part == LinePart::Program && isComment(line, "%%EndComments")) {
        changed(QStringLiteral("a second %%EndComments was left out"));
        continue;
      }
      if (isLeftOut(i)) continue;
      append(line, i);
    }
    const qsizetype end = documentEnd(trailer);
    if (!showsPage(lines_.first(end))) {
      endLine();
      write("showpage");
      changed(QStringLiteral("showpage was put in"));
    }
    writeTrailer(trailer, end);
  }

  /// A comment is no part of the drawing; where it must not stand, it does not structure the document either.
  bool isLeftOut(qsizetype number) {
    if (!misplaced_.contains(number)) return false;
    changed(QStringLiteral("%1 was left out, because it stood out of order")
                .arg(nameOfPlace(placeOf(lines_[number]))));
    return true;
  }

  void append(const ProgramLine& line, qsizetype number) {
    const qsizetype end = number + 1 < lines_.size() ? lines_[number + 1].start : program_.size();
    result_.program.append(QByteArrayView(program_).sliced(line.start, end - line.start));
  }
  void endLine() {
    if (!result_.program.endsWith('\n') && !result_.program.endsWith('\r')) result_.program.append(newline_);
  }

  /// Behind the %%EOF that ends the trailer which begins at `trailer`; behind all lines without one.
  [[nodiscard]] qsizetype documentEnd(qsizetype trailer) const {
    for (qsizetype i = trailer; i < lines_.size(); ++i)
      if (isStructure(lines_[i]) && isComment(lines_[i], "%%EOF") && !misplaced_.contains(i)) return i + 1;
    return lines_.size();
  }

  void writeTrailer(qsizetype from, qsizetype end) {
    bool ended = false;
    for (qsizetype i = from; i < end; ++i) {
      if (isBox(lines_[i])) {
        changed(QStringLiteral("the box at the end of the file stands in its header"));
        continue;
      }
      if (isLeftOut(i)) continue;
      append(lines_[i], i);
      ended = isStructure(lines_[i]) && isComment(lines_[i], "%%EOF");
    }
    if (ended) return writeBehind(end);
    endLine();
    write("%%EOF");
    changed(QStringLiteral("%%EOF was put in"));
  }

  void writeBehind(qsizetype end) {
    if (end >= lines_.size()) return;
    const QByteArrayView behind = QByteArrayView(program_).sliced(lines_[end].start);
    // What a program keeps behind the document for itself is of use to it.
    if (behind.startsWith("%AI"))
      result_.program.append(behind);
    else if (tellingBytes(behind) > 0)
      changed(QStringLiteral("what stood behind %%EOF was left out"));
  }

  const QByteArray& program_;
  const QList<ProgramLine> lines_;
  const QSet<qsizetype> misplaced_;
  const QRectF box_;
  QByteArray newline_ = "\n";
  mutable bool isHeaderData_ = false;
  qsizetype body_ = 0;  ///< the first line behind the header
  EpsRepair result_;
};

}  // namespace

QByteArray epsProgramAlone(const QByteArray& file) {
  const QByteArray inner = withoutWrapping(file);
  const QByteArrayView program = epsProgram(inner);
  const qsizetype first = program.first(std::min<qsizetype>(program.size(), 64 << 10)).indexOf("%!");
  const qsizetype comment = lineBeginningWith(program, "%%BoundingBox");
  if (first < 0 && comment < 0) return {};
  return program.sliced(std::max<qsizetype>(0, first < 0 ? comment : first)).toByteArray();
}

EpsRepair repairedEps(const QByteArray& program, const QRectF& box, bool dropPreview) {
  EpsRepair mended = Mending(compositeOf(program).toByteArray(), box).run(dropPreview);
  mended.program = withPlatesOf(mended.program, program);
  return mended;
}

std::optional<QRectF> mendedBox(const std::optional<QRectF>& stated, const std::optional<QRectF>& ink,
                                const std::optional<QRectF>& painted) {
  if (!ink) return stated;
  if (stated && areSame(*stated, *ink)) return stated;
  if (!stated || !painted) return ink;
  const bool encloses = stated->adjusted(-0.1, -0.1, 0.1, 0.1).contains(*ink);
  const bool isFilled = painted->adjusted(-kNear, -kNear, kNear, kNear).contains(*stated);
  // Ink that reaches the edges tells them more exactly than whole numbers do.
  const bool isInked = ink->adjusted(-kNear, -kNear, kNear, kNear).contains(*stated);
  return encloses && isFilled && !isInked ? stated : ink;
}

}  // namespace norvex
