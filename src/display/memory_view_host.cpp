#include "display/memory_view_host.h"

namespace norvex {
namespace {

QString text(const QRectF& rect) {
  return QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

}  // namespace

void MemoryViewHost::displayRect(const QRectF& rect) {
  calls << QStringLiteral("displayRect ") + text(rect);
  if (paint) paint(rect);
}

void MemoryViewHost::setNeedsDisplay() {
  calls << QStringLiteral("setNeedsDisplay");
}

void MemoryViewHost::frameDidChange() {
  calls << QStringLiteral("frameDidChange");
}

bool MemoryViewHost::autoscroll(const QPointF& point) {
  calls << QStringLiteral("autoscroll %1,%2").arg(point.x()).arg(point.y());
  return !visible.contains(point);
}

void MemoryViewHost::scrollRectToVisible(const QRectF& rect) {
  calls << QStringLiteral("scrollRectToVisible ") + text(rect);
}

bool MemoryViewHost::makeFirstResponder() {
  calls << QStringLiteral("makeFirstResponder");
  return agreesToFirstResponder;
}

void MemoryViewHost::setPeriodicEvents(bool on) {
  calls << (on ? QStringLiteral("periodicEvents on") : QStringLiteral("periodicEvents off"));
}

void MemoryViewHost::addCrosshairCursorRect(const QRectF& rect) {
  calls << QStringLiteral("addCrosshairCursorRect ") + text(rect);
}

}  // namespace norvex
