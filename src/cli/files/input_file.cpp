#include "cli/files/input_file.h"

#include <QFileInfo>
#include <QUrl>

#include "base/atomic_file.h"
#include "picture/document_file.h"
#include "types/type_identification.h"

namespace norvex {
namespace {

const QString kStandardInput = QStringLiteral("-");

Result<QByteArray> unlessEmpty(Result<QByteArray> bytes) {
  if (bytes && bytes->isEmpty()) return Error{ErrorKind::NotParsable, QStringLiteral("the file is empty")};
  return bytes;
}

}  // namespace

Result<QByteArray> readInputFile(const QString& file) {
  return unlessEmpty(readDocumentFile(file));
}

Result<QByteArray> readInput(Console& console, const QString& file) {
  return file == kStandardInput ? unlessEmpty(console.input()) : readInputFile(file);
}

std::optional<Error> overwritesInput(const QString& file, const QString& output) {
  if (!isSameFile(file, output)) return std::nullopt;
  return Error{ErrorKind::CannotWrite, QStringLiteral("the output would overwrite the input")};
}

PictureSource sourceOfInput(const QByteArray& bytes, const QString& file) {
  const bool isFile = file != kStandardInput;
  PictureSource source;
  source.bytes = bytes;
  source.typeIdentifier = identifyType(bytes, isFile ? file : QString()).identifier();
  if (isFile) source.fileURL = QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath());
  return source;
}

}  // namespace norvex
