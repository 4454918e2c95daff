// The libFuzzer program of one list of targets: FUZZ_TARGETS is the list's name.
//   fuzz_svg --target=NAME SCRATCH_FOLDER [SEEDS] [libFuzzer's options…]
//   fuzz_svg --target=NAME --write-seeds=FOLDER       writes the target's seeds there
//   fuzz_svg                                          names the targets
#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "fuzz/targets.h"

namespace {

const norvex::fuzz::Target* fuzzed = nullptr;

/// The text behind `prefix` in the argument that begins so; null: there is none.
const char* valueOf(int count, char** arguments, std::string_view prefix) {
  for (int i = 1; i < count; ++i)
    if (std::string_view(arguments[i]).substr(0, prefix.size()) == prefix)
      return arguments[i] + prefix.size();
  return nullptr;
}

void writeSeeds(const char* folder) {
  const QDir place(QString::fromLocal8Bit(folder));
  place.mkpath(QStringLiteral("."));
  int number = 0;
  for (const QByteArray& seed : fuzzed->seeds()) {
    QFile file(place.filePath(QStringLiteral("seed-%1").arg(number++)));
    if (!file.open(QIODevice::WriteOnly) || file.write(seed) != seed.size()) std::exit(1);
  }
  std::exit(0);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  QLoggingCategory::setFilterRules(QStringLiteral("norvex.*=false"));
  static const QList<norvex::fuzz::Target> targets = norvex::fuzz::FUZZ_TARGETS();
  const char* name = valueOf(*count, *arguments, "--target=");
  for (const norvex::fuzz::Target& target : targets) {
    if (!name) std::printf("%s\n", target.name);
    if (name && std::string_view(name) == target.name) fuzzed = &target;
  }
  if (!fuzzed) std::exit(name ? 1 : 0);
  if (const char* folder = valueOf(*count, *arguments, "--write-seeds=")) writeSeeds(folder);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzzed->run(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
  return 0;
}
