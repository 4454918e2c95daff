#include "worker/engine_modules.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "kit/test_main.h"

using namespace norvex;

namespace {

const QString kBuilt = QStringLiteral(NORVEX_BUILD_DIR);

QByteArray loadedFiles() {
  QFile maps(QStringLiteral("/proc/self/maps"));
  return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
}

}  // namespace

class EngineModulesTest : public QObject {
  Q_OBJECT
 private slots:
  // First: what the others load stays loaded.
  void whatDrawsLoadsNothingOfPdf() {
    if (loadedFiles().contains("libpoppler")) QSKIP("a sanitized program has every library linked");
    EngineModules modules(kBuilt.toStdString());
    QVERIFY(modules.engines(NeedSvgDrawing).ok());
    QVERIFY(loadedFiles().contains("librsvg"));
    QVERIFY(!loadedFiles().contains("libpoppler"));
    QVERIFY(!loadedFiles().contains("libqpdf"));
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
