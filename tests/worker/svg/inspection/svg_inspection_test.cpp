// The look at a document before it is drawn: limits, entities, what refers to the outside.
#include "worker/svg/inspection/svg_inspection.h"

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;
using norvex::kit::svgOf;

namespace {

QString limitMessage(const QByteArray& svg) {
  const Result<SvgInspection> inspection = inspectSvg(svg);
  if (inspection.ok() || inspection.error().kind != ErrorKind::Limit) return {};
  return inspection.error().message;
}

QByteArray nested(int depth, const QByteArray& inside = {}) {
  return QByteArray("<g>").repeated(depth) + inside + QByteArray("</g>").repeated(depth);
}

/// Ten entities, each of which is `times` of the one before it.
QByteArray laughs(int times, const QByteArray& use, const QByteArray& first = "hahahahaha") {
  QByteArray subset = "<!ENTITY l0 '" + first + "'>";
  for (int i = 1; i < 10; ++i)
    subset += "<!ENTITY l" + QByteArray::number(i) + " '" +
              ("&l" + QByteArray::number(i - 1) + ";").repeated(times) + "'>";
  return "<!DOCTYPE svg [" + subset + "]>" + use;
}

}  // namespace

class SvgInspectionTest : public QObject {
  Q_OBJECT
 private slots:
  void filtersAndMasksAreCountedWhereTheyAreUsed() {
    const auto found = [](const QByteArray& attributes) {
      const Result<SvgInspection> inspection = inspectSvg(svgOf("", "<g " + attributes + "/>"));
      return inspection ? std::pair(int(inspection->filters), int(inspection->masks)) : std::pair(-1, -1);
    };
    QCOMPARE(found("filter='url(#a)'"), std::pair(1, 0));
    QCOMPARE(found("style='fill:red;filter:url(#a);mask:url(#b)'"), std::pair(1, 1));
    QCOMPARE(found("filter='none' mask=' none '"), std::pair(0, 0));
    QCOMPARE(found("style='filter:none'"), std::pair(0, 0));
    QCOMPARE(found("class='filter:url(#a)'"), std::pair(0, 0));
  }

  void depthIsLimited() {
    QVERIFY(inspectSvg(svgOf("", nested(limits::maximumXmlDepth - 1))));
    QCOMPARE(limitMessage(svgOf("", nested(limits::maximumXmlDepth))),
             QStringLiteral("the elements of the document nest more than 512 deep"));
  }

  void theNumberOfElementsIsLimited() {
    QVERIFY(inspectSvg(svgOf("", QByteArray("<g/>").repeated(limits::maximumXmlElements - 1))));
    QCOMPARE(limitMessage(svgOf("", QByteArray("<g/>").repeated(limits::maximumXmlElements))),
             QStringLiteral("the document has more than 1000000 elements"));
  }

  void expansionIsLimited_data() {
    QTest::addColumn<QByteArray>("use");
    QTest::newRow("in content") << svgOf("", "<text>&l9;</text>");
    QTest::newRow("in an attribute") << svgOf("id='&l9;'", "");
    QTest::newRow("in a namespace") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' xmlns:x='&l9;'/>");
  }
  void expansionIsLimited() {
    QFETCH(QByteArray, use);
    QCOMPARE(limitMessage(laughs(10, use)),
             QStringLiteral("the document uses entities more than 200000 times"));
    QCOMPARE(limitMessage(laughs(10, use, QByteArray(4000, 'x'))),
             QStringLiteral("the entities of the document expand to more than 64 MiB"));
    QVERIFY(inspectSvg(laughs(2, use)));
  }

