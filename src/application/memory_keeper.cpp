#include "application/memory_keeper.h"

#include "base/memory/unused_memory.h"
#include "document/document_controller.h"

namespace norvex {

MemoryKeeper::MemoryKeeper(DocumentController& documents, QObject* parent, int quietMs) : QObject(parent) {
  whenQuiet_.setSingleShot(true);
  whenQuiet_.setInterval(quietMs);
  connect(&documents, &DocumentController::documentOpened, &whenQuiet_, qOverload<>(&QTimer::start));
  connect(&documents, &DocumentController::documentClosed, &whenQuiet_, qOverload<>(&QTimer::start));
  connect(&whenQuiet_, &QTimer::timeout, this, [this] {
    giveBackUnusedMemory();
    emit gaveBack();
  });
}

}  // namespace norvex
