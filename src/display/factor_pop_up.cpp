#include "display/factor_pop_up.h"

#include <QCoreApplication>

#include "display/zoom_factors.h"

namespace norvex {
namespace {

bool isItem(int index) {
  return index >= 0 && index < int(zoomFactors.size());
}

}  // namespace

QStringList FactorPopUp::titles() {
  QStringList all;
  for (const ZoomFactor& item : zoomFactors)
    all << QCoreApplication::translate("SKTZoomingScrollView", item.title);
  return all;
}

double FactorPopUp::representedFactor(int index) {
  return isItem(index) ? zoomFactors[size_t(index)].factor : 0;
}

void FactorPopUp::choose(int index) {
  if (!isItem(index)) return;
  select(index);
  if (binding_) binding_->setValue(representedFactor(index));
}

void FactorPopUp::bindSelectedObject(QObject* object, const QByteArray& keyPath) {
  binding_ = std::make_unique<PropertyBinding>(object, keyPath);
  connect(binding_.get(), &PropertyBinding::valueDidChange, this,
          [this](const QVariant& value) { select(indexOfZoomFactor(value.toDouble())); });
  if (binding_->isValid()) select(indexOfZoomFactor(binding_->value().toDouble()));
}

void FactorPopUp::unbindSelectedObject() {
  binding_.reset();
}

void FactorPopUp::select(int index) {
  if (selectedIndex_ == index) return;
  selectedIndex_ = index;
  emit selectedIndexDidChange(index);
}

}  // namespace norvex
