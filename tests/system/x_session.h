// A real X server of our own with a window manager and the built program in it, worked with mouse and keys.
#pragma once

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <functional>
#include <memory>

#include <csignal>

#include "kit/program.h"

namespace norvex::kit {

/// True as soon as `what` holds; false when it does not within `seconds`.
inline bool waitUntil(const std::function<bool()>& what, int seconds = 20) {
  for (const QDeadlineTimer end(seconds * 1000); !end.hasExpired(); QThread::msleep(50))
    if (what()) return true;
  return what();
}

/// Process ids of all living descendants of `process` whose program is called `name`.
inline QList<qint64> descendants(qint64 process, const QByteArray& name) {
  QMultiHash<qint64, std::pair<qint64, QByteArray>> children;
  for (const QString& entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
    QFile stat(QStringLiteral("/proc/%1/stat").arg(entry));
    if (entry.toLongLong() == 0 || !stat.open(QIODevice::ReadOnly)) continue;
    const QByteArray text = stat.readAll();
    const qsizetype open = text.indexOf('('), close = text.lastIndexOf(')');
    const QList<QByteArray> rest = text.mid(close + 2).split(' ');
    if (rest.value(0) != "Z")
      children.insert(rest.value(1).toLongLong(), {entry.toLongLong(), text.mid(open + 1, close - open - 1)});
  }
  QList<qint64> found, open{process};
  while (!open.isEmpty())
    for (const auto& [id, called] : children.values(open.takeFirst())) {
      open << id;
      if (name.startsWith(called)) found << id;  // the kernel keeps 15 characters
    }
  return found;
}

/// X server, window manager and one run of the program at a time. Everything that it starts ends with it.
class XSession {
 public:
  /// What is missing here for a session; empty when nothing is.
  static QString missing() {
    for (const char* program : {"Xvfb", "openbox", "xdotool", "xwininfo", "xprop", "xclip", "import"})
      if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty()) return QLatin1String(program);
    return {};
  }

