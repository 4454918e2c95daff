#include "worker/pdf/pdf_writing.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDFWriter.hh>

#include <memory>
#include <string>
#include <vector>

#include "worker/pdf/pdf_numbers.h"

namespace norvex::engine {
namespace {

QByteArray written(QPDFWriter& writer) {
  writer.setOutputMemory();
  writer.setPreserveEncryption(false);
  writer.write();
  const std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
  return QByteArray(reinterpret_cast<const char*>(buffer->getBuffer()), qsizetype(buffer->getSize()));
}

}  // namespace

void keepOnlyPage(QPDF& qpdf, QPDFObjectHandle page) {
  keepOnlyPages(qpdf, {page});
}

void keepOnlyPages(QPDF& qpdf, const std::vector<QPDFObjectHandle>& kept) {
  QPDFObjectHandle root = qpdf.getRoot();
  for (const std::string& key : root.getKeys())
    if (key != "/Type" && key != "/OCProperties" && key != "/OutputIntents" && key != "/Extensions" &&
        key != "/Version")
      root.removeKey(key);
  QPDFObjectHandle pages = qpdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
  pages.replaceKey("/Type", QPDFObjectHandle::newName("/Pages"));
  pages.replaceKey("/Kids", QPDFObjectHandle::newArray(kept));
  pages.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(kept.size())));
  for (QPDFObjectHandle page : kept) page.replaceKey("/Parent", pages);
  root.replaceKey("/Pages", pages);
  qpdf.updateAllPagesCache();
  QPDFObjectHandle information = QPDFObjectHandle::newDictionary();
  information.replaceKey("/Producer", producerText());
  qpdf.getTrailer().replaceKey("/Info", qpdf.makeIndirectObject(information));
  qpdf.getTrailer().removeKey("/ID");  // it names another file, and Ghostscript draws it by lot
}

QByteArray writePdf(QPDF& qpdf) {
  QPDFWriter writer(qpdf);
  writer.setDeterministicID(true);
  return written(writer);
}

QByteArray writePdfToDraw(QPDF& qpdf) {
  QPDFWriter writer(qpdf);
  writer.setStreamDataMode(qpdf_s_preserve);
  writer.setObjectStreamMode(qpdf_o_disable);
  writer.setStaticID(true);
  return written(writer);
}

QPDFObjectHandle boxAtOrigin(double width, double height) {
  return QPDFObjectHandle::newArray(
      std::vector<QPDFObjectHandle>{QPDFObjectHandle::newInteger(0), QPDFObjectHandle::newInteger(0),
                                    QPDFObjectHandle::newReal(decimal(width).toStdString()),
                                    QPDFObjectHandle::newReal(decimal(height).toStdString())});
}

QPDFObjectHandle producerText() {
  return QPDFObjectHandle::newUnicodeString("Norvex " NORVEX_VERSION);
}

}  // namespace norvex::engine
