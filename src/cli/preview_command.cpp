// `norvex preview`: the embedded preview as PNG.
#include <QBuffer>
#include <QImage>

#include <chrono>
#include <optional>

#include "base/atomic_file.h"
#include "base/time_limit.h"
#include "cli/files/input_file.h"
#include "cli/files/output_file.h"
#include "cli/job.h"
#include "cli/value_reader.h"
#include "picture/bitmap_image.h"
#include "picture/embedded_preview.h"

namespace norvex {
namespace {

/// Grey stays grey. Empty for samples that cannot be shown.
QByteArray pngOf(const NSBitmapImageRep& rep) {
  QImage image = toImage(rep);
  const bool grey = rep.colorSpaceName == QLatin1String(NSCalibratedWhiteColorSpace) && !rep.hasAlpha;
  if (grey) image = image.convertToFormat(QImage::Format_Grayscale8);
  QByteArray png;
  QBuffer buffer(&png);
  if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) return {};
  return png;
}

}  // namespace

ExitCode Job::preview(const Arguments& arguments) {
  const QString file = arguments.files.first();
  const QString output = arguments.values.value(Option::Output);
  ValueReader values(arguments);
  const PictureLimits limits = values.limits();
  if (!values.complaint().isEmpty()) return complain(Command::Preview, values.complaint());
  if (const auto refusal = outputRefusal(file, output, arguments.has(Option::Force)))
    return fail(file, *refusal);
  if (const QString wrong = wrongExtension(file, output, PictureFormat::Png); !wrong.isEmpty())
    return complain(Command::Preview, wrong);
  const Result<QByteArray> bytes = readInput(console_, file);
  if (!bytes) return fail(file, bytes.error());
  const Result<PictureKind> kind = pictureKindOf(*bytes, sourceOfInput(*bytes, file).typeIdentifier);
  if (!kind) return fail(file, kind.error());

  Result<std::optional<NSBitmapImageRep>> preview = std::optional<NSBitmapImageRep>();
  const TimeLimit time(std::chrono::seconds(limits.seconds), {});
  if (*kind == PictureKind::Eps) preview = embeddedPreview(service_, *bytes, time.token(), limits);
  if (!preview) return fail(file, time.explained(preview.error()));
  if (!*preview) {
    (void)fail(file, {ErrorKind::Unsupported, QStringLiteral("there is no embedded preview")});
    return ExitCode::SomeFailed;
  }
  const QByteArray png = pngOf(**preview);
  if (png.isEmpty())
    return fail(file,
                {ErrorKind::Unsupported, QStringLiteral("the preview's samples cannot be written as PNG")});
  return writeOutput(output, png, arguments.has(Option::Force));
}

ExitCode Job::writeOutput(const QString& output, const QByteArray& bytes, bool force) {
  if (output != QLatin1String("-")) {
    const auto written = writeFileAtomically(output, bytes, force ? IfExists::Replace : IfExists::Fail);
    return written ? ExitCode::Done : fail(output, written.error());
  }
  if (console_.isTerminal())
    return fail(output, {ErrorKind::CannotWrite, QStringLiteral("binary data is not written to a terminal")});
  if (console_.write(bytes)) return ExitCode::Done;
  return failToWrite();
}

}  // namespace norvex
