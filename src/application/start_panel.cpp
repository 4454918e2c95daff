#include "application/start_panel.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "application/application.h"
#include "application/dropped_files.h"
#include "application/recent_file_delegate.h"
#include "application/recent_files.h"
#include "base/localized_string.h"
#include "ui/panels/centred_window.h"
#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

constexpr int kUrlRole = Qt::UserRole;
constexpr int kIconEdge = 4;  ///< pixels at the icon's sides that are clear
constexpr QSize kUsual(720, 420);

/// What is around things, and around those in the field for files; pixels.
struct Gaps {
  int around;
  int inField;
};

/// A low screen has room for what is there, and for less between it.
Gaps gapsFor(const QWidget& panel) {
  return fittingScreen(panel, kUsual).height() < kUsual.height() ? Gaps{14, 6} : Gaps{28, 20};
}

QColor faded(const QColor& color, const QColor& ground, double share) {
  const auto mix = [share](float a, float b) { return float(a * share + b * (1 - share)); };
  return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                          mix(color.blueF(), ground.blueF()));
}

/// A label a step larger or quieter than the text around it.
QLabel* makeLabel(const QString& text, double scale, bool quiet, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * scale);
  if (scale > 1.2) font.setWeight(QFont::DemiBold);
  label->setFont(font);
  if (quiet) makeQuiet(*label);
  return label;
}

}  // namespace

/// A dashed field that lights up while files are dragged over the panel.
class StartPanel::DropArea final : public QWidget {
 public:
  using QWidget::QWidget;
  void setLit(bool lit) {
    lit_ = lit;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette().color(QPalette::Highlight);
    const QColor ground = palette().color(QPalette::Window);
    QPainterPath field;
    field.addRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 10, 10);
    if (lit_) painter.fillPath(field, faded(accent, ground, .14));
    const QColor line = lit_ ? accent : faded(palette().color(QPalette::WindowText), ground, .28);
    QPen pen(line, 1.5);
    pen.setDashPattern({4, 3});
    painter.setPen(pen);
    painter.drawPath(field);
  }

 private:
  bool lit_ = false;
};

StartPanel::StartPanel(RecentFiles& recent, QWidget* parent) : QWidget(parent), recent_(recent) {
  setObjectName(QStringLiteral("StartPanel"));
  setWindowTitle(QStringLiteral("Norvex"));
  setAcceptDrops(true);
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(0);
  columns->addWidget(makeWelcome(), 10);
  columns->addWidget(makeRecent(), 11);
  connect(&recent_, &RecentFiles::changed, this, &StartPanel::fillRecent);
  fillRecent();
  setMinimumSize(sizeForTexts(*this, {560, 340}));
  resize(sizeForTexts(*this, kUsual));
  open_->setFocus();
}

QWidget* StartPanel::makeWelcome() {
  auto* welcome = new QWidget(this);
  auto* column = new QVBoxLayout(welcome);
  const Gaps gaps = gapsFor(*this);
  column->setContentsMargins(gaps.around, gaps.around, gaps.around, gaps.around);
  icon_ = new QLabel(welcome);
  icon_->setAccessibleName(QStringLiteral("Norvex"));
  icon_->setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);  // which takes no margin below 0
  icon_->setContentsMargins(-kIconEdge, 0, 0, 0);
  auto* subtitle = makeLabel(localizedString("EPS, Illustrator, PDF and SVG pictures"), 1, true, welcome);
  subtitle->setWordWrap(true);

  drop_ = new DropArea(welcome);
  auto* inside = new QVBoxLayout(drop_);
  inside->setContentsMargins(gaps.inField, gaps.inField, gaps.inField, gaps.inField);
  open_ = new QPushButton(localizedString("Open…"), drop_);
  open_->setAutoDefault(true);  // pressed by Return, and framed, while it has the focus alone
  open_->setShortcut(QKeySequence::Open);
  open_->setToolTip(open_->shortcut().toString(QKeySequence::NativeText));
  open_->setAccessibleDescription(localizedString("Chooses pictures and opens each in a window of its own"));
  connect(open_, &QPushButton::clicked, this, &StartPanel::openRequested);
  auto* hint = makeLabel(localizedString("or drop pictures here"), 1, true, drop_);
  hint->setAlignment(Qt::AlignCenter);
  inside->addStretch();
  inside->addWidget(open_, 0, Qt::AlignHCenter);
  inside->addWidget(hint);
  inside->addStretch();

  column->addWidget(icon_);
  column->addSpacing(6);
  column->addWidget(makeLabel(QStringLiteral("Norvex"), 1.7, false, welcome));
  column->addWidget(subtitle);
  column->addSpacing(gaps.inField);
  column->addWidget(drop_, 1);
  return welcome;
}

