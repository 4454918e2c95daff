// The pieces of a program and how far they are written to who reads them.
#pragma once

#include <QByteArray>
#include <QList>

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace norvex::engine {

class ProgramFeed {
 public:
  ProgramFeed() = default;
  explicit ProgramFeed(QList<QByteArray> pieces) : pieces_(std::move(pieces)) { skipEmpty(); }
  [[nodiscard]] bool done() const { return piece_ == pieces_.size(); }
  /// As much as the descriptor takes. False when the reader is gone. REQUIRES !done().
  bool writeTo(int descriptor) {
    const QByteArray& piece = pieces_[piece_];
    const ssize_t put = ::write(descriptor, piece.constData() + offset_, size_t(piece.size() - offset_));
    if (put < 0) return errno == EINTR || errno == EAGAIN;
    offset_ += put;
    if (offset_ == piece.size()) ++piece_, offset_ = 0, skipEmpty();
    return true;
  }

 private:
  void skipEmpty() {
    while (!done() && pieces_[piece_].isEmpty()) ++piece_;
  }
  QList<QByteArray> pieces_;
  qsizetype piece_ = 0;
  qsizetype offset_ = 0;
};

}  // namespace norvex::engine
