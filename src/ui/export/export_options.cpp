#include "ui/export/export_options.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStandardItemModel>

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "base/localized_string.h"
#include "display/length_text.h"
#include "types/type_description.h"
#include "types/uniform_type.h"
#include "ui/controls/color_well.h"
#include "ui/controls/page_range_fields.h"

namespace norvex {
namespace {

constexpr double kPointsPerInch = 72;
constexpr int kMostPixels = 100'000;
constexpr int kUsualQuality = 90;

QString formatTitle(PictureFormat format) {
  const FormatRow& row = rowOf(format);
  if (format == PictureFormat::EpsPreview) return localizedString("EPS with TIFF preview");
  return localizedString(row.title);
}

/// Exact enough for a number of pixels that was typed, and shown without the decimals of that.
class ResolutionField final : public QDoubleSpinBox {
 public:
  explicit ResolutionField(QWidget* parent) : QDoubleSpinBox(parent) { setDecimals(4); }
  [[nodiscard]] QString textFromValue(double value) const override {
    return locale().toString(std::round(value * 10) / 10, 'f', QLocale::FloatingPointShortest);
  }
};

const char* areaTitle(ExportArea area) {
  switch (area) {
    case ExportArea::Selection:
      return "Selection";
    case ExportArea::Visible:
      return "Visible part";
    case ExportArea::Page:
      return "Whole picture";
    case ExportArea::Document:
      return "All pages";
    case ExportArea::Pages:
      return "Some pages";
  }
  return "";
}

QWidget* inRow(std::initializer_list<QWidget*> widgets, QWidget* parent) {
  auto* row = new QWidget(parent);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget : widgets) layout->addWidget(widget);
  layout->addStretch();
  return row;
}

bool isSvg(PictureFormat format) {
  return format == PictureFormat::Svg || format == PictureFormat::Svgz;
}

}  // namespace

ExportOptions::ExportOptions(const ExportOffer& offer, const ExportChoice& first, QWidget* parent)
    : QWidget(parent), offer_(offer), form_(new QFormLayout(this)) {
  form_->setContentsMargins(0, 0, 0, 0);
  form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  addFormats(first);
  addAreas(first);
  addPages();
  addPixels(first);
  addColors(first);
  addBackground(first);
  addQuality(first);
  addText(first);
  showWhatApplies();
}

void ExportOptions::addFormats(const ExportChoice& first) {
  formats_ = new QComboBox(this);
  formats_->setObjectName(QStringLiteral("exportFormat"));
  for (const PictureFormat each : offer_.formats) formats_->addItem(formatTitle(each));
  formats_->setCurrentIndex(std::max(0, int(offer_.formats.indexOf(first.format))));
  formats_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  formats_->setMinimumContentsLength(22);
  form_->addRow(localizedString("Format:"), formats_);
  connect(formats_, &QComboBox::currentIndexChanged, this, &ExportOptions::showWhatApplies);
}

void ExportOptions::addAreas(const ExportChoice& first) {
  areas_ = new QComboBox(this);
  areas_->setObjectName(QStringLiteral("exportArea"));
  areas_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  const bool pages = std::any_of(offer_.areas.cbegin(), offer_.areas.cend(),
                                 [](const auto& each) { return holdsPages(each.area); });
  int chosen = 0;
  for (qsizetype i = 0; i < offer_.areas.size(); ++i) {
    const ExportOffer::Area& each = offer_.areas.at(i);
    const bool onePage = each.area == ExportArea::Page && pages;
    const QString title = onePage ? localizedString("This page") : localizedString(areaTitle(each.area));
    areas_->addItem(holdsPages(each.area) ? title
                                          : QStringLiteral("%1 (%2 pt)").arg(title, sizeText(each.size)));
    if (each.area == first.area) chosen = int(i);
  }
  areas_->setCurrentIndex(chosen);
  form_->addRow(localizedString("Part:"), areas_);
  connect(areas_, &QComboBox::currentIndexChanged, this, &ExportOptions::showWhatApplies);
}

void ExportOptions::addPages() {
  pages_ = new PageRangeFields(std::max(1, offer_.pageCount), this);
  pages_->setPages(offer_.shownPage + 1, offer_.pageCount);
  form_->addRow(localizedString("From page:"), pages_);
  connect(pages_, &PageRangeFields::changed, this, &ExportOptions::changed);
}

