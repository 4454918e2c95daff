// Which of the user's files engines may read: fonts and what chooses among them.
#include "worker/confinement/places.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "kit/forked_check.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

using Variables = std::vector<std::pair<const char*, const char*>>;

/// True if exactly these of `asked` are places that may be listed, in a process with no variables but these.
bool areListed(const Variables& variables, const std::vector<std::pair<std::string, bool>>& asked) {
  return kit::inForkedChild([&] {
           ::clearenv();
           for (const auto& [name, value] : variables) ::setenv(name, value, 1);
           const std::vector<Place>& places = enginePlaces();
           return int(std::count_if(asked.begin(), asked.end(), [&](const auto& one) {
             const bool found = std::any_of(places.begin(), places.end(), [&](const Place& place) {
               return place.path == one.first && place.use == PlaceUse::ReadAndList;
             });
             return found != one.second;
           }));
         }) == 0;
}

size_t kindOf(const Place& place) {
  switch (place.use) {
    case PlaceUse::Read:
      return 0;
    case PlaceUse::ReadAndList:
      return 1;
    case PlaceUse::Device:
      return 2;
    case PlaceUse::Run:
      return 3;
  }
  return 0;
}

/// What is said in a process with no variables.
QString told(const std::function<std::string()>& say) {
  int ends[2] = {-1, -1};
  if (::pipe(ends) != 0) return {};
  kit::inForkedChild([&] {
    ::clearenv();
    const std::string text = say();
    return ::write(ends[1], text.data(), text.size()) == ssize_t(text.size()) ? 0 : 1;
  });
  ::close(ends[1]);
  QFile file;
  return file.open(ends[0], QIODevice::ReadOnly, QFile::AutoCloseHandle) ? QString::fromUtf8(file.readAll())
                                                                         : QString();
}

}  // namespace

class PlacesTest : public QObject {
  Q_OBJECT
 private slots:
  /// Whoever adds one gives a document more to read: it is to be added here, too.
  void ofTheSystemTheseAreReachedAndNoOthers() {
    const QString all = told([] {
      std::string text;
      for (const Place& place : enginePlaces()) text += place.path + ' ' + "rldx"[kindOf(place)] + '\n';
      return text;
    });
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).canonicalPath();
    QStringList expected;
    for (const char* file : {"/usr/lib", "/usr/lib64", "/usr/local/lib", "/etc/ld.so.cache",
                             "/etc/ld.so.conf", "/etc/alternatives", "/usr/share/locale", "/etc/localtime",
                             "/usr/share/zoneinfo", "/etc/papersize", "/etc/paperspecs"})
      expected << file + QStringLiteral(" r");
    for (const char* fonts :
         {"/etc/fonts", "/usr/share/fontconfig", "/var/cache/fontconfig", "/usr/share/fonts",
          "/usr/local/share/fonts", "/usr/share/X11/fonts", "/usr/share/texmf/fonts",
          "/usr/share/texlive/texmf-dist/fonts", "/var/lib/defoma", NORVEX_PACKAGES_PREFIX "/share/poppler",
          NORVEX_PACKAGES_PREFIX "/share/ghostscript", "/var/lib/ghostscript", "/etc/ghostscript"})
      expected << fonts + QStringLiteral(" l");
    expected << NORVEX_PACKAGES_PREFIX "/share/color r"
             << "/dev/null d"
             << "/dev/zero r"
             << "/dev/urandom r" << NORVEX_PACKAGES_PREFIX "/bin/gs x"
             << "/usr/local/bin/gs x"
             << "/lib64/ld-linux-x86-64.so.2 x"
             << "/lib/ld-linux-aarch64.so.1 x" << program + QStringLiteral(" r");
    if (QLatin1String(NORVEX_PACKAGES_PREFIX) != QLatin1String("/usr")) QSKIP("an application's own folders");
    QCOMPARE(all.split(u'\n', Qt::SkipEmptyParts), expected);
  }

  void theUsersFontsAreBelowHome() {
    QVERIFY(areListed({{"HOME", "/home/someone"}}, {{"/home/someone/.local/share/fonts", true},
                                                    {"/home/someone/.config/fontconfig", true},
                                                    {"/home/someone/.cache/fontconfig", true},
                                                    {"/home/someone/.fonts", true},
                                                    {"/home/someone/.fonts.conf", true},
                                                    {"/home/someone/.fonts.conf.d", true},
                                                    {"/home/someone/.fontconfig", true},
                                                    {"/home/someone", false}}));
  }

  void otherVariablesGoBeforeHome() {
    QVERIFY(areListed({{"HOME", "/home/someone"},
                       {"XDG_DATA_HOME", "/data"},
                       {"XDG_CONFIG_HOME", "/config"},
                       {"XDG_CACHE_HOME", "/cache"},
                       {"FONTCONFIG_PATH", "/chosen"},
                       {"FONTCONFIG_FILE", "/chosen.conf"}},
                      {{"/data/fonts", true},
                       {"/config/fontconfig", true},
                       {"/cache/fontconfig", true},
                       {"/chosen", true},
                       {"/chosen.conf", true},
                       {"/home/someone/.local/share/fonts", false},
                       {"/home/someone/.config/fontconfig", false},
                       {"/home/someone/.cache/fontconfig", false},
                       {"/home/someone/.fonts", true}}));
  }

  /// Such a one would give more away than fonts, or nothing.
  void whatIsNoAbsolutePathCountsNothing() {
    QVERIFY(areListed({{"HOME", "someone"}, {"XDG_DATA_HOME", "data"}, {"FONTCONFIG_PATH", "."}},
                      {{"/fonts", false},
                       {"/.fonts", false},
                       {"/fontconfig", false},
                       {"someone/.fonts", false},
                       {"data/fonts", false},
                       {".", false},
                       {"", false}}));
  }
};

NORVEX_TEST(PlacesTest)
#include "places_test.moc"
