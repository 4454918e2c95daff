// Attributes are counted before the parser sees them.
#include "worker/svg/inspection/svg_attribute_count.h"

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

QByteArray attributes(int count) {
  QByteArray all;
  for (int i = 0; i < count; ++i) all += " a" + QByteArray::number(i) + "='1'";
  return all;
}

}  // namespace

class SvgAttributeCountTest : public QObject {
  Q_OBJECT
 private slots:
  void theLargestTagCounts_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("most");
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("one after the other") << QByteArray("<a b='1'/><c d='1' e=\"2\"/><f g='1'/>") << 2;
    QTest::newRow("in values") << QByteArray("<a b='c=d=e' f=\"<x y='1' z='2'>\"/>") << 2;
    QTest::newRow("in a comment") << QByteArray("<!-- <a b='1' c='2'> ==== --><a b='1'/>") << 1;
    QTest::newRow("in character data") << QByteArray("<a><![CDATA[<a b='1' c='2'>]]></a>") << 0;
    QTest::newRow("in an instruction") << QByteArray("<?x a='1' b='2'?><a b='1'/>") << 1;
    QTest::newRow("in an entity") << QByteArray("<!DOCTYPE svg [<!ENTITY e \"<a b='1' c='2'/>\">]><svg/>")
                                  << 2;
    QTest::newRow("in a text") << QByteArray("<a>1 = 2 = 3</a>") << 0;
    QTest::newRow("cut off") << QByteArray("<a b='1' c='2") << 2;
    QTest::newRow("cut off behind the bracket") << QByteArray("<") << 0;
    QTest::newRow("a comment without an end") << QByteArray("<a b='1'/><!-- <a b='1' c='2'>") << 1;
    QTest::newRow("more than are counted") << "<a" + attributes(50) + "/>" << 9;
  }
  void theLargestTagCounts() {
    QFETCH(QByteArray, text);
    QFETCH(int, most);
    QCOMPARE(mostAttributes(text, 9), most);
  }

  void tooManyAreALimit() {
    const Result<SvgInspection> inspection =
        inspectSvg(kit::svgOf(attributes(limits::maximumXmlAttributes), ""));
    QVERIFY(!inspection);
    QCOMPARE(inspection.error().kind, ErrorKind::Limit);
    QCOMPARE(inspection.error().message,
             QStringLiteral("an element of the document has more than 65535 attributes"));
    QVERIFY(inspectSvg(kit::svgOf(attributes(1000), "")));
  }
};

NORVEX_TEST(SvgAttributeCountTest)
#include "svg_attribute_count_test.moc"
