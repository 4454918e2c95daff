#include "window/commands/window_work.h"

#include <algorithm>

namespace norvex {

int WindowWork::begin(Kind kind, const QString& text, const CancelToken& cancel) {
  tasks_.append({++last_, kind, text, cancel});
  const int number = last_;
  emit changed();
  return number;
}

void WindowWork::end(int number) {
  if (tasks_.removeIf([number](const Task& task) { return task.number == number; }) > 0) emit changed();
}

void WindowWork::fail(int number) {
  emit failed();
  end(number);
}

bool WindowWork::isUnderWay(Kind kind) const {
  return std::any_of(tasks_.cbegin(), tasks_.cend(), [kind](const Task& task) { return task.kind == kind; });
}

bool WindowWork::cancelNewest() {
  if (tasks_.isEmpty()) return false;
  tasks_.constLast().cancel.cancel();
  return true;
}

bool WindowWork::cancelNewest(Kind kind) {
  const auto newest =
      std::find_if(tasks_.crbegin(), tasks_.crend(), [kind](const Task& task) { return task.kind == kind; });
  if (newest == tasks_.crend()) return false;
  newest->cancel.cancel();
  return true;
}

void WindowWork::cancelAll() {
  for (const Task& task : std::as_const(tasks_)) task.cancel.cancel();
}

}  // namespace norvex
