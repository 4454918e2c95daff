#include "metadata/text_encoding.h"

#include <unicode/ucnv.h>

#include <array>
#include <memory>

#include "base/non_lossy_ascii.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

struct NamedEncoding {
  qint64 number;
  const char* name;
};

constexpr std::array<NamedEncoding, 6> kNames{{{encoding::Ascii, "iso-8859-6"},
                                               {encoding::EucJp, "euc-jp"},
                                               {encoding::Utf8, "utf-8"},
                                               {encoding::NonLossyAscii, "us-ascii"},
                                               {encoding::ShiftJis, "shift_jis"},
                                               {encoding::Utf16, "utf-16"}}};

bool isAscii(QByteArrayView bytes) {
  uchar seen = 0;
  for (const char c : bytes) seen |= uchar(c);
  return seen < 0x80;
}

constexpr bool within(uchar c, uchar low, uchar high) {
  return c >= low && c <= high;
}

// The converters take C1 control bytes that neither encoding has; Shift JIS katakana would pass for EUC-JP
// with them.
bool isEucJpForm(QByteArrayView bytes) {
  const auto* p = reinterpret_cast<const uchar*>(bytes.begin());
  const auto* end = reinterpret_cast<const uchar*>(bytes.end());
  while (p < end) {
    if (*p < 0x80) {
      ++p;
    } else if (*p == 0x8E) {
      if (end - p < 2 || !within(p[1], 0xA1, 0xDF)) return false;
      p += 2;
    } else if (*p == 0x8F) {
      if (end - p < 3 || !within(p[1], 0xA1, 0xFE) || !within(p[2], 0xA1, 0xFE)) return false;
      p += 3;
    } else {
      if (end - p < 2 || !within(*p, 0xA1, 0xFE) || !within(p[1], 0xA1, 0xFE)) return false;
      p += 2;
    }
  }
  return true;
}

bool isShiftJisForm(QByteArrayView bytes) {
  const auto* p = reinterpret_cast<const uchar*>(bytes.begin());
  const auto* end = reinterpret_cast<const uchar*>(bytes.end());
  while (p < end) {
    if (*p < 0x80 || within(*p, 0xA1, 0xDF)) {
      ++p;
      continue;
    }
    if (!within(*p, 0x81, 0x9F) && !within(*p, 0xE0, 0xFC)) return false;
    if (end - p < 2 || !within(p[1], 0x40, 0xFC) || p[1] == 0x7F) return false;
    p += 2;
  }
  return true;
}

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

/// A converter that stops at the first thing that it does not know.
Converter strictConverter(const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(name, &status));
  if (!converter) return {};
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setFallback(converter.get(), false);
  return U_SUCCESS(status) ? std::move(converter) : Converter{};
}

std::optional<QString> convert(QByteArrayView bytes, const char* name) {
  if (bytes.isEmpty()) return QString("");
  const Converter converter =
      bytes.size() <= limits::maximumConvertedLength ? strictConverter(name) : Converter{};
  if (!converter) return {};
  QString text(bytes.size() + 1, Qt::Uninitialized);
  UErrorCode status = U_ZERO_ERROR;
  const auto decode = [&] {
    status = U_ZERO_ERROR;
    return ucnv_toUChars(converter.get(), reinterpret_cast<UChar*>(text.data()), int32_t(text.size()),
                         bytes.data(), int32_t(bytes.size()), &status);
  };
  int32_t length = decode();
  if (status == U_BUFFER_OVERFLOW_ERROR) {  // compressed forms give more units than they take bytes
    text.resize(qsizetype(length) + 1);
    length = decode();
  }
  if (U_FAILURE(status)) return {};
  text.truncate(length);
  return text;
}

std::optional<QByteArray> convertBack(QStringView text, const char* name) {
  if (text.isEmpty()) return QByteArray("");
  const Converter converter =
      text.size() <= limits::maximumConvertedLength ? strictConverter(name) : Converter{};
  if (!converter) return {};
  QByteArray bytes(text.size() * 4, Qt::Uninitialized);
  UErrorCode status = U_ZERO_ERROR;
  const int32_t length =
      ucnv_fromUChars(converter.get(), bytes.data(), int32_t(bytes.size()),
                      reinterpret_cast<const UChar*>(text.utf16()), int32_t(text.size()), &status);
  if (U_FAILURE(status)) return {};
  bytes.truncate(length);
  return bytes;
}

