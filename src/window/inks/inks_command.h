// The inks of the page that a window shows.
#pragma once

#include <QObject>
#include <QPoint>

#include <memory>

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/inks/separated_page.h"

namespace norvex {

class InksInPicture;
class InksPage;
class WindowParts;

/// A page of the inspector. The picture is separated when that page is looked at, once for each page and way
/// of overprinting; what is switched there is put together from the same plates. Both happen on other threads
/// and end with the window. While that page is in sight its inks may be shown in the picture as well. The
/// parts outlive it. Main thread.
class InksCommand final : public QObject {
  Q_OBJECT
 public:
  /// `page` outlives it.
  InksCommand(WindowParts& parts, InksPage& page, QObject* parent);
  ~InksCommand() override;

  /// The window shows another document, another state of it or another page.
  void pictureDidChange();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void separate();
  void take(const Result<SeparatedPage>& page);
  void end();
  void compose();
  void showAmounts(QPoint pixel);
  void showInPicture();

  WindowParts& parts_;
  InksPage& page_;
  InksInPicture* inPicture_;
  std::shared_ptr<const PageInks> inks_;  ///< of what is shown; null: not yet, or there are none
  bool asked_ = false;
  int work_ = 0;  ///< the separation's number among the work of the window; 0: none is under way
  CancelToken separating_, composing_;
};

}  // namespace norvex
