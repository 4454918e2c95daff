// Sizes of paper and their names.
#pragma once

#include <QList>
#include <QSizeF>
#include <QString>

#include <optional>

namespace norvex {

/// Upright: never wider than high.
struct Paper {
  QString name;     ///< as people say it: "A4", "Letter"
  QString keyword;  ///< as printers are told: "iso_a4_210x297mm"
  QSizeF size;      ///< points
};

/// The sizes that every print panel offers, the usual ones first.
[[nodiscard]] const QList<Paper>& commonPapers();

/// The paper of that name or keyword, whatever its case ("a4", "iso_a4_210x297mm", "custom_x_100x200mm").
/// Nothing for a name that is none.
[[nodiscard]] std::optional<Paper> paperNamed(const QString& name);

/// The common paper of that size (upright or lying, to within half a millimetre), otherwise one without a
/// name of its own.
[[nodiscard]] Paper paperOfSize(const QSizeF& points);

/// The paper of the user's locale (LC_ALL, LC_PAPER, LANG), installed or not: A4 or Letter.
[[nodiscard]] Paper localePaper();

}  // namespace norvex
