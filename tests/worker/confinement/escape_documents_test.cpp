#include "escape_documents.h"
#include "bomb_documents.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include "kit/test_main.h"
#include "picture/client/worker_service.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kWorker = QStringLiteral(NORVEX_BUILD_DIR "/norvex-layered-worker");

constexpr int kSeconds = 8;  ///< who waits at the FIFO waits so long

/// A folder of the user's that holds what documents are after.
class Home {
 public:
  Home() {
    put("secret.txt", kEscaped);
    QDir(path()).mkdir("Encoding");
    put("Encoding/secret", kEscaped);
    const QByteArray red = "<rect id='r' width='9' height='9' fill='red'/>";
    put("red.xml", red);
    put("red.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>" + red +
                       "<marker id='m' overflow='visible'><rect x='-9' y='-9' width='18' height='18' "
                       "fill='red'/></marker><pattern id='p' width='1' height='1'><rect width='9' height='9' "
                       "fill='red'/></pattern></svg>");
    put("red.dtd", "<!ENTITY red \"" + red + "\">");
    put("red.css", ".r { fill: red !important }");
    ::mkfifo(QFile::encodeName(path() + "/fifo").constData(), 0600);
    serve();
    before_ = state();
  }
  [[nodiscard]] QString path() const { return folder_.path(); }
  /// The document with the paths of this folder.
  [[nodiscard]] QByteArray fill(QByteArray text) const {
    const QByteArray home = QFile::encodeName(path());
    QByteArray asName = home + "/fifo";
    text.replace("$FIFO_AS_NAME", asName.replace("/", "#2F"));
    return text.replace("$SECRET", home + "/secret.txt")
        .replace("$NEW", home + "/new")
        .replace("$FIFO", home + "/fifo")
        .replace("$SERVER", server_)
        .replace("$HOME", home);
  }
  [[nodiscard]] bool isUntouched() const { return state() == before_; }
  /// True if somebody has called the server.
  [[nodiscard]] bool isCalled() const {
    return FileDescriptor(::accept4(listening_.get(), nullptr, nullptr, SOCK_CLOEXEC)).valid();
  }

 private:
  void serve() {
    listening_.reset(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    if (::bind(listening_.get(), any, size) != 0 || ::listen(listening_.get(), 8) != 0 ||
        ::getsockname(listening_.get(), any, &size) != 0)
      qFatal("nothing can be served");
    server_ = "127.0.0.1:" + QByteArray::number(ntohs(address.sin_port));
  }
  void put(const QString& name, const QByteArray& text) {
    QFile file(path() + u'/' + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) qFatal("no files can be made");
  }
  [[nodiscard]] QStringList state() const {
    QStringList all;
    for (const QFileInfo& entry :
         QDir(path()).entryInfoList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System, QDir::Name))
      all << QStringLiteral("%1 %2").arg(entry.fileName()).arg(entry.size());
    return all;
  }
  QTemporaryDir folder_;
  FileDescriptor listening_;
  QByteArray server_;
  QStringList before_;
};

/// With two bytes a character, and the mark that tells their order.
QByteArray widened(const QByteArray& text) {
  QByteArray wide("\xFE\xFF");
  for (const char c : text) wide.append('\0').append(c);
  return wide;
}

/// How the picture process is confined.
struct Way {
  const char* layers;  ///< nullptr: all
  bool safer;
};
constexpr Way kWays[] = {{nullptr, true}, {nullptr, false}, {"landlock", false}, {"calls,view", false}};

class ConfinedService {
 public:
  explicit ConfinedService(const Way& way) {
    qputenv("NORVEX_TEST_SECRET", "secret");
    if (way.layers != nullptr) qputenv("NORVEX_TEST_LAYERS", way.layers);
    if (!way.safer) qputenv("NORVEX_TEST_WITHOUT_SAFER", "1");
    service_ = std::make_unique<WorkerService>(kWorker);
    if (!service_->start()) qFatal("%s cannot be started", qPrintable(kWorker));
    for (const char* name : {"NORVEX_TEST_LAYERS", "NORVEX_TEST_WITHOUT_SAFER", "NORVEX_TEST_SECRET"})
      qunsetenv(name);
  }
  /// Draws the picture; what went wrong is told in `error`.
  QImage drawn(const QByteArray& bytes, PictureKind kind, Error& error,
               const PictureLimits& limits = {kSeconds, 1024, 100}) {
    const auto process = service_->open(bytes, kind, limits);
    RenderRequest request;
    request.pixelSize = QSize(9, 9);
    const Result<QImage> image = process->render(request);
    if (!image) error = image.error();
    return image ? *image : QImage();
  }

  /// Has the inks of a page separated by Ghostscript; what went wrong is told in `error`.
  void separate(const QByteArray& pdf, Error& error) {
    const auto process = service_->open(pdf, PictureKind::Pdf, {kSeconds, 1024, 100});
    ExamineRequest request;
    request.what = Examination::Inks;
    const auto inks = process->examine(request);
    error = inks ? Error{ErrorKind::CannotRead, {}} : inks.error();
  }

  /// Reads a preview, whatever is in it; what went wrong is told in `error`.
  void decode(const QByteArray& tiff, Error& error) {
    const auto preview = service_->decodePreview(tiff);
    if (!preview) error = preview.error();
  }

 private:
  std::unique_ptr<WorkerService> service_;
};

