#include "worker/svg_output/svg_sheet.h"
#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

constexpr qsizetype kRoom = 64 << 20;

std::shared_ptr<const SvgClip> clip(const QByteArray& path, const QRectF& bounds, bool isRectangle = false) {
  return std::make_shared<const SvgClip>(SvgClip{path, false, bounds, isRectangle, {}});
}

SvgSheet sheet() {
  return SvgSheet({100, 100}, 2, kRoom);
}

}  // namespace

class SvgSheetTest : public QObject {
  Q_OBJECT
 private slots:
  void theSameDefinitionTwiceIsOne() {
    SvgSheet page = sheet();
    const QByteArray name = page.define("<path d=\"M0 0h1\"/>");
    QCOMPARE(page.define("<path d=\"M0 0h1\"/>"), name);
    QVERIFY(page.define("<path d=\"M0 0h2\"/>") != name);
    QCOMPARE(page.document({}).count("<path id="), 2);
  }

  void aClipAroundOneElementIsItsOwn() {
    SvgSheet page = sheet();
    const SvgClips clips{clip("M0 0h9l9 9z", QRectF(0, 0, 18, 9))};
    page.addPath("M0 0h5v5z", " fill=\"#f00\"", {}, false, QRectF(0, 0, 5, 5), {clips, {}, {}});
    const QByteArray svg = page.document({});
    QVERIFY2(svg.contains("<path clip-path=\"url(#a)\" fill=\"#f00\""), svg);
    QCOMPARE(svg.count("<g"), 0);
  }

  void elementsUnderOneClipShareAGroup() {
    SvgSheet page = sheet();
    const SvgClips clips{clip("M0 0h9l9 9z", QRectF(0, 0, 18, 9))};
    for (const char* colour : {" fill=\"#f00\"", " fill=\"#0f0\"", " fill=\"#00f\""})
      page.addPath("M0 0h5v5z", colour, {}, false, QRectF(0, 0, 5, 5), {clips, {}, {}});
    const QByteArray svg = page.document({});
    QCOMPARE(svg.count("<g clip-path"), 1);
    QCOMPARE(svg.count("</g>"), 1);
    QCOMPARE(svg.count("<path fill"), 3);
  }

  void aGroupThatIsNoneLeavesItsElements() {
    SvgSheet page = sheet();
    page.beginLayer(0);
    page.addPath("M0 0h5v5z", " fill=\"#f00\"", {}, false, QRectF(0, 0, 5, 5), {});
    page.addLayer(page.endLayer(), {}, true, {});
    QCOMPARE(page.document({}).count("<g"), 0);
  }

  void anIsolatedGroupThatBlendsStaysIsolated() {
    SvgSheet page = sheet();
    page.beginLayer(0);
    page.addPath("M0 0h5v5z", " fill=\"#f00\"", {}, false, QRectF(0, 0, 5, 5), {{}, "multiply", {}});
    page.addLayer(page.endLayer(), {}, true, {});
    QVERIFY(page.document({}).contains("isolation:isolate"));
  }

  // Readers isolate what a clip or a mask bounds: inside of it there is nothing to blend with.
  void whatIsBlendedHasItsClipsInside() {
    SvgSheet page = sheet();
    const SvgClips clips{clip("M0 0h9l9 9z", QRectF(0, 0, 18, 9)), clip("M0 0h9l9 8z", QRectF(0, 0, 18, 8))};
    for (const char* blend : {"", "multiply", "screen"})
      page.addPath("M0 0h5v5z", " fill=\"#f00\"", {}, false, QRectF(0, 0, 5, 5), {clips, blend, {}});
    const QByteArray svg = page.document({});
    for (const QByteArray blend : {"multiply", "screen"})
      QVERIFY2(svg.contains("\n<g style=\"mix-blend-mode:" + blend +
                            "\"><g clip-path=\"url(#a)\"><path clip-path=\"url(#b)\" fill=\"#f00\" "
                            "d=\"M0 0h5v5z\"/></g></g>\n"),
               svg);
    QVERIFY2(svg.indexOf("mix-blend-mode") > svg.indexOf("</g>"), "no clip is open around it");
  }

