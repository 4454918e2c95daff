#include "document/app_delegate.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include "document/document_controller.h"
#include "document/memory_window_controller.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"

using namespace norvex;

class AppDelegateTest : public QObject {
  Q_OBJECT

  NullPictureService service_;
  QStringList log_;
  QList<QObject*> terminated_;
  std::unique_ptr<DocumentController> documents_;
  std::unique_ptr<AppDelegate> delegate_;
  QTemporaryDir folder_;

  Document* open() {
    QFile file(folder_.filePath("a.pdf"));
    if (!file.open(QIODevice::WriteOnly) || file.write("%PDF-1.4\n") < 0) return nullptr;
    file.close();
    QSignalSpy finished(documents_.get(), &DocumentController::readingFinished);
    documents_->openDocuments({QUrl::fromLocalFile(file.fileName())});
    return finished.wait(20000) ? documents_->documents().value(0) : nullptr;
  }

 private slots:
  void init() {
    terminated_.clear();
    documents_ = std::make_unique<DocumentController>(service_, kit::loggingFactory(&log_));
    delegate_ =
        std::make_unique<AppDelegate>(documents_.get(), [this](QObject* sender) { terminated_ << sender; });
  }
  void cleanup() {
    delegate_.reset();
    documents_.reset();
  }

  void theLastWindowsClosingDoesNotQuit() {
    QVERIFY(!delegate_->applicationShouldTerminateAfterLastWindowClosed());
  }

  void launchedWithoutAFileItStaysUntilItIsDeactivated() {
    delegate_->applicationDidFinishLaunching();
    QVERIFY(documents_->documents().isEmpty());
    QVERIFY(terminated_.isEmpty());
    delegate_->applicationDidResignActive(this);
    QCOMPARE(terminated_, (QList<QObject*>{this}));
  }

  void closingTheLastDocumentKeepsItRunningUntilItIsDeactivated() {
    Document* document = open();
    QVERIFY(document);
    document->close();
    QVERIFY(terminated_.isEmpty());
    delegate_->applicationDidResignActive(this);
    QCOMPARE(terminated_.size(), 1);
  }

  void deactivatingWithADocumentOpenKeepsItRunning() {
    QVERIFY(open());
    delegate_->applicationDidResignActive(this);
    QVERIFY(terminated_.isEmpty());
  }

  void anAbsentListIsAnEmptyOne() {
    AppDelegate delegate(nullptr, [this](QObject* sender) { terminated_ << sender; });
    delegate.applicationDidResignActive(nullptr);
    QCOMPARE(terminated_, (QList<QObject*>{nullptr}));
  }
};

NORVEX_TEST(AppDelegateTest)
#include "app_delegate_test.moc"
