// The pages of a PDF in the order in which the screen's renderer counts them, also of trees that are damaged.
#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <vector>

#include "base/result.h"

namespace norvex::engine {

struct PageTree {
  std::vector<QPDFObjectHandle> pages;  ///< each an object of its own, with the attributes that it inherits
  bool isDamaged = false;               ///< something in the tree was passed over
};

/// Walks the tree of the catalogue: a kid that says it is a page, or that has no /Kids, is one; what leads
/// back to one of its own ancestors is passed over, and so is a kid that is no dictionary. /Count and /Type
/// of nodes are not asked. Fails with Limit for more than limits::maximumPages pages or as many nodes. May
/// throw.
[[nodiscard]] Result<PageTree> pageTree(QPDF& qpdf);

}  // namespace norvex::engine
