// A drawn sheet of paper.
#pragma once

#include <QImage>
#include <QWidget>

#include "print/pagination.h"

namespace norvex {

/// Shows one page: the paper with its shadow, the margins as a thin dashed line, header and footer as grey
/// lines, and where the picture goes; or, once there is one, the page's image. Main thread.
class PageLayoutPreview final : public QWidget {
  Q_OBJECT
 public:
  explicit PageLayoutPreview(QWidget* parent = nullptr);

  /// `page` from 1.
  void setPage(const Pagination& pages, int page);
  /// A sentence in the place of a page.
  void setProblem(const QString& sentence);
  /// The page's image; a null one takes it away.
  void setImage(const QImage& image);
  /// The paper on the screen, in device pixels.
  [[nodiscard]] QSize paperPixels() const;

  [[nodiscard]] QSize sizeHint() const override { return {260, 300}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {180, 200}; }

 signals:
  /// The paper has another size on the screen.
  void resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] QRectF paperRect() const;
  void drawSketch(QPainter& painter, const QRectF& paper) const;

  Pagination pages_;
  int page_ = 1;
  QString problem_;
  QImage image_;
};

}  // namespace norvex
