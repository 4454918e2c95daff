#include "ui/check/check_page.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "base/localized_string.h"
#include "check/mending.h"
#include "check/profile.h"
#include "ui/check/finding_row.h"
#include "ui/check/finding_text.h"
#include "ui/check/severity_icon.h"
#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

constexpr int kMargin = 14, kSignSide = 44, kProgressHeight = 4;  // logical pixels

/// In the list of profiles, beside names and paths.
const QString kFromFile = QStringLiteral("?");

struct ShippedTitle {
  const char* name;
  const char* title;
};

constexpr ShippedTitle kShipped[] = {{"print", "For Print"},
                                     {"journal", "For a Journal"},
                                     {"web", "For the Web"},
                                     {"archive", "For an Archive"}};

QString titleOfProfile(const QString& nameOrFile) {
  if (nameOrFile.isEmpty()) return localizedString("For Any Use");
  for (const ShippedTitle& each : kShipped)
    if (nameOrFile == QLatin1String(each.name)) return localizedString(each.title);
  return QFileInfo(nameOrFile).completeBaseName();
}

QLabel* plainLabel(QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

bool isMendable(const Finding& finding) {
  return mendingOf(*finding.rule) != Mending::ByHand;
}

}  // namespace

CheckPage::CheckPage(QWidget* parent) : QWidget(parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(makeHead());
  column->addWidget(makeBody(), 1);
  column->addWidget(makeFoot());
  fillProfiles();
  setChecking(false);
}

QWidget* CheckPage::makeHead() {
  auto* head = new QWidget(this);
  auto* column = new QVBoxLayout(head);
  column->setContentsMargins(kMargin, kMargin, kMargin, 8);
  column->setSpacing(8);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  profiles_ = new QComboBox(head);
  profiles_->setObjectName(QStringLiteral("checkProfile"));
  profiles_->setAccessibleName(localizedString("What the picture is for"));
  profiles_->setToolTip(localizedString("What the picture is for"));
  profiles_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  profiles_->setMinimumContentsLength(10);
  connect(profiles_, &QComboBox::activated, this, &CheckPage::choose);
  again_ = new QPushButton(head);
  again_->setObjectName(QStringLiteral("checkAgain"));
  again_->setText(localizedString("Check Again"));
  again_->setMinimumWidth(again_->sizeHint().width());  // it says Stop for a while
  connect(again_, &QPushButton::clicked, this,
          [this] { checking_ ? emit stopWanted() : emit checkWanted(); });
  row->addWidget(profiles_, 1);
  row->addWidget(again_);
  counts_ = plainLabel(head);
  counts_->setObjectName(QStringLiteral("checkCounts"));
  incomplete_ = plainLabel(head);
  incomplete_->setObjectName(QStringLiteral("checkIncomplete"));
  makeQuiet(*incomplete_);
  progress_ = new QProgressBar(head);
  progress_->setRange(0, 0);
  progress_->setTextVisible(false);
  progress_->setFixedHeight(kProgressHeight);
  progress_->setAccessibleName(localizedString("Checking…"));
  column->addLayout(row);
  column->addWidget(counts_);
  column->addWidget(incomplete_);
  column->addWidget(progress_);
  return head;
}

QWidget* CheckPage::makeBody() {
  body_ = new QStackedWidget(this);
  scroll_ = new QScrollArea(body_);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->setFocusPolicy(Qt::NoFocus);  // its rows have it
  auto* rows = new QWidget(scroll_);
  rows->setAccessibleName(localizedString("Findings"));
  list_ = new QVBoxLayout(rows);
  list_->setContentsMargins(0, 0, 0, 0);
  list_->setSpacing(0);
  list_->addStretch(1);
  scroll_->setWidget(rows);
  auto* quiet = new QWidget(body_);
  auto* column = new QVBoxLayout(quiet);
  column->setContentsMargins(28, 28, 28, 28);
  column->setSpacing(14);
  sign_ = new QLabel(quiet);
  sign_->setObjectName(QStringLiteral("checkSign"));
  sign_->setAlignment(Qt::AlignCenter);
  sentence_ = plainLabel(quiet);
  sentence_->setObjectName(QStringLiteral("checkSentence"));
  sentence_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  column->addStretch(2);
  column->addWidget(sign_);
  column->addWidget(sentence_);
  column->addStretch(3);
  body_->addWidget(scroll_);
  body_->addWidget(quiet);
  return body_;
}

QWidget* CheckPage::makeFoot() {
  foot_ = new QWidget(this);
  auto* row = new QHBoxLayout(foot_);
  row->setContentsMargins(kMargin, 8, kMargin, kMargin);
  repairAll_ = new QPushButton(localizedString("Repair All…"), foot_);
  repairAll_->setObjectName(QStringLiteral("repairAll"));
  repairAll_->setToolTip(localizedString("Writes a mended copy of the file"));
  connect(repairAll_, &QPushButton::clicked, this, &CheckPage::repairAllWanted);
  row->addStretch(1);
  row->addWidget(repairAll_);
  return foot_;
}

