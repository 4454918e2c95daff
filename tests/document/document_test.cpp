#include "document/document.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThreadPool>

#include <array>

#include "base/background_work.h"
#include "base/bundle.h"
#include "document/document_types.h"
#include "document/memory_window_controller.h"
#include "document/unimplemented_method.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"
#include "types/uniform_type.h"

using namespace norvex;

class DocumentTest : public QObject {
  Q_OBJECT

  NullPictureService service_;
  QStringList log_;
  std::unique_ptr<Document> make() {
    return std::make_unique<Document>(service_, kit::loggingFactory(&log_));
  }

 private slots:
  void init() { log_.clear(); }

  void theFiveTypesAreAccepted_data() {
    QTest::addColumn<QString>("type");
    for (const char* type :
         {"com.adobe.encapsulated-postscript", "com.Tembrolix.epsi", "com.adobe.illustrator.ai-image",
          "com.adobe.pdf", "public.svg-image", "com.Tembrolix.svgz"})
      QTest::newRow(type) << type;
  }
  void theFiveTypesAreAccepted() {
    QFETCH(QString, type);
    QVERIFY(make()->readFromData(QByteArray("x"), type));
  }

  void aSubtypeOfEncapsulatedPostScriptIsAccepted() {
    UTType::exportedTypeWithIdentifier("org.example.kind-of-eps", {"com.adobe.encapsulated-postscript"});
    UTType::exportedTypeWithIdentifier("org.example.kind-of-kind-of-eps", {"org.example.kind-of-eps"});
    QVERIFY(make()->readFromData(QByteArray("%!PS"), "org.example.kind-of-eps"));
    QVERIFY(make()->readFromData(QByteArray("%!PS"), "org.example.kind-of-kind-of-eps"));
  }

  void theTypesAreTriedInTheirOrder() {
    QCOMPARE(acceptedDocumentTypes(),
             (QStringList{"com.adobe.encapsulated-postscript", "com.Tembrolix.epsi",
                          "com.adobe.illustrator.ai-image", "com.adobe.pdf", "public.svg-image"}));
  }

  void aSubtypeOfEachAcceptedTypeIsAccepted_data() {
    QTest::addColumn<QString>("type");
    for (const QString& type : acceptedDocumentTypes()) QTest::newRow(qPrintable(type)) << type;
  }
  void aSubtypeOfEachAcceptedTypeIsAccepted() {
    QFETCH(QString, type);
    const QString kind = QStringLiteral("org.example.kind-of.") + type.toLower();
    QVERIFY_EXCEPTION_THROWN((void)make()->readFromData(QByteArray("x"), kind), UnimplementedMethod);
    UTType::exportedTypeWithIdentifier(kind, {type});
    QVERIFY(make()->readFromData(QByteArray("x"), kind));
  }

  void anUnacceptedTypeRaisesUnimplementedMethod_data() {
    QTest::addColumn<QString>("type");
    for (const char* type :
         {"public.png", "public.plain-text", "com.adobe.postscript", "public.data", "org.example.unknown"})
      QTest::newRow(type) << type;
    QTest::newRow("no type") << QString();
  }
  void anUnacceptedTypeRaisesUnimplementedMethod() {
    QFETCH(QString, type);
    for (const bool present : {true, false}) {
      const auto data = present ? std::optional<QByteArray>("x") : std::nullopt;
      DocumentError error{"untouched", 77, "untouched"};
      try {
        make()->readFromData(data, type, &error);
        QFAIL("nothing was raised");
      } catch (const UnimplementedMethod& exception) {
        QCOMPARE(exception.name(), QString("UnimplementedMethod"));
        QCOMPARE(exception.reason(), QString("readFromData:ofType:error: is unimplemented"));
        QCOMPARE(QByteArray(exception.what()), QByteArray("readFromData:ofType:error: is unimplemented"));
      }
      QCOMPARE(error.domain, QString("untouched"));
      QCOMPARE(error.code, 77);
      QCOMPARE(error.recoverySuggestion, QString("untouched"));
    }
  }

  void zeroBytesThatArePresentAreAccepted() {
    DocumentError error;
    QVERIFY(make()->readFromData(QByteArray(), "com.adobe.pdf", &error));
    QVERIFY(make()->readFromData(QByteArray(""), "com.adobe.pdf", &error));
    QCOMPARE(error.code, 0);
  }

  void absentDataFailsWithCodeOneAndBadData() {
    DocumentError error;
    QVERIFY(!make()->readFromData(std::nullopt, "com.adobe.encapsulated-postscript", &error));
    QCOMPARE(error.code, 1);
    QCOMPARE(error.recoverySuggestion, QString("Bad data."));
    QCOMPARE(error.domain, errorDomain());
  }

  void absentDataWithoutAnErrorParameterIsJustFalse() {
    QVERIFY(!make()->readFromData(std::nullopt, "com.adobe.encapsulated-postscript"));
    QVERIFY(log_.isEmpty());
  }

  void theErrorDomainIsTheBundleIdentifierAndErrorDomain() {
    QCOMPARE(errorDomain(), bundleIdentifier() + ".ErrorDomain");
    QCOMPARE(errorDomain(), QString("com.Norvex.ErrorDomain"));
  }

