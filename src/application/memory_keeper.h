// Memory that a window's beginning or end leaves behind.
#pragma once

#include <QObject>
#include <QTimer>

namespace norvex {

class DocumentController;

/// Gives unused memory back some time after a document was opened or closed, when nothing more is to be
/// expected of it. `documents` must outlive it. Main thread.
class MemoryKeeper final : public QObject {
  Q_OBJECT
 public:
  static constexpr int kQuietMs = 2000;

  /// `quietMs`: how long nothing is opened or closed before it is given back.
  explicit MemoryKeeper(DocumentController& documents, QObject* parent = nullptr, int quietMs = kQuietMs);

 signals:
  void gaveBack();

 private:
  QTimer whenQuiet_;
};

}  // namespace norvex
