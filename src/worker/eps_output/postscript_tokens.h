// The tokens of PostScript that is read as data and never run.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <optional>

namespace norvex::engine {

struct PostScriptToken {
  enum class Kind { End, Number, Literal, Word, String, Open, Close };
  Kind kind = Kind::End;
  QByteArray text;  ///< of a literal name what follows the slash, of a string what it holds

  [[nodiscard]] bool isWord(QByteArrayView word) const { return kind == Kind::Word && text == word; }
};

/// Reads `text`, which must outlive it, from front to back. Comments are passed over; bytes that are no
/// PostScript are words.
class PostScriptTokens {
 public:
  explicit PostScriptTokens(QByteArrayView text) : text_(text) {}
  [[nodiscard]] PostScriptToken next();
  /// The token that next() will give.
  [[nodiscard]] PostScriptToken peek() { return PostScriptTokens(*this).next(); }
  /// The `count` bytes behind the one that ends the last token; nothing when there are not as many.
  [[nodiscard]] std::optional<QByteArray> bytes(qsizetype count);
  /// Behind the last token.
  [[nodiscard]] qsizetype place() const { return at_; }

 private:
  [[nodiscard]] PostScriptToken string();
  void skipBlanks();

  QByteArrayView text_;
  qsizetype at_ = 0;
};

/// Of a number without a radix or with one: "65", "8#101". Nothing when it is no whole number from 0 to
/// 65535.
[[nodiscard]] std::optional<int> smallNumber(const QByteArray& text);

/// `name` as PostScript reads it whole behind a slash: what would end it or is no visible ASCII is "_".
[[nodiscard]] QByteArray plainName(QByteArray name);

}  // namespace norvex::engine
