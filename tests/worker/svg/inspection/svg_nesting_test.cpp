#include "worker/svg/inspection/svg_nesting.h"

#include "kit/test_main.h"

using namespace norvex::engine;

namespace {

/// Elements within elements, all without a name but for the first.
void put(SvgNesting& nesting, const QString& id, int depth, const QString& reference = {}) {
  for (int i = 0; i < depth; ++i) nesting.open(i == 0 ? id : QString());
  if (!reference.isEmpty()) nesting.refer(reference);
  for (int i = 0; i < depth; ++i) nesting.close();
}

}  // namespace

class SvgNestingTest : public QObject {
  Q_OBJECT
 private slots:
  void withoutReferencesItIsTheDepthOfTheElements() {
    SvgNesting nesting;
    put(nesting, {}, 3);
    put(nesting, QStringLiteral("a"), 4);
    QCOMPARE(nesting.deepest(), 4);
  }

  void whatIsReferredToStandsWithinWhatRefersToIt() {
    SvgNesting nesting;
    put(nesting, QStringLiteral("a"), 4);
    put(nesting, QStringLiteral("b"), 2, QStringLiteral("a"));
    QCOMPARE(nesting.deepest(), 2 + 4);
    put(nesting, {}, 3, QStringLiteral("b"));
    QCOMPARE(nesting.deepest(), 3 + 2 + 4);
  }

  void aReferenceToNothingLeadsNowhere() {
    SvgNesting nesting;
    put(nesting, QStringLiteral("a"), 2, QStringLiteral("none"));
    QCOMPARE(nesting.deepest(), 2);
  }

  void theFirstOfTwoEqualNamesCounts() {
    SvgNesting nesting;
    put(nesting, QStringLiteral("a"), 2);
    put(nesting, QStringLiteral("a"), 7);
    QCOMPARE(nesting.deepest(), 7);
    put(nesting, {}, 6, QStringLiteral("a"));
    QCOMPARE(nesting.deepest(), 6 + 2);
  }

  // A renderer follows each reference of it once.
  void aCircleEnds() {
    SvgNesting nesting;
    put(nesting, QStringLiteral("a"), 2, QStringLiteral("b"));
    put(nesting, QStringLiteral("b"), 3, QStringLiteral("a"));
    QVERIFY(nesting.deepest() >= 2 + 3 + 2);
    QVERIFY(nesting.deepest() < 100);
  }
};

NORVEX_TEST(SvgNestingTest)
#include "svg_nesting_test.moc"
