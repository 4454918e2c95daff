// The inks of a page, over the line from a process that may be hostile.
#include "protocol/page_inks.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

#include "kit/test_main.h"
#include "protocol/worker_protocol.h"

using namespace norvex;

namespace {

PageInks page() {
  PageInks page;
  page.pixels = QSize(3, 2);
  page.dpi = 144;
  page.overprint = true;
  for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"})
    page.inks << Ink{name, false, {}, 0.5, 0.25};
  page.inks << Ink{QStringLiteral("Gold ★"), true, ProcessInks{0, 51, 204, 255}, 1, 1}
            << Ink{"None yet", true, {}, 0, 0};
  for (int i = 0; i < 6 * 6; ++i) page.plates.append(char(i * 7));
  return page;
}

QByteArray with(const char* key, const QCborValue& value) {
  QCborMap map = QCborValue::fromCbor(encodePageInks(page())).toMap();
  map[QLatin1String(key)] = value;
  return QCborValue(map).toCbor();
}

/// The third ink told in another way.
QByteArray withInk(const char* key, const QCborValue& value, qsizetype ink = 4) {
  QCborArray inks =
      QCborValue::fromCbor(encodePageInks(page())).toMap().value(QLatin1String("inks")).toArray();
  QCborMap one = inks.at(ink).toMap();
  one[QLatin1String(key)] = value;
  inks[ink] = one;
  return with("inks", inks);
}

bool refused(const QByteArray& cbor) {
  const Result<PageInks> read = decodePageInks(cbor);
  return !read && read.error().kind == ErrorKind::Protocol &&
         read.error().message == u"the inks of the page were told in a way that cannot be true";
}

}  // namespace

class PageInksTest : public QObject {
  Q_OBJECT
 private slots:
  void everythingArrivesAsItWasSent() {
    const Result<PageInks> read = decodePageInks(encodePageInks(page()));
    QVERIFY(read.ok());
    QCOMPARE(encodePageInks(*read), encodePageInks(page()));
    QCOMPARE(read->pixels, QSize(3, 2));
    QCOMPARE(read->dpi, 144.0);
    QVERIFY(read->overprint);
    QCOMPARE(read->inks.size(), 6);
    QCOMPARE(read->inks[4].name, QStringLiteral("Gold ★"));
    QVERIFY(read->inks[4].isSpot && !read->inks[3].isSpot);
    QVERIFY(read->inks[4].alternate == (ProcessInks{0, 51, 204, 255}));
    QVERIFY(!read->inks[5].alternate && !read->inks[0].alternate);
    QCOMPARE(read->inks[0].coverage, 0.5);
    QCOMPARE(read->inks[0].amount, 0.25);
    QCOMPARE(read->plates, page().plates);
    QCOMPARE(int(read->plate(2)[1]), 13 * 7);
  }

  void platesOfAnotherSizeThanTheyAreToldAreRefused() {
    QVERIFY(refused(with("plates", QByteArray(35, 'x'))));
    QVERIFY(refused(with("plates", QByteArray(37, 'x'))));
    QVERIFY(refused(with("plates", QByteArray())));
    QVERIFY(refused(with("plates", QStringLiteral("123456123456123456123456123456123456"))));
    QVERIFY(refused(with("size", QCborArray{2, 2})));
    QVERIFY(refused(with("size", QCborArray{0, 2})));
    QVERIFY(refused(with("size", QCborArray{-3, -2})));
    QVERIFY(refused(with("size", QCborArray{1 << 24, 1 << 24})));
  }

  void whatCannotBeTrueIsRefused() {
    QVERIFY(refused({}));
    QVERIFY(refused("\xa0"));
    QVERIFY(refused(encodePageInks(page()).chopped(1)));
    QVERIFY(refused(with("more", 1)));
    QVERIFY(refused(with("v", workerProtocolVersion + 1)));
    QVERIFY(refused(with("dpi", 0.0)));
    QVERIFY(refused(with("overprint", 1)));
    QVERIFY(refused(withInk("coverage", 1.01)));
    QVERIFY(refused(withInk("amount", -0.1)));
    QVERIFY(refused(withInk("alternate", qint64(1) << 32)));
    QVERIFY(refused(withInk("alternate", -1)));
    QVERIFY(refused(withInk("more", 1)));
    QVERIFY(refused(withInk("name", QString(limits::maximumNameLength + 1, u'x'))));
  }

  void theProcessInksComeFirst() {
    QVERIFY(refused(with("inks", QCborArray{})));
    QVERIFY(refused(withInk("spot", true, 0)));
    QVERIFY(refused(withInk("spot", false, 4)));
  }

  void thereIsAnEndToInksAndPixels() {
    PageInks many = page();
    while (many.inks.size() <= limits::maximumInks) many.inks << many.inks.last();
    many.plates = QByteArray(many.plateBytes() * many.inks.size(), 'x');
    QVERIFY(refused(encodePageInks(many)));
    const auto sized = [](int width) {
      PageInks wide = page();
      wide.inks.resize(4);
      wide.pixels = QSize(width, 2);
      wide.plates = QByteArray(wide.plateBytes() * 4, 'x');
      return encodePageInks(wide);
    };
    QVERIFY(decodePageInks(sized(int(limits::maximumPlatePixels) / 2)).ok());
    QVERIFY(refused(sized(int(limits::maximumPlatePixels) / 2 + 1)));
  }
};

NORVEX_TEST(PageInksTest)
#include "page_inks_test.moc"
