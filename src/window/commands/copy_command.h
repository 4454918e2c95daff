// Copying, and dragging a file out: what the picture offers to other programs.
#pragma once

#include <QObject>

#include <functional>
#include <optional>

#include "window/commands/picture_formats.h"

namespace norvex {

struct DraggedFile;
class NSPasteboard;
class NSPasteboardItem;
class WindowParts;

/// Makes the formats, and what other programs may take instead of them, in the background and puts them on
/// the clipboard in one step; a note tells the size of what was copied. The parts outlive it. Main thread.
class CopyCommand final : public QObject {
  Q_OBJECT
 public:
  explicit CopyCommand(WindowParts& parts) : parts_(parts) {}

  /// Not owned; null: the platform's.
  void setPasteboard(NSPasteboard* pasteboard) { pasteboard_ = pasteboard; }
  /// Stands in for the platform's beep.
  void setBeep(std::function<void()> beep) { beep_ = std::move(beep); }

  /// The picture as it is shown now, with the rectangle that is handed on.
  [[nodiscard]] PictureSnapshot snapshot() const;
  /// The formats of that rectangle as promises of their bytes. Beeps and is empty without a picture.
  [[nodiscard]] PictureFormats formats() const;
  /// Copies those formats and returns at once. What cannot be made is left out; when nothing can, the
  /// clipboard stays as it is. What was copied last counts.
  void copyPart();
  /// The whole picture in the formats that its representation has by itself, in the same way.
  void copyWhole();
  /// False: nothing was being copied.
  bool stop();
  /// The best of the formats as a file for another program, which begins to be made; none without a picture.
  [[nodiscard]] std::optional<DraggedFile> draggedFile() const;
  /// The whole picture in the same way, named as its document.
  [[nodiscard]] std::optional<DraggedFile> draggedWhole() const;

 signals:
  /// A copy has ended; false: the clipboard is as it was. A copy that a later one replaced is not told.
  void ended(bool written);

 private:
  void beep() const;
  void writeWhenMade(const PictureFormats& formats, const PictureSnapshot& shown);
  void write(const NSPasteboardItem& item, const QSizeF& size);

  WindowParts& parts_;
  NSPasteboard* pasteboard_ = nullptr;
  std::function<void()> beep_;
  std::optional<CancelToken> copying_;  ///< of the copy under way
  int number_ = 0;                      ///< what the window's work calls it
};

}  // namespace norvex
