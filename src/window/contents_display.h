// The contents of a file in the window's controls.
#pragma once

#include <QColorSpace>
#include <QRectF>

#include <optional>

#include "metadata/header_dictionary.h"

namespace norvex {

struct DocumentContents;
class InspectorCommand;
class WindowParts;

/// Fills view and inspector; rotation, zoom and messages are others' business. Both are borrowed and outlive
/// it. Main thread.
class ContentsDisplay final {
 public:
  ContentsDisplay(WindowParts& parts, InspectorCommand& inspector) : parts_(parts), inspector_(inspector) {}

  void show(const DocumentContents& contents);
  /// The texts of a header dictionary, and of the source.
  void showTexts(const HeaderDictionary& header, const QString& sourceText);
  /// Empty fields for a document without a file.
  void showUntitled();
  /// The colour space that the header names; nothing: it names none.
  [[nodiscard]] static std::optional<QColorSpace> colorSpace(const HeaderDictionary& header);

 private:
  void showPicture(const DocumentContents& contents);
  void showSvgPicture(const DocumentContents& contents);
  void showMatrix(const QRectF& rect);
  void showPreview(const DocumentContents& contents);

  WindowParts& parts_;
  InspectorCommand& inspector_;
};

}  // namespace norvex
