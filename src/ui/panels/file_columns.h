// The lists of files, kinds and places in a dialogue of our own.
#pragma once

#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QTreeView>

#include <algorithm>

namespace norvex {

/// Size, kind and date are as wide as what they say, and names have the rest: of themselves they are
/// narrower. Nothing happens to a dialogue of the platform's.
inline void showWholeColumns(QFileDialog& dialog) {
  const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (!list) return;
  list->header()->setStretchLastSection(false);
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

/// Places are told by their whole names, up to thirty letters; longer ones are shortened instead of scrolled.
inline void showWholePlaces(QFileDialog& dialog) {
  auto* places = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
  if (!places) return;
  constexpr int kLetters = 30;
  const int whole = places->sizeHintForColumn(0) + 2 * places->frameWidth();
  places->setMinimumWidth(std::min(whole, kLetters * places->fontMetrics().averageCharWidth()));
  places->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

/// "Title (*.eps *.EPS)": patterns tell letter cases apart, and files from old disks are in capitals.
[[nodiscard]] inline QString nameFilter(const QString& title, const QStringList& extensions) {
  QStringList patterns;
  for (const QString& extension : extensions)
    patterns << QStringLiteral("*.") + extension << QStringLiteral("*.") + extension.toUpper();
  return title + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

/// The list of folders says what it is to who cannot see the words beside it.
inline void nameFolders(QFileDialog& dialog) {
  auto* title = dialog.findChild<QLabel*>(QStringLiteral("lookInLabel"));
  auto* folders = dialog.findChild<QComboBox*>(QStringLiteral("lookInCombo"));
  if (title && folders) title->setBuddy(folders);
}

}  // namespace norvex
