// What a document's process answers, whatever its engines do.
#include "worker/document_server.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <new>
#include <stdexcept>

#include "kit/test_main.h"
#include "protocol/process_end.h"
#include "protocol/sealed_memory.h"

using namespace norvex;

namespace {

constexpr qsizetype kMegabyte = 1 << 20;

/// Pages that bring an engine into trouble when they are drawn.
enum TroubledPage { kWrongSize = 1, kNoMemory, kConfusion };

class TroubledEngine final : public engine::DocumentEngine {
 public:
  explicit TroubledEngine(double side) : side_(side) {}

  Result<PictureFacts> facts() override {
    PictureFacts facts;
    facts.pageBounds = {QRectF(0, 0, side_, side_)};
    return facts;
  }
  Result<engine::Bitmap> render(const RenderRequest& request) override {
    if (request.page == kNoMemory) throw std::bad_alloc();
    if (request.page == kConfusion) throw std::runtime_error("nobody reads this");
    return engine::Bitmap::create(request.pixelSize + QSize(request.page == kWrongSize ? 1 : 0, 0));
  }
  /// A megabyte, and as many bytes more.
  Result<engine::EngineBytes> pdf(const PdfRequest& request) override {
    return engine::EngineBytes{QByteArray(kMegabyte + request.page, 'p'), {}};
  }
  /// Told with the seconds of processor time that are granted to it.
  Result<engine::EngineBytes> compose(const ComposeRequest&) override {
    rlimit time = {};
    ::getrlimit(RLIMIT_CPU, &time);
    engine::EngineBytes composed{"composed", {}};
    composed.report.warnings = {QString::number(time.rlim_cur)};
    return composed;
  }

 private:
  const double side_;
};

/// A document is the length of its page's sides, and one of nothing cannot be opened.
EngineSet troubledEngines() {
  EngineSet engines;
  engines.onlyFacts = true;  // no thread, which must not begin in a fork of a program that has some
  engines.open = [](PictureKind, const QByteArray& bytes,
                    engine::EngineContext&) -> Result<std::unique_ptr<engine::DocumentEngine>> {
    if (bytes.isEmpty()) return Error{ErrorKind::NotParsable, QStringLiteral("there is nothing in it")};
    return std::unique_ptr<engine::DocumentEngine>(new TroubledEngine(bytes.toDouble()));
  };
  return engines;
}

/// A process that serves a document.
class Served {
 public:
  explicit Served(const EngineSet& engines = troubledEngines(), const std::optional<Error>& refusal = {},
                  int processors = 1) {
    auto pair = MessageChannel::makePair();
    if (!pair) qFatal("no connection");
    pid_ = ::fork();
    if (pid_ == 0) {
      pair->first.reset();
      engine::EngineContext context;
      context.processors = processors;
      DocumentServer(std::move(pair->second), engines, std::move(context), refusal).run();
    }
    channel_ = MessageChannel(std::move(pair->first));
  }
  ~Served() {
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
  }

  ReplyBody ask(const RequestBody& request, const QByteArray& bytes = {}) {
    const Result<FileDescriptor> memory = SealedMemory::seal(bytes);
    if (!memory || !channel_.send(encodeMessage(WorkerRequest{++id_, request}), memory->get()))
      return Error{ErrorKind::Died, QStringLiteral("not sent")};
    const Result<ChannelMessage> message = channel_.receive(QDeadlineTimer(60000));
    const Result<WorkerReply> reply = message ? decodeReply(message->cbor) : message.error();
    if (!reply) return reply.error();
    return reply->id == id_ ? reply->body : Error{ErrorKind::Died, QStringLiteral("another's answer")};
  }

  QString errorOf(const RequestBody& request, const QByteArray& bytes = {}) {
    const ReplyBody reply = ask(request, bytes);
    const Error* error = std::get_if<Error>(&reply);
    return error ? error->message : QString();
  }

  /// Opens a document for which a megabyte is allowed.
  QString errorOfOpening(const QByteArray& bytes = "8") {
    OpenRequest request;
    request.limits.memoryMiB = 1;
    request.limits.seconds = 10;
    return errorOf(request, bytes);
  }

 private:
  MessageChannel channel_;
  pid_t pid_ = 0;
  quint32 id_ = 0;
};

RenderRequest drawingOf(int page) {
  RenderRequest request;
  request.page = page;
  request.pixelSize = QSize(4, 3);
  return request;
}

const QString kNothingOpen = QStringLiteral("no picture has been opened");
const QString kNotHere = QStringLiteral("this cannot be done here");
const QString kNotProcessed = QStringLiteral("the picture could not be processed");

}  // namespace

