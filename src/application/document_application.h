// DocumentApplication: joins the documents, the start panel and the desktop.
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSettings>
#include <QUrl>

#include <memory>

#include "application/application_events.h"
#include "application/dropped_files.h"
#include "application/history_keeper.h"
#include "application/manual_window.h"
#include "application/recent_files.h"
#include "application/recent_thumbnails.h"
#include "application/start_panel.h"
#include "base/background_work.h"
#include "desktop/alert.h"
#include "document/app_delegate.h"
#include "document/document_controller.h"
#include "ui/panels/preferences_panel.h"
#include "ui/panels/window_keys.h"

class QMainWindow;
class QMenu;

namespace norvex {

/// Stands where the platform's document machinery would: opens what is asked for, remembers it, watches it on
/// disk, shows the start panel while nothing is open, and tells failures in plain sentences. Main thread.
class DocumentApplication final : public QObject {
  Q_OBJECT
 public:
  /// The events, the service and what `factory` refers to must outlive this object.
  DocumentApplication(
      ApplicationEvents& events, PictureService& service, DocumentWindowControllerFactory factory,
      AppDelegate::Terminate terminate = [](QObject*) { QCoreApplication::quit(); });
  /// Closes every document and waits until nothing of what their windows had begun runs any more: neither the
  /// service nor the application object is asked for anything afterwards.
  ~DocumentApplication() override;

  /// Opens the files; without any, shows the start panel.
  void start(const QList<QUrl>& files);
  /// Shows nothing before the desktop asks for something; ends when it does not.
  void startForDesktop(int patienceMilliseconds);
  void openFiles(const QList<QUrl>& files);
  /// Asked for without a file: the window used last comes to the front, the start panel where there is none.
  void activate();
  void showStartPanel();
  /// Asks for files and opens them.
  void runOpenPanel();
  void showManual();
  /// Of the windows' own; those of the history stand behind them. Shown with the next showPreferences().
  void setPreferences(const QList<Preference>& preferences) { preferences_ = preferences; }
  void showPreferences();

  [[nodiscard]] DocumentController& documents() { return documents_; }
  [[nodiscard]] StartPanel& startPanel() { return *startPanel_; }
  [[nodiscard]] RecentFiles& recentFiles() { return recent_; }
  [[nodiscard]] HistoryKeeper& history() { return keeper_; }
  /// Who shows alerts; a test may put its own. Not owned.
  void setAlertPresenter(AlertPresenter* presenter) { alerts_ = presenter; }

 private:
  void connectParts();
  void takeEarlierRecents();
  void documentWillShow(Document* document);
  /// Asks whether to open again what a program had open that crashed; not what is in `opening`, which comes
  /// anyway. Once, when something is to be seen.
  void offerLeftSessions(const QList<QUrl>& opening);
  void offerLeftSessionsSoon(const QList<QUrl>& opening);
  void documentDidOpen(Document* document);
  void documentDidClose(Document* document);
  /// A window did not close when the program was to end: when it closes later, the program ends after all.
  void quitRefused();
  void takeFailure(const OpenFailure& failure);
  /// When every file is open or has failed: in one message.
  void tellFailures();
  void showOperationFailure(const QString& reason);
  int runModal(const Alert& alert);
  void applicationDidResignActive();
  void startPanelDismissed();
  /// The panel is there exactly while nothing else is.
  void updateStartPanel();
  /// Gives a document's window what the platform's menu bar would hold for every document, and makes it take
  /// files.
  void equipWindow(QMainWindow* window);
  void fillRecentMenu(QMenu* menu);
  void addManual(QWidget* window);
  void addPreferences(QWidget* window);
  [[nodiscard]] QList<Preference> historyPreferences();
  /// Commands that show the pictures beside the window's one in its place.
  void addNeighbours(QMainWindow* window);
  void showNeighbour(QMainWindow* window, int step);
  void replaceWindow(Document* document);
  /// Of the document whose window goes when that file has opened; null: there is none.
  [[nodiscard]] DocumentWindowController* shownBefore(const QUrl& url) const;

  WaitingThreadsEnd threadsEnd_;  ///< first, so that it ends last
  ApplicationEvents& events_;
  QSettings history_;
  RecentFiles recent_;
  HistoryKeeper keeper_;
  DocumentController documents_;
  AppDelegate::Terminate terminate_;
  AppDelegate delegate_;
  FileDropTarget drops_;
  std::unique_ptr<StartPanel> startPanel_;
  QList<Preference> preferences_;
  std::unique_ptr<PreferencesPanel> preferencesPanel_;  ///< once it was asked for
  std::unique_ptr<ManualWindow> manual_;                ///< once it was asked for
  std::unique_ptr<RecentThumbnails> thumbnails_;
  std::unique_ptr<AlertPresenter> ownAlerts_;
  AlertPresenter* alerts_;
  QList<OpenFailure> failures_;  ///< not told yet
  bool tellsFailures_ = false;
  int modal_ = 0;  ///< panels and alerts on the screen
  bool quitting_ = false;
  bool hasOffered_ = false;                      ///< what programs that crashed had open
  QHash<QUrl, QPointer<QMainWindow>> replaced_;  ///< windows that go when that file has opened
  WindowKeys windowKeys_;
};

}  // namespace norvex
