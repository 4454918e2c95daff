// Name and folder of a file that is to be written, in one line each.
#pragma once

#include <QString>
#include <QWidget>

#include "types/picture_format.h"

class QLabel;
class QLineEdit;

namespace norvex {

/// The extension follows the format, and a typed extension of another format is told. Main thread.
class ExportTarget final : public QWidget {
  Q_OBJECT
 public:
  ExportTarget(const QString& folder, const QString& name, QWidget* parent);

  /// Gives the name that format's extension, in the place of one that names a format.
  void setFormat(PictureFormat format);
  /// Where the file goes: with the format's extension, whatever is typed. Empty without a name.
  [[nodiscard]] QString path() const;
  [[nodiscard]] QLineEdit* nameField() const { return name_; }

 signals:
  /// The typed extension is that of files of this format.
  void formatTyped(norvex::PictureFormat format);
  /// Name or folder are other ones.
  void changed();

 private:
  void takeTyped();
  void chooseFolder();
  void showFolder();

  PictureFormat format_ = PictureFormat::Png;
  QString folder_;
  QLineEdit* name_;
  QLabel* shownFolder_;
};

}  // namespace norvex
