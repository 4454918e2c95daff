#include "cli/info_report.h"

#include <QColorSpace>
#include <QCryptographicHash>
#include <QJsonArray>

#include "cli/files/console.h"
#include "cli/files/json_output.h"

namespace norvex {
namespace {

/// Lower left and upper right.
QJsonArray cornersOf(const QRectF& rect) {
  return {rect.left(), rect.top(), rect.right(), rect.bottom()};
}

QString textOf(const QJsonArray& numbers) {
  QStringList texts;
  for (const QJsonValue& number : numbers) texts << QString::number(number.toDouble(), 'g', 10);
  return texts.join(QLatin1Char(' '));
}

QString textOf(const QRectF& rect) {
  return textOf(jsonArray(rect));
}

QJsonArray platesArray(const QList<EpsPlate>& plates) {
  QJsonArray array;
  for (const EpsPlate& plate : plates) {
    QJsonObject object{{"ink", plate.ink}};
    if (!plate.file.isEmpty()) object.insert(QStringLiteral("file"), plate.file);
    if (plate.file.isEmpty()) object.insert(QStringLiteral("offset"), plate.offset);
    if (plate.file.isEmpty()) object.insert(QStringLiteral("length"), plate.length);
    array << object;
  }
  return array;
}

QString platesText(const QList<EpsPlate>& plates) {
  QStringList texts;
  for (const EpsPlate& plate : plates)
    texts << QStringLiteral("%1 (%2)").arg(
        plate.ink,
        plate.file.isEmpty() ? QStringLiteral("%1 bytes within this file").arg(plate.length) : plate.file);
  return texts.join(QStringLiteral(", "));
}

QString nameOf(const QColorSpace& space) {
  const QString name = space.description();
  return name.isEmpty() ? QStringLiteral("unnamed") : name;
}

QJsonObject previewObject(const NSBitmapImageRep& rep) {
  return {{"width", rep.pixelsWide},
          {"height", rep.pixelsHigh},
          {"bitsPerSample", rep.bitsPerSample},
          {"samplesPerPixel", rep.samplesPerPixel},
          {"sha256", sampleHash(rep)}};
}

QJsonValue jsonOf(const QVariant& value) {
  if (value.canConvert<NSBitmapImageRep>()) return previewObject(value.value<NSBitmapImageRep>());
  if (value.typeId() == QMetaType::QColorSpace) return nameOf(value.value<QColorSpace>());
  return QJsonValue::fromVariant(value);  // text, a whole number of 64 bits, true or false
}

QString textOf(const QVariant& value) {
  if (value.canConvert<NSBitmapImageRep>()) {
    const auto rep = value.value<NSBitmapImageRep>();
    return QStringLiteral("%1 × %2 pixels, %3 × %4 bits")
        .arg(rep.pixelsWide)
        .arg(rep.pixelsHigh)
        .arg(rep.samplesPerPixel)
        .arg(rep.bitsPerSample);
  }
  return value.typeId() == QMetaType::QColorSpace ? nameOf(value.value<QColorSpace>()) : value.toString();
}

QJsonArray layerObjects(const QList<PictureLayer>& layers) {
  QJsonArray objects;
  for (const PictureLayer& layer : layers)
    objects.append(QJsonObject{{"name", layer.name}, {"shown", layer.shown}});
  return objects;
}

QJsonObject guessObject(const GuessedHeader& guess) {
  QJsonObject object = QJsonObject::fromVariantMap(guess.values);
  object.insert(QStringLiteral("Encoding"), guess.encodingName);
  return object;
}

QString layerText(const PictureLayer& layer) {
  return layer.name + (layer.shown ? QStringLiteral(" (on)") : QStringLiteral(" (off)"));
}

QString line(const QString& name, const QString& value) {
  return QStringLiteral("  %1 %2\n").arg(name + QLatin1Char(':'), -22).arg(visible(value));
}

}  // namespace

QString sampleHash(const NSBitmapImageRep& rep) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  if (!rep.isConsistent()) return QString::fromLatin1(hash.result().toHex());
  const int planes = rep.isPlanar ? rep.samplesPerPixel : 1;
  const qint64 samples = qint64(rep.pixelsWide) * (rep.isPlanar ? 1 : rep.samplesPerPixel);
  const qint64 used = (samples * rep.bitsPerSample + 7) / 8;
  for (qint64 row = 0; row < qint64(rep.pixelsHigh) * planes; ++row)
    hash.addData(QByteArrayView(rep.data).sliced(row * rep.bytesPerRow, used));
  return QString::fromLatin1(hash.result().toHex());
}

