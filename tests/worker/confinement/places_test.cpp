// Which of the user's files engines may read: fonts and what chooses among them.
#include "worker/confinement/places.h"

#include <algorithm>
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

}  // namespace

class PlacesTest : public QObject {
  Q_OBJECT
 private slots:
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
