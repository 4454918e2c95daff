// Jobs for a CUPS server of the test's own: what arrives, what is told when nothing does, and what is left
// behind.
#include "print/cups_spooler.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>
#include <optional>
#include <thread>

#include "base/file_descriptor.h"

#include "kit/test_main.h"
#include "print/talking_server.h"
#include "system/print_server.h"

using namespace norvex;

namespace {

PrintTicket ticketFor(const QString& printer) {
  PrintTicket ticket;
  ticket.printer = printer;
  ticket.title = "My Picture";
  ticket.media = "iso_a4_210x297mm";
  return ticket;
}

/// An address that takes no more connections, and refuses none.
class FullServer {
 public:
  FullServer() : listening_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const plain = reinterpret_cast<sockaddr*>(&address);
    if (::bind(listening_.get(), plain, size) != 0 || ::listen(listening_.get(), 0) != 0 ||
        ::getsockname(listening_.get(), plain, &size) != 0)
      return;
    port_ = ntohs(address.sin_port);
    for (FileDescriptor& each : waiting_) {
      each = FileDescriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
      (void)::connect(each.get(), plain, size);
    }
  }
  [[nodiscard]] QString address() const { return QStringLiteral("127.0.0.1:%1").arg(port_); }

 private:
  FileDescriptor listening_;
  std::array<FileDescriptor, 4> waiting_;
  int port_ = 0;
};

const QByteArray kPdf = "%PDF-1.4\n% what a queue of files takes as it is\n%%EOF\n";

}  // namespace

class CupsSpoolerTest : public QObject {
  Q_OBJECT

  std::unique_ptr<outside::PrintServer> server_;
  CupsSpooler spooler_;

  /// What is said of a job that is not taken; empty when it is.
  QString complaint(const QString& printer) {
    const Result<int> job = spooler_.print(ticketFor(printer), kPdf);
    return job ? QString() : job.error().message;
  }

 private slots:
  void init() {
    server_ = std::make_unique<outside::PrintServer>();
    if (const QString why = server_->start(); !why.isEmpty()) QSKIP(qPrintable(why));
    QVERIFY(server_->addPrinter("Office"));
    // The library remembers a server for each thread, and looks into the environment in new ones.
    qputenv("CUPS_SERVER", server_->address().toUtf8());
    ::cupsSetServer(qPrintable(server_->address()));
  }
  void cleanup() {
    server_.reset();
    ::cupsSetServer(nullptr);
    qunsetenv("CUPS_SERVER");
  }

  void theJobIsTakenWithItsTitle() {
    const Result<int> job = spooler_.print(ticketFor("Office"), kPdf);
    QVERIFY2(job.ok(), job ? "" : qPrintable(job.error().message));
    QCOMPARE(server_->jobTitle(*job), QString("My Picture"));
    QCOMPARE(server_->spooledFiles().size(), 1);
    QFile spooled(server_->spooledFiles().first());
    QVERIFY(spooled.open(QIODevice::ReadOnly));
    QCOMPARE(spooled.readAll(), kPdf);
  }

  /// Pages that are made for the paper must come out of the printer as large as they are.
  void theJobIsTakenWithItsCopiesAndItsPaperAndIsNotScaled() {
    PrintTicket ticket = ticketFor("Office");
    ticket.copies = 3;
    for (const bool landscape : {false, true}) {
      ticket.landscape = landscape;
      const Result<int> job = spooler_.print(ticket, kPdf);
      QVERIFY2(job.ok(), job ? "" : qPrintable(job.error().message));
      QCOMPARE(server_->jobAttribute(*job, "copies"), "3");
      QCOMPARE(server_->jobAttribute(*job, "media"), "iso_a4_210x297mm");
      QCOMPARE(server_->jobAttribute(*job, "orientation-requested"), landscape ? "landscape" : "portrait");
      QCOMPARE(server_->jobAttribute(*job, "print-scaling"), "none");
    }
  }

