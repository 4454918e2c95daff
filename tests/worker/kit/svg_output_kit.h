// A PDF made SVG, and the SVG drawn by librsvg.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <optional>
#include <utility>

#include "worker/engine/engine.h"
#include "worker/every_engine/open_document.h"
#include "worker/kit/bitmap_images.h"
#include "worker/svg_output/svg_from_pdf.h"

namespace norvex::kit {

class MadeSvg {
 public:
  explicit MadeSvg(const QByteArray& pdf, const std::optional<PdfAttributes>& attributes = {},
                   engine::EngineContext context = {}, bool keepText = false) {
    auto svg = engine::svgFromPdf(pdf, attributes, context, keepText);
    if (svg)
      result_ = std::move(*svg);
    else
      error_ = svg.error();
  }
  /// With text as text.
  [[nodiscard]] static MadeSvg withText(const QByteArray& pdf) { return MadeSvg(pdf, {}, {}, true); }
  [[nodiscard]] const QByteArray& svg() const { return result_.bytes; }
  [[nodiscard]] const BytesReply& report() const { return result_.report; }
  [[nodiscard]] const std::optional<Error>& error() const { return error_; }
  [[nodiscard]] int count(const char* text) const { return int(result_.bytes.count(text)); }

  /// On white, two pixels a point; null where our own engine cannot open it again.
  [[nodiscard]] QImage picture() const {
    engine::EngineContext context{};  // initialised: GCC 12 takes the token for unset under sanitizers
    auto opened = engine::openSvg(svg(), context);
    if (!opened) return {};
    const QSizeF size = (*opened)->facts()->pageBounds.first().size();
    RenderRequest request;
    request.pixelSize = QSize(int(std::round(size.width() * 2)), int(std::round(size.height() * 2)));
    request.pictureToDevice = QTransform(2, 0, 0, -2, 0, size.height() * 2);
    const auto image = imageOf((*opened)->render(request));
    if (!image) return {};
    QImage onWhite(image->size(), QImage::Format_RGB32);
    onWhite.fill(Qt::white);
    QPainter(&onWhite).drawImage(0, 0, *image);
    return onWhite;
  }

 private:
  engine::EngineBytes result_;
  std::optional<Error> error_;
};

}  // namespace norvex::kit
