#include "ui/controls/control_accessible.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

#include <array>

#include "ui/controls/color_well.h"

namespace norvex {

namespace {

/// A colour well: pressed like a button.
class ColorWellAccessible final : public QAccessibleWidget {
 public:
  explicit ColorWellAccessible(ColorWell* well) : QAccessibleWidget(well, QAccessible::PushButton) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? well()->color().name() : QAccessibleWidget::text(kind);
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (well()->isEnabled()) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& name) override {
    if (name == pressAction())
      well()->click();
    else
      QAccessibleWidget::doAction(name);
  }

 private:
  [[nodiscard]] ColorWell* well() const { return static_cast<ColorWell*>(object()); }
};

/// A plain widget, which is a window while it stands alone: a screen reader tells the title of those.
class PlainAccessible final : public QAccessibleWidget {
 public:
  explicit PlainAccessible(QWidget* widget) : QAccessibleWidget(widget) {}

  QAccessible::Role role() const override {
    return widget()->isWindow() ? QAccessible::Window : QAccessibleWidget::role();
  }
};

struct RoleOf {
  const char* className;
  QAccessible::Role role;
};

constexpr std::array<RoleOf, 13> kRoles{{{"norvex::NorvexViewWidget", QAccessible::Graphic},
                                         {"norvex::SeparationView", QAccessible::Graphic},
                                         {"norvex::PageLayoutPreview", QAccessible::Graphic},
                                         {"norvex::ZoomingScrollArea", QAccessible::Pane},
                                         {"QScrollArea", QAccessible::Pane},
                                         {"QKeySequenceEdit", QAccessible::EditableText},
                                         {"norvex::MessageBar", QAccessible::AlertMessage},
                                         {"norvex::ZyImageView", QAccessible::Graphic},
                                         {"norvex::ZyForm", QAccessible::Form},
                                         {"norvex::NumberMatrix", QAccessible::Grouping},
                                         {"norvex::PathControl", QAccessible::StaticText},
                                         {"norvex::SourceFindBar", QAccessible::ToolBar},
                                         {"norvex::TouchStrip", QAccessible::ToolBar}}};

QAccessibleInterface* make(const QString& className, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (!widget) return nullptr;
  if (auto* well = qobject_cast<ColorWell*>(widget))
    return new ColorWellAccessible(well);  // Qt takes ownership
  for (const RoleOf& each : kRoles)
    if (className == QLatin1String(each.className)) return new QAccessibleWidget(widget, each.role);
  return className == QLatin1String("QWidget") ? new PlainAccessible(widget) : nullptr;
}

}  // namespace

void installControlAccessibility() {
  static const bool installed = (QAccessible::installFactory(&make), true);
  Q_UNUSED(installed)
}

}  // namespace norvex
