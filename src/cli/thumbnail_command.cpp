// `norvex thumbnail`: what a desktop's file manager runs for each file that it shows.
#include <QBuffer>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>

#include "base/file_name.h"
#include "cli/files/input_file.h"
#include "cli/files/output_file.h"
#include "cli/job.h"
#include "cli/previews/thumbnail.h"
#include "cli/reader/reader_options.h"
#include "cli/value_reader.h"

namespace norvex {
namespace {

constexpr int kUsualSide = 128;
constexpr int kLargestSide = 2048;

/// With what the thumbnails of a desktop carry, by which it tells whether they are still right.
void describe(QImage& image, const QString& uri, const QString& file) {
  image.setText(QStringLiteral("Thumb::URI"), uri);
  image.setText(QStringLiteral("Thumb::MTime"),
                QString::number(QFileInfo(file).lastModified().toSecsSinceEpoch()));
  image.setText(QStringLiteral("Software"), QStringLiteral("Norvex"));
}

QByteArray pngOf(const QImage& image) {
  QByteArray png;
  QBuffer buffer(&png);
  return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG") ? png : QByteArray();
}

}  // namespace

ExitCode Job::thumbnail(const Arguments& arguments) {
  const QString &file = arguments.files[0], &output = arguments.files[1];
  ValueReader values(arguments);
  const int side = values.integer(Option::Size, kUsualSide, 1, kLargestSide);
  if (!values.complaint().isEmpty()) return complain(Command::Thumbnail, values.complaint());
  const std::optional<ReaderOptions> reader = readerOf(arguments);
  if (!reader) return ExitCode::Usage;
  // Desktops make an empty file first and give its name.
  const bool replaces = arguments.has(Option::Force) || (fileExists(output) && QFileInfo(output).size() == 0);
  if (const auto refusal = outputRefusal(file, output, replaces)) return fail(file, *refusal);
  if (const QString wrong = wrongExtension(file, output, PictureFormat::Png); !wrong.isEmpty())
    return complain(Command::Thumbnail, wrong);
  const Result<QByteArray> bytes = readInput(console_, file);
  if (!bytes) return fail(file, bytes.error());
  service_.openOnlyFor(PictureUse::Drawing);
  PictureSource source = sourceOfInput(*bytes, file);
  const Result<QStringList> read = readAsOptioned(service_, source, *reader);
  if (!read) return fail(file, read.error());
  const Result<Thumbnail> thumbnail = thumbnailOf(service_, source, side);
  if (!thumbnail) return fail(file, thumbnail.error());
  remark(file, *read + thumbnail->warnings);
  QImage image = thumbnail->image;
  if (arguments.has(Option::Uri)) describe(image, arguments.values.value(Option::Uri), file);
  const QByteArray png = pngOf(image);
  if (png.isEmpty())
    return fail(file, {ErrorKind::Unsupported, QStringLiteral("the picture cannot be written as PNG")});
  return writeOutput(output, png, replaces);
}

}  // namespace norvex
