// The pages of the inspector beside those of the interface file, in one table.
#pragma once

#include <span>

class QWidget;

namespace norvex {

class MainWindowController;

/// A row of the table. Pages stand in its order, behind those of the interface file.
struct InspectorPage {
  const char* name;   ///< of the page as an object
  const char* title;  ///< of its tab: a key of the string table
  /// Makes what the page holds, as a child of `page`, when the page is first seen: what nobody looks at costs
  /// an opened file nothing. Not null.
  QWidget* (*make)(MainWindowController& window, QWidget* page);
};

[[nodiscard]] std::span<const InspectorPage> inspectorPages();

/// Adds a tab for each of `pages`. Once, when the window is loaded; the window outlives its pages.
void addInspectorPages(MainWindowController& window, std::span<const InspectorPage> pages = inspectorPages());

}  // namespace norvex
