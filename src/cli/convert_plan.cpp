#include "cli/convert_plan.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include "base/file_name.h"
#include "base/latin1_text.h"
#include "cli/value_reader.h"

namespace norvex {
namespace {

ConversionOptions optionsOf(const Arguments& arguments, ValueReader& values) {
  constexpr int manyPages = 10'000'000;
  ConversionOptions options;
  options.rotateDegrees = values.number(Option::Rotate, 0, -36000, 36000);
  options.crop = values.crop();
  if (arguments.has(Option::Page)) options.page = values.integer(Option::Page, 1, 1, manyPages);
  options.dpi = values.number(Option::Dpi, 72, 1, 9600);
  options.background = values.background();
  if (arguments.has(Option::Quality)) options.quality = values.integer(Option::Quality, 1, 1, 100);
  if (arguments.has(Option::Colour))
    options.color =
        outputColorNamed(arguments.values.value(Option::Colour).toStdString()).value_or(OutputColor::Rgb);
  options.keepActions = arguments.has(Option::KeepActions);
  options.keepText = arguments.has(Option::KeepText);
  options.limits = values.limits();
  return options;
}

std::optional<PictureFormat> formatOf(const Arguments& arguments) {
  if (arguments.has(Option::Format)) return formatNamed(arguments.values.value(Option::Format).toStdString());
  const auto format =
      formatOfExtension(QFileInfo(arguments.values.value(Option::Output)).suffix().toStdString());
  return format && isWritten(rowOf(*format)) ? format : std::nullopt;
}

QString inFolder(const QString& folder, const QString& file, PictureFormat format) {
  const QFileInfo info(file);
  QString name = file == QLatin1String("-") ? QStringLiteral("picture") : info.completeBaseName();
  if (name.isEmpty()) name = info.fileName();  // all of it follows a dot
  return QDir(folder).filePath(name + u'.' + latin1(writtenExtension(format)));
}

QString complaintAboutTargets(const Arguments& arguments) {
  const bool toFile = arguments.has(Option::Output);
  if (toFile == arguments.has(Option::Folder)) return QStringLiteral("one of -o OUT and --to DIR is needed");
  if (toFile && arguments.files.size() > 1)
    return QStringLiteral("-o takes one file, --to DIR takes several");
  if (formatOf(arguments)) return {};
  if (toFile && folderExists(arguments.values.value(Option::Output)))
    return QStringLiteral("%1 is a folder (--to DIR writes into one)")
        .arg(arguments.values.value(Option::Output));
  return toFile && arguments.values.value(Option::Output) != QLatin1String("-")
             ? QStringLiteral("the extension of %1 names no format (--format does)")
                   .arg(arguments.values.value(Option::Output))
             : QStringLiteral("no format is given (--format)");
}

QString complaintAboutColor(const ConversionOptions& options) {
  const QString format = latin1(rowOf(options.format).name);
  return isRaster(options.format)
             ? QStringLiteral("%1 holds no %2").arg(format, latin1(nameOf(options.color)))
             : QStringLiteral("--colour goes with pixels: %1 keeps the picture's own colours").arg(format);
}

/// What does not go with the format.
QString complaintAboutFormat(const ConversionOptions& options) {
  const FormatRow& row = rowOf(options.format);
  if (options.quality && row.quality == NoQuality)
    return QStringLiteral("--quality goes with one of: %1").arg(latin1(qualityFormatNames.text()));
  if (options.keepActions && options.format != PictureFormat::Pdf)
    return QStringLiteral("--keep-actions goes with pdf");
  if (options.keepText && options.format != PictureFormat::Svg && options.format != PictureFormat::Svgz)
    return QStringLiteral("--text goes with svg and svgz");
  if (options.background.isValid() && !isRaster(options.format))
    return QStringLiteral("--background goes with the raster formats: %1 keeps unpainted what is unpainted")
        .arg(latin1(row.name));
  return {};
}

std::optional<PageList> pagesOf(const Arguments& arguments, ValueReader& values) {
  if (!arguments.has(Option::Pages)) return std::nullopt;
  if (arguments.has(Option::Page))
    values.complain(
        QStringLiteral("--page is one page in one file, --pages a file of each; give one of them"));
  if (arguments.values.value(Option::Output) == QLatin1String("-"))
    values.complain(QStringLiteral("--pages makes a file of each page, and -o - is standard output"));
  std::optional<PageList> pages = PageList::read(arguments.values.value(Option::Pages));
  if (!pages) values.complain(QStringLiteral("--pages is all, or numbers and ranges from 1: 1,3-5,8-"));
  return pages;
}

}  // namespace

ReadPlan readConvertPlan(const Arguments& arguments) {
  ReadPlan read;
  read.complaint = complaintAboutTargets(arguments);
  if (!read.complaint.isEmpty()) return read;
  ConvertPlan& plan = read.plan;
  ValueReader values(arguments);
  plan.options = optionsOf(arguments, values);
  plan.options.format = *formatOf(arguments);
  if (const QString complaint = complaintAboutFormat(plan.options); !complaint.isEmpty())
    values.complain(complaint);
  if (arguments.has(Option::Colour) && !holdsColor(plan.options.format, plan.options.color))
    values.complain(complaintAboutColor(plan.options));
  plan.pages = pagesOf(arguments, values);
  plan.jobs = values.integer(Option::Jobs, QThread::idealThreadCount(), 1, 256);
  plan.force = arguments.has(Option::Force);
  plan.json = arguments.has(Option::Json);
  plan.quiet = arguments.has(Option::Quiet);
  for (const QString& file : arguments.files) {
    plan.tasks << ConvertTask{
        file, arguments.has(Option::Output)
                  ? arguments.values.value(Option::Output)
                  : inFolder(arguments.values.value(Option::Folder), file, plan.options.format)};
  }
  const bool reportInTheWay = plan.json && plan.tasks.first().output == QLatin1String("-");
  if (reportInTheWay) values.complain(QStringLiteral("--json and -o - both need standard output"));
  read.complaint = values.complaint();
  return read;
}

}  // namespace norvex
