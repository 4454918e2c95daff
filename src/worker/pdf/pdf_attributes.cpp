#include "worker/pdf/pdf_attributes.h"

// Sets entries of the document information of a PDF.

#include "worker/pdf/pdf_facts.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {

Result<QByteArray> setPdfAttributes(const QByteArray& pdf, const QHash<QString, QString>& attributes,
                                    const std::optional<QDateTime>& creationDate) {
  Result<std::unique_ptr<PdfFile>> file = PdfFile::open(pdf);
  if (!file) return file.error();
  return guarded([&]() -> Result<QByteArray> {
    QPDF& qpdf = (*file)->qpdf();
    QPDFObjectHandle information = qpdf.getTrailer().getKey("/Info");
    information = information.isDictionary() ? information.shallowCopy() : QPDFObjectHandle::newDictionary();
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
      information.replaceKey("/" + it.key().toStdString(),
                             QPDFObjectHandle::newUnicodeString(it.value().toStdString()));
    if (creationDate)
      information.replaceKey("/CreationDate",
                             QPDFObjectHandle::newString(pdfDate(*creationDate).toStdString()));
    qpdf.getTrailer().replaceKey("/Info", qpdf.makeIndirectObject(information));
    qpdf.getRoot().removeKey("/Metadata");  // it would go on telling the old ones
    return writePdf(qpdf);
  });
}

}  // namespace norvex::engine
