// What a document writes under each type.
#include <QFile>
#include <QTemporaryDir>

#include "desktop/alert.h"
#include "document/document.h"
#include "document/memory_window_controller.h"
#include "document/picture_producers.h"
#include "document/unimplemented_method.h"
#include "kit/test_main.h"
#include "picture/eps_image_rep.h"
#include "picture/image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/null_picture_service.h"

using namespace norvex;

namespace {

/// Bytes that name their producer.
class NamingProducers final : public PictureProducers {
 public:
  std::shared_ptr<NSImageRep> shownImageRep() override { return shown; }
  QByteArray postScriptData() override { return of("postScriptData"); }
  QByteArray postScriptDataWithPreview() override { return of("postScriptDataWithPreview"); }
  QByteArray epsiData() override { return of("epsiData"); }
  QByteArray pdfData() override { return of("pdfData"); }
  QByteArray svgData() override { return of("svgData"); }
  QByteArray tiffData(const std::shared_ptr<NSImageRep>& rep) override { return ofRep("tiffData", rep); }
  QByteArray pngData(const std::shared_ptr<NSImageRep>& rep) override { return ofRep("pngData", rep); }
  QByteArray jpgData(const std::shared_ptr<NSImageRep>& rep) override { return ofRep("jpgData", rep); }
  QByteArray gifData(const std::shared_ptr<NSImageRep>& rep) override { return ofRep("gifData", rep); }
  QString lastShortcoming() const override { return shortcoming; }

  QByteArray of(const char* name) {
    if (!produce) return {};
    return bytes.isEmpty() ? QByteArray(name) : bytes;
  }
  QByteArray ofRep(const char* name, const std::shared_ptr<NSImageRep>& rep) {
    given = rep;
    return of(name);
  }
  std::shared_ptr<NSImageRep> shown, given;
  QByteArray bytes;  ///< empty: the producer's name
  bool produce = true;
  QString shortcoming;
};

class Answers final : public AlertPresenter {
 public:
  int runModal(const Alert& alert) override {
    shown << alert;
    return answer;
  }
  QList<Alert> shown;
  int answer = 0;
};

}  // namespace

