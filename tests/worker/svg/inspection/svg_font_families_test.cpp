// Which fonts an SVG names for its texts.
#include "worker/svg/inspection/svg_font_families.h"

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// Of a text with one attribute.
QStringList familiesOf(const QString& attribute, const QString& value) {
  SvgFontFamilies fonts;
  fonts.element(QStringLiteral("text"));
  fonts.attribute(attribute, value);
  return fonts.families();
}

}  // namespace

class SvgFontFamiliesTest : public QObject {
  Q_OBJECT
 private slots:
  void attributesStylesAndSheetsNameThem() {
    SvgFontFamilies fonts;
    fonts.element("g");
    fonts.attribute("font-family", "One");
    fonts.attribute("id", "Nobody");
    fonts.element("text");
    fonts.attribute("style", "fill:red;FONT-family : Two ;stroke:none");
    fonts.element("tspan");
    fonts.attribute("font", "bold 12px/1.5 Three");
    fonts.styleSheet(u"/* font-family: Nobody */ .a{font-family:Four!important} .b { font: x-large Five }");
    QCOMPARE(fonts.families(), (QStringList{"One", "Two", "Three", "Four", "Five"}));
  }

  void aCommaInQuotesIsOfTheName() {
    QCOMPARE(familiesOf("font-family", "'Times, New', \"It's\",serif"),
             (QStringList{"Times, New", "It's", "serif"}));
    QCOMPARE(familiesOf("font-family", " Deja  Vu\tSans , "), QStringList{"Deja Vu Sans"});
  }

  void eachIsNamedOnceAndItsListsToo() {
    SvgFontFamilies fonts;
    fonts.element("text");
    fonts.attribute("font-family", "One, Two");
    fonts.attribute("font-family", "one, Three");
    fonts.attribute("font-family", "One, Two");
    QCOMPARE(fonts.families(), (QStringList{"One", "Two", "Three"}));
    QCOMPARE(fonts.lists(), (QList<QStringList>{{"One", "Two"}, {"one", "Three"}}));
  }

  void wordsThatMeanAnotherElementsFontAreNone() {
    QCOMPARE(familiesOf("font-family", "inherit"), QStringList());
    QCOMPARE(familiesOf("font-family", "Initial, unset, REVERT, Real"), QStringList{"Real"});
    QCOMPARE(familiesOf("font", "caption"), QStringList());
  }

  void shapesMeanNothingByIt_data() {
    QTest::addColumn<QString>("shape");
    for (const char* shape : {"path", "rect", "circle", "ellipse", "line", "polyline", "polygon", "image"})
      QTest::newRow(shape) << QString::fromLatin1(shape);
  }
  void shapesMeanNothingByIt() {
    QFETCH(QString, shape);
    SvgFontFamilies fonts;
    fonts.element("text");
    fonts.element(shape);
    fonts.attribute("font-family", "Nobody");
    fonts.attribute("style", "font-family:Nobody");
    QCOMPARE(fonts.families(), QStringList());
  }

  void withoutTextThereAreNone_data() {
    QTest::addColumn<QString>("element");
    QTest::addColumn<bool>("isText");
    for (const char* text : {"text", "tspan", "textPath", "tref"})
      QTest::newRow(text) << QString::fromLatin1(text) << true;
    for (const char* other : {"g", "flowRoot", "style"})
      QTest::newRow(other) << QString::fromLatin1(other) << false;
  }
  void withoutTextThereAreNone() {
    QFETCH(QString, element);
    QFETCH(bool, isText);
    SvgFontFamilies fonts;
    fonts.element(element);
    fonts.attribute("font-family", "One");
    QCOMPARE(!fonts.families().isEmpty(), isText);
    QCOMPARE(!fonts.lists().isEmpty(), isText);
  }

  void thereAreNoMoreThanMayBeTold() {
    QString names;
    for (int i = 0; i <= limits::maximumNames; ++i) names += "N" + QString::number(i) + ",";
    QCOMPARE(familiesOf("font-family", names).size(), qsizetype(limits::maximumNames));
  }
};

NORVEX_TEST(SvgFontFamiliesTest)
#include "svg_font_families_test.moc"
