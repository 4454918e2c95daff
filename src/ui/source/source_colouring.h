// The parts of a source text that are coloured: comments of PostScript, tags of SVG.
#pragma once

#include <QList>
#include <QString>

namespace norvex {

enum class SourceLanguage { Plain, PostScript, Markup };
enum class SourceToken {
  Comment,    ///< text for people
  Structure,  ///< a comment that tells programs about the document: %! and %%
  Tag,        ///< the name of an element, with its brackets; a processing instruction; a document type
  Value       ///< an attribute's value with its quotes
};

/// A piece of one kind; positions are those of the text.
struct SourceSpan {
  qsizetype start = 0, length = 0;
  SourceToken token = SourceToken::Comment;
  bool operator==(const SourceSpan&) const = default;
};

/// Told by how the text begins.
[[nodiscard]] SourceLanguage sourceLanguage(const QString& text);

/// The spans that touch [start, end), in order, at most `limit` of them. Looks back no farther than 64 Ki
/// units to find out what the part begins in, so that its cost does not depend on the length of the text: a
/// comment that began earlier is not recognised. A percent sign inside a PostScript string is no comment if
/// the string began in the same line.
[[nodiscard]] QList<SourceSpan> sourceSpans(const QString& text, SourceLanguage language, qsizetype start,
                                            qsizetype end, int limit = 3000);

}  // namespace norvex