class DocumentWritingTest : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    producers_ = NamingProducers();
    answers_ = std::make_unique<Answers>();
    document_ = std::make_unique<Document>(service_, [this] {
      auto controller = std::make_unique<kit::MemoryWindowController>(&log_);
      controller->pictureProducers = &producers_;
      return controller;
    });
    document_->setAlertPresenter(answers_.get());
    document_->makeWindowControllers();
    folder_ = std::make_unique<QTemporaryDir>();
  }
  void cleanup() { document_.reset(); }

  void eachTypeHasItsProducer_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("producer");
    QTest::newRow("SVG") << "public.svg-image" << QByteArray("svgData");
    QTest::newRow("EPSI") << "com.Tembrolix.epsi" << QByteArray("epsiData");
    QTest::newRow("PDF") << "com.adobe.pdf" << QByteArray("pdfData");
    QTest::newRow("TIFF") << "public.tiff" << QByteArray("tiffData");
    QTest::newRow("PNG") << "public.png" << QByteArray("pngData");
    QTest::newRow("JPEG") << "public.jpeg" << QByteArray("jpgData");
    QTest::newRow("GIF") << "com.compuserve.gif" << QByteArray("gifData");
  }
  void eachTypeHasItsProducer() {
    QFETCH(QString, type);
    QTEST(document_->dataOfType(type), "producer");
    QVERIFY(answers_->shown.isEmpty());
  }

  void rasterFormatsAreMadeOfTheShownRepresentation_data() {
    QTest::addColumn<QString>("type");
    for (const char* type : {"public.tiff", "public.png", "public.jpeg", "com.compuserve.gif"})
      QTest::newRow(type) << type;
  }
  void rasterFormatsAreMadeOfTheShownRepresentation() {
    QFETCH(QString, type);
    const auto rep = NSEPSImageRep::imageRepWithData(
        service_, "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 20 10\n%%EndComments\n");
    QVERIFY(rep.ok());
    producers_.shown = *rep;
    (void)document_->dataOfType(type);
    QVERIFY(producers_.given && producers_.given == producers_.shown);
  }

  void anEpsSourceOffersOriginal() {
    document_->setFileType(QStringLiteral("com.adobe.encapsulated-postscript"));
    QCOMPARE(document_->dataOfType(eps_), QByteArray("postScriptData"));
    const Alert& alert = answers_->shown.constFirst();
    QCOMPARE(alert.style, AlertStyle::Informational);
    QCOMPARE(alert.messageText, QStringLiteral("EPS"));
    QCOMPARE(alert.informativeText, QStringLiteral("Is the preview added the occasion where it writes out?"));
    QCOMPARE(alert.buttons, QStringList({"Original", "Cancel", "With preview"}));
  }
  void aPdfSourceOffersNonePreview() {
    document_->setFileType(QStringLiteral("com.adobe.pdf"));
    (void)document_->dataOfType(eps_);
    QCOMPARE(answers_->shown.constFirst().buttons, QStringList({"None preview", "Cancel", "With preview"}));
  }
  void theThirdButtonAddsAPreview() {
    answers_->answer = 2;
    QCOMPARE(document_->dataOfType(eps_), QByteArray("postScriptDataWithPreview"));
  }
  void anyOtherAnswerAddsNone() {
    answers_->answer = -1;
    QCOMPARE(document_->dataOfType(eps_), QByteArray("postScriptData"));
  }
  void withNobodyToAskNoPreviewIsAdded() {
    document_->setAlertPresenter(nullptr);
    QCOMPARE(document_->dataOfType(eps_), QByteArray("postScriptData"));
  }
  void cancelFailsThroughTheException() {
    answers_->answer = 1;
    expectUnimplemented(eps_, QStringLiteral("Canceled."));
  }
  void theIllustratorTypeFailsTheSameWay() {
    expectUnimplemented(QStringLiteral("com.adobe.illustrator.ai-image"),
                        QStringLiteral("Please retry with other format."));
  }
  void noBytesFailTheSameWay() {
    producers_.produce = false;
    expectUnimplemented(QStringLiteral("com.adobe.pdf"), QStringLiteral("Please retry with other format."));
  }

  void compressedSvgIsGzipInAnyLetterCase() {
    const QString path = folder_->filePath(QStringLiteral("a.SvgZ"));
    QVERIFY(document_->writeToURL(QUrl::fromLocalFile(path), QStringLiteral("public.svg-image")));
    QCOMPARE(contentOf(path).left(2).toHex(), QByteArray("1f8b"));
    QVERIFY(!document_->compressedData());
  }
  void afterCompressedComesPlain() {
    QVERIFY(document_->writeToURL(url("a.svgz"), QStringLiteral("public.svg-image")));
    QVERIFY(document_->writeToURL(url("a.svg"), QStringLiteral("public.svg-image")));
    QCOMPARE(contentOf(folder_->filePath(QStringLiteral("a.svg"))), QByteArray("svgData"));
  }
  void aFailedSaveLeavesTheOldFile() {
    QVERIFY(document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")));
    producers_.produce = false;
    QVERIFY_EXCEPTION_THROWN(document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")),
                             UnimplementedMethod);
    QCOMPARE(contentOf(folder_->filePath(QStringLiteral("a.pdf"))), QByteArray("pdfData"));
  }
  void whatCannotBeWrittenIsAnError() {
    DocumentError error;
    QVERIFY(!document_->writeToURL(url("no/such/folder/a.pdf"), QStringLiteral("com.adobe.pdf"), &error));
    QCOMPARE(error.domain, QStringLiteral("com.Norvex.ErrorDomain"));
    QCOMPARE(error.code, 5);  // 4 is for bytes that are not there
    QCOMPARE(error.recoverySuggestion, QStringLiteral("the folder to write to does not exist"));
  }
  void whatCouldNotBeOpenedAgainReplacesNothing() {
    QVERIFY(document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")));
    producers_.bytes = "%PDF-1.7\n1 0 obj";
    DocumentError error;
    QVERIFY(!document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf"), &error));
    QCOMPARE(error.recoverySuggestion, QStringLiteral("the result could not be opened again: it has no end"));
    QCOMPARE(error.code, 5);
    QCOMPARE(contentOf(folder_->filePath(QStringLiteral("a.pdf"))), QByteArray("pdfData"));
  }
  /// The picture that is shown was opened from just these bytes.
  void whatIsHandedOnAsItIsNeedsNoOtherOpening() {
    const auto showing = [this](const QByteArray& bytes) {
      producers_.shown =
          NSPDFImageRep::imageRepWithProcess(service_.open(bytes, PictureKind::Pdf), bytes, PictureFacts());
    };
    producers_.bytes = "%PDF-1.7\n1 0 obj";
    showing("%PDF-1.7\n");
    QVERIFY(!document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")));
    showing(producers_.bytes);
    QVERIFY(document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")));
    QCOMPARE(contentOf(folder_->filePath(QStringLiteral("a.pdf"))), producers_.bytes);
  }
  void aFileThatLacksSomethingReplacesAnotherOnlyWhenTheUserSaysSo() {
    QVERIFY(document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")));
    producers_.shortcoming = QStringLiteral("the source could not be read as text");
    answers_->answer = 1;
    QVERIFY(!document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")));
    QCOMPARE(answers_->shown.constLast().messageText, "The new file would hold less than the picture does.");
    QCOMPARE(answers_->shown.constLast().informativeText, producers_.shortcoming);
    QCOMPARE(answers_->shown.constLast().buttons, QStringList({"Replace", "Cancel"}));
    document_->setAlertPresenter(nullptr);  // nobody has said so
    QVERIFY(!document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")));
    document_->setAlertPresenter(answers_.get());
    answers_->answer = 0;
    QVERIFY(document_->writeToURL(url("a.pdf"), QStringLiteral("com.adobe.pdf")));
    const qsizetype asked = answers_->shown.size();
    QVERIFY(document_->writeToURL(url("new.pdf"), QStringLiteral("com.adobe.pdf")));
    QCOMPARE(answers_->shown.size(), asked);
  }

 private:
  void expectUnimplemented(const QString& type, const QString& suggestion) {
    DocumentError error{QStringLiteral("untouched"), 77, {}};
    try {
      (void)document_->dataOfType(type, &error);
      QFAIL("nothing was raised");
    } catch (const UnimplementedMethod& exception) {
      QCOMPARE(exception.reason(), QStringLiteral("dataOfType:error: is unimplemented"));
      QCOMPARE(exception.suggestion(), suggestion);
    }
    QCOMPARE(error.code, 77);
  }
  [[nodiscard]] QUrl url(const char* name) const {
    return QUrl::fromLocalFile(folder_->filePath(QLatin1String(name)));
  }
  static QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  const QString eps_ = QStringLiteral("com.adobe.encapsulated-postscript");
  NullPictureService service_;
  NamingProducers producers_;
  std::unique_ptr<Answers> answers_;
  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<Document> document_;
  QStringList log_;
};

NORVEX_TEST(DocumentWritingTest)
#include "document_writing_test.moc"
