// The choices of whoever reads a document: what opens it, and which of its layers are seen.
#pragma once

#include <QList>
#include <QString>

#include "protocol/worker_protocol.h"

namespace norvex {

/// Only a PDF has them. A password is kept in memory alone: no file, message or argument ever holds it.
struct ReaderChoices {
  QString password;            ///< empty: none
  QList<PictureLayer> layers;  ///< in the order of PictureFacts::layers; empty: as the document says

  [[nodiscard]] bool isEmpty() const { return password.isEmpty() && layers.isEmpty(); }
};

}  // namespace norvex
