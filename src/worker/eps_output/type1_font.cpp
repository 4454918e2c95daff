#include "worker/eps_output/type1_font.h"

#include <algorithm>
#include <cctype>

#include "worker/eps_output/postscript_tokens.h"

namespace norvex::engine {
namespace {

using Kind = PostScriptToken::Kind;

constexpr size_t kMostOutlines = 65536;
constexpr qsizetype kMostNumbers = 64;  // of an array
constexpr quint16 kEexecKey = 55665;
constexpr qsizetype kRandomBytes = 4;  // before what is encrypted

bool isAmong(const QByteArray& key, std::initializer_list<const char*> keys) {
  return std::any_of(keys.begin(), keys.end(), [&](const char* one) { return key == one; });
}

quint16 nextKey(quint16 key, quint8 cipher) {
  return quint16((cipher + key) * 52845u + 22719u);
}

// The segments of a PC file without their headers.
QByteArray withoutSegments(const QByteArray& program) {
  if (!program.startsWith('\x80')) return program;
  QByteArray flat;
  qsizetype at = 0;
  while (at + 6 <= program.size() && program[at] == '\x80' &&
         (program[at + 1] == 1 || program[at + 1] == 2)) {
    quint32 length = 0;
    for (int i = 3; i >= 0; --i) length = (length << 8) | quint8(program[at + 2 + i]);
    flat += program.mid(at + 6, qsizetype(length));
    at += 6 + qsizetype(length);
  }
  return flat;
}

bool isHex(char c) {
  return std::isxdigit(quint8(c)) != 0;
}

QByteArray binary(QByteArrayView encrypted) {
  if (encrypted.size() < kRandomBytes ||
      !std::all_of(encrypted.begin(), encrypted.begin() + kRandomBytes, isHex))
    return encrypted.toByteArray();
  return QByteArray::fromHex(encrypted.toByteArray());
}

// The numbers of an array or a procedure; none when there is anything else in it.
Type1Font::Numbers numbers(PostScriptTokens& tokens) {
  Type1Font::Numbers found;
  if (tokens.peek().kind != Kind::Open) return {};
  (void)tokens.next();
  for (;;) {
    const PostScriptToken token = tokens.peek();
    if (token.kind != Kind::Number && token.kind != Kind::Close) return {};
    (void)tokens.next();
    if (token.kind == Kind::Close) return found;
    if (found.size() == kMostNumbers) return {};
    found << token.text;
  }
}

bool isValue(const PostScriptToken& token) {
  return token.kind == Kind::Number || token.isWord("true") || token.isWord("false");
}

void skipProcedure(PostScriptTokens& tokens) {
  for (int depth = 1; depth > 0;) {
    const PostScriptToken token = tokens.next();
    if (token.kind == Kind::End) return;
    if (token.text == "{" && token.kind == Kind::Open) ++depth;
    if (token.text == "}" && token.kind == Kind::Close) --depth;
  }
}

class ClearText {
 public:
  ClearText(PostScriptTokens& tokens, Type1Font& font) : tokens_(tokens), font_(font) {}

  // True when the encrypted part follows.
  bool run() {
    for (;;) {
      const PostScriptToken token = tokens_.next();
      if (token.kind == Kind::End) return false;
      if (token.isWord("eexec")) return true;
      if (token.kind == Kind::Literal) take(token.text);
    }
  }

 private:
  void take(const QByteArray& key) {
    if (key == "FontName" && font_.name.isEmpty()) {
      if (tokens_.peek().kind == Kind::Literal) font_.name = plainName(tokens_.next().text);
    } else if (key == "FontMatrix" && font_.matrix.isEmpty()) {
      if (const auto found = numbers(tokens_); found.size() == 6) font_.matrix = found;
    } else if (key == "FontBBox" && font_.box.isEmpty()) {
      if (const auto found = numbers(tokens_); found.size() == 4) font_.box = found;
    } else if (key == "WeightVector" && font_.weights.isEmpty()) {
      font_.weights = numbers(tokens_);
    } else if (key == "PaintType" || key == "StrokeWidth") {
      if (tokens_.peek().kind == Kind::Number)
        (key == "PaintType" ? font_.paintType : font_.strokeWidth) = tokens_.next().text;
    } else if (key == "Encoding" && !encoded_) {
      takeEncoding();
    } else if (isAmong(key, {"version", "Notice", "Copyright", "FullName", "FamilyName", "Weight"})) {
      if (tokens_.peek().kind == Kind::String) font_.information.emplace_back(key, tokens_.next().text);
    }
  }

  void takeEncoding() {
    const PostScriptToken first = tokens_.peek();
    encoded_ = true;
    if (first.isWord("StandardEncoding")) return;
    std::map<int, QByteArray> names;
    if (first.text == "[") {
      (void)tokens_.next();
      for (int code = 0; tokens_.peek().kind == Kind::Literal && code < 256; ++code)
        names[code] = plainName(tokens_.next().text);
    } else if (first.kind == Kind::Number) {
      takeListed(names);
    }
    font_.encoding = std::move(names);
  }