void ExportOptions::addPixels(const ExportChoice& first) {
  dpi_ = new ResolutionField(this);
  dpi_->setObjectName(QStringLiteral("exportDpi"));
  dpi_->setRange(kLeastExportDpi, kMostExportDpi);
  dpi_->setValue(first.dpi);
  dpi_->setSuffix(localizedString(" pixels an inch"));
  wide_ = new QSpinBox(this);
  wide_->setObjectName(QStringLiteral("exportWidth"));
  wide_->setAccessibleName(localizedString("Width in pixels"));
  high_ = new QSpinBox(this);
  high_->setObjectName(QStringLiteral("exportHeight"));
  high_->setAccessibleName(localizedString("Height in pixels"));
  for (QSpinBox* field : {wide_, high_}) {
    field->setRange(1, kMostPixels);
    field->setKeyboardTracking(false);  // a number that is being typed is none yet
  }
  dpi_->setKeyboardTracking(false);
  pixels_ = inRow(
      {wide_, new QLabel(QStringLiteral("×"), this), high_, new QLabel(localizedString("pixels"), this)},
      this);
  form_->addRow(localizedString("Resolution:"), dpi_);
  form_->addRow(localizedString("Size:"), pixels_);
  connect(dpi_, &QDoubleSpinBox::valueChanged, this, [this] {
    showPixels();
    emit changed();
  });
  connect(wide_, &QSpinBox::valueChanged, this, [this](int n) { takePixels(n, size().width()); });
  connect(high_, &QSpinBox::valueChanged, this, [this](int n) { takePixels(n, size().height()); });
}

void ExportOptions::addBackground(const ExportChoice& first) {
  filled_ = new QCheckBox(localizedString("Fill with"), this);
  filled_->setObjectName(QStringLiteral("exportFilled"));
  filled_->setChecked(first.background.isValid());
  color_ = new ColorWell(this);
  color_->setAccessibleName(localizedString("Background"));
  color_->setColor(first.background.isValid() ? first.background : QColor(Qt::white));
  color_->setEnabled(filled_->isChecked());
  ground_ = inRow({filled_, color_}, this);
  form_->addRow(localizedString("Background:"), ground_);
  connect(filled_, &QCheckBox::toggled, this, [this](bool on) {
    color_->setEnabled(on);
    emit changed();
  });
  connect(color_, &ColorWell::colorChosen, this, &ExportOptions::changed);
}

void ExportOptions::addColors(const ExportChoice& first) {
  colors_ = new QComboBox(this);
  colors_->setObjectName(QStringLiteral("exportColor"));
  colors_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  for (const auto& [color, title] :
       {std::pair(OutputColor::Rgb, "RGB for screens"), std::pair(OutputColor::Grey, "Shades of grey"),
        std::pair(OutputColor::Cmyk, "CMYK for print")})
    colors_->addItem(localizedString(title), int(color));
  colors_->setCurrentIndex(int(first.color));
  form_->addRow(localizedString("Colours:"), colors_);
  connect(colors_, &QComboBox::currentIndexChanged, this, &ExportOptions::showWhatApplies);
}

void ExportOptions::offerColors() {
  const auto* rows = qobject_cast<const QStandardItemModel*>(colors_->model());
  for (int i = 0; rows && i < colors_->count(); ++i)
    rows->item(i)->setEnabled(holdsColor(format(), OutputColor(i)));
  const QSignalBlocker quiet(colors_);
  if (isRaster(format()) && !holdsColor(format(), OutputColor(colors_->currentIndex())))
    colors_->setCurrentIndex(int(OutputColor::Rgb));
}

void ExportOptions::addQuality(const ExportChoice& first) {
  quality_ = new QSpinBox(this);
  quality_->setObjectName(QStringLiteral("exportQuality"));
  quality_->setAccessibleName(localizedString("Quality"));
  quality_->setRange(1, 100);
  quality_->setKeyboardTracking(false);
  quality_->setValue(first.quality.value_or(kUsualQuality));
  lossless_ = new QCheckBox(localizedString("Lossless"), this);
  lossless_->setObjectName(QStringLiteral("exportLossless"));
  lossless_->setChecked(!first.quality);
  losing_ = inRow({quality_, lossless_}, this);
  form_->addRow(localizedString("Quality:"), losing_);
  connect(quality_, &QSpinBox::valueChanged, this, &ExportOptions::changed);
  connect(lossless_, &QCheckBox::toggled, this, &ExportOptions::showWhatApplies);
}

