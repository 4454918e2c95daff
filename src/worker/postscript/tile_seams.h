// Light seams between the tiles of a picture whose transparency was flattened.
#pragma once

#include <QByteArray>

namespace norvex::engine {

/// The page of `pdf`, which paints nothing but what is opaque (a PostScript program's), so that no background
/// shines through where two tiles abut: a pixel that both cover in part keeps some of what was behind them.
/// The tile that is painted first reaches a little under its neighbour, along the edge that they share and
/// nowhere else, as far as its image goes; what is seen of it stays the same. To be drawn, not to be handed
/// out. `pdf` itself where it is no picture of tiles, or cannot be read. Never fails.
[[nodiscard]] QByteArray withoutSeams(const QByteArray& pdf);

}  // namespace norvex::engine