void CheckPage::fillProfiles() {
  profiles_->clear();
  profiles_->addItem(titleOfProfile({}), QString());
  for (const ShippedTitle& each : kShipped)
    profiles_->addItem(localizedString(each.title), QString::fromLatin1(each.name));
  if (profiles_->findData(profile_) < 0) {
    profiles_->addItem(titleOfProfile(profile_), profile_);
    profiles_->setItemData(profiles_->count() - 1, profile_, Qt::ToolTipRole);
  }
  profiles_->insertSeparator(profiles_->count());
  profiles_->addItem(localizedString("From a File…"), kFromFile);
  profiles_->setCurrentIndex(profiles_->findData(profile_));
}

void CheckPage::setProfile(const QString& nameOrFile) {
  profile_ = nameOrFile;
  fillProfiles();
}

void CheckPage::choose(int item) {
  const QString chosen = profiles_->itemData(item).toString();
  if (chosen == kFromFile) {
    profiles_->setCurrentIndex(profiles_->findData(profile_));  // until there is a file
    return emit profileFileWanted();
  }
  if (chosen == profile_) return;
  profile_ = chosen;
  emit profileChosen();
}

void CheckPage::setChecking(bool checking) {
  checking_ = checking;
  progress_->setVisible(checking);
  again_->setText(checking ? localizedString("Stop") : localizedString("Check Again"));
}

void CheckPage::clearRows() {
  // Where the keyboard was it shall not be lost with its row.
  if (scroll_->isAncestorOf(QApplication::focusWidget())) again_->setFocus(Qt::OtherFocusReason);
  while (list_->count() > 1) {
    QLayoutItem* item = list_->takeAt(0);
    if (item->widget()) item->widget()->deleteLater();
    delete item;
  }
  rows_.clear();
  foot_->hide();
}

void CheckPage::showChecking() {
  setChecking(true);
  clearRows();
  incomplete_->hide();
  counts_->setText(localizedString("Checking…"));
  counts_->show();
  sign_->clear();
  sentence_->clear();
  body_->setCurrentIndex(1);
}

void CheckPage::showFindings(const Findings& findings, const QString& incomplete) {
  setChecking(false);
  clearRows();
  incomplete_->setText(incomplete);
  incomplete_->setVisible(!incomplete.isEmpty());
  if (findings.isEmpty() && incomplete.isEmpty())
    return showSentence(localizedString("Nothing was found."), true);
  if (findings.isEmpty()) {
    incomplete_->hide();
    return showSentence(incomplete, false);
  }
  counts_->setText(countsOf(findings));
  counts_->show();
  const qsizetype shown = std::min<qsizetype>(findings.size(), mostRows);
  for (qsizetype i = 0; i < shown; ++i) addRow(findings.at(i));
  if (shown < findings.size()) {
    QLabel* more = plainLabel(scroll_->widget());
    more->setText(localizedString("%1 more are not shown.").arg(findings.size() - shown));
    more->setContentsMargins(kMargin, 9, kMargin, 9);
    list_->insertWidget(list_->count() - 1, more);
  }
  orderRows();
  body_->setCurrentIndex(0);
  foot_->setVisible(std::any_of(findings.cbegin(), findings.cend(), isMendable));
  tell(counts_->text());
}

void CheckPage::addRow(const Finding& finding) {
  auto* row = new FindingRow(finding, scroll_->widget());
  connect(row, &QAbstractButton::clicked, this, [this, finding] { emit findingChosen(finding); });
  connect(row, &FindingRow::moved, this, [this, row](int by) { moveFrom(row, by); });
  if (QPushButton* repair = row->repairButton())
    connect(repair, &QPushButton::clicked, this, [this, finding] { emit repairWanted(finding); });
  list_->insertWidget(list_->count() - 1, row);
  rows_ << row;
}

void CheckPage::orderRows() {
  // Between the button above them and the one below.
  QWidget* before = again_;
  const auto follow = [&before](QWidget* next) {
    if (!next) return;
    QWidget::setTabOrder(before, next);
    before = next;
  };
  for (FindingRow* row : rows_) {
    follow(row);
    follow(row->repairButton());
  }
  follow(repairAll_);
}

void CheckPage::moveFrom(FindingRow* row, int by) {
  const qsizetype at = std::clamp<qsizetype>(rows_.indexOf(row) + by, 0, rows_.size() - 1);
  rows_.at(at)->setFocus(Qt::OtherFocusReason);
  scroll_->ensureWidgetVisible(rows_.at(at), 0, 0);
}

void CheckPage::showProblem(const QString& sentence) {
  setChecking(false);
  clearRows();
  incomplete_->hide();
  showSentence(sentence, false);
}

void CheckPage::showSentence(const QString& sentence, bool sound) {
  counts_->hide();
  isSound_ = sound;
  sentence_->setText(sentence);
  showSign();
  body_->setCurrentIndex(1);
  tell(sentence);
}

void CheckPage::showSign() {
  const bool dark = isDarkScheme(palette());
  if (sentence_->text().isEmpty()) return sign_->clear();
  sign_->setPixmap(isSound_ ? soundIcon(kSignSide, devicePixelRatioF(), dark)
                            : severityIcon(Severity::Warning, kSignSide, devicePixelRatioF(), dark));
}

void CheckPage::tell(const QString& sentence) {
  setAccessibleDescription(sentence);
  if (!isVisible()) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void CheckPage::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange && sign_) showSign();
  QWidget::changeEvent(event);
}

}  // namespace norvex
