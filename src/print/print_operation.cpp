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
  const auto print = [source, info = printInfo_, services = services_,
                      cancel = cancel_](const auto& progress) {
    return runJob(source, info, *services.pictures, *services.spooler, cancel, progress);
  };
  if (!canSpawnSeparateThread_) {
    end(print([this](int page, int pages) { advance(page, pages); }));
    return result_->ok();
  }
  thread_ = std::thread([this, print, back = WayBack(this)] {
    const auto progress = [this, &back](int page, int pages) {
      back.tell([this, page, pages] { advance(page, pages); });
    };
    const auto work = [&] { return print(progress); };
    back.tell([this, result = madeBy(work)] { end(result); });
  });
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
