// The printed view, or its remains once a job has begun.
#pragma once

#include <QList>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

#include "display/norvex_rendering_view.h"
#include "display/norvex_view.h"

namespace norvex {

/// One drawing of a job. A value; the function runs on any thread.
struct PrintPage {
  QSizeF size;  ///< points; empty: there is nothing to draw
  /// The drawing as a PDF page of `size`. Empty: there is no picture, the sheets are blank. Blocks.
  std::function<Result<PictureBytes>(const CancelToken&)> picture;
};

/// A view as it is at one moment: what a job prints does not change while it runs. A value; the functions run
/// on any thread.
struct PrintSource {
  PrintPage shown;
  QString jobTitle;
  std::function<std::optional<PageLine>()> header, footer;
  /// Every page of a document with several, as it would be shown; empty: there is nothing but what is shown.
  QList<PrintPage> pages = {};
  int shownPage = 0;  ///< the one of them that is `shown`; from 0
  int pageCount = 0;  ///< of the document: more than `pages` where there are too many to know them all
};

/// The seam between the print operation and the views that can be printed.
class PrintableView {
 public:
  virtual ~PrintableView() = default;
  /// The view as it is now. Main thread.
  [[nodiscard]] virtual PrintSource printSource() const = 0;
};

/// The turned picture as the window shows it, without the selection; the other pages of its document turned
/// as it is. `view` must outlive this.
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
