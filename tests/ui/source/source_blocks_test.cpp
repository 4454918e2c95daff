// Source texts in pieces, their colours, and finding in them.
#include "ui/source/source_blocks.h"
#include "kit/test_main.h"
#include "ui/source/source_colouring.h"
#include "ui/source/source_matches.h"

using namespace norvex;

namespace {

/// "Comment:% a" and so on, in order.
QStringList coloured(const QString& text, qsizetype start = 0, qsizetype end = -1) {
  static const char* const kNames[] = {"Comment", "Structure", "Tag", "Value"};
  QStringList all;
  for (const SourceSpan& span : sourceSpans(text, sourceLanguage(text), start, end < 0 ? text.size() : end))
    all << QString::fromLatin1(kNames[int(span.token)]) + ':' + text.mid(span.start, span.length);
  return all;
}

}  // namespace

class SourceBlocksTest : public QObject {
  Q_OBJECT
 private slots:
  void noTextIsOneEmptyBlock() {
    const SourceBlocks blocks;
    QCOMPARE(blocks.count(), 1);
    QCOMPARE(blocks.lineNumber(0), 1);
    QCOMPARE(blocks.block(0).size(), 0);
  }

  void everyKindOfLineEndEndsOneLine() {
    const SourceBlocks blocks(QStringLiteral("a\nb\r\nc\rd\u2029\n"));
    QCOMPARE(blocks.lineCount(), 6);
    QCOMPARE(blocks.shown(0, blocks.count()), QStringLiteral("a\nb\nc\nd\n\n"));
    QCOMPARE(blocks.shown(1, 3), QStringLiteral("b\nc"));
  }

  void aLongLineIsSeveralBlocksOfOneNumber() {
    constexpr int whole = SourceBlocks::longestBlock;
    const QString text = QString(2 * whole + 100, u'x') + u'\n' + u'y';
    const SourceBlocks blocks(text);
    QCOMPARE(blocks.count(), 4);
    QCOMPARE(blocks.lineCount(), 2);
    QCOMPARE(blocks.lineNumber(0), 1);
    QCOMPARE(blocks.lineNumber(1), 0);
    QCOMPARE(blocks.lineNumber(2), 0);
    QCOMPARE(blocks.lineNumber(3), 2);
    QCOMPARE(blocks.block(2).size(), 100);
    QCOMPARE(blocks.copied(whole - 10, whole + 10), QString(20, u'x'));
  }

  void aPairOfSurrogatesIsNotTornApart() {
    const QString pair = QString::fromUcs4(U"\U0001F600");
    const SourceBlocks blocks(QString(SourceBlocks::longestBlock - 1, u'x') + pair);
    QCOMPARE(blocks.count(), 2);
    QCOMPARE(blocks.block(1).toString(), pair);
  }

  void positionsGoThereAndBack() {
    const QString text = QStringLiteral("ab\r\n") + QString(SourceBlocks::longestBlock + 500, u'x') +
                         QStringLiteral("\r\rend");
    const SourceBlocks blocks(text);
    for (qsizetype at = 0; at <= text.size(); ++at) {
      const bool insideLineEnd =
          at > 0 && at < text.size() && text.at(at - 1) == u'\r' && text.at(at) == u'\n';
      const qsizetype back = blocks.textPosition(blocks.shownPosition(at));
      QCOMPARE(back, insideLineEnd ? at - 1 : at);
    }
    // "ab", a separator, a whole block of the x, a separator, one more x.
    QCOMPARE(blocks.shownPosition(4 + SourceBlocks::longestBlock + 1),
             qsizetype(3 + SourceBlocks::longestBlock + 1 + 1));
  }

  void whatIsCopiedIsTheTextWithPlainLineEnds() {
    const SourceBlocks blocks(QStringLiteral("a\r\nb\rc"));
    QCOMPARE(blocks.copied(0, 6), QStringLiteral("a\nb\nc"));
  }

  void theLanguageIsToldByTheBeginning() {
    QCOMPARE(sourceLanguage(QStringLiteral("%!PS")), SourceLanguage::PostScript);
    QCOMPARE(sourceLanguage(QStringLiteral("\ufeff \n<svg/>")), SourceLanguage::Markup);
    QCOMPARE(sourceLanguage(QStringLiteral("Once upon")), SourceLanguage::Plain);
    QCOMPARE(sourceLanguage(QString()), SourceLanguage::Plain);
  }