/// Where a text without a mark has its zero bytes tells the order: Latin letters have theirs in the high
/// byte.
bool looksLittleEndian(QByteArrayView bytes) {
  int low = 0;
  int high = 0;
  const qsizetype end = std::min<qsizetype>(bytes.size() - 1, 512);
  for (qsizetype i = 0; i < end; i += 2) {
    high += bytes[i] == 0;
    low += bytes[i + 1] == 0;
  }
  return low > high;
}

std::optional<QString> decodeUtf16(QByteArrayView bytes) {
  if (bytes.startsWith("\xFE\xFF")) return convert(bytes.sliced(2), "UTF-16BE");
  if (bytes.startsWith("\xFF\xFE")) return convert(bytes.sliced(2), "UTF-16LE");
  return convert(bytes, looksLittleEndian(bytes) ? "UTF-16LE" : "UTF-16BE");
}

/// A name that leads back to the converter, the best known first.
QString registeredName(const char* converter) {
  for (const char* const registry : {"MIME", "IANA"}) {
    UErrorCode status = U_ZERO_ERROR;
    const char* const name = ucnv_getStandardName(converter, registry, &status);
    if (!name || U_FAILURE(status)) continue;
    const char* const meant = ucnv_getAlias(name, 0, &status);
    if (meant && U_SUCCESS(status) && qstrcmp(meant, converter) == 0) return QString::fromLatin1(name);
  }
  return QString::fromLatin1(converter);
}

}  // namespace

std::optional<QString> decodeText(QByteArrayView bytes, qint64 encodingNumber) {
  switch (encodingNumber) {
    case encoding::Ascii:
      return isAscii(bytes) ? std::optional(QString::fromLatin1(bytes)) : std::nullopt;
    case encoding::EucJp:
      return isEucJpForm(bytes) ? convert(bytes, "EUC-JP") : std::nullopt;
    case encoding::Utf8:
      return bytes.isValidUtf8() ? std::optional(QString::fromUtf8(bytes)) : std::nullopt;
    case encoding::NonLossyAscii:
      return decodeNonLossyAscii(bytes);
    case encoding::ShiftJis:
      return isShiftJisForm(bytes) ? convert(bytes, "Shift_JIS") : std::nullopt;
    case encoding::Utf16:
      return decodeUtf16(bytes);
    default:
      return {};
  }
}

bool isDecodable(QByteArrayView bytes, qint64 encodingNumber) {
  switch (encodingNumber) {
    case encoding::Ascii:
    case encoding::NonLossyAscii:
      return isAscii(bytes);
    case encoding::Utf8:
      return bytes.isValidUtf8();
    default:
      return decodeText(bytes, encodingNumber).has_value();
  }
}

std::optional<QString> decodeNamedText(QByteArrayView bytes, const char* name) {
  return convert(bytes, name);
}

const QStringList& encodingNames() {
  static const QStringList names = [] {
    QStringList all;
    for (int32_t i = 0; i < ucnv_countAvailable(); ++i) all << registeredName(ucnv_getAvailableName(i));
    all.removeDuplicates();
    all.sort(Qt::CaseInsensitive);
    return all;
  }();
  return names;
}

std::optional<QByteArray> encodeText(QStringView text, qint64 encodingNumber) {
  switch (encodingNumber) {
    case encoding::Ascii: {
      const bool plain = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
      return plain ? std::optional(text.toLatin1()) : std::nullopt;
    }
    case encoding::EucJp:
      return convertBack(text, "EUC-JP");
    case encoding::Utf8:
      return text.isValidUtf16() ? std::optional(text.toUtf8()) : std::nullopt;
    case encoding::NonLossyAscii:
      return encodeNonLossyAscii(text);
    case encoding::ShiftJis:
      return convertBack(text, "Shift_JIS");
    case encoding::Utf16: {
      auto bytes = convertBack(text, "UTF-16BE");
      if (bytes) bytes->prepend("\xFE\xFF");
      return bytes;
    }
    default:
      return {};
  }
}

QString encodingName(qint64 encodingNumber) {
  for (const NamedEncoding& row : kNames)
    if (row.number == encodingNumber) return QString::fromLatin1(row.name);
  return {};
}

std::optional<qint64> encodingNumberOf(QStringView name) {
  for (const NamedEncoding& row : kNames)
    if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) return row.number;
  return {};
}

}  // namespace norvex
