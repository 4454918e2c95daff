// What the About box tells.
#include "window/about_box.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSemaphore>
#include <QTimer>
#include <QTranslator>

#include <functional>

#include "base/background_work.h"
#include "base/sentence.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Shows the box until it tells `part`, or for a time that only a broken box needs, and gives what it told.
/// `look` sees it before it is closed.
QString told(const QString& part, const std::function<void(QDialog&)>& look = {}) {
  QWidget parent;
  QString text;
  QTimer timer;
  QElapsedTimer since;
  since.start();
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    const auto* words = box ? box->findChild<QLabel*>("aboutText") : nullptr;
    if (!words || (!words->text().contains(part) && since.elapsed() < 20'000)) return;
    for (const QLabel* label : box->findChildren<QLabel*>()) text += label->text() + '\n';
    if (look) look(*box);
    box->findChild<QPushButton*>()->click();
  });
  timer.start(5);
  showAboutBox(parent);
  return text;
}

/// The table of sentences in a language that nobody speaks.
class Starred final : public QTranslator {
 public:
  QString translate(const char* context, const char* key, const char*, int) const override {
    return qstrcmp(context, sentenceTable) == 0 ? u'*' + QString::fromUtf8(key) + u'\u3002' : QString();
  }
  bool isEmpty() const override { return false; }
};

/// As the picture process says it where everything is on, and where a layer is missing or old.
const QString kStatus = QStringLiteral(
    "Landlock: on, version 2. Nothing but what engines need can be read, nothing but scratch files written. "
    "Nothing is "
    "listed, removed or started besides. There is no TCP. There are no signals and no abstract sockets to "
    "others. "
    "Devices cannot be controlled. This version does not cover signals and abstract sockets, control of "
    "devices.\n"
    "System calls (seccomp): missing. Every call can be made.\n"
    "Each picture is read in a process of its own that is confined so.\n");

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
    QVERIFY(text.contains("Norvex " NORVEX_VERSION "\n"));
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

  void aLongTextIsScrolledAndTheButtonStaysOnTheScreen() {
    setConfinementWords([] { return QStringLiteral("Nothing may be written.\n").repeated(200); });
    (void)told("Nothing", [](QDialog& box) {
      const QRect screen = box.screen()->availableGeometry();
      QVERIFY(box.height() <= screen.height());
      const auto* button = box.findChild<QPushButton*>();
      QVERIFY(box.rect().contains(QRect(button->mapTo(&box, QPoint(0, 0)), button->size())));
      const auto* text = box.findChild<QLabel*>("aboutText");
      QVERIFY(text->height() >= text->heightForWidth(text->width()));
      QVERIFY(box.findChild<QScrollArea*>()->viewport()->height() < text->height());
    });
  }

  void aTextThatFitsIsSeenWhole() {
    setConfinementWords([] { return QStringLiteral("Nothing may be written.\n").repeated(5); });
    (void)told("Nothing", [](QDialog& box) {
      const auto* text = box.findChild<QLabel*>("aboutText");
      const auto* area = box.findChild<QScrollArea*>();
      QVERIFY(text->height() >= text->heightForWidth(text->width()));
      QVERIFY(area->viewport()->height() >= area->widget()->height());
    });
  }

  void whatConfinesDocumentsIsToldInTheUsersLanguage() {
    Starred language;
    QCoreApplication::installTranslator(&language);
    setConfinementWords([] { return kStatus; });
    const QString text = told("*Each");
    QCoreApplication::removeTranslator(&language);
    QVERIFY2(text.contains("*Landlock: on, version 2\u3002*Nothing but what"), qPrintable(text));
    QVERIFY2(text.contains(
                 "*This version does not cover *signals and abstract sockets, *control of devices\u3002\n\n"
                 "*System calls (seccomp): missing\u3002*Every call can be made\u3002\n\n*Each picture"),
             qPrintable(text));
    QCOMPARE(text.count(u'*'), 12);
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
