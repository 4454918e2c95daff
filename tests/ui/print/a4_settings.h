// The settings that the tests of printing begin with.
#pragma once

#include "print/paper.h"
#include "print/print_info.h"

namespace norvex {

/// A4, with nothing left free around it.
inline NSPrintInfo a4() {
  NSPrintInfo info;
  info.setPaper(*paperNamed("A4"));
  for (const char* margin : {NSPrintLeftMargin, NSPrintRightMargin, NSPrintTopMargin, NSPrintBottomMargin})
    info.set(margin, 0.0);
  return info;
}

}  // namespace norvex
