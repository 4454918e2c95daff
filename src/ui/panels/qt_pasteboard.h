// The desktop's clipboard.
#pragma once

#include <QStringList>

#include <memory>

#include "desktop/pasteboard.h"

class QMimeData;

namespace norvex {

/// The names under which other programs of this desktop ask for a type, the preferred one first; empty for a
/// type that they do not know.
[[nodiscard]] QStringList clipboardTargets(const QString& typeIdentifier);

/// The item as other programs see it: SVG, PDF, EPS (under each of its names), PNG, TIFF, whichever of them
/// it has, then everything again under its type identifier.
[[nodiscard]] std::unique_ptr<QMimeData> mimeDataOf(const NSPasteboardItem& item);

/// The general pasteboard. All bytes are handed over when they are written: a clipboard manager that asks for
/// everything at once waits for nothing.
class QtPasteboard final : public NSPasteboard {
 public:
  void clearContents() override;
  /// There is room for one thing: the first.
  bool writeObjects(const QList<NSPasteboardItem>& objects) override;
};

}  // namespace norvex
