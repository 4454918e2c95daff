// The producers of a document window: its shown picture as the bytes of each format.
#pragma once

#include <QColorSpace>

#include <functional>

#include "base/cancel_token.h"
#include "document/picture_producers.h"
#include "encoders/picture_encoder.h"

namespace norvex {

class PictureService;

/// Makes an encoder for the picture that is shown at the moment of each call. Main thread only.
class WindowProducers final : public PictureProducers {
 public:
  /// The picture that the window shows now; asked at each call, on the main thread.
  struct Shown {
    std::shared_ptr<NSImageRep> imageRep;  ///< null: no picture
    PictureService* service = nullptr;     ///< null: no document
    QColorSpace colorSpace;                ///< of the window; an invalid one has no profile
  };
  using Showing = std::function<Shown()>;

  /// Runs the making of bytes, which ends early once the token is cancelled, and returns when it has ended.
  using Runner = std::function<void(const std::function<void()>& making, const CancelToken& cancel)>;

  explicit WindowProducers(Showing showing) : showing_(std::move(showing)) {}

  /// Null: bytes are made where they are asked for.
  void setRunner(Runner runner) { runner_ = std::move(runner); }

  std::shared_ptr<NSImageRep> shownImageRep() override { return showing_().imageRep; }
  QByteArray postScriptData() override;
  QByteArray addEPSHeader(const QByteArray& postScript);
  QByteArray postScriptDataWithPreview() override;
  QByteArray epsiData() override;
  QByteArray pdfData() override;
  QByteArray addPDFHeader(const QByteArray& pdf);
  QByteArray svgData() override;
  QByteArray tiffData(const std::shared_ptr<NSImageRep>& imageRep) override;
  QByteArray pngData(const std::shared_ptr<NSImageRep>& imageRep) override;
  QByteArray jpgData(const std::shared_ptr<NSImageRep>& imageRep) override;
  QByteArray gifData(const std::shared_ptr<NSImageRep>& imageRep) override;
  [[nodiscard]] QString lastShortcoming() const override;
  /// Remarks on the bytes of the last call.
  [[nodiscard]] const QStringList& lastWarnings() const { return lastReport_.warnings; }

  /// The encoder of the shown picture, to be used on another thread.
  [[nodiscard]] PictureEncoder encoder(const CancelToken& cancel = {}) const;

 private:
  QByteArray make(const std::function<QByteArray(PictureEncoder&)>& produce);

  Showing showing_;
  Runner runner_;
  EncodingReport lastReport_;
};

}  // namespace norvex
