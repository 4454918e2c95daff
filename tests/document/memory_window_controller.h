// A window controller without a window: writes down what its document asks of it.
#pragma once

#include <QStringList>

#include <functional>
#include <memory>

#include "document/document.h"
#include "document/document_window_controller.h"

namespace norvex::kit {

class MemoryWindowController final : public DocumentWindowController {
 public:
  explicit MemoryWindowController(QStringList* log) : log_(log) {}
  ~MemoryWindowController() override { log_->append("destroyed"); }

  void setDocument(Document* document) override {
    document_ = document;
    log_->append(document ? "added" : "removed");
  }
  void setShouldCloseDocument(bool close) override {
    closesDocument_ = close;
    log_->append(close ? "closes document" : "leaves document");
  }
  void showWindow() override { log_->append("shown"); }
  void windowDidLoad() override {
    log_->append("loaded");
    if (onLoad) onLoad();
  }
  void display() override { log_->append("displayed"); }
  void fileDidDisappear() override { log_->append("gone from disk"); }
  [[nodiscard]] bool closesWhenDone() const override { return waits; }
  void fileDidChangeOnDisk() override { log_->append("changed on disk"); }
  PictureProducers* producers() override { return pictureProducers; }

  /// What a person does with the close button.
  void closeWindow() {
    if (closesDocument_ && document_) document_->close();
  }

  std::function<void()> onLoad;
  PictureProducers* pictureProducers = nullptr;
  bool waits = false;  ///< the window was to close and is still writing

 private:
  QStringList* log_;
  Document* document_ = nullptr;
  bool closesDocument_ = false;
};

/// Makes controllers that all write into `log`.
inline DocumentWindowControllerFactory loggingFactory(QStringList* log) {
  return [log] { return std::make_unique<MemoryWindowController>(log); };
}

}  // namespace norvex::kit
