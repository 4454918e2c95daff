#include "protocol/page_excerpts.h"

#include <QCborArray>
#include <QCborValue>

#include "protocol/limits.h"

namespace norvex {
namespace {

constexpr char kMark[] = "\xd9\xd9\xf7";  // RFC 8949, 3.4.6
constexpr qsizetype kMarkSize = 3;

Error refused() {
  return {ErrorKind::Protocol, QStringLiteral("the pages were told in a way that cannot be true")};
}

bool isPage(const QCborValue& value, int least) {
  return value.isInteger() && value.toInteger() >= least && value.toInteger() <= limits::maximumPageNumber;
}

}  // namespace

QByteArray encodePageExcerpts(const QList<PageExcerpt>& excerpts) {
  QCborArray told;
  for (const PageExcerpt& each : excerpts) told << QCborArray{each.pdf, each.first, each.last};
  return QCborValue(QCborKnownTags::Signature, told).toCbor();
}

bool holdPageExcerpts(const QByteArray& bytes) {
  return bytes.startsWith(QByteArrayView(kMark, kMarkSize));
}

Result<QList<PageExcerpt>> decodePageExcerpts(const QByteArray& bytes) {
  const QCborArray told = QCborValue::fromCbor(bytes).taggedValue().toArray();
  if (told.isEmpty() || told.size() > limits::maximumSheets) return refused();
  QList<PageExcerpt> excerpts;
  for (const QCborValue& each : told) {
    const QCborArray one = each.toArray();
    if (one.size() != 3 || !one.at(0).isByteArray() || !isPage(one.at(1), 0) || !isPage(one.at(2), -1))
      return refused();
    excerpts << PageExcerpt{one.at(0).toByteArray(), int(one.at(1).toInteger()), int(one.at(2).toInteger())};
  }
  return excerpts;
}

}  // namespace norvex
