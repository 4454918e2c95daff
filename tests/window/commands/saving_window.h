// Windows whose pictures are being saved.
#pragma once

#include <QComboBox>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTimer>

#include <functional>
#include <memory>

#include "desktop/memory_save_panel.h"
#include "window/window_fixture.h"

namespace norvex {

inline const QByteArray kSvg = "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'/>";

class SavingFixture : public WindowFixture {
 public:
  SavingFixture() {
    // Settings of this test's own.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.filePath("config"));
    QSettings().remove("SaveTo");
  }
  MainWindowController& show(const QByteArray& bytes, const QString& name, const QString& type) {
    MainWindowController& made = loaded(bytes, name, type);
    made.setSavePanel(&panel);
    made.setBeep([this] { ++beeps; });
    return made;
  }
  MainWindowController& eps() { return show(epsBytes(), "pic.eps", NorvexEPSType); }
  QUrl url(const QString& name) const { return QUrl::fromLocalFile(folder.filePath(name)); }
  QByteArray read(const QString& name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  MemorySavePanel panel;
  int beeps = 0;
};

/// Another row of Save To's list of formats.
inline void choose(const MainWindowController& c, const QString& format) {
  c.doSaveToPopUp->setCurrentText(format);
}

/// Runs `meanwhile` once, as soon as Save As is making its bytes.
inline void whileSaving(MainWindowController& c, const std::function<void()>& meanwhile) {
  auto* timer = new QTimer(c.window());
  QObject::connect(timer, &QTimer::timeout, timer, [timer, &c, meanwhile] {
    if (!c.isSaving()) return;
    timer->stop();
    timer->deleteLater();
    meanwhile();
  });
  timer->start(5);
}

/// A window on the screen whose SVG is being written as "other.svg"; its picture process keeps it waiting.
class WritingWindow : public SavingFixture {
 public:
  explicit WritingWindow(bool saveAs, const QString& name = "other")
      : c(show(kSvg, "a.svg", "public.svg-image")),
        process(service.lastProcess()),
        closed(&document, &Document::closed),
        ended(&c, &MainWindowController::savedTo),
        saveAs_(saveAs) {
    c.setShouldCloseDocument(true);
    c.window()->show();
    process->hold(PictureCall::Svg);
    if (saveAs) {
      c.saveDocumentAs();
      name_ = name;
    } else {
      c.doSaveTo();
      panel.answer({true, url(name), -1});
    }
  }
  /// Closes the window while the file is being written and lets that end; whether the window is closed then.
  bool closeMeanwhile() {
    bool tried = false;
    const auto meanwhile = [&] {
      tried = !c.window()->close() && c.window()->isVisible();
      process->release(PictureCall::Svg);
    };
    if (saveAs_) {
      whileSaving(c, meanwhile);
      panel.answer({true, url(name_), 3});
    } else {
      meanwhile();
    }
    return QTest::qWaitFor([&] { return tried && !c.isSaving() && (saveAs_ || !ended.isEmpty()); }, 20000) &&
           QTest::qWaitFor([&] { return !closed.isEmpty(); }, alerts.answer == 0 ? 2000 : 100);
  }

  MainWindowController& c;
  std::shared_ptr<MemoryPictureProcess> process;
  QSignalSpy closed, ended;

 private:
  bool saveAs_;
  QString name_;
};

}  // namespace norvex
