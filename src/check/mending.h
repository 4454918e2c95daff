// What of a rule's mend the program does by itself.
#pragma once

#include <string_view>

#include "check/rule_table.h"

namespace norvex {

/// Who mends what breaks a rule.
enum class Mending {
  ByHand,   ///< nobody but the picture's author
  Repair,   ///< repair, whatever becomes of the preview
  Preview,  ///< repair, when it makes the preview anew
};

inline constexpr std::string_view repairMends = "repair ";
inline constexpr std::string_view rebuildMends = "repair --preview rebuild ";

/// The mends of the table name the command that does them.
[[nodiscard]] constexpr Mending mendingOf(const RuleRow& row) {
  if (row.mend.starts_with(rebuildMends)) return Mending::Preview;
  return row.mend.starts_with(repairMends) ? Mending::Repair : Mending::ByHand;
}

/// The mend without the options of a command line.
[[nodiscard]] constexpr std::string_view mendingWords(const RuleRow& row) {
  return mendingOf(row) == Mending::Preview ? std::string_view("repair makes one") : row.mend;
}

}  // namespace norvex
