#include "history/remembered_views.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace norvex {
namespace {

const QString kGroup = QStringLiteral("Views");

/// A path may hold what divides groups.
QString keyFor(const QString& path) {
  const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256);
  return kGroup + u'/' + QString::fromLatin1(hash.left(12).toHex());
}

struct Entry {
  QString path;
  qint64 time = 0;
  PictureView view;
};

QStringList written(const Entry& entry) {
  return {entry.path,
          QString::number(entry.time),
          QString::number(entry.view.zoom, 'g', 17),
          QString::number(entry.view.degrees, 'g', 17),
          QString::number(entry.view.page),
          QString::number(static_cast<int>(entry.view.fit))};
}

/// The file may have been edited by hand.
std::optional<Entry> entryFrom(const QStringList& fields) {
  // Without the last, which was not told of once.
  if (fields.size() != 5 && fields.size() != 6) return std::nullopt;
  const int fit = fields.value(5).toInt();
  if (fit < 0 || fit > static_cast<int>(KeptFit::Width)) return std::nullopt;
  const Entry entry{
      fields[0],
      fields[1].toLongLong(),
      {fields[2].toDouble(), fields[3].toDouble(), fields[4].toInt(), static_cast<KeptFit>(fit)}};
  const PictureView& view = entry.view;
  const bool sane =
      std::isfinite(view.zoom) && view.zoom > 0 && std::isfinite(view.degrees) && view.page >= 0;
  return sane ? std::optional(entry) : std::nullopt;
}

}  // namespace

std::optional<PictureView> RememberedViews::view(const QString& path) const {
  const auto entry = entryFrom(settings_.value(keyFor(path)).toStringList());
  return entry && entry->path == path ? std::optional(entry->view) : std::nullopt;
}

void RememberedViews::remember(const QString& path, const PictureView& view) {
  if (view == PictureView()) return settings_.remove(keyFor(path));
  settings_.setValue(keyFor(path), written({path, QDateTime::currentMSecsSinceEpoch(), view}));
  forgetOldest();
}

void RememberedViews::clear() {
  settings_.remove(kGroup);
}

void RememberedViews::forgetOldest() {
  settings_.beginGroup(kGroup);
  QStringList keys = settings_.childKeys();
  QList<std::pair<qint64, QString>> byTime;
  for (const QString& key : std::as_const(keys)) {
    const auto entry = entryFrom(settings_.value(key).toStringList());
    byTime << std::pair(entry ? entry->time : 0, key);
  }
  std::sort(byTime.begin(), byTime.end());
  for (qsizetype i = 0; i + maximumCount < byTime.size(); ++i) settings_.remove(byTime[i].second);
  settings_.endGroup();
}

}  // namespace norvex
