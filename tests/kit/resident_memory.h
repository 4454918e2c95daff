// The memory that another process takes.
#pragma once

#include <QFile>
#include <QString>

namespace norvex::kit {

/// True in builds that keep what was given back for a while: memory grows there whatever is tested.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool kKeepsMemory = true;
#else
inline constexpr bool kKeepsMemory = false;
#endif

/// -1: there is no such process.
inline qint64 residentKiB(qint64 pid) {
  QFile file(QStringLiteral("/proc/%1/status").arg(pid));
  if (!file.open(QIODevice::ReadOnly)) return -1;
  const QByteArray status = file.readAll();
  return status.mid(status.indexOf("VmRSS:") + 6, 20).simplified().split(' ').first().toLongLong();
}

}  // namespace norvex::kit
