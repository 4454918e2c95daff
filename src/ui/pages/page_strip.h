// Small pictures of a document's pages, one below the other.
#pragma once

#include <QImage>
#include <QListWidget>
#include <QPixmap>

namespace norvex {

/// Shows what it is given and tells which of the rest can be seen. Thumbnails that are far from those are
/// forgotten, and wanted again when they come near: a document may have thousands of pages. Pages count
/// from 0. Main thread.
class PageStrip final : public QListWidget {
  Q_OBJECT
 public:
  static constexpr int side = 112;  ///< of a thumbnail; logical pixels
  static constexpr int near = 60;   ///< pages to each side of what is seen: thumbnails of these are wanted

  explicit PageStrip(QWidget* parent = nullptr);

  /// Forgets every thumbnail.
  void setCount(int count);
  /// Sends no signal.
  void setShownPage(int page);
  void setThumbnail(int page, const QImage& image);
  /// The page without a thumbnail that can be seen, or is nearest to what can; -1: there is none near.
  [[nodiscard]] int nextWanted() const;
  /// As wide as its thumbnails.
  [[nodiscard]] QSize sizeHint() const override;

 signals:
  void pageChosen(int page);
  /// Others can be seen than before.
  void scrolled();

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// The page in the middle of what can be seen.
  [[nodiscard]] int middle() const;
  void forgetFar();

  QPixmap blank_;  ///< instead of a thumbnail
  QList<bool> made_;
};

}  // namespace norvex
