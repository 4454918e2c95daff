#include "worker/pdf/page_form.h"

#include <qpdf/QPDFPageObjectHelper.hh>

#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {
namespace {

/// A stream that can be given another dictionary.
QPDFObjectHandle contentsOf(QPDF& qpdf, QPDFObjectHandle page) {
  QPDFObjectHandle contents = page.getKey("/Contents");
  if (!contents.isStream()) return QPDFPageObjectHelper(page).getFormXObjectForPage(false);
  QPDFObjectHandle stream = QPDFObjectHandle::newStream(&qpdf);
  stream.replaceStreamData(contents.getRawStreamData(), contents.getDict().getKey("/Filter"),
                           contents.getDict().getKey("/DecodeParms"));
  return stream;
}

}  // namespace

QPDFObjectHandle pageAsForm(QPDF& qpdf, QPDFObjectHandle page, const QRectF& box) {
  QPDFObjectHandle form = contentsOf(qpdf, page);
  QPDFObjectHandle dictionary = form.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey(
      "/BBox", QPDFObjectHandle::newFromRectangle({box.left(), box.top(), box.right(), box.bottom()}));
  dictionary.removeKey("/Matrix");
  dictionary.removeKey("/Group");
  QPDFObjectHandle resources = page.getKey("/Resources");
  dictionary.replaceKey("/Resources",
                        resources.isDictionary() ? resources : QPDFObjectHandle::newDictionary());
  return form;
}

QPDFObjectHandle pageOfForms(QPDF& qpdf, double width, double height,
                             std::initializer_list<std::pair<std::string, QPDFObjectHandle>> forms,
                             const QByteArray& contents) {
  QPDFObjectHandle objects = QPDFObjectHandle::newDictionary();
  for (auto [name, form] : forms)
    if (form.isStream()) objects.replaceKey(name, form);
  QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
  resources.replaceKey("/XObject", objects);
  QPDFObjectHandle page = qpdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
  page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
  page.replaceKey("/MediaBox", boxAtOrigin(width, height));
  page.replaceKey("/Resources", resources);
  page.replaceKey("/Contents", QPDFObjectHandle::newStream(&qpdf, contents.toStdString()));
  return page;
}

}  // namespace norvex::engine
