// A CUPS server of a test's own, on loopback.
#pragma once

#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>

#include <cups/cups.h>

#include <signal.h>

#include <algorithm>

#include "kit/program.h"

namespace norvex::outside {

/// Serves while it lives. Its folder, port and printers are its own; it knows nothing of the system's
/// printers.
class PrintServer {
 public:
  /// Why there is none; empty when it serves.
  QString start() {
    const QString program = QStandardPaths::findExecutable("cupsd", {"/usr/sbin", "/usr/bin", "/sbin"});
    admin_ = QStandardPaths::findExecutable("lpadmin", {"/usr/sbin", "/usr/bin", "/sbin"});
    if (program.isEmpty() || admin_.isEmpty()) return QStringLiteral("CUPS's server is not installed");
    port_ = freePort();
    QFile::setPermissions(folder_.path(), QFile::permissions(folder_.path()) | QFile::ReadOther |
                                              QFile::ExeOther);  // for the filters' user
    for (const char* each : {"state/certs", "cache", "spool/tmp", "out"}) QDir(folder_.path()).mkpath(each);
    write("cupsd.conf",
          QStringLiteral(
              "LogLevel warn\nAccessLogLevel all\nMaxLogSize 0\nListen 127.0.0.1:%1\nBrowsing "
              "Off\nDefaultAuthType None\n"
              "WebInterface No\nPreserveJobFiles Yes\nPreserveJobHistory Yes\n"
              "<Location />\nAllow all\n</Location>\n<Location /admin>\nAllow all\n</Location>\n"
              "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\n<Limit All>\nAllow all\n"
              "</Limit>\n</Policy>\n"
              "<Policy locked>\nJobPrivateAccess all\nJobPrivateValues none\n"
              "<Limit Create-Job Print-Job>\nAuthType Basic\nRequire valid-user\n</Limit>\n"
              "<Limit All>\nAllow all\n</Limit>\n</Policy>\n")
              .arg(port_));
    QString files = QStringLiteral(
        "FileDevice Yes\nLogFilePerm 0644\nServerRoot %1\nStateDir %1/state\nCacheDir %1/cache\n"
        "RequestRoot %1/spool\nTempDir %1/spool/tmp\nAccessLog %1/access_log\n"
        "ErrorLog %1/error_log\nPageLog %1/page_log\n");
    write("cups-files.conf", files.arg(folder_.path()));
    server_.setStandardOutputFile(QProcess::nullDevice());
    server_.setStandardErrorFile(folder_.filePath("said"));
    server_.start(program,
                  {"-f", "-c", folder_.filePath("cupsd.conf"), "-s", folder_.filePath("cups-files.conf")});
    for (int i = 0; i < 200 && server_.state() != QProcess::NotRunning; ++i) {
      QTcpSocket socket;
      socket.connectToHost(QHostAddress::LocalHost, port_);
      if (socket.waitForConnected(100)) return {};
      QThread::msleep(50);
      server_.waitForFinished(1);
    }
    return QStringLiteral("CUPS's server does not start here");
  }
  ~PrintServer() { stop(); }

  void stop() {
    if (server_.state() == QProcess::NotRunning) return;
    goOn();
    server_.terminate();
    if (!server_.waitForFinished(10000)) server_.kill();
    server_.waitForFinished();
  }

  /// What makes CUPS's programs and libraries ask this server.
  [[nodiscard]] QString environment() const { return QStringLiteral("CUPS_SERVER=127.0.0.1:%1").arg(port_); }
  [[nodiscard]] QString address() const { return environment().section(u'=', 1); }