QJsonObject infoObject(const DocumentInfo& info) {
  QJsonObject header;
  for (auto it = info.header.begin(); it != info.header.end(); ++it)
    header.insert(it.key(), jsonOf(it.value()));
  QJsonObject object{{"header", header}, {"warnings", QJsonArray::fromStringList(info.warnings)}};
  insertName(object, QStringLiteral("file"), info.file);
  const auto insert = [&](const char* key, const QJsonValue& value) {
    object.insert(QLatin1String(key), value);
  };
  if (!info.kind.isEmpty()) insert("kind", info.kind);
  if (!info.typeIdentifier.isEmpty()) insert("type", info.typeIdentifier);
  if (info.rectangle) insert("rectangle", jsonArray(*info.rectangle));
  if (info.rectangle) insert("rectangleTitle", info.rectangleTitle);
  if (info.viewBox) insert("viewBox", jsonArray(*info.viewBox));
  if (info.hiResBoundingBox) insert("hiResBoundingBox", cornersOf(*info.hiResBoundingBox));
  if (info.pages) insert("pages", *info.pages);
  if (!info.fonts.isEmpty()) insert("fonts", QJsonArray::fromStringList(info.fonts));
  if (!info.colorSpaces.isEmpty()) insert("colorSpaces", QJsonArray::fromStringList(info.colorSpaces));
  if (!info.layers.isEmpty()) insert("layers", layerObjects(info.layers));
  if (!info.plates.isEmpty()) insert("plates", platesArray(info.plates));
  if (info.guessed) insert("guessedHeader", guessObject(*info.guessed));
  if (info.error) insertError(object, *info.error);
  return object;
}

QString infoText(const DocumentInfo& info) {
  QString text = visible(info.file) + QLatin1Char('\n');
  if (!info.kind.isEmpty())
    text += line("Kind", QStringLiteral("%1 (%2)").arg(info.kind, info.typeIdentifier));
  for (const QString& key :
       {header::Title, header::Creator, header::CreationDate, header::For, header::Copyright,
        header::Description, header::Encoding, header::Preview, header::ColorSpace})
    if (const QString value = textOf(info.header.value(key)); !value.isEmpty()) text += line(key, value);
  if (info.guessed)
    for (auto it = info.guessed->values.begin(); it != info.guessed->values.end(); ++it)
      text +=
          line(it.key() + QLatin1Char('?'),
               QStringLiteral("%1 (a guess: read as %2)").arg(it->toString(), info.guessed->encodingName));
  if (info.rectangle) text += line("Bounds", textOf(*info.rectangle));
  if (info.hiResBoundingBox) text += line("HiResBoundingBox", textOf(cornersOf(*info.hiResBoundingBox)));
  if (info.viewBox) text += line("ViewBox", textOf(*info.viewBox));
  if (info.pages) text += line("Pages", QString::number(*info.pages));
  if (!info.fonts.isEmpty()) text += line("Fonts", info.fonts.join(QStringLiteral(", ")));
  if (!info.colorSpaces.isEmpty()) text += line("ColorSpaces", info.colorSpaces.join(QStringLiteral(", ")));
  for (qsizetype i = 0; i < info.layers.size(); ++i)
    text += line(QStringLiteral("Layer %1").arg(i + 1), layerText(info.layers[i]));
  if (!info.plates.isEmpty()) text += line("Plates", platesText(info.plates));
  for (const QString& warning : info.warnings) text += line("Warning", warning);
  return text;
}

}  // namespace norvex
