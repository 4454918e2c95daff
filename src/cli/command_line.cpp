#include "cli/command_line.h"

#include <QCoreApplication>
#include <QFile>

#include <optional>

#include "cli/arguments.h"
#include "cli/job.h"
#include "platform/system_log.h"

namespace norvex {
namespace {

/// File names are bytes; they become text as the file system's names do, whatever the locale.
QStringList argumentsOf(int argc, char** argv) {
  QStringList given;
  for (int i = 1; i < argc; ++i) given << QFile::decodeName(argv[i]);
  return given;
}

}  // namespace

bool isCommandLine(int argc, char** argv) {
  return argc > 1 && asksForCommandLine(QFile::decodeName(argv[1]));
}

int runCommandLine(int argc, char** argv, PictureService& service) {
  const QStringList given = argumentsOf(argc, argv);
  sendMessagesToSystemLog();  // first: the application object has things to say about locales
  std::optional<QCoreApplication> application;
  if (!QCoreApplication::instance()) application.emplace(argc, argv);
  StandardConsole console;
  return int(Job(console, service).run(given));
}

}  // namespace norvex
