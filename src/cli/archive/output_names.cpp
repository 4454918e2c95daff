#include "cli/archive/output_names.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "base/file_name.h"
#include "cli/archive/state/file_stamp.h"
#include "types/picture_format.h"

namespace norvex {
namespace {

/// Of what a command writes; empty: the kind of file that it reads.
QByteArray writtenExtensionOf(const Arguments& arguments) {
  if (arguments.command == Command::Preview) return "png";
  if (arguments.command != Command::Convert) return {};
  const auto format = formatNamed(arguments.values.value(Option::Format).toStdString());
  if (!format) return {};
  const auto extension = writtenExtension(*format);
  return QByteArray(extension.data(), qsizetype(extension.size()));
}

Error cannotMake(int code) {
  return {ErrorKind::CannotWrite, QStringLiteral("the folder to write to cannot be made (%1)")
                                      .arg(QString::fromLocal8Bit(std::strerror(code)))};
}

}  // namespace

OutputNames::OutputNames(QByteArray folder, QByteArray extension)
    : folder_(std::move(folder)), extension_(std::move(extension)), place_(placeOf(folder_)) {}

std::optional<OutputNames::Place> OutputNames::placeOf(const QByteArray& folder) {
  struct stat status {};
  if (::stat(folder.constData(), &status) != 0) return std::nullopt;
  return Place{status.st_dev, status.st_ino};
}

std::optional<OutputNames> OutputNames::of(const Arguments& arguments) {
  if (!arguments.has(Option::Folder)) return std::nullopt;
  return OutputNames(fileNameBytes(arguments.values.value(Option::Folder)), writtenExtensionOf(arguments));
}

QByteArray OutputNames::outputOf(const ListedName& name) const {
  const qsizetype slash = name.below.lastIndexOf('/');
  const qsizetype dot = name.below.lastIndexOf('.');
  const bool hasExtension = dot > slash + 1;  // a name may begin with a dot
  if (extension_.isEmpty()) return pathBelow(folder_, name.below);
  return pathBelow(folder_, hasExtension ? name.below.left(dot) : name.below) + '.' + extension_;
}

Result<void> OutputNames::checkFolder() const {
  const auto place = placeOf(folder_);
  if (!place) return Error{ErrorKind::CannotWrite, QStringLiteral("the folder to write to does not exist")};
  if (place_ && *place != *place_)
    return Error{ErrorKind::CannotWrite,
                 QStringLiteral("the folder to write to has gone, another one is in its place")};
  return {};
}

Result<void> OutputNames::makeFoldersOf(const QByteArray& output) const {
  const qsizetype last = output.lastIndexOf('/');
  qsizetype slash = pathBelow(folder_, {}).size() - 1;
  struct stat status {};
  if (const auto checked = checkFolder(); !checked) return checked.error();
  if (last < 0 || ::stat(output.left(std::max<qsizetype>(last, 1)).constData(), &status) == 0) return {};
  while ((slash = output.indexOf('/', slash + 1)) >= 0) {
    if (::mkdir(output.left(slash).constData(), 0777) != 0 && errno != EEXIST) return cannotMake(errno);
  }
  return {};
}

void OutputNames::takeBack(const QByteArray& output, qint64 since) const {
  if (!checkFolder()) {
    const auto mark = markOf(output);
    if (!mark || mark->changed < since) return;
  }
  ::unlink(output.constData());
}

}  // namespace norvex
