// FactorPopUp: the zoom menu without its widget: items, selection and the link to the chosen factor.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <memory>

#include "display/property_binding.h"

namespace norvex {

class FactorPopUp final : public QObject {
  Q_OBJECT
 public:
  explicit FactorPopUp(QObject* parent = nullptr) : QObject(parent) {}

  /// Localised; the key itself where the string table has no entry.
  [[nodiscard]] static QStringList titles();
  [[nodiscard]] static double representedFactor(int index);

  /// -1 while the linked factor is none of the items.
  [[nodiscard]] int selectedIndex() const { return selectedIndex_; }
  /// The user chose an item: it is selected and its factor written to the linked property. Ignores what is no
  /// item.
  void choose(int index);

  /// Links the selection to a property: it follows the property, and choose() writes it.
  void bindSelectedObject(QObject* object, const QByteArray& keyPath);
  void unbindSelectedObject();
  [[nodiscard]] bool isBound() const { return binding_ != nullptr; }

 signals:
  void selectedIndexDidChange(int index);

 private:
  void select(int index);

  int selectedIndex_ = 0;  ///< a fresh menu has its first item selected
  std::unique_ptr<PropertyBinding> binding_;
};

}  // namespace norvex
