#include "ui/picture/drag_source.h"

#include <QApplication>
#include <QDrag>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWidget>

#include <memory>
#include <utility>
#include <vector>

#include "base/atomic_file.h"
#include "ui/picture/dragged_file_data.h"

namespace norvex {
namespace {

/// A folder of its own for every file, so that the file can have its name. Empty where none can be made.
QString newFolder() {
  static std::vector<std::unique_ptr<QTemporaryDir>> folders;  // removed when the program ends
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  auto folder = runtime.isEmpty()
                    ? std::make_unique<QTemporaryDir>()
                    : std::make_unique<QTemporaryDir>(runtime + QStringLiteral("/norvex-XXXXXX"));
  if (!folder->isValid()) folder = std::make_unique<QTemporaryDir>();
  if (!folder->isValid()) return {};
  folders.push_back(std::move(folder));
  return folders.back()->path();
}

QUrl written(const DraggedFile& file) {
  const QByteArray bytes = file.bytes();
  const QString folder = bytes.isEmpty() ? QString() : newFolder();
  if (folder.isEmpty()) return {};
  const QString path = folder + u'/' + file.name;
  return writeFileAtomically(path, bytes, IfExists::Fail) ? QUrl::fromLocalFile(path) : QUrl();
}

}  // namespace

QVariant DraggedFileData::retrieveData(const QString& mimeType, QMetaType type) const {
  if (mimeType != QLatin1String("text/uri-list")) return {};
  if (!url_) url_ = written(file_);
  if (url_->isEmpty()) return {};
  if (type.id() == QMetaType::QByteArray) return QByteArray(url_->toEncoded() + "\r\n");
  return QVariantList{*url_};
}

DragSource::DragSource(QWidget& widget, Offer offer, QObject* parent, Qt::KeyboardModifiers held)
    : QObject(parent), widget_(widget), offer_(std::move(offer)), held_(held) {
  widget_.installEventFilter(this);
}

bool DragSource::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      return std::exchange(pressed_, std::nullopt).has_value();
    default:
      return QObject::eventFilter(watched, event);
  }
}

bool DragSource::press(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || (event.modifiers() & held_) != held_) return false;
  pressed_ = event.position().toPoint();
  return true;
}

bool DragSource::move(const QMouseEvent& event) {
  if (!pressed_) return false;
  if ((event.position().toPoint() - *pressed_).manhattanLength() < QApplication::startDragDistance())
    return true;
  pressed_.reset();
  if (std::optional<DraggedFile> file = offer_()) {
    auto* drag = new QDrag(&widget_);
    drag->setMimeData(new DraggedFileData(*std::move(file)));
    drag->exec(Qt::CopyAction);
  }
  return true;
}

}  // namespace norvex
