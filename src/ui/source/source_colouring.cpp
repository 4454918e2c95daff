#include "ui/source/source_colouring.h"

#include <QStringView>

#include <algorithm>

namespace norvex {

namespace {

constexpr qsizetype kLookBack = 64 * 1024;

bool isLineEnd(QChar c) {
  return c == u'\n' || c == u'\r';
}

/// Collects spans of a part of a text.
class Scanner {
 public:
  Scanner(const QString& text, qsizetype start, qsizetype end, int limit)
      : text_(text), start_(start), end_(std::min(end, text.size())), limit_(limit) {}

  QList<SourceSpan> postScript() {
    qsizetype at = lineStart();
    bool first = true;
    int depth = 0;
    while (wanted(at)) {
      const QChar c = text_.at(at);
      if (isLineEnd(c)) {
        first = true;
        depth = 0;
        ++at;
        continue;
      }
      if (c == u'%' && depth == 0)
        at = percent(at, first);
      else {
        if (c == u'\\' && depth > 0)
          ++at;
        else if (c == u'(')
          ++depth;
        else if (c == u')' && depth > 0)
          --depth;
        ++at;
      }
      first = false;
    }
    return spans_;
  }

  QList<SourceSpan> markup() {
    qsizetype at = markupStart();
    while (wanted(at)) {
      at = QStringView(text_).left(end_).indexOf(u'<', at);
      if (at < 0) break;
      at = opened(at);
    }
    return spans_;
  }

 private:
  [[nodiscard]] bool wanted(qsizetype at) const { return at < end_ && spans_.size() < limit_; }

  void add(qsizetype from, qsizetype to, SourceToken token) {
    if (to > start_ && from < end_ && to > from) spans_.append({from, to - from, token});
  }

  [[nodiscard]] qsizetype lineStart() const {
    const qsizetype farthest = std::max<qsizetype>(0, start_ - kLookBack);
    qsizetype at = start_;
    while (at > farthest && !isLineEnd(text_.at(at - 1))) --at;
    return at;
  }

  qsizetype percent(qsizetype at, bool first) {
    qsizetype to = at;
    while (to < end_ && !isLineEnd(text_.at(to))) ++to;
    const QChar next = at + 1 < text_.size() ? text_.at(at + 1) : QChar();
    add(at, to, first && (next == u'%' || next == u'!') ? SourceToken::Structure : SourceToken::Comment);
    return to;
  }

  /// Where the construct begins that holds the start; the start itself between constructs.
  [[nodiscard]] qsizetype markupStart() const {
    const qsizetype farthest = std::max<qsizetype>(0, start_ - kLookBack);
    const QStringView before = QStringView(text_).mid(farthest, start_ - farthest);
    const auto holding = [&](QStringView open, QStringView close) -> qsizetype {
      const qsizetype opened = before.lastIndexOf(open);
      return opened >= 0 && before.indexOf(close, opened + open.size()) < 0 ? farthest + opened : -1;
    };
    for (const auto& [open, close] :
         {std::pair(u"<!--", u"-->"), std::pair(u"<![CDATA[", u"]]>"), std::pair(u"<", u">")})
      if (const qsizetype at = holding(open, close); at >= 0) return at;
    return start_;
  }

  [[nodiscard]] bool startsWith(qsizetype at, QStringView what) const {
    return QStringView(text_).mid(at, what.size()) == what;
  }

  /// One past the next `close`, or the end of the part.
  [[nodiscard]] qsizetype past(qsizetype at, QStringView close) const {
    const qsizetype found = QStringView(text_).left(end_).indexOf(close, at);
    return found < 0 ? end_ : found + close.size();
  }

  qsizetype opened(qsizetype at) {
    if (startsWith(at, u"<!--")) {
      const qsizetype to = past(at + 4, u"-->");
      add(at, to, SourceToken::Comment);
      return to;
    }
    if (startsWith(at, u"<![CDATA[")) {
      const qsizetype to = past(at, u"]]>");
      add(at, at + 9, SourceToken::Tag);
      add(to - 3, to, SourceToken::Tag);
      return to;
    }
    return tag(at);
  }

  qsizetype tag(qsizetype at) {
    qsizetype from = at++;
    if (at < end_ && text_.at(at) == u'/') ++at;
    while (at < end_ && !text_.at(at).isSpace() && !QStringView(u">/=").contains(text_.at(at))) ++at;
    add(from, at, SourceToken::Tag);
    while (wanted(at)) {
      const QChar c = text_.at(at);
      if (c == u'"' || c == u'\'') {
        from = at;
        const qsizetype close = QStringView(text_).left(end_).indexOf(c, at + 1);
        at = close < 0 ? end_ : close + 1;
        add(from, at, SourceToken::Value);
      } else if (c == u'<') {
        return at;  // an entity's or a broken file's
      } else if (c == u'>') {
        const bool empty = text_.at(at - 1) == u'/' || text_.at(at - 1) == u'?';
        add(empty ? at - 1 : at, at + 1, SourceToken::Tag);
        return at + 1;
      } else {
        ++at;
      }
    }
    return at;
  }

  const QString& text_;
  const qsizetype start_, end_;
  const int limit_;
  QList<SourceSpan> spans_;
};

}  // namespace

SourceLanguage sourceLanguage(const QString& text) {
  qsizetype at = 0;
  while (at < std::min<qsizetype>(text.size(), 1024) &&
         (text.at(at).isSpace() || text.at(at) == QChar::ByteOrderMark))
    ++at;
  if (at >= text.size()) return SourceLanguage::Plain;
  if (text.at(at) == u'%') return SourceLanguage::PostScript;
  return text.at(at) == u'<' ? SourceLanguage::Markup : SourceLanguage::Plain;
}

QList<SourceSpan> sourceSpans(const QString& text, SourceLanguage language, qsizetype start, qsizetype end,
                              int limit) {
  Scanner scanner(text, start, end, limit);
  switch (language) {
    case SourceLanguage::PostScript:
      return scanner.postScript();
    case SourceLanguage::Markup:
      return scanner.markup();
    case SourceLanguage::Plain:
      break;
  }
  return {};
}

}  // namespace norvex
