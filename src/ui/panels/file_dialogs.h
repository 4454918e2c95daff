// What every dialogue that asks for files has in common.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

class QFileDialog;

namespace norvex {

/// Size, kind and date of a file are as wide as what they say, and names have the rest; where that is too
/// little for a name, kind, size and date give way to it. Places are told by their whole names, up to thirty
/// letters. The list of folders says what it is to who cannot see the words beside it. `usual`: the size that
/// it opens with, larger where texts are and smaller where the screen is. Nothing happens to the lists of a
/// dialogue of the platform's. Once its places are known; main thread.
void settleFileDialog(QFileDialog& dialog, const QSize& usual = QSize(720, 560));

/// "Title (*.eps *.EPS)": patterns tell letter cases apart, and files from old disks are in capitals.
[[nodiscard]] QString nameFilter(const QString& title, const QStringList& extensions);

}  // namespace norvex
