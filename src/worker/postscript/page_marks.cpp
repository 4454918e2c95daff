#include "worker/postscript/page_marks.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace norvex::engine {
namespace {

constexpr std::array<std::string_view, 16> kPainting{"f",  "F",  "f*", "S",  "s",  "B",  "B*", "b",
                                                     "b*", "sh", "Do", "Tj", "TJ", "\'", "\"", "BI"};

class Marks final : public QPDFObjectHandle::ParserCallbacks {
 public:
  void handleObject(QPDFObjectHandle object) override {
    if (!object.isOperator()) return;
    const std::string name = object.getOperatorValue();
    if (std::find(kPainting.begin(), kPainting.end(), name) == kPainting.end()) return;
    found = true;
    terminateParsing();
  }
  void handleEOF() override {}
  bool found = false;
};

}  // namespace

bool hasMarks(QPDFObjectHandle page) {
  Marks marks;
  page.parsePageContents(&marks);
  return marks.found;
}

}  // namespace norvex::engine
