#include "application/document_application.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

#include "application/file_watcher.h"
#include "application/open_panel.h"
#include "base/localized_string.h"
#include "base/state_folder.h"
#include "types/uniform_type.h"
#include "ui/panels/alert_box.h"
#include "ui/panels/centred_window.h"
#include "ui/panels/own_shortcuts.h"

namespace norvex {

DocumentApplication::DocumentApplication(ApplicationEvents& events, PictureService& service,
                                         DocumentWindowControllerFactory factory,
                                         AppDelegate::Terminate terminate)
    : events_(events),
      history_(stateFolder() + QStringLiteral("/history.ini"), QSettings::IniFormat),
      recent_(history_),
      keeper_(history_, recent_, stateFolder() + QStringLiteral("/sessions")),
      documents_(service, std::move(factory)),
      terminate_(std::move(terminate)),
      delegate_(&documents_, terminate_),
      startPanel_(std::make_unique<StartPanel>(recent_)),
      thumbnails_(std::make_unique<RecentThumbnails>(service, *startPanel_)),
      ownAlerts_(std::make_unique<QtAlertPresenter>()),
      alerts_(ownAlerts_.get()),
      windowKeys_([this] { terminate_(this); }) {
  QApplication::setQuitOnLastWindowClosed(delegate_.applicationShouldTerminateAfterLastWindowClosed());
  connectParts();
  addManual(startPanel_.get());
  addPreferences(startPanel_.get());
  takeEarlierRecents();
}

DocumentApplication::~DocumentApplication() = default;

void DocumentApplication::takeEarlierRecents() {
  QSettings defaults;  // where earlier versions kept them
  const QStringList earlier = defaults.value(QStringLiteral("RecentFiles")).toStringList();
  if (recent_.urls().isEmpty())
    for (auto path = earlier.rbegin(); path != earlier.rend(); ++path)
      recent_.add(QUrl::fromLocalFile(*path));
  defaults.remove(QStringLiteral("RecentFiles"));
}

void DocumentApplication::connectParts() {
  const auto open = [this](const QList<QUrl>& urls) { documents_.openDocuments(urls); };
  connect(&documents_, &DocumentController::documentWillShow, this, &DocumentApplication::documentWillShow);
  connect(qApp, &QApplication::focusWindowChanged, this, [this] {
    const QWidget* window = QApplication::activeWindow();
    if (window && !window->windowFilePath().isEmpty()) keeper_.used(window->windowFilePath());
  });
  connect(&documents_, &DocumentController::documentOpened, this, &DocumentApplication::documentDidOpen);
  connect(&documents_, &DocumentController::documentClosed, this, &DocumentApplication::documentDidClose);
  connect(&documents_, &DocumentController::openFailed, this, &DocumentApplication::takeFailure);
  connect(&documents_, &DocumentController::readingFinished, this, &DocumentApplication::updateStartPanel);
  connect(&documents_, &DocumentController::readingFinished, this, &DocumentApplication::tellFailures);
  connect(startPanel_.get(), &StartPanel::openRequested, this, &DocumentApplication::runOpenPanel);
  connect(startPanel_.get(), &StartPanel::filesChosen, this, open);
  connect(startPanel_.get(), &StartPanel::dismissed, this, &DocumentApplication::startPanelDismissed);
  connect(&drops_, &FileDropTarget::filesDropped, this, open);
  connect(&events_, &ApplicationEvents::fileOpenRequested, this, [open](const QUrl& url) { open({url}); });
  connect(&events_, &ApplicationEvents::didResignActive, this,
          &DocumentApplication::applicationDidResignActive);
  connect(&events_, &ApplicationEvents::quitRefused, this, &DocumentApplication::quitRefused);
  connect(&events_, &ApplicationEvents::operationFailed, this, &DocumentApplication::showOperationFailure);
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
          [this] { delegate_.applicationWillTerminate(); });
}

void DocumentApplication::start(const QList<QUrl>& files) {
  delegate_.applicationDidFinishLaunching();
  offerLeftSessionsSoon(files);
  if (files.isEmpty()) return updateStartPanel();
  documents_.openDocuments(files);
}

void DocumentApplication::openFiles(const QList<QUrl>& files) {
  offerLeftSessionsSoon(files);
  documents_.openDocuments(files);
}

void DocumentApplication::offerLeftSessionsSoon(const QList<QUrl>& opening) {
  if (std::exchange(hasOffered_, true)) return;
  QMetaObject::invokeMethod(
      this, [this, opening] { offerLeftSessions(opening); }, Qt::QueuedConnection);
}

