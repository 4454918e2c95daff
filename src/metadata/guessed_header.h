// The header of a source that decodes in no encoding, guessed.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "metadata/header_dictionary.h"

namespace norvex {

/// Values read in an encoding that nobody declared.
struct GuessedHeader {
  QString encodingName;  ///< "iso-8859-1" or "macintosh"
  HeaderDictionary
      values;  ///< of Title, Creator, CreationDate, For, Copyright, Description: what is not empty
};

/// The comments of an EPS source whose header dictionary `header` has no texts, read as Latin-1, or as Mac
/// Roman where they hold bytes (80 to 9F) that are control characters in Latin-1. Nothing when the source
/// decoded or says nothing. A guess: kept apart from the dictionary, and no output is made of it.
/// Thread-safe.
[[nodiscard]] std::optional<GuessedHeader> guessedHeader(const QByteArray& source,
                                                         const HeaderDictionary& header);

}  // namespace norvex
