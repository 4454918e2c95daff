#include "worker/drawing/installed_fonts.h"

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

const QString kNone = QStringLiteral("No Such Family");

}  // namespace

class InstalledFontsTest : public QObject {
  Q_OBJECT
 private slots:
  void aFamilyThatIsNotInstalledIsToldWithItsStandIn() {
    const QStringList told = missingFamilies({{kNone, QStringLiteral("Nor This One")}});
    QCOMPARE(told.size(), 1);
    QVERIFY(told[0].startsWith(QStringLiteral("the font No Such Family is missing, ")));
    QVERIFY(isMissingFontSentence(told[0]));
    QCOMPARE(missingFontSentence(kNone),
             QStringLiteral("the font No Such Family is missing, another stands in for it"));
    QCOMPARE(missingFontSentence(kNone, QStringLiteral("Sans")),
             QStringLiteral("the font No Such Family is missing, Sans stands in for it"));
  }

  // They stand for whatever is there. Behind a family they are its stand-in, which was asked for.
  void genericFamiliesAreAlwaysThere() {
    for (const char* name :
         {"serif", "sans-serif", "sans", "monospace", "mono", "cursive", "fantasy", "system-ui", "ui-serif",
          "ui-sans-serif", "ui-monospace", "ui-rounded", "math", "emoji", "Cursive"})
      QCOMPARE(missingFamilies({{QString::fromLatin1(name)}}), QStringList());
    QCOMPARE(missingFamilies({{kNone, QStringLiteral("serif")}}).size(), 1);
    QCOMPARE(missingFamilies({{}}), QStringList());
  }

  void aFamilyIsToldOnceAndNotMoreThanAreGranted() {
    QCOMPARE(missingFamilies({{kNone}, {kNone.toUpper()}}).size(), 1);
    QList<QStringList> many;
    for (int i = 0; i < limits::maximumWarnings + 5; ++i) many << QStringList{kNone + QString::number(i)};
    QCOMPARE(missingFamilies(many).size(), limits::maximumWarnings);
  }
};

NORVEX_TEST(InstalledFontsTest)
#include "installed_fonts_test.moc"
