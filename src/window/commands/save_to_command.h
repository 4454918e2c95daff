// Save To: the selected part as a new file in one of the formats of the pasteboard and some more.
#pragma once

#include <QObject>
#include <QUrl>

#include <memory>

namespace norvex {

class CopyCommand;
class WindowParts;

/// Opens a sheet with the formats of the moment, which are made while it is open, and writes the chosen one
/// in the background. Both are borrowed and outlive it. Main thread.
class SaveToCommand final : public QObject {
  Q_OBJECT
 public:
  SaveToCommand(WindowParts& parts, const CopyCommand& copying) : parts_(parts), copying_(copying) {}

  void run();

 signals:
  /// A file that was asked for in a sheet is written, or it is not.
  void ended(const QString& path, bool written);
  /// It could not be written, which the user was told.
  void failed();

 private:
  struct Sheet;
  void fillAccessory(const std::shared_ptr<Sheet>& sheet);
  void makeFormats(const std::shared_ptr<Sheet>& sheet);
  void removeFormat(Sheet& sheet, qsizetype row);
  void write(const std::shared_ptr<Sheet>& sheet, const QUrl& url);

  WindowParts& parts_;
  const CopyCommand& copying_;
};

/// Of the preview in the sheet, on a screen of that height: what is low is the files'. Logical pixels.
[[nodiscard]] int previewHeight(int screen);

/// `url` with `extension` in the place of its own one, or after it where it has none.
[[nodiscard]] QUrl urlWithExtension(const QUrl& url, const QString& extension);

}  // namespace norvex
