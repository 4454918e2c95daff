// The dialog behind the save panel.
#pragma once

#include <QFileDialog>
#include <QPointer>

#include "desktop/save_panel.h"

class QCheckBox;
class QLineEdit;

namespace norvex {

/// Deletes itself when it is done and gives the accessory view back. Main thread.
class SaveSheet final : public QFileDialog {
  Q_OBJECT
 public:
  SaveSheet(QWidget* window, SavePanelSettings settings);
  ~SaveSheet() override;

  /// The name that was typed, and the type that is chosen.
  [[nodiscard]] SavePanelAnswer answer() const;
  [[nodiscard]] QCheckBox* hideExtensionBox() const { return hideExtension_; }

 public slots:
  void accept() override;

 private:
  void arrange();
  void addTypeList();
  void addAccessory();
  /// Makes the name in the field show its extension, or not, for the type that is chosen now.
  void showName();
  /// Makes the list of types follow an extension that is typed.
  void takeTyped(const QString& name);
  [[nodiscard]] bool isAllowedExtension(const QString& extension) const;
  [[nodiscard]] QUrl typedURL() const;
  [[nodiscard]] QUrl target() const;
  [[nodiscard]] bool mayReplace(const QString& path);

  SavePanelSettings settings_;
  QPointer<QWidget> accessory_, accessoryParent_;
  QLineEdit* name_ = nullptr;
  QCheckBox* hideExtension_ = nullptr;
  bool typing_ = false;
};

}  // namespace norvex
