// How far around its box a picture is looked at for what it draws there.
#include <QTemporaryDir>

#include "kit/test_main.h"
#include "protocol/page_contents.h"
#include "worker/engine/engine.h"
#include "worker/postscript/eps_engine.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// What is found of a picture in this box that draws this.
DrawnInk inkOf(const QByteArray& box, const QByteArray& drawing) {
  const QTemporaryDir scratch;
  EngineContext context;
  context.scratchFolder = scratch.path();
  const auto engine = openEps(
      "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: " + box + "\n%%EndComments\n" + drawing + " showpage\n",
      context);
  const auto answer = engine ? (*engine)->examine({Examination::Drawn, 0, 72}) : engine.error();
  const auto ink = answer ? decodeDrawnInk(answer->bytes) : answer.error();
  return ink ? *ink : DrawnInk();
}

}  // namespace

class EpsSurroundingsTest : public QObject {
  Q_OBJECT
 private slots:
  /// Half of the longer side, two inches at least and a thousand points at most.
  void theAreaGrowsWithTheBox_data() {
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QRectF>("area");
    QTest::newRow("small") << QByteArray("10 10 70 50") << QRectF(-144, -144, 348, 328);
    QTest::newRow("wide") << QByteArray("0 0 400 100") << QRectF(-200, -200, 800, 500);
    QTest::newRow("high") << QByteArray("0 0 100 400") << QRectF(-200, -200, 500, 800);
    QTest::newRow("huge") << QByteArray("0 0 3000 40") << QRectF(-1000, -1000, 5000, 2040);
  }
  void theAreaGrowsWithTheBox() {
    QFETCH(QByteArray, box);
    QTEST(inkOf(box, "").area, "area");
  }

  void whatIsDrawnAroundTheBoxIsFoundWhereItIs() {
    const DrawnInk found = inkOf("10 20 70 60", "0 -30 20 10 rectfill 100 70 30 20 rectfill");
    QVERIFY(found.ink.has_value());
    // In coordinates of the picture, whose origin is the box's corner.
    const double near = found.accuracy + 0.1;
    QVERIFY(near < 3);
    QVERIFY(std::abs(found.ink->left() + 10) < near && std::abs(found.ink->top() + 50) < near);
    QVERIFY(std::abs(found.ink->right() - 120) < near && std::abs(found.ink->bottom() - 70) < near);
  }

  void whatIsFurtherAwayIsNotSeen() {
    QVERIFY(inkOf("0 0 60 40", "-143 10 2 2 rectfill").ink.has_value());
    QVERIFY(!inkOf("0 0 60 40", "-148 10 2 2 rectfill").ink.has_value());
  }

  void aProgramThatStopsIsNotLookedAt() {
    const QTemporaryDir scratch;
    EngineContext context;
    context.scratchFolder = scratch.path();
    const auto engine =
        openEps("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 60 40\n%%EndComments\n0 0 9 9 rectfill nosuch\n",
                context);
    QVERIFY(engine.ok());
    for (const Examination what : {Examination::Drawn, Examination::Contents}) {
      const auto answer = (*engine)->examine({what, 0, 72});
      QVERIFY(!answer.ok());
      QCOMPARE(answer.error().kind, ErrorKind::NotParsable);
      QCOMPARE(answer.error().message, "PostScript error: undefined in nosuch");
      QCOMPARE((*engine)->examine({what, 1, 72}).error().kind, ErrorKind::Unsupported);
    }
  }
};

NORVEX_TEST(EpsSurroundingsTest)
#include "eps_surroundings_test.moc"
