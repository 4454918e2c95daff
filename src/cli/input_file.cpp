#include "cli/input_file.h"

#include "base/atomic_file.h"
#include "metadata/dos_eps_header.h"
#include "picture/document_file.h"
#include "picture/picture_loader.h"
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

UTType typeOfInput(const QByteArray& bytes, const QString& file) {
  return identifyType(bytes, file == kStandardInput ? QString() : file);
}

Result<PictureKind> pictureKindOfInput(const QByteArray& bytes, const UTType& type) {
  const QList<PictureKind> kinds = pictureKindsForType(type.identifier());
  if (kinds.isEmpty())
    return Error{ErrorKind::Unsupported,
                 QStringLiteral("this is not an EPS, Illustrator, PDF or SVG picture")};
  const bool isPdf = identifyType(bytes, QStringLiteral("x.pdf")).conformsToType(UTTypePDF());
  return kinds.contains(PictureKind::Pdf) && isPdf ? PictureKind::Pdf : kinds.first();
}

}  // namespace norvex
