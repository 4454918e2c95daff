// The exception "UnimplementedMethod": an operation was asked for something that it does not do.
#pragma once

#include <QString>

#include <exception>
#include <string>

namespace norvex {

/// Ends the operation that raises it. Whoever runs the operation in the window's name (Application, the
/// document controller) turns it into a plain sentence; nothing else catches it.
class UnimplementedMethod final : public std::exception {
 public:
  /// `operation` in its original form, colons and all: "readFromData:ofType:error:".
  /// `suggestion`: what the user can do about it, one sentence in the user's language; may be empty.
  explicit UnimplementedMethod(const QString& operation, const QString& suggestion = {});

  [[nodiscard]] static QString name() { return QStringLiteral("UnimplementedMethod"); }
  [[nodiscard]] QString operation() const { return operation_; }
  /// "%@ is unimplemented" with the operation in the placeholder.
  [[nodiscard]] QString reason() const;
  [[nodiscard]] QString suggestion() const { return suggestion_; }
  [[nodiscard]] const char* what() const noexcept override { return what_.c_str(); }

 private:
  QString operation_, suggestion_;
  std::string what_;
};

}  // namespace norvex
