#include "cli/files/output_file.h"

#include <sys/stat.h>

#include <QFileInfo>

#include "base/file_name.h"
#include "base/latin1_text.h"
#include "cli/files/input_file.h"

namespace norvex {
namespace {

Error cannotWrite(const QString& sentence) {
  return {ErrorKind::CannotWrite, sentence};
}

}  // namespace

std::optional<Error> outputRefusal(const QString& file, const QString& output, bool force) {
  if (output == QLatin1String("-")) return std::nullopt;
  if (auto error = overwritesInput(file, output)) return error;
  struct stat status {};
  if (::stat(fileNameBytes(output).constData(), &status) != 0) {
    if (folderExists(QFileInfo(output).path())) return std::nullopt;
    return cannotWrite(QStringLiteral("%1: the folder to write to does not exist").arg(output));
  }
  if (S_ISDIR(status.st_mode)) return cannotWrite(QStringLiteral("%1 is a folder").arg(output));
  if (!S_ISREG(status.st_mode))
    return cannotWrite(QStringLiteral("%1 is no ordinary file (-o - is standard output)").arg(output));
  if (force) return std::nullopt;
  return cannotWrite(QStringLiteral("%1 exists already (--force overwrites it)").arg(output));
}

QString wrongExtension(const QString& file, const QString& output, PictureFormat format) {
  const QString extension = QFileInfo(output).suffix();
  const auto named = formatOfExtension(extension.toStdString());
  if (!named || output == QLatin1String("-")) return {};
  const bool isMeant = isRaster(format) ? *named == format : rowOf(*named).kind == rowOf(format).kind;
  const bool isKept =
      !isRaster(format) && extension.compare(QFileInfo(file).suffix(), Qt::CaseInsensitive) == 0;
  if (isMeant || isKept) return {};
  return QStringLiteral("%1 has the name of another format than %2, which is written")
      .arg(output, QString(latin1(rowOf(format).name)).toUpper());
}

}  // namespace norvex
