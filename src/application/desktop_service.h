// Requests of the desktop to a running program over the session bus: the interface
// org.freedesktop.Application.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>

namespace norvex {

/// Answers launchers and file managers, so that a click opens its file in the program that runs already. The
/// slots have the names of the interface. Main thread.
class DesktopService final : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
 public:
  /// How long a program that the bus has started waits for what it was started for.
  static constexpr int patienceMilliseconds = 10'000;

  using QObject::QObject;

  /// Is there for others from now on. False: there is no session bus, or another program has the name.
  bool offer();

 public slots:
  Q_SCRIPTABLE void Activate(const QVariantMap& platform_data);
  /// Local files; other addresses are passed on as they are and answered with a sentence.
  Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platform_data);
  /// The actions of the desktop file.
  Q_SCRIPTABLE void ActivateAction(const QString& action_name, const QVariantList& parameter,
                                   const QVariantMap& platform_data);

 signals:
  void activated();
  void filesOpened(const QList<QUrl>& urls);
  void startPanelRequested();
};

}  // namespace norvex
