// The writing half of Document: which producer makes the bytes of a type, and the one question that is asked.
#include <QFileInfo>

#include "base/atomic_file.h"
#include "base/bundle.h"
#include "base/localized_string.h"
#include "desktop/alert.h"
#include "document/document.h"
#include "document/picture_producers.h"
#include "document/unimplemented_method.h"
#include "encoders/output_check.h"
#include "picture/image_rep.h"
#include "picture/web_image_rep.h"
#include "types/uniform_type.h"

namespace norvex {
namespace {

bool conforms(const QString& type, const UTType& to) {
  const auto known = UTType::typeWithIdentifier(type);
  return known && known->conformsToType(to);
}

bool conforms(const QString& type, const QString& to) {
  const auto known = UTType::typeWithIdentifier(to);
  return known && conforms(type, *known);
}

/// The formats whose bytes need no decision.
QByteArray plainFormat(PictureProducers& producers, const QString& type) {
  if (conforms(type, NorvexEPSIType)) return producers.epsiData();
  if (conforms(type, UTTypePDF())) return producers.pdfData();
  if (conforms(type, UTTypeTIFF())) return producers.tiffData(producers.shownImageRep());
  if (conforms(type, UTTypePNG())) return producers.pngData(producers.shownImageRep());
  if (conforms(type, UTTypeJPEG())) return producers.jpgData(producers.shownImageRep());
  if (conforms(type, UTTypeGIF())) return producers.gifData(producers.shownImageRep());
  return {};
}

}  // namespace

PictureProducers* Document::producers() const {
  return windowController_ ? windowController_->producers() : nullptr;
}

bool Document::writeToURL(const QUrl& url, const QString& ofType, DocumentError* error) {
  const QString extension = QFileInfo(url.path()).suffix().toLower();
  if (conforms(ofType, UTTypeSVG()) && extension == QLatin1String(ZyWebViewSVGZExtension) && producers()) {
    compressedData_.reset();
    const QByteArray svg = producers()->svgData();
    if (!svg.isEmpty()) compressedData_ = ZyWebImageRep::gzip(svg);
  }
  const QByteArray bytes = dataOfType(ofType, error);
  const auto shown = producers() ? producers()->shownImageRep() : nullptr;
  const bool handedOn = shown && shown->sourceBytes() == bytes;  // it was opened already
  if (const Result<void> opens = checkOutput(bytes); !opens && !handedOn) {
    if (error) *error = {errorDomain(), int(DocumentErrorCode::NotWritten), opens.error().message};
    return false;
  }
  if (!mayReplace(url)) return false;
  const Result<void> written = writeFileAtomically(url.toLocalFile(), bytes, IfExists::Replace);
  if (!written && error)
    *error = {errorDomain(), int(DocumentErrorCode::NotWritten), written.error().message};
  return written.ok();
}

QByteArray Document::dataOfType(const QString& type, DocumentError* error) {
  Q_UNUSED(error)
  QString failure = localizedString("Please retry with other format.");
  QByteArray bytes;
  if (PictureProducers* const made = producers()) {
    if (conforms(type, UTTypeSVG())) {
      bytes = scalableVectorGraphics(*made);
    } else if (conforms(type, NorvexEPSType)) {
      bytes = encapsulatedPostScript(*made, &failure);
    } else {
      bytes = plainFormat(*made, type);
    }
  }
  if (bytes.isEmpty()) throw UnimplementedMethod(QStringLiteral("dataOfType:error:"), failure);
  return bytes;
}

QByteArray Document::scalableVectorGraphics(PictureProducers& made) {
  if (!compressedData_) return made.svgData();
  const QByteArray bytes = *compressedData_;
  compressedData_.reset();  // it serves one write
  return bytes;
}

QByteArray Document::encapsulatedPostScript(PictureProducers& made, QString* failure) {
  enum Button { Plain, Cancel, WithPreview };
  const char* const plain = conforms(fileType_, NorvexEPSType) ? "Original" : "None preview";
  Alert question;
  question.style = AlertStyle::Informational;
  question.messageText = QStringLiteral("EPS");
  question.informativeText = localizedString("Is the preview added the occasion where it writes out?");
  question.buttons = {localizedString(plain), localizedString("Cancel"), localizedString("With preview")};
  switch (alerts_ ? alerts_->runModal(question) : Plain) {  // nobody to ask is no refusal
    case Cancel:
      *failure = localizedString("Canceled.");
      return {};
    case WithPreview:
      return made.postScriptDataWithPreview();
    default:
      return made.postScriptData();
  }
}

/// A file that lacks something must not take the place of a whole one unasked.
bool Document::mayReplace(const QUrl& url) const {
  const QString lacking = producers() ? producers()->lastShortcoming() : QString();
  if (lacking.isEmpty() || !QFileInfo::exists(url.toLocalFile())) return true;
  Alert question;
  question.messageText = localizedString("The new file would hold less than the picture does.");
  question.informativeText = lacking;
  question.buttons = {localizedString("Replace"), localizedString("Cancel")};
  return alerts_ && alerts_->runModal(question) == 0;
}

}  // namespace norvex
