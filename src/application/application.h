// Application: the application object of the window's program.
#pragma once

#include <QApplication>
#include <QList>
#include <QUrl>

#include "application/application_events.h"

namespace norvex {

/// A QApplication that survives an "UnimplementedMethod" exception and tells its events().
class Application final : public QApplication {
  Q_OBJECT
 public:
  /// Sets names, version and identity, and the icon a little later. Without a display it ends the program
  /// with one line on standard error and exit code 2.
  Application(int& argc, char** argv);

  [[nodiscard]] ApplicationEvents& events() { return events_; }
  /// The files named on the command line (paths, or addresses with "file:"), as absolute locations.
  [[nodiscard]] static QList<QUrl> fileArguments();

  bool notify(QObject* receiver, QEvent* event) override;

 protected:
  bool event(QEvent* event) override;

 private:
  ApplicationEvents events_;
};

/// Makes the application's picture the icon of all windows, unless it is. It takes as long as all the rest of
/// the application object: what shows it asks for it, and for windows it may come after their contents.
void showApplicationIcon();

/// See Application::fileArguments(); `arguments` begins with the program's name.
[[nodiscard]] QList<QUrl> fileURLs(const QStringList& arguments);

}  // namespace norvex
