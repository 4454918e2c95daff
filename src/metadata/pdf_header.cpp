#include "metadata/pdf_header.h"

namespace norvex {
namespace {

void insertAttribute(HeaderDictionary& dictionary, const QString& key, const PictureFacts& facts,
                     const QString& name) {
  const auto it = facts.attributes.constFind(name);
  if (it != facts.attributes.constEnd()) dictionary.insert(key, it.value());
}

}  // namespace

HeaderDictionary pdfHeader(const Result<PictureFacts>& facts, const QLocale& locale) {
  HeaderDictionary dictionary;
  if (!facts) return dictionary;
  const PictureFacts& known = facts.value();
  insertAttribute(dictionary, header::Creator, known, QStringLiteral("Creator"));
  insertAttribute(dictionary, header::Title, known, QStringLiteral("Title"));
  if (known.creationDate) dictionary.insert(header::CreationDate, fullDate(*known.creationDate, locale));
  insertAttribute(dictionary, header::For, known, QStringLiteral("Author"));
  insertAttribute(dictionary, header::Description, known, QStringLiteral("Subject"));
  dictionary.insert(header::Encoding, QString(""));
  dictionary.insert(header::EncodingNumber, encoding::None);
  return dictionary;
}

}  // namespace norvex
