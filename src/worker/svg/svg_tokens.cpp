#include "worker/svg/svg_tokens.h"

#include <algorithm>
#include <cstring>

#include "base/blanks.h"

namespace norvex::engine {
namespace {

/// Cuts one token after the other from the text.
class Scanner {
 public:
  explicit Scanner(const QByteArray& text) : text_(text) {}
  QList<SvgToken> run();

 private:
  [[nodiscard]] bool at(const char* mark) const {
    return QByteArrayView(text_).sliced(at_).startsWith(QByteArrayView(mark, qsizetype(std::strlen(mark))));
  }
  [[nodiscard]] qsizetype behind(const char* mark, qsizetype from) const {
    const qsizetype found = text_.indexOf(mark, from);
    return found < 0 ? text_.size() : found + qsizetype(std::strlen(mark));
  }
  [[nodiscard]] qsizetype tagEnd() const;
  [[nodiscard]] qsizetype documentTypeEnd() const;
  SvgToken next();

  const QByteArray& text_;
  qsizetype at_ = 0;
};

qsizetype Scanner::tagEnd() const {
  char quote = 0;
  for (qsizetype i = at_; i < text_.size(); ++i) {
    const char c = text_[i];
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '>') {
      return i + 1;
    }
  }
  return text_.size();
}

qsizetype Scanner::documentTypeEnd() const {
  const QByteArrayView text(text_);
  bool inSubset = false;
  for (qsizetype i = at_; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"' || c == '\'') {
      const qsizetype close = text_.indexOf(c, i + 1);
      if (close < 0) return text.size();
      i = close;
    } else if (text.sliced(i).startsWith("<!--")) {
      i = behind("-->", i + 4) - 1;
    } else if (text.sliced(i).startsWith("<?")) {
      i = behind("?>", i + 2) - 1;
    } else if (c == '[' || c == ']') {
      inSubset = c == '[';
    } else if (c == '>' && !inSubset) {
      return i + 1;
    }
  }
  return text.size();
}

SvgToken Scanner::next() {
  SvgToken token;
  qsizetype end = 0;
  if (at("<?")) {
    const bool declaration = at_ == 0 && at("<?xml") && text_.size() > 5 && isXmlSpace(text_[5]);
    token.kind = declaration ? SvgTokenKind::Declaration : SvgTokenKind::Instruction;
    end = behind("?>", at_);
  } else if (at("<!--")) {
    token.kind = SvgTokenKind::Comment;
    end = behind("-->", at_ + 4);
  } else if (at("<![CDATA[")) {
    token.kind = SvgTokenKind::CharacterData;
    end = behind("]]>", at_);
  } else if (at("<!")) {
    token.kind = SvgTokenKind::DocumentType;
    end = documentTypeEnd();
  } else if (at("<")) {
    end = tagEnd();
    token.kind =
        at("</") ? SvgTokenKind::EndTag
                 : (end - at_ > 2 && text_[end - 2] == '/' ? SvgTokenKind::EmptyTag : SvgTokenKind::StartTag);
  } else {
    const qsizetype found = text_.indexOf('<', at_);
    end = found < 0 ? text_.size() : found;
  }
  token.start = at_;
  token.length = end - at_;
  at_ = end;
  return token;
}

QList<SvgToken> Scanner::run() {
  QList<SvgToken> tokens;
  QList<qsizetype> open;
  while (at_ < text_.size()) {
    SvgToken token = next();
    token.end = tokens.size();
    if (token.kind == SvgTokenKind::StartTag) open.append(tokens.size());
    if (token.kind == SvgTokenKind::EndTag && !open.isEmpty()) tokens[open.takeLast()].end = tokens.size();
    tokens.append(token);
  }
  return tokens;
}

}  // namespace

QList<SvgToken> tokenizeSvg(const QByteArray& utf8) {
  return Scanner(utf8).run();
}

QByteArrayView tagName(const QByteArray& utf8, const SvgToken& token) {
  const QByteArrayView tag = QByteArrayView(utf8).sliced(token.start, token.length);
  qsizetype from = tag.startsWith("</") ? 2 : 1;
  from = std::min(from, tag.size());
  qsizetype to = from;
  while (to < tag.size() && !isXmlSpace(tag[to]) && tag[to] != '/' && tag[to] != '>') ++to;
  return tag.sliced(from, to - from);
}

QList<TagAttribute> tagAttributes(const QByteArray& utf8, const SvgToken& token) {
  const QByteArrayView tag = QByteArrayView(utf8).sliced(token.start, token.length);
  QList<TagAttribute> attributes;
  qsizetype i = 1 + tagName(utf8, token).size();
  for (;;) {
    while (i < tag.size() && isXmlSpace(tag[i])) ++i;
    const qsizetype name = i;
    while (i < tag.size() && !isXmlSpace(tag[i]) && tag[i] != '=' && tag[i] != '>' && tag[i] != '/') ++i;
    const qsizetype nameEnd = i;
    while (i < tag.size() && (isXmlSpace(tag[i]) || tag[i] == '=')) ++i;
    if (i >= tag.size() || nameEnd == name || (tag[i] != '"' && tag[i] != '\'')) return attributes;
    const qsizetype close = tag.indexOf(tag[i], i + 1);
    if (close < 0) return attributes;
    attributes.append({tag.sliced(name, nameEnd - name), tag.sliced(i + 1, close - i - 1),
                       tag.sliced(name, close + 1 - name)});
    i = close + 1;
  }
}

bool isBlank(QByteArrayView text) {
  return std::all_of(text.begin(), text.end(), isXmlSpace);
}

}  // namespace norvex::engine
