// The Touch Bar of a document window as values: which buttons it has, in which order, and what each of them
// asks whom. No widgets: a strip on the screen shows it (ui/controls/touch_strip.h), a test needs none.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace norvex {

/// Stands for whatever other parts of the program would put into a Touch Bar.
inline constexpr char NSTouchBarItemIdentifierOtherItemsProxy[] = "NSTouchBarItemIdentifierOtherItemsProxy";

/// Whom a button asks.
enum class TouchBarTarget { Document, Controller };
/// The commands that it sends. Copy is the controller's copy of the whole picture; the others are the
/// document's own operations, not the toolbar's commands of the same names.
enum class TouchBarAction { SaveDocumentAs, SaveDocumentTo, RevertDocumentToSaved, Copy, PrintDocument };

/// A push button of a Touch Bar.
struct NSCustomTouchBarItem {
  QString identifier;
  QString title;  ///< in the user's language
  TouchBarTarget target = TouchBarTarget::Document;
  TouchBarAction action = TouchBarAction::SaveDocumentAs;
  float visibilityPriority = 0.0F;  ///< 0: normal
};

struct NSTouchBar;

/// Who makes the items of a Touch Bar.
class NSTouchBarDelegate {
 public:
  virtual ~NSTouchBarDelegate() = default;
  /// The item for one of the bar's identifiers; none when the delegate has nothing for it.
  [[nodiscard]] virtual std::optional<NSCustomTouchBarItem> touchBar(
      const NSTouchBar& touchBar, const QString& makeItemForIdentifier) = 0;
};

/// The identifiers of a bar in their order; its delegate (not owned, outlives the bar) makes the items on
/// demand.
struct NSTouchBar {
  NSTouchBarDelegate* delegate = nullptr;
  QStringList defaultItemIdentifiers;

  /// The items that the delegate has.
  [[nodiscard]] QList<NSCustomTouchBarItem> items() const;
};

/// The document window's bar: save as, save to, reload, copy, print, and the proxy for other items.
[[nodiscard]] NSTouchBar mainWindowTouchBar(NSTouchBarDelegate& delegate);
/// Chosen by the position of the identifier in the asking bar's own list, not by its text: of a bar in
/// another order the button at that position, under that position's identifier. None beyond the fifth and for
/// what is not in the list.
[[nodiscard]] std::optional<NSCustomTouchBarItem> mainWindowTouchBarItem(const NSTouchBar& touchBar,
                                                                         const QString& identifier);

}  // namespace norvex
