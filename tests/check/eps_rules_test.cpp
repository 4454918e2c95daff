// What the rules find in the bytes of an EPS program, and what they pass over.
#include "check/eps_box_rules.h"
#include "check/eps_operator_rules.h"
#include "check/eps_preview_rules.h"
#include "check/eps_structure_rules.h"
#include "check/file_wrapping.h"
#include "check/program_lines.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

const QByteArray kHeader("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%EndComments\n");

QStringList namesOf(const Findings& findings) {
  QStringList names;
  for (const Finding& one : findings)
    names << QString::fromLatin1(one.rule->identifier.data(), qsizetype(one.rule->identifier.size()));
  return names;
}

QStringList structureOf(const QByteArray& body) {
  return namesOf(epsStructureFindings(programLines(kHeader + body + "showpage\n%%EOF\n")));
}

QStringList operatorsOf(const QByteArray& body) {
  return namesOf(epsOperatorFindings(programLines(kHeader + body + "\nshowpage\n%%EOF\n")));
}

QStringList boxesOf(const QByteArray& value) {
  const QByteArray program = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: " + value + "\n%%EndComments\n%%EOF\n";
  return namesOf(epsBoxFindings(program, programLines(program)));
}

QStringList previewOf(int width, int height, const QSizeF& box) {
  NSBitmapImageRep rep;
  rep.pixelsWide = width;
  rep.pixelsHigh = height;
  return namesOf(epsPreviewFindings(std::optional(rep), QRectF(QPointF(0, 0), box)));
}

/// Grey samples: `shade` where `isOn` says so, white elsewhere.
QByteArray samples(char shade, const std::function<bool(int x, int y)>& isOn) {
  QByteArray all(comparedSide * comparedSide, '\xff');
  for (int y = 0; y < comparedSide; ++y)
    for (int x = 0; x < comparedSide; ++x)
      if (isOn(x, y)) all[y * comparedSide + x] = shade;
  return all;
}

}  // namespace

class EpsRulesTest : public QObject {
  Q_OBJECT
 private slots:
  void aBoxIsLooseWhenHalfOfItsWidthOrHeightIsEmpty() {
    const auto isLoose = [](double width, double height) {
      return hasFinding(epsInkFindings(QRectF(0, 0, 100, 100), QRectF(0, 0, width, height), 1),
                        "eps.bounding-box.loose");
    };
    QVERIFY(!isLoose(50, 50));
    QVERIFY(isLoose(49, 100));
    QVERIFY(isLoose(100, 49));
    QVERIFY(!isLoose(100, 50));
  }

  void whatALevelBroughtAsksForIt() {
    for (const char* word :
         {"setcolorspace", "setcolor", "rectfill", "rectstroke", "rectclip", "makepattern", "setpattern",
          "execform", "ufill", "ustroke", "glyphshow", "selectfont", "xshow"})
      QVERIFY2(operatorsOf(word).contains("eps.language-level.undeclared"), word);
    for (const char* word : {"shfill", "clipsave", "cliprestore", "setsmoothness"})
      QVERIFY2(operatorsOf(word).contains("eps.language-level.undeclared"), word);
    for (const char* word : {"setrgbcolor", "setcmykcolor", "fill", "show", "image", "findfont"})
      QVERIFY2(!operatorsOf(word).contains("eps.language-level.undeclared"), word);
  }

  void linesThatAllEndAlikeAreNotMixed() {
    for (const char* end : {"\n", "\r", "\r\n"}) {
      const QByteArray program = QByteArray(kHeader + "showpage\n%%EOF\n").replace("\n", end);
      QVERIFY2(!hasFinding(epsStructureFindings(programLines(program)), "eps.lines.mixed-ends"), end);
    }
    const Findings two = epsStructureFindings(programLines(kHeader + "newpath\rshowpage\n%%EOF\n"));
    const auto mixed = std::find_if(two.begin(), two.end(), [](const Finding& one) {
      return one.rule->identifier == "eps.lines.mixed-ends";
    });
    QVERIFY(mixed != two.end());
    QCOMPARE(mixed->sentence, "lines end in 2 different ways");
    QCOMPARE(mixed->line, std::optional(4));
  }

  void fontsThatAreNeededAndNotSuppliedAreNamed() {
    const auto sentences = [](const QByteArray& comments) {
      QStringList all;
      const QByteArray program = "%!PS-Adobe-3.0 EPSF-3.0\n" + comments + "%%EndComments\nshowpage\n";
      for (const Finding& one : epsFontFindings(programLines(program))) all << one.sentence;
      return all;
    };
    const QString begin = "the file needs fonts that it does not bring: ";
    QCOMPARE(sentences("%%DocumentNeededFonts: One\n%%+ Two\n"), QStringList{begin + "One, Two"});
    QCOMPARE(sentences("%%DocumentNeededResources: procset p 1 0\n%%+ font Two\n"),
             QStringList{begin + "Two"});
    for (const char* kind : {"procset", "file", "encoding", "form", "pattern", "category"})
      QCOMPARE(sentences(QByteArray("%%DocumentNeededResources: font One\n%%+ ") + kind + " other\n"),
               QStringList{begin + "One"});
    QCOMPARE(sentences("%%DocumentNeededFonts: One Two\n%%DocumentSuppliedResources: font One\n"),
             QStringList{begin + "Two"});
    QCOMPARE(sentences("%%DocumentNeededFonts: One\n%%Title: t\n%%+ Two\n%%DocumentSuppliedFonts: One\n"),
             QStringList());
  }

