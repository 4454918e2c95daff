#include "ui/print/page_layout_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalBlocker>

#include "base/localized_string.h"
#include "print/print_operation.h"

namespace norvex {
namespace {

QString paperTitle(const Paper& paper) {
  const auto millimetres = [](double points) { return qRound(points / 72 * 25.4); };
  return QStringLiteral("%1  (%2 × %3 mm)")
      .arg(paper.name)
      .arg(millimetres(paper.size.width()))
      .arg(millimetres(paper.size.height()));
}

}  // namespace

PageLayoutControls::PageLayoutControls(int options, QFormLayout* form, QObject* parent)
    : QObject(parent), form_(form) {
  if (options & NSPrintPanelShowsPaperSize) addPaper();
  if (options & NSPrintPanelShowsOrientation) addOrientation();
  if (options & NSPrintPanelShowsScaling) addScaling();
}

void PageLayoutControls::addPaper() {
  paper_ = new QComboBox;
  paper_->setObjectName(QStringLiteral("paper"));
  paper_->setAccessibleName(localizedString("Paper"));
  for (const Paper& paper : commonPapers()) paper_->addItem(paperTitle(paper), paper.keyword);
  connect(paper_, &QComboBox::activated, this, &PageLayoutControls::changed);
  form_->addRow(localizedString("Pap&er:"), paper_);
}

void PageLayoutControls::addOrientation() {
  portrait_ = new QRadioButton(localizedString("Portra&it"));
  landscape_ = new QRadioButton(localizedString("&Landscape"));
  portrait_->setObjectName(QStringLiteral("portrait"));
  landscape_->setObjectName(QStringLiteral("landscape"));
  auto* both = new QWidget;
  auto* row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(portrait_);
  row->addWidget(landscape_);
  row->addStretch();
  connect(portrait_, &QRadioButton::clicked, this, &PageLayoutControls::changed);
  connect(landscape_, &QRadioButton::clicked, this, &PageLayoutControls::changed);
  form_->addRow(localizedString("Orientation:"), both);
}

void PageLayoutControls::addScaling() {
  scaling_ = new QDoubleSpinBox;
  scaling_->setObjectName(QStringLiteral("scaling"));
  scaling_->setAccessibleName(localizedString("Scaling"));
  scaling_->setRange(NSPrintInfo::smallestScalingFactor * 100, NSPrintInfo::largestScalingFactor * 100);
  scaling_->setDecimals(1);
  scaling_->setSuffix(QStringLiteral(" %"));
  fit_ = new QCheckBox(localizedString("&Fit on one page"));
  fit_->setObjectName(QStringLiteral("fit"));
  fit_->setToolTip(localizedString("Makes the picture smaller until one page holds it"));
  connect(scaling_, &QDoubleSpinBox::valueChanged, this, &PageLayoutControls::changed);
  connect(fit_, &QCheckBox::clicked, this, &PageLayoutControls::changed);
  form_->addRow(localizedString("&Scaling:"), scaling_);
  form_->addRow(QString(), fit_);
}

void PageLayoutControls::setPrintInfo(const NSPrintInfo& info) {
  const QSignalBlocker quiet(this);
  if (paper_) {
    const Paper paper = info.paper();
    int index = paper_->findData(paper.keyword);
    if (index < 0) {
      paper_->addItem(paperTitle(paper), paper.keyword);
      index = paper_->count() - 1;
    }
    paper_->setCurrentIndex(index);
  }
  if (portrait_)
    (info.orientation() == NSPaperOrientation::Landscape ? landscape_ : portrait_)->setChecked(true);
  if (scaling_) {
    factor_ = info.scalingFactor();
    scaling_->setValue(factor_ * 100);
    shownThen_ = scaling_->value();
    fit_->setChecked(info.horizontalPagination() == NSPrintingPaginationMode::Fit &&
                     info.verticalPagination() == NSPrintingPaginationMode::Fit);
  }
}

void PageLayoutControls::applyTo(NSPrintInfo& info) const {
  if (paper_)
    if (const auto paper = paperNamed(paper_->currentData().toString())) info.setPaper(*paper);
  if (portrait_)
    info.setOrientation(landscape_->isChecked() ? NSPaperOrientation::Landscape
                                                : NSPaperOrientation::Portrait);
  if (!scaling_) return;
  info.setScalingFactor(scaling_->value() == shownThen_ ? factor_ : scaling_->value() / 100);
  const auto fitted = [this](NSPrintingPaginationMode mode) {
    if (fit_->isChecked()) return NSPrintingPaginationMode::Fit;
    return mode == NSPrintingPaginationMode::Fit ? NSPrintingPaginationMode::Automatic : mode;
  };
  info.setHorizontalPagination(fitted(info.horizontalPagination()));
  info.setVerticalPagination(fitted(info.verticalPagination()));
}

}  // namespace norvex
