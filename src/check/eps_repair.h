// Mending an EPS program around what it draws.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QStringList>

#include <optional>

#include "check/finding.h"

namespace norvex {

struct EpsRepair {
  QByteArray program;
  QStringList changes;  ///< one plain sentence each; none: the program was fine
};

/// The program of a file that is an EPS file or a wrapped one: from its first line to its end, without what
/// stands before and behind. Empty when there is no PostScript.
[[nodiscard]] QByteArray epsProgramAlone(const QByteArray& file);

/// `program` with its header in order: the first line, both boxes (`box`: PostScript's default user space),
/// %%EndComments; with showpage and %%EOF. Everything between the header and the trailer is the same to the
/// byte. With `dropPreview` the interchange preview is left out, which is all comments. Plates behind
/// the picture (DCS 2) stay to the byte, and the header says where they are now.
[[nodiscard]] EpsRepair repairedEps(const QByteArray& program, const QRectF& box, bool dropPreview);

/// The box to write: around the ink, unless the stated one is as near to it as it can be measured, or
/// encloses it and white was painted up to its edges. `ink` and `painted` as DrawnInk has them, but in
/// default user space. Nothing: nothing is drawn and no box is stated.
[[nodiscard]] std::optional<QRectF> mendedBox(const std::optional<QRectF>& stated,
                                              const std::optional<QRectF>& ink,
                                              const std::optional<QRectF>& painted);

}  // namespace norvex
