// `norvex inks`: the inks of a page, and their plates.
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include "base/interruption.h"
#include "base/time_limit.h"
#include "cli/files/input_file.h"
#include "cli/files/json_output.h"
#include "cli/inks/ink_report.h"
#include "cli/inks/plate_files.h"
#include "cli/job.h"
#include "cli/reader/reader_options.h"
#include "cli/value_reader.h"
#include "picture/eps_image_rep.h"
#include "picture/open_picture.h"
#include "protocol/limits.h"
#include "types/type_identification.h"

namespace norvex {
namespace {

Result<SeparatedPage> inksOf(PictureService& service, PictureSource source, const ReaderOptions& reader,
                             const PictureLimits& limits, const SeparationRequest& request) {
  const Result<PictureKind> kind = pictureKindOf(source.bytes, source.typeIdentifier);
  if (!kind) return kind.error();
  // What no other command opens is not run as a program either.
  if (*kind == PictureKind::Eps)
    if (const Result<QRectF> box = NSEPSImageRep::boxOf(source.bytes); !box) return box.error();
  const Interruption interruption;
  const TimeLimit time(std::chrono::seconds(limits.seconds), interruption.token());
  const Result<QStringList> read = readAsOptioned(service, source, reader, limits, time.token());
  if (!read) return time.explained(read.error());
  const auto process = service.open(source.bytes, *kind, limits);
  Result<SeparatedPage> page = separatedPage(*process, *kind, request, time.token());
  if (!page) return time.explained(page.error());
  page->warnings = *read + page->warnings;
  return page;
}

/// In front of the inks' names.
QString baseOfPlates(const Arguments& arguments) {
  const QString& file = arguments.files.first();
  const QString name = file == u"-" ? QStringLiteral("plate") : QFileInfo(file).completeBaseName();
  return arguments.has(Option::Page) ? name + u'-' + arguments.values.value(Option::Page) : name;
}

/// The object of a page, each of its inks with the file of its plate. `plates`: as writePlates() gives them;
/// empty: none were written.
QJsonObject withPlates(QJsonObject object, const QStringList& plates) {
  QJsonArray inks = object.take("inks").toArray();
  for (qsizetype i = 0; i < std::min(inks.size(), plates.size()); ++i) {
    QJsonObject ink = inks.at(i).toObject();
    insertName(ink, QStringLiteral("plate"), plates.at(i));
    inks.replace(i, ink);
  }
  object.insert("inks", inks);
  return object;
}

}  // namespace

ExitCode Job::inks(const Arguments& arguments) {
  ValueReader values(arguments);
  const PictureLimits limits = values.limits();
  SeparationRequest request;
  request.dpi = values.number(Option::Dpi, request.dpi, 1, limits::maximumDpi);
  request.page = values.integer(Option::Page, 1, 1, limits::maximumPageNumber) - 1;
  request.overprint = arguments.has(Option::Overprint);
  if (!values.complaint().isEmpty()) return complain(Command::Inks, values.complaint());
  const std::optional<ReaderOptions> reader = readerOf(arguments);
  if (!reader) return ExitCode::Usage;
  const QString& file = arguments.files.first();
  const Result<QByteArray> bytes = readInput(console_, file);
  if (!bytes) return fail(file, bytes.error());
  const Result<SeparatedPage> page = inksOf(service_, sourceOfInput(*bytes, file), *reader, limits, request);
  if (!page) return fail(file, page.error());
  QStringList plates;
  if (arguments.has(Option::Plates)) {
    const Result<QStringList> written = writePlates(page->inks, arguments.values.value(Option::Plates),
                                                    baseOfPlates(arguments), arguments.has(Option::Force));
    if (!written) return fail(file, written.error());
    plates = *written;
  }
  if (!arguments.has(Option::Json)) {
    for (const QString& warning : page->warnings)
      console_.message(QStringLiteral("norvex: %1: %2").arg(file, warning));
    return show(visible(inkLines(*page), true));
  }
  QJsonObject object = withPlates(inkObject(*page), plates);
  insertName(object, QStringLiteral("file"), file);
  object.insert("page", request.page + 1);
  return show(QString::fromUtf8(jsonOutput(QJsonDocument(QJsonArray{object}))));
}

}  // namespace norvex
