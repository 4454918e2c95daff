#include "worker/environment.h"

#include <fcntl.h>
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

  /// Whoever adds one hands it to whoever takes a process over: it is to be added here, too.
  void theseAndNoOthersStay() {
    QCOMPARE(keptVariables(),
             (QByteArrayList{"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "FONTCONFIG_FILE",
                             "FONTCONFIG_PATH", "TZ", "SOURCE_DATE_EPOCH", "XDG_RUNTIME_DIR", "ASAN_OPTIONS",
                             "UBSAN_OPTIONS", "TSAN_OPTIONS", "LLVM_PROFILE_FILE", "GCOV_PREFIX",
                             "GCOV_PREFIX_STRIP"}));
  }

  void standardStreamsLeadNowhere() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers report to a stream");
#endif
    QCOMPARE(inForkedChild([] {
               const int free = ::dup(STDIN_FILENO);
               ::close(free);
               closeStandardStreams();
               for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
                 char target[64] = {};
                 const QByteArray path = "/proc/self/fd/" + QByteArray::number(stream);
                 if (::readlink(path.constData(), target, sizeof target - 1) < 0) return 10 + stream;
                 if (qstrcmp(target, "/dev/null") != 0) return 20 + stream;
               }
               return ::fcntl(free, F_GETFD) < 0 ? 0 : 1;  // nothing else stays open
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
               if (qgetenv("GIO_USE_VFS") != "local" || qgetenv("GSETTINGS_BACKEND") != "memory") return 4;
               return qEnvironmentVariableIsSet("LC_NUMERIC") ? 3 : 0;
             }),
             0);
  }
};

NORVEX_TEST(EnvironmentTest)
#include "environment_test.moc"
