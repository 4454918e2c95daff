#include "metadata/eps_program.h"

#include "metadata/dos_eps_header.h"
#include "metadata/text_encoding.h"

namespace norvex {

QByteArray epsProgram(const QByteArray& source) {
  if (source.startsWith("\xFE\xFF") || source.startsWith("\xFF\xFE")) {
    if (const auto text = decodeText(source, encoding::Utf16)) return text->toUtf8();
  }
  const QByteArrayView program = postScriptOf(source);
  return QByteArray::fromRawData(program.data(), program.size());
}

}  // namespace norvex
