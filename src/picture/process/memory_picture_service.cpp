#include "picture/process/memory_picture_service.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "protocol/every_page.h"
#include "protocol/page_names.h"

namespace norvex {

MemoryPicture::MemoryPicture() {
  facts.pageBounds = {QRectF(0, 0, 200, 100)};
}

QImage testPattern(const RenderRequest& request, const QSizeF& pageSize) {
  QImage image(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  if (!request.pictureToDevice.isInvertible() || image.isNull()) return image;
  const AffineTransform back = request.pictureToDevice.inverted();
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const QPointF at = back.map(QPointF(x + 0.5, y + 0.5));
      if (at.x() < 0 || at.y() < 0 || at.x() >= pageSize.width() || at.y() >= pageSize.height()) continue;
      const bool odd = (int(at.x() / 10) + int(at.y() / 10)) % 2 != 0;
      row[x] =
          qRgb(int(at.x() / pageSize.width() * 255), int(at.y() / pageSize.height() * 255), odd ? 255 : 0);
    }
  }
  return image;
}

QByteArray emptyPdf(const QSizeF& size) {
  const QByteArray box = QByteArray::number(size.width()) + ' ' + QByteArray::number(size.height());
  const QList<QByteArray> objects{
      "<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + box + "] /Resources << >> >>"};
  QByteArray pdf = "%PDF-1.4\n";
  QByteArray table = "0000000000 65535 f \n";
  for (qsizetype i = 0; i < objects.size(); ++i) {
    table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
    pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
  }
  const QByteArray start = QByteArray::number(pdf.size());
  return pdf + "xref\n0 4\n" + table + "trailer\n<< /Size 4 /Root 1 0 R >>\nstartxref\n" + start +
         "\n%%EOF\n";
}

QByteArray emptyEps(const QSizeF& size) {
  const auto side = [](double points) { return QByteArray::number(int(std::ceil(points))); };
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%Title: \n%%Creator: \n%%CreationDate: \n%%For: \n%%BoundingBox: 0 0 " +
         side(size.width()) + ' ' + side(size.height()) + "\n%%EndComments\nshowpage\n%%EOF\n";
}

namespace {

/// Without drawing.
QByteArray emptySvg(const QSizeF& size) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + QByteArray::number(size.width()) +
         "pt\" height=\"" + QByteArray::number(size.height()) + "pt\"/>";
}

}  // namespace

// ---- process

MemoryPictureProcess::MemoryPictureProcess(QByteArray bytes, MemoryPicture picture)
    : bytes_(std::move(bytes)), picture_(std::move(picture)) {}

void MemoryPictureProcess::fail(PictureCall call, const Error& error, int times) {
  const std::lock_guard lock(mutex_);
  state(call).failure = error;
  state(call).failuresLeft = times;
}

void MemoryPictureProcess::succeed(PictureCall call) {
  const std::lock_guard lock(mutex_);
  state(call).failure.reset();
}

void MemoryPictureProcess::hold(PictureCall call) {
  const std::lock_guard lock(mutex_);
  state(call).held = true;
}

void MemoryPictureProcess::release(PictureCall call) {
  const std::lock_guard lock(mutex_);
  state(call).held = false;
  changed_.notify_all();
}

bool MemoryPictureProcess::waitUntilHeld(PictureCall call, int count, int milliseconds) {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, std::chrono::milliseconds(milliseconds),
                           [&] { return state(call).waiting >= count; });
}

int MemoryPictureProcess::calls(PictureCall call) const {
  const std::lock_guard lock(mutex_);
  return states_[size_t(call)].count;
}

int MemoryPictureProcess::cancelledCalls() const {
  const std::lock_guard lock(mutex_);
  return cancelled_;
}

QList<RenderRequest> MemoryPictureProcess::renderRequests() const {
  const std::lock_guard lock(mutex_);
  return renders_;
}

QList<ComposeRequest> MemoryPictureProcess::composeRequests() const {
  const std::lock_guard lock(mutex_);
  return composes_;
}

