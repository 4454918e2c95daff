#include "window/commands/window_producers.h"

namespace norvex {

PictureEncoder WindowProducers::encoder(const CancelToken& cancel) const {
  const Shown shown = showing_();
  EncoderSurroundings surroundings =
      shown.service ? usualSurroundings(*shown.service) : EncoderSurroundings();
  surroundings.iccProfile = shown.colorSpace.isValid() ? shown.colorSpace.iccProfile() : QByteArray();
  surroundings.subjectMayBeLeftOut = true;
  return {shown.imageRep, surroundings, cancel};
}

QByteArray WindowProducers::make(const std::function<QByteArray(PictureEncoder&)>& produce) {
  const CancelToken cancel;
  PictureEncoder made = encoder(cancel);
  QByteArray bytes;
  const auto making = [&] { bytes = produce(made); };
  if (runner_)
    runner_(making, cancel);
  else
    making();
  lastReport_ = made.report();
  return bytes;
}

QByteArray WindowProducers::postScriptData() {
  return make([](PictureEncoder& encoder) { return encoder.postScriptData(); });
}

QByteArray WindowProducers::addEPSHeader(const QByteArray& postScript) {
  return make([&](PictureEncoder& encoder) { return encoder.addEPSHeader(postScript); });
}

QByteArray WindowProducers::postScriptDataWithPreview() {
  return make([](PictureEncoder& encoder) { return encoder.postScriptDataWithPreview(); });
}

QByteArray WindowProducers::epsiData() {
  return make([](PictureEncoder& encoder) { return encoder.epsiData(); });
}

QByteArray WindowProducers::pdfData() {
  return make([](PictureEncoder& encoder) { return encoder.pdfData(); });
}

QByteArray WindowProducers::addPDFHeader(const QByteArray& pdf) {
  return make([&](PictureEncoder& encoder) { return encoder.addPDFHeader(pdf); });
}

QByteArray WindowProducers::svgData() {
  return make([](PictureEncoder& encoder) { return encoder.svgData(); });
}

QByteArray WindowProducers::tiffData(const std::shared_ptr<NSImageRep>& imageRep) {
  return make([&](PictureEncoder& encoder) { return encoder.tiffData(imageRep); });
}

QByteArray WindowProducers::pngData(const std::shared_ptr<NSImageRep>& imageRep) {
  return make([&](PictureEncoder& encoder) { return encoder.pngData(imageRep); });
}

QByteArray WindowProducers::jpgData(const std::shared_ptr<NSImageRep>& imageRep) {
  return make([&](PictureEncoder& encoder) { return encoder.jpgData(imageRep); });
}

QByteArray WindowProducers::gifData(const std::shared_ptr<NSImageRep>& imageRep) {
  return make([&](PictureEncoder& encoder) { return encoder.gifData(imageRep); });
}

QString WindowProducers::lastShortcoming() const {
  return lastReport_.shortcoming;
}

}  // namespace norvex
