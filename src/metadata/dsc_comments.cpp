#include "metadata/dsc_comments.h"

#include <cstring>

#include "metadata/text_encoding.h"

namespace norvex {
namespace {

/// In the order of DscKeyword. Each begins with a percent sign, which is never the second byte of a character
/// in any of the encodings, so that a match in the bytes is a match in the text.
constexpr std::array<QByteArrayView, dscKeywordCount> kKeywords{
    "%%Title:",     "%%Creator:", "%%CreationDate:", "%%For:",
    "%%Copyright:", "%%Routing:", "%%BeginPreview:", "%APL_DSC_Encoding:"};

/// Positions behind the first occurrence of each keyword, -1 without one, in one pass.
std::array<qsizetype, dscKeywordCount> firstOccurrences(QByteArrayView text) {
  std::array<qsizetype, dscKeywordCount> behind;
  behind.fill(-1);
  int missing = dscKeywordCount;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); missing > 0 && at < end; ++at) {
    at = static_cast<const char*>(std::memchr(at, '%', std::size_t(end - at)));
    if (!at) break;
    if (end - at < 2 || (at[1] != '%' && at[1] != 'A')) continue;
    for (std::size_t k = 0; k < kKeywords.size(); ++k) {
      const QByteArrayView keyword = kKeywords[k];
      if (behind[k] >= 0 || end - at < keyword.size()) continue;
      if (std::memcmp(at, keyword.data(), std::size_t(keyword.size())) != 0) continue;
      behind[k] = at - text.data() + keyword.size();
      --missing;
    }
  }
  return behind;
}

bool keepsAscii(qint64 number) {
  return number != encoding::Utf16 && number != encoding::NonLossyAscii;
}

}  // namespace

DscComments::DscComments(QByteArrayView bytes, qint64 encodingNumber)
    : text_(bytes), encodingNumber_(encodingNumber) {
  if (!keepsAscii(encodingNumber)) {
    undone_ = decodeText(bytes, encodingNumber).value_or(QString()).toUtf8();
    text_ = undone_;
    encodingNumber_ = encoding::Utf8;
  }
  behind_ = firstOccurrences(text_);
}

QString DscComments::value(DscKeyword keyword) const {
  qsizetype from = behind(keyword);
  while (from >= 0 && from < text_.size()) {
    qsizetype end = from;
    while (end < text_.size() && text_[end] != '\n' && text_[end] != '\r' && text_[end] != '%') ++end;
    const QString piece = decodeText(text_.sliced(from, end - from), encodingNumber_).value_or(QString());
    const auto first = std::find_if(piece.begin(), piece.end(), [](QChar c) { return !c.isSpace(); });
    if (first != piece.end()) return piece.sliced(first - piece.begin());
    if (end == text_.size() || text_[end] == '%') break;
    from = end + 1;  // nothing on this line: the value may stand on the next
  }
  return QString("");
}

QByteArrayView DscComments::textBehind(DscKeyword keyword) const {
  return text_.sliced(behind(keyword));
}

}  // namespace norvex
