#include "worker/environment.h"

#include <unistd.h>

#include "kit/forked_check.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::kit;

class EnvironmentTest : public QObject {
  Q_OBJECT
 private slots:
  void onlyNamedVariablesStay() {
    QCOMPARE(inForkedChild([] {
               qputenv("SSH_AUTH_SOCK", "/secret");
               qputenv("LD_PRELOAD", "/lib/evil.so");
               qputenv("HOME", "/home/someone");
               qputenv("FONTCONFIG_FILE", "/fonts.conf");
               clearEnvironment();
               const QByteArrayList kept = keptVariables();
               int known = 0;
               for (char** entry = environ; *entry != nullptr; ++entry) {
                 const QByteArray name = QByteArray(*entry).split('=').first();
                 const bool set = name == "PATH" || name.startsWith("LANG") || name == "LC_ALL" ||
                                  name == "GIO_USE_VFS" || name == "GSETTINGS_BACKEND";
                 if (!kept.contains(name) && !set) return 1;
                 ++known;
               }
               if (known < 6) return 2;
               if (qgetenv("HOME") != "/home/someone" || qgetenv("FONTCONFIG_FILE") != "/fonts.conf")
                 return 3;
               return qEnvironmentVariableIsSet("SSH_AUTH_SOCK") ? 4 : 0;
             }),
             0);
  }

  void theUsersPathAndLanguageDoNotCount() {
    QCOMPARE(inForkedChild([] {
               qputenv("PATH", "/home/someone/bin");
               qputenv("LC_ALL", "de_DE.UTF-8");
               qputenv("LC_NUMERIC", "de_DE.UTF-8");
               clearEnvironment();
               if (qgetenv("PATH") != "/usr/bin:/bin") return 1;
               if (qgetenv("LC_ALL") != "C.UTF-8" || qgetenv("LANG") != "C.UTF-8") return 2;
               return qEnvironmentVariableIsSet("LC_NUMERIC") ? 3 : 0;
             }),
             0);
  }
};

NORVEX_TEST(EnvironmentTest)
#include "environment_test.moc"
