#include "window/viewing/view_preferences.h"

#include "base/localized_string.h"
#include "window/viewing/view_choices.h"

namespace norvex {
namespace {

Preference choice(ViewChoices::Choice which, const QString& group, const char* name, const char* title,
                  const char* hint) {
  return {.group = group,
          .name = QLatin1String(name),
          .title = localizedString(title),
          .hint = localizedString(hint),
          .read = [which] { return ViewChoices::shared().isOn(which); },
          .write = [which](const QVariant& on) { ViewChoices::shared().set(which, on.toBool()); }};
}

Preference unitChoice(const QString& group) {
  Preference unit{
      .group = group,
      .name = QStringLiteral("preferUnit"),
      .title = localizedString("&Unit of lengths:"),
      .hint = localizedString("Of coordinates, of the size of a selection, and of typed numbers."),
      .read = [] { return int(ViewChoices::shared().unit()); },
      .write = [](const QVariant& to) { ViewChoices::shared().setUnit(LengthUnit(to.toInt())); }};
  static constexpr const char* kNames[] = {"Points", "Millimetres", "Inches", "Picas"};
  for (const char* name : kNames)
    unit.options << Preference::Option{localizedString(name), int(unit.options.size())};
  return unit;
}

}  // namespace

QList<Preference> viewPreferences() {
  const QString window = localizedString("Window");
  return {choice(ViewChoices::WindowFitsPicture, window, "preferFits", "&Window fits picture",
                 "No larger than the picture, and smaller with it."),
          choice(ViewChoices::Checkerboard, window, "preferCheckerboard", "Chec&kerboard behind new pictures",
                 "Shows where nothing is painted, instead of the background colour."),
          choice(ViewChoices::DimOutside, window, "preferDim", "Di&m what is outside of the selection",
                 "What is copied, saved or printed stands out."),
          unitChoice(window),
          choice(ViewChoices::ReloadByItself, localizedString("Files"), "preferReload",
                 "&Reload changed files by itself", "Otherwise a bar in the window asks.")};
}

}  // namespace norvex