void DocumentApplication::offerLeftSessions(const QList<QUrl>& opening) {
  const LeftSession left = keeper_.takeLeftSession();
  const auto opens = [&](const QString& path) { return opening.contains(QUrl::fromLocalFile(path)); };
  // Whoever opens a file by name needs no question about it.
  if (std::all_of(left.files.begin(), left.files.end(), opens)) return;
  QStringList others = left.files;
  others.removeAll(left.last);
  others.removeIf(opens);
  Alert alert{AlertStyle::Warning, localizedString("Norvex ended unexpectedly the last time."), {}, {}};
  const QString name = QFileInfo(left.last).fileName();
  if (others.isEmpty()) {
    alert.informativeText = localizedString("“%1” was open then, and may be the reason.").arg(name);
    alert.buttons = {localizedString("Do Not Open"), localizedString("Open It Again")};
  } else {
    alert.informativeText =
        localizedString("%1 files were open then. “%2” was used last, and may be the reason.")
            .arg(left.files.size())
            .arg(name);
    alert.buttons = {localizedString("Open the Others"), localizedString("Do Not Open"),
                     localizedString("Open All Again")};
  }
  const QString answer = alert.buttons.value(runModal(alert));
  const bool all = answer == localizedString("Open It Again") || answer == localizedString("Open All Again");
  if (!all && answer != localizedString("Open the Others")) return;
  QList<QUrl> urls;
  for (const QString& path : all ? left.files : others) urls << QUrl::fromLocalFile(path);
  documents_.openDocuments(urls);
}

void DocumentApplication::documentWillShow(Document* document) {
  DocumentWindowController* const controller = document->windowController();
  if (!controller) return;
  std::optional<PictureView> view = keeper_.view(document->fileURL());
  if (DocumentWindowController* const before = shownBefore(document->fileURL())) {
    before->rememberFrame();
    if (const std::optional<QPoint> corner = before->cornerToHandOn()) controller->takePlace(*corner);
    const std::optional<PictureView> shown = before->pictureView();
    // Fitting was chosen for what this window shows, picture after picture; a zoom was chosen for one.
    if (shown && shown->fit != KeptFit::Nothing) {
      view = view.value_or(PictureView());
      view->fit = shown->fit;
    }
  }
  if (view) controller->setFirstView(*view);
}

void DocumentApplication::startForDesktop(int patienceMilliseconds) {
  delegate_.applicationDidFinishLaunching();
  QTimer::singleShot(patienceMilliseconds, this, [this] {
    if (!startPanel_->isVisible() && documents_.documents().isEmpty() && !documents_.isReading())
      terminate_(this);
  });
}

void DocumentApplication::activate() {
  if (documents_.documents().isEmpty()) return showStartPanel();
  Document* last = documents_.documents().constLast();
  if (last->windowController()) last->windowController()->showWindow();
}

void DocumentApplication::showStartPanel() {
  offerLeftSessionsSoon({});
  startPanel_->show();
  startPanel_->raise();
  startPanel_->activateWindow();
}

void DocumentApplication::runOpenPanel() {
  if (modal_ > 0) return;
  const QScopedValueRollback<int> guard(modal_, modal_ + 1);
  const QList<QUrl> urls = norvex::runOpenPanel(QApplication::activeWindow(), recent_.lastFolder());
  if (!urls.isEmpty()) documents_.openDocuments(urls);
}

void DocumentApplication::showManual() {
  if (!manual_) manual_ = std::make_unique<ManualWindow>();
  if (!manual_->isVisible()) centreOver(*manual_, QApplication::activeWindow());
  manual_->show();
  manual_->raise();
  manual_->activateWindow();
}

void DocumentApplication::addManual(QWidget* window) {
  auto* manual = new QAction(localizedString("Norvex Manual"), window);
  manual->setObjectName(QStringLiteral("manualAction"));
  manual->setShortcut(QKeySequence::HelpContents);
  connect(manual, &QAction::triggered, this, &DocumentApplication::showManual);
  auto* menu = window->findChild<QMenu*>(QStringLiteral("helpMenu"));
  if (!menu) return window->addAction(manual);
  menu->insertAction(menu->actions().value(0), manual);
}

void DocumentApplication::documentDidOpen(Document* document) {
  const auto type = UTType::typeWithIdentifier(document->fileType());
  keeper_.opened(document->fileURL(), type ? type->preferredMIMEType() : QString());
  auto* watcher =
      new FileWatcher(document->fileURL().toLocalFile(), FileWatcher::defaultSettlingMilliseconds, document);
  connect(watcher, &FileWatcher::fileDidChange, document, [document] {
    if (document->windowController()) document->windowController()->fileDidChangeOnDisk();
  });
  connect(watcher, &FileWatcher::fileDidDisappear, document, [document] {
    if (document->windowController()) document->windowController()->fileDidDisappear();
  });
  connect(document, &Document::reverted, watcher, &FileWatcher::acknowledge);
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* window = qobject_cast<QMainWindow*>(widget)) equipWindow(window);
  replaceWindow(document);
  updateStartPanel();
}

