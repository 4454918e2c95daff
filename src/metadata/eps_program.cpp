#include "metadata/eps_program.h"

#include "metadata/dos_eps_header.h"
#include "metadata/text_encoding.h"

namespace norvex {
namespace {

constexpr QByteArrayView kLanguageChange("\x1B%-12345X");

// A printer's commands before and behind the program are none of an interpreter's business.
QByteArrayView withoutPrinterLanguage(QByteArrayView program) {
  if (!program.startsWith(kLanguageChange)) return program;
  const qsizetype start = program.indexOf("%!");
  if (start < 0) return program;
  program = program.sliced(start);
  const qsizetype end = program.indexOf(kLanguageChange);
  return end < 0 ? program : program.first(end);
}

}  // namespace

QByteArray epsProgram(const QByteArray& source) {
  if (source.startsWith("\xFE\xFF") || source.startsWith("\xFF\xFE")) {
    if (const auto text = decodeText(source, encoding::Utf16)) return text->toUtf8();
  }
  const QByteArrayView program = withoutPrinterLanguage(postScriptOf(source));
  return QByteArray::fromRawData(program.data(), program.size());
}

}  // namespace norvex
