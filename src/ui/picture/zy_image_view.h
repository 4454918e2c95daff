// ZyImageView: a small picture in an inspector, fitted and centred.
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

#include <memory>

#include "base/cancel_token.h"

namespace norvex {

class NSImageRep;

/// Shows either an image or a picture that it has rendered in the background at its own size. Where neither
/// paints, its background colour shows, or a checkerboard when it uses none. Main thread.
class ZyImageView final : public QWidget {
  Q_OBJECT
 public:
  enum CompositingOperation { Copy = 1, SourceOver = 2 };
  /// Frame styles by number: 2 is a thin grey line; a number that names no style draws no frame.
  enum FrameStyle { NoFrame = 0, GrayBezel = 2 };

  explicit ZyImageView(QWidget* parent = nullptr);
  ~ZyImageView() override;

  void setEditable(bool editable) { editable_ = editable; }
  [[nodiscard]] bool isEditable() const { return editable_; }
  void setUseBackgroundColor(bool use);
  [[nodiscard]] bool usesBackgroundColor() const { return useBackground_; }
  void setBackgroundColor(const QColor& color);
  [[nodiscard]] QColor backgroundColor() const { return background_; }
  void setCompositingOperation(int operation);
  [[nodiscard]] int compositingOperation() const { return operation_; }
  void setImageFrameStyle(int style);
  [[nodiscard]] int imageFrameStyle() const { return frameStyle_; }
  /// A null image shows nothing. Forgets the rep.
  void setImage(const QImage& image);
  [[nodiscard]] QImage image() const { return image_; }
  /// Shows the picture as soon as it is rendered; null shows nothing. Forgets the image.
  void setImageRep(const std::shared_ptr<NSImageRep>& rep);
  [[nodiscard]] std::shared_ptr<NSImageRep> imageRep() const { return rep_; }

  QSize sizeHint() const override { return {240, 168}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] QRectF fitted(QSizeF size) const;
  void renderRep();

  bool editable_ = false, useBackground_ = false;
  QColor background_ = Qt::white;
  int operation_ = SourceOver;
  int frameStyle_ = NoFrame;
  QImage image_;
  std::shared_ptr<NSImageRep> rep_;
  CancelToken cancel_;
};

}  // namespace norvex
