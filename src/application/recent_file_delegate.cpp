#include "application/recent_file_delegate.h"

#include <QApplication>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QUrl>

#include "base/state_folder.h"
#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

constexpr int kBadgeWidth = 40;
constexpr int kBadgeHeight = 26;

QColor badgeColor(const QString& extension) {
  if (extension.startsWith(QLatin1String("eps"))) return {0x8a, 0x4f, 0x8c};
  if (extension == QLatin1String("ai")) return {0xc8, 0x7a, 0x2c};
  if (extension == QLatin1String("pdf")) return {0xc2, 0x4b, 0x45};
  if (extension.startsWith(QLatin1String("svg"))) return {0x3f, 0x6f, 0xb5};
  return {0x70, 0x70, 0x78};
}

void drawBadge(QPainter* painter, const QRect& box, const QString& extension, const QFont& base) {
  painter->setPen(Qt::NoPen);
  painter->setBrush(badgeColor(extension));
  painter->drawRoundedRect(box, 5, 5);
  QFont font = base;
  font.setPointSizeF(base.pointSizeF() * .78);
  font.setWeight(QFont::DemiBold);
  painter->setFont(font);
  painter->setPen(Qt::white);
  painter->drawText(box, Qt::AlignCenter, extension.left(4).toUpper());
}

/// On paper, as pictures have no background of their own.
void drawPicture(QPainter* painter, const QRect& room, const QImage& picture) {
  QRectF box(QPointF(), QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio));
  box.moveCenter(QRectF(room).center());
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  painter->fillRect(box, Qt::white);
  painter->drawImage(box, picture);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QColor(0, 0, 0, 70));
  painter->drawRect(box);
}

}  // namespace

QSize RecentFileDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {kBadgeWidth * 3, qMax(kBadgeHeight, option.fontMetrics.lineSpacing() * 2) + 2 * margin};
}

void RecentFileDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  QStyleOptionViewItem item = option;
  initStyleOption(&item, index);
  const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);
  const QString path = index.data(Qt::UserRole).toUrl().toLocalFile();
  const QRect inside = item.rect.adjusted(margin, margin, -margin, -margin);
  const QRect badge(inside.left(), inside.center().y() - kBadgeHeight / 2, kBadgeWidth, kBadgeHeight);
  const auto picture = index.data(thumbnailRole).value<QImage>();
  if (picture.isNull())
    drawBadge(painter, badge, QFileInfo(path).suffix().toLower(), item.font);
  else
    drawPicture(painter, QRect(inside.left(), inside.top(), kBadgeWidth, inside.height()), picture);

  const QRect text = inside.adjusted(kBadgeWidth + margin + 2, 0, 0, 0);
  const int line = item.fontMetrics.lineSpacing();
  const bool selected = item.state.testFlag(QStyle::State_Selected);
  const QPalette::ColorRole role = selected ? QPalette::HighlightedText : QPalette::Text;
  painter->setFont(item.font);
  painter->setPen(item.palette.color(role));
  painter->drawText(text.x(), text.center().y() - item.fontMetrics.descent(),
                    item.fontMetrics.elidedText(QFileInfo(path).fileName(), Qt::ElideMiddle, text.width()));
  if (!selected) painter->setPen(quietTextColor(item.palette));
  painter->drawText(text.x(), text.center().y() - item.fontMetrics.descent() + line,
                    item.fontMetrics.elidedText(writtenFolder(QFileInfo(path).absolutePath()),
                                                Qt::ElideMiddle, text.width()));
  if (item.state.testFlag(QStyle::State_HasFocus)) {  // where nothing is selected it would not be seen
    painter->setPen(QPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight), 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(item.rect).adjusted(2, 2, -2, -2), 4, 4);
  }
  painter->restore();
}

}  // namespace norvex
