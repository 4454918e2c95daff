// Selecting the text of the picture, and following its links.
#pragma once

#include <QObject>
#include <QUrl>

#include <functional>
#include <optional>

#include "base/result.h"
#include "window/reading/letters.h"

class QAction;
class QMenu;

namespace norvex {

class PageLetters;
class LateTextMarks;
class WindowParts;

/// A mode: while it is on a drag selects text and a click on a link follows it, an address only after a
/// question that shows it; Escape ends it. While it is off the mouse does what it always does. Parts, letters
/// and marks outlive it. Main thread.
class TextCommand final : public QObject {
  Q_OBJECT
 public:
  TextCommand(WindowParts& parts, PageLetters& letters, LateTextMarks& marks, QObject* parent);

  /// Adds its commands to `menu`, before `before`.
  void setUp(QMenu& menu, QAction* before);
  /// Another page or another document is shown.
  void pageDidChange();
  [[nodiscard]] QString selectedText() const;
  /// Default: the desktop opens it.
  void setOpener(std::function<bool(const QUrl&)> opener) { opener_ = std::move(opener); }
  /// What a link leads to as it is shown: plain letters, everything else as the bytes that it stands for.
  [[nodiscard]] static QString shownAddress(const QString& address);

 signals:
  /// A link to a page of the document was followed; from 0.
  void pageChosen(int page);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void setOn(bool on);
  void press(const QPointF& point);
  void drag(const QPointF& point);
  void release(const QPointF& point);
  void hover(const QPointF& point);
  void follow(const PageLink& link);
  void select(const LetterRun& run);
  void copy();

  WindowParts& parts_;
  PageLetters& letters_;
  LateTextMarks& marks_;
  std::function<bool(const QUrl&)> opener_;  ///< false: no program does
  QAction *mode_ = nullptr, *copy_ = nullptr;
  LetterRun selected_;
  qsizetype start_ = -1;               ///< the letter at which a drag began; -1: none
  std::optional<QPointF> pressPoint_;  ///< until the pointer has moved
};

}  // namespace norvex
