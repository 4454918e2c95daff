// A file on its way out of the window.
#pragma once

#include <QMimeData>
#include <QUrl>

#include "ui/picture/drag_source.h"

namespace norvex {

/// Offers the file's URL. The file is written, into a folder that nobody else can read, when the URL is first
/// asked for; until its bytes are there the window waits. It stays until the program ends: whoever took the
/// URL may be slow.
class DraggedFileData final : public QMimeData {
  Q_OBJECT
 public:
  explicit DraggedFileData(DraggedFile file) : file_(std::move(file)) {}

  [[nodiscard]] QStringList formats() const override { return {QStringLiteral("text/uri-list")}; }
  [[nodiscard]] bool hasFormat(const QString& mimeType) const override {
    return formats().contains(mimeType);
  }

 protected:
  [[nodiscard]] QVariant retrieveData(const QString& mimeType, QMetaType type) const override;

 private:
  DraggedFile file_;
  mutable std::optional<QUrl> url_;  ///< empty: the file could not be made
};

}  // namespace norvex
