#include "ui/inks/inks_page.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <numeric>

#include "base/localized_string.h"
#include "picture/inks/ink_colours.h"
#include "ui/inks/separation_view.h"
#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

constexpr int kMargin = 16, kSpacing = 8, kSwatch = 14;
/// What is usual for coated paper.
constexpr int kUsualLimit = 300, kLargestLimit = 6000;
enum Column { Name, Coverage, Here };
constexpr int kInkRole = Qt::UserRole;  // the name that the page gives it

QIcon swatch(const QColor& colour, const QPalette& palette) {
  QPixmap pixmap(kSwatch * 2, kSwatch * 2);
  pixmap.setDevicePixelRatio(2);
  pixmap.fill(colour);
  QPainter painter(&pixmap);
  painter.setPen(palette.color(QPalette::Mid));
  painter.drawRect(QRectF(0.25, 0.25, kSwatch - 0.5, kSwatch - 0.5));
  return QIcon(pixmap);
}

QString percent(double value, int decimals) {
  return localizedString("%1 %").arg(QLocale().toString(value, 'f', decimals));
}

/// The process inks have names of ours; a spot ink has the document's, and be it "Black".
QString titleOf(const Ink& ink) {
  if (!ink.isSpot) {
    if (ink.name == u"Cyan") return localizedString("Cyan");
    if (ink.name == u"Magenta") return localizedString("Magenta");
    if (ink.name == u"Yellow") return localizedString("Yellow");
    if (ink.name == u"Black") return localizedString("Black");
  }
  return ink.name.simplified();
}

}  // namespace

InksPage::InksPage(QWidget* parent)
    : QWidget(parent),
      scroll_(new QScrollArea(this)),
      contents_(new QWidget(scroll_)),
      sentence_(new QLabel(this)),
      view_(new SeparationView(contents_)),
      list_(new QTreeWidget(contents_)),
      total_(new QLabel(contents_)),
      only_(new QPushButton(localizedString("Only This Ink"), contents_)),
      all_(new QPushButton(localizedString("All Inks"), contents_)),
      plates_(new QCheckBox(localizedString("Inks as grey plates"), contents_)),
      overprint_(new QCheckBox(localizedString("Simulate overprinting"), contents_)),
      inPicture_(new QCheckBox(localizedString("Show the inks in the picture"), contents_)),
      heat_(new QCheckBox(localizedString("Mark ink above"), contents_)),
      limit_(new QSpinBox(contents_)) {
  setObjectName(QStringLiteral("inksPage"));
  view_->setAccessibleName(localizedString("The page as its inks print it"));
  makeList();
  makeQuiet(*total_);
  makeQuiet(*sentence_);
  sentence_->setWordWrap(true);
  sentence_->setTextFormat(Qt::PlainText);
  sentence_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  sentence_->setMargin(kMargin);
  sentence_->hide();
  auto* column = new QVBoxLayout(contents_);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kSpacing);
  column->addWidget(view_);
  column->addWidget(total_);
  column->addWidget(list_, 1);
  column->addLayout(makeButtons());
  column->addWidget(inPicture_);
  column->addWidget(plates_);
  column->addWidget(overprint_);
  column->addLayout(makeOptions());
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidget(contents_);
  scroll_->viewport()->setAutoFillBackground(false);
  contents_->setAutoFillBackground(false);  // it is the page that has a colour
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->addWidget(sentence_);
  all->addWidget(scroll_);
  connect(view_, &SeparationView::pointed, this, &InksPage::pointed);
  connect(plates_, &QCheckBox::toggled, this, &InksPage::choose);
  connect(overprint_, &QCheckBox::toggled, this, &InksPage::overprintChanged);
  connect(inPicture_, &QCheckBox::toggled, this, &InksPage::inPictureChanged);
}

void InksPage::makeList() {
  list_->setHeaderLabels({localizedString("Ink"), localizedString("Coverage"), localizedString("Here")});
  list_->setAccessibleName(localizedString("Inks"));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setIconSize({kSwatch, kSwatch});
  list_->setMinimumHeight(6 * fontMetrics().height());
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(Name, QHeaderView::Stretch);
  for (const Column column : {Coverage, Here}) {
    list_->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    list_->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
  }
  connect(list_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem*, int column) {
    if (column == Name) choose();
  });
  connect(list_, &QTreeWidget::itemDoubleClicked, this, &InksPage::showOnlyCurrent);
}

QBoxLayout* InksPage::makeButtons() {
  auto* row = new QHBoxLayout;
  row->addWidget(only_);
  row->addWidget(all_);
  row->addStretch();
  connect(only_, &QPushButton::clicked, this, &InksPage::showOnlyCurrent);
  connect(all_, &QPushButton::clicked, this, &InksPage::showAll);
  return row;
}