/// Of a document that asks for too much: it is drawn in part, refused, or reaches a limit that is told.
bool isBounded(const Error& error) {
  return error.kind != ErrorKind::Died && error.kind != ErrorKind::NoSandbox &&
         error.kind != ErrorKind::Protocol;
}

/// A failure of the program other than that the interpreter stopped it would hide whether it got out.
QString howItEnded(ConfinedService& service, const EscapeDocument& document, PictureKind kind) {
  const Home home;
  Error error{ErrorKind::CannotRead, {}};
  const QByteArray text = home.fill(document.text);
  const QImage image = service.drawn(document.isWide ? widened(text) : text, kind, error);
  if (error.message.contains(QLatin1String(kEscaped))) return QStringLiteral("got out");
  if (error.kind == ErrorKind::TimedOut || error.kind == ErrorKind::Died ||
      error.kind == ErrorKind::NoSandbox)
    return error.message;
  for (int i = 0; i < 9 * 9 && !image.isNull(); ++i)
    if (image.pixelColor(i % 9, i / 9) == QColor(Qt::red)) return QStringLiteral("has read what is red");
  if (home.isCalled()) return QStringLiteral("has called the server");
  return home.isUntouched() ? QString() : QStringLiteral("has changed the folder");
}

/// The same of a page whose inks are separated.
QString howSeparatingEnded(ConfinedService& service, const EscapeDocument& document) {
  const Home home;
  Error error{ErrorKind::CannotRead, {}};
  service.separate(home.fill(document.text), error);
  if (error.kind == ErrorKind::TimedOut || error.kind == ErrorKind::Died ||
      error.kind == ErrorKind::NoSandbox)
    return error.message;
  if (home.isCalled()) return QStringLiteral("has called the server");
  return home.isUntouched() ? QString() : QStringLiteral("has changed the folder");
}

}  // namespace

class EscapeDocumentsTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("builds with sanitizers leave layers out");
#endif
  }

  void confined_data() {
    QTest::addColumn<int>("way");
    QTest::newRow("as shipped") << 0;
    QTest::newRow("without Ghostscript's access control") << 1;
    QTest::newRow("without it, Landlock alone") << 2;
    QTest::newRow("without it, system calls and view alone") << 3;
  }

  void confined() {
    QFETCH(int, way);
    ConfinedService service(kWays[way]);
    QStringList out;
    const auto tryAll = [&](const QList<EscapeDocument>& documents, PictureKind kind) {
      for (const EscapeDocument& document : documents) {
        const QString ended = howItEnded(service, document, kind);
        if (!ended.isEmpty()) out << QLatin1String(document.name) + ": " + ended;
      }
    };
    tryAll(escapePrograms(), PictureKind::Eps);
    tryAll(escapeDrawings(), PictureKind::Svg);
    tryAll(escapePages(), PictureKind::Pdf);
    for (const EscapeDocument& page : escapePages()) {
      const QString ended = howSeparatingEnded(service, page);
      if (!ended.isEmpty()) out << QLatin1String(page.name) + ", separated: " + ended;
    }
    QVERIFY2(out.isEmpty(), qPrintable(out.join("; ")));
  }

  void bombsReachLimits_data() {
    confined_data();
  }
  void bombsReachLimits() {
    constexpr PictureLimits kFew{1, 256, 1};
    QFETCH(int, way);
    ConfinedService service(kWays[way]);
    QStringList out;
    const auto note = [&](const EscapeDocument& bomb, const Error& error) {
      if (!isBounded(error)) out << QLatin1String(bomb.name) + ": " + error.message;
    };
    const auto tryAll = [&](const QList<EscapeDocument>& bombs, PictureKind kind) {
      for (const EscapeDocument& bomb : bombs) {
        Error error;
        (void)service.drawn(bomb.text, kind, error, kFew);
        note(bomb, error);
      }
    };
    tryAll(bombPrograms(), PictureKind::Eps);
    tryAll(bombPages(), PictureKind::Pdf);
    tryAll(bombDrawings(), PictureKind::Svg);
    for (const EscapeDocument& bomb : bombPreviews()) {
      Error error;
      service.decode(bomb.text, error);
      note(bomb, error);
    }
    QVERIFY2(out.isEmpty(), qPrintable(out.join("; ")));
    Error error;
    QVERIFY(!service.drawn(drawing({}, {}), PictureKind::Svg, error).isNull());
  }

  /// Otherwise confined() would show nothing.
  void theProgramsGetOutWhereNothingConfinesThem() {
    ConfinedService service({"unconfined", false});
    QStringList kept;
    for (const EscapeDocument& document : escapePrograms())
      if (!document.stoppedElsewhere && howItEnded(service, document, PictureKind::Eps).isEmpty())
        kept << QLatin1String(document.name);
    QVERIFY2(kept.isEmpty(), qPrintable(kept.join(", ")));
  }

  /// Poppler opens any path for a character map: who waits at the FIFO has opened it.
  void aPageOpensFilesWhereNothingConfinesIt() {
    ConfinedService service({"unconfined", false});
    QVERIFY(!howItEnded(service, escapePages().first(), PictureKind::Pdf).isEmpty());
  }

  void withoutAnyLayerNothingIsRead() {
    ConfinedService service({"none", true});
    Error error;
    QVERIFY(service.drawn(drawing({}, {}), PictureKind::Svg, error).isNull());
    QCOMPARE(error.kind, ErrorKind::NoSandbox);
  }
};

NORVEX_TEST(EscapeDocumentsTest)
#include "escape_documents_test.moc"
