#include "encoders/eps_header_rewriter.h"

#include <QStringDecoder>

#include "encoders/comment_value.h"

namespace norvex {
namespace {

bool isLineEnd(QChar c) {
  return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// The end of the line that holds position `at`, its terminator (LF, CR, CR LF, U+2028, U+2029) included.
qsizetype lineEnd(const QString& text, qsizetype at) {
  while (at < text.size() && !isLineEnd(text.at(at))) ++at;
  if (at >= text.size()) return at;
  const bool crLf = text.at(at) == u'\r' && at + 1 < text.size() && text.at(at + 1) == u'\n';
  return at + (crLf ? 2 : 1);
}

qsizetype lineStart(const QString& text, qsizetype at) {
  while (at > 0 && !isLineEnd(text.at(at - 1))) --at;
  return at;
}

void replaceLine(QString& text, const QString& keyword, const QString& value) {
  const qsizetype at = text.indexOf(keyword);
  if (at < 0) return;
  const qsizetype start = lineStart(text, at);
  text.replace(start, lineEnd(text, at) - start, keyword + u' ' + commentValue(value) + u'\n');
}

/// The line that ends the comments; a title may hold the same word.
qsizetype endOfComments(const QString& text) {
  const QString keyword = QStringLiteral("%%EndComments");
  for (qsizetype at = text.indexOf(keyword); at >= 0; at = text.indexOf(keyword, at + 1))
    if (lineStart(text, at) == at) return at;
  return text.indexOf(keyword);
}

void insertCopyright(QString& text, const HeaderDictionary& header) {
  const QString keyword = QStringLiteral("%%Copyright:");
  if (text.contains(keyword) || !header.contains(header::Copyright)) return;
  const QString line = keyword + u' ' + commentValue(header.value(header::Copyright).toString()) + u'\n';
  if (const qsizetype at = endOfComments(text); at >= 0) text.insert(at, line);
}

}  // namespace

QByteArray rewriteEpsHeader(const QByteArray& postScript, const HeaderDictionary& header,
                            const EpsHeaderDefaults& defaults) {
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
  QString text = decode(postScript);
  if (decode.hasError()) return {};

  const auto valueOr = [&header](const QString& key, const QString& fallback) {
    return header.contains(key) ? header.value(key).toString() : fallback;
  };
  replaceLine(text, QStringLiteral("%%Title:"), valueOr(header::Title, {}));
  replaceLine(text, QStringLiteral("%%Creator:"), valueOr(header::Creator, defaults.creator));
  replaceLine(text, QStringLiteral("%%CreationDate:"), valueOr(header::CreationDate, defaults.creationDate));
  replaceLine(text, QStringLiteral("%%For:"), valueOr(header::For, defaults.userFullName));
  insertCopyright(text, header);
  return text.toUtf8();
}

}  // namespace norvex
