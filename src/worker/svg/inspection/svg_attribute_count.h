// The attributes of an element are counted before a parser compares each of them with all others.
#pragma once

#include <QByteArrayView>

namespace norvex::engine {

/// The most attributes that a tag of the text has, counted no further than `enough`. Comments, character data
/// and instructions hold no tags; what looks like one within an entity counts. Any text; takes time in
/// proportion to its length.
[[nodiscard]] int mostAttributes(QByteArrayView utf8, int enough);

}  // namespace norvex::engine