Result<void> MemoryPictureProcess::begin(PictureCall call, const CancelToken& cancel) {
  const CancelListener listener(cancel, [this] {
    const std::lock_guard lock(mutex_);
    changed_.notify_all();
  });
  std::unique_lock lock(mutex_);
  CallState& now = state(call);
  ++now.count;
  ++now.waiting;
  changed_.notify_all();
  changed_.wait(lock, [&] { return !now.held || cancel.cancelled(); });
  --now.waiting;
  if (cancel.cancelled()) {
    ++cancelled_;
    return Error{ErrorKind::Cancelled, QStringLiteral("the answer is no longer wanted")};
  }
  if (now.failure && now.failuresLeft != 0) {
    if (now.failuresLeft > 0) --now.failuresLeft;
    return *now.failure;
  }
  return {};
}

Result<PictureFacts> MemoryPictureProcess::facts(const CancelToken& cancel) {
  const std::lock_guard serial(serial_);
  if (const auto begun = begin(PictureCall::Facts, cancel); !begun) return begun.error();
  return picture_.facts;
}

QStringList MemoryPictureProcess::drawingRemarks() const {
  const std::lock_guard lock(mutex_);
  return renders_.isEmpty() ? QStringList() : picture_.drawingRemarks;
}

Result<QImage> MemoryPictureProcess::render(const RenderRequest& request, const CancelToken& cancel) {
  const std::lock_guard serial(serial_);
  {
    const std::lock_guard lock(mutex_);
    renders_ << request;
  }
  if (const auto begun = begin(PictureCall::Render, cancel); !begun) return begun.error();
  if (picture_.paint) return picture_.paint(request);
  if (request.page >= std::max<qsizetype>(picture_.facts.pageCount, picture_.facts.pageBounds.size()))
    return Error{ErrorKind::Unsupported, QStringLiteral("there is no such page")};
  return testPattern(request, picture_.facts.pageBounds.value(request.page).size());
}

Result<PictureBytes> MemoryPictureProcess::pdf(const PdfRequest& request, const CancelToken& cancel) {
  const std::lock_guard serial(serial_);
  if (const auto begun = begin(PictureCall::Pdf, cancel); !begun) return begun.error();
  if (picture_.pdf) return PictureBytes{picture_.pdf(request), picture_.report};
  if (request.page == everyPage) return PictureBytes{bytes_, picture_.report};
  return PictureBytes{emptyPdf(picture_.facts.pageBounds.value(request.page).size()), picture_.report};
}

Result<PictureBytes> MemoryPictureProcess::compose(const ComposeRequest& request, const CancelToken& cancel) {
  const std::lock_guard serial(serial_);
  {
    const std::lock_guard lock(mutex_);
    composes_ << request;
  }
  if (const auto begun = begin(PictureCall::Compose, cancel); !begun) return begun.error();
  if (picture_.compose) return PictureBytes{picture_.compose(request), picture_.report};
  const QSizeF size = request.rect.size();
  if (request.format == VectorFormat::Svg) return PictureBytes{emptySvg(size), picture_.report};
  return PictureBytes{request.format == VectorFormat::Pdf ? emptyPdf(size) : emptyEps(size), picture_.report};
}

Result<PictureBytes> MemoryPictureProcess::svg(const SvgRequest& request, const CancelToken& cancel) {
  const std::lock_guard serial(serial_);
  if (const auto begun = begin(PictureCall::Svg, cancel); !begun) return begun.error();
  return PictureBytes{picture_.svg ? picture_.svg(request) : bytes_, picture_.report};
}

Result<PictureBytes> MemoryPictureProcess::examine(const ExamineRequest& request, const CancelToken& cancel) {
  const std::lock_guard serial(serial_);
  if (const auto begun = begin(PictureCall::Examine, cancel); !begun) return begun.error();
  if (request.what == Examination::Names)
    return PictureBytes{encodePageNames({picture_.facts.fonts, picture_.facts.colorSpaces}), picture_.report};
  return PictureBytes{picture_.examine ? picture_.examine(request) : QByteArray("\xa0"), picture_.report};
}

