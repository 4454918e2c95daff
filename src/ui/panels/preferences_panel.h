// The choices that hold for all windows, in one small window.
#pragma once

#include <QDialog>
#include <QList>

#include "ui/panels/preference.h"

class QFormLayout;
class QWidget;

namespace norvex {

/// Each choice takes effect when it is made; there is nothing to confirm. What was chosen elsewhere meanwhile
/// is shown when the window gets the focus again. Main thread.
class PreferencesPanel final : public QDialog {
  Q_OBJECT
 public:
  explicit PreferencesPanel(QList<Preference> preferences, QWidget* parent = nullptr);

  /// Shows what is chosen now.
  void refresh();

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct Row {
    Preference preference;
    QWidget* control;
  };
  void addRow(QFormLayout& group, const Preference& preference);
  [[nodiscard]] QWidget* makeControl(const Preference& preference);

  QList<Row> rows_;
};

}  // namespace norvex
