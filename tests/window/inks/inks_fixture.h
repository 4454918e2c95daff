// A window with a picture of two pixels in five inks, and the page of the inspector that shows them.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QTabWidget>
#include <QTreeWidget>

#include <cmath>
#include <mutex>

#include "protocol/page_inks.h"
#include "ui/inks/inks_page.h"
#include "ui/inks/separation_view.h"
#include "ui/picture/norvex_view_widget.h"
#include "window/window_fixture.h"

namespace norvex {

/// Two pixels: cyan and gold.
inline PageInks twoPixels() {
  PageInks page;
  page.pixels = QSize(2, 1);
  for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"}) page.inks << Ink{name, false, {}, 0, 0};
  page.inks << Ink{"Gold", true, ProcessInks{0, 0, 255, 0}, 0.5, 0.5};
  page.plates = QByteArray("\xff\0\0\0\0\0\0\0\0\xff", 10);
  return page;
}

struct Asked {
  std::mutex mutex;
  QList<ExamineRequest> requests;
};

class InksFixture : public WindowFixture {
 public:
  explicit InksFixture(int pages = 1, const QSizeF& size = {200, 100}) {
    picture.facts.pageBounds = QList<QRectF>(pages, QRectF(QPointF(), size));
    picture.facts.pageCount = pages;
    picture.examine = [asked = asked](const ExamineRequest& request) {
      const std::lock_guard lock(asked->mutex);
      asked->requests << request;
      return encodePageInks(twoPixels());
    };
    service.setPicture(picture);
  }
  MainWindowController& openPdf() {
    controller = &open(emptyPdf({200, 100}), "a.pdf", "com.adobe.pdf");
    controller->window();
    controller->windowDidLoad();
    return *controller;
  }
  /// As somebody who opens the inspector at the page does.
  void look() {
    controller->inspectorTabs->setCurrentWidget(controller->inspectorWindow->findChild<QWidget*>("inksPage"));
    controller->inspectorWindow->show();
  }
  InksPage& page() { return *controller->inspectorWindow->findChild<InksPage*>(); }
  QTreeWidget& list() { return *page().findChild<QTreeWidget*>(); }
  [[nodiscard]] QImage image() { return page().findChild<SeparationView*>()->image(); }
  [[nodiscard]] bool listsInks() {
    return QTest::qWaitFor([this] { return list().topLevelItemCount() == 5 && !image().isNull(); }, 20000);
  }
  QString sentence() {
    for (const auto* label : page().findChildren<QLabel*>())
      if (label->isVisible() && label->wordWrap()) return label->text();
    return {};
  }
  void switchOn(const QString& text, bool on = true) {
    for (auto* box : page().findChildren<QCheckBox*>())
      if (box->text() == text) box->setChecked(on);
  }
  /// The plates of the part that can be seen stand above those of the page, with two pixels for one a side.
  [[nodiscard]] bool standsSharp() {
    const auto* widget = controller->viewWidget();
    const QList<ExamineRequest> all = requests();
    const double dpi = 144 * std::sqrt(std::abs(widget->pictureToDevice().determinant()));
    return widget->standIns().size() == 2 && all.last().part && std::abs(all.last().dpi - dpi) < 1e-6 &&
           widget->standIns().last().place == *all.last().part;
  }
  /// A separation has begun and stands at the latch.
  [[nodiscard]] bool waitsForInks() {
    const auto process = service.lastProcess();
    return QTest::qWaitFor([&] { return process->waitUntilHeld(PictureCall::Examine, 1, 1); }, 20000);
  }
  void showInPicture() {
    controller->window()->show();
    look();
    if (!listsInks()) qFatal("no inks");
    switchOn("Show the inks in the picture");
    if (!QTest::qWaitFor([this] { return standsSharp(); }, 20000)) qFatal("no inks in the picture");
  }
  QList<ExamineRequest> requests() {
    const std::lock_guard lock(asked->mutex);
    return asked->requests;
  }

  MemoryPicture picture;
  MainWindowController* controller = nullptr;
  /// Threads that a window leaves behind may come back to it last.
  const std::shared_ptr<Asked> asked = std::make_shared<Asked>();
};

}  // namespace norvex
