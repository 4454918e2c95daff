#include "window/contents_display.h"

#include <QColor>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "metadata/header_dictionary.h"
#include "picture/bitmap_image.h"
#include "picture/web_image_rep.h"
#include "ui/controls/number_field.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_text_view.h"
#include "window/commands/inspector_command.h"
#include "window/commands/window_parts.h"
#include "window/document_contents.h"

namespace norvex {

namespace {

const QColor kPaleGreen = QColor::fromRgbF(0.917645f, 1.0f, 0.909804f);
const QColor kPalePink = QColor::fromRgbF(1.0f, 0.913725f, 0.949019f);
constexpr int kFrameOfPreview = 2;
constexpr int kFrameOfPicture = 255;

bool isFixedOnOneAxisOnly(const HeaderDictionary& header) {
  const QVariant x = header.value(QString::fromLatin1(ZyWebViewFixedRatioXKey));
  const QVariant y = header.value(QString::fromLatin1(ZyWebViewFixedRatioYKey));
  return x.isValid() && y.isValid() && !(x.toBool() && y.toBool());
}

}  // namespace

std::optional<QColorSpace> ContentsDisplay::colorSpace(const HeaderDictionary& header) {
  const QVariant space = header.value(header::ColorSpace);
  if (!space.canConvert<QColorSpace>() || !space.value<QColorSpace>().isValid()) return std::nullopt;
  return space.value<QColorSpace>();
}

void ContentsDisplay::show(const DocumentContents& contents) {
  parts_.view()->setImageRep(contents.imageRep);
  if (contents.kind == DocumentKind::Svg)
    showSvgPicture(contents);
  else
    showPicture(contents);
  showTexts(contents.header, contents.sourceText);
  inspector_.showFacts(contents.imageRep.get());
  showPreview(contents);
}

void ContentsDisplay::showUntitled() {
  for (ZyForm* form : {parts_.titleForm(), parts_.creatorForm(), parts_.creationDateForm(), parts_.forForm(),
                       parts_.copyrightForm(), parts_.encodingForm()})
    form->setText(0, QString());
  parts_.descriptionView->setString(QString());
  inspector_.showFacts(nullptr);
  parts_.epsMatrixBox->setTitle(QString());
  for (int row = 0; row < 2; ++row)
    for (int column = 0; column < 2; ++column) parts_.epsMatrix->setText(row, column, QString());
  parts_.previewField->clear();
  parts_.previewImageView()->setImageFrameStyle(kFrameOfPreview);
  parts_.previewImageView()->setImage({});
  parts_.rotateField()->clearValue();
}

void ContentsDisplay::showMatrix(const QRectF& rect) {
  parts_.epsMatrix->setRect(rect);
}

void ContentsDisplay::showPicture(const DocumentContents& contents) {
  if (contents.kind != DocumentKind::Other) {
    if (contents.kind == DocumentKind::Eps && contents.imageRep)
      parts_.view()->setFrameSize(contents.pictureRectangle.size());
    parts_.dialKnob()->setClockwise(false);
    parts_.view()->setFlippedCoordinate(false);
  }
  parts_.epsMatrixBox->setTitle(QStringLiteral("Bounds"));
  showMatrix(contents.pictureRectangle);
  parts_.epsMatrix->setBackgroundColor(kPaleGreen);
  parts_.view()->setCoordinateRect(contents.pictureRectangle);
  parts_.view()->setImageSize(contents.pictureRectangle.size());
}

void ContentsDisplay::showSvgPicture(const DocumentContents& contents) {
  const auto rep = std::dynamic_pointer_cast<ZyWebImageRep>(contents.imageRep);
  if (rep) {
    const QRectF viewBox = contents.viewBox.value_or(QRectF(0, 0, 0, 0));
    const QSizeF size = contents.pictureRectangle.size();
    showMatrix(viewBox);
    parts_.epsMatrix->setBackgroundColor(isFixedOnOneAxisOnly(contents.header) ? kPalePink : kPaleGreen);
    parts_.view()->setImageSize(size);
    parts_.view()->setScaleX(size.width() / viewBox.width());
    parts_.view()->setScaleY(size.height() / viewBox.height());
    parts_.view()->setCoordinateRect(viewBox);
  }
  parts_.dialKnob()->setClockwise(rep && rep->isFlipped());
  parts_.view()->setFlippedCoordinate(false);
  parts_.epsMatrixBox->setTitle(QStringLiteral("ViewBox"));
}

void ContentsDisplay::showTexts(const HeaderDictionary& header, const QString& sourceText) {
  const auto text = [&](const QString& key) { return header.value(key).toString(); };
  parts_.titleForm()->setText(0, text(header::Title));
  parts_.creatorForm()->setText(0, text(header::Creator));
  parts_.creationDateForm()->setText(0, text(header::CreationDate));
  parts_.forForm()->setText(0, text(header::For));
  parts_.copyrightForm()->setText(0, text(header::Copyright));
  parts_.encodingForm()->setText(0, text(header::Encoding));
  parts_.descriptionView->setString(text(header::Description));
  parts_.sourceTextView->setString(sourceText);
}

void ContentsDisplay::showPreview(const DocumentContents& contents) {
  const QVariant preview = contents.header.value(header::Preview);
  if (preview.canConvert<NSBitmapImageRep>()) {
    parts_.previewField->setText(QStringLiteral("Include Preview"));
    parts_.previewImageView()->setCompositingOperation(ZyImageView::SourceOver);
    parts_.previewImageView()->setImageFrameStyle(kFrameOfPreview);
    parts_.previewImageView()->setImage(toImage(preview.value<NSBitmapImageRep>()));
    return;
  }
  if (contents.metafile) {
    parts_.previewField->setText(
        localizedString("Windows metafile, %1").arg(QLocale().formattedDataSize(contents.metafile->bytes)));
    parts_.previewImageView()->setCompositingOperation(ZyImageView::SourceOver);
    parts_.previewImageView()->setImageFrameStyle(kFrameOfPreview);
    parts_.previewImageView()->setImage(toImage(contents.metafile->image));
    return;
  }
  parts_.previewField->setText(QStringLiteral("Image"));
  parts_.previewImageView()->setImageFrameStyle(kFrameOfPicture);
  if (contents.kind != DocumentKind::Svg)
    parts_.previewImageView()->setImageRep(contents.imageRep);
  else
    parts_.previewImageView()->setImage({});  // comes with the PDF form
  if (const auto rep = std::dynamic_pointer_cast<ZyWebImageRep>(contents.imageRep)) rep->loadPDFImageRep();
}

}  // namespace norvex
