#include "print/cups_spooler.h"

#include <cups/cups.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>

#include "print/cups_library.h"
#include "print/step_guard.h"

namespace norvex {
namespace {

constexpr qsizetype kPieceBytes = 64 << 10;
constexpr int kSystemErrors = 134;  // numbers of errors that Linux knows

/// REQUIRES a connection, which there is only with the library.
const CupsLibrary& cups() {
  return *CupsLibrary::loaded();
}

/// Nobody is asked for a password: by itself the library would ask on the terminal, from whatever thread.
const char* noPassword(const char*, http_t*, const char*, const char*, void*) {
  return nullptr;
}

/// One connection, and how long it is waited for.
class Connection {
 public:
  Connection(const CancelToken& cancel, const CupsSpooler::Patience& patience)
      : cancel_(cancel), looksAtMost_(patience.looks), stepLooksAtMost_(patience.stepLooks) {
    if (!CupsLibrary::loaded()) return;
    cups().cupsSetPasswordCB2(noPassword, nullptr);
    http_ = cups().httpConnect2(cups().cupsServer(), cups().ippPort(), nullptr, AF_UNSPEC,
                                cups().cupsEncryption(), 1, patience.connectMilliseconds, nullptr);
    if (!http_) return;
    cups().httpSetTimeout(http_, patience.lookSeconds, &Connection::waitOn, this);
    // The library asks whether to wait on while nothing is heard; a byte now and then keeps it from asking.
    guard_.emplace(
        std::chrono::duration<double>(patience.lookSeconds),
        [this] { return isCancelled() || ++stepLooks_ >= stepLooksAtMost_; },
        [http = http_] { return cups().httpGetFd(http); });
  }
  ~Connection() {
    guard_.reset();
    if (http_) cups().httpClose(http_);
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  [[nodiscard]] bool isOpen() const { return http_ != nullptr; }
  [[nodiscard]] http_t* http() const { return http_; }
  /// Something was heard.
  void beginStep() {
    looks_ = 0;
    stepLooks_ = 0;
  }
  /// The step that follows is not broken off by cancelling: what it began would be left without an owner.
  void finishWhatIsBegun(bool finish) { finishes_ = finish; }
  /// Why an answer is missing; nothing when it is not for waiting.
  [[nodiscard]] std::optional<Error> whatBrokeIt() const {
    if (cancel_.cancelled()) return Error{ErrorKind::Cancelled, QStringLiteral("the printing was cancelled")};
    if (looks_ >= looksAtMost_ || stepLooks_ >= stepLooksAtMost_)
      return Error{ErrorKind::CannotWrite, QStringLiteral("the print service does not answer")};
    return std::nullopt;
  }

 private:
  [[nodiscard]] bool isCancelled() const { return cancel_.cancelled() && !finishes_; }
  static int waitOn(http_t*, void* self) {
    auto* const connection = static_cast<Connection*>(self);
    if (connection->isCancelled()) return 0;
    return ++connection->looks_ < connection->looksAtMost_ ? 1 : 0;
  }

  CancelToken cancel_;
  int looksAtMost_, stepLooksAtMost_;
  http_t* http_ = nullptr;
  int looks_ = 0;
  std::atomic<int> stepLooks_ = 0;
  std::atomic<bool> finishes_ = false;
  std::optional<StepGuard> guard_;
};

struct FreeInfo {
  void operator()(cups_dinfo_t* info) const { cups().cupsFreeDestInfo(info); }
};

/// The printers that the server knows.
class Destinations {
 public:
  explicit Destinations(http_t* http)
      : count_(cups().cupsGetDests2(http, &first_)),
        known_(count_ > 0 || cups().cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE ||
               cups().cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) {}
  ~Destinations() { cups().cupsFreeDests(count_, first_); }
  Destinations(const Destinations&) = delete;
  Destinations& operator=(const Destinations&) = delete;

  /// False: there is no list, which is not the same as an empty one.
  [[nodiscard]] bool areKnown() const { return known_; }
  [[nodiscard]] int count() const { return count_; }
  [[nodiscard]] cups_dest_t& at(int i) const { return first_[i]; }

