// Structuring comments as they stand in the text of a PostScript file.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <array>

#include "metadata/header_dictionary.h"

namespace norvex {

/// The comments that the header dictionary is made of.
enum class DscKeyword {
  Title,
  Creator,
  CreationDate,
  For,
  Copyright,
  Routing,
  BeginPreview,
  DeclaredEncoding
};
inline constexpr int dscKeywordCount = 8;

/// A decoded PostScript text that is kept as bytes. Headers are a few lines of files of megabytes, so only
/// the values that are asked for become strings. The bytes are borrowed, except where the encoding has to be
/// undone first. REQUIRES for the constructor: isDecodable(bytes, encodingNumber).
class DscComments {
 public:
  DscComments(QByteArrayView bytes, qint64 encodingNumber);

  /// True when the keyword occurs anywhere in the text, in comments or not.
  [[nodiscard]] bool contains(DscKeyword keyword) const { return behind(keyword) >= 0; }
  /// The value behind the keyword's first occurrence: blanks and line breaks skipped, then everything up to a
  /// line feed, a carriage return or a percent sign; trailing blanks stay. Empty when there is none.
  [[nodiscard]] QString value(DscKeyword keyword) const;
  /// The text behind the keyword's first occurrence, in an encoding that keeps ASCII as it is. REQUIRES
  /// contains().
  [[nodiscard]] QByteArrayView textBehind(DscKeyword keyword) const;

 private:
  [[nodiscard]] qsizetype behind(DscKeyword keyword) const { return behind_[std::size_t(keyword)]; }

  QByteArray undone_;  ///< UTF-8 of a text whose encoding does not keep ASCII bytes
  QByteArrayView text_;
  qint64 encodingNumber_;
  std::array<qsizetype, dscKeywordCount> behind_;
};

}  // namespace norvex
