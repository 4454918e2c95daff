// Words of the tables that are free of Qt, as Qt takes them.
#pragma once

#include <QLatin1String>
#include <QString>

#include <string_view>

namespace norvex {

/// The text itself, not a copy: it must outlive the result. A table's does.
[[nodiscard]] constexpr QLatin1String latin1(std::string_view text) {
  return {text.data(), qsizetype(text.size())};
}

}  // namespace norvex
