#include "ui/picture/clip_cards.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>

namespace norvex {
namespace {

constexpr int kMargin = 12;
constexpr int kWidest = 640;

}  // namespace

void ClipCards::add(QWidget* card, Qt::Edge edge) {
  card->setParent(&clip_);
  card->installEventFilter(this);
  cards_.append({card, edge, edge == Qt::TopEdge});
  place();
}

void ClipCards::keepOff(const QWidget& card, const QRect& place) {
  const auto found =
      std::find_if(cards_.begin(), cards_.end(), [&](const Card& one) { return one.widget == &card; });
  const QRect taken(clip_.mapFromGlobal(place.topLeft()), place.size());
  if (found == cards_.end() || !card.geometry().intersects(taken)) return;
  const Qt::Edge before = found->edge;
  found->edge = before == Qt::TopEdge ? Qt::BottomEdge : Qt::TopEdge;
  this->place();
  if (!card.geometry().intersects(taken)) return;
  found->edge = before;
  this->place();
}

void ClipCards::place() {
  int top = kMargin, bottom = clip_.height() - kMargin;
  for (const Card& card : cards_) {
    if (!card.widget || card.widget->isHidden()) continue;
    const int room = std::min(clip_.width() - 2 * kMargin, kWidest);
    const bool atTop = card.edge == Qt::TopEdge;
    const int width = card.isWide ? room : std::min(room, card.widget->sizeHint().width());
    const int height = card.widget->hasHeightForWidth() ? card.widget->heightForWidth(width)
                                                        : card.widget->sizeHint().height();
    const int y = atTop ? top : bottom - height;
    card.widget->setGeometry((clip_.width() - width) / 2, y, width, height);
    card.widget->raise();
    if (atTop)
      top += height + kMargin;
    else
      bottom -= height + kMargin;
  }
}

bool ClipCards::eventFilter(QObject* watched, QEvent* event) {
  // Else Qt gives it to what is next, a field of the window's foot, where keys would mean something else.
  auto* card = qobject_cast<QWidget*>(watched);
  if (event->type() == QEvent::Hide && card && card->isHidden() &&
      card->isAncestorOf(QApplication::focusWidget()))
    keyboard_.setFocus(Qt::OtherFocusReason);
  if (event->type() == QEvent::Show || event->type() == QEvent::Hide ||
      event->type() == QEvent::LayoutRequest)  // it wants another height
    place();
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
