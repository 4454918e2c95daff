#include "window/inks/inks_in_picture.h"

#include <QEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/background_work.h"
#include "display/norvex_view.h"
#include "display/picture_geometry.h"
#include "picture/image_rep.h"
#include "picture/inks/visible_part.h"
#include "window/commands/window_parts.h"

namespace norvex {
namespace {

/// Plates are full or empty where a line ends: edges are smooth where several of their pixels make one.
constexpr double kPixelsForOne = 2;

bool isSame(const std::optional<SeparationRequest>& a, const SeparationRequest& b) {
  return a && a->page == b.page && a->dpi == b.dpi && a->overprint == b.overprint && a->part == b.part;
}

}  // namespace

InksInPicture::InksInPicture(WindowParts& parts, QObject* parent)
    : QObject(parent), parts_(parts), widget_(parts.viewWidget()) {
  rest_.setSingleShot(true);
  rest_.setInterval(restMs);
  connect(&rest_, &QTimer::timeout, this, &InksInPicture::separate);
}

InksInPicture::~InksInPicture() {
  separating_.cancel();
  composing_.cancel();
}

void InksInPicture::setInks(std::shared_ptr<const PageInks> page, bool overprint) {
  forgetPart();
  composing_.cancel();
  overprint_ = overprint;
  const QSizeF size = parts_.view() ? parts_.view()->imageSize() : QSizeF();
  whole_ = {std::move(page), QRectF(QPointF(0, 0), size), {}};
  show();
}

void InksInPicture::setChoice(const InkChoice& choice) {
  choice_ = choice;
  if (shown_ && whole_.inks) compose();
}

void InksInPicture::setShown(bool shown) {
  if (shown_ == shown) return;
  shown_ = shown;
  watch(shown);
  if (shown_ && whole_.inks) {
    compose();
    rest_.start();
    return;
  }
  rest_.stop();
  composing_.cancel();
  forgetPart();
  show();
  emit pointed(std::nullopt);
}

void InksInPicture::forgetPart() {
  separating_.cancel();
  asked_.reset();
  resting_.reset();
  part_ = {};
}

void InksInPicture::watch(bool on) {
  if (!widget_) return;
  if (on) {
    widget_->installEventFilter(this);
    connect(widget_.data(), &NorvexViewWidget::drawn, this, &InksInPicture::viewDidChange);
  } else {
    widget_->removeEventFilter(this);
    disconnect(widget_.data(), &NorvexViewWidget::drawn, this, nullptr);
  }
}

bool InksInPicture::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    const auto& view = widget_->view();
    const QPointF at = widget_->toView(static_cast<QMouseEvent*>(event)->position());
    emit pointed(viewToPicture(at, view.imageSize(), view.rotate()));
  }
  if (event->type() == QEvent::Leave) emit pointed(std::nullopt);
  return QObject::eventFilter(watched, event);
}

// ---- what is asked for --------------------------------------------------------------------------------

std::optional<SeparationRequest> InksInPicture::wanted() const {
  const auto rep = parts_.view() ? parts_.view()->imageRep() : nullptr;
  if (!rep || !widget_) return std::nullopt;
  const QTransform toDevice = widget_->pictureToDevice();
  if (!isFinite(toDevice) || !toDevice.isInvertible()) return std::nullopt;
  const QRectF device(QPointF(0, 0), QSizeF(widget_->size()) * widget_->devicePixelRatioF());
  auto part = visiblePart(rep->size(), toDevice.inverted().mapRect(device),
                          kPixelsForOne * std::sqrt(std::abs(toDevice.determinant())));
  if (!part) return std::nullopt;
  part->page = rep->page();
  part->overprint = overprint_;
  return part;
}

// Every drawing tells of it, our own as well: only what would be asked for otherwise counts.
void InksInPicture::viewDidChange() {
  if (!shown_ || !whole_.inks) return;
  const auto next = wanted();
  if (!next || isSame(asked_, *next)) return;
  separating_.cancel();  // nobody waits for what is no longer in sight
  asked_.reset();
  if (!rest_.isActive() || !isSame(resting_, *next)) rest_.start();
  resting_ = next;
}

void InksInPicture::separate() {
  const auto next = wanted();
  if (!shown_ || !whole_.inks || !next || isSame(asked_, *next)) return;
  separating_.cancel();
  separating_ = CancelToken();
  asked_ = next;
  const auto rep = parts_.view()->imageRep();
  workInBackground(
      this,
      [process = rep->process(), kind = rep->pictureKind(), request = *next, cancel = separating_] {
        return separatedPage(*process, kind, request, cancel);
      },
      [this, cancel = separating_, place = *next->part](const Result<SeparatedPage>& part) {
        if (!cancel.cancelled()) take(part, place);
      });
}

// Where it fails the plates of the whole page stay: they are of the same inks, less sharp.
void InksInPicture::take(const Result<SeparatedPage>& part, const QRectF& place) {
  if (!part) return;
  part_ = {std::make_shared<const PageInks>(part->inks), place, {}};
  compose();
}

// ---- what is shown ------------------------------------------------------------------------------------

/// A part may name other spot inks than the page: its choice goes by their names.
InkChoice InksInPicture::choiceFor(const PageInks& inks) const {
  InkChoice choice = choice_;
  choice.shown.clear();
  for (const Ink& ink : inks.inks) {
    bool isShown = true;
    for (qsizetype i = 0; i < whole_.inks->inks.size(); ++i)
      if (whole_.inks->inks[i].name == ink.name) isShown = choice_.shown.value(i, true);
    choice.shown << isShown;
  }
  return choice;
}

void InksInPicture::compose() {
  composing_.cancel();
  composing_ = CancelToken();
  struct Task {
    std::shared_ptr<const PageInks> inks;
    InkChoice choice;
  };
  QList<Task> tasks{{whole_.inks, choiceFor(*whole_.inks)}};
  if (part_.inks) tasks << Task{part_.inks, choiceFor(*part_.inks)};
  workInBackground(
      this,
      [tasks, cancel = composing_] {
        QList<QImage> images;
        for (const Task& task : tasks) images << inkImage(*task.inks, task.choice, cancel);
        return images;
      },
      [this, cancel = composing_](const QList<QImage>& images) {
        if (!cancel.cancelled()) composed(images);
      });
}

void InksInPicture::composed(const QList<QImage>& images) {
  whole_.image = images.value(0);
  part_.image = images.value(1);
  show();
}

void InksInPicture::show() {
  if (!widget_) return;
  QList<PictureStandIn> standIns;
  for (const Plates& plates : {whole_, part_})
    if (shown_ && !plates.image.isNull()) standIns << PictureStandIn{plates.image, plates.place};
  widget_->setStandIns(standIns);
}

QList<double> InksInPicture::amountsAt(const QPointF& picturePoint) const {
  if (!shown_ || !whole_.inks) return {};
  const QList<double> coarse = inksAt(*whole_.inks, pixelAt(*whole_.inks, whole_.place, picturePoint));
  if (!part_.inks || coarse.isEmpty()) return coarse;
  const QList<double> fine = inksAt(*part_.inks, pixelAt(*part_.inks, part_.place, picturePoint));
  if (fine.isEmpty()) return coarse;
  QList<double> amounts;
  for (const Ink& ink : whole_.inks->inks) {
    const auto at = std::find_if(part_.inks->inks.begin(), part_.inks->inks.end(),
                                 [&](const Ink& one) { return one.name == ink.name; });
    amounts << (at == part_.inks->inks.end() ? 0 : fine.at(at - part_.inks->inks.begin()));
  }
  return amounts;
}

}  // namespace norvex
