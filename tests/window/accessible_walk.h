// A walk through a window as a screen reader makes it.
#pragma once

#include <QAccessible>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace norvex::kit {

inline bool isOperated(QAccessible::Role role) {
  switch (role) {
    case QAccessible::PushButton:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::Dial:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::Graphic:
    case QAccessible::Link:
      return true;
    default:
      return false;
  }
}

inline QString described(QAccessibleInterface* interface) {
  const QObject* object = interface->object();
  return QStringLiteral("%1 %2 (role %3)")
      .arg(object ? QString::fromLatin1(object->metaObject()->className()) : QStringLiteral("child"),
           object ? object->objectName() : QString())
      .arg(int(interface->role()), 0, 16);
}

/// True for what is read out as it is written, but is not written to be read: markup, and the sign of a
/// letter that is pressed.
inline bool isUnspeakable(const QString& words) {
  static const QRegularExpression signs(QStringLiteral("</?[a-z]+[ />]|&[^ ]"));
  return words.contains(signs);
}

/// A list of choices is named after what is chosen; what it is about is told beside it.
inline bool tellsWhatItChooses(QAccessibleInterface& list) {
  return !list.text(QAccessible::Description).isEmpty() || !list.relations(QAccessible::Label).isEmpty() ||
         !qobject_cast<QWidget*>(list.object())->accessibleName().isEmpty();
}

/// Complains about what is operated and has no name, about words that cannot be spoken, and about what takes
/// the keyboard and does not say what it is.
inline void walk(QAccessibleInterface* interface, QStringList& complaints, int depth = 0) {
  if (!interface || depth > 24 || interface->state().invisible) return;
  const auto* widget = qobject_cast<const QWidget*>(interface->object());
  if (interface->role() == QAccessible::NoRole) complaints << "no role: " + described(interface);
  if (isOperated(interface->role()) && interface->text(QAccessible::Name).isEmpty())
    complaints << "no name: " + described(interface);
  for (const auto kind : {QAccessible::Name, QAccessible::Description})
    if (isUnspeakable(interface->text(kind)))
      complaints << QStringLiteral("“%1”: %2").arg(interface->text(kind), described(interface));
  const bool takesKeys = widget && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
  if (takesKeys && interface->role() == QAccessible::Client)
    complaints << "keyboard, but nothing is said: " + described(interface);
  if (interface->role() == QAccessible::ComboBox && !tellsWhatItChooses(*interface))
    complaints << "a choice of what? " + described(interface);
  if (widget && widget->isWindow() && interface->role() == QAccessible::Client)
    complaints << "no window: " + described(interface);
  for (int i = 0; i < interface->childCount(); ++i) walk(interface->child(i), complaints, depth + 1);
}

inline QStringList complaintsAbout(QWidget* top) {
  QStringList complaints;
  walk(QAccessible::queryAccessibleInterface(top), complaints);
  return complaints;
}

}  // namespace norvex::kit
