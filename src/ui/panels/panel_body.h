// What a panel holds above its row of buttons.
#pragma once

#include <QScrollArea>

class QBoxLayout;
class QDialog;

namespace norvex {

/// The choices of a panel. Its panel is as large as they are, as if they stood in it themselves; where the
/// screen has no room for them they are scrolled, and what stands above and below them stays. Whatever gets
/// the keyboard is scrolled to, and a wheel that scrolls changes no number on its way. Page Up, Page Down,
/// Home and End scroll where nothing else takes them. Stands in the layout of the panel itself, which stays
/// on the screen when it grows with them. Main thread.
class PanelBody final : public QScrollArea {
  Q_OBJECT
 public:
  /// `contents` is taken over.
  explicit PanelBody(QWidget* contents, QWidget* parent = nullptr);
  ~PanelBody() override;

  /// A row of parts, which stand one below another where the screen is too narrow for the row: the last one
  /// first, with `isReversed`. Borrowed, of the contents; call it when they are complete.
  void stackWhereNarrow(QBoxLayout& row, bool isReversed = false);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] bool hasHeightForWidth() const override;
  [[nodiscard]] int heightForWidth(int width) const override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// What the screen leaves to it.
  [[nodiscard]] QSize room() const;
  /// `wanted`, or as much of it as there is room for, with a scroll bar then.
  [[nodiscard]] QSize bounded(const QSize& wanted) const;
  [[nodiscard]] bool isScrolled() const;
  /// True if the key scrolls.
  bool scrollBy(int key);
  void showFocus(QWidget* focus);
  void keepPanelOnScreen();
};

/// Fills a panel that is empty: the contents, and the row of buttons below them. All three get margins as a
/// panel has them. Both are taken over.
PanelBody* fillPanel(QDialog& panel, QWidget* contents, QWidget* buttons);

}  // namespace norvex
