// What somebody reads in a window.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QStringList>

namespace norvex::kit {

/// The rows of a list, from the top.
inline QStringList rowsOf(const QComboBox& list) {
  QStringList rows;
  for (int i = 0; i < list.count(); ++i) rows << list.itemText(i);
  return rows;
}

/// The texts of all labels, in the order in which they were made; those without one are left out.
inline QStringList labelsOf(const QWidget& window) {
  QStringList texts;
  for (const auto* label : window.findChildren<QLabel*>())
    if (!label->text().isEmpty()) texts << label->text();
  return texts;
}

}  // namespace norvex::kit
