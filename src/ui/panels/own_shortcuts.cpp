#include "ui/panels/own_shortcuts.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSettings>

#include <algorithm>
#include <optional>

#include "base/localized_string.h"
#include "base/state_folder.h"

namespace norvex {
namespace {

constexpr char kDefaults[] = "norvexDefaultKeys";
const QString kGroup = QStringLiteral("keys");
constexpr qsizetype kMostKeys = 8;  // of one command

QString settingsFile() {
  return settingsFolder() + QStringLiteral("/shortcuts.ini");
}

QString keyOf(const QAction& command) {
  return kGroup + u'/' + command.objectName();
}

void addCommands(QList<QAction*>& commands, const QList<QAction*>& actions) {
  for (QAction* action : actions) {
    if (action->menu())
      addCommands(commands, action->menu()->actions());
    else if (!action->isSeparator())
      commands << action;
  }
}

QList<QAction*> commandsOf(const QWidget& window) {
  QList<QAction*> commands;
  if (const auto* menus = window.findChild<QMenuBar*>()) addCommands(commands, menus->actions());
  return commands;
}

QList<QKeySequence> defaultsOf(const QAction& command) {
  return command.property(kDefaults).value<QList<QKeySequence>>();
}

void keepDefaultsOf(QAction& command) {
  if (!command.property(kDefaults).isValid())
    command.setProperty(kDefaults, QVariant::fromValue(command.shortcuts()));
}

QKeyCombination firstOf(const QKeySequence& keys) {
  return keys.isEmpty() ? QKeyCombination(Qt::Key_unknown) : keys[0];
}

/// With less it would be typed in a field, or move the picture.
bool isForCommands(const QKeySequence& keys) {
  const Qt::Key key = firstOf(keys).key();
  const bool modified =
      firstOf(keys).keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return key != Qt::Key_unknown && (modified || (key >= Qt::Key_F1 && key <= Qt::Key_F35));
}

/// The menu of the window that these keys open; null: none.
const QAction* menuOpenedBy(const QWidget& window, const QKeySequence& keys) {
  if (const auto* menus = window.findChild<QMenuBar*>())
    for (const QAction* menu : menus->actions())
      if (QKeySequence::mnemonic(menu->text()) == keys) return menu;
  return nullptr;
}

/// Who else of the window has these keys, a sentence; empty: nobody.
QString complaintAboutOthers(const QWidget& window, const QAction& command, const QKeySequence& keys) {
  const QString shown = keys.toString(QKeySequence::NativeText);
  // Commands of the menus may belong to whom they act for, and others stand in no menu.
  for (const QAction* other : commandsOf(window) + window.findChildren<QAction*>())
    if (other != &command && other->shortcuts().contains(keys))
      return localizedString("“%1” belongs to “%2” already, and nothing was changed.")
          .arg(shown, plainTitle(other->text()));
  if (const QAction* menu = menuOpenedBy(window, keys))
    return localizedString("“%1” opens the menu “%2”, and nothing was changed.")
        .arg(shown, plainTitle(menu->text()));
  return {};
}

/// The keys that the file gives; nothing: none, or none that can be understood.
std::optional<QList<QKeySequence>> storedKeys(const QSettings& settings, const QWidget& window,
                                              const QAction& command) {
  if (!OwnShortcuts::mayChange(command) || !settings.contains(keyOf(command))) return std::nullopt;
  const QStringList texts = settings.value(keyOf(command)).toStringList();
  QList<QKeySequence> keys;
  for (const QString& text : texts) {
    if (text.isEmpty()) continue;  // how an empty list is written
    const QKeySequence one = QKeySequence::fromString(text, QKeySequence::PortableText);
    // Commands are called with one chord.
    if (one.count() != 1 || !isForCommands(one) || menuOpenedBy(window, one) || keys.size() >= kMostKeys)
      return std::nullopt;
    keys << one;
  }
  return keys;
}

bool hasKeysOfOther(const QList<QAction*>& commands, const QAction* command,
                    const QList<QKeySequence>& keys) {
  return std::any_of(commands.cbegin(), commands.cend(), [&](const QAction* other) {
    if (other == command) return false;
    const QList<QKeySequence> theirs = other->shortcuts();
    return std::any_of(keys.cbegin(), keys.cend(), [&](const auto& one) { return theirs.contains(one); });
  });
}

/// The keys that a command came with, without those that another one was given.
QList<QKeySequence> defaultsLeftTo(const QAction* command, const QList<QAction*>& commands) {
  QList<QKeySequence> left = defaultsOf(*command);
  left.removeIf([&](const QKeySequence& one) { return hasKeysOfOther(commands, command, {one}); });
  return left;
}

}  // namespace

QString plainTitle(QString text) {
  // Where the letters of a language are no keys, a mnemonic stands behind the title in brackets.
  static const QRegularExpression added(QStringLiteral("\\(&.\\)"));
  text.remove(added);
  text.replace(QStringLiteral("&&"), QStringLiteral("\u0001")).remove(u'&').replace(u'\u0001', u'&');
  while (text.endsWith(u'\u2026')) text.chop(1);
  return text;
}

OwnShortcuts& OwnShortcuts::shared() {
  static OwnShortcuts own;
  return own;
}

void OwnShortcuts::apply(QWidget& window) {
  windows_.removeAll(nullptr);
  if (!windows_.contains(&window)) windows_ << &window;
  const QList<QAction*> commands = commandsOf(window);
  for (QAction* command : commands) {
    keepDefaultsOf(*command);
    command->setShortcuts(defaultsOf(*command));
  }
  if (!QFileInfo::exists(settingsFile())) return;
  const QSettings settings(settingsFile(), QSettings::IniFormat);
  QList<std::pair<QAction*, QList<QKeySequence>>> own;
  for (QAction* command : commands)
    if (const auto keys = storedKeys(settings, window, *command)) {
      command->setShortcuts(QList<QKeySequence>());  // what is given up here may be taken there
      own << std::pair(command, *keys);
    }
  for (const auto& [command, keys] : own)
    command->setShortcuts(hasKeysOfOther(commands, command, keys) ? defaultsLeftTo(command, commands) : keys);
}

void OwnShortcuts::applyToAll() {
  for (const QPointer<QWidget>& window : QList<QPointer<QWidget>>(windows_))
    if (window) apply(*window);
  emit changed();
}

QString OwnShortcuts::complaintAbout(const QWidget& window, const QAction& command,
                                     const QKeySequence& keys) {
  if (!isForCommands(keys))
    return localizedString(
               "“%1” is for typing and for moving the picture. Take it together with Ctrl or Alt, or take a "
               "function key.")
        .arg(keys.toString(QKeySequence::NativeText));
  return complaintAboutOthers(window, command, keys);
}

bool OwnShortcuts::mayChange(const QAction& command) {
  return !command.objectName().isEmpty();
}

QString OwnShortcuts::write(const std::function<void(QSettings&)>& change) {
  QSettings settings(settingsFile(), QSettings::IniFormat);
  QHash<QString, QVariant> before;
  settings.beginGroup(kGroup);
  for (const QString& key : settings.childKeys()) before.insert(key, settings.value(key));
  settings.endGroup();
  change(settings);
  settings.sync();
  if (settings.status() == QSettings::NoError) {
    applyToAll();
    return {};
  }
  // What could not be written would still be read by this program, until its end.
  settings.remove(kGroup);
  settings.beginGroup(kGroup);
  for (auto each = before.cbegin(); each != before.cend(); ++each)
    settings.setValue(each.key(), each.value());
  return localizedString("“%1” cannot be written, and nothing was changed.")
      .arg(QDir::toNativeSeparators(settingsFile()));
}

QString OwnShortcuts::set(const QAction& command, const QList<QKeySequence>& keys) {
  if (!mayChange(command)) return {};
  QStringList texts;
  for (const QKeySequence& one : keys) texts << one.toString(QKeySequence::PortableText);
  if (texts.isEmpty()) texts << QString();
  return write([&](QSettings& settings) { settings.setValue(keyOf(command), texts); });
}

QString OwnShortcuts::reset(const QWidget& window, const QAction& command) {
  for (const QKeySequence& one : defaultsOf(command))
    if (const QString complaint = complaintAboutOthers(window, command, one); !complaint.isEmpty())
      return complaint;
  return write([&](QSettings& settings) { settings.remove(keyOf(command)); });
}

QString OwnShortcuts::resetAll() {
  return write([](QSettings& settings) { settings.remove(kGroup); });
}

bool OwnShortcuts::isOwn(const QAction& command) const {
  return QFileInfo::exists(settingsFile()) &&
         QSettings(settingsFile(), QSettings::IniFormat).contains(keyOf(command));
}

bool OwnShortcuts::hasAny() const {
  if (!QFileInfo::exists(settingsFile())) return false;
  QSettings settings(settingsFile(), QSettings::IniFormat);
  settings.beginGroup(kGroup);
  return !settings.childKeys().isEmpty();
}

}  // namespace norvex
