// A path control: where a file is, in one line.
#pragma once

#include <QUrl>
#include <QWidget>

namespace norvex {

/// Shows the file's name after the folders above it, as many as fit; the menu copies the path or opens the
/// folder.
class PathControl final : public QWidget {
  Q_OBJECT
 public:
  explicit PathControl(QWidget* parent = nullptr);

  void setUrl(const QUrl& url);
  [[nodiscard]] QUrl url() const { return url_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  /// Folder names above the file that fit into `width` together with it, the nearest last, then the file's
  /// name.
  [[nodiscard]] QStringList partsFitting(int width) const;
  void openFolder();

  QUrl url_;
};

}  // namespace norvex
