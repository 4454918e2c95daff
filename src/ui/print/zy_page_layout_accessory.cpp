#include "ui/print/zy_page_layout_accessory.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>

#include "base/localized_string.h"

namespace norvex {
namespace {

constexpr double kPointsPerInch = 72, kPointsPerMillimetre = 72 / 25.4;
constexpr double kLargestShown = 1000 * kPointsPerMillimetre;

bool measuresInInches() {
  return QLocale().measurementSystem() == QLocale::ImperialUSSystem;
}

}  // namespace

ZyPageLayoutAccessory::ZyPageLayoutAccessory(QWidget* parent)
    : QWidget(parent),
      horizontally_(new QCheckBox(localizedString("&Horizontally"))),
      vertically_(new QCheckBox(localizedString("&Vertically"))),
      headerAndFooter_(new QCheckBox(localizedString("Hea&der and footer"))),
      pointsPerUnit_(measuresInInches() ? kPointsPerInch : kPointsPerMillimetre) {
  auto* form = new QFormLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  auto* grid = new QGridLayout;
  addMargins(grid);
  form->addRow(localizedString("Margins:"), grid);
  auto* centring = new QHBoxLayout;
  centring->addWidget(horizontally_);
  centring->addWidget(vertically_);
  centring->addStretch();
  form->addRow(localizedString("Centred:"), centring);
  form->addRow(QString(), headerAndFooter_);
  horizontally_->setObjectName(QStringLiteral("centreHorizontally"));
  vertically_->setObjectName(QStringLiteral("centreVertically"));
  headerAndFooter_->setObjectName(QStringLiteral("headerAndFooter"));
  headerAndFooter_->setToolTip(
      localizedString("The date above the picture and the file's location below it, on every page"));
  horizontally_->setAccessibleName(localizedString("Centred horizontally"));
  vertically_->setAccessibleName(localizedString("Centred vertically"));
  for (QCheckBox* each : {horizontally_, vertically_, headerAndFooter_})
    connect(each, &QCheckBox::clicked, this, &ZyPageLayoutAccessory::changed);
}

void ZyPageLayoutAccessory::addMargins(QGridLayout* grid) {
  struct Row {
    const char* key;
    const char* title;
    const char* name;
  };
  const Row rows[] = {{NSPrintTopMargin, "T&op:", "topMargin"},
                      {NSPrintLeftMargin, "Lef&t:", "leftMargin"},
                      {NSPrintBottomMargin, "&Bottom:", "bottomMargin"},
                      {NSPrintRightMargin, "&Right:", "rightMargin"}};
  int place = 0;
  for (const Row& row : rows) {
    auto* field = new QDoubleSpinBox;
    field->setObjectName(QString::fromLatin1(row.name));
    field->setDecimals(pointsPerUnit_ == kPointsPerInch ? 2 : 1);
    field->setRange(0, kLargestShown / pointsPerUnit_);
    field->setSingleStep(pointsPerUnit_ == kPointsPerInch ? 0.1 : 1);
    field->setSuffix(pointsPerUnit_ == kPointsPerInch ? QStringLiteral(" in") : QStringLiteral(" mm"));
    auto* label = new QLabel(localizedString(row.title));
    label->setBuddy(field);
    grid->addWidget(label, place / 2, place % 2 * 2);
    grid->addWidget(field, place / 2, place % 2 * 2 + 1);
    connect(field, &QDoubleSpinBox::valueChanged, this, &ZyPageLayoutAccessory::changed);
    margins_.append({row.key, field, 0, 0});
    ++place;
  }
}

void ZyPageLayoutAccessory::setPrintInfo(const NSPrintInfo& info) {
  const QSignalBlocker quiet(this);
  const QMarginsF told = info.margins();
  const double points[] = {told.top(), told.left(), told.bottom(), told.right()};
  for (qsizetype i = 0; i < margins_.size(); ++i) {
    margins_[i].points = points[i];
    margins_[i].field->setValue(points[i] / pointsPerUnit_);
    margins_[i].shownThen = margins_[i].field->value();
  }
  horizontally_->setChecked(info.isHorizontallyCentered());
  vertically_->setChecked(info.isVerticallyCentered());
  headerAndFooter_->setChecked(info.printsHeaderAndFooter());
}

void ZyPageLayoutAccessory::applyTo(NSPrintInfo& info) const {
  for (const Margin& margin : margins_) {
    const double shown = margin.field->value();
    info.set(margin.key, shown == margin.shownThen ? margin.points : shown * pointsPerUnit_);
  }
  info.setHorizontallyCentered(horizontally_->isChecked());
  info.setVerticallyCentered(vertically_->isChecked());
  info.setPrintsHeaderAndFooter(headerAndFooter_->isChecked());
}

}  // namespace norvex
