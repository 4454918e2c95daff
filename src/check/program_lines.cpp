#include "check/program_lines.h"

#include <QByteArray>

#include <algorithm>
#include <optional>

#include "base/blanks.h"
#include "metadata/eps_lines.h"

namespace norvex {
namespace {

/// A line of packed samples has no blank for this long.
constexpr qsizetype kLongestWord = 60;

/// Bytes behind the comment that are data: what "%%BeginData: 300 Hex Bytes" and "%%BeginBinary: 300" say.
/// Nothing: the comment does not count bytes.
std::optional<qsizetype> announcedBytes(const ProgramLine& line) {
  for (const char* keyword : {"%%BeginBinary", "%%BeginData"}) {
    if (!isComment(line, keyword)) continue;
    const QList<QByteArray> words = commentValue(line, keyword).toByteArray().simplified().split(' ');
    if (words.size() > 2 && words[2] == "Lines") return std::nullopt;
    bool isNumber = false;
    const qlonglong count = words[0].toLongLong(&isNumber);
    if (isNumber && count > 0) return qsizetype(count);
  }
  return std::nullopt;
}

class Cutter {
 public:
  explicit Cutter(QByteArrayView program) : program_(program) {}

  QList<ProgramLine> run() {
    while (at_ < program_.size()) {
      ProgramLine line = next();
      line.part = partOf(line);
      lines_ << line;
      if (const qsizetype bytes = dataBehind(line); bytes > 0) takeData(bytes);
    }
    markNested();
    return lines_;
  }

 private:
  ProgramLine next() {
    ProgramLine line;
    line.start = at_;
    line.number = ++number_;
    const qsizetype end = lineEndOf(program_, at_);
    line.text = program_.sliced(at_, end - at_);
    at_ = end;
    if (at_ < program_.size()) {
      const bool both = program_[at_] == '\r' && at_ + 1 < program_.size() && program_[at_ + 1] == '\n';
      line.end = both ? LineEnd::CrLf : program_[at_] == '\r' ? LineEnd::Cr : LineEnd::Lf;
      at_ += both ? 2 : 1;
    }
    return line;
  }

  /// As many bytes as are announced, where the end of the data is told behind them. Otherwise the count is
  /// wrong, as where a transport has changed the ends of lines, and the data end where that is told.
  qsizetype dataBehind(const ProgramLine& line) {
    const auto announced = announcedBytes(line);
    if (!announced) return 0;
    const bool isBinary = isComment(line, "%%BeginBinary");
    const QByteArrayView end(isBinary ? "%%EndBinary" : "%%EndData"), rest = program_.sliced(at_);
    const qsizetype fits = *announced <= rest.size() ? *announced : 0;
    if (rest.sliced(fits).first(std::min<qsizetype>(rest.size() - fits, 16)).trimmed().startsWith(end))
      return fits;
    const qsizetype told = hasNoEnd_[isBinary] ? -1 : lineBeginningWith(rest, end);
    hasNoEnd_[isBinary] = told < 0;
    return told < 0 ? fits : told;
  }

  void takeData(qsizetype bytes) {
    const QByteArrayView data = program_.sliced(at_, bytes);
    lines_ << ProgramLine{data, at_, number_ + 1, LinePart::Data, LineEnd::None};
    number_ += int(std::count(data.begin(), data.end(), '\n'));
    at_ += bytes;
  }

  LinePart partOf(const ProgramLine& line) {
    if (isComment(line, "%%EndDocument")) embedded_ = std::max(0, embedded_ - 1);
    const LinePart part = embedded_ > 0 ? LinePart::Embedded
                          : isPreview_  ? LinePart::Preview
                          : isHeader_   ? LinePart::Header
                                        : LinePart::Program;
    if (isComment(line, "%%BeginDocument")) ++embedded_;
    if (embedded_ == 0 && isComment(line, "%%BeginPreview")) isPreview_ = true;
    if (isComment(line, "%%EndPreview")) isPreview_ = false;
    if (part != LinePart::Header) return part;
    const bool isText = !line.text.startsWith('%') && !line.text.trimmed().isEmpty();
    if (isText || isComment(line, "%%EndComments") || endsHeader(line)) isHeader_ = false;
    return isText ? LinePart::Program : part;
  }

  /// A resource that came as a file of its own may stand in the program as it was, without a comment around
  /// it: its %%EOF ends nothing but itself.
  void markNested() {
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(), isDrawing).base();
    qsizetype first = -1;
    for (qsizetype i = 1; i < last - lines_.begin(); ++i) {
      if (lines_[i].part != LinePart::Program) continue;
      if (first < 0 && lines_[i].text.startsWith("%!")) first = i;
      if (first < 0 || !isComment(lines_[i], "%%EOF")) continue;
      for (; first <= i; ++first)
        if (lines_[first].part == LinePart::Program) lines_[first].part = LinePart::Embedded;
      first = -1;
    }
  }

  QByteArrayView program_;
  qsizetype at_ = 0;
  int number_ = 0;
  int embedded_ = 0;
  bool isHeader_ = true, isPreview_ = false;
  bool hasNoEnd_[2] = {};  ///< of data, of binary data: none is told in the rest of the program
  QList<ProgramLine> lines_;
};

}  // namespace

QList<ProgramLine> programLines(QByteArrayView program) {
  return Cutter(program).run();
}

bool isDrawing(const ProgramLine& line) {
  return line.part == LinePart::Program && !line.text.startsWith('%') && !looksLikeData(line.text) &&
         !std::all_of(line.text.begin(), line.text.end(), isPostScriptSpace);
}

bool isComment(const ProgramLine& line, QByteArrayView keyword) {
  if (!line.text.startsWith(keyword)) return false;
  return line.text.size() == keyword.size() || line.text[keyword.size()] == ':' ||
         isCommentBlank(line.text[keyword.size()]);
}

bool endsHeader(const ProgramLine& line) {
  for (const char* within :
       {"%%BeginData", "%%BeginBinary", "%%EndData", "%%EndBinary", "%%EndComments", "%%EndPreview"})
    if (isComment(line, within)) return false;
  if (line.text.startsWith("%%Begin") || line.text.startsWith("%%End")) return true;
  for (const char* behind : {"%%Page", "%%PageTrailer", "%%Trailer", "%%EOF"})
    if (isComment(line, behind)) return true;
  return false;
}

QList<ProgramLine> documentLines(const QList<ProgramLine>& lines) {
  for (qsizetype i = lines.size() - 1; i >= 0; --i)
    if (lines[i].part == LinePart::Program && isComment(lines[i], "%%EOF")) return lines.first(i + 1);
  return lines;
}

QByteArrayView commentValue(const ProgramLine& line, QByteArrayView keyword) {
  QByteArrayView value = line.text.sliced(keyword.size());
  if (value.startsWith(':')) value = value.sliced(1);
  return value.trimmed();
}

qsizetype tellingBytes(QByteArrayView bytes) {
  return std::count_if(bytes.begin(), bytes.end(),
                       [](char c) { return !isPostScriptSpace(c) && c != '\x04' && c != '\x1A'; });
}

bool looksLikeData(QByteArrayView line) {
  qsizetype word = 0;
  for (const char c : line) {
    if (uchar(c) >= 0x80 || (uchar(c) < 0x20 && !isPostScriptSpace(c)) || c == 0x7F) return true;
    word = isPostScriptSpace(c) ? 0 : word + 1;
    if (word > kLongestWord) return true;
  }
  return false;
}

}  // namespace norvex
