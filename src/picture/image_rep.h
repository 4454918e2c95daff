// NSImageRep: a picture that can be asked for its natural size and drawn. Its three kinds follow in files of
// their own.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QMetaType>
#include <QObject>
#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QTransform>

#include <memory>
#include <optional>

#include "picture/process/picture_process.h"

class QPainter;

namespace norvex {

class RenderedPicture;

/// A loaded picture. Facts are immutable after construction and may be read from any thread; draw(), what it
/// tells and the signals belong to the thread that the object lives in (QObject::thread()).
class NSImageRep : public QObject {
  Q_OBJECT
 public:
  /// Cancels renderings under way and waits for their end.
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

  /// Remarks about the document, one plain sentence each: what is missing, what is passed over. Any thread.
  [[nodiscard]] virtual QStringList warnings() const { return {}; }

  /// Draws the picture at its natural size with its lower-left corner at the painter's origin; the painter's
  /// transform must map y-up picture coordinates to the device. Never waits: draws what is rendered (scaled
  /// or turned) and asks for a sharp rendering, whose arrival is told by renderingArrived(). What is seen of
  /// the device is the painter's clip, or all of it without one: set the clip to the visible part of a
  /// scrolled view.
  virtual void draw(QPainter& painter);
  /// True when the picture that the last draw() showed is sharp and complete by now (tests, benchmarks and
  /// the progress bar ask).
  [[nodiscard]] bool isSharp() const;
  /// True while a visible part is being rendered.
  [[nodiscard]] bool isRendering() const;
  /// Why what the last draw() showed does not become sharp; nothing: it does or will.
  [[nodiscard]] std::optional<Error> renderingError() const;
  /// A failed view is not asked for again until this is called.
  void retryRendering();

  /// The whole unrotated page as premultiplied ARGB32, transparent where it is not painted; the size in
  /// points times `scale`, rounded up to whole pixels. Blocks for the picture process. Any thread.
  [[nodiscard]] Result<QImage> rasterImage(double scale, RenderPurpose purpose = RenderPurpose::Preview,
                                           const CancelToken& cancel = {}) const;

 signals:
  void renderingArrived();
  /// A rendering failed; the picture shown is the last good one or nothing. Cancelled requests are not told.
  void renderingFailed(const norvex::Error& error);

 protected:
  NSImageRep(PictureKind kind, QByteArray bytes, std::shared_ptr<PictureProcess> process, int page = 0);

  /// An owner for `rep` that deletes it in the thread it lives in, wherever the last reference goes.
  template <typename Rep>
  [[nodiscard]] static std::shared_ptr<Rep> shared(Rep* rep) {
    return std::shared_ptr<Rep>(rep, deleteInItsThread);
  }

 private:
  static void deleteInItsThread(NSImageRep* rep);
  RenderedPicture& rendered();

  PictureKind kind_;
  QByteArray bytes_;
  std::shared_ptr<PictureProcess> process_;
  int page_ = 0;
  std::unique_ptr<RenderedPicture> rendered_;  ///< made by the first draw()
  QTransform drawnTransform_;                  ///< of the last draw()
  QRect drawnRect_;
};

}  // namespace norvex

Q_DECLARE_METATYPE(norvex::Error)
