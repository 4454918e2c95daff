#include "metadata/epsi_preview.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/blanks.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

/// Reads from the front of a borrowed text.
class Scanner {
 public:
  explicit Scanner(QByteArrayView text) : at_(text.begin()), end_(text.end()) {}

  std::optional<qint64> wholeNumber() {
    skip(isWhiteSpace);
    const bool negative = at_ < end_ && *at_ == '-';
    if (at_ < end_ && (*at_ == '-' || *at_ == '+')) ++at_;
    if (at_ == end_ || *at_ < '0' || *at_ > '9') return {};
    qint64 value = 0;
    for (; at_ < end_ && *at_ >= '0' && *at_ <= '9'; ++at_)
      value = std::min<qint64>(value * 10 + (*at_ - '0'), kLarge);
    return negative ? -value : value;
  }

  /// The digits of the next line that begins with "%"; empty at the end of the preview. Tools write a blank
  /// behind the percent sign or none.
  QByteArrayView dataLine() {
    skip(isWhiteSpace);
    if (at_ == end_ || *at_ != '%') return {};
    ++at_;
    skip(isBlank);
    const char* from = at_;
    while (at_ < end_ && *at_ != '\n' && *at_ != '\r' && *at_ != ' ' && *at_ != '%') ++at_;
    return {from, at_ - from};
  }

 private:
  static constexpr qint64 kLarge = 1'000'000'000'000;

  template <typename Test>
  void skip(Test test) {
    while (at_ < end_ && test(*at_)) ++at_;
  }

  const char* at_;
  const char* end_;
};

int hexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 0;
}

bool isDepth(qint64 depth) {
  constexpr std::array<qint64, 6> known{1, 2, 4, 8, 12, 16};
  return std::find(known.begin(), known.end(), depth) != known.end();
}

/// Ink is 1 in the file and 0 in the bitmap; rows follow one another without being aligned again.
void fill(QByteArray& data, Scanner& scanner) {
  char* out = data.data();
  const char* end = out + data.size();
  for (QByteArrayView line = scanner.dataLine(); !line.isEmpty() && out < end; line = scanner.dataLine())
    for (qsizetype i = 0; i < line.size() && out < end; i += 2) {
      const int low = i + 1 < line.size() ? hexValue(line[i + 1]) : 0;
      *out++ = char(~(16 * hexValue(line[i]) + low));
    }
}

}  // namespace

qint64 epsiBytesPerRow(qint64 width, qint64 depth) {
  return width * depth / 8 + (depth % 8 != 0 && width % 8 != 0 ? 1 : 0);
}

Result<NSBitmapImageRep> epsiPreview(QByteArrayView behindKeyword) {
  Scanner scanner(behindKeyword);
  const auto width = scanner.wholeNumber();
  const auto height = width ? scanner.wholeNumber() : std::nullopt;
  const auto depth = height ? scanner.wholeNumber() : std::nullopt;
  const auto lines = depth ? scanner.wholeNumber() : std::nullopt;
  if (!lines || *width <= 0 || *height <= 0 || !isDepth(*depth))
    return Error{ErrorKind::NotParsable, QStringLiteral("the embedded preview is malformed")};
  if (*width > limits::maximumPreviewPixels || *height > limits::maximumPreviewPixels / *width)
    return Error{ErrorKind::Limit, QStringLiteral("the embedded preview is too large")};

  NSBitmapImageRep rep;
  rep.pixelsWide = int(*width);
  rep.pixelsHigh = int(*height);
  rep.bitsPerSample = rep.bitsPerPixel = int(*depth);
  rep.samplesPerPixel = 1;
  rep.colorSpaceName = QLatin1String(NSCalibratedWhiteColorSpace);
  rep.bytesPerRow = int(epsiBytesPerRow(*width, *depth));
  rep.data = QByteArray(rep.bytesPerPlane(), char(0xFF));
  fill(rep.data, scanner);
  return rep;
}

}  // namespace norvex
