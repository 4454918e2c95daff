#include "ui/pages/rectangle_dialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QPushButton>

#include "base/localized_string.h"

namespace norvex {

RectangleDialog::RectangleDialog(const QRectF& first, const QSizeF& page, LengthUnit unit, QWidget* parent)
    : QDialog(parent), unitPoints_(pointsOf(unit)), unitName_(unitName(unit)) {
  setWindowTitle(localizedString("Select Rectangle"));
  auto* form = new QFormLayout(this);
  form->setContentsMargins(20, 20, 20, 16);
  left_ = addField("From the left:", "rectangleLeft", first.x(), page.width());
  bottom_ = addField("From below:", "rectangleBottom", first.y(), page.height());
  width_ = addField("Width:", "rectangleWidth", first.width(), page.width());
  height_ = addField("Height:", "rectangleHeight", first.height(), page.height());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(localizedString("Select"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
  left_->selectAll();
}

QDoubleSpinBox* RectangleDialog::addField(const char* title, const char* name, double points, double most) {
  auto* field = new QDoubleSpinBox(this);
  field->setObjectName(QLatin1String(name));
  field->setDecimals(3);
  field->setRange(0, most / unitPoints_);
  field->setSuffix(u' ' + unitName_);
  field->setValue(points / unitPoints_);
  field->setMinimumWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("00000.000 mm")) + 40);
  static_cast<QFormLayout*>(layout())->addRow(localizedString(title), field);
  return field;
}

QRectF RectangleDialog::rectangle() const {
  return {left_->value() * unitPoints_, bottom_->value() * unitPoints_, width_->value() * unitPoints_,
          height_->value() * unitPoints_};
}

}  // namespace norvex
