#include "worker/pages/chosen_pdf.h"

#include <QStringList>

#include "worker/pages/pdf_layers.h"
#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {

Result<ChosenPdf> chosenPdf(const QByteArray& pdf, const QString& password,
                            const QList<PictureLayer>& layers) {
  Result<std::unique_ptr<PdfFile>> file = PdfFile::open(pdf, password);
  if (!file) return file.error();
  return guarded([&]() -> Result<ChosenPdf> {
    QPDF& qpdf = (*file)->qpdf();
    const bool switched = switchLayers(qpdf, layers);
    const bool asItIs = !switched && !qpdf.isEncrypted();
    return ChosenPdf{asItIs ? pdf : writePdf(qpdf), lostProtection(qpdf)};
  });
}

QString lostProtection(QPDF& qpdf) {
  if (!qpdf.isEncrypted()) return {};
  QStringList forbidden;
  if (!qpdf.allowPrintHighRes()) forbidden << QStringLiteral("printing");
  if (!qpdf.allowModifyOther()) forbidden << QStringLiteral("changing");
  if (!qpdf.allowExtractAll()) forbidden << QStringLiteral("copying");
  if (forbidden.isEmpty())
    return QStringLiteral("the document is protected by encryption, and what is made of it is not");
  return QStringLiteral(
             "the document is protected by encryption and does not allow %1; what is made of it is "
             "not protected")
      .arg(forbidden.join(QStringLiteral(", ")));
}

}  // namespace norvex::engine
