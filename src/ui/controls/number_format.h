// Numbers in a field by a three-part pattern: positive; zero; negative.
#pragma once

#include <QLocale>
#include <QString>

#include <optional>

namespace norvex {

/// A pattern such as "#,###.0000;0.0000;-#,##0.0000". `0` is a digit that is always there, `#` one that is
/// there when the number has it, `,` asks for groups of three, everything else stands for itself. A missing
/// zero part is the positive one, a missing negative part the positive one after a minus sign. Point and
/// group sign of what is shown are the locale's. A value.
class NumberFormat {
 public:
  NumberFormat() = default;
  explicit NumberFormat(const QString& pattern);

  [[nodiscard]] QString string(double value, const QLocale& locale = QLocale()) const;
  /// What string() shows in that locale reads back; beside it a single point or comma is the decimal sign
  /// everywhere, and of both the one behind, so that a number from elsewhere is understood. Spaces are
  /// ignored, full-width digits are digits. Nothing: not a (finite) number.
  [[nodiscard]] static std::optional<double> number(const QString& text, const QLocale& locale = QLocale());

 private:
  struct Part {
    QString before, after;  ///< literal text around the digits
    int minimumDigits = 1;  ///< before the point
    int decimals = 0;
    bool grouped = false;
  };
  [[nodiscard]] static Part parse(const QString& pattern);
  [[nodiscard]] static QString write(double magnitude, const Part& part, const QLocale& locale);

  Part positive_, zero_, negative_{QStringLiteral("-"), {}};
};

}  // namespace norvex