class DocumentServerTest : public QObject {
  Q_OBJECT
 private slots:
  void withoutADocumentNothingIsDoneWithIt() {
    Served served;
    QCOMPARE(served.errorOf(drawingOf(0)), kNothingOpen);
    QCOMPARE(served.errorOf(PdfRequest()), kNothingOpen);
    QCOMPARE(served.errorOf(ComposeRequest()), kNothingOpen);
    QCOMPARE(served.errorOf(SvgRequest()), kNothingOpen);
    QCOMPARE(served.errorOf(ExamineRequest()), kNothingOpen);
  }

  void aProcessServesOneDocument() {
    Served served;
    QCOMPARE(served.errorOfOpening(""), QStringLiteral("there is nothing in it"));
    QCOMPARE(served.errorOf(drawingOf(0)), kNothingOpen);
    QCOMPARE(served.errorOfOpening(), QString());
    QCOMPARE(served.errorOfOpening(), kNothingOpen);
    const ReplyBody drawn = served.ask(drawingOf(0));
    QVERIFY(std::holds_alternative<BitmapReply>(drawn));
    QCOMPARE(std::get<BitmapReply>(drawn).pixelSize, QSize(4, 3));
  }

  void aProcessWithoutASandboxRefusesEverything() {
    const Error refusal{ErrorKind::NoSandbox, QStringLiteral("there is no sandbox")};
    Served served(troubledEngines(), refusal);
    QCOMPARE(served.errorOfOpening(), refusal.message);
    QCOMPARE(served.errorOf(DecodePreviewRequest(), "II*"), refusal.message);
  }

  void whatNoEngineDoesIsSaid() {
    Served served;
    QCOMPARE(served.errorOf(DecodePreviewRequest(), "II*"), kNotHere);
    QCOMPARE(served.errorOf(AttributesRequest(), "%PDF"), kNotHere);
    PagesRequest pages;
    pages.paper = QSizeF(100, 100);
    pages.sheets = {SheetPart()};
    QCOMPARE(served.errorOf(pages, "%PDF"), kNotHere);
    EngineSet none;
    none.onlyFacts = true;
    QCOMPARE(Served(none).errorOfOpening(), kNothingOpen);
  }

  /// And the document can be used as before.
  void anEngineInTroubleCostsOneAnswer() {
    Served served;
    QCOMPARE(served.errorOfOpening(), QString());
    QCOMPARE(served.errorOf(drawingOf(kWrongSize)), kNotProcessed);
    QCOMPARE(served.errorOf(drawingOf(kNoMemory)), memoryUsedUp().message);
    QCOMPARE(served.errorOf(drawingOf(kConfusion)), kNotProcessed);
    QCOMPARE(served.errorOf(drawingOf(0)), QString());
  }

  void aResultHasNoMoreBytesThanTheDocumentMayUse() {
    Served served;
    QCOMPARE(served.errorOfOpening(), QString());
    QCOMPARE(served.errorOf(PdfRequest{0}), QString());
    QCOMPARE(served.errorOf(PdfRequest{1}), memoryUsedUp().message);
  }

  /// What is granted in wall time, for each of the two threads that may draw, and 31 seconds.
  void processorTimeIsGrantedForTwoThreadsAtMost() {
    const auto granted = [](int processors) {
      Served served(troubledEngines(), {}, processors);
      if (!served.errorOfOpening().isEmpty()) return QString();
      const ReplyBody reply = served.ask(ComposeRequest());
      const BytesReply* composed = std::get_if<BytesReply>(&reply);
      return composed ? composed->warnings.value(0) : QString();
    };
    QCOMPARE(granted(0), "41");
    QCOMPARE(granted(1), "41");
    QCOMPARE(granted(2), "51");
    QCOMPARE(granted(8), "51");
  }

  void measuresThatCannotBeToldAreAnError() {
    Served served;
    QCOMPARE(served.errorOfOpening("1e30"),
             QStringLiteral("the measures of the picture are larger than can be handled"));
    QCOMPARE(served.errorOf(ComposeRequest()), QString());
  }

  void aPreviewIsWholeAndInterleaved() {
    NSBitmapImageRep preview;
    preview.pixelsWide = 3, preview.pixelsHigh = 2, preview.bytesPerRow = 3;
    preview.colorSpaceName = NSCalibratedWhiteColorSpace;
    preview.data = QByteArray(6, 'x');
    EngineSet engines = troubledEngines();
    engines.decodePreview = [&](const QByteArray&, const PictureLimits&) { return preview; };
    const ReplyBody whole = Served(engines).ask(DecodePreviewRequest(), "II*");
    QVERIFY(std::holds_alternative<PreviewReply>(whole));
    QCOMPARE(std::get<PreviewReply>(whole).pixelsHigh, 2);
    preview.isPlanar = true;
    QCOMPARE(Served(engines).errorOf(DecodePreviewRequest(), "II*"), kNotProcessed);
    preview.isPlanar = false;
    preview.data.chop(1);
    QCOMPARE(Served(engines).errorOf(DecodePreviewRequest(), "II*"), kNotProcessed);
  }
};

NORVEX_TEST(DocumentServerTest)
#include "document_server_test.moc"
