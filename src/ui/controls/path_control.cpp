#include "ui/controls/path_control.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>

#include "base/localized_string.h"
#include "ui/style/quiet_text.h"

namespace norvex {

namespace {

const QString kSeparator = QStringLiteral("  \u203A  ");
const QString kLeftOut = QStringLiteral("\u2026");
constexpr int kLeastName = 48;  // logical pixels; less of a longer name would say nothing

}  // namespace

PathControl::PathControl(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PathControl::setUrl(const QUrl& url) {
  url_ = url;
  setAccessibleDescription(url.isLocalFile() ? url.toLocalFile() : url.toDisplayString());
  update();
}

QSize PathControl::sizeHint() const {
  return {240, fontMetrics().height() + 6};
}

QSize PathControl::minimumSizeHint() const {
  return {0, fontMetrics().height() +
                 6};  // the title has the name, and the figures beside it have no other place
}

QStringList PathControl::partsFitting(int width) const {
  const QFontMetrics metrics = fontMetrics();
  QStringList names = url_.path().split(QChar('/'), Qt::SkipEmptyParts);
  if (names.isEmpty()) return {};
  const int separator = metrics.horizontalAdvance(kSeparator);
  QStringList parts{names.takeLast()};
  int used = metrics.horizontalAdvance(parts.first());
  const int mark = metrics.horizontalAdvance(kLeftOut) + separator;
  while (!names.isEmpty()) {
    const int next = metrics.horizontalAdvance(names.last()) + separator;
    if (used + next + (names.size() > 1 ? mark : 0) > width) break;
    used += next;
    parts.prepend(names.takeLast());
  }
  if (!names.isEmpty() && used + mark <= width) parts.prepend(kLeftOut);
  return parts;
}

void PathControl::paintEvent(QPaintEvent*) {
  const QStringList parts = partsFitting(width());
  if (parts.isEmpty()) return;
  QPainter painter(this);
  const QString name = parts.last();
  const QString folders =
      parts.size() > 1 ? parts.mid(0, parts.size() - 1).join(kSeparator) + kSeparator : QString();
  painter.setPen(quietTextColor(palette()));
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, folders);
  const int offset = fontMetrics().horizontalAdvance(folders);
  const int room = width() - offset;
  if (room < kLeastName && fontMetrics().horizontalAdvance(name) > room) return;
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect().adjusted(offset, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(name, Qt::ElideMiddle, room));
}

void PathControl::contextMenuEvent(QContextMenuEvent* event) {
  if (url_.isEmpty()) return;
  QMenu menu(this);
  menu.addAction(localizedString("Copy Path"), this, [this] {
    QGuiApplication::clipboard()->setText(url_.isLocalFile() ? url_.toLocalFile() : url_.toString());
  });
  menu.addAction(localizedString("Open Folder"), this, &PathControl::openFolder);
  menu.exec(event->globalPos());
}

void PathControl::mouseDoubleClickEvent(QMouseEvent*) {
  openFolder();
}

void PathControl::openFolder() {
  if (url_.isLocalFile())
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(url_.toLocalFile()).path()));
}

}  // namespace norvex
