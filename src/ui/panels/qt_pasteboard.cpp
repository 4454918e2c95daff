#include "ui/panels/qt_pasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "types/uniform_type.h"

namespace norvex {
namespace {

struct Target {
  QString identifier;
  QStringList names;
};

/// In the order in which programs that paste whatever comes first should meet them: what stays sharp before
/// what does not.
const QList<Target>& targets() {
  static const QList<Target> table{
      {UTTypeSVG().identifier(), {"image/svg+xml"}},
      {UTTypePDF().identifier(), {"application/pdf"}},
      {NorvexEPSType, {"image/x-eps", "application/postscript", "image/x-e-postscript", "application/eps"}},
      {UTTypePNG().identifier(), {"image/png"}},
      {UTTypeTIFF().identifier(), {"image/tiff"}},
  };
  return table;
}

}  // namespace

QStringList clipboardTargets(const QString& typeIdentifier) {
  for (const Target& target : targets())
    if (target.identifier == typeIdentifier) return target.names;
  return {};
}

std::unique_ptr<QMimeData> mimeDataOf(const NSPasteboardItem& item) {
  auto mime = std::make_unique<QMimeData>();
  const QList<NSPasteboardItem::Representation> all = item.representations() + item.fallbacks();
  for (const Target& target : targets())
    for (const auto& each : all)
      if (each.type == target.identifier)
        for (const QString& name : target.names) mime->setData(name, each.data);
  for (const auto& each : item.representations()) mime->setData(each.type, each.data);
  return mime;
}

void QtPasteboard::clearContents() {
  // Writing replaces what is there in one step; between two steps another program would find nothing.
}

bool QtPasteboard::writeObjects(const QList<NSPasteboardItem>& objects) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (!clipboard || objects.isEmpty()) return false;
  clipboard->setMimeData(mimeDataOf(objects.first()).release());
  return clipboard->ownsClipboard();
}

}  // namespace norvex