  void aStructureCommentBeginsItsLine() {
    QCOMPARE(coloured(QStringLiteral("%!PS\n0 %%Title: a\n%%Page: 1 1\n")),
             QStringList({"Structure:%!PS", "Comment:%%Title: a", "Structure:%%Page: 1 1"}));
  }

  void ofACharacterSectionTheEndsAreTags() {
    QCOMPARE(coloured(QStringLiteral("<svg><![CDATA[a < b]]></svg>")),
             QStringList({"Tag:<svg", "Tag:>", "Tag:<![CDATA[", "Tag:]]>", "Tag:</svg", "Tag:>"}));
  }

  void commentsOfPostScript() {
    QCOMPARE(coloured(QStringLiteral("%!PS\n%%Title: a\n0 1 add % sum\n(10 % of) show %x\n(a\\)% b) pop\n")),
             QStringList({"Structure:%!PS", "Structure:%%Title: a", "Comment:% sum", "Comment:%x"}));
  }

  void aPartThatBeginsInsideACommentIsColouredFromItsBeginning() {
    const QString text = QStringLiteral("%!PS\n% long comment\n");
    QCOMPARE(coloured(text, 10, 14), QStringList({"Comment:% long co"}));
  }

  void aTagWithoutANameEndsWhereItEnds() {
    QCOMPARE(coloured(QStringLiteral("<?xml v=\"1\"?><g><>x y</g>")),
             QStringList({"Tag:<?xml", "Value:\"1\"", "Tag:?>", "Tag:<g", "Tag:>", "Tag:<", "Tag:>",
                          "Tag:</g", "Tag:>"}));
  }

  void tagsValuesAndCommentsOfMarkup() {
    QCOMPARE(coloured(QStringLiteral("<?xml version=\"1.0\"?><g id='a>b'>t<!-- <x> --></g><b/>")),
             QStringList({"Tag:<?xml", "Value:\"1.0\"", "Tag:?>", "Tag:<g", "Value:'a>b'", "Tag:>",
                          "Comment:<!-- <x> -->", "Tag:</g", "Tag:>", "Tag:<b", "Tag:/>"}));
  }

  void aPartInsideATagOrACommentKnowsWhereItIs() {
    const QString tag = QStringLiteral("<path d='M 0 0' class='x'/>");
    QCOMPARE(coloured(tag, 16, 25), QStringList({"Value:'x'"}));
    const QString comment = QStringLiteral("<a/><!-- one\ntwo <b> -->");
    QCOMPARE(coloured(comment, 13, 18), QStringList({"Comment:<!-- one\ntwo <"}));
  }

  void noMoreSpansThanAskedFor() {
    const QString text = QStringLiteral("<a/>").repeated(5000);
    QVERIFY(sourceSpans(text, SourceLanguage::Markup, 0, text.size(), 100).size() <= 101);
  }

  void unfinishedMarkupEndsWithThePart() {
    for (const char* text : {"<", "<a", "<a b=\"", "<!--", "<![CDATA[", "<a b='<'", "<a <b"})
      for (const SourceSpan& span :
           sourceSpans(QString::fromLatin1(text), SourceLanguage::Markup, 0, qstrlen(text)))
        QVERIFY2(span.start >= 0 && span.start + span.length <= qsizetype(qstrlen(text)), text);
  }

  void matchesWhateverTheCaseAndRoundTheEnds() {
    const SourceMatches matches(QStringLiteral("aXxa xx"), QStringLiteral("xx"));
    QCOMPARE(matches.starts(), QList<qsizetype>({1, 5}));
    QCOMPARE(matches.at(1).value(), qsizetype(0));
    QCOMPARE(matches.after(1).value(), qsizetype(1));
    QCOMPARE(matches.after(5).value(), qsizetype(0));
    QCOMPARE(matches.before(1).value(), qsizetype(1));
    QCOMPARE(matches.before(5).value(), qsizetype(0));
    QVERIFY(!SourceMatches(QStringLiteral("abc"), QString()).at(0));
    QVERIFY(!SourceMatches(QStringLiteral("abc"), QStringLiteral("d")).after(0));
  }
};

NORVEX_TEST(SourceBlocksTest)
#include "source_blocks_test.moc"
