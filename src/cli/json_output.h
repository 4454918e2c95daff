// JSON as it is written to standard output.
#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "base/result.h"

namespace norvex {

/// Indented UTF-8 in which no control character (C0, DEL, C1) stands but line feeds between the values: all
/// others are `\uNNNN`, so that a terminal may be shown it.
[[nodiscard]] QByteArray jsonOutput(const QJsonDocument& document);

/// The same on one line, which ends with the only line feed.
[[nodiscard]] QByteArray jsonLine(const QJsonObject& object);

/// `error`: a sentence; `details`: what a library said, where it said something.
void insertError(QJsonObject& object, const Error& error);

}  // namespace norvex