  /// `manager` empty: no window manager.
  explicit XSession(const QSize& size = {1600, 1100}, const QString& manager = QStringLiteral("openbox")) {
    const QString screen = QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height());
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp"});
    while (server_.waitForReadyRead(20000) && !server_.canReadLine()) continue;
    environment_ = QProcessEnvironment::systemEnvironment();
    environment_.insert("DISPLAY", u':' + QString::fromLatin1(server_.readLine().trimmed()));
    environment_.insert("QT_QPA_PLATFORM", "xcb");
    environment_.insert("QT_SCALE_FACTOR", "1");
    environment_.insert("LC_ALL", "C.UTF-8");
    // libxkbcommon hands strndup() what has no end, as it may.
    const QString options = environment_.value("ASAN_OPTIONS");
    if (!options.isEmpty()) environment_.insert("ASAN_OPTIONS", options + ":strict_string_checks=0");
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
      environment_.insert(QLatin1String(name), home_.path());
    for (const char* name : {"WAYLAND_DISPLAY", "QT_STYLE_OVERRIDE"})
      environment_.remove(QLatin1String(name));
    if (!manager.isEmpty()) startManager(manager);
  }
  ~XSession() {
    for (QProcess* process : {&program_, &manager_, &server_}) end(*process);
  }
  void startManager(const QString& program) {
    manager_.setProcessEnvironment(environment_);
    manager_.start(program, {});
    waitUntil([this] { return run("xdotool", {"get_desktop"}).exitCode == 0; });
  }
  /// For programs that are started from now on.
  void setEnvironment(const QString& name, const QString& value) { environment_.insert(name, value); }
  [[nodiscard]] const QProcessEnvironment& environment() const { return environment_; }
  XSession(const XSession&) = delete;
  XSession& operator=(const XSession&) = delete;

  Ran run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessEnvironment(environment_);
    process.start(program, arguments);
    Ran ran;
    ran.crashed = !process.waitForFinished(20000) || process.exitStatus() == QProcess::CrashExit;
    ran.exitCode = process.exitCode();
    ran.out = process.readAllStandardOutput();
    ran.err = process.readAllStandardError();
    return ran;
  }
  void xdo(const QStringList& arguments) { run("xdotool", arguments); }

  /// Starts the program and waits for a window whose title holds `title`.
  bool start(const QStringList& arguments, const QString& title) {
    program_.setProcessEnvironment(environment_);
    program_.setProcessChannelMode(QProcess::MergedChannels);
    program_.start(norvexProgram(), arguments);
    return program_.waitForStarted() && activate(title);
  }
  /// Ends the program and forgets what it remembered.
  void stop() {
    end(program_);
    program_.readAll();
    QDir home(home_.path());
    home.removeRecursively();
    home.mkpath(QStringLiteral("."));
  }
  /// Ends the program as its user does, and keeps what it remembered.
  bool quit() {
    key("ctrl+q");
    const bool ended = program_.waitForFinished(20000);
    program_.readAll();
    return ended;
  }
  /// Where the program keeps what it remembers.
  QString home() const { return home_.path(); }
  /// Waits for the window and gives it the keyboard.
  bool activate(const QString& title) {
    QStringList windows;
    if (!waitUntil([&] { return !(windows = windowsOf(title)).isEmpty(); })) return false;
    xdo({"windowactivate", "--sync", windows.constLast()});
    return true;
  }
  QStringList windowsOf(const QString& title) {
    const QString escaped = QRegularExpression::escape(title);
    // The platform adds the application's name.
    const QString form = u'^' + escaped + QString::fromUtf8("( \xE2\x80\x94 Norvex)?$");
    return QString::fromLatin1(run("xdotool", {"search", "--onlyvisible", "--name", form}).out)
        .split(u'\n', Qt::SkipEmptyParts);
  }
  /// Where the window is on the screen; null when there is none.
  QRect windowRect(const QString& title) {
    const QStringList windows = windowsOf(title);
    if (windows.isEmpty()) return {};
    const QString said =
        QString::fromLatin1(run("xdotool", {"getwindowgeometry", "--shell", windows.constLast()}).out);
    const auto number = [&](const char* name) {
      const QRegularExpression form(QStringLiteral("(?:^|\n)%1=(-?[0-9]+)").arg(QLatin1String(name)));
      return form.match(said).captured(1).toInt();
    };
    return {number("X"), number("Y"), number("WIDTH"), number("HEIGHT")};
  }
  /// Where it is with all that the window manager draws around it.
  QRect frameRect(const QString& title) {
    const QString window = windowsOf(title).value(0);
    const auto numbers = [&](const QString& program, const QStringList& arguments, const char* form) {
      const QRegularExpression looked(QLatin1String(form), QRegularExpression::DotMatchesEverythingOption);
      const QRegularExpressionMatch found =
          looked.match(QString::fromLatin1(run(program, QStringList{"-id", window} + arguments).out));
      QList<int> values;
      for (int i = 1; i <= 4; ++i) values << found.captured(i).toInt();  // 0 where nothing is told
      return values;
    };
    // What xdotool tells of a window in a frame is off by the frame.
    const QList<int> inside = numbers(
        "xwininfo", {},
        "upper-left X: +(-?[0-9]+).*?upper-left Y: +(-?[0-9]+).*?Width: +([0-9]+).*?Height: +([0-9]+)");
    const QList<int> edges =
        numbers("xprop", {"_NET_FRAME_EXTENTS"}, "= ([0-9]+), ([0-9]+), ([0-9]+), ([0-9]+)");
    return QRect(inside[0], inside[1], inside[2], inside[3])
        .marginsAdded({edges[0], edges[2], edges[1], edges[3]});
  }
  /// Types into one field of the window's inspector after the other, found with Tab as a user without a mouse
  /// would, until `done` holds; whether it did. The inspector comes and goes beside the window.
  bool typeInInspector(const QString& title, const QString& text, const std::function<bool()>& done) {
    activate(title);
    key("ctrl+i");
    if (!activate(title + " Inspector")) return false;
    xdo({"windowmove", "--sync", windowsOf(title + " Inspector").value(0), "20", "40"});
    waitUntil([&] { return !done(); }, 5);
    bool is = false;
    for (int i = 0; i < 12 && !is; ++i) {
      key("Tab");  // marks the whole text of a field
      xdo({"type", text});
      key("Return");
      is = waitUntil(done, 1);
    }
    activate(title);
    key("ctrl+i");  // away with it: it may lie over the picture
    waitUntil([&] { return windowsOf(title + " Inspector").isEmpty(); }, 5);
    return is;
  }
  bool isAlive() { return program_.state() == QProcess::Running && !program_.waitForFinished(1); }
  qint64 id() const { return program_.processId(); }
  QString display() const { return environment_.value("DISPLAY"); }
  QByteArray said() { return program_.readAll(); }

  // ---- hands and eyes; points are pixels of the screen
  /// xdotool waits in vain for a pointer that is there already, so it comes from the pixel beside.
  static QStringList pointerTo(const QPoint& at) {
    const QString x = QString::number(at.x()), y = QString::number(at.y());
    return {"mousemove", QString::number(at.x() + 1), y, "mousemove", "--sync", x, y};
  }
  void key(const QString& keys) { xdo({"key", "--clearmodifiers", keys}); }
  void click(const QPoint& at, int times = 1) {
    xdo(pointerTo(at) + QStringList{"click", "--repeat", QString::number(times), "--delay", "60", "1"});
  }
  void press(const QPoint& at) { xdo(pointerTo(at) + QStringList{"mousedown", "1"}); }
  void moveTo(const QPoint& at) { xdo(pointerTo(at)); }
  void release() { xdo({"mouseup", "1"}); }
  void drag(const QPoint& from, const QPoint& to) {
    press(from);
    moveTo((from + to) / 2);
    moveTo(to);
    release();
  }
  QImage screen() {
    // Not a compressed format: it would take three times as long.
    const QImage image = QImage::fromData(run("import", {"-silent", "-window", "root", "ppm:-"}).out);
    return image.convertToFormat(QImage::Format_RGB32);
  }
  /// Waits until nothing on the screen changes any more for a while, or `seconds` are over.
  void waitUntilStill(int seconds = 5) {
    int same = 0;
    QImage last = screen();
    waitUntil(
        [&] {
          const QImage now = screen();
          same = now == last ? same + 1 : 0;
          last = now;
          return same >= 5;
        },
        seconds);
  }
  /// What was selected last with the mouse in a text ("primary") or copied ("clipboard").
  QString selection(const QString& which) {
    return QString::fromUtf8(run("xclip", {"-o", "-selection", which}).out);
  }

 private:
  static void end(QProcess& process) {
    process.terminate();
    if (!process.waitForFinished(3000)) process.kill();
    process.waitForFinished(3000);
  }

  QTemporaryDir home_;
  QProcess server_, manager_, program_;
  QProcessEnvironment environment_;
};

}  // namespace norvex::kit
