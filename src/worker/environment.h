// The environment variables of the picture process.
#pragma once

#include <QByteArrayList>

namespace norvex {

/// Removes every variable but the few that the libraries need and sets those that make results the same on
/// every desktop. Called once, first thing in main(), by a process with one thread; only what is linked has
/// seen the others by then.
void clearEnvironment();

/// The names that are kept when they are set.
[[nodiscard]] QByteArrayList keptVariables();

/// Input and output are nobody's business in a picture process. Messages of libraries would be mixed into
/// those of the program, and a terminal in the hands of a hostile document is a keyboard; sanitizers keep
/// their voice.
void closeStandardStreams();

}  // namespace norvex