QWidget* StartPanel::makeRecent() {
  auto* side = new QWidget(this);
  side->setAutoFillBackground(true);
  side->setBackgroundRole(QPalette::Base);
  side->setForegroundRole(QPalette::WindowText);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(20, gapsFor(*this).around, 20, gapsFor(*this).inField);
  auto* title = makeLabel(localizedString("Recent"), 1, true, side);
  title->setContentsMargins(RecentFileDelegate::margin, 0, 0, 0);  // over the pictures of the rows
  list_ = new QListWidget(side);
  list_->setFrameShape(QFrame::NoFrame);
  list_->setItemDelegate(new RecentFileDelegate(list_));
  list_->setMouseTracking(true);
  list_->setAccessibleName(localizedString("Recent files"));
  list_->setUniformItemSizes(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  title->setBuddy(list_);
  connect(list_, &QListWidget::itemActivated, this, &StartPanel::choose);
  connect(list_, &QListWidget::itemClicked, this, &StartPanel::choose);
  connect(list_, &QWidget::customContextMenuRequested, this, &StartPanel::showRecentMenu);
  auto* none = makeLabel(localizedString("Pictures that you open are listed here."), 1, true, side);
  none->setAlignment(Qt::AlignCenter);
  none->setWordWrap(true);
  empty_ = none;
  auto* pages = new QWidget(side);
  pages_ = new QStackedLayout(pages);
  pages_->addWidget(list_);
  pages_->addWidget(empty_);
  column->addWidget(title);
  column->addWidget(pages, 1);
  return side;
}

void StartPanel::fillRecent() {
  list_->clear();
  for (const QUrl& url : recent_.urls()) {
    const QFileInfo info(url.toLocalFile());
    auto* item = new QListWidgetItem(info.fileName(), list_);
    item->setData(kUrlRole, url);
    if (thumbnails_.contains(url)) item->setData(thumbnailRole, thumbnails_.value(url));
    item->setToolTip(info.absoluteFilePath());
    item->setData(Qt::AccessibleDescriptionRole, info.absolutePath());
  }
  pages_->setCurrentWidget(list_->count() > 0 ? static_cast<QWidget*>(list_) : empty_);
  emit recentDidChange();
}

QList<QUrl> StartPanel::recentWithoutThumbnail() const {
  QList<QUrl> without;
  for (const QUrl& url : recent_.urls())
    if (!thumbnails_.contains(url)) without << url;
  return without;
}

void StartPanel::setThumbnail(const QUrl& url, const QImage& image) {
  thumbnails_.insert(url, image);
  for (int row = 0; row < list_->count(); ++row)
    if (list_->item(row)->data(kUrlRole).toUrl() == url) list_->item(row)->setData(thumbnailRole, image);
}

void StartPanel::choose(const QListWidgetItem* item) {
  emit filesChosen({item->data(kUrlRole).toUrl()});
}

void StartPanel::showRecentMenu(const QPoint& point) {
  QMenu menu;
  if (const QListWidgetItem* item = list_->itemAt(point)) {
    const QUrl url = item->data(kUrlRole).toUrl();
    menu.addAction(localizedString("Remove from the list"), this, [this, url] { recent_.remove(url); });
  }
  menu.addAction(localizedString("Clear the list"), &recent_, &RecentFiles::clear);
  menu.exec(list_->viewport()->mapToGlobal(point));
}

void StartPanel::showEvent(QShowEvent* event) {
  if (icon_->pixmap().isNull()) {
    showApplicationIcon();
    icon_->setPixmap(windowIcon().pixmap(QSize(72, 72), devicePixelRatioF()));
  }
  QWidget::showEvent(event);
}

void StartPanel::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  emit dismissed();
}

void StartPanel::dragEnterEvent(QDragEnterEvent* event) {
  if (filesIn(event->mimeData()).isEmpty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  drop_->setLit(true);
}

void StartPanel::dragLeaveEvent(QDragLeaveEvent*) {
  drop_->setLit(false);
}

void StartPanel::dropEvent(QDropEvent* event) {
  drop_->setLit(false);
  const QList<QUrl> files = filesIn(event->mimeData());
  if (files.isEmpty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  emit filesChosen(files);
}

}  // namespace norvex
