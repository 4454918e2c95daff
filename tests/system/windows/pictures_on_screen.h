// A screen of its own with a folder of pictures, and where the window of one of them stands.
#pragma once

#include <QTest>

#include <algorithm>

#include "system/x_session.h"

namespace norvex {

inline const QByteArray kSmall =
    "<svg xmlns='http://www.w3.org/2000/svg' width='300' height='200'><rect width='100%' height='100%' "
    "fill='#ffe633'/></svg>";
inline const QByteArray kBroad =
    "<svg xmlns='http://www.w3.org/2000/svg' width='1400' height='300'><rect width='100%' height='100%' "
    "fill='#33ffe6'/></svg>";
inline const QByteArray kMiddle =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 500 260\n%%EndComments\n0 0.5 0.9 setrgbcolor 0 0 500 260 "
    "rectfill\n%%EOF\n";
inline const QByteArray kLetter =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 612 792\n%%EndComments\n0 0.5 0.1 setrgbcolor 20 20 572 752 "
    "rectfill\n%%EOF\n";

/// Window managers put a window where it is wanted within so many pixels.
inline constexpr int kNear = 2;

inline bool isNear(const QRect& one, const QRect& other) {
  return (one.topLeft() - other.topLeft()).manhattanLength() <= kNear &&
         (one.bottomRight() - other.bottomRight()).manhattanLength() <= kNear;
}

inline QByteArray text(const QRect& rect) {
  return QStringLiteral("%1, %2, %3 × %4")
      .arg(rect.x())
      .arg(rect.y())
      .arg(rect.width())
      .arg(rect.height())
      .toUtf8();
}

/// Rows of tests that go through it all at these scales and with these window managers.
inline void smallScreens() {
  QTest::addColumn<QString>("scale");
  QTest::addColumn<QString>("manager");
  const QString openbox = QStringLiteral("openbox"), none;
  QTest::newRow("with frames") << QStringLiteral("1") << openbox;
  QTest::newRow("scale 1.5") << QStringLiteral("1.5") << openbox;
  QTest::newRow("without a window manager") << QStringLiteral("1") << none;
}

/// A folder of pictures of every kind of size, of which one is shown.
class PicturesOnScreen {
 public:
  explicit PicturesOnScreen(const QSize& size, const QString& scale = "1", const QString& manager = "openbox")
      : size_(size), session_(size, manager) {
    session_.setEnvironment("QT_SCALE_FACTOR", scale);
    write("a small.svg", kSmall);
    write("b letter.eps", kLetter);
    write("c middle.eps", kMiddle);
    write("d broad.svg", kBroad);
    write("e broken.pdf", "%PDF-1.4 broken");
  }
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
  bool open(const QString& name) { return session_.start({path(name)}, name) && rests(name); }
  bool goTo(const QString& name) { return session_.activate(name) && rests(name); }
  /// Presses the keys in the window that is shown; a window called `shows` comes of it.
  bool press(const QString& keys, const QString& shows) {
    session_.activate(shown_);
    session_.key(keys);
    if (shows == shown_) QThread::msleep(400);
    return goTo(shows);
  }
  /// The same one after the other.
  bool press(const QStringList& all) {
    return std::all_of(all.cbegin(), all.cend(), [this](const QString& keys) { return press(keys, shown_); });
  }
  [[nodiscard]] const QRect& frame() const { return frame_; }
  [[nodiscard]] const QString& shown() const { return shown_; }
  [[nodiscard]] bool isWhollySeen() const { return QRect(QPoint(0, 0), size_).contains(frame_); }
  kit::XSession& session() { return session_; }

 private:
  void write(const QString& name, const QByteArray& bytes) {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
  }
  /// Waits until the window has stopped moving: what is known late of it has been seen to.
  bool rests(const QString& name) {
    shown_ = name;
    int same = 0;
    return kit::waitUntil([&] {
      QThread::msleep(250);
      const QRect now = session_.frameRect(name);
      same = now == frame_ && !now.isEmpty() ? same + 1 : 0;
      frame_ = now;
      return same >= 4;
    });
  }

  QSize size_;
  QTemporaryDir folder_;
  kit::XSession session_;
  QString shown_;
  QRect frame_;
};

#define SEEN(screen)                \
  QVERIFY2((screen).isWhollySeen(), \
           ((screen).shown().toUtf8() + " stands at " + text((screen).frame())).constData())

}  // namespace norvex
