// The files that were opened last, across launches.
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

class QSettings;

namespace norvex {

/// Newest first, each file once, at most maximumCount. Kept in the user's state folder. Main thread.
class RecentFiles final : public QObject {
  Q_OBJECT
 public:
  static constexpr int maximumCount = 12;

  /// `settings` (not owned) must outlive the list.
  explicit RecentFiles(QSettings& settings, QObject* parent = nullptr);

  /// Local files only; others are ignored.
  void add(const QUrl& url);
  void remove(const QUrl& url);
  void clear();
  [[nodiscard]] QList<QUrl> urls() const;
  /// The folder of the newest one that still exists; empty when there is none.
  [[nodiscard]] QString lastFolder() const;

 signals:
  void changed();

 private:
  void store(const QStringList& paths);

  QSettings& settings_;
};

}  // namespace norvex
