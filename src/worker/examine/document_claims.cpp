#include "worker/examine/document_claims.h"

#include <QRegularExpression>

#include <algorithm>
#include <exception>

#include "protocol/limits.h"
#include "worker/pdf/pdf_colour_operators.h"

namespace norvex::engine {
namespace {

QString textOf(QPDFObjectHandle value) {
  return value.isString() ? QString::fromStdString(value.getUTF8Value()).left(limits::maximumNameLength)
                          : QString();
}

/// Of an element or an attribute of that name; XMP is written both ways.
QString xmpValue(const QString& xmp, const char* name) {
  const QRegularExpression form(
      QStringLiteral("\\b%1\\s*(?:=\\s*[\"']([^\"'<]{1,60})|>\\s*([^<]{1,60}))").arg(QLatin1String(name)));
  const QRegularExpressionMatch match = form.match(xmp);
  return (match.captured(1) + match.captured(2)).trimmed();
}

void add(QStringList& claims, const QString& claim) {
  if (!claim.isEmpty() && !claims.contains(claim)) claims << claim;
}

void readClaims(PdfFile& file, PageContents& contents) {
  QPDFObjectHandle information = file.qpdf().getTrailer().getKey("/Info");
  if (information.isDictionary()) add(contents.claims, textOf(information.getKey("/GTS_PDFXVersion")));
  QPDFObjectHandle metadata = file.qpdf().getRoot().getKey("/Metadata");
  if (!metadata.isStream()) return;
  const QString xmp = QString::fromStdString(unpacked(metadata, limits::maximumXmpBytes));
  add(contents.claims, xmpValue(xmp, "pdfxid:GTS_PDFXVersion"));
  if (const QString part = xmpValue(xmp, "pdfaid:part"); !part.isEmpty())
    add(contents.claims,
        QStringLiteral("PDF/A-%1%2").arg(part, xmpValue(xmp, "pdfaid:conformance").toLower()));
}

void readIntents(PdfFile& file, PageContents& contents) {
  QPDFObjectHandle intents = file.qpdf().getRoot().getKey("/OutputIntents");
  if (!intents.isArray()) return;
  for (int i = 0; i < std::min(intents.getArrayNItems(), limits::maximumNames); ++i) {
    QPDFObjectHandle intent = intents.getArrayItem(i);
    if (!intent.isDictionary()) continue;
    QString name = textOf(intent.getKey("/OutputConditionIdentifier"));
    if (name.isEmpty()) name = textOf(intent.getKey("/OutputCondition"));
    contents.outputIntents << (name.isEmpty() ? QStringLiteral("without a name") : name);
  }
}

}  // namespace

void readDocument(PdfFile& file, PageContents& contents) {
  try {
    QPDF& qpdf = file.qpdf();
    contents.encrypted = qpdf.isEncrypted();
    if (contents.encrypted) {
      if (!qpdf.allowPrintHighRes()) contents.forbidden << QStringLiteral("printing");
      if (!qpdf.allowModifyOther()) contents.forbidden << QStringLiteral("changing");
      if (!qpdf.allowExtractAll()) contents.forbidden << QStringLiteral("copying");
    }
    readClaims(file, contents);
    readIntents(file, contents);
  } catch (const std::exception&) {
    // Facts found before the damage are true all the same.
  }
}

}  // namespace norvex::engine
