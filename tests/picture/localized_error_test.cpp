// Errors in the user's language.
#include "picture/localized_error.h"

#include <QTranslator>

#include "kit/test_main.h"

using namespace norvex;

namespace {

class German final : public QTranslator {
 public:
  QString translate(const char* context, const char* key, const char*, int) const override {
    if (QByteArray(context) != "Sentences") return {};
    const QByteArray words(key);
    if (words == "the PostScript program stops with an error")
      return QStringLiteral("Das PostScript-Programm bricht ab.");
    if (words == "the printer “%1” did not take the job: %2") return QStringLiteral("%2: so sagt „%1“.");
    return words == "no reason is given" ? QStringLiteral("ohne Grund") : QString();
  }
  bool isEmpty() const override { return false; }
};

}  // namespace

class LocalizedErrorTest : public QObject {
  Q_OBJECT
 private slots:
  void withoutATableItIsAWholeEnglishSentence() {
    const ToldError told = localizedError({ErrorKind::NotParsable, "the file is empty"});
    QCOMPARE(told.sentence, QString("The file is empty."));
    QCOMPARE(localizedSentence("what nobody knows"), QString("What nobody knows."));
    QCOMPARE(localizedError({ErrorKind::NotParsable, {}}).sentence, QString());
  }

  void aSentenceIsTranslatedAndALibrarysWordsStayDetails() {
    German german;
    QCoreApplication::installTranslator(&german);
    const ToldError told =
        localizedError({ErrorKind::NotParsable, "PostScript error: undefined in Adobe_packedarray"});
    QCOMPARE(told.sentence, QString("Das PostScript-Programm bricht ab."));
    QCOMPARE(told.details, QString("undefined in Adobe_packedarray"));
    QCOMPARE(
        localizedSentence(QStringLiteral("the printer “A: %2” did not take the job: no reason is given")),
        QStringLiteral("Ohne Grund: so sagt „A: %2“."));
    QCoreApplication::removeTranslator(&german);
  }

  void theCommandLineStaysEnglish() {
    German german;
    QCoreApplication::installTranslator(&german);
    QCOMPARE(toldError({ErrorKind::NotParsable, "PostScript error: undefined in x"}).sentence,
             QString("the PostScript program stops with an error"));
    QCoreApplication::removeTranslator(&german);
  }
};

NORVEX_TEST(LocalizedErrorTest)
#include "localized_error_test.moc"