void ExportOptions::addText(const ExportChoice& first) {
  text_ = new QCheckBox(localizedString("Keep text as text, with its fonts"), this);
  text_->setObjectName(QStringLiteral("exportText"));
  text_->setChecked(first.keepText);
  form_->addRow(QString(), text_);
  connect(text_, &QCheckBox::toggled, this, &ExportOptions::changed);
}

PictureFormat ExportOptions::format() const {
  return offer_.formats.at(std::max(0, formats_->currentIndex()));
}

bool ExportOptions::mayKeepText() const {
  return offer_.drawsSvg && isSvg(format());
}

QSizeF ExportOptions::size() const {
  return area().size;
}

const ExportOffer::Area& ExportOptions::area() const {
  return offer_.areas.at(std::max(0, areas_->currentIndex()));
}

ExportChoice ExportOptions::choice() const {
  const PictureFormat chosen = format();
  const int own = rowOf(chosen).quality;
  ExportChoice choice{.format = chosen,
                      .area = area().area,
                      .dpi = dpi_->value(),
                      .color = isRaster(chosen) ? OutputColor(colors_->currentIndex()) : OutputColor::Rgb,
                      .background = filled_->isChecked() ? color_->color() : QColor(),
                      .quality = std::nullopt};
  if (choice.area == ExportArea::Pages) {
    choice.firstPage = pages_->first();
    choice.lastPage = pages_->last();
  }
  choice.keepText = isSvg(chosen) && text_->isChecked();
  if (own > 0 || (own == Lossless && !lossless_->isChecked())) choice.quality = quality_->value();
  return choice;
}

void ExportOptions::takeTyped() {
  // The others follow one another, rounded: read again they would change what was chosen.
  for (QAbstractSpinBox* field : std::initializer_list<QAbstractSpinBox*>{dpi_, wide_, high_, quality_})
    if (field->hasFocus()) field->interpretText();
  pages_->takeTyped();
}

bool ExportOptions::setFormat(PictureFormat format) {
  const qsizetype at = offer_.formats.indexOf(format);
  if (at >= 0) formats_->setCurrentIndex(int(at));
  return at >= 0;
}

void ExportOptions::showWhatApplies() {
  const bool raster = isRaster(format());
  const int own = rowOf(format()).quality;
  for (QWidget* row : {static_cast<QWidget*>(dpi_), pixels_, static_cast<QWidget*>(colors_), ground_})
    form_->setRowVisible(row, raster);
  offerColors();
  form_->setRowVisible(losing_, own != NoQuality);
  form_->setRowVisible(text_, mayKeepText());
  lossless_->setVisible(own == Lossless);
  allowPages(format() == PictureFormat::Pdf);
  form_->setRowVisible(pages_, area().area == ExportArea::Pages);
  quality_->setEnabled(own != Lossless || !lossless_->isChecked());
  showPixels();
  emit changed();
}

void ExportOptions::allowPages(bool allowed) {
  for (qsizetype i = 0; i < offer_.areas.size(); ++i) {
    if (!holdsPages(offer_.areas.at(i).area)) continue;
    if (auto* model = qobject_cast<QStandardItemModel*>(areas_->model()))
      model->item(int(i))->setEnabled(allowed);
    const QSignalBlocker quiet(areas_);
    if (!allowed && areas_->currentIndex() == i) areas_->setCurrentIndex(0);
  }
}

void ExportOptions::showPixels() {
  const double scale = dpi_->value() / kPointsPerInch;
  const QSignalBlocker wide(wide_), high(high_);
  wide_->setValue(int(std::ceil(size().width() * scale - 1e-6)));
  high_->setValue(int(std::ceil(size().height() * scale - 1e-6)));
}

void ExportOptions::takePixels(int pixels, double points) {
  if (points > 0) dpi_->setValue(pixels * kPointsPerInch / points);
}

}  // namespace norvex