  void everyTypeMayBeReadConcurrently() {
    for (const QString& type : acceptedDocumentTypes())
      QVERIFY(Document::canConcurrentlyReadDocumentsOfType(type));
    QVERIFY(Document::canConcurrentlyReadDocumentsOfType("public.plain-text"));
  }

  void severalThreadsReadAtOnce() {
    const auto document = make();
    const auto read = [&](int i) {
      DocumentError error;
      try {
        if (i % 3 == 2)
          return document->readFromData(std::nullopt, "com.adobe.pdf", &error) ? -1 : error.code;
        return document->readFromData(QByteArray("x"), i % 3 ? "public.png" : "public.svg-image", &error)
                   ? 100
                   : -1;
      } catch (const UnimplementedMethod&) {
        return 200;
      }
    };
    std::array<int, 200> answers{};
    QThreadPool pool;
    for (int i = 0; i < 200; ++i) startWork(pool, [&, i] { answers[size_t(i)] = read(i); });
    waitForWork(pool);
    for (int i = 0; i < 200; ++i) QCOMPARE(answers[size_t(i)], (QList<int>{100, 200, 1})[i % 3]);
  }

  void makingTheControllerTellsItToCloseTheDocumentAndAddsIt() {
    auto document = make();
    QVERIFY(!document->windowController());
    document->makeWindowControllers();
    QVERIFY(document->windowController());
    QCOMPARE(log_, (QStringList{"closes document", "added"}));
    document->makeWindowControllers();
    QCOMPARE(log_.size(), 2);
  }

  void destructionUnregistersTheControllerBeforeItReleasesIt() {
    auto document = make();
    document->makeWindowControllers();
    log_.clear();
    document.reset();
    QCOMPARE(log_, (QStringList{"removed", "destroyed"}));
  }

  void aPlaceIsToldWhenItIsAnother() {
    const auto document = make();
    QSignalSpy told(document.get(), &Document::fileURLChanged);
    document->setFileURL(QUrl::fromLocalFile("/a.eps"));
    document->setFileURL(QUrl::fromLocalFile("/a.eps"));
    QCOMPARE(told.size(), 1);
    document->setFileURL(QUrl::fromLocalFile("/b.eps"));
    QCOMPARE(told.size(), 2);
  }

  void closingTheWindowClosesTheDocumentOnce() {
    auto document = make();
    document->makeWindowControllers();
    QSignalSpy closed(document.get(), &Document::closed);
    auto* controller = static_cast<kit::MemoryWindowController*>(document->windowController());
    controller->closeWindow();
    controller->closeWindow();
    QCOMPARE(closed.size(), 1);
  }

  void revertLoadsAgainThenRedraws() {
    QTemporaryDir folder;
    QFile file(folder.filePath("a.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("%PDF-1.4");
    file.close();
    auto document = make();
    document->setFileURL(QUrl::fromLocalFile(file.fileName()));
    document->setFileType("com.adobe.pdf");
    document->makeWindowControllers();
    log_.clear();
    document->revertDocumentToSaved();
    QCOMPARE(log_, (QStringList{"loaded", "displayed"}));
  }

  void revertHandsTheBytesAndTheTypeOver() {
    class Reading final : public Document {
     public:
      using Document::Document;
      bool readFromData(const std::optional<QByteArray>& data, const QString& ofType,
                        DocumentError* error) const override {
        given << std::pair(data, ofType);
        return Document::readFromData(data, ofType, error);
      }
      mutable QList<std::pair<std::optional<QByteArray>, QString>> given;
    };
    QTemporaryDir folder;
    QFile file(folder.filePath("a.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray bytes("%PDF-1.4\n\0\xFF", 11);
    file.write(bytes);
    file.close();
    Reading document(service_, kit::loggingFactory(&log_));
    document.setFileURL(QUrl::fromLocalFile(file.fileName()));
    document.setFileType("com.adobe.pdf");
    document.makeWindowControllers();
    document.revertDocumentToSaved();
    QCOMPARE(document.given.size(), 1);
    QCOMPARE(document.given[0].first, std::optional(bytes));
    QCOMPARE(document.given[0].second, QString("com.adobe.pdf"));
    QVERIFY(file.remove());
    document.revertDocumentToSaved();
    QCOMPARE(document.given[1].first, std::optional<QByteArray>());
    QCOMPARE(document.given[1].second, QString("com.adobe.pdf"));
  }

  void revertOfAFileThatIsGoneLoadsAgainAndAsksNothing() {
    auto document = make();
    document->setFileURL(QUrl::fromLocalFile("/nonexistent/gone.eps"));
    document->setFileType("com.adobe.encapsulated-postscript");
    document->makeWindowControllers();
    log_.clear();
    document->revertDocumentToSaved();
    QCOMPARE(log_, (QStringList{"loaded", "displayed"}));
  }

  void theDisplayNameIsTheFilesName() {
    auto document = make();
    QCOMPARE(document->displayName(), QString("Untitled"));
    document->setFileURL(QUrl::fromLocalFile("/tmp/My Pictures/a b%20c.eps"));
    QCOMPARE(document->displayName(), QString("a b%20c.eps"));
  }
};

NORVEX_TEST(DocumentTest)
#include "document_test.moc"
