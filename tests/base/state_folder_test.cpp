#include "base/state_folder.h"

#include <QDir>

#include "kit/test_main.h"

using namespace norvex;

class StateFolderTest : public QObject {
  Q_OBJECT
 private slots:
  void theDesktopNamesTheFolders() {
    qputenv("XDG_STATE_HOME", "/somewhere/state");
    qputenv("XDG_CONFIG_HOME", "/somewhere/else");
    QCOMPARE(stateFolder(), QStringLiteral("/somewhere/state/norvex"));
    QCOMPARE(settingsFolder(), QStringLiteral("/somewhere/else/norvex"));
  }

  void theyAreInTheUsersOwnWhereNothingNamesThem() {
    qunsetenv("XDG_STATE_HOME");
    qunsetenv("XDG_CONFIG_HOME");
    QCOMPARE(stateFolder(), QDir::homePath() + QStringLiteral("/.local/state/norvex"));
    QCOMPARE(settingsFolder(), QDir::homePath() + QStringLiteral("/.config/norvex"));
  }

  /// Where a program happens to be started is nobody's choice.
  void aRelativeNameCountsAsNone() {
    qputenv("XDG_STATE_HOME", "state");
    qputenv("XDG_CONFIG_HOME", "");
    QCOMPARE(stateFolder(), QDir::homePath() + QStringLiteral("/.local/state/norvex"));
    QCOMPARE(settingsFolder(), QDir::homePath() + QStringLiteral("/.config/norvex"));
  }
};

NORVEX_TEST(StateFolderTest)
#include "state_folder_test.moc"
