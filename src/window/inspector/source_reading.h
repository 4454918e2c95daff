// An EPS source read in an encoding that somebody chose.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "metadata/guessed_header.h"
#include "metadata/header_dictionary.h"

namespace norvex {

struct SourceReading {
  bool isValid = true;      ///< false: the source is not valid in the chosen encoding
  HeaderDictionary header;  ///< empty when it is not valid
  QString text;
  std::optional<GuessedHeader> guess;  ///< where nothing was chosen and the source decodes in no encoding
};

/// The texts of `source` in an encoding of encodingNames(), or as they are found without one (an empty name).
/// `found`: its header dictionary, of which the rest stays. Thread-safe.
[[nodiscard]] SourceReading readSource(const QByteArray& source, const QString& encodingName,
                                       const HeaderDictionary& found);

}  // namespace norvex
