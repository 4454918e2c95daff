// HistoryKeeper: all that the program remembers of files, behind one switch.
#pragma once

#include <QList>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QThreadPool>
#include <QTimer>
#include <QUrl>

#include <optional>

#include "document/picture_view.h"
#include "history/remembered_views.h"
#include "history/session.h"

namespace norvex {

class RecentFiles;

/// Recent files (the desktop's list too), how their pictures were shown, and what is open now. While it is
/// off nothing is remembered; switching it off forgets everything. Main thread.
class HistoryKeeper final : public QObject {
  Q_OBJECT
 public:
  /// Both are borrowed and must outlive it. `folder`: for the files of running programs.
  HistoryKeeper(QSettings& settings, RecentFiles& recent, const QString& folder, QObject* parent = nullptr);
  ~HistoryKeeper() override;

  [[nodiscard]] bool isOn() const;
  void setOn(bool on);
  /// Forgets all files.
  void clear();

  void opened(const QUrl& url, const QString& mimeType);
  void used(const QString& path);
  /// `view`: how it was shown at the end, if it was.
  void closed(const QUrl& url, const std::optional<PictureView>& view);
  [[nodiscard]] std::optional<PictureView> view(const QUrl& url) const;
  /// The files that programs that crashed had open; told once.
  [[nodiscard]] LeftSession takeLeftSession() const;
  /// Until the desktop's list holds what was opened.
  void waitForDesktop();

 private:
  struct Opened {
    QString path, mimeType;
  };
  void tellDesktop();

  QSettings& settings_;
  RecentFiles& recent_;
  const QString folder_;
  RememberedViews views_;
  Session session_;
  QTimer whenQuiet_;
  QList<Opened> toTell_;  ///< not yet in the desktop's list
  QThreadPool desktop_;   ///< of one thread: the desktop's list may be long, and is written whole
};

}  // namespace norvex
