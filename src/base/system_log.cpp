#include "base/system_log.h"

#include <QString>

#include <syslog.h>

namespace norvex {
namespace {

int priorityOf(QtMsgType type) {
  switch (type) {
    case QtDebugMsg:
      return LOG_DEBUG;
    case QtInfoMsg:
      return LOG_INFO;
    case QtWarningMsg:
      return LOG_WARNING;
    case QtCriticalMsg:
      return LOG_ERR;
    case QtFatalMsg:
      return LOG_CRIT;
  }
  return LOG_INFO;
}

void toSystemLog(QtMsgType type, const QMessageLogContext&, const QString& message) {
  ::syslog(priorityOf(type), "%s", message.toUtf8().constData());
}

}  // namespace

void sendMessagesToSystemLog() {
  ::openlog("norvex", LOG_PID, LOG_USER);
  qInstallMessageHandler(toSystemLog);
}

}  // namespace norvex
