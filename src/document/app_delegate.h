// AppDelegate: the policies of the whole application.
#pragma once

#include <functional>

class QObject;

namespace norvex {

class DocumentController;

/// No untitled document is ever made, the last window's closing does not quit, and losing the active state
/// without an open document does. Main thread only.
class AppDelegate {
 public:
  /// Ends the application; `sender` is whose event asked for it.
  using Terminate = std::function<void(QObject* sender)>;

  /// `documents` (not owned) may be null: then there is no document. It must outlive the delegate.
  AppDelegate(const DocumentController* documents, Terminate terminate);

  [[nodiscard]] bool applicationShouldOpenUntitledFile() const { return false; }
  [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() const { return false; }
  void applicationDidFinishLaunching() {}
  void applicationDidResignActive(QObject* sender);
  void applicationWillTerminate() {}

 private:
  const DocumentController* documents_;
  Terminate terminate_;
};

}  // namespace norvex
