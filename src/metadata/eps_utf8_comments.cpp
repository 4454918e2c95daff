#include "metadata/eps_utf8_comments.h"

#include <algorithm>

#include "metadata/eps_lines.h"
#include "metadata/eps_program.h"
#include "metadata/text_encoding.h"

namespace norvex {
namespace {

bool isAscii(QByteArrayView bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) < 0x80; });
}

/// True if a byte stands there that no text has. Spoolers end files with 04.
bool holdsBinaryData(QByteArrayView program) {
  return std::any_of(program.begin(), program.end(),
                     [](char c) { return uchar(c) < 0x20 && !QByteArrayView("\t\n\r\f\x04").contains(c); });
}

/// Copies a program and puts comment lines into UTF-8 on the way.
class Recoder {
 public:
  Recoder(QByteArrayView program, qint64 encodingNumber) : program_(program), number_(encodingNumber) {
    out_.reserve(program.size() + program.size() / 8);
  }

  QByteArray recoded() {
    const qsizetype header = recodeHeader();
    if (holdsBinaryData(program_))
      out_ += program_.sliced(header);
    else
      recodeBody(header);
    return std::move(out_);
  }

 private:
  /// Up to the first line that is no comment, or the line that ends the comments; where that is.
  qsizetype recodeHeader() {
    qsizetype at = 0;
    while (at < program_.size() && program_[at] == '%') {
      const qsizetype end = lineEndOf(program_, at);
      const bool last = program_.sliced(at, end - at).startsWith("%%EndComments");
      appendRecoded(at, end);
      at = end;
      if (last) break;
      while (at < program_.size() && (program_[at] == '\n' || program_[at] == '\r')) out_ += program_[at++];
    }
    return at;
  }

  /// Parentheses are counted, so that a percent sign in a string begins no comment.
  void recodeBody(qsizetype at) {
    int depth = 0;
    while (at < program_.size()) {
      const char c = program_[at];
      if (c == '%' && depth == 0) {
        const qsizetype end = lineEndOf(program_, at);
        const bool structural = beginsLine(program_, at) && program_.sliced(at).startsWith("%%");
        if (structural)
          appendRecoded(at, end);
        else
          out_ += program_.sliced(at, end - at);
        at = end;
        continue;
      }
      if (c == '(') ++depth;
      if (c == ')' && depth > 0) --depth;
      out_ += c;
      ++at;
      if (c == '\\' && depth > 0 && at < program_.size()) out_ += program_[at++];
    }
  }

  void appendRecoded(qsizetype from, qsizetype end) {
    const QByteArrayView line = program_.sliced(from, end - from);
    const auto text = isAscii(line) ? std::nullopt : decodeText(line, number_);
    if (text)
      out_ += text->toUtf8();
    else
      out_ += line;
  }

  QByteArrayView program_;
  qint64 number_;
  QByteArray out_;
};

}  // namespace

QByteArray epsWithUtf8Comments(const QByteArray& source, qint64 encodingNumber) {
  const QByteArray program = epsProgram(source);
  const bool doubleBytes = encodingNumber == encoding::EucJp || encodingNumber == encoding::ShiftJis;
  // The others keep every byte, or no interpreter could have run the source in them.
  if (!doubleBytes || isAscii(program) || !isDecodable(program, encodingNumber)) return program;
  return Recoder(program, encodingNumber).recoded();
}

}  // namespace norvex
