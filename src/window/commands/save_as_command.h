// Save As: the whole picture in any type that can be written. The document stays what it is.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>

#include "base/cancel_token.h"
#include "types/uniform_type.h"

namespace norvex {

class WindowParts;
class WindowProducers;

/// Opens the sheet; the document then asks, makes and writes, and only the making takes time: it goes on
/// beside the window in an event loop of its own. Both are borrowed and outlive it. Main thread.
class SaveAsCommand final : public QObject {
  Q_OBJECT
 public:
  SaveAsCommand(WindowParts& parts, WindowProducers& producers) : parts_(parts), producers_(producers) {}

  /// `title` is the sheet's. Nothing happens without a picture, and while one is being written.
  void run(const QString& title);
  [[nodiscard]] QList<UTType> writableTypes() const;
  /// True if a picture is being made or written.
  [[nodiscard]] bool isSaving() const { return saving_; }

 signals:
  /// It is written, or it will not be.
  void ended();
  /// It could not be written, which the user was or will be told; ended() follows.
  void failed();

 private:
  void write(const QUrl& url, const UTType& type);
  void workBesideTheWindow(const std::function<void()>& work, const CancelToken& cancel);

  WindowParts& parts_;
  WindowProducers& producers_;
  bool saving_ = false;
};

}  // namespace norvex
