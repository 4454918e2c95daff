// A window with the Check page over pictures in memory.
#pragma once

#include <QFile>
#include <QTabWidget>

#include "desktop/memory_save_panel.h"
#include "protocol/page_contents.h"
#include "ui/check/check_page.h"
#include "window/check/check_command.h"
#include "window/window_fixture.h"

namespace norvex {

/// Answers of a picture whose ink fills its box of 200 × 100 points, with a line that is too thin at one
/// place.
inline MemoryPicture soundPicture() {
  MemoryPicture picture;
  picture.examine = [](const ExamineRequest& request) {
    if (request.what == Examination::Drawn)
      return encodeDrawnInk(
          {QRectF(0, 0, 200, 100), QRectF(0, 0, 200, 100), QRectF(-50, -50, 300, 200), 0.1});
    PageContents page;
    page.size = {200, 100};
    page.thinnestLine = Measured{0.1, QRectF(20, 30, 40, 10)};
    return encodePageContents(page);
  };
  return picture;
}

class CheckFixture : public WindowFixture {
 public:
  CheckFixture() { service.setPicture(soundPicture()); }
  MainWindowController& shown() {
    MainWindowController& c = loaded(epsBytes("%%Pages: x\n"), "a.eps", NorvexEPSType);
    c.setSavePanel(&panel);
    c.window()->show();
    c.showInspectorWindow();
    return c;
  }
  /// Shows the page, which begins a check.
  static CheckCommand& command(MainWindowController& c) {
    c.inspectorTabs->setCurrentWidget(c.inspectorWindow->findChild<QWidget*>("checkPage"));
    return *c.inspectorWindow->findChild<CheckCommand*>();
  }
  static CheckCommand* checked(MainWindowController& c) {
    CheckCommand& made = command(c);
    if (!QTest::qWaitFor([&] { return !made.isChecking(); }, 20000)) qFatal("never checked");
    return &made;
  }
  static const Finding& found(const CheckCommand& command, const char* identifier) {
    for (const Finding& each : command.findings())
      if (each.rule->identifier == identifier) return each;
    qFatal("%s was not found", identifier);
  }
  QByteArray read(const QString& name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  MemorySavePanel panel;
};

inline CheckPage& pageOf(MainWindowController& c) {
  return *c.inspectorWindow->findChild<CheckPage*>();
}

}  // namespace norvex
