#include "check/profile_text.h"

#include <algorithm>

namespace norvex {
namespace {

/// More is no number that anybody means.
constexpr qsizetype kMostDigits = 30;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isBare(char c) {
  return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '-';
}

/// Goes over the text once. What it takes it writes down.
class Scanner {
 public:
  explicit Scanner(const QByteArray& text) : at_(text.data()), end_(at_ + text.size()) {
    if (text.startsWith("\xEF\xBB\xBF")) at_ += 3;
  }

  ProfileText run() {
    bool good = true;
    while (good && at_ < end_) good = statement() && endOfLine();
    if (!good) result_.badLine = line_;
    return result_;
  }

 private:
  [[nodiscard]] char peek() const { return at_ < end_ ? *at_ : '\0'; }
  bool take(char c) {
    if (at_ == end_ || *at_ != c) return false;
    result_.toml += *at_++;
    return true;
  }
  void takeWhile(bool (*wanted)(char)) {
    while (at_ < end_ && wanted(*at_)) take(*at_);
  }
  void skipBlanks() {
    takeWhile([](char c) { return c == ' ' || c == '\t'; });
  }

  /// A comment and a line feed, or the end of the text.
  bool endOfLine() {
    skipBlanks();
    if (peek() == '#') at_ = std::find(at_, end_, '\n');
    if (peek() == '\r') ++at_;
    if (at_ == end_) return true;
    if (!take('\n')) return false;
    ++line_;
    return true;
  }

  bool statement() {
    skipBlanks();
    if (at_ == end_ || peek() == '#' || peek() == '\r' || peek() == '\n') return true;
    if (take('[')) return name() && take(']');
    return name() && take('=') && value();
  }

  bool name() {
    do {
      skipBlanks();
      if (peek() == '"' || peek() == '\'') {
        if (!string()) return false;
      } else if (isBare(peek())) {
        takeWhile(isBare);
      } else {
        return false;
      }
      skipBlanks();
    } while (take('.'));
    return true;
  }

  bool string() {
    const char quote = peek();
    take(quote);
    const char* begin = at_;
    while (at_ < end_ && *at_ != quote && *at_ != '\\' && uchar(*at_) >= 0x20 && *at_ != 0x7F) take(*at_);
    const QByteArrayView text(begin, at_ - begin);
    return text.isValidUtf8() && take(quote);
  }

  bool number() {
    const char* begin = at_;
    if (peek() == '+' || peek() == '-') take(peek());
    if (!digits()) return false;
    if (take('.') && !digits()) return false;
    if (peek() == 'e' || peek() == 'E') {
      take(peek());
      if (peek() == '+' || peek() == '-') take(peek());
      if (!digits()) return false;
    }
    return at_ - begin <= kMostDigits;
  }
  bool digits() {
    const char* begin = at_;
    takeWhile(isDigit);
    return at_ > begin;
  }

  bool scalar() {
    if (peek() == '"' || peek() == '\'') return string();
    for (const QByteArrayView word : {QByteArrayView("true"), QByteArrayView("false")})
      if (QByteArrayView(at_, end_ - at_).startsWith(word)) {
        takeWhile(isBare);
        return result_.toml.endsWith(word);
      }
    return number();
  }

  bool value() {
    skipBlanks();
    return take('[') ? list() : scalar();
  }

  /// Behind its bracket; may go over several lines.
  bool list() {
    while (nextOfList() && peek() != ']') {
      if (!scalar() || !nextOfList()) return false;
      if (!take(',')) break;
    }
    return take(']');
  }
  /// Over blanks, comments and line feeds.
  bool nextOfList() {
    for (skipBlanks(); peek() == '#' || peek() == '\r' || peek() == '\n'; skipBlanks())
      if (!endOfLine()) return false;
    return at_ < end_;
  }

  const char* at_;
  const char* const end_;
  int line_ = 1;
  ProfileText result_;
};

}  // namespace

ProfileText plainProfile(const QByteArray& toml) {
  return Scanner(toml).run();
}

}  // namespace norvex
