#include "history/desktop_recents.h"

#include <glib.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <functional>
#include <memory>
#include <mutex>

#include "base/atomic_file.h"

namespace norvex {
namespace {

constexpr char kApplication[] = "Norvex";

/// Changes the list and writes it whole, or leaves it.
void changeList(const QString& file, const std::function<bool(GBookmarkFile*)>& change) {
  static std::mutex turn;
  const std::lock_guard lock(turn);
  const std::unique_ptr<GBookmarkFile, decltype(&g_bookmark_file_free)> list(g_bookmark_file_new(),
                                                                             g_bookmark_file_free);
  const QByteArray name = QFile::encodeName(file);
  const bool isThere = QFileInfo::exists(file);
  if (isThere && !g_bookmark_file_load_from_file(list.get(), name.constData(), nullptr)) return;
  if (!isThere && !QDir().mkpath(QFileInfo(file).absolutePath())) return;
  if (!change(list.get())) return;
  gsize size = 0;
  const std::unique_ptr<gchar, decltype(&g_free)> text(g_bookmark_file_to_data(list.get(), &size, nullptr),
                                                       g_free);
  if (!text || !writeFileAtomically(file, QByteArray(text.get(), qsizetype(size)), IfExists::Replace)) return;
  if (!isThere) QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace

QString desktopRecentsFile() {
  QString folder = qEnvironmentVariable("XDG_DATA_HOME");
  if (!QDir::isAbsolutePath(folder)) folder = QDir::homePath() + QStringLiteral("/.local/share");
  return folder + QStringLiteral("/recently-used.xbel");
}

void addToDesktopRecents(const QString& file, const QString& path, const QString& mimeType) {
  const QByteArray uri = QUrl::fromLocalFile(path).toEncoded();
  changeList(file, [&](GBookmarkFile* list) {
    g_bookmark_file_set_mime_type(list, uri.constData(), mimeType.toUtf8().constData());
    g_bookmark_file_add_application(list, uri.constData(), kApplication, "norvex %u");
    return true;
  });
}

void clearFromDesktopRecents(const QString& file) {
  if (!QFileInfo::exists(file)) return;
  changeList(file, [](GBookmarkFile* list) {
    bool changed = false;
    gchar** uris = g_bookmark_file_get_uris(list, nullptr);
    for (gchar** uri = uris; *uri != nullptr; ++uri) {
      if (!g_bookmark_file_has_application(list, *uri, kApplication, nullptr)) continue;
      changed = true;
      g_bookmark_file_remove_application(list, *uri, kApplication, nullptr);
      gsize others = 0;
      gchar** names = g_bookmark_file_get_applications(list, *uri, &others, nullptr);
      g_strfreev(names);
      if (others == 0) g_bookmark_file_remove_item(list, *uri, nullptr);
    }
    g_strfreev(uris);
    return changed;
  });
}

}  // namespace norvex
