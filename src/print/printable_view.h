// The printed view, or its remains once a job has begun.
#pragma once

#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

#include "display/norvex_rendering_view.h"
#include "display/norvex_view.h"

namespace norvex {

/// A view as it is at one moment: what a job prints does not change while it runs. A value; the functions run
/// on any thread.
struct PrintSource {
  QSizeF size;  ///< of the drawing, points; empty: there is none
  QString jobTitle;
  std::function<std::optional<PageLine>()> header, footer;
  /// The drawing as a PDF page of `size`. Empty: there is no picture, the pages are blank. Blocks.
  std::function<Result<PictureBytes>(const CancelToken&)> picture;
};

/// The seam between the print operation and the views that can be printed.
class PrintableView {
 public:
  virtual ~PrintableView() = default;
  /// The view as it is now. Main thread.
  [[nodiscard]] virtual PrintSource printSource() const = 0;
};

/// The turned picture as the window shows it, without the selection. `view` must outlive this.
class PrintableNorvexView final : public PrintableView {
 public:
  explicit PrintableNorvexView(const NorvexView& view) : view_(view) {}
  [[nodiscard]] PrintSource printSource() const override;

 private:
  const NorvexView& view_;
};

/// A view that was made to be printed, together with the picture that it does not own.
class PrintableRenderingView final : public PrintableView {
 public:
  PrintableRenderingView(std::shared_ptr<NorvexRenderingView> view, std::shared_ptr<NSImageRep> imageRep)
      : view_(std::move(view)), imageRep_(std::move(imageRep)) {}
  [[nodiscard]] PrintSource printSource() const override;
  [[nodiscard]] const NorvexRenderingView& view() const { return *view_; }

 private:
  std::shared_ptr<NorvexRenderingView> view_;
  std::shared_ptr<NSImageRep> imageRep_;
};

}  // namespace norvex
