#include "kit/test_main.h"

#include <QFileInfo>
#include <QLocale>
#include <map>
#include <utility>
#include <vector>

#include "kit/test_programs.h"

#if defined(NORVEX_TEST_APP_WIDGETS)
#include <QApplication>
using TestApplication = QApplication;
#elif defined(NORVEX_TEST_APP_GUI)
#include <QGuiApplication>
using TestApplication = QGuiApplication;
#else
#include <QCoreApplication>
using TestApplication = QCoreApplication;
#endif

namespace norvex::kit {
namespace {

struct TestEntry {
  QString stem;
  std::function<std::unique_ptr<QObject>()> make;
};

std::vector<TestEntry>& entries() {
  static std::vector<TestEntry> all;
  return all;
}

using ProgramWork = std::function<int(const QStringList& arguments)>;

std::map<QString, ProgramWork>& programs() {
  static std::map<QString, ProgramWork> all;
  return all;
}

int runNamed(const QString& name, const QStringList& arguments) {
  if (const auto found = programs().find(name); found != programs().end()) return found->second(arguments);
  qCritical("no program named %s", qPrintable(name));
  return 127;
}

int runAll(const QString& wanted, const QStringList& arguments) {
  int failures = 0;
  int ran = 0;
  for (const TestEntry& entry : entries()) {
    if (!wanted.isEmpty() && entry.stem != wanted) continue;
    ++ran;
    failures += QTest::qExec(entry.make().get(), arguments);
  }
  if (ran == 0) {
    qCritical("no test case named %s", qPrintable(wanted));
    return 1;
  }
  return failures == 0 ? 0 : 1;
}

}  // namespace

bool registerTest(const char* file, std::function<std::unique_ptr<QObject>()> make) {
  entries().push_back({QFileInfo(QString::fromUtf8(file)).completeBaseName(), std::move(make)});
  return true;
}

bool registerProgram(const char* name, ProgramWork work) {
  programs()[QString::fromUtf8(name)] = std::move(work);
  return true;
}

}  // namespace norvex::kit

// usage: FOLDER_tests [--case STEM] [QtTest options…]
//        FOLDER_tests --program NAME [argument…]   what a test runs beside itself
int main(int argc, char** argv) {
  QLocale::setDefault(QLocale::c());
  TestApplication app(argc, argv);
  QStringList arguments = TestApplication::arguments();
  if (arguments.size() > 2 && arguments.at(1) == QLatin1String("--program"))
    return norvex::kit::runNamed(arguments.at(2), arguments.mid(3));
  QString wanted;
  const qsizetype at = arguments.indexOf(QStringLiteral("--case"));
  if (at > 0 && at + 1 < arguments.size()) {
    wanted = arguments.at(at + 1);
    arguments.remove(at, 2);
  }
  return norvex::kit::runAll(wanted, arguments);
}
