// How a recent file looks in a list: a badge with its kind, its name, and quietly its folder.
#pragma once

#include <QStyledItemDelegate>

namespace norvex {

/// The item's data under Qt::UserRole is the file's QUrl.
class RecentFileDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace norvex
