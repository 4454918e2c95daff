// Files and a run for the tests of the command line.
#pragma once

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "cli/printing_job.h"
#include "picture/process/memory_picture_service.h"

namespace norvex::testdata {

inline const QByteArray kEps(
    "%!PS-Adobe-3.0 EPSF-3.0\n%%Title: (My picture)\n%%Creator: hand\n%%BoundingBox: 0 0 30 40\n"
    "%%HiResBoundingBox: 0 0.5 29.5 40\n%%EndComments\nshowpage\n");
inline const QByteArray kEpsi(
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 8 2\n%%EndComments\n%%BeginPreview: 8 2 1 "
    "2\n%FF\n%00\n%%EndPreview\n");
inline const QByteArray kSvg("<svg xmlns='http://www.w3.org/2000/svg'/>");
inline const QByteArray kPdf("%PDF-1.4\n%%EOF\n");

/// A folder of its own with a console and a service in memory.
class CommandLine {
 public:
  QString write(const QString& name, const QByteArray& bytes) {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
    return file.fileName();
  }
  [[nodiscard]] QString path(const QString& name) const { return QDir(folder_.path()).filePath(name); }
  [[nodiscard]] QByteArray contents(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  [[nodiscard]] QStringList entries() const {
    return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  int run(const QStringList& arguments) {
    console.output.clear();
    console.messages.clear();
    return int(PrintingJob(console, service).run(arguments));
  }

  MemoryConsole console;
  MemoryPictureService service;

 private:
  QTemporaryDir folder_;
};

/// The array that a run wrote to standard output.
inline QJsonArray jsonOf(const CommandLine& line) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(line.console.output, &error);
  if (error.error != QJsonParseError::NoError) qWarning("not JSON: %s", line.console.output.constData());
  return document.array();
}

}  // namespace norvex::testdata
