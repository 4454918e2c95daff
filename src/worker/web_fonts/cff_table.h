// The table of a font that holds its outlines: a Compact Font Format font (Adobe technical note 5176).
#pragma once

#include <QByteArray>
#include <QList>

#include <array>

namespace norvex::engine {

struct CffOutlines {
  int unitsPerEm = 1000;
  std::array<int, 4> box{};    ///< left, bottom, right, top of all of them, units
  QList<QByteArray> programs;  ///< type2Outline(); the first is of what no character shows
};

[[nodiscard]] QByteArray cffTable(const CffOutlines& outlines);

}  // namespace norvex::engine
