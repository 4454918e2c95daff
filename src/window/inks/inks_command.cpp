#include "window/inks/inks_command.h"

#include <QEvent>

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "picture/image_rep.h"
#include "picture/inks/ink_image.h"
#include "picture/localized_error.h"
#include "ui/inks/inks_page.h"
#include "window/commands/window_parts.h"
#include "window/inks/inks_in_picture.h"

namespace norvex {
namespace {

/// Sharp in the inspector, and read under the pointer as finely as it can point. Plates have no half pixels
/// at their edges: a small picture is separated so finely that the inspector shows the means of several.
constexpr double kUsualDpi = 144, kFinestDpi = 2400, kFewestPixels = 7.0e5, kPixels = 2.0e6;

double dpiFor(const QSizeF& points) {
  const double area = std::max(1.0, points.width() * points.height());
  const double fine = std::clamp(72 * std::sqrt(kFewestPixels / area), kUsualDpi, kFinestDpi);
  return std::max(1.0, std::min(fine, 72 * std::sqrt(kPixels / area)));
}

}  // namespace

InksCommand::InksCommand(WindowParts& parts, InksPage& page, QObject* parent)
    : QObject(parent), parts_(parts), page_(page), inPicture_(new InksInPicture(parts, this)) {
  page_.installEventFilter(this);
  connect(&page_, &InksPage::choiceChanged, this, &InksCommand::compose);
  connect(&page_, &InksPage::overprintChanged, this, &InksCommand::pictureDidChange);
  connect(&page_, &InksPage::pointed, this, &InksCommand::showAmounts);
  connect(&page_, &InksPage::inPictureChanged, this, &InksCommand::showInPicture);
  connect(inPicture_, &InksInPicture::pointed, this, [this](const std::optional<QPointF>& point) {
    page_.showAmounts(point ? inPicture_->amountsAt(*point) : QList<double>());
  });
}

InksCommand::~InksCommand() {
  separating_.cancel();
  composing_.cancel();
}

bool InksCommand::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show) separate();
  if (event->type() == QEvent::Show || event->type() == QEvent::Hide) showInPicture();
  return QObject::eventFilter(watched, event);
}

void InksCommand::pictureDidChange() {
  separating_.cancel();
  composing_.cancel();
  end();
  asked_ = false;
  inks_.reset();
  inPicture_->setInks(nullptr, page_.simulatesOverprint());
  page_.showImage({});
  page_.showAmounts({});
  if (page_.isVisible()) separate();
}

void InksCommand::separate() {
  if (asked_) return;
  const auto rep = parts_.view() ? parts_.view()->imageRep() : nullptr;
  if (!rep) return page_.tell(localizedString("There is no picture."));
  asked_ = true;
  separating_ = CancelToken();
  const QString told = localizedString("The page is being separated into its inks…");
  work_ = parts_.work().begin(WindowWork::Kind::Examining, told, separating_);
  page_.showSeparating(told);
  const SeparationRequest request{rep->page(), dpiFor(rep->size()), page_.simulatesOverprint()};
  workInBackground(
      this,
      [process = rep->process(), kind = rep->pictureKind(), request, cancel = separating_] {
        return separatedPage(*process, kind, request, cancel);
      },
      [this, number = work_](const Result<SeparatedPage>& page) {
        if (work_ == number) take(page);  // otherwise something else is shown by now
      });
}

void InksCommand::end() {
  if (work_ != 0) parts_.work().end(std::exchange(work_, 0));
}

void InksCommand::take(const Result<SeparatedPage>& page) {
  end();
  if (!page) {
    asked_ = false;  // whoever looks at the page again has it tried again
    return page_.tell(localizedError(page.error()).sentence);
  }
  inks_ = std::make_shared<const PageInks>(page->inks);
  page_.showInks(*inks_, mostInk(*inks_));
  inPicture_->setInks(inks_, page_.simulatesOverprint());
  compose();
}

// Who does not see the switch would take what the inks show for the picture.
void InksCommand::showInPicture() {
  inPicture_->setShown(page_.isVisible() && page_.isInPicture());
}

void InksCommand::compose() {
  if (!inks_) return;
  inPicture_->setChoice(page_.choice());
  composing_.cancel();
  composing_ = CancelToken();
  workInBackground(
      this,
      [inks = inks_, choice = page_.choice(), cancel = composing_] {
        return inkImage(*inks, choice, cancel);
      },
      [this, cancel = composing_](const QImage& image) {
        if (!cancel.cancelled()) page_.showImage(image);
      });
}

void InksCommand::showAmounts(QPoint pixel) {
  if (inks_) page_.showAmounts(inksAt(*inks_, pixel));
}

}  // namespace norvex
