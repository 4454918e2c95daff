#include "cli/archive/archive_plan.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QThread>
#include <QtEndian>

#include <cstdlib>
#include <utility>
#include <vector>

#include "base/atomic_file.h"
#include "base/file_name.h"
#include "base/latin1_text.h"
#include "cli/archive/names/list_source.h"
#include "cli/archive/names/tree_source.h"
#include "cli/archive/state/file_stamp.h"
#include "cli/value_reader.h"

namespace norvex {
namespace {

/// The files that stand among the arguments.
class GivenNames final : public NameSource {
 public:
  GivenNames(QStringList files, QByteArray base) : files_(std::move(files)), base_(std::move(base)) {}

  std::optional<Listed> next() override {
    if (next_ == files_.size()) return std::nullopt;
    const QByteArray path = fileNameBytes(files_[next_++]);
    if (const auto place = placeOf(path, base_)) return ListedName{path, *place};
    return PassedOver{path, QStringLiteral("it does not lie below the folder of --base"), true};
  }

 private:
  const QStringList files_;
  const QByteArray base_;
  qsizetype next_ = 0;
};

/// One source after the other.
class ChainedNames final : public NameSource {
 public:
  void add(std::unique_ptr<NameSource> source) { sources_.push_back(std::move(source)); }

  std::optional<Listed> next() override {
    for (; at_ < sources_.size(); ++at_)
      if (auto listed = sources_[at_]->next()) return listed;
    return std::nullopt;
  }
  bool wouldWait() override { return at_ < sources_.size() && sources_[at_]->wouldWait(); }

 private:
  std::vector<std::unique_ptr<NameSource>> sources_;
  size_t at_ = 0;
};

QByteArray bytesOf(const Arguments& arguments, Option option) {
  return fileNameBytes(arguments.values.value(option));
}

QList<QByteArray> patternsOf(const Arguments& arguments, Option option) {
  QList<QByteArray> patterns;
  for (const QString& pattern : arguments.lists.value(option)) patterns << fileNameBytes(pattern);
  return patterns;
}

/// Options that change how a run goes and not what comes out.
bool isAboutTheRun(Option option) {
  switch (option) {
    case Option::Folder:
    case Option::Jobs:
    case Option::Force:
    case Option::Quiet:
    case Option::Json:
    case Option::Timeout:
    case Option::Memory:
      return true;
    default:
      return isAboutArchives(option);
  }
}

QByteArray settingsHash(const Arguments& arguments) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  const auto add = [&](const QByteArray& text) { hash.addData(text + '\0'); };
  add(QByteArray::number(int(arguments.command)));
  for (const OptionRow& row : optionTable) {  // in the table's order, whatever the order of the arguments
    if (isAboutTheRun(row.id) || !arguments.has(row.id)) continue;
    add(QByteArray(row.name.data(), qsizetype(row.name.size())));
    add(bytesOf(arguments, row.id));
    if (row.id == Option::Profile) add(contentHash(bytesOf(arguments, row.id)).value_or(QByteArray()));
  }
  return hash.result();
}

Shard readShard(const Arguments& arguments, ValueReader& values) {
  Shard shard;
  shard.byContent = arguments.values.value(Option::ShardBy) == QLatin1String("content");
  if (!arguments.has(Option::Shard)) return shard;
  const QStringList parts = arguments.values.value(Option::Shard).split(u'/');
  shard.index = parts.value(0).toInt();
  shard.count = parts.value(1).toInt();
  if (parts.size() != 2 || shard.index < 1 || shard.count < shard.index)
    values.complain(QStringLiteral("--shard is I/N: part I of N, from 1"));
  return shard;
}

void readLimits(ArchivePlan& plan, ValueReader& values) {
  plan.jobs = values.integer(Option::Jobs, QThread::idealThreadCount(), 1, 256);
  plan.memoryMiB = values.limits().memoryMiB;
  plan.memoryTotalMiB = values.integer(Option::MemoryTotal, 0, 64, 1 << 26);
  if (plan.memoryTotalMiB > 0 && plan.memoryTotalMiB < plan.memoryMiB)
    values.complain(QStringLiteral("--memory-total is less than one picture may take (--memory, %1)")
                        .arg(plan.memoryMiB));
}

/// True if a result would lie where the run, or the next one, finds it as a file to work on.
bool readsItsResults(const ArchivePlan& plan) {
  if (!plan.tree || !plan.outputs) return false;
  if (!isSameFile(fileNameText(*plan.tree), fileNameText(plan.outputs->folder()))) return false;
  const QByteArray sample = "picture";
  const QByteArray output = plan.outputs->outputOf({sample, sample});
  const QByteArray name = output.mid(output.lastIndexOf('/') + 1);
  return name == sample || (plan.filter.takes(name) && !plan.filter.excludes(name));
}

QString complaintAbout(const ArchivePlan& plan) {
  const bool writes = (rowOf(Option::Folder).commands & only(plan.arguments.command)) != 0;
  if (writes && !plan.outputs) return QStringLiteral("--to DIR is needed");
  const bool isReport = plan.report.endsWith(".html") || plan.report.endsWith(".jsonl");
  if (!plan.report.isEmpty() && !isReport) return QStringLiteral("a report ends in .html or .jsonl");
  if (!plan.report.isEmpty() && absolutePath(plan.report) == absolutePath(plan.state))
    return QStringLiteral("--state and --report name the same file");
  if (readsItsResults(plan))
    return QStringLiteral(
        "--to is the folder that is read, and its results would be taken for pictures to read; choose "
        "another "
        "one, or leave them out by --exclude");
  return {};
}

}  // namespace

