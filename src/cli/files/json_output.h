// JSON as it is written to standard output.
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRectF>

#include "base/result.h"

namespace norvex {

/// Indented UTF-8 in which no control character (C0, DEL, C1) stands but line feeds between the values: all
/// others are `\uNNNN`, so that a terminal may be shown it. Half a character, and a byte of a file name that
/// is no text (see fileNameText()), is U+FFFD: every reader of JSON takes it.
[[nodiscard]] QByteArray jsonOutput(const QJsonDocument& document);

/// The same on one line, which ends with the only line feed.
[[nodiscard]] QByteArray jsonLine(const QJsonObject& object);

/// A file's name under `key`; one that is no UTF-8 also under `key` with "Bytes", in base64.
void insertName(QJsonObject& object, const QString& key, const QString& name);

/// Its origin, its width and its height.
[[nodiscard]] QJsonArray jsonArray(const QRectF& rect);

/// `error`: a sentence; `details`: what a library said, where it said something.
void insertError(QJsonObject& object, const Error& error);

}  // namespace norvex
