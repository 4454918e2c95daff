// What is in a page, over the line from a process that may be hostile.
#include "protocol/page_contents.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

#include "kit/test_main.h"

using namespace norvex;

namespace {

PageContents rich() {
  PageContents page;
  page.size = QSizeF(200, 100);
  page.fonts = {{"Helvetica", "Type1", true, false, true}, {"", "Type3", true, true}};
  UsedImage image;
  image.name = "object 4";
  image.pixelsWide = 300;
  image.dpiX = 12.5;
  image.rect = QRectF(-5, 3, 10, 20);
  image.colours = ImageColours::LineArt;
  page.images = {image};
  page.colorSpaces = {"DeviceCMYK"};
  page.spotInks = {"Gold"};
  page.thinnestLine = Measured{0.1, QRectF(1, 2, 3, 0)};
  page.mostInk = Measured{340, QRectF(0, 0, 1, 1)};
  page.rgb = QRectF(1, 1, 1, 1);
  page.complete = false;
  page.claims = {"PDF/X-1a:2003"};
  page.missingFonts = {"the font a is missing"};
  page.filters = 3;
  page.sizeWithoutUnit = true;
  return page;
}

QByteArray with(const char* key, const QCborValue& value) {
  QCborMap map = QCborValue::fromCbor(encodePageContents(rich())).toMap();
  map[QLatin1String(key)] = value;
  return QCborValue(map).toCbor();
}

}  // namespace

class PageContentsTest : public QObject {
  Q_OBJECT
 private slots:
  void everythingArrivesAsItWasSent() {
    const Result<PageContents> read = decodePageContents(encodePageContents(rich()));
    QVERIFY(read.ok());
    QCOMPARE(encodePageContents(*read), encodePageContents(rich()));
    QCOMPARE(read->fonts[1].type, "Type3");
    QCOMPARE(read->images[0].rect, QRectF(-5, 3, 10, 20));
    QCOMPARE(read->thinnestLine->value, 0.1);
    QVERIFY(!read->smallestText);
    QVERIFY(!read->complete);
  }

  void theInkToo() {
    const DrawnInk drawn{QRectF(1, 2, 3, 4), std::nullopt, QRectF(0, 0, 10, 10), 0.05};
    const Result<DrawnInk> read = decodeDrawnInk(encodeDrawnInk(drawn));
    QVERIFY(read.ok());
    QCOMPARE(read->ink, drawn.ink);
    QVERIFY(!read->painted);
    QCOMPARE(read->accuracy, 0.05);
  }

  void whatCannotBeTrueIsRefused() {
    const auto refused = [](const QByteArray& cbor) {
      const Result<PageContents> read = decodePageContents(cbor);
      return !read && read.error().kind == ErrorKind::Protocol;
    };
    QVERIFY(refused({}));
    QVERIFY(refused("\xa0"));
    QVERIFY(refused(encodePageContents(rich()).chopped(1)));
    QVERIFY(refused(with("more", 1)));
    QVERIFY(refused(with("complete", 1)));
    QVERIFY(refused(with("fonts", QCborArray{1})));
    QVERIFY(refused(with("fonts", QCborArray{QCborMap{{"name", "a"}}})));
    QVERIFY(refused(with("line", QCborMap{{"value", -1.0}, {"rect", QCborArray{0., 0., 1., 1.}}})));
    QVERIFY(refused(with("rgb", QCborArray{0., 0., -1., 1.})));
    QVERIFY(refused(with("rgb", QCborArray{0., 0., 1e9, 1.})));
    QVERIFY(refused(with("filters", -1)));
    QVERIFY(refused(with("v", 1)));
    QCborArray many;
    for (int i = 0; i < 101; ++i) many.append(QStringLiteral("ink"));
    QVERIFY(refused(with("inks", many)));
    QVERIFY(!decodeDrawnInk(encodePageContents(rich())).ok());
  }
};

NORVEX_TEST(PageContentsTest)
#include "page_contents_test.moc"