  // Each of thousands of elements would go through all of a path that may be as long as the document.
  void aClipIsDefinedOnceHoweverManyElementsAreBlendedInIt() {
    SvgSheet page = sheet();
    const SvgClips clips{clip("M0 0h9l9 9z", QRectF(0, 0, 18, 9))};
    const auto blend = [&](const QByteArray& colour) {
      page.addPath("M0 0h5v5z", " fill=\"" + colour + '"', {}, false, QRectF(0, 0, 5, 5),
                   {clips, "multiply", {}});
    };
    blend("#f00");
    blend("#0f0");
    QCOMPARE(clips[0]->attribute, " clip-path=\"url(#a)\"");
    clips[0]->attribute = " clip-path=\"url(#kept)\"";
    blend("#00f");
    const QByteArray svg = page.document({});
    QVERIFY2(svg.contains("<path clip-path=\"url(#kept)\""), svg);
  }

  void whatIsBlendedThroughAMaskHasItInside() {
    SvgSheet page = sheet();
    page.add("<use xlink:href=\"#x\"/>", false, QRectF(0, 0, 5, 5), {{}, "multiply", "m"});
    const QByteArray svg = page.document({});
    QVERIFY2(svg.contains("<g style=\"mix-blend-mode:multiply\"><g mask=\"url(#m)\"><use "), svg);
  }

  void aGroupThatIsNoneBlendsWithThePage() {
    SvgSheet page = sheet();
    const SvgClips clips{clip("M0 0h9l9 9z", QRectF(0, 0, 18, 9))};
    page.beginGroup();
    page.addPath("M0 0h5v5z", " fill=\"#f00\"", {}, false, QRectF(0, 0, 5, 5), {clips, "multiply", {}});
    page.addPath("M0 0h5v6z", " fill=\"#0f0\"", {}, false, QRectF(0, 0, 5, 5), {clips, {}, {}});
    page.addLayer(page.endLayer(), {}, false, {});
    const QByteArray svg = page.document({});
    QVERIFY2(svg.contains("\n<g style=\"mix-blend-mode:multiply\"><path clip-path=\"url(#a)\""), svg);
    QVERIFY2(svg.contains("\n<path clip-path=\"url(#a)\" fill=\"#0f0\""), svg);
  }

  void aClipWithinItselfIsWrittenOnce() {
    SvgSheet page = sheet();
    const auto same = [] { return clip("M0 0h9l9 9z", QRectF(0, 0, 18, 9)); };
    for (const char* colour : {" fill=\"#f00\"", " fill=\"#0f0\""})
      page.addPath("M0 0h5v5z", colour, {}, false, QRectF(0, 0, 5, 5), {{same(), same()}, {}, {}});
    const QByteArray svg = page.document({});
    QCOMPARE(svg.count("clip-path"), 1);
    QCOMPARE(svg.count("<g "), 1);
  }

  void referencesThatMultiplyAreALimit() {
    SvgSheet page = sheet();
    QByteArray name = page.define("<path d=\"M0 0h1\"/>");
    for (int level = 0; level < 3; ++level) {
      QByteArray group = "<g>";
      for (int i = 0; i < 200; ++i) group += "<use xlink:href=\"#" + name + "\"/>";
      name = page.define(group + "</g>");
    }
    QVERIFY(!page.isFull());
    page.add("<use xlink:href=\"#" + name + "\"/>", false, QRectF(0, 0, 9, 9), {});
    QVERIFY(page.isFull());
  }

  void anAttributeThatReadersRefuseIsALimit() {
    SvgSheet page = sheet();
    page.define("<image xlink:href=\"" + QByteArray(limits::maximumSvgAttribute - 9, 'A') + "\"/>");
    QVERIFY(!page.isFull());
    page.define("<image xlink:href=\"" + QByteArray(limits::maximumSvgAttribute + 999, 'B') + "\"/>");
    QVERIFY(page.isFull());
  }
};

NORVEX_TEST(SvgSheetTest)
#include "svg_sheet_test.moc"
