// Finding text in the picture.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <optional>

#include "base/result.h"
#include "window/reading/letters.h"

class QAction;
class QMenu;

namespace norvex {

class PageLetters;
class SourceFindBar;
class LateTextMarks;
class WindowParts;

/// A bar over the picture, made when it is first wanted; every place on the shown page is marked, and the way
/// goes from one to the next, on to the other pages of the document and round. Parts, letters and marks
/// outlive it. Main thread.
class FindCommand final : public QObject {
  Q_OBJECT
 public:
  FindCommand(WindowParts& parts, PageLetters& letters, LateTextMarks& marks, QObject* parent);

  /// Adds its command to `menu`, before `before`.
  void setUp(QMenu& menu, QAction* before);
  void open();
  /// The next place, or the one before it; what is to be looked for is asked for when it is not known.
  void findNext(bool backward = false);
  void close();
  /// Another page or another document is shown, or the picture has become another one.
  void pageDidChange();
  /// Null before it was opened.
  [[nodiscard]] SourceFindBar* bar() const { return bar_; }

 signals:
  /// It was found on another page; from 0.
  void pageChosen(int page);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeBar();
  [[nodiscard]] bool isOpen() const { return card_ && !card_->isHidden(); }
  void lookFor();
  void step(bool backward);
  void goRound();
  void takeElsewhere(int page);
  void mark();
  void take(const std::optional<Error>& error);

  WindowParts& parts_;
  PageLetters& letters_;
  LateTextMarks& marks_;
  QPointer<QWidget> card_;
  SourceFindBar* bar_ = nullptr;
  QAction* action_ = nullptr;
  QList<LetterRun> runs_;
  qsizetype current_ = 0;
  bool backward_ = false;  ///< as the way went last
  bool entering_ = false;  ///< a page that it led to, and whose text is not known yet
};

}  // namespace norvex