Result<PictureBytes> MemoryPictureProcess::setPdfAttributes(const QByteArray& pdf,
                                                            const PdfAttributes& attributes,
                                                            const CancelToken& cancel) {
  const std::lock_guard serial(serial_);
  if (const auto begun = begin(PictureCall::Attributes, cancel); !begun) return begun.error();
  return PictureBytes{picture_.setAttributes ? picture_.setAttributes(pdf, attributes) : pdf, {}};
}

// ---- service

void MemoryPictureService::setPicture(const MemoryPicture& picture) {
  const std::lock_guard lock(mutex_);
  picture_ = picture;
}

void MemoryPictureService::setPreview(const Result<NSBitmapImageRep>& preview) {
  const std::lock_guard lock(mutex_);
  preview_ = preview;
}

void MemoryPictureService::setPrepare(std::function<void(MemoryPictureProcess&)> prepare) {
  const std::lock_guard lock(mutex_);
  prepare_ = std::move(prepare);
}

int MemoryPictureService::openCount() const {
  return int(openedKinds().size());
}

int MemoryPictureService::previewCount() const {
  const std::lock_guard lock(mutex_);
  return previews_;
}

PictureLimits MemoryPictureService::previewLimits() const {
  const std::lock_guard lock(mutex_);
  return previewLimits_;
}

PictureUse MemoryPictureService::use() const {
  const std::lock_guard lock(mutex_);
  return use_;
}

QList<PictureKind> MemoryPictureService::openedKinds() const {
  const std::lock_guard lock(mutex_);
  return kinds_;
}

std::shared_ptr<MemoryPictureProcess> MemoryPictureService::lastProcess() const {
  const std::lock_guard lock(mutex_);
  return last_;
}

void MemoryPictureService::openOnlyFor(PictureUse use) {
  const std::lock_guard lock(mutex_);
  use_ = use;
}

std::shared_ptr<PictureProcess> MemoryPictureService::open(const QByteArray& bytes, PictureKind kind,
                                                           const PictureLimits&) {
  const std::lock_guard lock(mutex_);
  kinds_ << kind;
  last_ = std::make_shared<MemoryPictureProcess>(bytes, picture_);
  if (prepare_) prepare_(*last_);
  return last_;
}

void MemoryPictureService::setChoose(
    std::function<Result<PictureBytes>(const QByteArray& pdf, const ReaderChoices&)> choose) {
  const std::lock_guard lock(mutex_);
  choose_ = std::move(choose);
}

QList<ReaderChoices> MemoryPictureService::choices() const {
  const std::lock_guard lock(mutex_);
  return choices_;
}

Result<PictureBytes> MemoryPictureService::chosenPdf(const QByteArray& pdf, const ReaderChoices& choices,
                                                     const PictureLimits&, const CancelToken&) {
  std::function<Result<PictureBytes>(const QByteArray&, const ReaderChoices&)> choose;
  {
    const std::lock_guard lock(mutex_);
    choices_ << choices;
    choose = choose_;
  }
  return choose ? choose(pdf, choices) : PictureBytes{pdf, {}};  // which may set this service up anew
}

Result<NSBitmapImageRep> MemoryPictureService::decodePreview(const QByteArray&, const CancelToken& cancel,
                                                             const PictureLimits& limits) {
  const std::lock_guard lock(mutex_);
  ++previews_;
  previewLimits_ = limits;
  if (cancel.cancelled())
    return Error{ErrorKind::Cancelled, QStringLiteral("the answer is no longer wanted")};
  return preview_;
}

Result<QByteArray> MemoryPictureService::composePages(const QByteArray&, const PagesRequest&,
                                                      const CancelToken&) {
  return Error{ErrorKind::Unsupported, QStringLiteral("pages cannot be composed here")};
}

}  // namespace norvex
