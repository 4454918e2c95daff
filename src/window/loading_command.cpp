#include "window/loading_command.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "window/commands/window_parts.h"
#include "window/document_contents.h"

namespace norvex {

namespace {

/// Enough of a picture to know whether its program still draws; pixels.
constexpr double kTrialSide = 64;
/// A quick document is on the screen together with its window; a slow one does not keep the window waiting.
constexpr std::chrono::milliseconds kGrace(150);

/// A program that fails only when it is drawn takes its picture with it. Any thread.
void tryDrawing(DocumentContents& contents, const CancelToken& cancel) {
  if (!contents.imageRep) return;
  const QSizeF size = contents.imageRep->size();
  const double side = std::max(size.width(), size.height());
  if (!(side > 0)) return;
  const auto drawn =
      contents.imageRep->rasterImage(std::min(1.0, kTrialSide / side), RenderPurpose::Preview, cancel);
  if (drawn) return;
  contents.error = drawn.error();
  contents.imageRep.reset();
}

}  // namespace

/// Shared by the command and the reading thread; what is left when nobody waits for it any more.
struct LoadingCommand::Reading {
  CancelToken cancel;
  bool again = false;         ///< there is a picture already
  int number = 0;             ///< what the window's work calls it
  DocumentContents contents;  ///< belongs to the reader until it is done, to the main thread afterwards
};

LoadingCommand::~LoadingCommand() {
  if (reading_) reading_->cancel.cancel();
}

void LoadingCommand::readNow() {
  stop();
  Document& document = *parts_.document();
  const bool again = parts_.validateUserInterfaceItem();
  DocumentContents contents = readDocumentContents(document.pictureService(), document.fileURL(),
                                                   document.fileType(), thread(), {}, choices_);
  if (again) tryDrawing(contents, {});
  emit finished(contents, again);
}

void LoadingCommand::start() {
  stop();
  Document& document = *parts_.document();
  reading_ = std::make_shared<Reading>();
  reading_->again = parts_.validateUserInterfaceItem();
  reading_->contents.error = outOfMemory();  // what is left of a reading that breaks off
  reading_->number =
      parts_.work().begin(WindowWork::Kind::Reading, localizedString("Opening…"), reading_->cancel);
  const BackgroundWork work = workInBackground(
      this,
      [reading = reading_, &service = document.pictureService(), url = document.fileURL(),
       type = document.fileType(), home = thread(), choices = choices_] {
        reading->contents = readDocumentContents(service, url, type, home, reading->cancel, choices);
        if (reading->again) tryDrawing(reading->contents, reading->cancel);
      },
      [this, reading = reading_] {
        if (reading_ == reading) take();
      });
  if (work.waitFor(kGrace)) take();
}

void LoadingCommand::take() {
  const std::shared_ptr<Reading> reading = std::exchange(reading_, nullptr);
  parts_.work().end(reading->number);
  emit finished(reading->contents, reading->again);
}

bool LoadingCommand::stop() {
  if (!reading_) return false;
  reading_->cancel.cancel();
  parts_.work().end(std::exchange(reading_, nullptr)->number);
  return true;
}

}  // namespace norvex
