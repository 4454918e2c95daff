#include "cli/archive/file_job.h"

#include "base/file_name.h"

namespace norvex {
namespace {

/// Keeps what is told; the run's own standard input lists names and is no picture.
class FileConsole final : public Console {
 public:
  Result<QByteArray> input() override {
    return Error{ErrorKind::CannotRead, QStringLiteral("standard input holds no picture")};
  }
  bool write(const QByteArray& bytes) override {
    output += bytes;
    return true;
  }
  void message(const QString& line) override { messages += visible(line) + u'\n'; }
  void progress(const QString&) override {}
  [[nodiscard]] bool isClosed() const override { return false; }
  [[nodiscard]] bool isTerminal() const override { return false; }
  [[nodiscard]] bool showsProgress() const override { return true; }

  QByteArray output;
  QString messages;
};

class FileJob final : public Job {
 public:
  using Job::dispatch;
  using Job::Job;

  std::optional<Error> error;
  QString fault;

 private:
  void noteFault(const QString& sentence) override { fault = sentence; }
  ExitCode fail(const QString& file, const Error& told) override {
    if (!error) error = told;
    return Job::fail(file, told);
  }
};

}  // namespace

FileAnswer doWithFile(PictureService& service, const Arguments& arguments) {
  FileConsole console;
  FileJob job(console, service);
  FileAnswer answer;
  answer.code = job.dispatch(arguments);
  answer.error = job.error;
  answer.fault = job.fault;
  answer.output = console.output;
  answer.messages = console.messages;
  return answer;
}

Arguments argumentsForFile(const Arguments& run, const QByteArray& path, const QByteArray& output,
                           bool replace) {
  Arguments file;
  file.command = run.command;
  // "-" is a name like any other here.
  file.files << (path == "-" ? QStringLiteral("./-") : fileNameText(path));
  for (auto it = run.values.begin(); it != run.values.end(); ++it)
    if (!isAboutArchives(it.key()) && it.key() != Option::Folder && it.key() != Option::Jobs)
      file.values.insert(it.key(), it.value());
  if (!output.isEmpty()) file.values.insert(Option::Output, fileNameText(output));
  if (run.has(Option::JsonLines) && (rowOf(Option::Json).commands & only(run.command)))
    file.values.insert(Option::Json, {});
  if (replace) file.values.insert(Option::Force, {});
  return file;
}

}  // namespace norvex
