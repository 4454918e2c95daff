// A drawing that is stopped: what is said of it.
#include <QScopeGuard>
#include <QSemaphore>

#include "kit/test_main.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

const QString kStopped = QStringLiteral("The drawing was stopped.");

QImage filled(const RenderRequest& request, Qt::GlobalColor color) {
  QImage image(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
  image.fill(color);
  return image;
}

void stop(MainWindowController& c) {
  emit c.window()->findChild<LoadingCard*>()->cancelled();
}

}  // namespace

class StoppedDrawingTest : public QObject {
  Q_OBJECT
 private slots:
  /// It was drawn whole, or is no program that could have begun something.
  void aPictureThatComesNonethelessIsNotCalledBegun() {
    QSemaphore begun, goesOn;
    WindowFixture fixture;
    MemoryPicture picture;
    picture.paint = [&](const RenderRequest& request) {
      // The inspector's small picture comes first.
      const bool isWindows = request.purpose == RenderPurpose::View && request.pixelSize.width() > 180;
      if (isWindows) begun.release(), goesOn.acquire();
      return filled(request, Qt::blue);
    };
    fixture.service.setPicture(picture);
    const auto end = qScopeGuard([&] { goesOn.release(1000); });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_VERIFY(begun.available() > 0);
    stop(c);
    goesOn.release(1000);
    QTRY_VERIFY(c.view()->imageRep()->isSharp());
    QCOMPARE(c.messageBar()->message(), kStopped);
  }
};

NORVEX_TEST(StoppedDrawingTest)
#include "stopped_drawing_test.moc"
