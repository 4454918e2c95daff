// The picture of a window as its inks print it.
#pragma once

#include <QImage>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/inks/ink_image.h"
#include "picture/inks/separated_page.h"
#include "ui/picture/norvex_view_widget.h"

namespace norvex {

class WindowParts;

/// Shows the plates in the place of the picture: those of the whole page at once, and those of the part that
/// is visible, finer than it is shown, when the view has stood still for a moment. Copying, saving and
/// printing take the picture as before. Work happens on other threads and ends with the window. The parts
/// outlive it. Main thread.
class InksInPicture final : public QObject {
  Q_OBJECT
 public:
  static constexpr int restMs = 120;

  InksInPicture(WindowParts& parts, QObject* parent);
  ~InksInPicture() override;

  /// The plates of the page that is shown. Null: there are none (yet). They are put together with the choice
  /// that is set next.
  void setInks(std::shared_ptr<const PageInks> page, bool overprint);
  void setChoice(const InkChoice& choice);
  void setShown(bool shown);
  /// Percent of each ink of the page where the picture is; empty: beside it, or nothing is shown. As finely
  /// as the plates are that are shown there.
  [[nodiscard]] QList<double> amountsAt(const QPointF& picturePoint) const;

 signals:
  /// The pointer moves over the picture while the inks are shown; nothing: it left.
  void pointed(const std::optional<QPointF>& picturePoint);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Plates, where they belong, and as they are shown.
  struct Plates {
    std::shared_ptr<const PageInks> inks;
    QRectF place;
    QImage image;
  };

  [[nodiscard]] std::optional<SeparationRequest> wanted() const;
  [[nodiscard]] InkChoice choiceFor(const PageInks& inks) const;
  void watch(bool on);
  void viewDidChange();
  void separate();
  void take(const Result<SeparatedPage>& part, const QRectF& place);
  void compose();
  void composed(const QList<QImage>& images);
  void show();
  void forgetPart();

  WindowParts& parts_;
  const QPointer<NorvexViewWidget> widget_;  ///< it may go before the inspector does
  Plates whole_, part_;
  std::optional<SeparationRequest> asked_;    ///< of part_, or of what is under way for it
  std::optional<SeparationRequest> resting_;  ///< what is asked for once the view has stood still
  InkChoice choice_;
  bool overprint_ = false, shown_ = false;
  QTimer rest_;
  CancelToken separating_, composing_;
};

}  // namespace norvex