  void elementsFromEntitiesCount() {
    QByteArray subset = "<!ENTITY e0 '<g/><g/><g/><g/><g/><g/><g/><g/><g/><g/>'>";
    for (int i = 1; i < 6; ++i)
      subset += "<!ENTITY e" + QByteArray::number(i) + " '" +
                ("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
    QCOMPARE(limitMessage("<!DOCTYPE svg [" + subset + "]>" + svgOf("", "&e5;")),
             QStringLiteral("the document has more than 1000000 elements"));
  }

  void entitiesThatNeedOneAnotherAreRefused() {
    const Result<SvgInspection> inspection =
        inspectSvg("<!DOCTYPE svg [<!ENTITY a '&b;'><!ENTITY b '&a;'>]>" + svgOf("", "<text>&a;</text>"));
    QVERIFY(!inspection);
    QVERIFY(!inspection.error().message.isEmpty());
  }

  void referencesThatNestTooDeepAreRefused() {
    // Each group is 100 deep and uses the one before it at its bottom: 12 of them are 1200 levels.
    const auto chain = [](int groups) {
      QByteArray all;
      for (int i = 0; i < groups; ++i)
        all += "<g id='g" + QByteArray::number(i) + "'>" +
               nested(99, "<use xlink:href='#g" + QByteArray::number(i - 1) + "'/>") + "</g>";
      return svgOf("", "<defs>" + all + "</defs><use href='#g" + QByteArray::number(groups - 1) + "'/>");
    };
    QVERIFY(inspectSvg(chain(9)));
    QCOMPARE(limitMessage(chain(12)),
             QStringLiteral("the references of the document nest more than 1000 deep"));
  }

  void masksAndPatternsAreReferencesToo() {
    QByteArray all;
    for (int i = 0; i < 12; ++i)
      all += "<mask id='m" + QByteArray::number(i) + "'>" +
             nested(99, "<rect style='fill:red;mask : url( \"#m" + QByteArray::number(i + 1) + "\" )'/>") +
             "</mask>";
    QCOMPARE(limitMessage(svgOf("", all + "<rect mask='url(#m0)'/>")),
             QStringLiteral("the references of the document nest more than 1000 deep"));
  }

  void manyUsesOfOneShapeAreFine() {
    QVERIFY(inspectSvg(
        svgOf("", "<g id='a'><rect/></g>" + QByteArray("<g><use href='#a'/></g>").repeated(20'000))));
  }

  void aSmallCycleIsLeftToTheRenderer() {
    QVERIFY(inspectSvg(svgOf("", "<g id='a'><use href='#a'/></g>")));
    QVERIFY(inspectSvg(svgOf("", "<pattern id='p'><rect fill='url(#p)'/></pattern>")));
  }

  void externalEntitiesAreNeverLoaded() {
    const Result<SvgInspection> inspection = inspectSvg(
        "<!DOCTYPE svg [<!ENTITY x SYSTEM 'file:///etc/hostname'>]>" + svgOf("", "<title>a&x;b</title>"));
    QVERIFY(inspection);
    QCOMPARE(inspection->title, QStringLiteral("ab"));
    QCOMPARE(inspection->outsideReferences, 1);
  }

  void anExternalDocumentTypeIsNeverLoaded() {
    QVERIFY(inspectSvg("<!DOCTYPE svg SYSTEM 'file:///nowhere/at/all.dtd'>" + svgOf("", "&unknown;")));
    QVERIFY(!inspectSvg(svgOf("", "&unknown;")));
  }

  void parameterEntitiesInsideWork() {
    const Result<SvgInspection> inspection = inspectSvg(
        "<!DOCTYPE svg [<!ENTITY % all '<!ENTITY t \"word\">'> %all;]>" + svgOf("", "<title>&t;</title>"));
    QVERIFY(inspection);
    QCOMPARE(inspection->title, QStringLiteral("word"));
  }

  void referencesToTheOutsideAreCounted() {
    const Result<SvgInspection> inspection =
        inspectSvg(svgOf("",
                         "<image href='a.png'/><image xlink:href='file:///b.png'/><use href='#c'/>"
                         "<image href='data:image/png;base64,'/><a href='http://example.org'/>"));
    QCOMPARE(inspection->outsideReferences, 2);
    QVERIFY(!inspection->hasNestedDocument);
    QVERIFY(inspectSvg(svgOf("", "<image href='data:image/svg+xml,'/>"))->hasNestedDocument);
  }

  void linksOfOtherNamespacesLoadNothing() {
    const Result<SvgInspection> inspection = inspectSvg(
        svgOf("",
              "<metadata><p xmlns='http://www.w3.org/1999/xhtml' href='http://example.org/a.html'/>"
              "</metadata>"));
    QVERIFY(inspection);
    QCOMPARE(inspection->outsideReferences, 0);
    const Result<SvgInspection> included =
        inspectSvg(svgOf("", "<i:include xmlns:i='http://www.w3.org/2001/XInclude' href='other.svg'/>"));
    QVERIFY(included);
    QCOMPARE(included->outsideReferences, 1);
  }

  void whatNeedsALargeParserIsTold() {
    QVERIFY(!inspectSvg(svgOf("", "<text>a</text>"))->needsHugeParser);
    QVERIFY(inspectSvg(svgOf("", "<text>" + QByteArray(11 << 20, 'a') + "</text>"))->needsHugeParser);
    QVERIFY(inspectSvg(svgOf("id='" + QByteArray(11 << 20, 'a') + "'", ""))->needsHugeParser);
    QVERIFY(!inspectSvg(svgOf("", nested(239)))->needsHugeParser);  // the root is a level
    QVERIFY(inspectSvg(svgOf("", nested(240)))->needsHugeParser);
  }

  void layersAreSeen() {
    for (const char* contents :
         {"<g style='fill-opacity:0.5' stroke-opacity='0.5'/>", "<clipPath clipPathUnits='userSpaceOnUse'/>"})
      QVERIFY2(!inspectSvg(svgOf("", contents))->hasLayers, contents);
    for (const char* contents :
         {"<g opacity='0.5'/>", "<g style='fill:red;opacity : 0.5'/>", "<g filter='url(#f)'/>",
          "<g style='mix-blend-mode:screen'/>", "<g style='/* faint */opacity/**/:0.5'/>",
          "<clipPath clipPathUnits='objectBoundingBox'/>", "<style>g{}</style>"})
      QVERIFY2(inspectSvg(svgOf("", contents))->hasLayers, contents);
  }

  void blanksAroundWhatItSaysOfItselfAreNoneOfIt() {
    const auto told = inspectSvg(svgOf("", "<title>\n  A\n title </title><desc> two\n lines\n</desc>"));
    QVERIFY(told);
    QCOMPARE(told->title, QString("A title"));
    QCOMPARE(told->description, QString("two\n lines"));
    const auto nothing = inspectSvg(svgOf("", ""));
    QVERIFY(nothing->title.isNull() && nothing->description.isNull());
  }

  void brokenXmlTellsItsLine() {
    const Result<SvgInspection> inspection =
        inspectSvg("<svg xmlns='http://www.w3.org/2000/svg'>\n<g>\n</svg>");
    QVERIFY(!inspection);
    QCOMPARE(inspection.error().kind, ErrorKind::NotParsable);
    QVERIFY(inspection.error().message.startsWith("the document is not well-formed XML (line 3: "));
  }
};

NORVEX_TEST(SvgInspectionTest)
#include "svg_inspection_test.moc"
