// A libFuzzer program for one of the targets: FUZZ_TARGET is the function's name.
#include <QLoggingCategory>

#include <cstddef>
#include <cstdint>

#include "fuzz/metadata_targets.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  QLoggingCategory::setFilterRules(QStringLiteral("norvex.*=false"));
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  norvex::fuzz::FUZZ_TARGET(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
  return 0;
}
