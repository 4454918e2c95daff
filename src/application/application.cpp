#include "application/application.h"

#include <QFileInfo>
#include <QFileOpenEvent>
#include <QIcon>
#include <QTimer>

#include <cstdio>
#include <utility>

#include <unistd.h>

#include "base/bundle.h"
#include "ui/style/outlined_style.h"

namespace norvex {
namespace {

constexpr int kIconMs = 400;  ///< behind the first picture of a quick start

QtMessageHandler earlierHandler = nullptr;

/// Qt's answer to a missing display is to abort. A plain line and an exit code are more use.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtFatalMsg) {
    std::fputs(
        "norvex: there is no display to open a window on (norvex --help lists the commands that need none)\n",
        stderr);
    std::fflush(stderr);
    _exit(2);
  }
  const bool aboutPlatform = qstrncmp(context.category, "qt.qpa", 6) == 0;
  if (!aboutPlatform && earlierHandler) earlierHandler(type, context, message);
}

/// The icon theme's, where the application is installed; its own pictures otherwise.
QIcon applicationIcon() {
  QIcon own;
  for (int size : {16, 32, 64, 128, 256})
    own.addFile(QStringLiteral(":/icons/norvex-%1.png").arg(size), {size, size});
  return QIcon::fromTheme(desktopIdentifier(), own);
}

/// In front of QApplication's constructor, which looks for the display.
int& watchForMissingDisplay(int& argc) {
  earlierHandler = qInstallMessageHandler(endWithoutDisplay);
  return argc;
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(watchForMissingDisplay(argc), argv) {
  qInstallMessageHandler(earlierHandler);
  setOrganizationName(QStringLiteral("Norvex"));
  setApplicationName(QStringLiteral("Norvex"));
  setApplicationDisplayName(QStringLiteral("Norvex"));
  setApplicationVersion(QStringLiteral(NORVEX_VERSION));
  setDesktopFileName(desktopIdentifier());
  QTimer::singleShot(kIconMs, this, showApplicationIcon);
  setStyle(new OutlinedStyle);
  connect(this, &QGuiApplication::applicationStateChanged, &events_, &ApplicationEvents::setState);
}

void showApplicationIcon() {
  if (QApplication::windowIcon().isNull()) QApplication::setWindowIcon(applicationIcon());
}

QList<QUrl> fileURLs(const QStringList& arguments) {
  QList<QUrl> urls;
  bool optionsEnded = false;
  for (const QString& argument : arguments.mid(1)) {
    if (argument == QLatin1String("--") && !std::exchange(optionsEnded, true)) continue;
    const QUrl url(argument);
    urls << (url.scheme() == QLatin1String("file")
                 ? url
                 : QUrl::fromLocalFile(QFileInfo(argument).absoluteFilePath()));
  }
  return urls;
}

QList<QUrl> Application::fileArguments() {
  return fileURLs(arguments());
}

bool Application::notify(QObject* receiver, QEvent* event) {
  return events_.guard([&] { return QApplication::notify(receiver, event); });
}

bool Application::event(QEvent* event) {
  if (event->type() == QEvent::Quit) {
    const bool handled = QApplication::event(event);
    if (!event->isAccepted()) emit events_.quitRefused();
    return handled;
  }
  if (event->type() != QEvent::FileOpen) return QApplication::event(event);
  emit events_.fileOpenRequested(static_cast<QFileOpenEvent*>(event)->url());
  return true;
}

}  // namespace norvex
