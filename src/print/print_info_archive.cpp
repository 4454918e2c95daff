#include "print/print_info_archive.h"

#include <QCborMap>
#include <QCborValue>

#include <cmath>

#include "protocol/limits.h"

namespace norvex {
namespace {

constexpr int kVersion = 1;

const QLatin1String kVersionKey("version"), kSettingsKey("settings");

enum class Type { Number, Flag, Text };
struct Entry {
  const char* key;
  Type type;
};
constexpr Entry kEntries[] = {
    {NSPrintOrientation, Type::Number},
    {NSPrintLeftMargin, Type::Number},
    {NSPrintRightMargin, Type::Number},
    {NSPrintTopMargin, Type::Number},
    {NSPrintBottomMargin, Type::Number},
    {NSPrintVerticallyCentered, Type::Flag},
    {NSPrintHorizontallyCentered, Type::Flag},
    {NSPrintVerticalPagination, Type::Number},
    {NSPrintHorizontalPagination, Type::Number},
    {NSPrintHeaderAndFooter, Type::Flag},
    {NSPrintPaperName, Type::Text},
    {NSPrintScalingFactor, Type::Number},
    {NSPrintPrinterName, Type::Text},
};

bool isOf(const QCborValue& value, Type type) {
  switch (type) {
    case Type::Number:
      return (value.isInteger() || value.isDouble()) && std::isfinite(value.toDouble());
    case Type::Flag:
      return value.isBool();
    case Type::Text:
      return value.isString() && value.toString().size() <= limits::maximumSettingsText;
  }
  return false;
}

}  // namespace

QByteArray archivedPrintInfo(const NSPrintInfo& info) {
  QCborMap settings;
  for (const Entry& entry : kEntries) {
    const QVariant value = info.dictionary().value(QString::fromLatin1(entry.key));
    const QCborValue cbor = QCborValue::fromVariant(value);
    if (isOf(cbor, entry.type)) settings.insert(QLatin1String(entry.key), cbor);
  }
  return QCborMap{{kVersionKey, kVersion}, {kSettingsKey, settings}}.toCborValue().toCbor();
}

std::optional<NSPrintInfo> unarchivedPrintInfo(const QByteArray& archive) {
  if (archive.isEmpty() || archive.size() > limits::maximumSettingsBytes) return std::nullopt;
  QCborParserError error;
  const QCborValue root = QCborValue::fromCbor(archive, &error);
  if (error.error != QCborError::NoError || error.offset != archive.size() || !root.isMap())
    return std::nullopt;
  const QCborMap map = root.toMap();
  if (map.value(kVersionKey) != QCborValue(kVersion) || !map.value(kSettingsKey).isMap()) return std::nullopt;
  const QCborMap settings = map.value(kSettingsKey).toMap();
  NSPrintInfo info;
  for (const Entry& entry : kEntries) {
    const QCborValue value = settings.value(QLatin1String(entry.key));
    if (value.isUndefined()) continue;
    if (!isOf(value, entry.type)) return std::nullopt;
    info.set(entry.key, value.toVariant());
  }
  return info;
}

}  // namespace norvex
