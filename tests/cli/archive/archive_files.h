// Archives and runs over them for tests: a folder of its own, pictures in memory.
#pragma once

#include <QJsonDocument>
#include <QJsonObject>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/file_name.h"
#include "cli/archive/archive_job.h"
#include "cli/cli_files.h"

namespace norvex::testdata {

/// An SVG that says something about itself.
inline QByteArray svg(const QByteArray& comment) {
  return "<svg xmlns='http://www.w3.org/2000/svg'><!--" + comment + "--></svg>";
}

class Archive : public CommandLine {
 public:
  Archive() = default;
  Archive(const Archive&) = delete;
  Archive& operator=(const Archive&) = delete;
  /// Names that are no text are not found by what removes the folder.
  ~Archive() {
    std::error_code ignored;
    for (const char* name : {"in", "out"}) std::filesystem::remove_all(at(name).toStdString(), ignored);
  }

  /// Writes a file with the folders above it; the name may be any bytes.
  QByteArray put(const QByteArray& name, const QByteArray& bytes = svg("a picture")) {
    const QByteArray file = at(name);
    for (qsizetype i = file.indexOf('/', 1); i >= 0; i = file.indexOf('/', i + 1))
      ::mkdir(file.left(i).constData(), 0777);
    FILE* stream = std::fopen(file.constData(), "w");
    if (!stream) qFatal("cannot write test data");
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fclose(stream);
    return file;
  }
  [[nodiscard]] QByteArray at(const QByteArray& name) const {
    return fileNameBytes(path(QString())) + '/' + name;
  }
  [[nodiscard]] QString folder(const QByteArray& name) {
    ::mkdir(at(name).constData(), 0777);
    return fileNameText(at(name));
  }

  int go(const QStringList& arguments) {
    console.output.clear();
    console.messages.clear();
    return int(ArchiveJob<Job>(console, service).run(arguments));
  }
  /// convert to SVG, which the service in memory hands through.
  int convert(const QStringList& arguments) {
    return go(QStringList{"convert", "--format", "svg", "--to", folder("out")} + arguments);
  }
  int convertTree(const QStringList& arguments) {
    return convert(QStringList{"--recursive", folder("in")} + arguments);
  }

  /// Paths below a folder, sorted, hidden ones too.
  [[nodiscard]] QList<QByteArray> filesBelow(const QByteArray& name) const {
    QList<QByteArray> found;
    collect(at(name), {}, found);
    std::sort(found.begin(), found.end());
    return found;
  }
  /// The objects of --json-lines.
  [[nodiscard]] QList<QJsonObject> lines() const {
    QList<QJsonObject> objects;
    for (const QByteArray& line : console.output.split('\n'))
      if (!line.isEmpty()) objects << QJsonDocument::fromJson(line).object();
    return objects;
  }
  [[nodiscard]] QStringList told(const QString& key) const {
    QStringList values;
    for (const QJsonObject& object : lines()) values << object.value(key).toVariant().toString();
    return values;
  }
  [[nodiscard]] QByteArray bytesAt(const QByteArray& name) const {
    QByteArray bytes;
    if (FILE* stream = std::fopen(at(name).constData(), "r")) {
      char piece[4096];
      while (const size_t count = std::fread(piece, 1, sizeof piece, stream))
        bytes.append(piece, qsizetype(count));
      std::fclose(stream);
    }
    return bytes;
  }

 private:
  static void collect(const QByteArray& folder, const QByteArray& below, QList<QByteArray>& found) {
    DIR* stream = ::opendir(folder.constData());
    while (const dirent* entry = stream ? ::readdir(stream) : nullptr) {
      const QByteArray name(entry->d_name);
      if (name == "." || name == "..") continue;
      if (entry->d_type == DT_DIR)
        collect(folder + '/' + name, below + name + '/', found);
      else
        found << below + name;
    }
    if (stream) ::closedir(stream);
  }
};

}  // namespace norvex::testdata
