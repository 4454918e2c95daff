#include "worker/postscript/psd_plates.h"

#include <QStringDecoder>

#include <algorithm>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

constexpr qsizetype kProcessInks = 4;
constexpr quint64 kCmykMode = 4;
constexpr quint64 kNamesOfChannels = 1006, kColoursOfChannels = 1007;
constexpr quint64 kCmykColour = 2;
constexpr qsizetype kColourBytes =
    14;  ///< a colour space, four shares, and three fields that say nothing here

Error noPlates() {
  return {ErrorKind::NotParsable, QStringLiteral("Ghostscript did not separate the page")};
}
Error tooManyPlates() {
  return {ErrorKind::Limit,
          QStringLiteral(
              "the plates of the page have more pixels than can be handled; a lower resolution helps")};
}

/// Reads on from its place; behind the end everything is empty and `failed`.
class Reader {
 public:
  explicit Reader(const QByteArray& bytes) : bytes_(bytes) {}
  quint64 number(qsizetype size) {
    quint64 value = 0;
    for (const char byte : take(size)) value = value << 8 | uchar(byte);
    return value;
  }
  /// Shares the bytes.
  QByteArray take(qsizetype size) {
    if (size < 0 || size > bytes_.size() - at_) failed = true;
    if (failed) return {};
    const QByteArray taken = QByteArray::fromRawData(bytes_.constData() + at_, size);
    at_ += size;
    return taken;
  }
  [[nodiscard]] bool atEnd() const { return failed || at_ >= bytes_.size(); }
  bool failed = false;

 private:
  const QByteArray& bytes_;
  qsizetype at_ = 0;
};

struct SpotChannels {
  QList<QString> names;
  QList<std::optional<ProcessInks>> alternates;
};

void readNames(const QByteArray& resource, QList<QString>& names) {
  Reader reader(resource);
  while (!reader.atEnd()) {
    const auto length = qsizetype(reader.number(1));
    if (length == 0) return;
    const QByteArray name = reader.take(length);
    if (!reader.failed) names << inkName(name);
  }
}

/// The shares are those of paper. One that has no ink at all stands for a colour that nobody knows.
void readColours(const QByteArray& resource, QList<std::optional<ProcessInks>>& alternates) {
  Reader reader(resource);
  for (qsizetype i = 0; i < resource.size() / kColourBytes; ++i) {
    const bool isCmyk = reader.number(2) == kCmykColour;
    ProcessInks shares{};
    for (quint8& share : shares) share = quint8(255 - reader.number(2) / 257);
    reader.take(kColourBytes - 10);
    const bool known = isCmyk && std::any_of(shares.begin(), shares.end(), [](quint8 s) { return s > 0; });
    alternates << (known ? std::optional(shares) : std::nullopt);
  }
}

SpotChannels spotChannels(const QByteArray& resources) {
  SpotChannels spots;
  Reader reader(resources);
  while (!reader.atEnd()) {
    reader.take(4);
    const quint64 identifier = reader.number(2);
    const auto nameLength = qsizetype(reader.number(1));
    reader.take(nameLength + (nameLength + 1) % 2);
    const auto length = qsizetype(reader.number(4));
    const QByteArray resource = reader.take(length);
    if (length % 2 != 0) reader.take(1);
    if (identifier == kNamesOfChannels) readNames(resource, spots.names);
    if (identifier == kColoursOfChannels) readColours(resource, spots.alternates);
  }
  return spots;
}

QList<Ink> inksOf(const SpotChannels& spots, qsizetype channels) {
  QList<Ink> inks;
  for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"})
    inks << Ink{QLatin1String(name), false, {}, 0, 0};
  for (qsizetype i = 0; i < channels - kProcessInks; ++i)
    inks << Ink{spots.names.at(i), true, spots.alternates.value(i), 0, 0};
  return inks;
}

/// The channels say how much paper is seen.
void measure(PageInks& page) {
  auto* samples = reinterpret_cast<uchar*>(page.plates.data());
  const qsizetype size = page.plateBytes();
  for (Ink& ink : page.inks) {
    qint64 inked = 0, sum = 0;
    for (const uchar* const end = samples + size; samples != end; ++samples) {
      *samples = uchar(255 - *samples);
      inked += *samples != 0;
      sum += *samples;
    }
    ink.coverage = double(inked) / double(size);
    ink.amount = double(sum) / (255.0 * double(size));
  }
}

}  // namespace

QString inkName(const QByteArray& bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString name = decoder(bytes);
  return (decoder.hasError() ? QString::fromLatin1(bytes) : name).left(limits::maximumNameLength);
}

Result<PageInks> platesOfPsd(const QByteArray& psd) {
  Reader reader(psd);
  const bool isOne = reader.take(4) == "8BPS" && reader.number(2) == 1;
  reader.take(6);
  const auto channels = qsizetype(reader.number(2));
  const auto height = qint64(reader.number(4)), width = qint64(reader.number(4));
  const bool isCmyk = reader.number(2) == 8 && reader.number(2) == kCmykMode;
  reader.take(qsizetype(reader.number(4)));
  const QByteArray resources = reader.take(qsizetype(reader.number(4)));
  reader.take(qsizetype(reader.number(4)));
  const bool isPlain = reader.number(2) == 0;
  if (reader.failed || !isOne || !isCmyk || !isPlain || channels < kProcessInks || width < 1 || height < 1)
    return noPlates();
  const double bytes = double(width) * double(height) * double(channels);
  if (channels > limits::maximumInks || double(width) * double(height) > limits::maximumPlatePixels ||
      bytes > double(maximumPlateBytes))
    return tooManyPlates();
  const SpotChannels spots = spotChannels(resources);
  const QByteArray samples = reader.take(qsizetype(bytes));
  if (reader.failed || spots.names.size() < channels - kProcessInks) return noPlates();
  PageInks page;
  page.pixels = QSize(int(width), int(height));
  page.inks = inksOf(spots, channels);
  page.plates = QByteArray(samples.constData(), samples.size());
  measure(page);
  return page;
}

}  // namespace norvex::engine
