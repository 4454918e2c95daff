// The picture whose signals a command takes.
#pragma once

#include <QPointer>

#include "picture/image_rep.h"

namespace norvex {

/// One picture at a time: others may keep the one before it, which still draws. Main thread.
class WatchedPicture {
 public:
  /// Borrowed.
  explicit WatchedPicture(QObject& listener) : listener_(listener) {}

  /// The listener hears nothing of the picture before any more. Null: there is none.
  void change(const NSImageRep* rep) {
    if (rep_) QObject::disconnect(rep_, nullptr, &listener_, nullptr);
    rep_ = rep;
  }

 private:
  QObject& listener_;
  QPointer<const NSImageRep> rep_;
};

}  // namespace norvex
