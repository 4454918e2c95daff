// The program's name and version, and what confines the documents that it opens.
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace norvex {

/// Tells what confines picture processes, in the lines of --sandbox-status; empty: that is not known. Blocks;
/// called on a thread of its own.
using ConfinementWords = std::function<QString()>;

/// From now on the box tells it. Main thread, before the first window.
void setConfinementWords(ConfinementWords words);

/// Shows it over `parent` until it is closed. What confines documents stands there as soon as it is known.
void showAboutBox(QWidget& parent);

}  // namespace norvex
