// A document that wants a password.
#pragma once

#include <QObject>

#include "base/result.h"

namespace norvex {

class PasswordBar;
class WindowParts;

/// Asks for it in a bar over the picture, made when it is first wanted. What is given is told on and not kept
/// here. The parts outlive it. Main thread.
class PasswordCommand final : public QObject {
  Q_OBJECT
 public:
  PasswordCommand(WindowParts& parts, QObject* parent);

  /// The document could not be opened. True: for want of a password, which is asked for now.
  bool take(const Error& error);
  /// It is open, with or without.
  void documentDidOpen();

 signals:
  void passwordGiven(const QString& password);

 private:
  void makeBar();

  WindowParts& parts_;
  PasswordBar* bar_ = nullptr;
  bool tried_ = false;  ///< one was given, and nothing has been opened since
};

}  // namespace norvex
