#include "ui/check/finding_row.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "base/localized_string.h"
#include "check/mending.h"
#include "ui/check/finding_text.h"
#include "ui/check/severity_icon.h"
#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

constexpr int kIconSide = 18;
constexpr int kPage = 5, kAll = 1 << 20;  // rows

}  // namespace

FindingRow::FindingRow(const Finding& finding, QWidget* parent)
    : QAbstractButton(parent), severity_(finding.severity), icon_(new QLabel(this)) {
  // It lies in a list and has no face of its own.
  setBackgroundRole(QPalette::Window);
  setForegroundRole(QPalette::WindowText);
  const FindingText text = textOf(finding);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(14, 9, 14, 10);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(2);
  grid->setColumnStretch(1, 1);
  grid->addWidget(icon_, 0, 0, Qt::AlignTop);
  const QString severity = titleOf(finding.severity);
  const QString where = text.where.isEmpty() ? severity : severity + QStringLiteral(" · ") + text.where;
  grid->addWidget(addText(text.sentence, false), 0, 1, 1, 2);
  int row = 1;
  for (const QString& line : {where, text.figures})
    if (!line.isEmpty()) grid->addWidget(addText(line, true), row++, 1, 1, 2);
  if (!text.mend.isEmpty()) grid->addWidget(addText(text.mend, true), row, 1);
  if (mendingOf(*finding.rule) != Mending::ByHand) {
    repair_ = new QPushButton(localizedString("Repair…"), this);
    repair_->setToolTip(localizedString("Writes a mended copy of the file"));
    repair_->setAccessibleDescription(text.sentence);
    repair_->setAutoDefault(false);
    grid->addWidget(repair_, row, 2, Qt::AlignRight | Qt::AlignBottom);
  }
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  if (finding.rect || finding.line) setCursor(Qt::PointingHandCursor);
  QStringList said{severity, text.sentence, text.where, text.figures, text.mend};
  said.removeAll(QString());
  for (QString& each : said)
    if (each.endsWith(u'.')) each.chop(1);
  setAccessibleName(said.join(QStringLiteral(". ")));
  showIcon();
}

QLabel* FindingRow::addText(const QString& text, bool quiet) {
  auto* label = new QLabel(this);
  label->setTextFormat(Qt::PlainText);  // files' own words are no markup
  label->setWordWrap(true);
  label->setText(text);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  label->setMinimumWidth(1);
  if (quiet) makeQuiet(*label);
  return label;
}

void FindingRow::showIcon() {
  icon_->setAttribute(Qt::WA_TransparentForMouseEvents);
  icon_->setPixmap(severityIcon(severity_, kIconSide, devicePixelRatioF(), isDarkScheme(palette())));
}

void FindingRow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor text = palette().color(QPalette::WindowText);
  if (isDown() || underMouse()) {
    QColor ground = text;
    ground.setAlphaF(isDown() ? 0.10f : 0.05f);
    painter.fillRect(rect(), ground);
  }
  QColor rule = text;
  rule.setAlphaF(0.14f);
  painter.fillRect(QRect(14, height() - 1, width() - 28, 1), rule);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -4), 5, 5);
}

void FindingRow::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return emit moved(-1);
    case Qt::Key_Down:
      return emit moved(1);
    case Qt::Key_PageUp:
      return emit moved(-kPage);
    case Qt::Key_PageDown:
      return emit moved(kPage);
    case Qt::Key_Home:
      return emit moved(-kAll);
    case Qt::Key_End:
      return emit moved(kAll);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return click();
    default:
      QAbstractButton::keyPressEvent(event);
  }
}

void FindingRow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) showIcon();
  QAbstractButton::changeEvent(event);
}

}  // namespace norvex
