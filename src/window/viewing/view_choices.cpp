#include "window/viewing/view_choices.h"

#include <QAction>
#include <QWidget>

#include <array>

#include "base/localized_string.h"
#include "window/place/window_frames.h"

namespace norvex {
namespace {

struct Kept {
  const char* key;
  bool otherwise;  ///< before it was ever chosen
};

/// In the order of the choices.
constexpr std::array kKept{Kept{windowFitsPictureName, true}, Kept{"views/reloadByItself", true},
                           Kept{"views/dimOutside", false}, Kept{"views/checkerboard", false}};

const QString kUnit = QStringLiteral("views/unit");

const Kept& keptOf(ViewChoices::Choice choice) {
  return kKept.at(static_cast<size_t>(choice));
}

}  // namespace

ViewChoices& ViewChoices::shared() {
  static ViewChoices choices;
  return choices;
}

bool ViewChoices::isOn(Choice choice) const {
  return savedView(QLatin1String(keptOf(choice).key), keptOf(choice).otherwise);
}

void ViewChoices::set(Choice choice, bool on) {
  if (isOn(choice) == on) return;
  saveView(QLatin1String(keptOf(choice).key), on);
  emit changed(choice, on);
}

LengthUnit ViewChoices::unit() const {
  return unitNamed(savedViewText(kUnit));
}

void ViewChoices::setUnit(LengthUnit unit) {
  if (this->unit() == unit) return;
  saveViewText(kUnit, unitName(unit));
  emit unitChanged(unit);
}

QAction* ViewChoices::makeAction(Choice choice, const char* title, const char* name, QWidget* window) {
  auto* action = new QAction(localizedString(title), window);
  action->setObjectName(QLatin1String(name));
  action->setCheckable(true);
  action->setChecked(isOn(choice));
  connect(action, &QAction::toggled, this, [this, choice](bool on) { set(choice, on); });
  connect(this, &ViewChoices::changed, action, [choice, action](Choice other, bool on) {
    if (other == choice) action->setChecked(on);
  });
  return action;
}

}  // namespace norvex
