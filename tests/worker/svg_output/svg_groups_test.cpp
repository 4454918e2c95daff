// Groups, blend modes and masks of a page in the SVG that is made of it.
#include <QXmlStreamReader>

#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/svg_output_kit.h"

using namespace norvex;
using kit::MadeSvg;
using kit::onePage;
using kit::stream;

namespace {

const QByteArray kFont = "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>";

// `form` is object 6.
QByteArray page(const QByteArray& contents, const QByteArray& resources, const QByteArray& form) {
  return onePage(contents, "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R >> " + resources + " >>",
                 {kFont, form});
}

}  // namespace

class SvgGroupsTest : public QObject {
  Q_OBJECT
 private slots:
  // A form that is a group of its own, a clip around it and another within it.
  void nothingBoundsWhatIsBlendedFromOutside() {
    const QByteArray form = stream(
        "30 20 90 70 re W n /Multiply gs 0 1 1 rg 40 10 m 190 20 l 90 90 l f 1 0 1 rg 10 10 90 30 re f",
        "/Type /XObject /Subtype /Form /BBox [20 0 150 100] /Group << /S /Transparency >> /Resources << "
        "/ExtGState << /Multiply << /BM /Multiply >> >> >>");
    const MadeSvg made(page("1 1 0 rg 0 0 200 100 re f 100 10 m 180 90 l 20 90 l h W n /Form Do",
                            "/XObject << /Form 6 0 R >>", form));
    QXmlStreamReader reader(made.svg());
    QStringList around;
    int blended = 0;
    while (!reader.atEnd()) {
      reader.readNext();
      if (reader.isEndElement()) around.removeLast();
      if (!reader.isStartElement()) continue;
      const auto attributes = reader.attributes();
      if (attributes.value("style").contains(u"mix-blend-mode")) {
        ++blended;
        QVERIFY2(!around.contains(QStringLiteral("bounds")), made.svg());
      }
      around << (attributes.hasAttribute("clip-path") || attributes.hasAttribute("mask") ? "bounds" : "");
    }
    QCOMPARE(blended, 2);
    QVERIFY2(made.count("clip-path") >= 4, made.svg());
  }

  void groupsThatSvgDoesNotHaveAreTold_data() {
    QTest::addColumn<QByteArray>("group");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<bool>("told");
    const QByteArray two = "1 0 0 rg 20 20 80 60 re f 0 0 1 rg 60 40 80 50 re f";
    QTest::newRow("knocks out") << QByteArray("/K true") << two << true;
    QTest::newRow("knocks out, of one element")
        << QByteArray("/K true") << QByteArray("9 9 20 20 re f") << false;
    QTest::newRow("plain") << QByteArray() << two << false;
    QTest::newRow("faded, open, blends") << QByteArray() << "/Multiply gs " + two << true;
    QTest::newRow("faded, isolated, blends") << QByteArray("/I true") << "/Multiply gs " + two << false;
  }
  void groupsThatSvgDoesNotHaveAreTold() {
    QFETCH(QByteArray, group);
    QFETCH(QByteArray, contents);
    const QByteArray states = "/ExtGState << /Multiply << /BM /Multiply >> /Half << /ca 0.5 >> >>";
    const QByteArray form =
        stream(contents, "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /Group << /S /Transparency " +
                             group + " >> /Resources << " + states + " >>");
    const MadeSvg made(page("/Half gs /Form Do", "/XObject << /Form 6 0 R >> " + states, form));
    QVERIFY2(made.count("opacity=\".5\"") == 1, made.svg());
    QTEST(made.report().warnings.join(u' ').contains("knocks out or blends"), "told");
  }

  void aMaskIsBentByItsTransferFunctionWhereThatChangesIt() {
    const auto made = [](const QByteArray& values) {
      return MadeSvg(page("/M gs 0.8 0 0 rg 10 10 180 80 re f",
                          "/ExtGState << /M << /SMask << /S /Luminosity /G 6 0 R /TR << /FunctionType 2 "
                          "/Domain [0 1] /N 1 " +
                              values + " >> >> >> >>",
                          stream("0.25 g 20 20 100 60 re f",
                                 "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /Group << /S "
                                 "/Transparency /CS /DeviceGray >>")));
    };
    const MadeSvg turned = made("/C0 [1] /C1 [0]");
    QVERIFY2(
        turned.svg().contains("tableValues=\"1 .9375 .875 .8125 .75 .6875 .625 .5625 .5 .4375 .375 .3125 "
                              ".25 .1875 .125 .0625 0\""),
        turned.svg());
    QCOMPARE(made("/C0 [0] /C1 [1]").count("tableValues"), 0);
  }

  // Inkscape knows masks of luminosity alone: what is opaque is white there.
  void aMaskOfOpacityIsOneOfLuminosityWhereColoursCanSayIt() {
    const auto masked = [](const QByteArray& contents, const QByteArray& resources = {}) {
      return page("/M gs 0.8 0 0 rg 10 10 180 80 re f",
                  "/ExtGState << /M << /SMask << /S /Alpha /G 6 0 R >> >> >>",
                  stream(contents,
                         "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /Group << /S "
                         "/Transparency >> /Resources << /Font << /F 5 0 R >> " +
                             resources + " >>"));
    };
    const MadeSvg plain(
        masked("0 g 20 20 100 60 re f 1 0 0 RG 0 0 1 rg 9 9 40 40 re B BT /F 9 Tf (x) Tj ET"));
    QCOMPARE(plain.count("mask-type"), 0);
    QCOMPARE(plain.count("#00f") + plain.count("#f00"), 0);
    QVERIFY2(plain.svg().contains("<g fill=\"#fff\">") && plain.svg().contains("stroke=\"#fff\""),
             plain.svg());
    const MadeSvg image(masked("q 99 0 0 50 9 9 cm BI /W 4 /H 2 /IM true /BPC 1 ID \xa0\x50 EI Q"));
    QCOMPARE(image.count("mask-type:alpha"), 1);
    const MadeSvg gradient(
        masked("/G sh",
               "/Shading << /G << /ShadingType 2 /ColorSpace /DeviceGray /Coords [0 0 200 0] "
               "/Function << /FunctionType 2 /Domain [0 1] /C0 [0] /C1 [1] /N 1 >> >> >>"));
    QCOMPARE(gradient.count("mask-type:alpha"), 1);
  }
};

NORVEX_TEST(SvgGroupsTest)
#include "svg_groups_test.moc"
