// Pages of PDFs put together into one, as other programs see them.
#include "worker/pages/joined_pages.h"

#include <QFile>
#include <QTemporaryDir>

#include "kit/program.h"
#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;
using kit::madePdf;
using kit::onePage;
using kit::run;
using kit::stream;

namespace {

/// Two pages with the words One and Two; `inSecond` is in the second, and object 3 is the first.
QByteArray secondWith(const QByteArray& inSecond) {
  return madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>",
                  "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 100 100] /Contents 5 0 R >>",
                  "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Contents 6 0 R " + inSecond + " >>",
                  stream("BT (One) Tj ET"), stream("BT (Two) Tj ET")});
}

/// Three pages of 100, 200 and 300 points' width with the words One, Two and Three, which inherit their font.
/// The second has a link to the third and one to the first; there are outlines and a title.
QByteArray threePages() {
  const auto contents = [](const char* word) {
    return stream(QByteArray("BT /F 12 Tf 10 50 Td (") + word + ") Tj ET");
  };
  return madePdf(
      {"<< /Type /Catalog /Pages 2 0 R /Outlines 13 0 R /OpenAction [5 0 R /Fit] >>",
       "<< /Type /Pages /Kids [3 0 R 4 0 R 5 0 R] /Count 3 /Resources << /Font << /F 9 0 R >> >> >>",
       "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 100 100] /Contents 6 0 R >>",
       "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Contents 7 0 R /Annots [10 0 R 11 0 R] >>",
       "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 300 100] /Contents 8 0 R >>", contents("One"),
       contents("Two"), contents("Three"), "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
       "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /Dest [5 0 R /Fit] >>",
       "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /A << /S /GoTo /D [3 0 R /Fit] >> >>",
       "<< /Title (A book) >>", "<< /Type /Outlines /First 14 0 R /Last 14 0 R /Count 1 >>",
       "<< /Title (Chapter) /Parent 13 0 R /Dest [3 0 R /Fit] >>"},
      "/Info 12 0 R");
}

}  // namespace

class JoinedPagesTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;

  QString written(const QByteArray& pdf) {
    const QString path = folder_.filePath("out.pdf");
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() ? path : QString();
  }
  QByteArray textOf(const QString& path) { return run("pdftotext", {path, "-"}).out.simplified(); }

 private slots:
  void aRangeIsThosePagesInTheirOwnSizes() {
    const auto joined = joinedPages({{threePages(), 1, 2}});
    QVERIFY(joined.ok());
    const QString path = written(*joined);
    QCOMPARE(run("qpdf", {"--check", path}).exitCode, 0);
    const QByteArray facts = run("pdfinfo", {"-f", "1", "-l", "9", path}).out;
    QVERIFY2(facts.contains("Pages:           2\n"), facts);
    QVERIFY2(facts.contains("Page    1 size:  200 x 100 pts\n"), facts);
    QVERIFY2(facts.contains("Page    2 size:  300 x 100 pts\n"), facts);
    QVERIFY2(facts.contains("Title:           A book\n"), facts);
    QCOMPARE(textOf(path), QByteArray("Two Three"));
  }

  void whatIsLeftOutIsNotHiddenInTheFile() {
    const auto joined = joinedPages({{threePages(), 1, 1}});
    QVERIFY(joined.ok());
    const QByteArray plain = run("qpdf", {"--qdf", "--object-streams=disable", written(*joined), "-"}).out;
    QVERIFY(plain.contains("(Two) Tj"));
    QVERIFY(!plain.contains("(One) Tj") && !plain.contains("(Three) Tj"));
    QCOMPARE(plain.count("/Subtype /Link"), qsizetype(2));
    QVERIFY(!plain.contains("Chapter"));
  }

  void noWayLeadsToWhatIsLeftOut_data() {
    QTest::addColumn<QByteArray>("way");
    const auto note = [](const QByteArray& entry) {
      return "/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] " + entry + " >>]";
    };
    const QByteArray go = "<< /S /GoTo /D [3 0 R /Fit] >>";
    QTest::newRow("an action behind another") << note("/A << /S /URI /URI (x:y) /Next " + go + " >>");
    QTest::newRow("one of several behind another") << note("/A << /S /URI /URI (x:y) /Next [" + go + "] >>");
    QTest::newRow("an additional action of a note") << note("/AA << /E " + go + " >>");
    QTest::newRow("a link's former address") << note("/PA " + go);
    QTest::newRow("an action of the page") << "/AA << /O " + go + " >>";
    QTest::newRow("its separations") << QByteArray(
        "/SeparationInfo << /Pages [3 0 R 4 0 R] /DeviceColorant /Cyan >>");
    QTest::newRow("a key of another program") << QByteArray("/PieceInfo << /X << /Private [3 0 R] >> >>");
  }
  void noWayLeadsToWhatIsLeftOut() {
    QFETCH(QByteArray, way);
    const PageExcerpt second{secondWith(way), 1, 1};
    for (const auto& excerpts : {QList<PageExcerpt>{second}, {PageExcerpt{onePage("")}, second}}) {
      const auto joined = joinedPages(excerpts);
      QVERIFY(joined.ok());
      const QString path = written(*joined);
      QCOMPARE(run("qpdf", {"--check", path}).exitCode, 0);
      const QByteArray plain = run("qpdf", {"--qdf", "--object-streams=disable", path, "-"}).out;
      QVERIFY(plain.contains("(Two) Tj"));
      QVERIFY2(!plain.contains("(One) Tj"), plain);
    }
  }

  void whatSeveralBringWithThemIsThereOnce() {
    // A font in a form on each page: equal streams that refer to equal streams. Another page's is its own.
    const auto page = [](const QByteArray& word, const QByteArray& font) {
      return onePage("/X Do (" + word + ") pop",
                     "/MediaBox [0 0 200 100] /Resources << /XObject << /X 5 0 R >> >>",
                     {stream("q Q",
                             "/Subtype /Form /BBox [0 0 9 9] /Resources << /Font << /F << /Type /Font "
                             "/FontDescriptor << /FontFile2 6 0 R >> >> >> >>"),
                      stream(font)});
    };
    const auto joined = joinedPages({{page("One", "FONT-A")},
                                     {page("Two", "FONT-A")},
                                     {page("Three", "FONT-B")},
                                     {page("Four", "FONT-A")}});
    QVERIFY(joined.ok());
    const QString path = written(*joined);
    QCOMPARE(run("qpdf", {"--check", path}).exitCode, 0);
    const QByteArray plain = run("qpdf", {"--qdf", "--object-streams=disable", path, "-"}).out;
    QCOMPARE(plain.count("FONT-A"), qsizetype(1));
    QCOMPARE(plain.count("FONT-B"), qsizetype(1));
    QCOMPARE(plain.count("/Subtype /Form"), qsizetype(2));
    for (const char* word : {"(One)", "(Two)", "(Three)", "(Four)"})
      QCOMPARE(plain.count(word), qsizetype(1));
    QVERIFY2(run("pdfinfo", {path}).out.contains("Pages:           4\n"), plain);
  }

  void streamsThatDifferInTheirDictionariesAreTwo() {
    const auto page = [](const QByteArray& box) {
      return onePage("/X Do", "/MediaBox [0 0 200 100] /Resources << /XObject << /X 5 0 R >> >>",
                     {stream("FORM", "/Subtype /Form /BBox " + box)});
    };
    const auto joined = joinedPages({{page("[0 0 9 9]")}, {page("[0 0 8 8]")}});
    QVERIFY(joined.ok());
    const QByteArray plain = run("qpdf", {"--qdf", "--object-streams=disable", written(*joined), "-"}).out;
    QCOMPARE(plain.count("FORM"), qsizetype(2));
  }

  void linksInsideOfTheRangeStay() {
    const auto joined = joinedPages({{threePages(), 1, 2}});
    QVERIFY(joined.ok());
    const QByteArray plain = run("qpdf", {"--qdf", "--object-streams=disable", written(*joined), "-"}).out;
    QCOMPARE(plain.count("/Dest"), qsizetype(1));
    QVERIFY(!plain.contains("/GoTo"));
  }

  void linksInsideOfALaterRangeStayForwardsAndBackwards() {
    const auto joined = joinedPages({{onePage("")}, {threePages(), 0, 2}});
    QVERIFY(joined.ok());
    const QString path = written(*joined);
    QCOMPARE(run("qpdf", {"--check", path}).exitCode, 0);
    const QByteArray plain = run("qpdf", {"--qdf", "--object-streams=disable", path, "-"}).out;
    QCOMPARE(plain.count("/Dest ["), qsizetype(1));
    QCOMPARE(plain.count("/GoTo"), qsizetype(1));
    QCOMPARE(plain.count(" 0 R\n      /Fit") + plain.count(" 0 R\n    /Fit"), qsizetype(2));
    QVERIFY2(!plain.contains("null"), plain);
  }

  void severalFilesFollowOneAnother() {
    const QByteArray other = onePage("BT /F 12 Tf 10 50 Td (Other) Tj ET",
                                     "/MediaBox [0 0 50 60] /Resources << /Font << /F 5 0 R >> >>",
                                     {"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"});
    const auto joined = joinedWithAttributes(encodePageExcerpts({{other}, {threePages(), 2, 2}, {other}}),
                                             {{{"Title", "A job"}}, {}});
    QVERIFY(joined.ok());
    const QString path = written(*joined);
    QCOMPARE(run("qpdf", {"--check", path}).exitCode, 0);
    const QByteArray facts = run("pdfinfo", {"-f", "1", "-l", "9", path}).out;
    QVERIFY2(facts.contains("Pages:           3\n"), facts);
    QVERIFY2(facts.contains("Page    3 size:  50 x 60 pts\n"), facts);
    QVERIFY2(facts.contains("Title:           A job\n"), facts);
    QCOMPARE(textOf(path), QByteArray("Other Three Other"));
  }

  void aPageThatIsNotThereIsTold() {
    const auto beyond = joinedPages({{threePages(), 1, 3}});
    QVERIFY(!beyond.ok());
    QCOMPARE(beyond.error().message, QString("there is no page 4; the document has 3"));
    QVERIFY(!joinedPages({{threePages(), 3, -1}}).ok());
    QVERIFY(!joinedPages({}).ok());
    QVERIFY(!joinedPages({{QByteArray("no PDF")}}).ok());
  }

  void aPlainPdfGetsItsAttributesAsBefore() {
    const auto titled = joinedWithAttributes(threePages(), {{{"Title", "Another"}}, {}});
    QVERIFY(titled.ok());
    const QByteArray facts = run("pdfinfo", {written(*titled)}).out;
    QVERIFY2(facts.contains("Title:           Another\n") && facts.contains("Pages:           3\n"), facts);
  }

  void ofNoPagesThereIsNoFile() {
    const auto made = joinedPages({});
    QVERIFY(!made.ok());
    QCOMPARE(made.error().message, "there are no pages");
  }
};

NORVEX_TEST(JoinedPagesTest)
#include "joined_pages_test.moc"
