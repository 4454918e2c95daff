#include "worker/pdf/pdf_dictionaries.h"

#include <string>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

using Visit = std::function<void(QPDFObjectHandle container)>;

void visitDirect(QPDFObjectHandle object, const Visit& visit, int depth) {
  if (depth > limits::maximumObjectDepth) return;
  if (object.isStream()) object = object.getDict();
  if (object.isDictionary() || object.isArray()) visit(object);
  if (object.isDictionary()) {
    for (const std::string& key : object.getKeys()) {
      QPDFObjectHandle value = object.getKey(key);
      if (!value.isIndirect()) visitDirect(value, visit, depth + 1);
    }
  } else if (object.isArray()) {
    for (int i = 0; i < object.getArrayNItems(); ++i) {
      QPDFObjectHandle item = object.getArrayItem(i);
      if (!item.isIndirect()) visitDirect(item, visit, depth + 1);
    }
  }
}

void visitAll(QPDF& qpdf, const Visit& visit) {
  for (QPDFObjectHandle object : qpdf.getAllObjects()) visitDirect(object, visit, 0);
}

}  // namespace

void visitDictionaries(QPDF& qpdf, const Visit& visit) {
  visitAll(qpdf, [&](QPDFObjectHandle container) {
    if (container.isDictionary()) visit(container);
  });
}

void visitArrays(QPDF& qpdf, const Visit& visit) {
  visitAll(qpdf, [&](QPDFObjectHandle container) {
    if (container.isArray()) visit(container);
  });
}

}  // namespace norvex::engine
