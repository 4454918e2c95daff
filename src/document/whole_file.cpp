#include "document/whole_file.h"

#include <QFile>
#include <QFileInfo>

#include "platform/localized_string.h"

namespace norvex {
namespace {

Error cannotRead(const char* sentence) {
  return {ErrorKind::CannotRead, localizedString(sentence)};
}

}  // namespace

Result<QByteArray> readWholeFile(const QString& path) {
  const QFileInfo info(path);
  if (path.isEmpty() || !info.exists())
    return cannotRead(info.isSymLink() ? "the file that this link points to does not exist" : "the file does not exist");
  if (info.isDir()) return cannotRead("this is a folder, not a file");
  if (!info.isFile()) return cannotRead("this is not an ordinary file");
  if (info.size() > maximumDocumentBytes)
    return Error{ErrorKind::Limit, localizedString("the file is larger than 1 GiB")};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    if (!info.isReadable()) return cannotRead("you have no permission to read the file");
    return Error{ErrorKind::CannotRead, file.errorString()};
  }
  // One byte more than is allowed tells a file that grew meanwhile.
  const QByteArray bytes = file.read(maximumDocumentBytes + 1);
  if (file.error() != QFileDevice::NoError) return Error{ErrorKind::CannotRead, file.errorString()};
  if (bytes.size() > maximumDocumentBytes)
    return Error{ErrorKind::Limit, localizedString("the file is larger than 1 GiB")};
  return bytes;
}

}  // namespace norvex
