#include "cli/command_line.h"

#include <QCoreApplication>

#include <optional>

#include "base/file_name.h"
#include "base/system_log.h"
#include "cli/arguments/arguments.h"

namespace norvex {
namespace {

/// Any of them may be a file's name.
QStringList argumentsOf(int argc, char** argv) {
  QStringList given;
  for (int i = 1; i < argc; ++i) given << fileNameText(argv[i]);
  return given;
}

}  // namespace

bool isCommandLine(int argc, char** argv) {
  if (argc < 2) return false;
  const QString first = fileNameText(argv[1]);
  return asksForCommandLine(first) || (looksLikeCommand(first) && !fileExists(first));
}

int runCommandLine(int argc, char** argv, Job& job) {
  const QStringList given = argumentsOf(argc, argv);
  sendMessagesToSystemLog();  // first: the application object has things to say about locales
  std::optional<QCoreApplication> application;
  if (!QCoreApplication::instance()) application.emplace(argc, argv);
  return int(job.run(given));
}

}  // namespace norvex
