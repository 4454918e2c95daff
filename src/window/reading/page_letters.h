// The text of the page that a window shows.
#pragma once

#include <QObject>

#include <memory>
#include <optional>

#include "base/cancel_token.h"
#include "base/result.h"
#include "protocol/page_text.h"

namespace norvex {

class NSImageRep;
class WindowParts;

/// Found out when it is wanted for the first time, and kept as long as that page is shown. The parts outlive
/// it. Main thread.
class PageLetters final : public QObject {
  Q_OBJECT
 public:
  PageLetters(WindowParts& parts, QObject* parent);
  ~PageLetters() override;

  /// The text of what is shown now; null: it is not known yet.
  [[nodiscard]] const PageText* text() const;
  /// Has it found out, unless it is known or being found out; arrived() tells.
  void want();
  /// Looks for a page with `needle` on the others of the document, from the next one (or the one before) on;
  /// lookedElsewhere() tells. False: there are no others.
  bool lookElsewhere(const QString& needle, bool backward);
  void stopLooking();
  /// True if there are other pages to look at.
  [[nodiscard]] bool hasOtherPages() const;

 signals:
  /// It is known, or why it will not be.
  void arrived(const std::optional<norvex::Error>& error);
  /// The page that has it, from 0; -1: none.
  void lookedElsewhere(int page);

 private:
  void take(const std::shared_ptr<NSImageRep>& rep, const Result<PageText>& read);

  WindowParts& parts_;
  CancelToken cancel_, elsewhere_;
  std::weak_ptr<NSImageRep> wanted_, known_;
  std::optional<PageText> text_;  ///< of known_
};

}  // namespace norvex
