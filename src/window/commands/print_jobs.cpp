#include "window/commands/print_jobs.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QThread>

#include <algorithm>

#include "display/norvex_rendering_view.h"
#include "display/norvex_view.h"
#include "display/view_compose.h"
#include "document/document.h"
#include "document/print_titles.h"
#include "print/page_layout_options.h"
#include "print/printable_view.h"

namespace norvex {
namespace {

bool wasPrinted(const Result<void>& result) {
  return result.ok() || result.error().kind == ErrorKind::Cancelled;
}

}  // namespace

PrintJobs::~PrintJobs() {
  cancelAll();
  if (preparing_) preparing_->work.wait();
}

void PrintJobs::cancelAll() {
  if (preparing_) preparing_->cancel.cancel();
  for (const CancelToken& cancel : cancels_) cancel.cancel();
}

void PrintJobs::printRectangle(const NorvexView& view, const QRectF& rect, Document& document,
                               const QString& windowTitle, PrintServices services) {
  if (preparing_) return;
  services.pictures = &document.pictureService();
  const Part part{rect.size(), printJobTitle(document.fileURL(), document.displayName()),
                  printPageTitle(document.fileURL(), windowTitle), document.printInfo(), services};
  if (!view.imageRep()) return runPart(part, nullptr);
  preparing_ = std::make_unique<Preparing>();
  preparing_->part = part;
  if (services.interaction)
    preparing_->number = services.interaction->preparationDidBegin(part.jobTitle, preparing_->cancel);
  const QSizeF size = view.imageSize();
  const PicturePlacement placement{QPointF(size.width() * 0.5, size.height() * 0.5), view.rotate()};
  preparing_->work = workInBackground(
      this,
      [rep = view.imageRep(), placement, rect, pictures = services.pictures, cancel = preparing_->cancel,
       home = thread()]() -> Picture {
        const auto pdf = composeView(rep.get(), placement, VectorFormat::Pdf, rect, cancel);
        if (!pdf) return pdf.error();
        Picture made = NSPDFImageRep::imageRepWithData(*pictures, pdf->bytes, {}, 0, cancel);
        if (made) (*made)->moveToThread(home);
        return made;
      },
      [this](const Picture& picture) { takePicture(picture); });
}

void PrintJobs::takePicture(const Picture& picture) {
  const std::unique_ptr<Preparing> done = std::move(preparing_);
  const Result<void> result = picture ? Result<void>() : Result<void>(picture.error());
  const QPointer<PrintJobs> self(this);
  if (PrintInteraction* const interaction = done->part.services.interaction)
    interaction->preparationDidEnd(done->number, done->part.jobTitle, result);
  if (!self) return;  // while a failure was told
  // It may have been stopped when it was as good as made.
  if (picture && !done->cancel.cancelled()) return runPart(done->part, *picture);
  emit ended(wasPrinted(result));
}

void PrintJobs::runPart(const Part& part, const std::shared_ptr<NSImageRep>& picture) {
  auto printed = std::make_shared<NorvexRenderingView>(QRectF(QPointF(0, 0), part.size), picture.get());
  printed->setPrintJobTitle(part.jobTitle);
  printed->setTitle(part.pageTitle);
  auto operation = NSPrintOperation::printOperationWithView(
      std::make_unique<PrintableRenderingView>(printed, picture), part.info, part.services);
  NSPrintPanel& panel = operation->printPanel();
  panel.setOptions(panel.options() | pageLayoutOptions);
  operation->setCanSpawnSeparateThread(true);
  run(std::move(operation));
}

void PrintJobs::run(std::unique_ptr<NSPrintOperation> operation) {
  if (!operation) return;
  NSPrintOperation* const running = operation.get();
  const CancelToken cancel;
  running->setCancelToken(cancel);
  operations_.push_back(std::move(operation));
  cancels_.push_back(cancel);
  // Queued: the operation must not be destroyed from inside its own runOperation().
  connect(
      running, &NSPrintOperation::finished, this, [this, running] { drop(running); }, Qt::QueuedConnection);
  const QScopedValueRollback<std::size_t> asking(inPanels_, inPanels_ + 1);
  running->runOperation();
}

void PrintJobs::drop(NSPrintOperation* operation) {
  const auto done = std::find_if(operations_.begin(), operations_.end(),
                                 [operation](const auto& each) { return each.get() == operation; });
  if (done == operations_.end()) return;
  const bool printed = !operation->result() || wasPrinted(*operation->result());
  cancels_.erase(cancels_.begin() + (done - operations_.begin()));
  operations_.erase(done);
  emit ended(printed);
}

}  // namespace norvex
