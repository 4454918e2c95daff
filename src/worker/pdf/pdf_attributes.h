// The document information of a PDF.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>

#include <optional>

#include "base/result.h"

namespace norvex::engine {

/// `pdf` with `attributes` ("Title", "Author", "Subject", "Creator", "Producer" …; the names are PDF's) and
/// `creationDate` set in its document information; other entries stay. Metadata that would contradict them is
/// dropped.
Result<QByteArray> setPdfAttributes(const QByteArray& pdf, const QHash<QString, QString>& attributes,
                                    const std::optional<QDateTime>& creationDate);

}  // namespace norvex::engine
