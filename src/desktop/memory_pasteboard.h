// Pasteboards without a display.
#pragma once

#include "desktop/pasteboard.h"

namespace norvex {

/// Keeps what is written and counts the calls.
class MemoryPasteboard final : public NSPasteboard {
 public:
  void clearContents() override {
    ++clearCount;
    objects.clear();
  }
  bool writeObjects(const QList<NSPasteboardItem>& written) override {
    ++writeCount;
    objects = written;
    return true;
  }

  QList<NSPasteboardItem> objects;
  int clearCount = 0, writeCount = 0;
};

/// Cannot be had.
class FailingPasteboard final : public NSPasteboard {
 public:
  void clearContents() override {}
  bool writeObjects(const QList<NSPasteboardItem>&) override {
    ++writeCount;
    return false;
  }

  int writeCount = 0;
};

}  // namespace norvex
