#include "worker/engine_modules.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "kit/test_main.h"
#include "protocol/shared_errors.h"

using namespace norvex;

namespace {

const QString kBuilt = QStringLiteral(NORVEX_BUILD_DIR);

constexpr char kSvg[] =
    "<svg xmlns='http://www.w3.org/2000/svg' width='5in' height='2in' viewBox='0 0 8 x'><title>A "
    "title</title>"
    "<script/><image href='file:///etc/passwd'/><text font-family='Serif'>a</text></svg>";
/// As large as what is drawn.
constexpr char kUnmeasuredSvg[] =
    "<svg xmlns='http://www.w3.org/2000/svg'><rect width='40' height='20'/></svg>";
/// Without a table of its objects, which is a damage.
constexpr char kPdf[] =
    "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>> endobj\n"
    "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>> endobj\n"
    "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 8 9]/Contents 4 0 R"
    "/Resources<</Font<</F 5 0 R>>>>>> endobj\n"
    "4 0 obj<</Length 29>>stream\n0 0 1 rg BT /F 4 Tf (a) Tj ET\nendstream endobj\n"
    "5 0 obj<</Type/Font/Subtype/Type1/BaseFont/Helvetica>> endobj\n"
    "6 0 obj<</Title(A title)/CreationDate(D:20200131)>> endobj\n"
    "trailer<</Root 1 0 R/Info 6 0 R>>\n%%EOF\n";

/// The answers to an opening and, where there is a PDF, to an examination of its names.
QByteArray told(EngineModules& modules, PictureNeeds needs, PictureKind kind, const QByteArray& document) {
  engine::EngineContext context;
  const auto opened = (*modules.engines(needs))->open(kind, document, context);
  if (!opened) return encodeReply({1, opened.error()});
  QByteArray answers = encodeReply({1, *(*opened)->facts()});
  if (kind == PictureKind::Pdf) answers += (*opened)->examine({Examination::Names})->bytes;
  return answers;
}

QByteArray loadedFiles() {
  QFile maps(QStringLiteral("/proc/self/maps"));
  return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
}

}  // namespace

class EngineModulesTest : public QObject {
  Q_OBJECT
 private slots:
  // First: what the others load stays loaded.
  void whatTellsFactsLoadsNothingThatDraws() {
    if (loadedFiles().contains("libcairo")) QSKIP("a sanitized program has every library linked");
    EngineModules modules(kBuilt.toStdString());
    QVERIFY(modules.engines(NeedFacts).ok());
    QVERIFY(loadedFiles().contains("libqpdf"));
    for (const char* library : {"librsvg", "libpoppler", "libcairo", "libfontconfig"})
      QVERIFY2(!loadedFiles().contains(library), library);
  }

  void whatDrawsLoadsNothingOfPdf() {
    if (loadedFiles().contains("libpoppler")) QSKIP("a sanitized program has every library linked");
    EngineModules modules(kBuilt.toStdString());
    QVERIFY(modules.engines(NeedSvgDrawing).ok());
    QVERIFY(loadedFiles().contains("librsvg"));
    QVERIFY(!loadedFiles().contains("libpoppler"));
  }

