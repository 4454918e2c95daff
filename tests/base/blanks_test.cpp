#include "base/blanks.h"

#include <QByteArray>

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// The ASCII characters for which the rule holds.
QByteArray those(bool (*rule)(char)) {
  QByteArray found;
  for (int c = 0; c < 128; ++c)
    if (rule(char(c))) found.append(char(c));
  return found;
}

}  // namespace

class BlanksTest : public QObject {
  Q_OBJECT
 private slots:
  void everyLanguageHasItsOwn() {
    QCOMPARE(those([](char c) { return isWhiteSpace(c); }), QByteArray("\t\n\v\f\r "));
    QCOMPARE(those([](char c) { return isXmlSpace(c); }), QByteArray("\t\n\r "));
    QCOMPARE(those([](char c) { return isPostScriptSpace(c); }), QByteArray("\0\t\n\f\r ", 6));
    QCOMPARE(those([](char c) { return isCommentBlank(c); }), QByteArray("\0\t\v\f ", 5));
    QCOMPARE(those([](char c) { return mayPrecedePostScript(c); }), QByteArray("\0\x04\t\n\v\f\r ", 8));
  }
  void lettersOfOtherScriptsAreNone() {
    for (int c = 128; c < 256; ++c) {
      const char byte = char(c);
      QVERIFY(!isWhiteSpace(byte) && !isXmlSpace(byte) && !isPostScriptSpace(byte) && !isCommentBlank(byte) &&
              !mayPrecedePostScript(byte));
    }
  }
};

NORVEX_TEST(BlanksTest)
#include "blanks_test.moc"
