// Numbers in a field by a three-part pattern: positive; zero; negative.
#pragma once

#include <QString>

#include <optional>

namespace norvex {

/// A pattern such as "#,###.0000;0.0000;-#,##0.0000". `0` is a digit that is always there, `#` one that is
/// there when the number has it, `,` asks for groups of three, everything else stands for itself. A missing
/// zero part is the positive one, a missing negative part the positive one after a minus sign. Point and
/// group sign are those of the C locale, so that a number reads back in every locale. A value.
class NumberFormat {
 public:
  NumberFormat() = default;
  explicit NumberFormat(const QString& pattern);

  [[nodiscard]] QString string(double value) const;
  /// Group signs and spaces are ignored; a decimal comma is taken for a point when there is no point.
  /// Nothing: not a (finite) number.
  [[nodiscard]] static std::optional<double> number(const QString& text);

 private:
  struct Part {
    QString before, after;  ///< literal text around the digits
    int minimumDigits = 1;  ///< before the point
    int decimals = 0;
    bool grouped = false;
  };
  [[nodiscard]] static Part parse(const QString& pattern);
  [[nodiscard]] static QString write(double magnitude, const Part& part);

  Part positive_, zero_, negative_{QStringLiteral("-"), {}};
};

}  // namespace norvex
