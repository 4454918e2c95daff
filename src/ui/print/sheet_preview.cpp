#include "ui/print/sheet_preview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "base/localized_string.h"
#include "picture/localized_error.h"
#include "print/page_image.h"
#include "print/print_job.h"
#include "ui/panels/centred_window.h"
#include "ui/print/page_layout_preview.h"

namespace norvex {
namespace {

constexpr int kSettleMs = 80;
constexpr QSize kSmallest(330, 330);

QToolButton* arrow(Qt::ArrowType type, const QString& objectName, const QString& name) {
  auto* button = new QToolButton;
  button->setArrowType(type);
  button->setAutoRaise(true);
  button->setAccessibleName(name);
  button->setObjectName(objectName);
  return button;
}

}  // namespace

SheetPreview::SheetPreview(const PrintSource& source, PictureService& pictures, const CancelToken& ending,
                           const QWidget& panel)
    : source_(source),
      pictures_(pictures),
      ending_(ending),
      preview_(new PageLayoutPreview),
      label_(new QLabel),
      previous_(arrow(Qt::LeftArrow, QStringLiteral("previousPage"), localizedString("Previous page"))),
      next_(arrow(Qt::RightArrow, QStringLiteral("nextPage"), localizedString("Next page"))) {
  preview_->setMinimumSize(leastPreview(panel, kSmallest));
  label_->setObjectName(QStringLiteral("pageLabel"));
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(previous_);
  row->addWidget(label_);
  row->addWidget(next_);
  row->addStretch();
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->addWidget(preview_, 1);
  box->addLayout(row);
  settle_.setSingleShot(true);
  connect(&settle_, &QTimer::timeout, this, &SheetPreview::draw);
  connect(preview_, &PageLayoutPreview::resized, &settle_, [this] { settle_.start(kSettleMs); });
  connect(previous_, &QToolButton::clicked, this, [this] { showSheet(sheet_ - 1); });
  connect(next_, &QToolButton::clicked, this, [this] { showSheet(sheet_ + 1); });
}

SheetPreview::~SheetPreview() {
  ending_.cancel();
  drawing_.wait();
}

void SheetPreview::setPages(const JobPages& pages, const NSPrintInfo& info) {
  pages_ = pages;
  info_ = info;
  showSheet(sheet_);
}

void SheetPreview::setProblem(const QString& sentence) {
  pages_ = std::nullopt;
  preview_->setProblem(sentence);
}

void SheetPreview::showSheet(int sheet) {
  if (!pages_) return;
  const int count = pages_->sheetCount();
  sheet_ = std::clamp(sheet, 1, count);
  const SheetPlace place = pages_->placeOf(sheet_ - 1);
  preview_->setPage(pages_->pages().at(place.page).pagination, int(place.tile) + 1);
  label_->setText(localizedString("%1 of %2").arg(sheet_).arg(count));
  previous_->setEnabled(sheet_ > 1);
  next_->setEnabled(sheet_ < count);
  settle_.start(kSettleMs);
}

void SheetPreview::draw() {
  if (!pages_) return;
  if (isDrawing_) {
    drawAgain_ = true;
    return;
  }
  const QSize pixels = preview_->paperPixels();
  if (pixels.isEmpty()) return;
  const JobPage& page = pages_->pages().at(pages_->placeOf(sheet_ - 1).page);
  PageImageRequest request{source_, info_, page.number == pictureNumber_ ? picture_ : QByteArray(),
                           sheet_ - 1, pixels};
  isDrawing_ = true;
  drawing_ = workInBackground(
      this,
      [request, page, pictures = &pictures_, cancel = ending_]() mutable -> Drawn {
        if (request.picture.isEmpty()) {
          const Result<QByteArray> picture = pictureOf(page.drawing, cancel);
          if (!picture) return {{}, page.number, {}, localizedError(picture.error()).sentence};
          request.picture = *picture;
        }
        const Result<QImage> image = pageImage(request, *pictures, cancel);
        if (!image) return {request.picture, page.number, {}, localizedError(image.error()).sentence};
        return {request.picture, page.number, *image, {}};
      },
      [this](const Drawn& drawn) { takeDrawing(drawn); });
}

void SheetPreview::takeDrawing(const Drawn& drawn) {
  isDrawing_ = false;
  picture_ = drawn.picture;
  pictureNumber_ = drawn.number;
  if (std::exchange(drawAgain_, false)) return draw();
  if (drawn.problem.isEmpty())
    preview_->setImage(drawn.image);
  else
    preview_->setProblem(drawn.problem);
}

}  // namespace norvex
