// A tree of small pictures, and runs over it; for the tests of archives.
#pragma once

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include "kit/program.h"

namespace norvex::archives {

inline QByteArray svg(int number) {
  return QStringLiteral(
             "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='20'><rect width='%1' height='9' "
             "fill='#%2'/></svg>")
      .arg(1 + number % 19)
      .arg(number % 4096, 3, 16, QLatin1Char('0'))
      .toUtf8();
}

inline QByteArray eps(int number) {
  return QStringLiteral(
             "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 30 30\n%%EndComments\n0 0 %1 9 rectfill showpage\n")
      .arg(1 + number % 29)
      .toUtf8();
}

inline void write(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write");
}

/// Every file below a folder by its path, hidden ones and all.
inline QMap<QString, QByteArray> contentsOf(const QString& folder) {
  QMap<QString, QByteArray> contents;
  QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
  while (it.hasNext()) {
    QFile file(it.next());
    if (file.open(QIODevice::ReadOnly))
      contents.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
  }
  return contents;
}

/// A tree of small pictures, and what an undisturbed run makes of it.
class Tree {
 public:
  explicit Tree(int count) {
    for (int i = 0; i < count; ++i) {
      const QString name = path(QStringLiteral("in/%1/%2").arg(i % 7).arg(i));
      i % 25 == 3 ? write(name + ".eps", eps(i)) : write(name + ".svg", svg(i));
    }
    write(path("in/broken.svg"), "<svg");
    const kit::Ran ran = run(arguments("undisturbed", "undisturbed.state"));
    if (ran.exitCode != 1) qFatal("%s", ran.err.constData());
    undisturbed = contentsOf(path("undisturbed"));
    if (undisturbed.size() != count) qFatal("not all were converted: %s", ran.err.constData());
  }

  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
  [[nodiscard]] QStringList arguments(const QString& to, const QString& state) const {
    QDir().mkpath(path(to));
    return {"convert",  "--recursive", path("in"), "--to",     path(to),
            "--format", "pdf",         "--state",  path(state)};
  }
  /// The same for files that are listed on standard input, and their names.
  [[nodiscard]] QStringList listArguments(const QString& to, const QString& state) const {
    QStringList all = arguments(to, state);
    all.replace(1, "--files-from"), all.replace(2, "-");
    return all + QStringList{"--base", path("in"), "--json-lines"};
  }
  [[nodiscard]] QStringList names() const {
    QStringList all;
    for (const QString& below : contentsOf(path("in")).keys()) all << path("in/" + below);
    return all;
  }
  [[nodiscard]] static kit::Ran run(const QStringList& arguments) {
    return kit::norvex(arguments, {}, 600, {"SOURCE_DATE_EPOCH=1000000000"});
  }
  /// Starts a run; the caller has it end.
  static void start(QProcess& process, const QStringList& arguments) {
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("SOURCE_DATE_EPOCH", "1000000000");
    process.setProcessEnvironment(variables);
    process.start(kit::norvexProgram(), arguments);
    if (!process.waitForStarted()) qFatal("not started");
  }

  QMap<QString, QByteArray> undisturbed;

 private:
  QTemporaryDir folder_;
};

inline QString differences(const QMap<QString, QByteArray>& got, const QMap<QString, QByteArray>& wanted) {
  QStringList wrong;
  for (auto it = wanted.begin(); it != wanted.end(); ++it)
    if (got.value(it.key()) != it.value()) wrong << it.key();
  for (const QString& name : got.keys())
    if (!wanted.contains(name)) wrong << "too much: " + name;
  return wrong.mid(0, 5).join(u' ');
}

}  // namespace norvex::archives
