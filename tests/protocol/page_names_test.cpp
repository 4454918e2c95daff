// The names in a page, over the line from a process that may be hostile.
#include "protocol/page_names.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

QByteArray with(const char* key, const QCborValue& value) {
  QCborMap map = QCborValue::fromCbor(encodePageNames({{"Symbol"}, {"DeviceRGB"}})).toMap();
  map[QLatin1String(key)] = value;
  return QCborValue(map).toCbor();
}

}  // namespace

class PageNamesTest : public QObject {
  Q_OBJECT
 private slots:
  void namesComeBackInTheirOrder() {
    const auto names = decodePageNames(encodePageNames({{"Times", "Symbol"}, {"Separation Gold", "Lab"}}));
    QVERIFY(names.ok());
    QCOMPARE(names->fonts, (QStringList{"Times", "Symbol"}));
    QCOMPARE(names->colorSpaces, (QStringList{"Separation Gold", "Lab"}));
  }

  void whatCannotBeTrueIsRefused() {
    QCborArray many;
    for (int i = 0; i <= limits::maximumNames; ++i) many.append(QStringLiteral("n"));
    const QCborArray longOne{QString(limits::maximumNameLength + 1, u'x')};
    for (const QByteArray& cbor :
         {with("fonts", 7), with("fonts", many), with("colorSpaces", longOne), with("v", 0),
          QByteArray("\xa0"), QByteArray(), QByteArray(limits::maximumMessageBytes + 1, 'x')})
      QCOMPARE(decodePageNames(cbor).error().kind, ErrorKind::Protocol);
    QCOMPARE(decodePageNames({}).error().message,
             "the names in the page were told in a way that cannot be true");
  }
};

NORVEX_TEST(PageNamesTest)
#include "page_names_test.moc"
