#include "worker/eps_output/postscript_tokens.h"

#include <algorithm>

#include "base/blanks.h"

namespace norvex::engine {
namespace {

bool isDelimiter(char c) {
  return QByteArrayView("()<>[]{}/%").contains(c);
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// A decimal number as it may be written again. Radix numbers count as well, for they hold nothing else.
bool isNumber(QByteArrayView word) {
  if (word.startsWith('+') || word.startsWith('-')) word = word.sliced(1);
  bool digits = false;
  bool point = false;
  bool hash = false;
  for (qsizetype i = 0; i < word.size(); ++i) {
    if (isDigit(word[i])) {
      digits = true;
    } else if (word[i] == '.' && !point && !hash) {
      point = true;
    } else if (word[i] == '#' && digits && !point && !hash) {
      hash = true;
    } else if ((word[i] == 'e' || word[i] == 'E') && digits && !hash && i + 1 < word.size()) {
      QByteArrayView exponent = word.sliced(i + 1);
      if (exponent.startsWith('+') || exponent.startsWith('-')) exponent = exponent.sliced(1);
      return !exponent.isEmpty() && std::all_of(exponent.begin(), exponent.end(), isDigit);
    } else {
      return false;
    }
  }
  return digits;
}

}  // namespace

void PostScriptTokens::skipBlanks() {
  while (at_ < text_.size()) {
    if (text_[at_] == '%') {
      while (at_ < text_.size() && text_[at_] != '\n' && text_[at_] != '\r') ++at_;
    } else if (isPostScriptSpace(text_[at_])) {
      ++at_;
    } else {
      return;
    }
  }
}

PostScriptToken PostScriptTokens::string() {
  PostScriptToken token{PostScriptToken::Kind::String, {}};
  int depth = 1;
  while (at_ < text_.size()) {
    char c = text_[at_++];
    if (c == '(') ++depth;
    if (c == ')' && --depth == 0) break;
    if (c == '\\' && at_ < text_.size()) {
      c = text_[at_++];
      if (c >= '0' && c <= '7') {
        int code = c - '0';
        for (int i = 0; i < 2 && at_ < text_.size() && text_[at_] >= '0' && text_[at_] <= '7'; ++i)
          code = code * 8 + (text_[at_++] - '0');
        c = char(code);
      } else if (c == '\n') {
        continue;
      }
    }
    token.text += c;
  }
  return token;
}

PostScriptToken PostScriptTokens::next() {
  using Kind = PostScriptToken::Kind;
  skipBlanks();
  if (at_ >= text_.size()) return {};
  const char first = text_[at_];
  if (first == '(') {
    ++at_;
    return string();
  }
  if (first == '[' || first == '{' || first == ']' || first == '}' || first == '<' || first == '>' ||
      first == ')') {
    ++at_;
    return {first == '[' || first == '{' || first == '<' ? Kind::Open : Kind::Close, QByteArray(1, first)};
  }
  const bool literal = first == '/';
  if (literal) ++at_;
  const qsizetype from = at_;
  while (at_ < text_.size() && !isPostScriptSpace(text_[at_]) && !isDelimiter(text_[at_])) ++at_;
  const QByteArrayView word = text_.sliced(from, at_ - from);
  if (literal) return {Kind::Literal, word.toByteArray()};
  return {isNumber(word) ? Kind::Number : Kind::Word, word.toByteArray()};
}

std::optional<QByteArray> PostScriptTokens::bytes(qsizetype count) {
  if (count < 0 || at_ >= text_.size() || count > text_.size() - at_ - 1) return {};
  const QByteArray found = text_.sliced(at_ + 1, count).toByteArray();
  at_ += 1 + count;
  return found;
}

std::optional<int> smallNumber(const QByteArray& text) {
  const qsizetype hash = text.indexOf('#');
  bool valid = false;
  const int base = hash < 0 ? 10 : text.left(hash).toInt(&valid);
  if (hash >= 0 && (!valid || base < 2 || base > 36)) return {};
  const int value = text.mid(hash + 1).toInt(&valid, base);
  if (!valid || value < 0 || value > 65535) return {};
  return value;
}

QByteArray plainName(QByteArray name) {
  for (char& c : name)
    if (c <= ' ' || c > '~' || isDelimiter(c)) c = '_';
  return name;
}

}  // namespace norvex::engine
