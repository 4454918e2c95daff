// NSImageRep: a picture that can be asked for its natural size and drawn. Its three kinds follow in files of their own.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>

#include "platform/picture_process.h"

class QPainter;

namespace norvex {

class RenderedPicture;

/// A loaded picture. Facts are immutable after construction and may be read from any thread; draw() and the signal
/// belong to the main thread.
class NSImageRep : public QObject {
  Q_OBJECT
 public:
  ~NSImageRep() override;

  /// Natural, unrotated size in points.
  [[nodiscard]] virtual QSizeF size() const = 0;
  /// The kind that the picture process was told.
  [[nodiscard]] PictureKind pictureKind() const { return kind_; }
  /// The process behind the picture; never null.
  [[nodiscard]] const std::shared_ptr<PictureProcess>& process() const { return process_; }
  /// The file's bytes as they were read.
  [[nodiscard]] const QByteArray& sourceBytes() const { return bytes_; }
  /// The page that is shown, from 0; only PDF has more than one.
  [[nodiscard]] int page() const { return page_; }

  /// Draws the picture at its natural size with its lower-left corner at the painter's origin; the painter's
  /// transform must map y-up picture coordinates to the device. Never waits: draws what is rendered (scaled or
  /// turned) and asks for a sharp rendering, whose arrival is told by renderingArrived().
  virtual void draw(QPainter& painter);
  /// Whether what the last draw() showed was sharp and complete (tests, benchmarks and the progress bar ask).
  [[nodiscard]] bool isSharp() const;

 signals:
  void renderingArrived();
  /// A rendering failed; the picture shown is the last good one or nothing. Cancelled requests are not told.
  void renderingFailed(const norvex::Error& error);

 protected:
  NSImageRep(PictureKind kind, QByteArray bytes, std::shared_ptr<PictureProcess> process);

 private:
  PictureKind kind_;
  QByteArray bytes_;
  std::shared_ptr<PictureProcess> process_;
  int page_ = 0;
  std::unique_ptr<RenderedPicture> rendered_;  ///< made by the first draw()
};

}  // namespace norvex

Q_DECLARE_METATYPE(norvex::Error)
