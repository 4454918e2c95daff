// The print jobs of one document window.
#pragma once

#include <QObject>

#include <memory>
#include <vector>

#include "print/print_operation.h"

namespace norvex {

class Document;
class NorvexView;

/// Keeps the operations of a window until their jobs are over. Main thread; destroying it cancels what still
/// runs.
class PrintCommands final : public QObject {
  Q_OBJECT
 public:
  explicit PrintCommands(QObject* parent = nullptr) : QObject(parent) {}

  /// The part `rect` of `view` (view coordinates) as a view of its own, with its own picture of it.
  [[nodiscard]] static std::unique_ptr<NSPrintOperation> rectangleOperation(NorvexView& view,
                                                                            const QRectF& rect,
                                                                            Document& document,
                                                                            const QString& windowTitle,
                                                                            PrintServices services);
  /// Runs the operation and keeps it as long as it takes. Null is nothing.
  void run(std::unique_ptr<NSPrintOperation> operation);
  /// Whether a job is under way.
  [[nodiscard]] bool isPrinting() const { return !operations_.empty(); }

 private:
  void drop(NSPrintOperation* operation);

  std::vector<std::unique_ptr<NSPrintOperation>> operations_;
};

}  // namespace norvex
