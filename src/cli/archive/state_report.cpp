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
#include "cli/archive/report_page.h"
#include "cli/archive/state/run_state.h"
#include "cli/files/json_output.h"

namespace norvex {
namespace {

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
  if (rows.failed()) {
    ::unlink(part.constData());
    return state.error();
  }
  good = good && std::fflush(file.get()) == 0 && ::fsync(::fileno(file.get())) == 0 &&
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
  if (begin.isEmpty() || begin.startsWith(reportPageBegin)) return true;
  const QJsonObject first = QJsonDocument::fromJson(begin.left(begin.indexOf('\n'))).object();
  return first.contains(u"file") && first.contains(u"outcome") && first.contains(u"finished");
}

Result<void> writeStateReport(const QByteArray& path, Database& state, PictureService& service,
                              const QByteArray& report) {
  if (report.endsWith(".jsonl")) return writeLines(state, report);
  const Result<StateSummary> summary = summaryOf(state);
  if (!summary) return summary.error();
  return writeFileAtomically(fileNameText(report), reportPage(path, *summary, mostChanged(state, service)),
                             IfExists::Replace);
}

}  // namespace norvex
