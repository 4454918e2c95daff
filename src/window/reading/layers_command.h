// Showing and hiding the layers of a document.
#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

#include "protocol/worker_protocol.h"
#include "window/commands/side_room.h"

class QAction;
class QDockWidget;
class QMenu;

namespace norvex {

class LayerList;
class WindowParts;
class WindowSizingCommand;

/// A list of them beside the picture, made when it is first seen. Where there are none, nothing of it is
/// seen; layers that a file which is looked at gets later do not open it. What is chosen is told on, and
/// holds when the document is read again with it: for the screen and for everything that is handed out. Parts
/// and sizing outlive it. Main thread.
class LayersCommand final : public QObject {
  Q_OBJECT
 public:
  LayersCommand(WindowParts& parts, WindowSizingCommand& sizing, QObject* parent);

  /// Adds its command to `menu`.
  void setUp(QMenu& menu);
  /// What the window shows is another document, or another state of it.
  void documentDidChange();
  /// The document could not be read again: what is shown has stayed.
  void documentDidStay();

 signals:
  /// As ReaderChoices takes them: all layers, one of them other than before. Where that one comes up, what is
  /// shown now stands before them, because it tells which of two that exclude each other was meant.
  void layersChosen(const QList<norvex::PictureLayer>& layers);
  /// What was chosen last is not shown; these are, as before.
  void layersStayed(const QList<norvex::PictureLayer>& layers);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] QList<PictureLayer> shown() const;
  /// What is to be told on for wanted_. `before`: what is shown.
  [[nodiscard]] QList<PictureLayer> toChoose(const QList<PictureLayer>& before) const;
  void tellLocked(const QList<PictureLayer>& now);
  void keepAwayFromReload(bool hasLayers);
  /// As if it had been so from the beginning: no choice of the user's.
  void setWanted(bool on);
  void validate();
  [[nodiscard]] bool showsList() const;
  /// Once it is to be seen.
  void makeList();
  void choose(const QList<PictureLayer>& layers);

  WindowParts& parts_;
  SideRoom room_;
  LayerList* list_ = nullptr;
  QDockWidget* dock_ = nullptr;
  QAction* action_ = nullptr;
  std::optional<QString> file_;  ///< whose document has been shown last
  bool hadLayers_ = false;       ///< that file's, in any state of it
  bool keptAway_ = false;        ///< the list is wanted, but not for that file
  QList<PictureLayer> wanted_;   ///< until the document has been read again; empty: nothing was chosen
  int touched_ = -1;             ///< the layer among them that the user switched
};

}  // namespace norvex