  void thePrintersAreListedWithTheirStates() {
    QVERIFY(server_->addPrinter("Attic") && server_->addPrinter("Hall"));
    QVERIFY(server_->makeDefault("Attic") && server_->refuseJobs("Hall") && server_->stopPrinter("Office"));
    const Result<QList<Printer>> printers = spooler_.printers();
    QVERIFY(printers.ok());
    QStringList told;
    for (const Printer& printer : *printers)
      told << printer.name + ": " + stateText(printer) + (printer.isDefault ? " (default)" : "");
    told.sort();
    QCOMPARE(told, (QStringList{"Attic: Ready (default)", "Hall: Takes no jobs", "Office: Stopped"}));
  }

  // ---- what must not happen ------------------------------------------------------------

  void aPrinterThatWasRemovedAfterItWasListedIsTold() {
    QCOMPARE(spooler_.printers()->size(), 1);
    QVERIFY(server_->removePrinter("Office"));
    QCOMPARE(complaint("Office"), QString("there is no printer named “Office”"));
    QCOMPARE(complaint(""), QString("there is no printer"));
    QCOMPARE(server_->jobs(), 0);
  }

  void withoutANameTheDefaultPrinterIsTaken() {
    QCOMPARE(complaint(""), QString("no printer is the default one"));
    QCOMPARE(server_->jobs(), 0);
    QVERIFY(server_->makeDefault("Office"));
    QCOMPARE(complaint(""), QString());
    QCOMPARE(server_->jobs(), 1);
  }

  void aPrinterThatRefusesIsTold() {
    QVERIFY(server_->refuseJobs("Office"));
    QCOMPARE(complaint("Office"), QString("the printer “Office” takes no jobs"));
    QCOMPARE(server_->jobs(), 0);
  }

  void aPrinterThatWantsAPasswordIsTold() {
    QVERIFY(server_->wantPassword("Office"));
    QCOMPARE(complaint("Office"),
             QString("the printer “Office” wants a user name and a password, which are not asked for here"));
    QCOMPARE(server_->jobs(), 0);
    QVERIFY(server_->addPrinter("Attic"));
    QCOMPARE(complaint("Attic"), QString());
  }

  void aPrinterForOthersAloneIsTold() {
    QVERIFY(server_->denyEverybody("Office"));
    QCOMPARE(complaint("Office"), QString("the printer “Office” is not open to this user"));
    QCOMPARE(server_->jobs(), 0);
  }

  void aServerThatIsGoneIsTold() {
    server_->stop();
    QCOMPARE(complaint("Office"), QString("the print service cannot be reached"));
    QCOMPARE(spooler_.printers().error().message, QString("the print service cannot be reached"));
  }

  void aServerThatTakesNoConnectionIsNotWaitedForForEver() {
    QCOMPARE(CupsSpooler::Patience().connectMilliseconds, limits::printerConnects);
    const FullServer full;
    ::cupsSetServer(qPrintable(full.address()));
    CupsSpooler spooler(CupsSpooler::Patience{50});
    QCOMPARE(spooler.printers().error().message, QString("the print service cannot be reached"));
    QCOMPARE(spooler.print(ticketFor("Office"), kPdf).error().message,
             QString("the print service cannot be reached"));
  }

  void aServerThatSaysNothingIsNotWaitedForForEver() {
    const CupsSpooler::Patience usual;
    QCOMPARE(usual.lookSeconds, limits::printerLookSeconds);
    QCOMPARE(usual.looks, limits::maximumPrinterLooks);
    server_->pause();
    CupsSpooler spooler(CupsSpooler::Patience{limits::printerConnects, 0.02, 3});
    const Result<int> job = spooler.print(ticketFor("Office"), kPdf);
    const Result<QList<Printer>> printers = spooler.printers();
    server_->goOn();
    QCOMPARE(job.error().kind, ErrorKind::CannotWrite);
    QCOMPARE(job.error().message, QString("the print service does not answer"));
    QCOMPARE(printers.error().message, QString("the print service does not answer"));
    QCOMPARE(server_->jobs(), 0);
  }

