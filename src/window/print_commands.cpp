#include "window/print_commands.h"

#include <algorithm>

#include "display/norvex_rendering_view.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "document/print_titles.h"
#include "picture/pdf_image_rep.h"
#include "print/printable_view.h"

namespace norvex {
namespace {

constexpr int kPanelControls =
    NSPrintPanelShowsPaperSize | NSPrintPanelShowsOrientation | NSPrintPanelShowsScaling;

}  // namespace

std::unique_ptr<NSPrintOperation> PrintCommands::rectangleOperation(NorvexView& view, const QRectF& rect,
                                                                    Document& document,
                                                                    const QString& windowTitle,
                                                                    PrintServices services) {
  services.pictures = &document.pictureService();
  std::shared_ptr<NSImageRep> imageRep;
  const QByteArray pdf = view.dataWithPDFInsideRect(rect);
  if (!pdf.isEmpty())
    if (const auto made = NSPDFImageRep::imageRepWithData(document.pictureService(), pdf)) imageRep = *made;
  auto printed = std::make_shared<NorvexRenderingView>(QRectF(QPointF(0, 0), rect.size()), imageRep.get());
  printed->setPrintJobTitle(printJobTitle(document.fileURL(), document.displayName()));
  printed->setTitle(printPageTitle(document.fileURL(), windowTitle));
  auto operation = NSPrintOperation::printOperationWithView(
      std::make_unique<PrintableRenderingView>(printed, imageRep), document.printInfo(), services);
  NSPrintPanel& panel = operation->printPanel();
  panel.setOptions(panel.options() | kPanelControls);
  operation->setCanSpawnSeparateThread(true);
  return operation;
}

void PrintCommands::run(std::unique_ptr<NSPrintOperation> operation) {
  if (!operation) return;
  NSPrintOperation* const running = operation.get();
  operations_.push_back(std::move(operation));
  // Queued: the operation must not be destroyed from inside its own runOperation().
  connect(
      running, &NSPrintOperation::finished, this, [this, running] { drop(running); }, Qt::QueuedConnection);
  running->runOperation();
}

void PrintCommands::drop(NSPrintOperation* operation) {
  const auto ended = std::find_if(operations_.begin(), operations_.end(),
                                  [operation](const auto& each) { return each.get() == operation; });
  if (ended != operations_.end()) operations_.erase(ended);
}

}  // namespace norvex
