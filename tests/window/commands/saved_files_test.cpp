// What is told and what is refused when Save As and Save To have made their bytes.
#include <QComboBox>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>

#include "desktop/memory_save_panel.h"
#include "kit/test_main.h"
#include "ui/picture/message_bar.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

const QByteArray kSvg = "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'/>";

class SavingFixture : public WindowFixture {
 public:
  SavingFixture() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.filePath("config"));
  }
  MainWindowController& show(const QByteArray& bytes, const QString& name, const QString& type) {
    MainWindowController& made = loaded(bytes, name, type);
    made.setSavePanel(&panel);
    return made;
  }
  QUrl url(const QString& name) const { return QUrl::fromLocalFile(folder.filePath(name)); }
  QByteArray read(const QString& name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  MemorySavePanel panel;
};

}  // namespace

class SavedFilesTest : public QObject {
  Q_OBJECT
 private slots:
  void aDescriptionWithoutATitleIsWrittenAndTold() {
    MemoryPicture picture;
    picture.facts.title = QString();
    picture.facts.description = QStringLiteral("what it shows");
    SavingFixture f;
    f.service.setPicture(picture);
    MainWindowController& c = f.show(kSvg, "a.svg", "public.svg-image");
    c.saveDocumentAs();
    f.panel.answer({true, f.url("other"), 2});
    QTRY_VERIFY(f.read("other.pdf").startsWith("%PDF"));
    QTRY_COMPARE(
        c.messageBar()->message(),
        QStringLiteral("The PDF has no subject, because the document has a description but no title."));
    QCOMPARE(f.alerts.shown.size(), 0);
  }

  // The window would tell of it for ever, and could not be closed any more.
  void aSavingThatRunsOutOfMemoryIsOver() {
    MemoryPicture picture;
    picture.compose = [](const ComposeRequest&) -> QByteArray { throw std::bad_alloc(); };
    SavingFixture f;
    f.service.setPicture(picture);
    MainWindowController& c = f.show(epsBytes(), "a.eps", NorvexEPSType);
    c.saveDocumentAs();
    f.panel.answer({true, f.url("other"), 2});
    bool thrown = false;
    try {
      QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    } catch (const std::bad_alloc&) {
      thrown = true;
    }
    QVERIFY(thrown);
    QVERIFY(!c.isSaving() && !c.work().isUnderWay());
  }

  void whatCouldNotBeOpenedAgainReplacesNothing_data() {
    QTest::addColumn<QByteArray>("made");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("name");
    QTest::newRow("EPS without a box") << QByteArray("%!PS-Adobe-3.0 EPSF-3.0\n%%EndComments\n")
                                       << QString("Encapsulated PostScript (EPS)") << "out.eps";
    QTest::newRow("PDF without an end")
        << QByteArray("%PDF-1.7\n1 0 obj") << QString("PDF document") << "out.pdf";
  }
  void whatCouldNotBeOpenedAgainReplacesNothing() {
    QFETCH(QByteArray, made);
    QFETCH(QString, row);
    QFETCH(QString, name);
    MemoryPicture picture;
    picture.compose = [made](const ComposeRequest&) { return made; };
    SavingFixture f;
    f.service.setPicture(picture);
    MainWindowController& c = f.show(epsBytes(), "pic.eps", NorvexEPSType);
    f.write("before", name);
    c.doSaveTo();
    c.doSaveToPopUp->setCurrentText(row);
    QSignalSpy end(&c, &MainWindowController::savedTo);
    f.panel.answer({true, f.url(name), -1});
    QTRY_COMPARE(end.size(), 1);
    QCOMPARE(end.first(), (QVariantList{f.folder.filePath(name), false}));
    QCOMPARE(f.read(name), QByteArray("before"));
    QCOMPARE(f.alerts.shown.size(), 1);
    QVERIFY(f.alerts.shown[0].messageText.startsWith("The result could not be opened again: "));
  }
};

NORVEX_TEST(SavedFilesTest)
#include "saved_files_test.moc"
