// FittedPage: text with pictures that are never wider than the page.
#pragma once

#include <QTextBrowser>

class QTextFragment;

namespace norvex {

/// Its pictures are as wide as they are meant to be, or as the page where that is narrower. Main thread.
class FittedPage final : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  /// After another page was set.
  void fitPictures();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fit(const QTextFragment& picture, double room);
};

}  // namespace norvex
