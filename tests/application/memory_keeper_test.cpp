#include "application/memory_keeper.h"

#include <QSignalSpy>

#include "document/document_controller.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"

using namespace norvex;

class MemoryKeeperTest : public QObject {
  Q_OBJECT
 private slots:
  void memoryIsGivenBackOnceDocumentsHaveComeAndGone() {
    NullPictureService service;
    DocumentController documents(service, {});
    const MemoryKeeper keeper(documents);
    QSignalSpy gaveBack(&keeper, &MemoryKeeper::gaveBack);
    emit documents.documentOpened(nullptr);
    emit documents.documentOpened(nullptr);
    QTest::qWait(0);
    QCOMPARE(gaveBack.count(), 0);
    QVERIFY(gaveBack.wait(20'000));
    QVERIFY(!gaveBack.wait(MemoryKeeper::kQuietMs + 200));  // once for both
    emit documents.documentClosed(nullptr);
    QVERIFY(gaveBack.wait(20'000));
  }
};

NORVEX_TEST(MemoryKeeperTest)
#include "memory_keeper_test.moc"
