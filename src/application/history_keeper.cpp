#include "application/history_keeper.h"

#include <QFileInfo>

#include <utility>

#include "application/recent_files.h"
#include "base/background_work.h"
#include "history/desktop_recents.h"

namespace norvex {
namespace {

/// Reading and writing the desktop's list costs more than opening a small picture, which comes first.
constexpr int kQuietMs = 2000;
const QString kOff = QStringLiteral("Off");

QString pathOf(const QUrl& url) {
  return QFileInfo(url.toLocalFile()).absoluteFilePath();
}

}  // namespace

HistoryKeeper::HistoryKeeper(QSettings& settings, RecentFiles& recent, const QString& folder, QObject* parent)
    : QObject(parent),
      settings_(settings),
      recent_(recent),
      folder_(folder),
      views_(settings),
      session_(folder) {
  desktop_.setMaxThreadCount(1);
  whenQuiet_.setSingleShot(true);
  whenQuiet_.setInterval(kQuietMs);
  connect(&whenQuiet_, &QTimer::timeout, this, &HistoryKeeper::tellDesktop);
  if (!isOn()) session_.stop();
}

HistoryKeeper::~HistoryKeeper() {
  waitForDesktop();
}

void HistoryKeeper::tellDesktop() {
  for (const Opened& each : std::exchange(toTell_, {}))
    startWork(desktop_,
              [file = desktopRecentsFile(), each] { addToDesktopRecents(file, each.path, each.mimeType); });
}

void HistoryKeeper::waitForDesktop() {
  tellDesktop();
  waitForWork(desktop_);
}

bool HistoryKeeper::isOn() const {
  return !settings_.value(kOff).toBool();
}

void HistoryKeeper::setOn(bool on) {
  if (on == isOn()) return;
  if (!on) clear();
  on ? session_.start() : session_.stop();
  on ? settings_.remove(kOff) : settings_.setValue(kOff, true);
}

void HistoryKeeper::clear() {
  recent_.clear();
  views_.clear();
  (void)Session::takeLeft(folder_);
  toTell_.clear();
  waitForWork(desktop_);
  clearFromDesktopRecents(desktopRecentsFile());
}

void HistoryKeeper::opened(const QUrl& url, const QString& mimeType) {
  if (!url.isLocalFile()) return;
  const QString path = pathOf(url);
  session_.opened(path);  // which writes nothing while it is off, but may be switched on while this is open
  if (!isOn()) return;
  recent_.add(url);
  toTell_.append({path, mimeType});
  whenQuiet_.start();
}

void HistoryKeeper::used(const QString& path) {
  session_.used(path);
}

void HistoryKeeper::closed(const QUrl& url, const std::optional<PictureView>& view) {
  session_.closed(pathOf(url));
  if (isOn() && view && url.isLocalFile()) views_.remember(pathOf(url), *view);
}

std::optional<PictureView> HistoryKeeper::view(const QUrl& url) const {
  return isOn() ? views_.view(pathOf(url)) : std::nullopt;
}

LeftSession HistoryKeeper::takeLeftSession() const {
  LeftSession all;
  for (const LeftSession& each : Session::takeLeft(folder_)) {
    for (const QString& path : each.files)
      if (!all.files.contains(path) && QFileInfo::exists(path)) all.files << path;
    all.last = each.last;
  }
  if (!all.files.contains(all.last)) all.last = all.files.value(all.files.size() - 1);
  return all;
}

}  // namespace norvex
