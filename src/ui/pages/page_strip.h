// Small pictures of a document's pages, one below the other.
#pragma once

#include <QImage>
#include <QListWidget>

namespace norvex {

/// Shows what it is given and tells which of the rest can be seen. Pages count from 0. Main thread.
class PageStrip final : public QListWidget {
  Q_OBJECT
 public:
  static constexpr int side = 112;  ///< of a thumbnail; logical pixels

  explicit PageStrip(QWidget* parent = nullptr);

  /// Forgets every thumbnail.
  void setCount(int count);
  /// Sends no signal.
  void setShownPage(int page);
  void setThumbnail(int page, const QImage& image);
  /// The page without a thumbnail that can be seen, or is nearest to what can; -1: there is none.
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
  QList<bool> made_;
};

}  // namespace norvex
