// The list of files in a dialogue of our own.
#pragma once

#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

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

}  // namespace norvex
