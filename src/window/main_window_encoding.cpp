// The shown picture as bytes: the producers, under the controller's names.
#include "window/main_window_controller.h"

#include "document/document.h"

namespace norvex {

WindowProducers& MainWindowController::windowProducers() {
  if (!producers_) {
    producers_ = std::make_unique<WindowProducers>([this] {
      return WindowProducers::Shown{view() ? view()->imageRep() : nullptr,
                                    document_ ? &document_->pictureService() : nullptr, windowColorSpace_};
    });
  }
  return *producers_;
}

PictureProducers* MainWindowController::producers() {
  return &windowProducers();
}

QByteArray MainWindowController::postScriptData() {
  return windowProducers().postScriptData();
}

QByteArray MainWindowController::addEPSHeader(const QByteArray& postScript) {
  return windowProducers().addEPSHeader(postScript);
}

QByteArray MainWindowController::postScriptDataWithPreview() {
  return windowProducers().postScriptDataWithPreview();
}

QByteArray MainWindowController::epsiData() {
  return windowProducers().epsiData();
}

QByteArray MainWindowController::pdfData() {
  return windowProducers().pdfData();
}

QByteArray MainWindowController::addPDFHeader(const QByteArray& pdf) {
  return windowProducers().addPDFHeader(pdf);
}

QByteArray MainWindowController::svgData() {
  return windowProducers().svgData();
}

std::optional<DocRasterImage> MainWindowController::docRasterImage(
    const std::shared_ptr<NSImageRep>& imageRep) {
  return norvex::docRasterImage(imageRep);
}

QByteArray MainWindowController::tiffData(const std::shared_ptr<NSImageRep>& imageRep) {
  return windowProducers().tiffData(imageRep);
}

QByteArray MainWindowController::pngData(const std::shared_ptr<NSImageRep>& imageRep) {
  return windowProducers().pngData(imageRep);
}

QByteArray MainWindowController::jpgData(const std::shared_ptr<NSImageRep>& imageRep) {
  return windowProducers().jpgData(imageRep);
}

QByteArray MainWindowController::gifData(const std::shared_ptr<NSImageRep>& imageRep) {
  return windowProducers().gifData(imageRep);
}

}  // namespace norvex