QBoxLayout* InksPage::makeOptions() {
  limit_->setRange(1, kLargestLimit);
  limit_->setSingleStep(10);
  limit_->setValue(kUsualLimit);
  limit_->setSuffix(QStringLiteral(" %"));
  limit_->setAccessibleName(localizedString("Limit of all inks together"));
  auto* row = new QHBoxLayout;
  row->addWidget(heat_);
  row->addWidget(limit_);
  row->addStretch();
  connect(heat_, &QCheckBox::toggled, this, &InksPage::choose);
  connect(limit_, &QSpinBox::valueChanged, this, [this] {
    if (heat_->isChecked()) choose();
  });
  return row;
}

void InksPage::showInks(const PageInks& page, double most) {
  filling_ = true;
  QSet<QString> off;
  for (int i = 0; i < list_->topLevelItemCount(); ++i)
    if (list_->topLevelItem(i)->checkState(Name) == Qt::Unchecked)
      off << list_->topLevelItem(i)->data(Name, kInkRole).toString();
  list_->clear();
  for (qsizetype i = 0; i < page.inks.size(); ++i) {
    const Ink& ink = page.inks.at(i);
    auto* item = new QTreeWidgetItem(list_, {titleOf(ink), percent(100 * ink.coverage, 1)});
    item->setData(Name, kInkRole, ink.name);
    item->setIcon(Name, swatch(QColor(rgbOf(ownColour(page, i))), palette()));
    item->setCheckState(Name, off.contains(ink.name) ? Qt::Unchecked : Qt::Checked);
    for (const Column column : {Coverage, Here})
      item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
  }
  list_->setCurrentItem(list_->topLevelItem(0));
  filling_ = false;
  most_ = localizedString("Most ink in one place: %1").arg(percent(most, 0));
  showTotal(most_);
  setSeparated(true);
  sentence_->hide();
  scroll_->show();
}

void InksPage::showImage(const QImage& image) {
  view_->setImage(image);
}

void InksPage::tell(const QString& sentence) {
  sentence_->setText(sentence);
  sentence_->show();
  scroll_->hide();
}

void InksPage::showSeparating(const QString& sentence) {
  if (scroll_->isHidden() || list_->topLevelItemCount() == 0) return tell(sentence);
  setSeparated(false);
  showTotal(sentence);
}

void InksPage::setSeparated(bool separated) {
  // The switch that has it separated anew keeps the keyboard, and may be switched back.
  QWidget* const shown[] = {view_, list_, only_, all_, plates_, heat_, limit_};
  for (QWidget* each : shown) each->setEnabled(separated);
}

void InksPage::showAmounts(const QList<double>& amounts) {
  filling_ = true;
  for (int i = 0; i < list_->topLevelItemCount(); ++i)
    list_->topLevelItem(i)->setText(Here, i < amounts.size() ? percent(amounts.at(i), 0) : QString());
  filling_ = false;
  const double total = std::accumulate(amounts.begin(), amounts.end(), 0.0);
  showTotal(amounts.isEmpty() ? most_
                              : localizedString("All inks under the pointer: %1").arg(percent(total, 0)));
}

void InksPage::showTotal(const QString& text) {
  total_->setText(text);
}

InkChoice InksPage::choice() const {
  InkChoice choice;
  for (int i = 0; i < list_->topLevelItemCount(); ++i)
    choice.shown << (list_->topLevelItem(i)->checkState(Name) == Qt::Checked);
  choice.isPlate = plates_->isChecked();
  choice.limit = heat_->isChecked() ? limit_->value() : 0;
  return choice;
}

bool InksPage::simulatesOverprint() const {
  return overprint_->isChecked();
}

bool InksPage::isInPicture() const {
  return inPicture_->isChecked();
}

void InksPage::choose() {
  if (!filling_) emit choiceChanged();
}

void InksPage::showOnlyCurrent() {
  if (list_->currentItem() == nullptr) return;
  filling_ = true;
  for (int i = 0; i < list_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = list_->topLevelItem(i);
    item->setCheckState(Name, item == list_->currentItem() ? Qt::Checked : Qt::Unchecked);
  }
  filling_ = false;
  choose();
}

void InksPage::showAll() {
  filling_ = true;
  for (int i = 0; i < list_->topLevelItemCount(); ++i)
    list_->topLevelItem(i)->setCheckState(Name, Qt::Checked);
  filling_ = false;
  choose();
}

}  // namespace norvex
