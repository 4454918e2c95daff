// The seam before modal questions, so that commands which ask something can be tested without a person.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace norvex {

enum class AlertStyle { Warning = 0, Informational = 1, Critical = 2 };

/// One modal message. Texts are shown as plain text, already in the user's language.
struct Alert {
  AlertStyle style = AlertStyle::Warning;
  QString messageText;
  QString informativeText;
  QStringList buttons;   ///< titles in the order in which they were added; none: one default button
  QString details = {};  ///< a library's own words, shown when they are asked for; empty: there are none
  /// Called before it is shown, with what dismisses it from then on, and does nothing once it is answered:
  /// for a question that may answer itself. Null: it waits for the user alone.
  std::function<void(std::function<void()> dismiss)> willShow = {};
};

/// Shows alerts. Main thread only.
class AlertPresenter {
 public:
  virtual ~AlertPresenter() = default;

  /// Waits for the answer: the pressed button's place in `buttons`, from 0; -1 when the alert was dismissed.
  virtual int runModal(const Alert& alert) = 0;
};

}  // namespace norvex
