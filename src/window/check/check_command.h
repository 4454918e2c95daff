// The picture of a window, checked beside it.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

#include "base/cancel_token.h"
#include "check/finding.h"

namespace norvex {

struct CheckedPicture;
class CheckPage;
class WindowParts;

/// Checks the document's file as it stands on disk, on another thread, whenever its page is seen and shows
/// nothing of this file yet; stops with the page, the window or another state of the file. Shows findings
/// where they are. Page and parts are borrowed and outlive it. Main thread.
class CheckCommand final : public QObject {
  Q_OBJECT
 public:
  CheckCommand(WindowParts& parts, CheckPage& page, QObject* parent);
  ~CheckCommand() override;

  /// Asked for the document's password at the beginning of a check; default: none is known.
  void setPassword(std::function<QString()> password) { password_ = std::move(password); }
  /// What the window shows is another document, or another state of it.
  void documentDidChange();
  /// The file has changed on disk; the window shows what it was.
  void fileDidChange();
  void start();
  [[nodiscard]] bool isChecking() const { return checking_.has_value(); }
  /// Of the last check that came to its end.
  [[nodiscard]] const Findings& findings() const { return findings_; }

  void show(const Finding& finding);

 signals:
  /// Another page of the document is to be shown, counted from 0.
  void pageWanted(int page);
  /// A check has come to its end and is shown.
  void checked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool stop();
  void take(const CheckedPicture& checked);
  void askForProfile();
  void useProfile(const QString& nameOrFile);

  WindowParts& parts_;
  CheckPage& page_;
  std::function<QString()> password_;
  Findings findings_;
  std::optional<CancelToken> checking_;  ///< nothing while nothing is checked
  bool stale_ = true;                    ///< what the page shows is of another state of the file
};

}  // namespace norvex
