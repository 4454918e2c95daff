#include "protocol/page_inks.h"

#include "protocol/message_fields.h"

namespace norvex {

using Key = QLatin1String;

namespace {

constexpr int kProcessInks = int(std::tuple_size_v<ProcessInks>);

/// As one number, cyan in its lowest byte.
quint32 packed(const ProcessInks& inks) {
  quint32 number = 0;
  for (int i = 0; i < kProcessInks; ++i) number |= quint32(inks[size_t(i)]) << (8 * i);
  return number;
}

ProcessInks unpacked(quint32 number) {
  ProcessInks inks{};
  for (int i = 0; i < kProcessInks; ++i) inks[size_t(i)] = quint8(number >> (8 * i));
  return inks;
}

bool hasProcessInksFirst(const QList<Ink>& inks) {
  for (qsizetype i = 0; i < inks.size(); ++i)
    if (inks[i].isSpot != (i >= kProcessInks)) return false;
  return inks.size() >= kProcessInks;
}

}  // namespace

template <typename V>
void fields(V& v, Of<V, Ink>& ink) {
  v.text(Key("name"), ink.name, limits::maximumNameLength);
  v.boolean(Key("spot"), ink.isSpot);
  std::optional<quint32> alternate;
  if (ink.alternate) alternate = packed(*ink.alternate);
  v.optional(Key("alternate"), alternate,
             [&](auto& number) { v.integer(Key("alternate"), number, 0, 0xffffffffLL); });
  if constexpr (!V::writes) {
    ink.alternate.reset();
    if (alternate) ink.alternate = unpacked(*alternate);
  }
  v.number(Key("coverage"), ink.coverage, 0, 1);
  v.number(Key("amount"), ink.amount, 0, 1);
}

template <typename V>
void fields(V& v, Of<V, PageInks>& page) {
  version(v);
  v.size(Key("size"), page.pixels, int(limits::maximumPlatePixels));
  v.require(double(page.pixels.width()) * page.pixels.height() <= limits::maximumPlatePixels);
  v.number(Key("dpi"), page.dpi, 1, limits::maximumDpi);
  v.boolean(Key("overprint"), page.overprint);
  v.records(Key("inks"), page.inks, limits::maximumInks);
  v.require(hasProcessInksFirst(page.inks));
  v.bytes(Key("plates"), page.plates, maximumPlateBytes);
  v.require(page.plates.size() == page.plateBytes() * page.inks.size());
}

QByteArray encodePageInks(const PageInks& page) {
  return encoded(page);
}

Result<PageInks> decodePageInks(const QByteArray& cbor) {
  return decoded<PageInks>(
      cbor, maximumPageInksBytes,
      Error{ErrorKind::Protocol,
            QStringLiteral("the inks of the page were told in a way that cannot be true")});
}

}  // namespace norvex
