#include "application/document_application.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QTimer>

#include <algorithm>
#include <utility>

#include "application/file_watcher.h"
#include "application/open_panel.h"
#include "base/localized_string.h"
#include "ui/panels/alert_box.h"

namespace norvex {

DocumentApplication::DocumentApplication(ApplicationEvents& events, PictureService& service,
                                         DocumentWindowControllerFactory factory,
                                         AppDelegate::Terminate terminate)
    : events_(events),
      recent_(settings_),
      documents_(service, std::move(factory)),
      terminate_(std::move(terminate)),
      delegate_(&documents_, terminate_),
      startPanel_(std::make_unique<StartPanel>(recent_)),
      ownAlerts_(std::make_unique<QtAlertPresenter>()),
      alerts_(ownAlerts_.get()) {
  QApplication::setQuitOnLastWindowClosed(delegate_.applicationShouldTerminateAfterLastWindowClosed());
  connectParts();
}

DocumentApplication::~DocumentApplication() = default;

void DocumentApplication::connectParts() {
  const auto open = [this](const QList<QUrl>& urls) { documents_.openDocuments(urls); };
  connect(&documents_, &DocumentController::documentOpened, this, &DocumentApplication::documentDidOpen);
  connect(&documents_, &DocumentController::documentClosed, this, &DocumentApplication::documentDidClose);
  connect(&documents_, &DocumentController::openFailed, this, &DocumentApplication::showFailure);
  connect(&documents_, &DocumentController::readingFinished, this, &DocumentApplication::updateStartPanel);
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
  if (files.isEmpty()) return updateStartPanel();
  documents_.openDocuments(files);
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

void DocumentApplication::documentDidOpen(Document* document) {
  recent_.add(document->fileURL());
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
  updateStartPanel();
}

void DocumentApplication::documentDidClose(Document*) {
  if (quitting_) {
    // What the quitting had to wait for; another window may have to be waited for still.
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

void DocumentApplication::showFailure(const OpenFailure& failure) {
  const QFileInfo file(failure.url.toLocalFile());
  if (!file.exists()) recent_.remove(failure.url);
  const QString name = failure.url.isLocalFile() ? file.fileName() : failure.url.toDisplayString();
  if (!failure.detail.isEmpty()) qInfo("%s: %s", qUtf8Printable(name), qUtf8Printable(failure.detail));
  runModal(
      {AlertStyle::Warning, localizedString("“%1” could not be opened.").arg(name), failure.sentence, {}});
}

void DocumentApplication::showOperationFailure(const QString& reason) {
  runModal({AlertStyle::Warning, localizedString("This could not be done."), reason + '.', {}});
}

void DocumentApplication::runModal(const Alert& alert) {
  const QScopedValueRollback<int> guard(modal_, modal_ + 1);
  alerts_->runModal(alert);
}

void DocumentApplication::equipWindow(QMainWindow* window) {
  static const char kEquipped[] = "norvexTakesFiles";
  if (window->property(kEquipped).toBool()) return;
  window->setProperty(kEquipped, true);
  drops_.watch(window);
  auto* open = new QAction(localizedString("Open…"), window);
  open->setObjectName(QStringLiteral("openAction"));
  open->setShortcut(QKeySequence::Open);
  connect(open, &QAction::triggered, this, &DocumentApplication::runOpenPanel);
  auto* menu = window->findChild<QMenu*>(QStringLiteral("fileMenu"));
  if (!menu) return window->addAction(open);
  auto* recent = new QMenu(localizedString("Open Recent"), menu);
  connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(recent); });
  QAction* first = menu->actions().value(0);
  menu->insertAction(first, open);
  menu->insertMenu(first, recent);
  menu->insertSeparator(first);
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
  if (urls.isEmpty()) return menu->addAction(localizedString("No recent files"))->setEnabled(false);
  menu->addSeparator();
  menu->addAction(localizedString("Clear the list"), &recent_, &RecentFiles::clear);
}

}  // namespace norvex
