#include "cli/archive/state_report.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>

#include "base/atomic_file.h"
#include "base/file_descriptor.h"
#include "base/file_name.h"
#include "cli/archive/contact_sheet.h"
#include "cli/archive/state/run_state.h"
#include "cli/archive/state/state_summary.h"
#include "cli/files/console.h"
#include "cli/files/json_output.h"

namespace norvex {
namespace {

constexpr char kBegin[] =
    "<!DOCTYPE html>\n<html lang=en><meta charset=utf-8><meta name=generator content=\"Norvex\">"
    "<title>Archive</title>\n";
constexpr char kStyle[] =
    "body{font:15px/1.5 sans-serif;margin:2em auto;max-width:60em;padding:0 1em;color:#222;background:#fff}"
    "table{border-collapse:collapse;width:100%}td,th{text-align:left;padding:.35em .8em .35em 0;"
    "border-bottom:1px solid #ddd;vertical-align:top;overflow-wrap:anywhere}td.n{text-align:right;"
    "white-space:nowrap}.sheet{display:flex;flex-wrap:wrap;gap:1em}figure{margin:0;width:18em;padding:.6em;"
    "border:1px solid #ddd;border-radius:6px}figure img{width:8.6em;height:8.6em;object-fit:contain;"
    "background:#f4f4f4}figcaption{font-size:12px;overflow-wrap:anywhere}"
    "@media(prefers-color-scheme:dark){body{background:#1b1b1b;color:#ddd}td,th,figure{border-color:#444}}";

QString html(const QString& text) {
  return visible(text).toHtmlEscaped();
}

QString row(const QString& name, const QString& value) {
  return QStringLiteral("<tr><td>%1<td class=n>%2\n").arg(name, value);
}

QString countsTable(const StateSummary& summary) {
  QString table = QStringLiteral("<table>\n");
  table += row(QStringLiteral("Done"), QString::number(summary.done));
  table += row(QStringLiteral("Failed"), QString::number(summary.failed));
  table += row(QStringLiteral("Set aside: they made their picture process end"),
               QString::number(summary.setAside));
  table += row(QStringLiteral("Begun and not done"), QString::number(summary.begun));
  if (summary.rest) table += row(QStringLiteral("Left"), QString::number(*summary.rest));
  if (summary.filesASecond > 0)
    table += row(QStringLiteral("Files a second"), QString::number(summary.filesASecond, 'f', 1));
  table += row(QStringLiteral("Seconds of work"), QString::number(summary.seconds, 'f', 1));
  if (summary.memoryKiB > 0)
    table += row(QStringLiteral("Most memory of a picture, MiB"),
                 QString::number((summary.memoryKiB + 1023) / 1024));
  return table + QStringLiteral("</table>\n");
}

QString failuresTable(const StateSummary& summary) {
  if (summary.failures.isEmpty()) return QStringLiteral("<p>None.</p>\n");
  QString table = QStringLiteral("<table>\n<tr><th>Files<th>Cause<th>For example\n");
  for (const StateSummary::Failure& failure : summary.failures)
    table +=
        QStringLiteral("<tr><td class=n>%1<td>%2<td>%3\n")
            .arg(QString::number(failure.count), html(failure.sentence), html(fileNameText(failure.example)));
  return table + QStringLiteral("</table>\n");
}

QString picture(const QByteArray& png) {
  if (png.isEmpty()) return {};
  return QStringLiteral("<img alt=\"\" src=\"data:image/png;base64,%1\">")
      .arg(QString::fromLatin1(png.toBase64()));
}

QString contactSheet(Database& state, PictureService& service) {
  QString sheet;
  for (const ChangedPicture& changed : mostChanged(state, service)) {
    sheet += QStringLiteral("<figure>%1%2<figcaption>%3 % became an image<br>%4</figcaption></figure>\n")
                 .arg(picture(changed.before), picture(changed.after),
                      QString::number(changed.share * 100, 'f', 1), html(fileNameText(changed.path)));
  }
  if (sheet.isEmpty()) return QStringLiteral("<p>No picture became an image in any part.</p>\n");
  return QStringLiteral("<div class=sheet>\n%1</div>\n").arg(sheet);
}

QByteArray page(Database& state, PictureService& service) {
  const StateSummary summary = summaryOf(state);
  QString text = QLatin1String(kBegin);
  text += QStringLiteral("<meta name=viewport content=\"width=device-width\">\n<style>%1</style>\n")
              .arg(QLatin1String(kStyle));
  text += QStringLiteral("<h1>Archive</h1>\n") + countsTable(summary);
  text += QStringLiteral("<h2>Failures</h2>\n") + failuresTable(summary);
  text += QStringLiteral("<h2>What changed most</h2>\n") + contactSheet(state, service);
  return text.toUtf8();
}

QJsonObject objectOf(const RunEntry& entry) {
  QJsonObject object{{"outcome", QLatin1String(nameOf(entry.outcome))},
                     {"bytes", entry.stamp.size},
                     {"time", entry.stamp.time},
                     {"seconds", entry.seconds},
                     {"finished", entry.finished}};
  const auto insert = [&](const char* key, const QString& text) {
    if (!text.isEmpty()) object.insert(QLatin1String(key), text);
  };
  insertName(object, QStringLiteral("file"), fileNameText(entry.path));
  insert("sha256", QString::fromLatin1(entry.content.toHex()));
  insert("error", entry.sentence);
  if (!entry.output.isEmpty()) insertName(object, QStringLiteral("output"), fileNameText(entry.output));
  insert("outputSha256", QString::fromLatin1(entry.outputContent.toHex()));
  if (entry.memoryKiB > 0) object.insert(u"memoryKiB", entry.memoryKiB);
  if (entry.changed > 0) object.insert(u"becameImage", entry.changed);
  return object;
}

Error cannotWrite() {
  return {ErrorKind::CannotWrite,
          QStringLiteral("the report cannot be written (%1)").arg(qt_error_string(errno))};
}

/// Line by line: there may be millions.
Result<void> writeLines(Database& state, const QByteArray& report) {
  const QByteArray part = report + ".part";
  const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(part.constData(), "we"), &std::fclose);
  if (!file) return cannotWrite();
  Statement rows =
      state.prepare((QByteArray("SELECT ") + entryColumns + " FROM entry ORDER BY path").constData());
  bool good = true;
  while (good && rows.step()) {
    const QByteArray line = jsonLine(objectOf(readEntry(rows)));
    good = std::fwrite(line.constData(), 1, size_t(line.size()), file.get()) == size_t(line.size());
  }
  good = good && !rows.failed() && std::fflush(file.get()) == 0 && ::fsync(::fileno(file.get())) == 0 &&
         std::rename(part.constData(), report.constData()) == 0;
  if (good) return {};
  const Error error = cannotWrite();
  ::unlink(part.constData());
  return error;
}

}  // namespace

bool isStateReport(const QByteArray& path) {
  constexpr qsizetype longestLine = 1 << 16;
  // Nobody may ever write to a pipe or a terminal: neither is waited for, nor read.
  const FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status = {};
  if (!file.valid() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  QByteArray begin(longestLine, '\0');
  begin.truncate(std::max<qsizetype>(0, ::read(file.get(), begin.data(), size_t(longestLine))));
  if (begin.isEmpty() || begin.startsWith(kBegin)) return true;
  const QJsonObject first = QJsonDocument::fromJson(begin.left(begin.indexOf('\n'))).object();
  return first.contains(u"file") && first.contains(u"outcome") && first.contains(u"finished");
}

Result<void> writeStateReport(Database& state, PictureService& service, const QByteArray& report) {
  if (report.endsWith(".jsonl")) return writeLines(state, report);
  return writeFileAtomically(fileNameText(report), page(state, service), IfExists::Replace);
}

}  // namespace norvex
