#include "window/commands/touch_bar.h"

#include <array>

#include "base/localized_string.h"

namespace norvex {

namespace {

struct Row {
  const char* identifier;
  const char* titleKey;
  TouchBarTarget target;
  TouchBarAction action;
};

constexpr std::array<Row, 5> kRows{{
    {"com.Norvex.mainWindowController.saveas", "SaveAs", TouchBarTarget::Document,
     TouchBarAction::SaveDocumentAs},
    {"com.Norvex.mainWindowController.saveto", "SaveTo", TouchBarTarget::Document,
     TouchBarAction::SaveDocumentTo},
    {"com.Norvex.mainWindowController.reload", "Reload", TouchBarTarget::Document,
     TouchBarAction::RevertDocumentToSaved},
    {"com.Norvex.mainWindowController.copy", "Copy", TouchBarTarget::Controller, TouchBarAction::Copy},
    {"com.Norvex.mainWindowController.print", "Print", TouchBarTarget::Document,
     TouchBarAction::PrintDocument},
}};

}  // namespace

QList<NSCustomTouchBarItem> NSTouchBar::items() const {
  QList<NSCustomTouchBarItem> all;
  if (!delegate) return all;
  for (const QString& identifier : defaultItemIdentifiers)
    if (auto item = delegate->touchBar(*this, identifier)) all << *item;
  return all;
}

NSTouchBar mainWindowTouchBar(NSTouchBarDelegate& delegate) {
  NSTouchBar bar{&delegate, {}};
  for (const Row& row : kRows) bar.defaultItemIdentifiers << QString::fromLatin1(row.identifier);
  bar.defaultItemIdentifiers << QString::fromLatin1(NSTouchBarItemIdentifierOtherItemsProxy);
  return bar;
}

std::optional<NSCustomTouchBarItem> mainWindowTouchBarItem(const NSTouchBar& touchBar,
                                                           const QString& identifier) {
  const qsizetype index = touchBar.defaultItemIdentifiers.indexOf(identifier);
  if (index < 0 || index >= qsizetype(kRows.size())) return std::nullopt;
  const Row& row = kRows.at(size_t(index));
  return NSCustomTouchBarItem{QString::fromLatin1(row.identifier), localizedString(row.titleKey), row.target,
                              row.action, 0.0F};
}

}  // namespace norvex
