// The inks of a page and their plates: the answer to an ExamineRequest for Examination::Inks, as values and
// as CBOR. The picture process writes it; its reader believes nothing of it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QString>

#include <array>
#include <optional>

#include "base/result.h"
#include "protocol/limits.h"

namespace norvex {

/// Shares of cyan, magenta, yellow and black, 0 … 255.
using ProcessInks = std::array<quint8, 4>;

struct Ink {
  QString name;  ///< "Cyan", "Magenta", "Yellow" and "Black", or that of a spot ink
  bool isSpot = false;
  std::optional<ProcessInks> alternate;  ///< of a spot ink: what stands in for all of it, where the page says
  double coverage = 0;                   ///< 0 … 1: pixels that have any of it
  double amount = 0;                     ///< 0 … 1: the mean of the plate
};

/// Plates of more pixels than these together are not answered.
inline constexpr qsizetype maximumPlateBytes = qsizetype(limits::maximumPlatePixels) * 16;

/// The plates, and what is told of the inks; more is not looked at.
inline constexpr qsizetype maximumPageInksBytes = maximumPlateBytes + limits::maximumMessageBytes;

struct PageInks {
  QSize pixels{1, 1};  ///< of each plate
  double dpi = 72;
  bool overprint = false;  ///< overprinting is simulated
  QList<Ink> inks;         ///< the four process inks, then the spot inks
  /// Plate after plate in the order of the inks: 8-bit samples, 255 is all of the ink; rows top to bottom,
  /// without padding.
  QByteArray plates;

  [[nodiscard]] qsizetype plateBytes() const { return qsizetype(pixels.width()) * pixels.height(); }
  /// REQUIRES 0 <= ink < inks.size().
  [[nodiscard]] const uchar* plate(qsizetype ink) const {
    return reinterpret_cast<const uchar*>(plates.constData()) + ink * plateBytes();
  }
};

[[nodiscard]] QByteArray encodePageInks(const PageInks& page);
/// Fails with Protocol, as decodeReply().
[[nodiscard]] Result<PageInks> decodePageInks(const QByteArray& cbor);

}  // namespace norvex
