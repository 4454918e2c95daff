// How a recent file looks in a list: a picture of it or a badge with its kind, its name, and quietly its
// folder.
#pragma once

#include <QStyledItemDelegate>

namespace norvex {

/// Of a QImage that stands in the place of the badge.
inline constexpr int thumbnailRole = Qt::UserRole + 1;

/// The item's data under Qt::UserRole is the file's QUrl.
class RecentFileDelegate final : public QStyledItemDelegate {
 public:
  /// Pixels around what is in a row.
  static constexpr int margin = 8;

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace norvex
