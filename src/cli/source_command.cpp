// `norvex source`: the decoded source text, in UTF-8.
#include "base/time_limit.h"
#include "cli/files/input_file.h"
#include "cli/job.h"
#include "cli/value_reader.h"
#include "metadata/source_text.h"
#include "picture/picture_header.h"

namespace norvex {
namespace {

Result<QString> textOrError(PictureKind kind, const QByteArray& bytes, const HeaderDictionary& dictionary) {
  const QString text = sourceText(kind, bytes, dictionary.value(header::EncodingNumber, 0).toLongLong());
  if (!text.isEmpty()) return text;
  return Error{ErrorKind::NotParsable, QStringLiteral("the text is in no encoding that is known")};
}

Result<QString> svgText(PictureService& service, const QByteArray& bytes, const PictureLimits& limits) {
  const TimeLimit time(std::chrono::seconds(limits.seconds), {});
  service.openOnlyFor(PictureUse::Drawing);
  const auto process = service.open(bytes, PictureKind::Svg, limits);
  const Result<PictureFacts> facts = process->facts(time.token());
  if (!facts) return time.explained(facts.error());
  const Result<PictureBytes> pretty = process->svg({}, time.token());
  if (!pretty) return time.explained(pretty.error());
  return textOrError(PictureKind::Svg, pretty->bytes, pictureHeader(PictureKind::Svg, bytes, facts));
}

}  // namespace

ExitCode Job::source(const Arguments& arguments) {
  const QString file = arguments.files.first();
  ValueReader values(arguments);
  const PictureLimits limits = values.limits();
  if (!values.complaint().isEmpty()) return complain(Command::Source, values.complaint());
  const Result<QByteArray> bytes = readInput(console_, file);
  if (!bytes) return fail(file, bytes.error());
  const Result<PictureKind> kind = pictureKindOf(*bytes, sourceOfInput(*bytes, file).typeIdentifier);
  if (!kind) return fail(file, kind.error());
  if (*kind == PictureKind::Pdf) {
    (void)fail(file, {ErrorKind::Unsupported, QStringLiteral("a PDF has no source text")});
    return ExitCode::SomeFailed;
  }
  const Result<QString> text = *kind == PictureKind::Svg
                                   ? svgText(service_, *bytes, limits)
                                   : textOrError(*kind, *bytes, pictureHeader(*kind, *bytes, PictureFacts()));
  if (!text) return fail(file, text.error());
  // A terminal is not to be commanded by a document; a file or a pipe gets the text as it is.
  return show(console_.isTerminal() ? visible(*text, true) : *text);
}

}  // namespace norvex
