#include "ui/pages/page_strip.h"

#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cstdlib>

#include "base/localized_string.h"

namespace norvex {
namespace {

constexpr int kRoom = 20;  // logical pixels below a thumbnail, for its number
constexpr int kHeight = PageStrip::side + kRoom + 8;

/// On paper of its own, as pages have no background.
QPixmap onPaper(const QImage& image, double ratio) {
  QPixmap made((QSizeF(PageStrip::side, PageStrip::side) * ratio).toSize());
  made.setDevicePixelRatio(ratio);
  made.fill(Qt::transparent);
  QPainter painter(&made);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QRectF room(0.5, 0.5, PageStrip::side - 1, PageStrip::side - 1);
  QRectF page(QPointF(), QSizeF(image.size()).scaled(room.size(), Qt::KeepAspectRatio));
  page.moveCenter(room.center());
  painter.fillRect(page, Qt::white);
  painter.drawImage(page, image);
  painter.setPen(QColor(0, 0, 0, 70));
  painter.drawRect(page);
  return made;
}

/// A thumbnail stands in the middle of what it takes, and takes its whole cell.
class WholeCell final : public QStyledItemDelegate {
 public:
  explicit WholeCell(PageStrip* strip) : QStyledItemDelegate(strip), strip_(*strip) {}
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return strip_.gridSize();
  }

 private:
  const PageStrip& strip_;
};

}  // namespace

PageStrip::PageStrip(QWidget* parent) : QListWidget(parent), blank_(side, side) {
  blank_.fill(Qt::transparent);
  setObjectName(QStringLiteral("pageStrip"));
  setAccessibleName(localizedString("Pages"));
  setViewMode(QListView::IconMode);
  setFlow(QListView::TopToBottom);
  setWrapping(false);
  setMovement(QListView::Static);
  setResizeMode(QListView::Adjust);
  setUniformItemSizes(true);
  setIconSize({side, side});
  setGridSize({side + 16, kHeight});
  setItemDelegate(new WholeCell(this));
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setMinimumWidth(side + 36);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) emit pageChosen(row);
  });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
    forgetFar();
    emit scrolled();
  });
}

void PageStrip::setCount(int count) {
  const QSignalBlocker quiet(this);
  clear();
  made_.fill(false, count);
  for (int page = 0; page < count; ++page) {
    auto* item = new QListWidgetItem(QIcon(blank_), QString::number(page + 1), this);
    item->setTextAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    item->setData(Qt::AccessibleTextRole, localizedString("Page %1").arg(page + 1));
  }
}

void PageStrip::setShownPage(int page) {
  const QSignalBlocker quiet(this);
  setCurrentRow(page);
  if (QListWidgetItem* shown = item(page)) scrollToItem(shown);
}

void PageStrip::setThumbnail(int page, const QImage& image) {
  if (page < 0 || page >= made_.size()) return;
  made_[page] = true;
  if (!image.isNull()) item(page)->setIcon(QIcon(onPaper(image, devicePixelRatioF())));
  forgetFar();  // it may have been scrolled away while it was made
}

int PageStrip::middle() const {
  return (verticalScrollBar()->value() + viewport()->height() / 2) / gridSize().height();
}

int PageStrip::nextWanted() const {
  const int seen = middle();
  int best = -1, distance = near + 1;
  for (int page = std::max(0, seen - near); page < std::min(int(made_.size()), seen + near + 1); ++page) {
    if (made_.at(page) || std::abs(page - seen) >= distance) continue;
    best = page;
    distance = std::abs(page - seen);
  }
  return best;
}

/// Twice as far as what is wanted, so that going to and fro makes nothing anew.
void PageStrip::forgetFar() {
  const int seen = middle();
  for (int page = 0; page < made_.size(); ++page) {
    if (!made_.at(page) || std::abs(page - seen) <= 2 * near) continue;
    made_[page] = false;
    item(page)->setIcon(QIcon(blank_));
  }
}

void PageStrip::showEvent(QShowEvent* event) {
  QListWidget::showEvent(event);
  emit scrolled();
}

QSize PageStrip::sizeHint() const {
  return {minimumWidth(), QListWidget::sizeHint().height()};
}

void PageStrip::resizeEvent(QResizeEvent* event) {
  // Thumbnails stand in the middle, however wide the strip is drawn.
  setGridSize({viewport()->width(), kHeight});
  QListWidget::resizeEvent(event);
  emit scrolled();
}

}  // namespace norvex
