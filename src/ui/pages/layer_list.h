// The layers of a document, each with a switch.
#pragma once

#include <QList>
#include <QListWidget>

#include "protocol/worker_protocol.h"

namespace norvex {

/// Tells which of them the user wants to see; what is shown is set by its owner. Main thread.
class LayerList final : public QListWidget {
  Q_OBJECT
 public:
  explicit LayerList(QWidget* parent = nullptr);

  /// Sends no signal. A place in the list and the focus stay where the layers are the same.
  void setLayers(const QList<PictureLayer>& layers);
  [[nodiscard]] QList<PictureLayer> layers() const { return layers_; }
  [[nodiscard]] QSize sizeHint() const override;

 signals:
  /// All layers, one of them other than before.
  void layersChosen(const QList<norvex::PictureLayer>& layers);

 private:
  void take(const QListWidgetItem& item);

  QList<PictureLayer> layers_;
};

}  // namespace norvex
