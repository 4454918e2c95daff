// The open panel.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

class QWidget;

namespace norvex {

/// Name filters of the panel: all pictures, each kind, all files.
[[nodiscard]] QStringList openPanelFilters();

/// Asks for files, several at once; empty when the panel was cancelled, or
/// has gone with `parent`. `folder` is where it begins.
[[nodiscard]] QList<QUrl> runOpenPanel(QWidget* parent, const QString& folder);

}  // namespace norvex
