// The command line in a container: read-only root, no network, no rights.
#include <QStandardPaths>

#include <unistd.h>

#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex::kit;

class ContainerTest : public QObject {
  Q_OBJECT
 private slots:
  /// With this machine's own libraries: an image of packages takes a network.
  void picturesAreConvertedWithoutRightsNetworkOrAWritableRoot() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers call what the confinement forbids");
#endif
    if (::geteuid() != 0) QSKIP("containers are made by root alone");
    for (const char* program : {"podman", "runc"})
      if (QStandardPaths::findExecutable(program, {}).isEmpty() &&
          QStandardPaths::findExecutable(program, {"/usr/sbin", "/sbin"}).isEmpty())
        QSKIP(qPrintable(QStringLiteral("%1 is not installed").arg(program)));
    const Ran ran = run(QStringLiteral(NORVEX_SOURCE_DIR "/packaging/container/check-image"),
                        {"--here", QStringLiteral(NORVEX_BUILD_DIR)}, {}, 300, {"PODMAN=--runtime runc"});
    if (ran.exitCode == 77) QSKIP(ran.out.trimmed().constData());
    QVERIFY2(ran.exitCode == 0, (ran.out + ran.err).constData());
    QCOMPARE(ran.out.count("good: "), 9);
  }
};

NORVEX_TEST(ContainerTest)
#include "container_test.moc"
