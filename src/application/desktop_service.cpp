#include "application/desktop_service.h"

#include <QDBusConnection>
#include <QFile>

#include "base/bundle.h"

namespace norvex {
namespace {

/// Looked for by ourselves: without an address the library would start a bus.
bool hasSessionBus() {
  if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && QFile::exists(runtime + QStringLiteral("/bus"));
}

QString objectPath() {
  return u'/' + desktopIdentifier().replace('.', '/');
}

/// The window system lets only those take the focus who were asked by the person.
void takeFocusToken(const QVariantMap& platformData) {
  const QByteArray token = platformData.value(QStringLiteral("activation-token")).toString().toUtf8();
  if (!token.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", token);
}

}  // namespace

bool DesktopService::offer() {
  if (!hasSessionBus()) return false;
  QDBusConnection bus = QDBusConnection::sessionBus();
  return bus.isConnected() &&
         bus.registerObject(objectPath(), this, QDBusConnection::ExportScriptableSlots) &&
         bus.registerService(desktopIdentifier());
}

void DesktopService::Activate(const QVariantMap& platform_data) {
  takeFocusToken(platform_data);
  emit activated();
}

void DesktopService::Open(const QStringList& uris, const QVariantMap& platform_data) {
  takeFocusToken(platform_data);
  QList<QUrl> urls;
  for (const QString& uri : uris) urls << QUrl(uri);
  if (urls.isEmpty()) emit activated();
  if (!urls.isEmpty()) emit filesOpened(urls);
}

void DesktopService::ActivateAction(const QString& action_name, const QVariantList&,
                                    const QVariantMap& platform_data) {
  takeFocusToken(platform_data);
  if (action_name == QLatin1String("new-window")) emit startPanelRequested();
}

}  // namespace norvex
