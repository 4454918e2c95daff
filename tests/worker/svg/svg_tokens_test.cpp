// The tags of a document as they are written.
#include "worker/svg/svg_tokens.h"

#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::engine;

class SvgTokensTest : public QObject {
  Q_OBJECT
 private slots:
  void bothTagsOfAnElementHaveItsName() {
    const QByteArray svg = "<s:g\n id='a'><rect/><x>y</x ></s:g>";
    QByteArrayList names;
    for (const SvgToken& token : tokenizeSvg(svg))
      if (token.kind != SvgTokenKind::Text) names << tagName(svg, token).toByteArray();
    QCOMPARE(names, QByteArrayList({"s:g", "rect", "x", "x", "s:g"}));
  }

  void attributesHaveTheirQuotesAndBlanksOutside() {
    const QByteArray svg = "<a b = 'c>\"d' e=\"\" f=g h='i'/>";
    QByteArrayList told;
    for (const TagAttribute& each : tagAttributes(svg, tokenizeSvg(svg).first()))
      told << each.name.toByteArray() << each.value.toByteArray() << each.all.toByteArray();
    QCOMPARE(told, QByteArrayList({"b", "c>\"d", "b = 'c>\"d'", "e", "", "e=\"\""}));  // up to what is none
  }
};

NORVEX_TEST(SvgTokensTest)
#include "svg_tokens_test.moc"
