#include "cli/archive/file_work.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cerrno>
#include <chrono>

#include "base/file_descriptor.h"
#include "base/file_name.h"
#include "cli/archive/standstill.h"
#include "cli/files/console.h"
#include "picture/process/peak_memory.h"
#include "picture/told_error.h"
#include "types/gzip_mark.h"
#include "types/picture_format.h"

namespace norvex {
namespace {

constexpr int kAttempts = 3;  ///< with a file that changes

bool hasDied(const FileAnswer& answer) {
  return answer.error && (answer.error->kind == ErrorKind::Died || answer.error->kind == ErrorKind::Protocol);
}

bool hasTimedOut(const FileAnswer& answer) {
  return answer.error && answer.error->kind == ErrorKind::TimedOut;
}

/// True if one process alone will work on it: PostScript takes an interpreter besides.
bool needsOneProcess(const QByteArray& path) {
  const FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  char begin[8] = {};
  const ssize_t count = file.valid() ? ::pread(file.get(), begin, sizeof begin, 0) : 0;
  const QByteArrayView bytes(begin, qsizetype(std::max<ssize_t>(count, 0)));
  return bytes.startsWith("%PDF-") || bytes.startsWith("<") || isGzip(bytes) ||
         bytes.startsWith("\xEF\xBB\xBF<");
}

/// True if no file of that name can be.
bool isTooLong(const QByteArray& path) {
  struct stat status {};
  return ::lstat(path.constData(), &status) != 0 && errno == ENAMETOOLONG;
}

Verdict verdictOf(const FileAnswer& answer) {
  if (answer.code == ExitCode::Done) return Verdict::Done;
  if (answer.code == ExitCode::Interrupted) return Verdict::Interrupted;
  if (hasDied(answer)) return answer.isNoFault ? Verdict::Unwritten : Verdict::SetAside;
  const bool isElsewhere = answer.code == ExitCode::CannotWrite || answer.code == ExitCode::NoSandbox ||
                           answer.code == ExitCode::Usage;
  return isElsewhere ? Verdict::Unwritten : Verdict::Failed;
}

Outcome outcomeOf(Verdict verdict) {
  switch (verdict) {
    case Verdict::Done:
      return Outcome::Done;
    case Verdict::Failed:
      return Outcome::Failed;
    case Verdict::SetAside:
      return Outcome::SetAside;
    default:
      return Outcome::Begun;
  }
}

/// The share of the area that a conversion to vectors had to turn into an image.
double changedShare(const QByteArray& report) {
  const QJsonObject told = QJsonDocument::fromJson(report).array().first().toObject();
  const auto format = formatNamed(told.value(u"format").toString().toStdString());
  if (!format || isRaster(*format)) return 0;
  return told.value(u"rasterized").toObject().value(u"areaShare").toDouble();
}

/// What the command writes for this file, for a reader who sees that of others before and behind it.
QByteArray namedText(const ArchivePlan& plan, const QByteArray& path, const QByteArray& text) {
  const bool tellsItsFile = plan.jsonLines || plan.arguments.has(Option::Json);
  if (plan.arguments.command != Command::Inks || tellsItsFile || text.isEmpty()) return text;
  return visible(fileNameText(path)).toUtf8() + ":\n" + text;
}

}  // namespace

RunEntry begunEntry(const ArchivePlan& plan, const FileTask& task) {
  RunEntry entry;
  entry.path = absolutePath(task.name.path);
  entry.settings = plan.settings;
  if (!task.output.isEmpty()) entry.output = absolutePath(task.output);
  return entry;
}

int FileWork::memoryOf(const QByteArray& path) const {
  if (plan_.memoryTotalMiB == 0) return 0;
  return needsOneProcess(path) ? plan_.memoryMiB : 2 * plan_.memoryMiB;
}

FileAnswer FileWork::attempt(const FileTask& task, bool replace) const {
  Arguments arguments = argumentsForFile(plan_.arguments, task.name.path, task.output, replace);
  const bool reports = (rowOf(Option::Json).commands & only(arguments.command)) != 0;
  if (plan_.outputs && reports) arguments.values.insert(Option::Json, {});
  {
    const WorkPlaces::Turn turn = places_.take(memoryOf(task.name.path));
    const FileAnswer answer = doWithFile(service_, arguments);
    if (!hasDied(answer) || cancel_.cancelled()) return answer;
  }
  const WorkPlaces::Turn turn = places_.takeAlone();
  FileAnswer answer = doWithFile(service_, arguments);
  answer.isNoFault = hasDied(answer) && !canReadPictures(task.name.path);
  return answer;
}

/// True if processes of others do their work: what ends that of a file is then the file.
bool FileWork::canReadPictures(const QByteArray& path) const {
  const bool postScript = !needsOneProcess(path);
  const QByteArray picture = postScript ? "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\nshowpage\n"
                                        : "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
  const auto process = service_.open(picture, postScript ? PictureKind::Eps : PictureKind::Svg);
  return process->facts(cancel_).ok();
}

FileResult FileWork::run(const FileTask& task) const {
  FileResult result;
  result.number = task.number;
  result.path = task.name.path;
  result.entry = begunEntry(plan_, task);
  const PeakMemory memory;
  const auto begun = std::chrono::steady_clock::now();
  const qint64 since = fileClock();
  FileAnswer answer;
  if (const auto made = plan_.outputs ? plan_.outputs->makeFoldersOf(task.output) : Result<void>(); !made) {
    answer = {ExitCode::CannotWrite, made.error(), false, {}, {}, {}};
    answer.messages = QStringLiteral("norvex: %1: %2\n").arg(fileNameText(task.output), made.error().message);
    judge(result, task, answer);
    return result;
  }
  bool again = true, changes = false;
  for (int i = 0; i < kAttempts && again && !cancel_.cancelled(); ++i) {
    if (i > 0 && plan_.outputs && !plan_.outputs->checkFolder()) break;  // nothing there is ours to replace
    const auto before = markOf(task.name.path);
    if (!plan_.state.isEmpty()) result.entry.content = contentHash(task.name.path).value_or(QByteArray());
    const int stood = timesStoodStill();
    answer = attempt(task, task.replace || i > 0);
    changes = before != markOf(task.name.path);
    // The time in which the whole program stood still is not the file's.
    again = changes || (hasTimedOut(answer) && stood != timesStoodStill());
    result.entry.stamp = before ? before->stamp : FileStamp();
  }
  if (changes && answer.code == ExitCode::Done) {
    if (!task.output.isEmpty()) plan_.outputs->takeBack(task.output, since);  // it shows what the file was
    const QString sentence = QStringLiteral("it is being changed by another program");
    answer = {ExitCode::CannotRead, Error{ErrorKind::CannotRead, sentence}, false, {}, {}, {}};
    answer.messages = QStringLiteral("norvex: %1: %2\n").arg(fileNameText(task.name.path), sentence);
    result.entry.stamp = {};
  }
  if (cancel_.cancelled() && answer.code != ExitCode::Done) answer.code = ExitCode::Interrupted;
  judge(result, task, answer);
  result.entry.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
  result.entry.memoryKiB = memory.kib();
  result.entry.finished = QDateTime::currentSecsSinceEpoch();
  keepOutput(result, task, answer, since);
  return result;
}

void FileWork::judge(FileResult& result, const FileTask& task, const FileAnswer& answer) const {
  result.code = answer.code;
  result.verdict = verdictOf(answer);
  if (result.verdict == Verdict::Unwritten && !task.output.isEmpty()) {
    if (isTooLong(task.output)) result.verdict = Verdict::Failed;  // no other time will do
    result.isInTheWay = !task.replace && !plan_.arguments.has(Option::Force) && stampOf(task.output);
  }
  result.messages = result.verdict == Verdict::Interrupted ? QString() : answer.messages;
  result.text = namedText(plan_, result.path, answer.output);
  result.sentence = answer.error ? toldError(*answer.error).sentence : answer.fault;
  // One reason is one reason, whatever file it hits.
  if (!task.output.isEmpty())
    result.sentence.remove(fileNameText(result.entry.output) + QStringLiteral(": "));
  result.entry.outcome = outcomeOf(result.verdict);
  result.entry.sentence = result.sentence;
}

void FileWork::keepOutput(FileResult& result, const FileTask& task, const FileAnswer& answer,
                          qint64 since) const {
  if (result.verdict != Verdict::Done) result.entry.output = QByteArray();
  if (result.verdict != Verdict::Done || task.output.isEmpty()) return;
  if (const auto folder = plan_.outputs->checkFolder(); !folder) {
    plan_.outputs->takeBack(task.output, since);  // it may have been written where nobody looks for it
    return lose(result, task, folder.error().message);
  }
  if (plan_.state.isEmpty()) return;
  result.entry.changed = changedShare(answer.output);
  const auto stamp = stampOf(task.output);
  const auto hash = contentHash(task.output);
  if (!stamp || !hash) return lose(result, task, QStringLiteral("the result has disappeared"));
  result.entry.outputStamp = *stamp;
  result.entry.outputContent = *hash;
}

/// It was written and has gone already.
void FileWork::lose(FileResult& result, const FileTask& task, const QString& sentence) const {
  result.verdict = Verdict::Unwritten;
  result.code = ExitCode::CannotWrite;
  result.sentence = sentence;
  result.messages = QStringLiteral("norvex: %1: %2\n").arg(fileNameText(task.output), result.sentence);
  result.entry.outcome = Outcome::Begun;
}

}  // namespace norvex
