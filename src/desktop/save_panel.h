// The seam before the panel that asks where a file is to be written, so that what follows is tested without a
// person.
#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <functional>

#include "types/uniform_type.h"

class QWidget;

namespace norvex {

struct SavePanelSettings {
  QString title;
  QString message;                    ///< one sentence above the controls; may be empty
  QList<UTType> allowedContentTypes;  ///< only files of these types are listed
  bool allowsOtherFileTypes = true;
  bool canSelectHiddenExtension = false, extensionHidden = false;
  QUrl directoryURL;                 ///< where the panel begins; empty: its own choice
  QUrl ownDirectoryURL;              ///< that choice, where there is a better one than the pictures' folder
  QString nameFieldStringValue;      ///< proposed name
  QWidget* accessoryView = nullptr;  ///< shown in the panel, given back to its parent afterwards; not owned
  /// With no accessory view: the place in allowedContentTypes that a list of types begins with; -1: no list.
  int selectedContentType = -1;
  /// Told when the extension of a type is typed after the name, so that a list of types can follow. May be
  /// unset; a list of the panel's own follows by itself.
  std::function<void(const UTType& type)> typed;
  /// Where the file will really be for the URL and the type chosen at that moment; what is there is replaced
  /// only after a question. Unset: at the URL.
  std::function<QUrl(const QUrl& url, int contentType)> target;
};

struct SavePanelAnswer {
  bool ok = false;       ///< otherwise the panel was cancelled and the rest says nothing
  QUrl url;              ///< as it was typed
  int contentType = -1;  ///< place in allowedContentTypes, where a list of types was shown
};

/// Main thread only.
class NSSavePanel {
 public:
  using Completion = std::function<void(const SavePanelAnswer&)>;
  virtual ~NSSavePanel() = default;

  /// Shows the panel as a sheet of `window` and returns; `completion` follows once, from the event loop. When
  /// the window goes first, it does not follow.
  virtual void beginSheetModalForWindow(QWidget* window, const SavePanelSettings& settings,
                                        Completion completion) = 0;
};

}  // namespace norvex
