// The choices of whoever reads a document: what opens it, and which of its layers are seen.
#pragma once

#include <QList>
#include <QString>

#include "protocol/worker_protocol.h"

namespace norvex {

/// Only a PDF has them. A password is kept in memory alone: no file, message or argument ever holds it.
struct ReaderChoices {
  QString password;  ///< empty: none
  /// In the order of PictureFacts::layers; empty: as the document says. Twice as many: the state that is
  /// shown, and behind it the one to show, so that a layer which comes up takes down those that exclude it.
  QList<PictureLayer> layers;

  [[nodiscard]] bool isEmpty() const { return password.isEmpty() && layers.isEmpty(); }
};

}  // namespace norvex
