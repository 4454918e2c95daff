// Errors and remarks in the user's language.
#pragma once

#include <QString>

#include "base/result.h"
#include "picture/told_error.h"

namespace norvex {

/// As toldError(), its sentence whole and in the user's language. Thread-safe.
[[nodiscard]] ToldError localizedError(const Error& error);

/// A sentence of told_sentences.h, whole and in the user's language; any other whole, as it stands.
/// Thread-safe.
[[nodiscard]] QString localizedSentence(const QString& english);

}  // namespace norvex
