// Dialogs that their caller waits for.
#pragma once

#include <QDialog>
#include <QPointer>

#include <utility>

namespace norvex {

/// A dialog of the caller's, made with the arguments of `Dialog`'s constructor. While it is on the screen the
/// window that it belongs to may go, for one that takes its place for example, and takes it along: nothing is
/// left of it then, which a dialog on the caller's stack would not survive. Main thread.
template <typename Dialog>
class ModalDialog final {
 public:
  template <typename... Arguments>
  explicit ModalDialog(Arguments&&... arguments)
      : dialog_(new Dialog(std::forward<Arguments>(arguments)...)) {}
  ~ModalDialog() { delete dialog_.data(); }
  ModalDialog(const ModalDialog&) = delete;
  ModalDialog& operator=(const ModalDialog&) = delete;

  /// Shows it and returns when it was answered. False: it went with its window, and whoever shows it may be
  /// gone as well.
  [[nodiscard]] bool isAnswered() {
    dialog_->exec();
    return dialog_ != nullptr;
  }
  /// True if it was answered by accepting it.
  [[nodiscard]] bool isAccepted() { return isAnswered() && dialog_->result() == QDialog::Accepted; }

  Dialog& operator*() const { return *dialog_; }
  Dialog* operator->() const { return dialog_; }

 private:
  QPointer<Dialog> dialog_;
};

}  // namespace norvex