void DocumentApplication::documentDidClose(Document* document) {
  DocumentWindowController* controller = document->windowController();
  keeper_.closed(document->fileURL(), controller ? controller->pictureView() : std::nullopt);
  if (quitting_) {
    // The quitting had to wait for this; another window may have to be waited for still.
    quitting_ = false;
    QMetaObject::invokeMethod(
        this, [this] { terminate_(this); }, Qt::QueuedConnection);
    return;
  }
  updateStartPanel();
}

void DocumentApplication::quitRefused() {
  const QList<Document*> open = documents_.documents();
  quitting_ = std::any_of(open.cbegin(), open.cend(), [](const Document* document) {
    return document->windowController() && document->windowController()->closesWhenDone();
  });
}

void DocumentApplication::updateStartPanel() {
  const bool wanted = documents_.documents().isEmpty() && !documents_.isReading();
  if (wanted && !startPanel_->isVisible()) showStartPanel();
  if (!documents_.documents().isEmpty()) startPanel_->hide();
}

void DocumentApplication::startPanelDismissed() {
  // Nothing would be left on the screen: what ends the application elsewhere is leaving it, here it is this.
  if (documents_.documents().isEmpty() && !documents_.isReading())
    QMetaObject::invokeMethod(
        this, [this] { delegate_.applicationDidResignActive(this); }, Qt::QueuedConnection);
}

void DocumentApplication::applicationDidResignActive() {
  // A panel of the desktop's own is another program, a file on its way is as good as open, and the start
  // panel waits for files that are dragged from another window: leaving it for a moment leaves nothing.
  if (modal_ > 0 || documents_.isReading() || startPanel_->isVisible()) return;
  delegate_.applicationDidResignActive(this);
}

void DocumentApplication::takeFailure(const OpenFailure& failure) {
  replaced_.remove(failure.url);
  if (!QFileInfo::exists(failure.url.toLocalFile())) recent_.remove(failure.url);
  if (!failure.detail.isEmpty())
    qInfo("%s: %s", qUtf8Printable(failure.url.fileName()), qUtf8Printable(failure.detail));
  failures_ << failure;
  // Others may follow, of the same drop.
  QMetaObject::invokeMethod(this, &DocumentApplication::tellFailures, Qt::QueuedConnection);
}

void DocumentApplication::tellFailures() {
  if (tellsFailures_) return;
  const QScopedValueRollback<bool> telling(tellsFailures_, true);
  while (!failures_.isEmpty() && !documents_.isReading()) runModal(alertAbout(std::exchange(failures_, {})));
}

void DocumentApplication::showOperationFailure(const QString& reason) {
  runModal({AlertStyle::Warning, localizedString("This could not be done."), reason + '.', {}});
}

int DocumentApplication::runModal(const Alert& alert) {
  const QScopedValueRollback<int> guard(modal_, modal_ + 1);
  return alerts_->runModal(alert);
}

void DocumentApplication::equipWindow(QMainWindow* window) {
  static const char kEquipped[] = "norvexTakesFiles";
  if (window->property(kEquipped).toBool()) return;
  window->setProperty(kEquipped, true);
  drops_.watch(window);
  addManual(window);
  addPreferences(window);
  auto* open = new QAction(localizedString("Open…"), window);
  open->setObjectName(QStringLiteral("openAction"));
  open->setShortcut(QKeySequence::Open);
  connect(open, &QAction::triggered, this, &DocumentApplication::runOpenPanel);
  auto* menu = window->findChild<QMenu*>(QStringLiteral("fileMenu"));
  if (!menu) return window->addAction(open);
  addNeighbours(window);
  auto* recent = new QMenu(localizedString("Open Recent"), menu);
  connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(recent); });
  QAction* first = menu->actions().value(0);
  menu->insertAction(first, open);
  menu->insertMenu(first, recent);
  menu->insertSeparator(first);
  OwnShortcuts::shared().apply(*window);
}

void DocumentApplication::fillRecentMenu(QMenu* menu) {
  menu->clear();
  const QList<QUrl> urls = recent_.urls();
  for (const QUrl& url : urls) {
    const QString name = url.fileName();
    QAction* action = menu->addAction(QString(name).replace('&', "&&"), this,
                                      [this, url] { documents_.openDocuments({url}); });
    action->setToolTip(url.toLocalFile());
  }
  if (urls.isEmpty()) menu->addAction(localizedString("No recent files"))->setEnabled(false);
  menu->addSeparator();
  menu->addAction(localizedString("Clear History"), &keeper_, &HistoryKeeper::clear);
  QAction* remember = menu->addAction(localizedString("Remember Files"), &keeper_, &HistoryKeeper::setOn);
  remember->setCheckable(true);
  remember->setChecked(keeper_.isOn());
}

}  // namespace norvex
