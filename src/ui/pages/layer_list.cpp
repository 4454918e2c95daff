#include "ui/pages/layer_list.h"

#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>

#include "base/localized_string.h"

namespace norvex {
namespace {

constexpr int kAround = 6;  ///< logical pixels around a row's words

/// A switch is pressed with ease, and the next one is not.
class RoomyRow final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& row) const override {
    return QStyledItemDelegate::sizeHint(option, row).grownBy(QMargins(0, kAround, 0, kAround));
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& row) const override {
    QStyledItemDelegate::initStyleOption(option, row);
    option->rect.adjust(kAround, 0, -kAround, 0);
  }
};

}  // namespace

LayerList::LayerList(QWidget* parent) : QListWidget(parent) {
  setObjectName(QStringLiteral("layerList"));
  setAccessibleName(localizedString("Layers"));
  setFrameShape(QFrame::NoFrame);
  setUniformItemSizes(true);
  setItemDelegate(new RoomyRow(this));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideMiddle);
  connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) { take(*item); });
}

void LayerList::setLayers(const QList<PictureLayer>& layers) {
  const QSignalBlocker quiet(this);
  layers_ = layers;
  while (count() > layers.size()) delete takeItem(count() - 1);
  while (count() < layers.size()) addItem(new QListWidgetItem);
  for (int i = 0; i < count(); ++i) {
    const PictureLayer& layer = layers.at(i);
    const QString name = layer.name.isEmpty() ? localizedString("Layer %1").arg(i + 1) : layer.name;
    item(i)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item(i)->setText(name);
    item(i)->setToolTip(name.toHtmlEscaped());  // a name that looks like markup is a name
    item(i)->setCheckState(layer.shown ? Qt::Checked : Qt::Unchecked);
  }
}

QSize LayerList::sizeHint() const {
  // Names may be long; the picture is what the window is for. A letter of some scripts is twice as wide as
  // one of others: the bounds follow the font's size.
  const int least = 9 * fontMetrics().height();
  const int names = sizeHintForColumn(0) + 4 * kAround;
  return {std::clamp(names, least, least * 3 / 2), QListWidget::sizeHint().height()};
}

void LayerList::take(const QListWidgetItem& item) {
  const int number = row(&item);
  const bool shown = item.checkState() == Qt::Checked;
  if (layers_[number].shown == shown) return;
  layers_[number].shown = shown;
  emit layersChosen(layers_);
}

}  // namespace norvex
