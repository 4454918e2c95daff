#include "worker/eps_output/colour_space_mending.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <string>

#include "worker/pdf/pdf_colour_operators.h"
#include "worker/pdf/pdf_dictionaries.h"

namespace norvex::engine {
namespace {

constexpr int kHeaderSize = 128;        // of a profile
constexpr size_t kSpacePlace = 16;      // where it names its space
constexpr size_t kSignaturePlace = 36;  // "acsp"

int componentsOf(const std::string& space) {
  if (space == "GRAY") return 1;
  if (space == "CMYK") return 4;
  return 3;
}

// The four letters of the profile's own space; empty when it is no profile.
std::string spaceOf(QPDFObjectHandle profile) {
  const std::string header = unpacked(profile, kHeaderSize);
  return header.size() == kHeaderSize && header.compare(kSignaturePlace, 4, "acsp") == 0
             ? header.substr(kSpacePlace, 4)
             : std::string();
}

void makeDevice(QPDFObjectHandle space, int components) {
  const char* name = components == 1 ? "/DeviceGray" : components == 3 ? "/DeviceRGB" : "/DeviceCMYK";
  space.eraseItem(1);
  space.setArrayItem(0, QPDFObjectHandle::newName(name));
}

}  // namespace

void mendColourSpaces(QPDF& qpdf) {
  std::map<QPDFObjGen, std::string> known;
  visitArrays(qpdf, [&](QPDFObjectHandle array) {
    if (array.getArrayNItems() != 2 || !array.getArrayItem(0).isNameAndEquals("/ICCBased")) return;
    QPDFObjectHandle profile = array.getArrayItem(1);
    if (!profile.isStream()) return;
    auto found = known.find(profile.getObjGen());
    if (found == known.end()) found = known.emplace(profile.getObjGen(), spaceOf(profile)).first;
    const std::string& space = found->second;
    QPDFObjectHandle count = profile.getDict().getKey("/N");
    const int components = count.isInteger() ? count.getIntValueAsInt() : 0;
    if (space == "Lab " && components == 3) {
      array.setArrayItem(0, QPDFObjectHandle::newName("/Lab"));
      array.setArrayItem(
          1, QPDFObjectHandle::parse("<< /WhitePoint [0.9642 1 0.8249] /Range [-128 127 -128 127] >>"));
    } else if (!space.empty() && components != componentsOf(space) &&
               (components == 1 || components == 3 || components == 4)) {
      makeDevice(array, components);
    }
  });
}

}  // namespace norvex::engine