  void everyModuleOffersWhatTheTableSays_data() {
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(engineParts.size()); ++row)
      QTest::newRow(engineParts[size_t(row)].name) << row;
  }
  void everyModuleOffersWhatTheTableSays() {
    QFETCH(int, row);
    const EnginePart& module = engineParts[size_t(row)];
    EngineModules modules(kBuilt.toStdString());
    const auto engines = modules.engines(module.offers);
    QVERIFY2(engines.ok(), engines.ok() ? "" : qPrintable(engines.error().message));
    QVERIFY((*engines)->open != nullptr);
    QCOMPARE((*engines)->decodePreview != nullptr, (module.offers & NeedPreviews) != 0);
    QCOMPARE((*engines)->setPdfAttributes != nullptr, (module.offers & (NeedPages | NeedSvgPdf)) != 0);
    QCOMPARE((*engines)->composePages != nullptr, (module.offers & NeedSheets) != 0);
  }

  void aModuleRefusesTheDocumentsOfOthers() {
    EngineModules modules(kBuilt.toStdString());
    engine::EngineContext context;
    const auto opened = [&](PictureNeeds needs, PictureKind kind) {
      return (*modules.engines(needs))->open(kind, "no document", context).error().kind;
    };
    QCOMPARE(opened(NeedSvgDrawing, PictureKind::Pdf), ErrorKind::Unsupported);
    QCOMPARE(opened(NeedSvgDrawing, PictureKind::Svg), ErrorKind::NotParsable);
    QCOMPARE(opened(NeedPages, PictureKind::Svg), ErrorKind::Unsupported);
    QCOMPARE(opened(NeedPages, PictureKind::Pdf), ErrorKind::NotParsable);
  }

  void factsAreTheSameWhetherOrNotTheyCanBeDrawn_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("document");
    const int svg = int(PictureKind::Svg), pdf = int(PictureKind::Pdf);
    QTest::newRow("SVG") << svg << QByteArray(kSvg);
    QTest::newRow("SVG that is empty") << svg << QByteArray("<svg width='0' height='1'/>");
    QTest::newRow("no SVG") << svg << QByteArray("<html/>");
    QTest::newRow("no XML") << svg << QByteArray("svg");
    QTest::newRow("PDF") << pdf << QByteArray(kPdf);
    QTest::newRow("no PDF") << pdf << QByteArray("PDF");
  }
  void factsAreTheSameWhetherOrNotTheyCanBeDrawn() {
    QFETCH(int, kind);
    QFETCH(QByteArray, document);
    EngineModules modules(kBuilt.toStdString());
    const bool isSvg = PictureKind(kind) == PictureKind::Svg;
    const QByteArray alone = told(modules, NeedFacts, PictureKind(kind), document);
    QCOMPARE(alone, told(modules, isSvg ? NeedSvgDrawing : NeedPages, PictureKind(kind), document));
    QVERIFY(!alone.isEmpty());
  }

  void aSizeThatOnlyDrawingTellsIsLeftToWhatDraws() {
    EngineModules modules(kBuilt.toStdString());
    engine::EngineContext context;
    const auto opened = (*modules.engines(NeedFacts))->open(PictureKind::Svg, kUnmeasuredSvg, context);
    QVERIFY(!opened.ok() && isDrawingNeeded(opened.error()));
    QVERIFY((*modules.engines(NeedSvgDrawing))->open(PictureKind::Svg, kUnmeasuredSvg, context).ok());
  }

  void aShortPageOfIllustratorsIsLeftToWhatReadsText() {
    EngineModules modules(kBuilt.toStdString());
    engine::EngineContext context;
    QByteArray pdf = kPdf;
    pdf.replace("/Type/Page/", "/PieceInfo<</Illustrator 4 0 R>>/Type/Page/");
    const auto opened = (*modules.engines(NeedFacts))->open(PictureKind::Pdf, pdf, context);
    QVERIFY(!opened.ok() && isDrawingNeeded(opened.error()));
    QVERIFY((*modules.engines(NeedPages))->open(PictureKind::Pdf, pdf, context).ok());
  }

  void aLoadedModuleThatCanIsTakenAgain() {
    EngineModules modules(kBuilt.toStdString());
    const auto all = modules.engines(allPictureNeeds);
    QVERIFY(all.ok());
    QCOMPARE(*modules.engines(NeedSvgDrawing), *all);
    QCOMPARE(*modules.engines(NeedPages | NeedPreviews), *all);
  }

  void aMissingModuleIsTold() {
    const QTemporaryDir empty;
    EngineModules modules(empty.path().toStdString());
    const auto engines = modules.engines(NeedSvgDrawing);
    QVERIFY(!engines.ok());
    QCOMPARE(engines.error().kind, ErrorKind::CannotRead);
    QCOMPARE(
        engines.error().message,
        QString("the part of norvex that this picture needs is missing or damaged: norvex-engine-svg.so"));
  }

  void warmingUpWhatIsMissingDoesNothing() {
    const QTemporaryDir empty;
    EngineModules(empty.path().toStdString()).warmUp();
    EngineModules facts(kBuilt.toStdString());
    QVERIFY(facts.engines(NeedFacts).ok());
    facts.warmUp();
    QVERIFY(facts.engines(NeedFacts).ok());
  }

  void aDamagedModuleIsToldAndTheOthersWork() {
    const QTemporaryDir folder;
    QFile damaged(folder.filePath("norvex-engine-svg.so"));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("no module");
    damaged.close();
    QVERIFY(QFile::copy(kBuilt + "/norvex-engine-pages.so", folder.filePath("norvex-engine-pages.so")));
    EngineModules modules(folder.path().toStdString());
    QVERIFY(!modules.engines(NeedSvgDrawing).ok());
    QVERIFY(modules.engines(NeedPages).ok());
    QVERIFY(!modules.engines(NeedSvgDrawing).ok());
  }
};

NORVEX_TEST(EngineModulesTest)
#include "engine_modules_test.moc"