  // "dup 65 /A put" and so on up to "def".
  void takeListed(std::map<int, QByteArray>& names) {
    for (;;) {
      const PostScriptToken token = tokens_.peek();
      if (token.kind == Kind::End || token.isWord("def") || token.isWord("readonly") || token.isWord("eexec"))
        return;
      (void)tokens_.next();
      if (token.text == "{") skipProcedure(tokens_);
      if (!token.isWord("dup") || tokens_.peek().kind != Kind::Number) continue;
      const auto code = smallNumber(tokens_.next().text);
      if (tokens_.peek().kind == Kind::Literal && code && *code < 256)
        names[*code] = plainName(tokens_.next().text);
    }
  }

  PostScriptTokens& tokens_;
  Type1Font& font_;
  bool encoded_ = false;
};

class PrivatePart {
 public:
  PrivatePart(PostScriptTokens& tokens, Type1Font& font) : tokens_(tokens), font_(font) {}

  void run() {
    for (;;) {
      const PostScriptToken token = tokens_.next();
      if (token.kind == Kind::End || token.isWord("closefile")) return;
      if (token.kind != Kind::Literal) continue;
      if (token.text == "Subrs" && font_.subroutines.empty())
        takeSubroutines();
      else if (token.text == "CharStrings" && font_.outlines.empty())
        takeOutlines();
      else
        takeHint(token.text);
    }
  }

 private:
  void takeHint(const QByteArray& key) {
    if (isAmong(key, {"BlueValues", "OtherBlues", "FamilyBlues", "FamilyOtherBlues", "StdHW", "StdVW",
                      "StemSnapH", "StemSnapV"})) {
      if (auto found = numbers(tokens_); !found.isEmpty()) font_.hintArrays.emplace_back(key, found);
    } else if (isAmong(key, {"BlueScale", "BlueShift", "BlueFuzz", "lenIV", "ForceBold", "LanguageGroup",
                             "ExpansionFactor", "RndStemUp"})) {
      if (isValue(tokens_.peek())) font_.hintValues.emplace_back(key, tokens_.next().text);
    }
  }

  // "12 RD ", twelve bytes: the operator may have any name.
  std::optional<QByteArray> takeBytes() {
    if (tokens_.peek().kind != Kind::Number) return {};
    const auto length = smallNumber(tokens_.next().text);
    if (!length || tokens_.peek().kind != Kind::Word) return {};
    (void)tokens_.next();
    return tokens_.bytes(*length);
  }

  // "9 array dup 0 12 RD … NP dup 1 …", the end of each being one word or two.
  void takeSubroutines() {
    if (tokens_.peek().kind != Kind::Number) return;
    (void)tokens_.next();
    if (!tokens_.peek().isWord("array")) return;
    (void)tokens_.next();
    while (tokens_.peek().isWord("dup")) {
      (void)tokens_.next();
      if (tokens_.peek().kind != Kind::Number) return;
      const auto number = smallNumber(tokens_.next().text);
      auto bytes = takeBytes();
      if (!number || !bytes) return;
      font_.subroutines[*number] = std::move(*bytes);
      for (int i = 0; i < 2 && tokens_.peek().kind == Kind::Word && !tokens_.peek().isWord("dup"); ++i)
        (void)tokens_.next();
    }
  }

  void takeOutlines() {
    if (tokens_.peek().kind != Kind::Number) return;
    while (font_.outlines.size() < kMostOutlines) {
      const PostScriptToken token = tokens_.next();
      if (token.kind == Kind::End || token.isWord("end")) return;
      if (token.kind != Kind::Literal) continue;
      auto bytes = takeBytes();
      if (!bytes) return;
      font_.outlines.emplace_back(plainName(token.text), std::move(*bytes));
    }
  }

  PostScriptTokens& tokens_;
  Type1Font& font_;
};

}  // namespace

QByteArray eexecEncrypted(const QByteArray& plain) {
  QByteArray cipher = QByteArray(kRandomBytes, '\0') + plain;
  quint16 key = kEexecKey;
  for (char& c : cipher) {
    c = char(quint8(c) ^ (key >> 8));
    key = nextKey(key, quint8(c));
  }
  return cipher;
}

QByteArray eexecDecrypted(const QByteArray& encrypted) {
  QByteArray plain = encrypted;
  quint16 key = kEexecKey;
  for (char& c : plain) {
    const auto cipher = quint8(c);
    c = char(cipher ^ (key >> 8));
    key = nextKey(key, cipher);
  }
  return plain;
}

std::optional<Type1Font> readType1Font(const QByteArray& program) {
  const QByteArray flat = withoutSegments(program);
  if (!flat.startsWith("%!")) return {};
  Type1Font font;
  PostScriptTokens clear(flat);
  if (!ClearText(clear, font).run()) return {};
  qsizetype at = clear.place();
  while (at < flat.size() && (flat[at] == ' ' || flat[at] == '\t' || flat[at] == '\r' || flat[at] == '\n'))
    ++at;
  const QByteArray plain = eexecDecrypted(binary(QByteArrayView(flat).sliced(at))).mid(kRandomBytes);
  PostScriptTokens hidden(plain);
  PrivatePart(hidden, font).run();
  if (font.outlines.empty()) return {};
  if (font.matrix.isEmpty()) font.matrix = {"0.001", "0", "0", "0.001", "0", "0"};
  return font;
}

}  // namespace norvex::engine
