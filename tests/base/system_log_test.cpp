#include "base/system_log.h"

#include <QDebug>

#include <algorithm>

#include <unistd.h>

#include "kit/forked_check.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

/// What a message writes to standard error, before or after messages were sent to the system's log.
QByteArray written(bool sentToLog) {
  int ends[2];
  if (::pipe(ends) != 0) return "no pipe";
  kit::inForkedChild([&] {
    qInstallMessageHandler(nullptr);
    ::dup2(ends[1], STDERR_FILENO);
    if (sentToLog) sendMessagesToSystemLog();
    qDebug("a message");
    qWarning("a warning with %%s and %%n");
    return 0;
  });
  ::close(ends[1]);
  QByteArray all(4096, '\0');
  all.resize(std::max<qsizetype>(0, ::read(ends[0], all.data(), size_t(all.size()))));
  ::close(ends[0]);
  return all;
}

}  // namespace

class SystemLogTest : public QObject {
  Q_OBJECT
 private slots:
  void nothingOfItIsOnStandardError() {
    QVERIFY(written(false).contains("a warning"));
    QCOMPARE(written(true), QByteArray());
  }
};

NORVEX_TEST(SystemLogTest)
#include "system_log_test.moc"
