#include "worker/pdf/pdf_attributes.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <memory>

#include "worker/pdf/pdf_facts.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {

void setPdfAttributes(QPDF& qpdf, const PdfAttributes& attributes) {
  QPDFObjectHandle information = qpdf.getTrailer().getKey("/Info");
  information = information.isDictionary() ? information.shallowCopy() : QPDFObjectHandle::newDictionary();
  for (auto it = attributes.texts.begin(); it != attributes.texts.end(); ++it)
    information.replaceKey(QString(u'/' + it.key()).toStdString(),
                           QPDFObjectHandle::newUnicodeString(it.value().toStdString()));
  if (attributes.creationDate)
    information.replaceKey("/CreationDate",
                           QPDFObjectHandle::newString(pdfDate(*attributes.creationDate).toStdString()));
  qpdf.getTrailer().replaceKey("/Info", qpdf.makeIndirectObject(information));
  qpdf.getRoot().removeKey("/Metadata");  // it would go on telling the old ones
}

Result<QByteArray> withPdfAttributes(const QByteArray& pdf, const PdfAttributes& attributes) {
  Result<std::unique_ptr<PdfFile>> file = PdfFile::open(pdf);
  if (!file) return file.error();
  return guarded([&]() -> Result<QByteArray> {
    setPdfAttributes((*file)->qpdf(), attributes);
    return writePdf((*file)->qpdf());
  });
}

}  // namespace norvex::engine