  void anAnswerThatMakesNoSenseIsNotTakenForNoPrinters_data() {
    QTest::addColumn<QByteArray>("answer");
    const QByteArray head =
        "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: 1000\r\n\r\n";
    QTest::newRow("none") << QByteArray();
    QTest::newRow("half of one") << head + QByteArray("\x02\x00\x00\x00\x00\x00\x00\x01\x01\x47\x00\x12", 12);
    QTest::newRow("something else") << head + QByteArray(1000, '~');
    QTest::newRow("an error") << QByteArray(
        "HTTP/1.1 500 Internal Server Error\r\nContent-Length: 0\r\n\r\n");
  }
  void anAnswerThatMakesNoSenseIsNotTakenForNoPrinters() {
    QFETCH(QByteArray, answer);
    const TalkingServer server(answer);
    ::cupsSetServer(qPrintable(server.address()));
    const Result<QList<Printer>> printers = spooler_.printers();
    QVERIFY(server.answers() > 0);
    QVERIFY2(!printers, "an empty list");
    QCOMPARE(printers.error().message, QString("the print service gives no answer that makes sense"));
    QCOMPARE(complaint("Office"), QString("the print service gives no answer that makes sense"));
    QCOMPARE(complaint(""), QString("the print service gives no answer that makes sense"));
  }

  void anAnswerThatDripsIsNotWaitedForForEver() {
    QCOMPARE(CupsSpooler::Patience().stepLooks, limits::maximumPrinterStepLooks);
    const TalkingServer server("HTTP/1.1 200 OK\r\n", true);
    ::cupsSetServer(qPrintable(server.address()));
    CupsSpooler spooler(CupsSpooler::Patience{limits::printerConnects, 0.05, 1000, 4});
    QCOMPARE(spooler.printers().error().message, QString("the print service does not answer"));
    QCOMPARE(spooler.print(ticketFor("Office"), kPdf).error().message,
             QString("the print service does not answer"));
  }

  void cancellingWhileAnAnswerDripsEndsIt() {
    const TalkingServer server("HTTP/1.1 200 OK\r\n", true);
    ::cupsSetServer(qPrintable(server.address()));
    qputenv("CUPS_SERVER", server.address().toUtf8());
    const CancelToken cancel;
    std::optional<Result<QList<Printer>>> printers;
    std::thread listing([&] { printers = spooler_.printers(cancel); });
    for (int i = 0; i < 2000 && server.answers() == 0; ++i) QThread::msleep(5);
    cancel.cancel();
    listing.join();
    QCOMPARE(printers->error().kind, ErrorKind::Cancelled);
  }

  void cancellingWhileNobodyAnswersLeavesNoJob() {
    server_->pause();
    const CancelToken cancel;
    std::optional<Result<int>> job;
    std::thread printing([&] { job = spooler_.print(ticketFor("Office"), kPdf, cancel); });
    std::optional<Result<QList<Printer>>> printers;
    std::thread listing([&] { printers = spooler_.printers(cancel); });
    QThread::msleep(300);  // until both wait; cancelled before that, they end as well
    cancel.cancel();
    printing.join();
    listing.join();
    QCOMPARE(job->error().kind, ErrorKind::Cancelled);
    QCOMPARE(printers->error().kind, ErrorKind::Cancelled);
    server_->goOn();
    QCOMPARE(server_->jobs(), 0);
    QCOMPARE(complaint("Office"), QString());
  }

  void cancellingWhileThePagesAreSentLeavesNoJob() {
    QVERIFY(server_->addPrinter("Attic"));
    const QByteArray large = kPdf + QByteArray(64 << 20, '%');
    const CancelToken cancel;
    std::optional<Result<int>> job;
    std::thread printing([&] { job = spooler_.print(ticketFor("Attic"), large, cancel); });
    for (int i = 0; i < 2000 && server_->jobs() == 0; ++i) QThread::msleep(5);
    cancel.cancel();
    printing.join();
    QCOMPARE(job->error().kind, ErrorKind::Cancelled);
    QCOMPARE(server_->jobs(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(server_->jobs(CUPS_WHICHJOBS_ACTIVE), 0, 20000);
    QVERIFY(!QFile::exists(server_->printed("Attic")) || QFileInfo(server_->printed("Attic")).size() == 0);
  }
};

NORVEX_TEST(CupsSpoolerTest)
#include "cups_spooler_test.moc"
