// An error as people are told it: a sentence of ours, a library's own words behind it.
#pragma once

#include <QString>

#include "base/result.h"

namespace norvex {

struct ToldError {
  QString sentence;  ///< without a full stop at its end
  QString details;  ///< what an interpreter or parser said, as it said it; empty: nothing beyond the sentence
};

/// `error`'s message taken apart where it carries words of a library. Thread-safe.
[[nodiscard]] ToldError toldError(const Error& error);

}  // namespace norvex
