// The seam between document writing and what turns the shown picture into bytes: so that writing is tested
// without a picture. The operations are the window controller's; each returns the bytes, or none.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace norvex {

class NSImageRep;

/// Each call blocks for the picture process. Main thread only.
class PictureProducers {
 public:
  virtual ~PictureProducers() = default;

  /// The picture that the window's view shows; null when it shows none.
  [[nodiscard]] virtual std::shared_ptr<NSImageRep> shownImageRep() = 0;
  virtual QByteArray postScriptData() = 0;
  virtual QByteArray postScriptDataWithPreview() = 0;
  virtual QByteArray epsiData() = 0;
  virtual QByteArray pdfData() = 0;
  virtual QByteArray svgData() = 0;
  virtual QByteArray tiffData(const std::shared_ptr<NSImageRep>& imageRep) = 0;
  virtual QByteArray pngData(const std::shared_ptr<NSImageRep>& imageRep) = 0;
  virtual QByteArray jpgData(const std::shared_ptr<NSImageRep>& imageRep) = 0;
  virtual QByteArray gifData(const std::shared_ptr<NSImageRep>& imageRep) = 0;
  /// The lack of the last call's bytes, in one sentence; empty when nothing is known to be missing.
  [[nodiscard]] virtual QString lastShortcoming() const = 0;
};

}  // namespace norvex
