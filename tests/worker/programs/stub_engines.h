// Engines that parse nothing: the document's text says what they do.
#pragma once

#include "worker/engine_set.h"

namespace norvex::kit {

/// "ok WIDTH HEIGHT": a page of that size. Other first words:
///   refuse     opening fails as Encrypted
///   hang       opening never ends; hang-cancellable: until it is cancelled
///   crash      opening kills the process
///   sleepy     opens; rendering never ends; sleepy-cancellable: until it is cancelled
///   fragile    opens; rendering kills the process
///   greedy     opens; rendering allocates more than every limit
///   deep       opens; rendering calls itself until the stack is used up
///   aborting   opens; rendering takes memory until there is none and aborts, as libraries do
///   careless   the same, and it writes where there is none
///   wild       opens; rendering writes through a null pointer
///   scratch    opens; rendering leaves files and folders in the scratch folder
///   orphan     opens; rendering starts a grandchild that never ends
///   nan        opens with a page whose measures are no numbers
/// The drawing is the colour with the page number as blue; pdf() answers "PDF PAGE", compose() "EPS" or
/// "PDF", the svg() of a document its own bytes. Page 99 is missing everywhere. A preview is one row of the
/// bytes as grey.
[[nodiscard]] EngineSet stubEngines();

}  // namespace norvex::kit
