// Events of the application as a whole, apart from the application object, so that it can be made to
// happen.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <functional>

namespace norvex {

/// Turns what the application object sees into events of the application. Main thread.
class ApplicationEvents final : public QObject {
  Q_OBJECT
 public:
  /// While the focus goes from one window of the application to another, none has it for a moment.
  static constexpr int handOverMilliseconds = 150;

  explicit ApplicationEvents(QObject* parent = nullptr);

  /// Runs `deliver`, an event's handling, and returns its answer. An "UnimplementedMethod" exception (and
  /// running out of memory) ends it there: the event counts as handled and operationFailed() follows from the
  /// event loop.
  bool guard(const std::function<bool()>& deliver);
  /// The application's state, whenever it changes.
  void setState(Qt::ApplicationState state);

 signals:
  /// The active state was lost and did not come back while the focus could have been on its way.
  void didResignActive();
  /// The desktop asks to open a file.
  void fileOpenRequested(const QUrl& url);
  /// The program was asked to end, and a window that did not close kept it.
  void quitRefused();
  /// An operation ended with an exception; `reason` has no full stop.
  void operationFailed(const QString& reason);

 private:
  bool wasActive_ = false;
  QTimer handOver_;
};

}  // namespace norvex
