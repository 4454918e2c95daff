// Pages of several PDFs as one message: both directions, and what is refused.
#include "protocol/page_excerpts.h"

#include <QCborArray>
#include <QCborValue>

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

QByteArray told(const QCborArray& excerpts) {
  return QCborValue(QCborKnownTags::Signature, excerpts).toCbor();
}

/// Braces around the array alone would be that array, and not one that holds it.
QByteArray toldAlone(const QCborArray& excerpt) {
  QCborArray all;
  all << excerpt;
  return told(all);
}

}  // namespace

class PageExcerptsTest : public QObject {
  Q_OBJECT
 private slots:
  void whatIsToldIsRead() {
    const QByteArray bytes = encodePageExcerpts({{"%PDF-1.4 a", 0, -1}, {QByteArray("\0b", 2), 2, 5}});
    QVERIFY(holdPageExcerpts(bytes));
    const auto read = decodePageExcerpts(bytes);
    QVERIFY(read.ok());
    QCOMPARE(read->size(), qsizetype(2));
    QCOMPARE(read->at(0).pdf, QByteArray("%PDF-1.4 a"));
    QCOMPARE(read->at(0).last, -1);
    QCOMPARE(read->at(1).pdf, QByteArray("\0b", 2));
    QCOMPARE(read->at(1).first, 2);
    QCOMPARE(read->at(1).last, 5);
  }

  void aPdfIsNoExcerpt() {
    QVERIFY(!holdPageExcerpts("%PDF-1.7\n"));
    QVERIFY(!holdPageExcerpts(""));
  }

  void whatCannotBeTrueIsRefused_data() {
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray pdf("%PDF-1.4");
    QTest::newRow("none") << told({});
    QTest::newRow("no bytes") << toldAlone(QCborArray{QStringLiteral("text"), 0, 0});
    QTest::newRow("too few") << toldAlone(QCborArray{pdf, 0});
    QTest::newRow("a page before the first") << toldAlone(QCborArray{pdf, -1, 0});
    QTest::newRow("an end before every page") << toldAlone(QCborArray{pdf, 0, -2});
    QTest::newRow("a page beyond all") << toldAlone(QCborArray{pdf, 0, limits::maximumPageNumber + 1});
    QTest::newRow("cut off") << encodePageExcerpts({{pdf, 0, 0}}).chopped(3);
    QCborArray many;
    for (int i = 0; i <= limits::maximumSheets; ++i) many << QCborArray{pdf, 0, 0};
    QTest::newRow("more than a job may have") << told(many);
  }
  void whatCannotBeTrueIsRefused() {
    QVERIFY(decodePageExcerpts(toldAlone({QByteArray("%PDF-1.4"), 0, -1})).ok());
    QFETCH(QByteArray, bytes);
    const auto read = decodePageExcerpts(bytes);
    QVERIFY(!read.ok());
    QCOMPARE(read.error().kind, ErrorKind::Protocol);
  }
};

NORVEX_TEST(PageExcerptsTest)
#include "page_excerpts_test.moc"
