// Runs a program as its users do and keeps what it said.
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace norvex::kit {

struct Ran {
  int exitCode = -1;
  bool crashed = false;
  QByteArray out, err;
};

/// Runs to the end (or kills it after `seconds`, which counts as a crash).
inline Ran run(const QString& program, const QStringList& arguments, const QByteArray& input = {},
               int seconds = 120, const QStringList& environment = {}) {
  QProcess process;
  QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
  for (const QString& variable : environment)
    variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
  process.setProcessEnvironment(variables);
  process.start(program, arguments);
  process.write(input);
  process.closeWriteChannel();
  Ran ran;
  if (!process.waitForFinished(seconds * 1000)) {
    process.kill();
    process.waitForFinished();
    ran.crashed = true;
  }
  ran.crashed = ran.crashed || process.exitStatus() == QProcess::CrashExit;
  ran.exitCode = process.exitCode();
  ran.out = process.readAllStandardOutput();
  ran.err = process.readAllStandardError();
  return ran;
}

/// The built command, or the one that NORVEX_PROGRAM names (an installed one, one of another build).
inline QString norvexProgram() {
  const QString given = qEnvironmentVariable("NORVEX_PROGRAM");
  return given.isEmpty() ? QStringLiteral(NORVEX_BUILD_DIR "/norvex") : given;
}

inline Ran norvex(const QStringList& arguments, const QByteArray& input = {}, int seconds = 120,
                  const QStringList& environment = {}) {
  return run(norvexProgram(), arguments, input, seconds, environment);
}

inline QString sample(const QString& name) {
  return QStringLiteral(NORVEX_SOURCE_DIR "/samples/") + name;
}

/// The folder of real files by many producers beside the project; empty where it is absent.
inline QString corpusFolder() {
  const QString given = qEnvironmentVariable("NORVEX_CORPUS");
  const QString path = given.isEmpty() ? QStringLiteral(NORVEX_SOURCE_DIR "/../shared/corpus") : given;
  return QFileInfo(path).isDir() ? QDir(path).canonicalPath() : QString();
}

/// All files of one folder of the corpus, by name.
inline QStringList corpusFiles(const QString& kind) {
  QStringList files;
  const QDir folder(corpusFolder() + u'/' + kind);
  for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) files << folder.filePath(name);
  return files;
}

}  // namespace norvex::kit