  /// A queue that takes what it is given as it is.
  [[nodiscard]] bool addPrinter(const QString& name) {
    return tell(admin_, {"-p", name, "-E", "-v", "file:" + folder_.filePath("out/" + name)});
  }
  /// A queue that takes PDF as the filters for its description make it.
  [[nodiscard]] bool addPrinter(const QString& name, const QString& description) {
    return tell(admin_,
                {"-p", name, "-E", "-v", "file:" + folder_.filePath("out/" + name), "-P", description});
  }
  [[nodiscard]] bool makeDefault(const QString& name) { return tell(admin_, {"-d", name}); }
  [[nodiscard]] bool removePrinter(const QString& name) { return tell(admin_, {"-x", name}); }
  [[nodiscard]] bool refuseJobs(const QString& name) { return tell(tool("cupsreject"), {name}); }
  [[nodiscard]] bool wantPassword(const QString& name) {
    return tell(admin_, {"-p", name, "-o", "printer-op-policy=locked"});
  }
  [[nodiscard]] bool denyEverybody(const QString& name) {
    return tell(admin_, {"-p", name, "-u", "allow:nobody-at-all"});
  }
  /// Takes connections and answers nothing until it goes on.
  void pause() { ::kill(pid_t(server_.processId()), SIGSTOP); }
  void goOn() { ::kill(pid_t(server_.processId()), SIGCONT); }
  [[nodiscard]] bool stopPrinter(const QString& name) { return tell(tool("cupsdisable"), {name}); }

  /// What was handed over for a job, in the order of the jobs.
  [[nodiscard]] QStringList spooledFiles() const {
    const QDir spool(folder_.filePath("spool"));
    QStringList paths;
    for (const QString& name : spool.entryList({"d*-001"}, QDir::Files, QDir::Name))
      paths << spool.filePath(name);
    return paths;
  }
  /// What came out of a queue's printer at last.
  [[nodiscard]] QString printed(const QString& name) const { return folder_.filePath("out/" + name); }
  /// How often something was asked for, as the protocol calls it.
  [[nodiscard]] int requests(const QByteArray& operation) const {
    QFile log(folder_.filePath("access_log"));
    return log.open(QIODevice::ReadOnly) ? int(log.readAll().count(' ' + operation + ' ')) : 0;
  }
  /// How many jobs there are, all or those that are not over.
  [[nodiscard]] int jobs(int which = CUPS_WHICHJOBS_ALL) const {
    http_t* const http = connect();
    if (!http) return -1;
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs2(http, &jobs, nullptr, 0, which);
    cupsFreeJobs(std::max(count, 0), jobs);
    httpClose(http);
    return count;
  }
  /// The title of a job as the server tells it; empty when there is no such job.
  [[nodiscard]] QString jobTitle(int id) const {
    http_t* const http = connect();
    if (!http) return {};
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs2(http, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
    QString title;
    for (int i = 0; i < count; ++i)
      if (jobs[i].id == id) title = QString::fromUtf8(jobs[i].title);
    cupsFreeJobs(count, jobs);
    httpClose(http);
    return title;
  }
  /// An attribute of a job as the server keeps it, written as text; empty when it has none.
  [[nodiscard]] QString jobAttribute(int id, const char* name) const {
    http_t* const http = connect();
    if (!http) return {};
    ipp_t* const request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray job = "ipp://localhost/jobs/" + QByteArray::number(id);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, job.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ipp_t* const answer = cupsDoRequest(http, request, "/");
    char text[256] = "";
    if (ipp_attribute_t* const found = ippFindAttribute(answer, name, IPP_TAG_ZERO))
      ippAttributeString(found, text, sizeof text);
    ippDelete(answer);
    httpClose(http);
    return QString::fromUtf8(text);
  }

 private:
  [[nodiscard]] http_t* connect() const {
    return httpConnect2("127.0.0.1", port_, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1, 5000,
                        nullptr);
  }
  static quint16 freePort() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
  }
  void write(const QString& name, const QString& text) {
    QFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
      qFatal("cannot write a configuration");
  }
  static QString tool(const char* name) {
    return QStandardPaths::findExecutable(QString::fromLatin1(name), {"/usr/sbin", "/usr/bin", "/sbin"});
  }
  bool tell(const QString& program, const QStringList& arguments) {
    return kit::run(program, arguments, {}, 30, {environment()}).exitCode == 0;
  }

  QTemporaryDir folder_;
  QString admin_;
  QProcess server_;
  quint16 port_ = 0;
};

}  // namespace norvex::outside
