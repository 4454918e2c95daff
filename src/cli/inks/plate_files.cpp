#include "cli/inks/plate_files.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QSet>

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <system_error>
#include <vector>

#include "base/atomic_file.h"
#include "base/file_name.h"

namespace norvex {
namespace {

constexpr qsizetype kLongestInk = 60;

/// Letters, numbers and what stands between them.
QString safeName(const QString& ink) {
  QString safe;
  for (const QChar c : ink.left(kLongestInk)) {
    const bool isSafe = c.isLetterOrNumber() || c == u' ' || c == u'-' || c == u'_' || c == u'+' || c == u'.';
    safe += isSafe ? c : QChar(u'_');
  }
  safe = safe.simplified();
  while (safe.startsWith(u'.')) safe.remove(0, 1);
  while (safe.endsWith(u'.')) safe.chop(1);
  return safe.isEmpty() ? QStringLiteral("ink") : safe;
}

/// Qt would take another name for one that is no text.
std::filesystem::path pathOf(const QString& name) {
  return fileNameBytes(name).toStdString();
}

/// Files that are of use together: what was written of them goes again unless keep() is called, and the
/// folders with it that were made for them.
class FilesTogether {
 public:
  FilesTogether() = default;
  ~FilesTogether() {
    std::error_code ignored;
    for (const QString& file : files_) std::filesystem::remove(pathOf(file), ignored);
    for (const auto& folder : folders_) ::rmdir(folder.c_str());  // nothing but a folder that is empty
  }
  FilesTogether(const FilesTogether&) = delete;
  FilesTogether& operator=(const FilesTogether&) = delete;

  /// With those that it stands in. A link that leads nowhere is there, and nobody's folder.
  [[nodiscard]] bool makeFolder(const QString& folder) {
    std::error_code failed;
    const std::filesystem::path path = pathOf(folder);
    const auto isThere = [&](const auto& at) { return exists(symlink_status(at, failed)); };
    for (auto at = path; !at.empty() && !isThere(at); at = at.parent_path()) folders_.push_back(at);
    std::filesystem::create_directories(path, failed);
    return std::filesystem::is_directory(path, failed);
  }
  [[nodiscard]] Result<void> write(const QString& file, const QByteArray& bytes, IfExists ifExists) {
    const bool isNew = !fileExists(file);
    Result<void> written = writeFileAtomically(file, bytes, ifExists);
    if (written && isNew) files_ << file;
    return written;
  }
  void keep() {
    files_.clear();
    folders_.clear();
  }

 private:
  QStringList files_;
  std::vector<std::filesystem::path> folders_;  ///< that were not there; innermost first
};

}  // namespace

QStringList plateNames(const QString& base, const PageInks& page) {
  QStringList names;
  QSet<QString> taken;  // some systems do not tell capitals apart
  for (const Ink& ink : page.inks) {
    const QString wanted = safeName(ink.name);
    QString name = wanted;
    for (int number = 2; taken.contains(name.toLower()); ++number)
      name = QStringLiteral("%1 %2").arg(wanted).arg(number);
    taken.insert(name.toLower());
    names << QStringLiteral("%1-%2.png").arg(base, name);
  }
  return names;
}

QByteArray platePng(const PageInks& page, qsizetype ink) {
  QImage image(page.pixels, QImage::Format_Grayscale8);
  const uchar* from = page.plate(ink);
  for (int y = 0; y < image.height(); ++y, from += image.width())
    std::transform(from, from + image.width(), image.scanLine(y),
                   [](uchar amount) { return uchar(255 - amount); });
  const int perMetre = int(std::lround(page.dpi / 0.0254));
  image.setDotsPerMeterX(perMetre);
  image.setDotsPerMeterY(perMetre);
  QByteArray png;
  QBuffer buffer(&png);
  return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG") ? png : QByteArray();
}

Result<QStringList> writePlates(const PageInks& page, const QString& folder, const QString& base,
                                bool force) {
  QStringList paths;
  for (const QString& name : plateNames(base, page)) paths << QDir(folder).filePath(name);
  for (const QString& path : paths)
    if (!force && fileExists(path))
      return Error{ErrorKind::CannotWrite,
                   QStringLiteral("%1 exists already (--force overwrites it)").arg(path)};
  FilesTogether files;
  if (!files.makeFolder(folder))
    return Error{ErrorKind::CannotWrite, QStringLiteral("the folder %1 cannot be made").arg(folder)};
  for (qsizetype i = 0; i < paths.size(); ++i) {
    const QByteArray png = platePng(page, i);
    if (png.isEmpty())
      return Error{ErrorKind::CannotWrite,
                   QStringLiteral("the plate of %1 cannot be written as PNG").arg(page.inks.at(i).name)};
    const Result<void> written = files.write(paths[i], png, force ? IfExists::Replace : IfExists::Fail);
    if (!written) return written.error();
  }
  files.keep();
  return paths;
}

}  // namespace norvex
