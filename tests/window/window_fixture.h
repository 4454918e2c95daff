// A document with its window over pictures in memory.
#pragma once

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <functional>
#include <memory>

#include "base/background_work.h"
#include "desktop/alert.h"
#include "document/document.h"
#include "picture/process/memory_picture_service.h"
#include "types/uniform_type.h"
#include "window/main_window_controller.h"

namespace norvex {

/// Keeps what it was asked to show and dismisses it.
class RecordingAlerts final : public AlertPresenter {
 public:
  int runModal(const Alert& alert) override {
    shown << alert;
    if (whileShown) whileShown();
    return answer;
  }
  QList<Alert> shown;
  int answer = -1;
  std::function<void()> whileShown;
};

/// An EPS file whose box is (10, 20, 200, 100).
inline QByteArray epsBytes(const QByteArray& comments = {}) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 10 20 210 120\n%%Title: A picture\n%%Creator: By hand\n" +
         comments + "%%EndComments\n0 setgray 10 20 200 100 rectfill\n%%EOF\n";
}

class WindowFixture {
 public:
  WindowFixture()
      : document(service, [this] {
          auto made = std::make_unique<MainWindowController>();
          made->setAlertPresenter(&alerts);
          return made;
        }) {
    // Every fixture starts without remembered window frames.
    qputenv("XDG_STATE_HOME", folder.path().toUtf8());
  }

  /// Writes the file and makes the document's window controller; nothing is loaded yet.
  MainWindowController& open(const QByteArray& bytes, const QString& name, const QString& type) {
    write(bytes, name);
    document.setFileURL(QUrl::fromLocalFile(folder.filePath(name)));
    document.setFileType(type);
    return controller();
  }
  void write(const QByteArray& bytes, const QString& name) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write the test's file");
  }
  MainWindowController& controller() {
    document.makeWindowControllers();
    return *static_cast<MainWindowController*>(document.windowController());
  }
  /// A document that was opened and whose set-up has run.
  MainWindowController& loaded(const QByteArray& bytes, const QString& name, const QString& type) {
    MainWindowController& made = open(bytes, name, type);
    made.windowDidLoad();
    return made;
  }
  /// Reads the file again and waits until that is done.
  void revert() {
    document.revertDocumentToSaved();
    if (!QTest::qWaitFor([this] { return !controller().isReading(); }, 20000)) qFatal("never read");
  }
  MainWindowController& loadedEps() { return loaded(epsBytes(), "a.eps", NorvexEPSType); }

  QTemporaryDir folder;
  MemoryPictureService service;
  WaitingThreadsEnd threadsEnd;  ///< what a window leaves behind still asks the service
  RecordingAlerts alerts;
  Document document;
};

}  // namespace norvex