  void sectionsBeginAndEnd() {
    QVERIFY(!structureOf("%%BeginSetup\n%%EndSetup\n").contains("eps.comments.unclosed"));
    QVERIFY(!structureOf("%%BeginProlog\n%%BeginResource: font A\n%%EndResource\n%%EndProlog\n")
                 .contains("eps.comments.unclosed"));
    QVERIFY(structureOf("%%BeginSetup\n").contains("eps.comments.unclosed"));
    QVERIFY(structureOf("%%EndSetup\n").contains("eps.comments.unclosed"));
    QVERIFY(!structureOf("%%EndProlog\n").contains("eps.comments.unclosed"));
  }

  void whatIsForbiddenIsToldUnlessItIsDefinedAnew() {
    QVERIFY(operatorsOf("initgraphics").contains("eps.operator.forbidden"));
    QVERIFY(!operatorsOf("0 0 moveto").contains("eps.operator.forbidden"));
    QVERIFY(!operatorsOf("/initgraphics { } def initgraphics").contains("eps.operator.forbidden"));
  }

  void whatStandsInATextIsNotCarriedOut() {
    const auto isTold = [](const QByteArray& line) {
      return operatorsOf(line).contains("eps.operator.forbidden");
    };
    QVERIFY(!isTold("(initgraphics) show"));
    QVERIFY(isTold("(text) show initgraphics"));
    QVERIFY(isTold("(a (b) c) show initgraphics"));
    QVERIFY(!isTold("(a (b) initgraphics"));
    QVERIFY(!isTold("(a \\) initgraphics"));
  }

  void aHeaderWithoutAnEndIsTold() {
    const Findings found =
        epsStructureFindings(programLines("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\nshowpage\n"));
    QVERIFY(hasFinding(found, "eps.comments.end-missing"));
    QStringList sentences;
    for (const Finding& one : found) sentences << one.sentence;
    QVERIFY2(sentences.contains("the header has no %%EndComments"), qPrintable(sentences.join(u'\n')));
  }

  void aBoxIsFourNumbers() {
    QVERIFY(!boxesOf("0 0 200 100").contains("eps.bounding-box.malformed"));
    QVERIFY(boxesOf("0 0 200").contains("eps.bounding-box.malformed"));
    QVERIFY(boxesOf("0 0 200 wide").contains("eps.bounding-box.malformed"));
  }

  void aPreviewHasTheShapeOfTheBox() {
    QCOMPARE(previewOf(200, 100, {200, 100}), QStringList());
    QCOMPARE(previewOf(20, 10, {200, 100}), QStringList());
    QCOMPARE(previewOf(202, 98, {200, 100}), QStringList());  // rounded, and one more
    QCOMPARE(previewOf(20, 20, {200, 100}), QStringList{"eps.preview.size"});
    QCOMPARE(previewOf(40, 10, {200, 100}), QStringList{"eps.preview.size"});
    QCOMPARE(previewOf(10, 4, {400, 100}), QStringList());
    QCOMPARE(previewOf(12, 4, {170, 100}), QStringList());
  }

  void aPreviewShowsWhatIsDrawn() {
    const auto left = [](int x, int) { return x < comparedSide / 2; };
    const auto right = [](int x, int) { return x >= comparedSide / 2; };
    const QByteArray drawn = samples('\0', left);
    QVERIFY(epsPreviewDifference(drawn, drawn).isEmpty());
    QVERIFY(epsPreviewDifference(samples('\x80', left), drawn).isEmpty());  // in another colour
    QCOMPARE(epsPreviewDifference(samples('\0', right), drawn).size(), 1);
    // A quarter that lies within the half is related to it, a checked pattern is not.
    QVERIFY(epsPreviewDifference(samples('\0', [](int x, int) { return x < comparedSide / 4; }), drawn)
                .isEmpty());
    QCOMPARE(epsPreviewDifference(samples('\0', [](int x, int y) { return (x + y) % 2 == 0; }), drawn).size(),
             1);
  }

  void everyCutOfAWrappedFileIsReadWithoutHarm() {
    const QByteArray mark("\x00\x05\x16\x00\x00\x02\x00\x00", 8);
    const QByteArray file =
        mark + QByteArray(16, '\0') + QByteArray("\0\1\0\0\0\1\0\0\0\x26\0\0\0\4", 14) + "%!PS";
    QVERIFY(wrappedFile(file));
    QCOMPARE(withoutWrapping(file), QByteArray("%!PS"));
    for (qsizetype length = 0; length < file.size(); ++length) QVERIFY(!wrappedFile(file.first(length)));
    QVERIFY(!wrappedFile(QByteArray("%!PS-Adobe-3.0 EPSF-3.0\n").repeated(9)));
  }

  void aWordOfSixtyLettersIsStillNoData() {
    QVERIFY(!looksLikeData("0 0 moveto " + QByteArray(60, 'a')));
    QVERIFY(looksLikeData("0 0 moveto " + QByteArray(61, 'a')));
    QVERIFY(looksLikeData("\x01"));
  }
};

NORVEX_TEST(EpsRulesTest)
#include "eps_rules_test.moc"
