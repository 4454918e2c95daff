#include "window/reading/page_letters.h"

#include "base/background_work.h"
#include "display/norvex_view.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/page_text.h"
#include "window/commands/window_parts.h"
#include "window/reading/letters.h"

namespace norvex {
namespace {

/// Null: one picture without pages.
int pagesOf(const NSPDFImageRep* shown) {
  return shown ? shown->readPageCount() : 1;
}

}  // namespace

PageLetters::PageLetters(WindowParts& parts, QObject* parent) : QObject(parent), parts_(parts) {}

PageLetters::~PageLetters() {
  cancel_.cancel();
  elsewhere_.cancel();
}

const PageText* PageLetters::text() const {
  const auto shown = parts_.view() ? parts_.view()->imageRep() : nullptr;
  return shown && text_ && known_.lock() == shown ? &*text_ : nullptr;
}

void PageLetters::want() {
  const auto shown = parts_.view() ? parts_.view()->imageRep() : nullptr;
  if (!shown || text() || wanted_.lock() == shown) return;
  cancel_.cancel();
  cancel_ = CancelToken();
  wanted_ = shown;
  text_.reset();
  workInBackground(
      this,
      [process = shown->process(), page = shown->page(), cancel = cancel_] {
        return pageText(*process, page, cancel);
      },
      [this, rep = std::weak_ptr<NSImageRep>(shown)](const Result<PageText>& read) {
        take(rep.lock(), read);
      });
}

bool PageLetters::lookElsewhere(const QString& needle, bool backward) {
  const auto shown = parts_.view() ? std::dynamic_pointer_cast<NSPDFImageRep>(parts_.view()->imageRep())
                                   : std::shared_ptr<NSPDFImageRep>();
  const int pages = pagesOf(shown.get());
  if (pages < 2) return false;
  stopLooking();
  elsewhere_ = CancelToken();
  workInBackground(
      this,
      [process = shown->process(), from = shown->page(), pages, needle, backward,
       cancel = elsewhere_]() -> std::optional<int> {
        for (int step = 1; step < pages && !cancel.cancelled(); ++step) {
          const int page = (from + (backward ? pages - step : step)) % pages;
          const Result<PageText> read = pageText(*process, page, cancel);
          if (read && !runsWith(*read, needle).isEmpty()) return page;
        }
        return std::nullopt;
      },
      [this, cancel = elsewhere_](const std::optional<int>& found) {
        if (!cancel.cancelled()) emit lookedElsewhere(found.value_or(-1));
      });
  return true;
}

bool PageLetters::hasOtherPages() const {
  return parts_.view() && pagesOf(dynamic_cast<NSPDFImageRep*>(parts_.view()->imageRep().get())) > 1;
}

void PageLetters::stopLooking() {
  elsewhere_.cancel();
}

void PageLetters::take(const std::shared_ptr<NSImageRep>& rep, const Result<PageText>& read) {
  if (!rep || wanted_.lock() != rep) return;
  wanted_.reset();
  if (read) {
    known_ = rep;
    text_ = *read;
  }
  emit arrived(read ? std::nullopt : std::optional(read.error()));
}

}  // namespace norvex
