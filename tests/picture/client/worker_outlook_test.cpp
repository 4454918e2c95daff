// What the program that forks makes ready before a picture asks for it.
#include <QFile>

#include <memory>
#include <utility>
#include <vector>

#include "kit/test_main.h"
#include "picture/client/spawned_worker.h"
#include "picture/client/worker_service.h"

using namespace norvex;

namespace {

const QByteArray kSvg = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'/>";

/// The fonts' caches are mapped once somebody has asked for fonts.
bool knowsFonts(qint64 pid) {
  QFile maps(QStringLiteral("/proc/%1/maps").arg(pid));
  return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/fontconfig/");
}

/// Of the program, once `pictures` of a document each are open at the same time.
bool knowsFontsWith(int pictures, WorkerOutlook outlook) {
  WorkerService service({}, spawnWorker(NORVEX_BUILD_DIR "/norvex-worker", NeedSvgDrawing, outlook));
  service.openOnlyFor(PictureUse::Drawing);
  std::vector<std::shared_ptr<PictureProcess>> open;
  for (int i = 0; i < pictures; ++i) {
    open.push_back(service.open(kSvg, PictureKind::Svg));
    if (!open.back()->facts()) qFatal("a picture was not opened");
  }
  return knowsFonts(service.programProcessId());
}

}  // namespace

class WorkerOutlookTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    // A third picture is not begun before the program is warm.
    if (!knowsFontsWith(3, {})) QSKIP("the fonts of this system have no caches that could be seen");
  }

  void whatWaitsForAWindowIsReadyForItsFirstPicture() {
    QVERIFY(!knowsFontsWith(1, {}));
    QVERIFY(knowsFontsWith(1, {.window = true}));
  }

  void nothingIsMadeReadyForOthersWhereThereIsOne() { QVERIFY(!knowsFontsWith(3, {.lone = true})); }
};

NORVEX_TEST(WorkerOutlookTest)
#include "worker_outlook_test.moc"
