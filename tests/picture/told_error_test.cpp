// What is ours in a message and what a library said.
#include "picture/told_error.h"

#include "kit/test_main.h"

using namespace norvex;

class ToldErrorTest : public QObject {
  Q_OBJECT
 private slots:
  void aLibrarysWordsAreDetails_data() {
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("details");
    QTest::newRow("interpreter") << "PostScript error: undefined in Adobe_packedarray"
                                 << "the PostScript program stops with an error"
                                 << "undefined in Adobe_packedarray";
    QTest::newRow("interpreter, of files")
        << "PostScript error: invalidfileaccess in setpagedevice"
        << "the PostScript program tries to use a file, which no picture may"
        << "invalidfileaccess in setpagedevice";
    QTest::newRow("PDF") << "the document is not a readable PDF (unable to find trailer dictionary (twice))"
                         << "the document is damaged and cannot be read as PDF"
                         << "unable to find trailer dictionary (twice)";
    QTest::newRow("XML") << "the document is not well-formed XML (line 3: Extra content)"
                         << "the document is not well-formed XML"
                         << "line 3: Extra content";
    QTest::newRow("SVG") << "the picture cannot be drawn: InvalidMatrix"
                         << "the picture holds something that cannot be drawn"
                         << "InvalidMatrix";
    QTest::newRow("SVG that cannot be parsed") << "the picture cannot be read: XML parse error"
                                               << "the picture cannot be read"
                                               << "XML parse error";
    QTest::newRow("no process") << "no process for the picture could be started (out of memory)"
                                << "no process for the picture could be started"
                                << "out of memory";
    QTest::newRow("a fault") << "the picture process ended without an answer (signal 11)"
                             << "the picture process ended without an answer"
                             << "signal 11";
  }
  void aLibrarysWordsAreDetails() {
    QFETCH(QString, message);
    QFETCH(QString, sentence);
    QFETCH(QString, details);
    const ToldError told = toldError({ErrorKind::NotParsable, message});
    QCOMPARE(told.sentence, sentence);
    QCOMPARE(told.details, details);
  }
  void ourOwnSentencesStay() {
    for (const char* message :
         {"the file is empty", "PostScript error: ", "the document is not a readable PDF (",
          "the document is not well-formed XML", ""}) {
      const ToldError told = toldError({ErrorKind::NotParsable, message});
      QCOMPARE(told.sentence, message);
      QCOMPARE(told.details, QString());
    }
  }
};

NORVEX_TEST(ToldErrorTest)
#include "told_error_test.moc"
