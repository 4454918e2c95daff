// What the About box tells.
#include "window/about_box.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QSemaphore>
#include <QTimer>

#include "base/background_work.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Shows the box until it tells `part`, or for a time that only a broken box needs, and gives what it told.
QString told(const QString& part) {
  QWidget parent;
  QString text;
  QTimer look;
  QElapsedTimer since;
  since.start();
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || (!box->informativeText().contains(part) && since.elapsed() < 20'000)) return;
    text = box->text() + '\n' + box->informativeText();
    box->reject();
  });
  look.start(5);
  showAboutBox(parent);
  return text;
}

}  // namespace

class AboutBoxTest : public QObject {
  Q_OBJECT
 private slots:
  void cleanup() {
    setConfinementWords({});
    const WaitingThreadsEnd end;
  }

  void itTellsWhatTheProgramIs() {
    const QString text = told("Opens EPS");
    QVERIFY(text.startsWith("Norvex " NORVEX_VERSION "\n"));
    QVERIFY(!text.contains("confined"));
  }

  void itTellsWhatConfinesDocuments() {
    setConfinementWords([] { return QStringLiteral("Landlock: on, version 7.\nLimits: memory.\n"); });
    const QString text = told("Landlock");
    QVERIFY2(
        text.contains(
            "How the documents that it opens are confined:\n\nLandlock: on, version 7.\n\nLimits: memory."),
        qPrintable(text));
  }

  void withoutAnAnswerItTellsTheRest() {
    setConfinementWords([] { return QString(); });
    QVERIFY(!told("Opens EPS").contains("confined"));
  }

  void aBoxThatIsClosedBeforeTheAnswerIsNoHarm() {
    QSemaphore asked, answer;
    const WaitingThreadsEnd end;  // the one who answers looks at both until it is done
    setConfinementWords([&] {
      asked.release();
      answer.acquire();
      return QStringLiteral("late");
    });
    (void)told("Opens EPS");
    asked.acquire();
    answer.release();
  }
};

NORVEX_TEST(AboutBoxTest)
#include "about_box_test.moc"
