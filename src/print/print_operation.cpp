#include "print/print_operation.h"

#include "base/background_work.h"
#include "print/print_job.h"

namespace norvex {

NSPrintOperation::NSPrintOperation(std::unique_ptr<PrintableView> view, const NSPrintInfo& printInfo,
                                   const PrintServices& services)
    : view_(std::move(view)), printInfo_(printInfo), services_(services) {}

std::unique_ptr<NSPrintOperation> NSPrintOperation::printOperationWithView(
    std::unique_ptr<PrintableView> view, const NSPrintInfo& printInfo, const PrintServices& services) {
  return std::unique_ptr<NSPrintOperation>(new NSPrintOperation(std::move(view), printInfo, services));
}

NSPrintOperation::~NSPrintOperation() {
  if (!thread_.joinable()) return;
  cancel_.cancel();
  thread_.join();
}

bool NSPrintOperation::runOperation() {
  PrintInteraction* const interaction = services_.interaction;
  if (showsPrintPanel_ && interaction && !interaction->runPrintPanel(*this)) {
    result_ = Error{ErrorKind::Cancelled, QStringLiteral("the printing was cancelled")};
    emit finished();
    return false;
  }
  const PrintSource source = view_->printSource();
  title_ = source.jobTitle;
  if (interaction) job_ = interaction->jobDidBegin(title_, cancel_);
  const auto work = [this, source, info = printInfo_, services = services_, cancel = cancel_] {
    // Queued on a thread of its own; here and now without one.
    const auto progress = [this](int page, int pages) {
      QMetaObject::invokeMethod(this, [this, page, pages] { advance(page, pages); });
    };
    return runJob(source, info, *services.pictures, *services.spooler, cancel, progress);
  };
  if (!canSpawnSeparateThread_) {
    end(work());
    return result_->ok();
  }
  thread_ = std::thread(
      [this, work, back = WayBack(this)] { back.tell([this, result = madeBy(work)] { end(result); }); });
  return true;
}

void NSPrintOperation::advance(int page, int pages) {
  if (!result_ && services_.interaction) services_.interaction->jobDidAdvance(job_, title_, page, pages);
}

void NSPrintOperation::end(const Result<void>& result) {
  result_ = result;
  if (services_.interaction) services_.interaction->jobDidEnd(job_, title_, result);
  emit finished();
}

}  // namespace norvex
