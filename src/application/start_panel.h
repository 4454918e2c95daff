// The start panel: what the application shows while no document is open.
#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QUrl>
#include <QWidget>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QStackedLayout;

namespace norvex {

class RecentFiles;

/// Open, the recent files and a drop area. A window like any other: it stays while another program has the
/// focus. Closing it ends the application when nothing else is open; that is its owner's business, told by
/// dismissed().
class StartPanel final : public QWidget {
  Q_OBJECT
 public:
  /// `recent` (not owned) must outlive the panel.
  explicit StartPanel(RecentFiles& recent, QWidget* parent = nullptr);

  [[nodiscard]] QPushButton* openButton() const { return open_; }
  [[nodiscard]] QListWidget* recentList() const { return list_; }

  /// The listed files that show no picture of theirs yet, in their order.
  [[nodiscard]] QList<QUrl> recentWithoutThumbnail() const;
  /// Shown beside the file's name as long as the panel lives.
  void setThumbnail(const QUrl& url, const QImage& image);

 signals:
  void openRequested();
  void recentDidChange();
  void filesChosen(const QList<QUrl>& urls);
  /// The person closed it.
  void dismissed();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QWidget* makeWelcome();
  QWidget* makeRecent();
  void fillRecent();
  void choose(const QListWidgetItem* item);
  void showRecentMenu(const QPoint& point);

  RecentFiles& recent_;
  QPushButton* open_ = nullptr;
  QLabel* icon_ = nullptr;
  class DropArea;
  DropArea* drop_ = nullptr;
  QListWidget* list_ = nullptr;
  QHash<QUrl, QImage> thumbnails_;
  QWidget* empty_ = nullptr;
  QStackedLayout* pages_ = nullptr;
};

}  // namespace norvex
