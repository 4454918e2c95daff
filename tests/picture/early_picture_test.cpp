// The picture that is opened before its window exists.
#include "picture/early_picture.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

#include "kit/test_main.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;

namespace {

const QByteArray kPdf = "%PDF-1.7\n";
const QByteArray kEps = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%EndComments\n%%EOF\n";

}  // namespace

class EarlyPictureTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;
  std::unique_ptr<MemoryPictureService> inside_;
  std::unique_ptr<EarlyPictureService> service_;

  QString fileWith(const QByteArray& bytes, const QString& name) const {
    QFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
    return file.fileName();
  }

 private slots:
  void init() {
    inside_ = std::make_unique<MemoryPictureService>();
    service_ = std::make_unique<EarlyPictureService>(*inside_);
  }
  void cleanup() {
    service_.reset();
    inside_.reset();
  }

  void whatWasOpenedEarlyIsHandedOut() {
    service_->begin(fileWith(kPdf, "a.pdf"));
    service_->wait();
    QCOMPARE(inside_->openCount(), 1);
    const auto process = service_->open(kPdf, PictureKind::Pdf);
    QCOMPARE(inside_->openCount(), 1);
    QVERIFY(process->facts());
    QVERIFY(process->render({}));
    QCOMPARE(inside_->lastProcess()->calls(PictureCall::Render), 1);
  }

  void itIsHandedOutOnce() {
    service_->begin(fileWith(kPdf, "a.pdf"));
    service_->wait();
    const auto first = service_->open(kPdf, PictureKind::Pdf),
               second = service_->open(kPdf, PictureKind::Pdf);
    QVERIFY(first != second);
    QCOMPARE(inside_->openCount(), 2);
  }

  void otherBytesKindsAndLimitsAreOpenedAnew_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("asEps");
    QTest::addColumn<int>("seconds");
    const int usual = PictureLimits().seconds;
    QTest::newRow("bytes") << kPdf + "%changed\n" << false << usual;
    QTest::newRow("kind") << kPdf << true << usual;
    QTest::newRow("limits") << kPdf << false << usual + 1;
  }
  void otherBytesKindsAndLimitsAreOpenedAnew() {
    QFETCH(QByteArray, bytes);
    QFETCH(bool, asEps);
    QFETCH(int, seconds);
    service_->begin(fileWith(kPdf, "a.pdf"));
    service_->wait();
    PictureLimits limits;
    limits.seconds = seconds;
    const auto process = service_->open(bytes, asEps ? PictureKind::Eps : PictureKind::Pdf, limits);
    QCOMPARE(inside_->openCount(), 2);
    QVERIFY(process->facts());
  }

  // Whoever draws can stop a program; nobody could stop one that ran for nobody.
  void noProgramIsRunForNobody() {
    service_->begin(fileWith(kEps, "a.eps"));
    service_->wait();
    QCOMPARE(inside_->openCount(), 0);
    QVERIFY(service_->open(kEps, PictureKind::Eps)->facts());
  }

  void whatIsNoPictureIsLeftToWhoeverOpensIt() {
    service_->begin(fileWith("no picture", "a.txt"));
    service_->wait();
    QCOMPARE(inside_->openCount(), 0);
  }

  void whatComesTooLateIsNotOpened() {
    const auto process = service_->open(kPdf, PictureKind::Pdf);
    service_->begin(fileWith(kPdf, "a.pdf"));
    service_->wait();
    QCOMPARE(inside_->openCount(), 1);
  }

  void aMissingFileIsLeftToWhoeverOpensIt() {
    service_->begin(folder_.filePath("missing.pdf"));
    service_->wait();
    QCOMPARE(inside_->openCount(), 0);
    QVERIFY(service_->open(kPdf, PictureKind::Pdf));
  }
};

NORVEX_TEST(EarlyPictureTest)
#include "early_picture_test.moc"
