// The pictures that are opened before others come.
#include "worker/rehearsal.h"

#include "kit/test_main.h"
#include "worker/engine_modules.h"

using namespace norvex;

class RehearsalTest : public QObject {
  Q_OBJECT
 private slots:
  /// Damaged ones would prepare for damage.
  void thePicturesAreWholeAndCanBeDrawnAndHandedOn() {
    EngineModules modules(NORVEX_BUILD_DIR);
    const auto engines = modules.engines(allPictureNeeds);
    QVERIFY(engines.ok());
    QList<PictureKind> opened;
    EngineSet watched = **engines;
    watched.open = [&](PictureKind kind, const QByteArray& bytes,
                       engine::EngineContext& context) -> Result<std::unique_ptr<engine::DocumentEngine>> {
      auto document = (*engines)->open(kind, bytes, context);
      if (!document || !(*document)->facts()) return Error{ErrorKind::NotParsable, {}};
      RenderRequest drawing;
      drawing.pixelSize = QSize(6, 6);
      const auto pdf = (*document)->pdf({0, std::nullopt});
      if ((*document)->facts()->warnings.isEmpty() && (*document)->render(drawing) && pdf &&
          pdf->report.warnings.isEmpty())
        opened << kind;
      return document;
    };
    rehearse(watched);
    QCOMPARE(opened, (QList<PictureKind>{PictureKind::Svg, PictureKind::Pdf}));
  }

  void withoutEnginesNothingIsRehearsed() { rehearse(EngineSet()); }
};

NORVEX_TEST(RehearsalTest)
#include "rehearsal_test.moc"
