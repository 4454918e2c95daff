#include "worker/eps_output/image_streams.h"

#include <qpdf/Buffer.hh>
#include <qpdf/Pl_Discard.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>

#include <exception>
#include <limits>
#include <memory>
#include <string>

#include "worker/pdf/pdf_colour_operators.h"

namespace norvex::engine {
namespace {

void store(QPDFObjectHandle image, const unsigned char* samples, size_t size) {
  const QByteArray packed = qCompress(samples, qsizetype(size)).mid(4);
  image.replaceStreamData(packed.toStdString(), QPDFObjectHandle::newName("/FlateDecode"),
                          QPDFObjectHandle::newNull());
}

// Filters that PostScript has too, and of which an error stops it.
bool isDamaged(QPDFObjectHandle image) {
  try {
    Pl_Discard nowhere;
    bool decoded = false;  // tells nothing where something failed
    return !image.pipeStreamData(&nowhere, &decoded, 0, qpdf_dl_generalized, /*suppress_warnings=*/true);
  } catch (const std::exception&) {
    return true;
  }
}

}  // namespace

void prepareImages(QPDF& qpdf) {
  for (QPDFObjectHandle object : qpdf.getAllObjects()) {
    if (!object.isStream() || !object.getDict().getKey("/Subtype").isNameAndEquals("/Image")) continue;
    if (!object.getDict().hasKey("/Filter")) {
      const std::shared_ptr<Buffer> data = object.getRawStreamData();
      store(object, data->getBuffer(), data->getSize());
    } else if (isDamaged(object)) {
      const std::string samples = unpacked(object, std::numeric_limits<int>::max());
      store(object, reinterpret_cast<const unsigned char*>(samples.data()), samples.size());
    }
  }
}

}  // namespace norvex::engine
