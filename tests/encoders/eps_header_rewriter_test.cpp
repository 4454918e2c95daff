#include "encoders/eps_header_rewriter.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {
const EpsHeaderDefaults defaults{QStringLiteral("MainWindowController by Tembrolix."),
                                 QStringLiteral("today"), QStringLiteral("Ann User")};
}

class EpsHeaderRewriterTest : public QObject {
  Q_OBJECT
 private slots:
  void aLineThatEndedInCrLfEndsInLf() {
    const QByteArray out =
        rewriteEpsHeader("%!PS\r\n%%Title: (old)\r\n%%Pages: 1\r\n", {{header::Title, "New"}}, defaults);
    QCOMPARE(out, QByteArray("%!PS\r\n%%Title: New\n%%Pages: 1\r\n"));
  }
  void aLineThatEndedInCrEndsInLf() {
    QCOMPARE(rewriteEpsHeader("%!PS\r%%Title: (old)\rx", {{header::Title, "New"}}, defaults),
             QByteArray("%!PS\r%%Title: New\nx"));
  }
  void unicodeLineSeparatorsEndALine() {
    QCOMPARE(rewriteEpsHeader("%%Title: a\u2028b\u2029c", {{header::Title, "T"}}, defaults),
             QByteArray("%%Title: T\nb\u2029c"));
  }
  void withoutATitleTheLineIsEmpty() {
    QCOMPARE(rewriteEpsHeader("%%Title: (old)\n", {}, defaults), QByteArray("%%Title: \n"));
  }
  void withoutACreatorTheControllerIsNamed() {
    QCOMPARE(rewriteEpsHeader("%%Creator: cairo\n", {}, defaults),
             QByteArray("%%Creator: MainWindowController by Tembrolix.\n"));
  }
  void withoutADateAndAnOwnerTheDefaultsStand() {
    QCOMPARE(rewriteEpsHeader("%%CreationDate: x\n%%For: y", {}, defaults),
             QByteArray("%%CreationDate: today\n%%For: Ann User\n"));
  }
  void anEmptyValueOfTheDictionaryIsAValue() {
    QCOMPARE(rewriteEpsHeader("%%For: y\n", {{header::For, ""}}, defaults), QByteArray("%%For: \n"));
  }
  void aMissingKeywordAddsNothing() {
    QCOMPARE(rewriteEpsHeader("%!PS\nshowpage\n", {{header::Title, "T"}}, defaults),
             QByteArray("%!PS\nshowpage\n"));
  }
  void aCopyrightThatIsThereIsKept() {
    const QByteArray text = "%%Copyright: A\n%%EndComments\n";
    QCOMPARE(rewriteEpsHeader(text, {{header::Copyright, "B"}}, defaults), text);
  }
  void aCopyrightIsInsertedBeforeTheEndOfTheComments() {
    QCOMPARE(rewriteEpsHeader("%!PS\n%%EndComments\n%%EndComments\n", {{header::Copyright, "B"}}, defaults),
             QByteArray("%!PS\n%%Copyright: B\n%%EndComments\n%%EndComments\n"));
  }
  void aCopyrightNeedsAnEndOfComments() {
    QCOMPARE(rewriteEpsHeader("%!PS\n", {{header::Copyright, "B"}}, defaults), QByteArray("%!PS\n"));
  }
  void onlyTheFirstOccurrenceCounts() {
    QCOMPARE(rewriteEpsHeader("%%Title: a\n(%%Title: b) show\n", {{header::Title, "T"}}, defaults),
             QByteArray("%%Title: T\n(%%Title: b) show\n"));
  }
  void aKeywordInsideALineTakesTheWholeLine() {
    QCOMPARE(rewriteEpsHeader("a\nx %%Title: b\nc", {{header::Title, "T"}}, defaults),
             QByteArray("a\n%%Title: T\nc"));
  }
  void eachStepSeesWhatTheStepsBeforeItWrote() {
    // The title brings a keyword along; the creator's step finds it there first.
    QCOMPARE(rewriteEpsHeader("%%Title: a\n%%Creator: b\n",
                              {{header::Title, "see %%Creator: me"}, {header::Creator, "C"}}, defaults),
             QByteArray("%%Creator: C\n%%Creator: b\n"));
  }
  void aLineEndInAValueIsABlank() {
    for (const char* end : {"\n", "\r", "\r\n", "\v", "\f", "\u0085", "\u2028", "\u2029", "\t"}) {
      const QString value = QStringLiteral("a%1quit").arg(QString::fromUtf8(end));
      const HeaderDictionary all{{header::Title, value}, {header::Copyright, value}};
      QCOMPARE(rewriteEpsHeader("%%Title: x\n%%Creator: x\n%%CreationDate: x\n%%For: x\n%%EndComments\n", all,
                                {value, value, value}),
               QByteArray("%%Title: a quit\n%%Creator: a quit\n%%CreationDate: a quit\n%%For: a quit\n"
                          "%%Copyright: a quit\n%%EndComments\n"));
    }
  }
  void controlCharactersAreLeftOut() {
    const QString value = QString::fromUtf8("a") + QChar(0) + QChar(0x1B) + QChar(0x7F) + QChar(0x9B) +
                          QString::fromUtf8("  ü\u202E\u00A0😀 b\n\n");
    QCOMPARE(rewriteEpsHeader("%%Title: x\n", {{header::Title, value}}, defaults),
             QByteArray("%%Title: a  ü\u202E\u00A0😀 b  \n"));
  }
  void theEndOfTheCommentsIsALineOfItsOwn() {
    const HeaderDictionary values{{header::Title, "a %%EndComments b"}, {header::Copyright, "C"}};
    QCOMPARE(rewriteEpsHeader("%%Title: x\n%%EndComments\n", values, defaults),
             QByteArray("%%Title: a %%EndComments b\n%%Copyright: C\n%%EndComments\n"));
  }
  void bytesThatAreNotUtf8GiveNothing() {
    QVERIFY(rewriteEpsHeader("%%Title: \xE4\n", {{header::Title, "T"}}, defaults).isEmpty());
  }
};

NORVEX_TEST(EpsHeaderRewriterTest)
#include "eps_header_rewriter_test.moc"
