#include "worker/svg/svg_pretty.h"

#include <QByteArrayView>
#include <QList>
#include <QSet>

#include <algorithm>

#include "worker/svg/svg_tokens.h"

namespace norvex::engine {
namespace {

/// Elements whose white space is drawn, shown or executed.
bool keepsContent(QByteArrayView name) {
  static const QSet<QByteArray> names{"text",          "tspan",    "textPath", "tref",   "altGlyph",
                                      "title",         "desc",     "style",    "script", "flowRoot",
                                      "foreignObject", "flowPara", "flowSpan", "pre"};
  const qsizetype colon = name.lastIndexOf(':');
  return names.contains(name.sliced(colon + 1).toByteArray());
}

class Indenter {
 public:
  explicit Indenter(const QByteArray& text) : text_(text), tokens_(tokenizeSvg(text)) {}
  QByteArray run();

 private:
  [[nodiscard]] QByteArrayView piece(const SvgToken& token) const {
    return QByteArrayView(text_).sliced(token.start, token.length);
  }
  [[nodiscard]] bool preserves(const SvgToken& tag) const;
  [[nodiscard]] bool isLeaf(qsizetype index) const;
  [[nodiscard]] bool staysWhole(qsizetype index) const;
  void findMixed();
  void line(QByteArrayView content);
  void lineOf(qsizetype first, qsizetype last);

  const QByteArray& text_;
  const QList<SvgToken> tokens_;
  QList<bool> mixed_;  // by token: a start tag whose element has character data among its children
  QByteArray result_;
  QByteArray lineEnd_ = "\n";
  int depth_ = 0;
};

bool Indenter::preserves(const SvgToken& tag) const {
  for (const TagAttribute& attribute : tagAttributes(text_, tag))
    if (attribute.name == "xml:space") return attribute.value == "preserve";
  return false;
}

void Indenter::findMixed() {
  mixed_.fill(false, tokens_.size());
  QList<qsizetype> open;
  for (qsizetype i = 0; i < tokens_.size(); ++i) {
    const SvgToken& token = tokens_[i];
    const bool characters = token.kind == SvgTokenKind::CharacterData ||
                            (token.kind == SvgTokenKind::Text && !isBlank(piece(token)));
    if (characters && !open.isEmpty()) mixed_[open.last()] = true;
    if (token.kind == SvgTokenKind::StartTag) open.append(i);
    if (token.kind == SvgTokenKind::EndTag && !open.isEmpty()) open.removeLast();
  }
}

/// Nothing between the tags but perhaps white space; in a foreign vocabulary even that may mean something.
bool Indenter::isLeaf(qsizetype index) const {
  const qsizetype end = tokens_[index].end;
  return end == index + 1 || (end == index + 2 && tokens_[index + 1].kind == SvgTokenKind::Text);
}

bool Indenter::staysWhole(qsizetype index) const {
  return mixed_[index] || isLeaf(index) || keepsContent(tagName(text_, tokens_[index])) ||
         preserves(tokens_[index]);
}

void Indenter::line(QByteArrayView content) {
  result_.append(QByteArray(2 * depth_, ' ')).append(content).append(lineEnd_);
}

void Indenter::lineOf(qsizetype first, qsizetype last) {
  const qsizetype start = tokens_[first].start;
  line(QByteArrayView(text_).sliced(start, tokens_[last].start + tokens_[last].length - start));
}

QByteArray Indenter::run() {
  const qsizetype newline = text_.indexOf('\n');
  if (newline > 0 && text_[newline - 1] == '\r') lineEnd_ = "\r\n";
  result_.reserve(text_.size() + text_.size() / 4);
  findMixed();
  for (qsizetype i = 0; i < tokens_.size(); ++i) {
    const SvgToken& token = tokens_[i];
    if (token.kind == SvgTokenKind::Text) continue;  // blank: other text is inside what stays whole
    if (token.kind == SvgTokenKind::EndTag) {
      depth_ = std::max(0, depth_ - 1);
      line(piece(token));
    } else if (token.kind != SvgTokenKind::StartTag) {
      line(piece(token));
    } else if (staysWhole(i)) {
      lineOf(i, token.end);
      i = token.end;
    } else {
      line(piece(token));
      ++depth_;
    }
  }
  return result_;
}

}  // namespace

QByteArray prettySvg(const QByteArray& utf8) {
  return Indenter(utf8).run();
}

}  // namespace norvex::engine
