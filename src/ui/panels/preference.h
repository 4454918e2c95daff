// One choice that the user makes once for all windows.
#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <functional>

namespace norvex {

/// A switch, one of several options, or a button that does something. Texts are localized.
struct Preference {
  struct Option {
    QString title;
    QVariant value;
  };
  QString group;                             ///< those of one group stand together, under it as their title
  QString name;                              ///< of its control, for tests and style
  QString title;                             ///< with a mnemonic
  QString hint = {};                         ///< a sentence; empty: the title says it all
  QList<Option> options = {};                ///< empty: a switch, unless there is something to do
  std::function<QVariant()> read = {};       ///< asked for whenever the panel is looked at
  std::function<void(QVariant)> write = {};  ///< takes effect at once
  std::function<void()> act = {};            ///< given: a button
  std::function<bool()> isPossible = {};     ///< given: greyed out where false
};

}  // namespace norvex
