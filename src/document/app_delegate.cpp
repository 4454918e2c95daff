#include "document/app_delegate.h"

#include <utility>

#include "document/document_controller.h"

namespace norvex {

AppDelegate::AppDelegate(const DocumentController* documents, Terminate terminate)
    : documents_(documents), terminate_(std::move(terminate)) {}

void AppDelegate::applicationDidResignActive(QObject* sender) {
  if (!documents_ || documents_->documents().isEmpty()) terminate_(sender);
}

}  // namespace norvex