bool Shard::holds(const QByteArray& hashed) const {
  if (count == 1) return true;
  const QByteArray hash = QCryptographicHash::hash(hashed, QCryptographicHash::Sha256);
  return int(qFromBigEndian<quint64>(hash.constData()) % quint64(count)) == index - 1;
}

QByteArray absolutePath(const QByteArray& path) {
  if (path.startsWith('/')) return path;
  static const QByteArray here = [] {
    char* folder = ::get_current_dir_name();
    const QByteArray bytes = folder ? folder : "/";
    ::free(folder);
    return bytes;
  }();
  QByteArray rest = path;
  while (rest.startsWith("./")) rest.remove(0, 2);
  return pathBelow(here, rest);
}

bool ArchivePlan::isOurs(const ListedName& name) const {
  if (shard.count == 1) return true;
  if (!shard.byContent) return shard.holds(name.below);
  return shard.holds(contentHash(name.path).value_or(name.below));
}

bool ArchivePlan::isRewindable() const {
  struct stat status {};
  return !list || (*list != "-" && ::stat(list->constData(), &status) == 0 && S_ISREG(status.st_mode));
}

Result<std::unique_ptr<NameSource>> ArchivePlan::names(const CancelToken& cancel) const {
  auto chained = std::make_unique<ChainedNames>();
  if (!arguments.files.isEmpty()) chained->add(std::make_unique<GivenNames>(arguments.files, base));
  if (list) {
    Result<FileDescriptor> opened = openList(*list);
    if (!opened) return Error{opened.error().kind, fileNameText(*list) + ": " + opened.error().message};
    const char separator = arguments.has(Option::Null) ? '\0' : '\n';
    chained->add(std::make_unique<ListSource>(std::move(*opened), separator, base, cancel, *list));
  }
  if (tree)
    chained->add(
        std::make_unique<TreeSource>(*tree, filter, outputs ? outputs->folder() : QByteArray(), cancel));
  return std::unique_ptr<NameSource>(std::move(chained));
}

ReadArchivePlan readArchivePlan(const Arguments& arguments) {
  ReadArchivePlan read;
  ArchivePlan& plan = read.plan;
  ValueReader values(arguments);
  plan.arguments = arguments;
  if (arguments.has(Option::FilesFrom)) plan.list = bytesOf(arguments, Option::FilesFrom);
  if (arguments.has(Option::Recursive)) plan.tree = bytesOf(arguments, Option::Recursive);
  plan.base = bytesOf(arguments, Option::Base);
  plan.filter = {patternsOf(arguments, Option::Include), patternsOf(arguments, Option::Exclude)};
  // Nothing else can be repaired, and what was never meant is no failure.
  if (arguments.command == Command::Repair && plan.filter.include.isEmpty())
    plan.filter.include = {"*.[eE][pP][sS]", "*.[eE][pP][sS][fFiI]"};
  if (arguments.command == Command::Inks && plan.filter.include.isEmpty())
    plan.filter.include = {"*.[eE][pP][sS]", "*.[eE][pP][sS][fFiI]", "*.[aA][iI]", "*.[pP][dD][fF]"};
  plan.outputs = OutputNames::of(arguments);
  plan.state = bytesOf(arguments, Option::State);
  plan.report = bytesOf(arguments, Option::Report);
  plan.settings = settingsHash(arguments);
  plan.shard = readShard(arguments, values);
  readLimits(plan, values);
  plan.jsonLines = arguments.has(Option::JsonLines);
  plan.unordered = arguments.has(Option::Unordered);
  plan.retryFailed = arguments.has(Option::RetryFailed);
  plan.quiet = arguments.has(Option::Quiet);
  read.complaint = values.complaint().isEmpty() ? complaintAbout(plan) : values.complaint();
  return read;
}

}  // namespace norvex
