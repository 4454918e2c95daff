// An SVG document's text cut into its pieces of markup, each as it was written.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

namespace norvex::engine {

enum class SvgTokenKind {
  Declaration,
  DocumentType,
  Instruction,
  Comment,
  CharacterData,
  StartTag,
  EndTag,
  EmptyTag,
  Text
};

/// A piece of the text, [start, start + length).
struct SvgToken {
  SvgTokenKind kind = SvgTokenKind::Text;
  qsizetype start = 0;
  qsizetype length = 0;
  /// Of a start tag: the index of its end tag. Of any other token: its own index.
  qsizetype end = 0;
};

/// REQUIRES text that inspectSvg() found well-formed (any other text is cut somehow, but within its bounds).
/// All the tokens together are the text. Entity references are not looked into; they are part of a Text.
[[nodiscard]] QList<SvgToken> tokenizeSvg(const QByteArray& utf8);

/// Of a tag: the element's name as written, with its prefix.
[[nodiscard]] QByteArrayView tagName(const QByteArray& utf8, const SvgToken& token);

/// One attribute of a tag, as written.
struct TagAttribute {
  QByteArrayView name;
  QByteArrayView value;  ///< without the quotes
  QByteArrayView all;    ///< from the name to the closing quote
};
[[nodiscard]] QList<TagAttribute> tagAttributes(const QByteArray& utf8, const SvgToken& token);

/// True if there is nothing but blanks and line ends, literally.
[[nodiscard]] bool isBlank(QByteArrayView text);

}  // namespace norvex::engine
