// The work of a document window on other threads.
#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include "base/cancel_token.h"

namespace norvex {

/// Every piece of work that a window has begun and that has not ended, so that one place knows what its card
/// shows, what Cancel stops and what closing would lose. Main thread. Destroying it cancels everything; the
/// threads end soon afterwards, and who owns the picture service waits for them.
class WindowWork final : public QObject {
  Q_OBJECT
 public:
  /// The loss when the window goes: nothing that cannot be had again, or a file that somebody waits for. What
  /// is examined is the picture that is shown, and is given up for another one.
  enum class Kind { Examining, Reading, Copying, Writing };

  using QObject::QObject;
  ~WindowWork() override { cancelAll(); }

  /// `text` tells it in a word or two; cancelling the token ends it. Gives it a number of its own.
  int begin(Kind kind, const QString& text, const CancelToken& cancel);
  /// It has ended, one way or the other; a number that is not under way is nothing.
  void end(int number);
  /// It has ended without what it was begun for, and can be tried again as long as there is a window.
  void fail(int number);
  [[nodiscard]] bool isUnderWay() const { return !tasks_.isEmpty(); }
  [[nodiscard]] bool isUnderWay(Kind kind) const;
  /// Of what was begun last; empty without any.
  [[nodiscard]] QString text() const { return tasks_.isEmpty() ? QString() : tasks_.constLast().text; }
  /// Stops what was begun last; false: there was nothing. It ends when its thread has seen it.
  bool cancelNewest();
  bool cancelNewest(Kind kind);
  void cancelAll();

 signals:
  /// Something began or ended.
  void changed();
  /// Told before changed().
  void failed();

 private:
  struct Task {
    int number;
    Kind kind;
    QString text;
    CancelToken cancel;
  };
  QList<Task> tasks_;  ///< in the order in which they were begun
  int last_ = 0;
};

}  // namespace norvex