 private:
  cups_dest_t* first_ = nullptr;
  int count_;
  bool known_;
};

class Options {
 public:
  ~Options() { cups().cupsFreeOptions(count_, first_); }
  Options() = default;
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  void add(const char* name, const QByteArray& value) {
    count_ = cups().cupsAddOption(name, value.constData(), count_, &first_);
  }
  [[nodiscard]] int count() const { return count_; }
  [[nodiscard]] cups_option_t* first() const { return first_; }

 private:
  cups_option_t* first_ = nullptr;
  int count_ = 0;
};

QString optionOf(const cups_dest_t& destination, const char* name) {
  return QString::fromUtf8(cups().cupsGetOption(name, destination.num_options, destination.options));
}

/// A queue with instances is listed once for each of them; the plain one stands for all.
bool isPlain(const cups_dest_t& destination) {
  return destination.instance == nullptr;
}

Printer printerOf(const cups_dest_t& destination) {
  Printer printer;
  printer.name = QString::fromUtf8(destination.name);
  printer.description = optionOf(destination, "printer-info");
  if (printer.description.isEmpty()) printer.description = printer.name;
  const int state = optionOf(destination, "printer-state").toInt();
  printer.state = state == IPP_PSTATE_STOPPED      ? PrinterState::Stopped
                  : state == IPP_PSTATE_PROCESSING ? PrinterState::Printing
                                                   : PrinterState::Idle;
  printer.acceptsJobs = optionOf(destination, "printer-is-accepting-jobs") != QLatin1String("false");
  printer.isDefault = destination.is_default != 0;
  return printer;
}

/// The service's last words, as the rest of a sentence. Nothing: where the service said none itself, the
/// library gives the C library's word for whatever went wrong there last, even "Success".
std::optional<QString> lastReason() {
  const QString text = QString::fromUtf8(cups().cupsLastErrorString());
  for (int number = 0; number < kSystemErrors; ++number)
    if (text == qt_error_string(number)) return std::nullopt;
  QString reason = text.simplified().left(200);
  while (reason.endsWith(u'.')) reason.chop(1);
  return reason.isEmpty() ? QStringLiteral("no reason is given") : reason;
}

Error notUnderstood() {
  return {ErrorKind::CannotWrite, QStringLiteral("the print service gives no answer that makes sense")};
}

Error refused(const QString& printer) {
  return {ErrorKind::CannotWrite, QStringLiteral("the printer “%1” takes no jobs").arg(printer)};
}

/// Why a printer did not take a job, from what the service said last.
Error notPrinted(const QString& printer) {
  switch (cups().cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
      return refused(printer);
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
      return {
          ErrorKind::CannotWrite,
          QStringLiteral("the printer “%1” wants a user name and a password, which are not asked for here")
              .arg(printer)};
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_FORBIDDEN:
      return {ErrorKind::CannotWrite,
              QStringLiteral("the printer “%1” is not open to this user").arg(printer)};
    default:
      break;
  }
  const std::optional<QString> reason = lastReason();
  if (!reason) return notUnderstood();
  return {ErrorKind::CannotWrite,
          QStringLiteral("the printer “%1” did not take the job: %2").arg(printer, *reason)};
}

/// The default printer when it is nobody's name.
Result<cups_dest_t*> chosen(const Destinations& all, const QString& name) {
  cups_dest_t* first = nullptr;
  for (int i = 0; i < all.count(); ++i) {
    cups_dest_t& destination = all.at(i);
    if (!isPlain(destination)) continue;
    if (!first) first = &destination;
    if (name.isEmpty() ? destination.is_default != 0 : QString::fromUtf8(destination.name) == name)
      return &destination;
  }
  if (!name.isEmpty())
    return Error{ErrorKind::CannotWrite, QStringLiteral("there is no printer named “%1”").arg(name)};
  return Error{ErrorKind::CannotWrite, first ? QStringLiteral("no printer is the default one")
                                             : QStringLiteral("there is no printer")};
}

void addTicket(Options& options, const PrintTicket& ticket) {
  options.add(CUPS_COPIES, QByteArray::number(std::max(1, ticket.copies)));
  if (!ticket.media.isEmpty()) options.add(CUPS_MEDIA, ticket.media.toUtf8());
  options.add(CUPS_ORIENTATION, ticket.landscape ? CUPS_ORIENTATION_LANDSCAPE : CUPS_ORIENTATION_PORTRAIT);
  options.add("print-scaling", "none");  // the pages have the paper's size, and a point shall stay one
}

bool sendPieces(Connection& connection, const QByteArray& pdf, const CancelToken& cancel) {
  for (qsizetype at = 0; at < pdf.size(); at += kPieceBytes) {
    if (cancel.cancelled()) return false;
    connection.beginStep();
    const qsizetype length = std::min(kPieceBytes, pdf.size() - at);
    if (cups().cupsWriteRequestData(connection.http(), pdf.constData() + at, size_t(length)) !=
        HTTP_STATUS_CONTINUE)
      return false;
  }
  connection.beginStep();
  return !cancel.cancelled();
}

/// The job's pages, once it has been made.
bool sendDocument(Connection& connection, cups_dest_t* destination, cups_dinfo_t* info, int job,
                  const QByteArray& title, const Options& options, const QByteArray& pdf,
                  const CancelToken& cancel) {
  http_t* const http = connection.http();
  connection.beginStep();
  return cups().cupsStartDestDocument(http, destination, info, job, title.constData(), CUPS_FORMAT_PDF,
                                      options.count(), options.first(), 1) == HTTP_STATUS_CONTINUE &&
         sendPieces(connection, pdf, cancel) &&
         cups().cupsFinishDestDocument(http, destination, info) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

}  // namespace

Result<QList<Printer>> CupsSpooler::printers(const CancelToken& cancel) {
  const Connection connection(cancel, patience_);
  if (!connection.isOpen()) return NullPrintSpooler::unreachable();
  const Destinations all(connection.http());
  if (const auto broken = connection.whatBrokeIt()) return *broken;
  if (!all.areKnown()) return notUnderstood();
  QList<Printer> printers;
  for (int i = 0; i < all.count(); ++i)
    if (isPlain(all.at(i))) printers << printerOf(all.at(i));
  return printers;
}

Result<int> CupsSpooler::print(const PrintTicket& ticket, const QByteArray& pdf, const CancelToken& cancel) {
  Connection connection(cancel, patience_);
  if (!connection.isOpen()) return NullPrintSpooler::unreachable();
  http_t* const http = connection.http();
  const Destinations all(http);
  if (const auto broken = connection.whatBrokeIt()) return *broken;
  if (!all.areKnown()) return notUnderstood();
  const Result<cups_dest_t*> destination = chosen(all, ticket.printer);
  if (!destination) return destination.error();
  const QString name = QString::fromUtf8((*destination)->name);
  if (!printerOf(**destination).acceptsJobs) return refused(name);
  connection.beginStep();
  const std::unique_ptr<cups_dinfo_t, FreeInfo> info(cups().cupsCopyDestInfo(http, *destination));
  if (const auto broken = connection.whatBrokeIt()) return *broken;
  if (!info) return notPrinted(name);
  Options options;
  addTicket(options, ticket);
  const QByteArray title = ticket.title.toUtf8();
  int job = 0;
  connection.beginStep();
  connection.finishWhatIsBegun(true);
  if (cups().cupsCreateDestJob(http, *destination, info.get(), &job, title.constData(), options.count(),
                               options.first()) > IPP_STATUS_OK_EVENTS_COMPLETE)
    return connection.whatBrokeIt().value_or(notPrinted(name));
  connection.finishWhatIsBegun(false);
  if (sendDocument(connection, *destination, info.get(), job, title, options, pdf, cancel)) return job;
  const Error error = connection.whatBrokeIt().value_or(notPrinted(name));
  const Connection other(CancelToken(),
                         patience_);  // the first one may wait for the rest of the document for ever
  if (other.isOpen()) cups().cupsCancelDestJob(other.http(), *destination, job);
  return error;
}

}  // namespace norvex
