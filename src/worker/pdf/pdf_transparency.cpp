#include "worker/pdf/pdf_transparency.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <functional>
#include <string>

#include "worker/pdf/pdf_dictionaries.h"

namespace norvex::engine {
namespace {

using Visit = std::function<void(QPDFObjectHandle dictionary)>;

bool isLessThanOne(QPDFObjectHandle value) {
  return value.isNumber() && value.getNumericValue() < 1;
}

bool isBlending(QPDFObjectHandle mode) {
  if (mode.isArray() && mode.getArrayNItems() > 0) mode = mode.getArrayItem(0);
  return mode.isName() && mode.getName() != "/Normal" && mode.getName() != "/Compatible";
}

// Graphics states are told by where they hang, images and groups by what they hold.
void visitGraphicsStates(QPDFObjectHandle dictionary, const Visit& visit) {
  QPDFObjectHandle states = dictionary.getKey("/ExtGState");
  if (!states.isDictionary()) return;
  for (const std::string& name : states.getKeys())
    if (QPDFObjectHandle state = states.getKey(name); state.isDictionary()) visit(state);
}

bool isImage(QPDFObjectHandle dictionary) {
  return dictionary.getKey("/Subtype").isNameAndEquals("/Image");
}

}  // namespace

bool usesTransparency(QPDF& qpdf) {
  bool found = false;
  visitDictionaries(qpdf, [&](QPDFObjectHandle dictionary) {
    if (found) return;
    if (isImage(dictionary) &&
        (dictionary.getKey("/SMask").isStream() || dictionary.getKey("/SMaskInData").isInteger()))
      found = true;
    visitGraphicsStates(dictionary, [&](QPDFObjectHandle state) {
      found = found || isLessThanOne(state.getKey("/ca")) || isLessThanOne(state.getKey("/CA")) ||
              isBlending(state.getKey("/BM")) || state.getKey("/SMask").isDictionary();
    });
  });
  return found;
}

void removeTransparency(QPDF& qpdf) {
  visitDictionaries(qpdf, [](QPDFObjectHandle dictionary) {
    if (isImage(dictionary)) {
      dictionary.removeKey("/SMask");
      dictionary.removeKey("/SMaskInData");
    }
    if (dictionary.getKey("/Group").isDictionary()) dictionary.removeKey("/Group");
    visitGraphicsStates(dictionary, [](QPDFObjectHandle state) {
      for (const char* key : {"/ca", "/CA", "/BM", "/SMask", "/AIS"}) state.removeKey(key);
    });
  });
}

}  // namespace norvex::engine
