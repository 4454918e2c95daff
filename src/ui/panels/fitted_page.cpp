#include "ui/panels/fitted_page.h"

#include <QList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>

#include <algorithm>
#include <utility>

namespace norvex {
namespace {

constexpr int kMeantWidth = QTextFormat::UserProperty;

}  // namespace

void FittedPage::fitPictures() {
  const double room = viewport()->width() - 2 * document()->documentMargin();
  QList<QTextFragment> pictures;  // looked for first: a new format may join neighbours
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    for (auto part = block.begin(); !part.atEnd(); ++part)
      if (part.fragment().charFormat().isImageFormat()) pictures << part.fragment();
  for (const QTextFragment& picture : std::as_const(pictures)) fit(picture, room);
}

void FittedPage::fit(const QTextFragment& picture, double room) {
  QTextImageFormat format = picture.charFormat().toImageFormat();
  if (!format.hasProperty(kMeantWidth)) format.setProperty(kMeantWidth, format.width());
  const double width = std::min(format.doubleProperty(kMeantWidth), room);
  if (width <= 0 || width == format.width()) return;
  format.setWidth(width);
  QTextCursor cursor(document());
  cursor.setPosition(picture.position());
  cursor.setPosition(picture.position() + picture.length(), QTextCursor::KeepAnchor);
  cursor.setCharFormat(format);
}

void FittedPage::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  fitPictures();
}

}  // namespace norvex
