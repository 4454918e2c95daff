#include "cli/archive/contact_sheet.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include "base/file_name.h"
#include "cli/archive/file_job.h"

namespace norvex {
namespace {

constexpr double kPixels = 240;  ///< of the longer side

/// The longer side in points; 0: not known.
double longerSide(PictureService& service, const QString& file) {
  Arguments info;
  info.command = Command::Info;
  info.files << file;
  info.values.insert(Option::Json, {});
  const QByteArray told = doWithFile(service, info).output;
  const QJsonArray rectangle =
      QJsonDocument::fromJson(told).array().first().toObject().value(u"rectangle").toArray();
  return std::max(rectangle.at(2).toDouble(), rectangle.at(3).toDouble());
}

QByteArray thumbnail(PictureService& service, const QByteArray& path) {
  const QString file = fileNameText(path);
  const double side = longerSide(service, file);
  if (side <= 0) return {};
  Arguments convert;
  convert.command = Command::Convert;
  convert.files << file;
  convert.values.insert(Option::Output, QStringLiteral("-"));
  convert.values.insert(Option::Format, QStringLiteral("png"));
  convert.values.insert(Option::Background, QStringLiteral("white"));
  convert.values.insert(Option::Dpi, QString::number(std::clamp(kPixels * 72 / side, 1.0, 600.0)));
  const FileAnswer answer = doWithFile(service, convert);
  return answer.code == ExitCode::Done ? answer.output : QByteArray();
}

}  // namespace

QList<ChangedPicture> mostChanged(Database& state, PictureService& service) {
  QList<ChangedPicture> pictures;
  Statement rows = state.prepare(
      "SELECT path, changed, output FROM entry WHERE outcome = 1 AND changed > 0"
      " ORDER BY changed DESC, path LIMIT 24");
  while (rows.step()) {
    const QByteArray output = rows.bytes(2);
    pictures.append({rows.bytes(0), rows.real(1), thumbnail(service, rows.bytes(0)),
                     output.isNull() ? QByteArray() : thumbnail(service, output)});
  }
  return pictures;
}

}  // namespace norvex
