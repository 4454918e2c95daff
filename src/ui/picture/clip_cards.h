// Cards that lie over the clip of a scroll area.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace norvex {

/// Centred at the clip's top or bottom edge, one below (above) the other in the order in which they came, as
/// long as they are shown. Main thread.
class ClipCards final : public QObject {
  Q_OBJECT
 public:
  /// `keyboard` takes the focus of a card that goes. Both are borrowed.
  ClipCards(QWidget& clip, QWidget& keyboard) : clip_(clip), keyboard_(keyboard) {}

  /// The card becomes a child of the clip.
  void add(QWidget* card, Qt::Edge edge);
  /// Moves the card to the other edge where it lies over `place` (of the screen) and would not there.
  void keepOff(const QWidget& card, const QRect& place);
  /// Once the clip has another size.
  void place();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Card {
    QPointer<QWidget> widget;
    Qt::Edge edge;
    bool isWide;  ///< as the clip is, not as itself wants
  };

  QWidget& clip_;
  QWidget& keyboard_;
  QList<Card> cards_;
};

}  // namespace norvex
