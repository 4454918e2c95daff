// A PDF made EPS and both drawn: the EPS by Ghostscript, the PDF by Poppler.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <utility>

#include "worker/engine/engine.h"
#include "worker/eps_output/eps_from_pdf.h"
#include "worker/kit/bitmap_images.h"
#include "worker/pages/pdf_engine.h"

namespace norvex::kit {

class Converted {
 public:
  explicit Converted(const QByteArray& pdf) {
    engine::EngineContext context;
    auto eps = engine::epsFromPdf(pdf, context);
    if (eps)
      result_ = std::move(*eps);
    else
      error_ = eps.error();
  }
  [[nodiscard]] const QByteArray& eps() const { return result_.bytes; }
  [[nodiscard]] const BytesReply& report() const { return result_.report; }
  [[nodiscard]] const Error& error() const { return error_; }

  /// Drawn by gs on white, two pixels a point; null when gs has anything to complain of.
  QImage byGhostscript() {
    const QString path = folder_.filePath("converted.eps");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(eps()) != eps().size()) return {};
    file.close();
    QProcess gs;
    gs.setProcessChannelMode(QProcess::MergedChannels);
    const QString png = folder_.filePath("converted.png");
    gs.start("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-sDEVICE=png16m", "-r144",
                    "-dGraphicsAlphaBits=4", "-dTextAlphaBits=4", "-o", png, path});
    if (!gs.waitForFinished(60000) || gs.exitCode() != 0) return {};
    const QByteArray said = gs.readAll();
    if (!said.isEmpty()) qWarning("%s", said.constData());
    return said.isEmpty() ? QImage(png).convertToFormat(QImage::Format_RGB32) : QImage();
  }

 private:
  QTemporaryDir folder_;
  engine::EngineBytes result_;
  Error error_;
};

inline QImage drawn(const QByteArray& pdf) {
  engine::EngineContext context;
  auto opened = engine::openPdf(pdf, context);
  if (!opened) return {};
  const QSizeF size = (*opened)->facts()->pageBounds.first().size();
  RenderRequest request;
  request.pixelSize = QSize(int(std::round(size.width() * 2)), int(std::round(size.height() * 2)));
  request.pictureToDevice = QTransform(2, 0, 0, -2, 0, size.height() * 2);
  const auto image = kit::imageOf((*opened)->render(request));
  if (!image) return {};
  QImage onWhite(image->size(), QImage::Format_RGB32);
  onWhite.fill(Qt::white);
  QPainter(&onWhite).drawImage(0, 0, *image);
  return onWhite;
}

// Mean difference of a channel, 0 … 255; 255 when the sizes differ by more than a pixel.
inline double difference(const QImage& a, const QImage& b) {
  if (a.isNull() || b.isNull() || std::abs(a.width() - b.width()) > 1 ||
      std::abs(a.height() - b.height()) > 1)
    return 255;
  double sum = 0;
  const QSize size = a.size().boundedTo(b.size());
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) {
      const QRgb p = a.pixel(x, y);
      const QRgb q = b.pixel(x, y);
      sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
    }
  return sum / (3.0 * size.width() * size.height());
}

}  // namespace norvex::kit
