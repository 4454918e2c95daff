#include "worker/web_fonts/shown_characters.h"

#include "kit/test_main.h"

using namespace norvex::engine;

namespace {

using Characters = std::vector<char32_t>;

Characters shown(const Characters& told) {
  return charactersFor(told, false);
}

}  // namespace

class ShownCharactersTest : public QObject {
  Q_OBJECT
 private slots:
  void aLetterStandsForItself() {
    for (const char32_t c :
         {U'a', U'Ж', U'ß', U'ä', U'漢', U'か', U'한', U'+', U'7', U'€', char32_t(0x1D400)})
      QCOMPARE(shown({c}), Characters{c});
  }

  void aLigatureAndAContextualFormAreTheirLetters() {
    QCOMPARE(shown({0xFB03}), (Characters{U'f', U'f', U'i'}));
    QCOMPARE(shown({0xFE91}), Characters{0x628});
    QCOMPARE(shown({0xFB00}), (Characters{U'f', U'f'}));
    QCOMPARE(shown({0xFE80}), Characters{0x621});
    QCOMPARE(shown({0xFEFC}), (Characters{0x644, 0x627}));
  }

  void whatReadersIgnoreStandsForNothing() {
    for (const char32_t c :
         {0x200B, 0x200D, 0x2060, 0xFEFF, 0xFE0F, 0x34F, 0x115F, 0xFFFC, 0xFFFD, 7, 0xD800, 0xFFFF, 0x110000})
      QVERIFY2(shown({char32_t(c)}).empty(), qPrintable(QString::number(c, 16)));
    QCOMPARE(shown({0xAD}), Characters{U'-'});
  }

  void whatReadersDrawInColourOrTakeApartStandsForNothing() {
    QVERIFY(shown({0x1F600}).empty());
    QVERIFY(shown({0x0E33}).empty());
    QVERIFY(shown({0x17C4}).empty());
  }

  void aSpaceStandsForABlankAlone() {
    for (const char32_t c : {U' ', U'\t', char32_t(0xA0), char32_t(0x2003)}) {
      QCOMPARE(charactersFor({c}, true), Characters{U' '});
      QVERIFY(shown({c}).empty());
    }
    QCOMPARE(charactersFor({U'a'}, true), Characters{U'a'});  // the letters above a scanned page
  }

  void nothingToldIsNothing() {
    QVERIFY(shown({}).empty());
    QVERIFY(shown(Characters(17, U'a')).empty());
  }

  void whatIsJoinedOrMovedStandsAlone() {
    for (const char32_t c : {0x301, 0x5D0, 0x628, 0x661, 0x915, 0xE01, 0x1112, 0x1D400})
      QVERIFY2(standsAlone(char32_t(c)), qPrintable(QString::number(c, 16)));
    for (const char32_t c : {U'a', U'1', U'.', U'Ж', U'漢', U'한', char32_t(0xE000)})
      QVERIFY2(!standsAlone(c), qPrintable(QString::number(c, 16)));
  }
};

NORVEX_TEST(ShownCharactersTest)
#include "shown_characters_test.moc"
