// A program that takes whatever is dropped on its window: it tells the formats and the files, a line each,
// and "over" at the end.
#include <QDragEnterEvent>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QRasterWindow>
#include <QUrl>

#include <cstdio>

namespace {

class DropTarget final : public QRasterWindow {
 protected:
  bool event(QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove: {
        auto* const drag = static_cast<QDropEvent*>(event);
        drag->setDropAction(Qt::CopyAction);
        drag->accept();
        return true;
      }
      case QEvent::Drop:
        take(*static_cast<QDropEvent*>(event));
        return true;
      default:
        return QRasterWindow::event(event);
    }
  }

 private:
  static void take(QDropEvent& drop) {
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    for (const QString& format : drop.mimeData()->formats()) std::printf("format %s\n", qPrintable(format));
    for (const QUrl& url : drop.mimeData()->urls()) std::printf("file %s\n", qPrintable(url.toLocalFile()));
    std::puts("over");
    std::fflush(stdout);
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  DropTarget window;
  window.setTitle(QStringLiteral("Drop Target"));
  window.setGeometry(1200, 750, 300, 250);
  window.show();
  return QGuiApplication::exec();
}
