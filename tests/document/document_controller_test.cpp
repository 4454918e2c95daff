#include "document/document_controller.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include "document/memory_window_controller.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"

using namespace norvex;

class DocumentControllerTest : public QObject {
  Q_OBJECT

  NullPictureService service_;
  QStringList log_;
  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<DocumentController> controller_;
  QList<OpenFailure> failures_;

  QUrl write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
    return QUrl::fromLocalFile(file.fileName());
  }
  bool open(const QList<QUrl>& urls) {
    QSignalSpy finished(controller_.get(), &DocumentController::readingFinished);
    controller_->openDocuments(urls);
    return !finished.isEmpty() || finished.wait(20000);
  }
  /// The sentence that opening this one file ends with.
  QString failureOf(const QUrl& url) {
    failures_.clear();
    if (!open({url})) return "no answer";
    return failures_.size() == 1 && controller_->documents().isEmpty() ? failures_.first().sentence
                                                                       : "it was opened";
  }

 private slots:
  void init() {
    log_.clear();
    failures_.clear();
    folder_ = std::make_unique<QTemporaryDir>();
    controller_ = std::make_unique<DocumentController>(service_, kit::loggingFactory(&log_));
    connect(controller_.get(), &DocumentController::openFailed, this,
            [this](const OpenFailure& failure) { failures_ << failure; });
  }
  void cleanup() { controller_.reset(); }

  void aNameThatIsNoTextIsToldAsTheReason() {
    const QByteArray bytes = folder_->path().toUtf8() + "/gr\xFCn.eps";
    const QUrl url = QUrl::fromLocalFile(QString::fromUtf8(bytes));
    QCOMPARE(failureOf(url), QString("The file's name is not text in UTF-8. Please rename the file."));
    QCOMPARE(failureOf(QUrl::fromLocalFile(folder_->filePath("missing.eps"))),
             QString("No such file or directory."));
  }

  void aFileBecomesADocumentWithLocationTypeAndWindow() {
    const QUrl url = write("a.eps", "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 10 10\n");
    QSignalSpy opened(controller_.get(), &DocumentController::documentOpened);
    QVERIFY(open({url}));
    QCOMPARE(controller_->documents().size(), 1);
    QCOMPARE(opened.size(), 1);
    const Document* document = controller_->documents().first();
    QCOMPARE(document->fileURL(), url);
    QCOMPARE(document->fileType(), QString("com.adobe.encapsulated-postscript"));
    QCOMPARE(document->displayName(), QString("a.eps"));
    QCOMPARE(log_, (QStringList{"closes document", "added", "shown"}));
  }

  void contentDecidesTheTypeBeforeTheName() {
    const QUrl url = write("really-a-pdf.eps", "%PDF-1.4\n%%EOF\n");
    QVERIFY(open({url}));
    QCOMPARE(controller_->documents().size(), 1);
    QCOMPARE(controller_->documents().first()->fileType(), QString("com.adobe.pdf"));
  }

  void severalFilesAreSeveralDocuments() {
    QList<QUrl> urls;
    for (int i = 0; i < 12; ++i) urls << write(QString("p%1.pdf").arg(i), "%PDF-1.4\n");
    QVERIFY(open(urls));
    QCOMPARE(controller_->documents().size(), 12);
    QVERIFY(!controller_->isReading());
  }

  void oneBadFileDoesNotKeepTheOthersFromOpening() {
    QVERIFY(open({write("a.pdf", "%PDF-1.4\n"), QUrl::fromLocalFile(folder_->filePath("missing.pdf")),
                  write("b.pdf", "%PDF-1.4\n")}));
    QCOMPARE(controller_->documents().size(), 2);
    QCOMPARE(failures_.size(), 1);
  }

  void theSameFileTwiceComesToTheFront() {
    const QUrl url = write("a.pdf", "%PDF-1.4\n");
    QVERIFY(open({url, url}));
    QCOMPARE(controller_->documents().size(), 1);
    log_.clear();
    QVERIFY(open({QUrl::fromLocalFile(folder_->path() + "/./a.pdf")}));
    QCOMPARE(log_, (QStringList{"shown"}));
    QVERIFY(QFile::link(url.toLocalFile(), folder_->filePath("link.pdf")));
    QVERIFY(open({QUrl::fromLocalFile(folder_->filePath("link.pdf"))}));
    QCOMPARE(controller_->documents().size(), 1);
  }

  void closingForgetsTheDocumentAndItCanBeOpenedAgain() {
    const QUrl url = write("a.pdf", "%PDF-1.4\n");
    QVERIFY(open({url}));
    QSignalSpy closed(controller_.get(), &DocumentController::documentClosed);
    auto* window =
        static_cast<kit::MemoryWindowController*>(controller_->documents().first()->windowController());
    log_.clear();
    window->closeWindow();
    QVERIFY(controller_->documents().isEmpty());
    QCOMPARE(closed.size(), 1);
    QTRY_COMPARE(log_, (QStringList{"removed", "destroyed"}));
    QVERIFY(open({url}));
    QCOMPARE(controller_->documents().size(), 1);
  }

  void aMissingFile() {
    QCOMPARE(failureOf(QUrl::fromLocalFile(folder_->filePath("none.eps"))),
             QString("No such file or directory."));
  }

  void aLinkToNowhere() {
    QVERIFY(QFile::link("/nonexistent/target", folder_->filePath("link.eps")));
    QCOMPARE(failureOf(QUrl::fromLocalFile(folder_->filePath("link.eps"))),
             QString("No such file or directory."));
  }

  void aFolder() { QCOMPARE(failureOf(QUrl::fromLocalFile(folder_->path())), QString("It is a folder.")); }

  void aPipeIsNotWaitedFor() {
    QCOMPARE(mkfifo(qPrintable(folder_->filePath("pipe.eps")), 0600), 0);
    QCOMPARE(failureOf(QUrl::fromLocalFile(folder_->filePath("pipe.eps"))),
             QString("It is a pipe, not an ordinary file."));
  }

  void anUnreadableFile() {
    if (geteuid() == 0) QSKIP("everything is readable for root");
    const QUrl url = write("secret.pdf", "%PDF-1.4\n");
    QVERIFY(QFile::setPermissions(url.toLocalFile(), {}));
    QCOMPARE(failureOf(url), QString("Permission denied."));
  }

  void aHugeSparseFileIsRefusedUnread() {
    QFile file(folder_->filePath("huge.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    if (!file.resize(qint64(1) << 40)) QSKIP("this file system has no sparse files");
    QCOMPARE(failureOf(QUrl::fromLocalFile(file.fileName())), QString("It is larger than 512 MiB."));
  }

  void anEmptyFileOpensByItsName() {
    QVERIFY(open({write("empty.eps", "")}));
    QCOMPARE(controller_->documents().size(), 1);
  }

  void aFileOfAnotherKindIsExplainedInPlainWords() {
    QCOMPARE(failureOf(write("notes.txt", "Remember the milk.\n")),
             QString("This is not an EPS, Illustrator, PDF or SVG picture."));
    QCOMPARE(failures_.first().detail, QString("readFromData:ofType:error: is unimplemented"));
    QCOMPARE(failureOf(write("empty", "")), QString("This is not an EPS, Illustrator, PDF or SVG picture."));
  }

  void anAddressOnTheNetIsNotFetched() {
    QCOMPARE(failureOf(QUrl("https://example.org/a.svg")),
             QString("Only files on this computer can be opened."));
  }

  void endingWhileFilesAreBeingReadWaitsForThem() {
    QList<QUrl> urls;
    for (int i = 0; i < 40; ++i)
      urls << write(QString("p%1.pdf").arg(i), QByteArray("%PDF-1.4\n").repeated(20000));
    controller_->openDocuments(urls);
    controller_.reset();
    QCoreApplication::processEvents();
    QVERIFY(!log_.contains("shown"));
  }
};

NORVEX_TEST(DocumentControllerTest)
#include "document_controller_test.moc"
