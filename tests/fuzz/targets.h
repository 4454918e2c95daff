// The parsers of ours that read bytes from outside, each as a function of bytes that ends the program when a
// promise of the parser is broken, as a memory error does. libFuzzer feeds them for as long as one likes
// (programs/fuzzer.cpp), the ordinary tests feed them their seeds, cut and damaged (targets_test.cpp).
#pragma once

#include <QByteArray>
#include <QList>

namespace norvex::fuzz {

struct Target {
  const char* name;
  bool (*run)(const QByteArray& bytes);  ///< whether the parser took the bytes for what it reads
  QList<QByteArray> (*seeds)();          ///< some of them are taken
  int rounds = 200;                      ///< damaged copies of each seed that the ordinary tests try
};

// One list for each source of that name in this folder, which is a fuzzer of its own: fuzz_protocol …
[[nodiscard]] QList<Target> argumentsTargets();
[[nodiscard]] QList<Target> checkTargets();
[[nodiscard]] QList<Target> documentTargets();
[[nodiscard]] QList<Target> fontsTargets();
[[nodiscard]] QList<Target> metadataTargets();
[[nodiscard]] QList<Target> metafileTargets();
[[nodiscard]] QList<Target> pdfTargets();
[[nodiscard]] QList<Target> postscriptTargets();
[[nodiscard]] QList<Target> printTargets();
[[nodiscard]] QList<Target> protocolTargets();
[[nodiscard]] QList<Target> svgTargets();
[[nodiscard]] QList<Target> tiffTargets();
[[nodiscard]] QList<Target> webFontsTargets();

/// Runs the target on the bytes, which a broken promise is told with.
bool feed(const Target& target, const QByteArray& bytes);

/// A broken promise ends the program, with the sentence and what was fed on the standard error.
void require(bool kept, const char* promise);

/// The files of a folder below tests/.
[[nodiscard]] QList<QByteArray> filesOf(const char* folder);

}  // namespace norvex::fuzz
