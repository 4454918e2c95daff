#include "encoders/encoder_surroundings.h"

#include <pwd.h>
#include <unistd.h>

#include <QColorSpace>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <vector>

#include "metadata/full_date.h"

namespace norvex {
namespace {

QDateTime now() {
  bool given = false;
  const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&given);
  return given ? QDateTime::fromSecsSinceEpoch(seconds) : QDateTime::currentDateTime();
}

/// As the first screen has it; where there is none, as nearly all have it.
NSWindowDepth screenDepth() {
  const bool hasScreens = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
  const QScreen* screen = hasScreens ? QGuiApplication::primaryScreen() : nullptr;
  if (!screen) return {};
  return screen->depth() == 32 ? NSWindowDepth() : NSBestDepth(screen->depth() / 3, screen->depth());
}

}  // namespace

NSWindowDepth NSBestDepth(int bitsPerSample, int bitsPerPixel) {
  return {bitsPerSample, std::min(bitsPerPixel, 3 * bitsPerSample)};
}

QString NSFullUserName() {
  std::vector<char> buffer(1 << 14);
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found) {
    return qEnvironmentVariable("USER");
  }
  // The first of the comma-separated fields; an "&" in it stands for the login name.
  const QString login = QString::fromLocal8Bit(found->pw_name);
  QString name = QString::fromLocal8Bit(found->pw_gecos).section(u',', 0, 0).trimmed();
  if (name.contains(u'&') && !login.isEmpty()) name.replace(u'&', login.at(0).toUpper() + login.mid(1));
  return name.isEmpty() ? login : name;
}

EncoderSurroundings usualSurroundings(PictureService& service) {
  EncoderSurroundings surroundings;
  surroundings.service = &service;
  surroundings.userFullName = NSFullUserName();
  surroundings.applicationName = QStringLiteral("Norvex");
  surroundings.applicationVersion = QStringLiteral(NORVEX_VERSION);
  surroundings.now = now();
  surroundings.locale = userDateLocale();
  surroundings.defaultDepthLimit = screenDepth();
  surroundings.iccProfile = QColorSpace(QColorSpace::SRgb).iccProfile();
  return surroundings;
}

}  // namespace norvex
