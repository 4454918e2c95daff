// What can be chosen of a page.
#pragma once

#include "print/print_operation.h"

namespace norvex {

/// Values of NSPrintPanel::options(): paper, orientation and scaling, as the page-layout sheet offers them
/// and the print panel of a document does beside what all panels offer.
inline constexpr int pageLayoutOptions =
    NSPrintPanelShowsPaperSize | NSPrintPanelShowsOrientation | NSPrintPanelShowsScaling;

}  // namespace norvex
