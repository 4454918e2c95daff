#include "worker/pdf/pdf_colour_operators.h"

#include <qpdf/Pipeline.hh>

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "base/blanks.h"

namespace norvex::engine {
namespace {

bool isDelimiter(char c) {
  return c != '\0' && std::strchr("()<>[]{}/%", c) != nullptr;
}

/// One pass over contents.
class Scanner {
 public:
  explicit Scanner(QByteArrayView contents) : at_(contents.data()), end_(at_ + contents.size()) {}
  QStringList run();

 private:
  void skipString();
  void skipTo(char last);
  void skipInlineSamples();
  QByteArrayView word();
  void takeName(QByteArrayView name);
  void takeOperator(QByteArrayView name);
  void addChosen();
  void add(const char* space);

  const char* at_;
  const char* const end_;
  QByteArrayView lastName_;
  QStringList found_;
};

void Scanner::add(const char* space) {
  const QString name = QString::fromLatin1(space);
  if (!found_.contains(name)) found_ << name;
}

void Scanner::skipString() {
  int depth = 0;
  for (; at_ < end_; ++at_) {
    if (*at_ == '\\') {
      if (++at_ == end_) return;
    } else if (*at_ == '(') {
      ++depth;
    } else if (*at_ == ')' && --depth == 0) {
      ++at_;
      return;
    }
  }
}

void Scanner::skipTo(char last) {
  at_ = std::find(at_, end_, last);
  if (at_ < end_) ++at_;
}

// The samples end with EI between blanks; their own bytes may look like anything.
void Scanner::skipInlineSamples() {
  for (; end_ - at_ >= 3; ++at_)
    if (isPostScriptSpace(at_[0]) && at_[1] == 'E' && at_[2] == 'I' &&
        (end_ - at_ == 3 || isPostScriptSpace(at_[3]))) {
      at_ += 3;
      return;
    }
  at_ = end_;
}

QByteArrayView Scanner::word() {
  const char* const from = at_;
  while (at_ < end_ && !isPostScriptSpace(*at_) && !isDelimiter(*at_)) ++at_;
  return {from, at_ - from};
}

void Scanner::takeName(QByteArrayView name) {
  // The abbreviations are those of inline images.
  if (lastName_ == "CS" || lastName_ == "ColorSpace") {
    if (name == "G" || name == "DeviceGray") add("DeviceGray");
    if (name == "RGB" || name == "DeviceRGB") add("DeviceRGB");
    if (name == "CMYK" || name == "DeviceCMYK") add("DeviceCMYK");
  }
  lastName_ = name;
}

// Names of three spaces alone: contents can choose as many that do not exist as they like.
void Scanner::addChosen() {
  for (const char* space : {"DeviceGray", "DeviceRGB", "DeviceCMYK"})
    if (lastName_ == QByteArrayView(space)) add(space);
}

void Scanner::takeOperator(QByteArrayView name) {
  if (name == "g" || name == "G")
    add("DeviceGray");
  else if (name == "rg" || name == "RG")
    add("DeviceRGB");
  else if (name == "k" || name == "K")
    add("DeviceCMYK");
  else if (name == "cs" || name == "CS")
    addChosen();
  else if (name == "ID")
    skipInlineSamples();
}

QStringList Scanner::run() {
  while (at_ < end_) {
    const char c = *at_;
    if (isPostScriptSpace(c))
      ++at_;
    else if (c == '(')
      skipString();
    else if (c == '%')
      skipTo('\n');
    else if (c == '<' && end_ - at_ > 1 && at_[1] != '<')
      skipTo('>');
    else if (c == '/') {
      ++at_;
      takeName(word());
    } else if (isDelimiter(c))
      ++at_;
    else {
      takeOperator(word());
    }
  }
  return found_;
}

/// Thrown through qpdf, which takes it for damage.
struct Enough : std::runtime_error {
  Enough() : std::runtime_error("enough was read") {}
};

class Collector final : public Pipeline {
 public:
  explicit Collector(qint64 atMost) : Pipeline("the first bytes", nullptr), room_(size_t(atMost)) {}
  void write(const unsigned char* data, size_t length) override {
    const size_t taken = std::min(length, room_ - bytes.size());
    bytes.append(reinterpret_cast<const char*>(data), taken);
    if (taken < length) throw Enough();
  }
  void finish() override {}

  std::string bytes;

 private:
  const size_t room_;
};

}  // namespace

QStringList deviceColoursOf(QByteArrayView contents) {
  return Scanner(contents).run();
}

std::string unpacked(QPDFObjectHandle stream, qint64 atMost) {
  Collector collector(atMost);
  try {
    stream.pipeStreamData(&collector, 0, qpdf_dl_generalized, true);
  } catch (const std::exception&) {
    // qpdf lets some pass; what came until then is there.
  }
  return std::move(collector.bytes);
}

}  // namespace norvex::engine
