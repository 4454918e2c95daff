// Our own controls for assistive technology: what they are, what they show, what can be done
// with them.
#pragma once

namespace norvex {

/// Registers our controls with Qt; harmless when repeated. To be called before the first window is made.
/// Pictures are graphics, colour wells are buttons with their colour as value, groups of cells are groups,
/// windows are windows, and what takes the keyboard to be scrolled is no mere room between others.
void installControlAccessibility();

}  // namespace norvex
