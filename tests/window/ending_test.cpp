// The program ends, or a window is closed, at whatever moment: nothing runs on, nothing is written in part.
#include <QComboBox>
#include <QDir>
#include <QMainWindow>
#include <QRandomGenerator>
#include <QSettings>
#include <QThread>
#include <QThreadPool>

#include "application/document_application.h"
#include "base/background_work.h"
#include "desktop/memory_pasteboard.h"
#include "desktop/memory_save_panel.h"
#include "kit/test_main.h"
#include "print/memory_printing.h"
#include "ui/picture/drag_source.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

constexpr int kMoments = 200;
const QByteArray kSvg = "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'/>";
constexpr int kSvgRow = 0;   // of Save To's list
constexpr int kSvgType = 3;  // of Save As's

/// A program of one window over pictures that take their time, which it owns like the real one.
struct Program {
  Program() {
    qputenv("XDG_STATE_HOME", folder.path().toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    MemoryPicture picture;
    picture.svg = [](const SvgRequest&) {
      QThread::msleep(3);
      return kSvg;
    };
    picture.compose = [](const ComposeRequest& request) {
      QThread::msleep(3);
      return emptyPdf(request.rect.size());
    };
    service->setPicture(picture);
    application = std::make_unique<DocumentApplication>(
        events, *service,
        [this] {
          auto made = std::make_unique<MainWindowController>();
          made->setAlertPresenter(&alerts);
          made->setSavePanel(&panel);
          made->setPasteboard(&pasteboard);
          made->setBeep([] {});
          made->setPrintServices({nullptr, &spooler, &people});
          return made;
        },
        [](QObject*) {});
    application->setAlertPresenter(&alerts);
  }
  MainWindowController* controller() const {
    const QList<Document*> open = application->documents().documents();
    return open.isEmpty() ? nullptr : static_cast<MainWindowController*>(open.first()->windowController());
  }
  bool open() {
    QFile file(folder.filePath("a.svg"));
    if (!file.open(QIODevice::WriteOnly) || file.write(kSvg) != kSvg.size()) return false;
    file.close();
    application->start({QUrl::fromLocalFile(file.fileName())});
    return QTest::qWaitFor([this] { return controller() && controller()->view()->imageRep(); }, 20000);
  }
  QUrl target() const { return QUrl::fromLocalFile(folder.filePath("other.svg")); }

  QTemporaryDir folder;
  RecordingAlerts alerts;
  MemorySavePanel panel;
  MemoryPasteboard pasteboard;
  kit::MemorySpooler spooler{{{"Office", "Office", PrinterState::Idle, true, true}}};
  kit::ScriptedInteraction people;
  ApplicationEvents events;
  std::unique_ptr<MemoryPictureService> service = std::make_unique<MemoryPictureService>();
  std::unique_ptr<DocumentApplication> application;
};

/// Begins one of the things that go on beside the window.
void begin(Program& program, quint32 choice) {
  MainWindowController& c = *program.controller();
  switch (choice % 7) {
    case 0:
      return c.doCopy();
    case 1:
      return c.copy();
    case 2:
      c.doSaveTo();
      c.doSaveToPopUp->setCurrentIndex(kSvgRow);
      return program.panel.answer({true, program.target(), -1});
    case 3:
      c.doSaveTo();  // the sheet stays open, its formats are being made
      return;
    case 4:
      c.saveDocumentAs();
      return program.panel.answer({true, program.target(), kSvgType});
    case 5:
      return c.doPrinting();
    default:
      return c.reload();
  }
}

}  // namespace

class EndingTest : public QObject {
  Q_OBJECT
 private slots:
  void atWhateverMomentItEndsNothingIsLeft() {
    for (int seed = 1; seed <= kMoments; ++seed) {
      QRandomGenerator random{quint32(seed)};
      auto program = std::make_unique<Program>();
      QVERIFY2(program->open(), qPrintable(QString::number(seed)));
      program->alerts.answer = int(random.bounded(4)) - 1;
      const quint32 works = 1 + random.bounded(3);
      for (quint32 i = 0; i < works; ++i) begin(*program, random.generate());
      QTest::qWait(int(random.bounded(12)));
      if (MainWindowController* const c = program->controller(); c && random.bounded(2)) {
        c->window()->close();
        QTest::qWait(int(random.bounded(6)));
      }
      program->application.reset();  // what is left of the documents goes with it
      QVERIFY2(waitingThreads().activeThreadCount() == 0, qPrintable(QString::number(seed)));
      program->service.reset();
      for (const QString& name :
           QDir(program->folder.path()).entryList({"*other*"}, QDir::Files | QDir::Hidden)) {
        QFile written(program->folder.filePath(name));
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY2(name == "other.svg" && written.readAll() == kSvg,
                 qPrintable(QString("%1: %2").arg(seed).arg(name)));
      }
      QCoreApplication::processEvents();  // what was told to those who are gone by now
    }
  }

  void whatIsBeingWrittenIsThereWhenTheWindowHasClosed() {
    for (int milliseconds = 0; milliseconds < 10; ++milliseconds) {
      Program program;
      QVERIFY(program.open());
      program.alerts.answer = 0;  // "Close When Finished"
      begin(program, 2);
      QTest::qWait(milliseconds);
      program.controller()->window()->close();
      QTRY_VERIFY(!program.controller());
      QFile written(program.target().toLocalFile());
      QVERIFY(written.open(QIODevice::ReadOnly));
      QCOMPARE(written.readAll(), kSvg);
    }
  }

  void aFileThatIsDraggedIsNoLongerMadeWhenNobodyCanTakeIt() {
    Program program;
    QVERIFY(program.open());
    const auto process = program.service->lastProcess();
    process->hold(PictureCall::Svg);
    {
      const auto file = program.controller()->draggedFile();
      QVERIFY(file.has_value());
      QVERIFY(process->waitUntilHeld(PictureCall::Svg));
    }
    QTRY_COMPARE(process->cancelledCalls(), 1);
  }
};

NORVEX_TEST(EndingTest)
#include "ending_test.moc"
