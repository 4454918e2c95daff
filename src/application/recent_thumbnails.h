// Small pictures of the recent files.
#pragma once

#include <QImage>
#include <QObject>
#include <QSet>
#include <QUrl>

#include "base/cancel_token.h"

namespace norvex {

class PictureService;
class StartPanel;

/// Makes them one after the other while the start panel is on the screen, each within a few seconds; a file
/// that cannot be drawn keeps its badge. Both are borrowed and outlive it. Main thread.
class RecentThumbnails final : public QObject {
  Q_OBJECT
 public:
  static constexpr int side = 96;  ///< pixels; twice what is shown

  RecentThumbnails(PictureService& service, StartPanel& panel, QObject* parent = nullptr);
  ~RecentThumbnails() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeNext();
  void take(const QUrl& url, const QImage& image);

  PictureService& service_;
  StartPanel& panel_;
  QSet<QUrl> tried_;
  CancelToken cancel_;
  bool making_ = false;
};

/// The picture of `url`'s first page, no side longer than `side` pixels; null: it cannot be drawn in time.
/// Blocks; any thread.
[[nodiscard]] QImage thumbnailOf(PictureService& service, const QUrl& url, int side,
                                 const CancelToken& cancel);

}  // namespace norvex
