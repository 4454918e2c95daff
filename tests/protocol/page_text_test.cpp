// The text of a page, told by a process that may be hostile.
#include "protocol/page_text.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

PageText told() {
  PageText page;
  page.text = QStringLiteral("A b\n");
  page.places = {QRectF(1, 2, 3, 4), QRectF(), QRectF(5, 2, 3, 4), QRectF()};
  page.links = {{QRectF(1, 2, 30, 4), QStringLiteral("https://example.org/"), -1}};
  page.complete = false;
  return page;
}

QByteArray changed(const char* key, const QCborValue& value) {
  QCborMap map = QCborValue::fromCbor(encodePageText(told())).toMap();
  map.insert(QLatin1String(key), value);
  return QCborValue(map).toCbor();
}

}  // namespace

class PageTextTest : public QObject {
  Q_OBJECT
 private slots:
  void whatIsToldArrives() {
    const auto page = decodePageText(encodePageText(told()));
    QVERIFY(page.ok());
    QCOMPARE(page->text, told().text);
    QCOMPARE(page->places, told().places);
    QCOMPARE(page->links.size(), 1);
    QCOMPARE(page->links[0].address, QString("https://example.org/"));
    QCOMPARE(page->links[0].rect, QRectF(1, 2, 30, 4));
    QCOMPARE(page->complete, false);
  }

  void aLetterWithoutAPlaceIsNotBelieved() {
    QVERIFY(decodePageText(changed("text", QStringLiteral("A b\n"))).ok());
    QVERIFY(!decodePageText(changed("text", QStringLiteral("A b"))).ok());
    QVERIFY(!decodePageText(changed("text", QStringLiteral("A b\n\n"))).ok());
  }

  void whatCannotBeTrueIsRefused_data() {
    QTest::addColumn<QByteArray>("cbor");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut") << encodePageText(told()).chopped(1);
    QTest::newRow("another version") << changed("v", 1);
    QTest::newRow("one field more") << changed("more", 1);
    QTest::newRow("places that are numbers") << changed("places", 3);
    QTest::newRow("half a place") << changed("places", QCborArray{1, 2});
    QTest::newRow("a place beyond the world") << changed("places", QCborArray{1e9, 0, 1, 1});
  }
  void whatCannotBeTrueIsRefused() {
    QFETCH(QByteArray, cbor);
    const auto page = decodePageText(cbor);
    QVERIFY(!page.ok());
    QCOMPARE(page.error().kind, ErrorKind::Protocol);
  }

  void aBookIsCutAndSaysSo() {
    PageText book;
    book.text = QString(limits::maximumLetters + 5, u'x');
    book.places.resize(book.text.size());
    const auto page = decodePageText(encodePageText(book));
    QVERIFY(page.ok());
    QCOMPARE(page->text.size(), limits::maximumLetters);
    QCOMPARE(page->places.size(), limits::maximumLetters);
    QVERIFY(!page->complete);
  }
};

NORVEX_TEST(PageTextTest)
#include "page_text_test.moc"
