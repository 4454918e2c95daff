// From a type and bytes to the right representation.
#include "picture/picture_loader.h"

#include <QFutureWatcher>
#include <QTemporaryDir>
#include <QThread>

#include "kit/test_main.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "picture/process/null_picture_service.h"
#include "picture/web_image_rep.h"
#include "types/uniform_type.h"

using namespace norvex;

namespace {

const QByteArray kEps = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%EndComments\n%%EOF\n";
const QByteArray kPdf = "%PDF-1.7\n";

template <typename Rep>
bool isA(const Result<LoadedPicture>& loaded) {
  return loaded && dynamic_cast<Rep*>(loaded->imageRep.get()) != nullptr;
}

}  // namespace

class PictureLoaderTest : public QObject {
  Q_OBJECT
 private slots:
  void theTypeDecidesTheRepresentation() {
    MemoryPictureService service;
    QVERIFY(isA<NSEPSImageRep>(loadPicture(service, {kEps, NorvexEPSType, {}, 0})));
    QVERIFY(isA<NSEPSImageRep>(loadPicture(service, {kEps, NorvexEPSIType, {}, 0})));
    QVERIFY(isA<NSPDFImageRep>(loadPicture(service, {kPdf, UTTypePDF().identifier(), {}, 0})));
    QVERIFY(isA<ZyWebImageRep>(loadPicture(service, {"<svg/>", UTTypeSVG().identifier(), {}, 0})));
    QVERIFY(isA<ZyWebImageRep>(loadPicture(service, {"<svg/>", NorvexSVGZType, {}, 0})));
  }

  void anIllustratorFileIsPostScriptOrElsePdf() {
    MemoryPictureService service;
    QVERIFY(isA<NSEPSImageRep>(loadPicture(service, {kEps, NorvexIllustratorType, {}, 0})));
    QVERIFY(isA<NSPDFImageRep>(loadPicture(service, {kPdf, NorvexIllustratorType, {}, 0})));
    QCOMPARE(service.openedKinds(), QList<PictureKind>({PictureKind::Eps, PictureKind::Pdf}));
  }

  void aSubtypeIsLoadedAsItsKind() {
    UTType::exportedTypeWithIdentifier("org.example.loader-test-eps", {NorvexEPSType});
    QCOMPARE(pictureKindsForType("org.example.loader-test-eps"), QList<PictureKind>{PictureKind::Eps});
  }

  void otherTypesAreNotSupported() {
    MemoryPictureService service;
    for (const QString& type : {QString(), QString("public.png"), QString("org.example.unheard-of")}) {
      const auto loaded = loadPicture(service, {kPdf, type, {}, 0});
      QVERIFY(!loaded);
      QCOMPARE(loaded.error().kind, ErrorKind::Unsupported);
    }
    QCOMPARE(service.openCount(), 0);
  }

  void theLastKindsErrorIsTold() {
    NullPictureService service({ErrorKind::NoSandbox, QStringLiteral("no confinement")});
    QCOMPARE(loadPicture(service, {kPdf, NorvexIllustratorType, {}, 0}).error().kind, ErrorKind::NoSandbox);
    QCOMPARE(loadPicture(service, {{}, NorvexEPSType, {}, 0}).error().kind, ErrorKind::NotParsable);
  }

  void loadingLaterDoesNotWaitAndTheObjectComesHome() {
    MemoryPictureService service;
    service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Facts); });
    auto future = loadPictureLater(service, {kPdf, UTTypePDF().identifier(), {}, 0});
    QVERIFY(QTest::qWaitFor([&] { return service.lastProcess() != nullptr; }, 20000));
    QVERIFY(service.lastProcess()->waitUntilHeld(PictureCall::Facts));
    QVERIFY(!future.isFinished());
    service.lastProcess()->release(PictureCall::Facts);
    future.waitForFinished();
    const auto loaded = future.result();
    QVERIFY(loaded);
    QCOMPARE(loaded->imageRep->thread(), QThread::currentThread());
    QCOMPARE(loaded->source.bytes, kPdf);
  }

  void aFileIsReadAndItsTypeFoundOut() {
    MemoryPictureService service;
    QTemporaryDir folder;
    const QString path = folder.filePath("a.eps");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kEps);
    file.close();
    const auto loaded = loadPictureFile(service, QUrl::fromLocalFile(path)).result();
    QVERIFY(isA<NSEPSImageRep>(loaded));
    QCOMPARE(loaded->source.typeIdentifier, NorvexEPSType);
    QCOMPARE(loaded->source.fileURL.toLocalFile(), path);
    const auto missing = loadPictureFile(service, QUrl::fromLocalFile(folder.filePath("b.eps"))).result();
    QCOMPARE(missing.error().kind, ErrorKind::CannotRead);
  }

  void severalPicturesLoadAtOnce() {
    MemoryPictureService service;
    QList<QFuture<Result<LoadedPicture>>> all;
    for (int i = 0; i < 20; ++i) all << loadPictureLater(service, {kPdf, UTTypePDF().identifier(), {}, 0});
    for (auto& future : all) QVERIFY(future.result());
    QCOMPARE(service.openCount(), 20);
  }
};

NORVEX_TEST(PictureLoaderTest)
#include "picture_loader_test.moc"
