// The header dictionaries of PDF and SVG documents.
#include "metadata/pdf_header.h"

#include <QTimeZone>

#include "kit/test_main.h"

using namespace norvex;

class PdfHeaderTest : public QObject {
  Q_OBJECT
 private slots:
  void withoutInformationThereAreExactlyTwoKeys() {
    const HeaderDictionary dictionary = pdfHeader(PictureFacts());
    QCOMPARE(dictionary.keys(), QStringList({"Encoding", "EncodingNumber"}));
    QCOMPARE(dictionary.value(header::Encoding).toString(), "");
    QCOMPARE(dictionary.value(header::EncodingNumber).toLongLong(), 9223372036854775807LL);
  }

  void whatCannotBeOpenedGivesTheEmptyDictionary() {
    QVERIFY(pdfHeader(Error{ErrorKind::NotParsable, "no PDF"}).isEmpty());
    QVERIFY(pdfHeader(Error{ErrorKind::Encrypted, "a password is needed"}).isEmpty());
  }

  void attributesLandUnderTheirKeys() {
    PictureFacts facts;
    facts.attributes = {{"Title", "t"},   {"Author", "a"},   {"Subject", "s"},
                        {"Creator", "c"}, {"Producer", "p"}, {"Keywords", "k"}};
    const HeaderDictionary dictionary = pdfHeader(facts);
    QCOMPARE(dictionary.value(header::Title).toString(), "t");
    QCOMPARE(dictionary.value(header::For).toString(), "a");
    QCOMPARE(dictionary.value(header::Description).toString(), "s");
    QCOMPARE(dictionary.value(header::Creator).toString(), "c");
    QCOMPARE(dictionary.keys(),
             QStringList({"Creator", "Description", "Encoding", "EncodingNumber", "For", "Title"}));
  }

  void aTitleWithoutAnAuthorHasNoForKey() {
    PictureFacts facts;
    facts.attributes = {{"Title", "t"}};
    const HeaderDictionary dictionary = pdfHeader(facts);
    QVERIFY(dictionary.contains(header::Title));
    QVERIFY(!dictionary.contains(header::For));
  }

  void theCreationDateIsShownInFull() {
    PictureFacts facts;
    facts.creationDate = QDateTime(QDate(2014, 2, 3), QTime(9, 7, 5), QTimeZone::systemTimeZone());
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QString date = pdfHeader(facts, english).value(header::CreationDate).toString();
    // Day, date, time to the second and the zone; between date and time it depends on the release of ICU.
    QVERIFY2(date.startsWith("Monday, February 3, 2014"), qPrintable(date));
    QVERIFY2(date.contains("9:07:05"), qPrintable(date));
    QVERIFY2(date.size() > date.indexOf("9:07:05") + 10, qPrintable(date));
  }
};

NORVEX_TEST(PdfHeaderTest)
#include "pdf_header_test.moc"
