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
    const MemoryKeeper keeper(documents, nullptr, 0);
    QSignalSpy gaveBack(&keeper, &MemoryKeeper::gaveBack);
    emit documents.documentOpened(nullptr);
    emit documents.documentOpened(nullptr);
    QCOMPARE(gaveBack.count(), 0);  // not before the event loop has its turn
    QTRY_COMPARE(gaveBack.count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(gaveBack.count(), 1);  // once for both
    emit documents.documentClosed(nullptr);
    QTRY_COMPARE(gaveBack.count(), 2);
  }
};

NORVEX_TEST(MemoryKeeperTest)
#include "memory_keeper_test.moc"
