// `norvex text`: the words of the picture, in UTF-8 and in the order of reading.
#include "base/time_limit.h"
#include "cli/files/input_file.h"
#include "cli/job.h"
#include "cli/reader/reader_options.h"
#include "cli/value_reader.h"
#include "picture/process/page_text.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

/// The bytes of the source are opened as the representation that their type asks for.
Result<PageText> textOf(PictureService& service, const PictureSource& source, const PictureLimits& limits,
                        const CancelToken& cancel) {
  const auto opened = openPicture(service, source, limits, cancel);
  if (!opened) return opened.error();
  return pageText(*(*opened)->process(), source.page, cancel);
}

}  // namespace

ExitCode Job::text(const Arguments& arguments) {
  const QString file = arguments.files.first();
  ValueReader values(arguments);
  const PictureLimits picture = values.limits();
  const int page = values.integer(Option::Page, 1, 1, limits::maximumToldPages);
  if (!values.complaint().isEmpty()) return complain(Command::Text, values.complaint());
  const std::optional<ReaderOptions> reader = readerOf(arguments);
  if (!reader) return ExitCode::Usage;
  const Result<QByteArray> bytes = readInput(console_, file);
  if (!bytes) return fail(file, bytes.error());
  PictureSource source = sourceOfInput(*bytes, file);
  source.page = page - 1;
  const TimeLimit time(std::chrono::seconds(picture.seconds), {});
  const Result<QStringList> read = readAsOptioned(service_, source, *reader, picture, time.token());
  if (!read) return fail(file, time.explained(read.error()));
  const Result<PageText> found = textOf(service_, source, picture, time.token());
  if (!found) return fail(file, time.explained(found.error()));
  remark(file, *read);
  QString text = found->text;
  if (!text.isEmpty() && !text.endsWith(u'\n')) text += u'\n';
  if (!found->complete)
    console_.message(QStringLiteral("norvex: %1: there is more text than is written").arg(file));
  // A terminal is not to be commanded by a document; a file or a pipe gets the text as it is.
  return show(console_.isTerminal() ? visible(text, true) : text);
}

}  // namespace norvex
