// The second half of windowDidLoad(): what the file holds, on the screen.
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <utility>

#include "base/localized_string.h"
#include "base/waiting_threads.h"
#include "document/document.h"
#include "metadata/header_dictionary.h"
#include "picture/bitmap_image.h"
#include "picture/web_image_rep.h"
#include "ui/controls/number_field.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_text_view.h"
#include "window/main_window_reading.h"

namespace norvex {

namespace {

const QColor kPaleGreen = QColor::fromRgbF(0.917645f, 1.0f, 0.909804f);
const QColor kPalePink = QColor::fromRgbF(1.0f, 0.913725f, 0.949019f);
constexpr int kFrameOfPreview = 2;
constexpr int kFrameOfPicture = 255;
/// Enough of a picture to know whether its program still draws; pixels.
constexpr double kTrialSide = 64;
/// A quick document is on the screen together with its window; a slow one does not keep the window waiting.
constexpr int kGraceMs = 60;

bool isFixedOnOneAxisOnly(const HeaderDictionary& header) {
  const QVariant x = header.value(QString::fromLatin1(ZyWebViewFixedRatioXKey));
  const QVariant y = header.value(QString::fromLatin1(ZyWebViewFixedRatioYKey));
  return x.isValid() && y.isValid() && !(x.toBool() && y.toBool());
}

/// A program that fails only when it is drawn takes its picture with it. Any thread.
void tryDrawing(DocumentContents& contents, const CancelToken& cancel) {
  if (!contents.imageRep) return;
  const QSizeF size = contents.imageRep->size();
  const double side = std::max(size.width(), size.height());
  if (!(side > 0)) return;
  const auto drawn =
      contents.imageRep->rasterImage(std::min(1.0, kTrialSide / side), RenderPurpose::Preview, cancel);
  if (drawn) return;
  contents.error = drawn.error();
  contents.imageRep.reset();
}

}  // namespace

void MainWindowController::windowDidLoad() {
  window();
  stopReading();
  const QUrl url = document_ ? document_->fileURL() : QUrl();
  if (url.isEmpty()) {
    setUpControls();
    showUntitledDocument();
    return finishSetUp();
  }
  if (window_->isVisible()) return startReading();
  const bool again = validateUserInterfaceItem();
  DocumentContents contents =
      readDocumentContents(document_->pictureService(), url, document_->fileType(), thread());
  if (again) tryDrawing(contents, {});
  take(contents, again);
}

void MainWindowController::take(const DocumentContents& contents, bool again) {
  if (again && !contents.imageRep)
    return tellThatPictureStays(contents.error.value_or(Error{ErrorKind::CannotRead, {}}));
  setUpControls();
  showContents(contents);
  finishSetUp();
}

void MainWindowController::startReading() {
  stopReading();
  const QUrl url = document_ ? document_->fileURL() : QUrl();
  if (url.isEmpty()) {
    showUntitledDocument();
    return finishSetUp();
  }
  finishSetUp();
  reading_ = std::make_shared<Reading>();
  reading_->again = validateUserInterfaceItem();
  reading_->number = work_.begin(WindowWork::Kind::Reading, localizedString("Opening…"), reading_->cancel);
  QPointer<MainWindowController> self(this);
  waitingThreads().start([self, application = QPointer<QCoreApplication>(qApp), reading = reading_,
                          &service = document_->pictureService(), url, type = document_->fileType(),
                          home = thread()] {
    reading->contents = readDocumentContents(service, url, type, home, reading->cancel);
    if (reading->again) tryDrawing(reading->contents, reading->cancel);
    reading->done.release();
    if (application)
      QMetaObject::invokeMethod(application.data(), [self, reading] {
        if (self && self->reading_ == reading) self->takeReading();
      });
  });
  if (reading_->done.tryAcquire(1, kGraceMs)) takeReading();
}

void MainWindowController::takeReading() {
  const std::shared_ptr<Reading> reading = std::exchange(reading_, nullptr);
  work_.end(reading->number);
  take(reading->contents, reading->again);
  emit documentShown();
}

void MainWindowController::stopReading() {
  if (!reading_) return;
  reading_->cancel.cancel();
  work_.end(std::exchange(reading_, nullptr)->number);
}

void MainWindowController::showUntitledDocument() {
  for (ZyForm* form :
       {titleForm(), creatorForm(), creationDateForm(), forForm(), copyrightForm(), encodingForm()})
    form->setText(0, QString());
  descriptionView->setString(QString());
  showBoundingBoxes(nullptr);
  showNotes(nullptr);
  showResources(nullptr);
  epsMatrixBox->setTitle(QString());
  for (int row = 0; row < 2; ++row)
    for (int column = 0; column < 2; ++column) epsMatrix->setText(row, column, QString());
  previewField->clear();
  previewImageView()->setImageFrameStyle(kFrameOfPreview);
  previewImageView()->setImage({});
  rotateField()->clearValue();
}

void MainWindowController::showContents(const DocumentContents& contents) {
  messageBar_->clearMessage();
  process_ = contents.process;
  view()->setImageRep(contents.imageRep);
  if (contents.kind == DocumentKind::Svg)
    showSvgPicture(contents);
  else
    showPicture(contents);
  showHeader(contents);
  showBoundingBoxes(contents.imageRep.get());
  showNotes(contents.imageRep.get());
  showResources(contents.imageRep.get());
  showPreview(contents);
  showColorSpace(contents.header);
  resetRotationAndZoom();
  watchPicture();
  if (contents.error) showProblem(*contents.error);
}

void MainWindowController::showMatrix(const QRectF& rect) {
  epsMatrix->setFloat(0, 0, static_cast<float>(rect.x()));
  epsMatrix->setFloat(1, 0, static_cast<float>(rect.y()));
  epsMatrix->setFloat(0, 1, static_cast<float>(rect.width()));
  epsMatrix->setFloat(1, 1, static_cast<float>(rect.height()));
}

void MainWindowController::showPicture(const DocumentContents& contents) {
  if (contents.kind != DocumentKind::Other) {
    if (contents.kind == DocumentKind::Eps && contents.imageRep)
      view()->setFrameSize(contents.pictureRectangle.size());
    dialKnob()->setClockwise(false);
    view()->setFlippedCoordinate(false);
  }
  epsMatrixBox->setTitle(QStringLiteral("Bounds"));
  showMatrix(contents.pictureRectangle);
  epsMatrix->setBackgroundColor(kPaleGreen);
  view()->setCoordinateRect(contents.pictureRectangle);
  view()->setImageSize(contents.pictureRectangle.size());
}

void MainWindowController::showSvgPicture(const DocumentContents& contents) {
  QObject::disconnect(svgObservation_);
  const auto rep = std::dynamic_pointer_cast<ZyWebImageRep>(contents.imageRep);
  if (rep) {
    const QRectF viewBox = contents.viewBox.value_or(QRectF(0, 0, 0, 0));
    const QSizeF size = contents.pictureRectangle.size();
    showMatrix(viewBox);
    epsMatrix->setBackgroundColor(isFixedOnOneAxisOnly(contents.header) ? kPalePink : kPaleGreen);
    view()->setImageSize(size);
    view()->setScaleX(size.width() / viewBox.width());
    view()->setScaleY(size.height() / viewBox.height());
    view()->setCoordinateRect(viewBox);
    if (QThread::currentThread() == qApp->thread())
      svgObservation_ = connect(rep.get(), &ZyWebImageRep::pdfImageRepDidLoad, this,
                                &MainWindowController::pdfImageRepDidLoad);
  }
  dialKnob()->setClockwise(rep && rep->isFlipped());
  view()->setFlippedCoordinate(false);
  epsMatrixBox->setTitle(QStringLiteral("ViewBox"));
}

void MainWindowController::showHeader(const DocumentContents& contents) {
  const auto text = [&](const QString& key) { return contents.header.value(key).toString(); };
  titleForm()->setText(0, text(header::Title));
  creatorForm()->setText(0, text(header::Creator));
  creationDateForm()->setText(0, text(header::CreationDate));
  forForm()->setText(0, text(header::For));
  copyrightForm()->setText(0, text(header::Copyright));
  encodingForm()->setText(0, text(header::Encoding));
  descriptionView->setString(text(header::Description));
  sourceTextView->setString(contents.sourceText);
}

void MainWindowController::showPreview(const DocumentContents& contents) {
  const QVariant preview = contents.header.value(header::Preview);
  if (preview.canConvert<NSBitmapImageRep>()) {
    previewField->setText(QStringLiteral("Include Preview"));
    previewImageView()->setCompositingOperation(ZyImageView::SourceOver);
    previewImageView()->setImageFrameStyle(kFrameOfPreview);
    previewImageView()->setImage(toImage(preview.value<NSBitmapImageRep>()));
    return;
  }
  previewField->setText(QStringLiteral("Image"));
  previewImageView()->setImageFrameStyle(kFrameOfPicture);
  if (contents.kind != DocumentKind::Svg)
    previewImageView()->setImageRep(contents.imageRep);
  else
    previewImageView()->setImage({});  // comes with the PDF form
  if (const auto rep = std::dynamic_pointer_cast<ZyWebImageRep>(contents.imageRep)) rep->loadPDFImageRep();
}

void MainWindowController::showColorSpace(const HeaderDictionary& header) {
  const QVariant space = header.value(header::ColorSpace);
  if (space.canConvert<QColorSpace>() && space.value<QColorSpace>().isValid())
    windowColorSpace_ = space.value<QColorSpace>();
  colorSpaceNameForm()->setText(0, windowColorSpace_.description());
}

void MainWindowController::resetRotationAndZoom() {
  rotateField()->setDoubleValue(0.0);
  rotateChange(0.0);
  viewWidget_->setToolTip(localizedString("Selection is determined by dragging the mouse twice."));
  if (!observing_) {
    observing_ = true;
    // While the factor changes the clip is still scaled as before; the rule needs the factor alone.
    connect(zoomingScrollView(), &SKTZoomingScrollView::zoomingScrollViewFactorDidChange, this,
            &MainWindowController::setWindowSize);
  }
  setZoomFactor(1.0);
  setWindowSize();
  zoomingScrollView()->bind(factorBindingName, this, "zoomFactor");
  scrollArea_->scrollToTop();
}

}  // namespace norvex
