// Save As: what the panel is asked, and what is written.
#include <QDir>

#include "kit/test_main.h"
#include "ui/controls/number_field.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "window/commands/saving_window.h"

using namespace norvex;

class SaveAsTest : public QObject {
  Q_OBJECT
 private slots:
  void everyWritableTypeIsListed() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    const auto identifiers = [](const MainWindowController& shown) {
      QStringList all;
      for (const UTType& type : shown.writableTypes()) all << type.identifier();
      return all;
    };
    const QStringList rasters{"public.tiff", "public.png", "public.jpeg", "com.compuserve.gif"};
    QCOMPARE(identifiers(c), (QStringList{NorvexEPSType, NorvexEPSIType, "com.adobe.pdf"} + rasters));
    SavingFixture g;
    MainWindowController& d = g.show(kSvg, "a.svg", "public.svg-image");
    QCOMPARE(identifiers(d), (QStringList{NorvexEPSType, NorvexEPSIType, "com.adobe.pdf", "public.svg-image",
                                          NorvexSVGZType} +
                              rasters));
    d.saveDocumentAs();
    QCOMPARE(g.panel.settings.selectedContentType, 3);
    QCOMPARE(g.panel.settings.nameFieldStringValue, QString("a"));
  }

  void theExtensionFollowsTheType() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.saveDocumentAs();
    const auto& target = f.panel.settings.target;
    QCOMPARE(target(QUrl::fromLocalFile("/a/b"), 2).toLocalFile(), QString("/a/b.pdf"));
    QCOMPARE(target(QUrl::fromLocalFile("/a/b.eps"), 2).toLocalFile(), QString("/a/b.pdf"));
    QCOMPARE(target(QUrl::fromLocalFile("/a/b.tif"), 3).toLocalFile(), QString("/a/b.tif"));
    QCOMPARE(target(QUrl::fromLocalFile("/a/Map 1.5"), 4).toLocalFile(), QString("/a/Map 1.5.png"));
  }

  void aDocumentIsWrittenAndStaysWhatItIs_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("the first type, EPS") << 0 << "other.eps" << QByteArray("%!PS-Adobe-3.0 EPSF-3.0");
    QTest::newRow("PNG") << 4 << "other.png" << QByteArray("\x89PNG");
    QTest::newRow("the last type, GIF") << 6 << "other.gif" << QByteArray("GIF8");
  }
  void aDocumentIsWrittenAndStaysWhatItIs() {
    QFETCH(int, type);
    QFETCH(QString, name);
    QFETCH(QByteArray, begin);
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.saveDocumentAs();
    f.panel.answer({true, f.url("other"), type});
    QTRY_VERIFY2(f.read(name).startsWith(begin), f.read(name).left(30).constData());
    QCOMPARE(f.document.fileURL(), f.url("pic.eps"));
    QCOMPARE(f.alerts.shown.size(), type == 0 ? 1 : 0);  // about a preview for the EPS
  }

  void compressedSvgIsCompressed() {
    SavingFixture f;
    MainWindowController& c = f.show(kSvg, "a.svg", "public.svg-image");
    c.saveDocumentAs();
    f.panel.answer({true, f.url("other"), 4});
    QTRY_VERIFY(f.read("other.svgz").startsWith("\x1F\x8B"));
  }

  void aDocumentIsMadeBesideTheWindow() {
    SavingFixture f;
    MainWindowController& c = f.show(kSvg, "a.svg", "public.svg-image");
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Svg);
    c.saveDocumentAs();
    bool turned = false;
    whileSaving(c, [&] {
      QVERIFY(process->waitUntilHeld(PictureCall::Svg));
      c.rotateChange(30);  // the window works on
      turned = true;
      c.saveDocumentAs();  // but it writes one picture at a time
      process->release(PictureCall::Svg);
    });
    f.panel.answer({true, f.url("other"), 3});
    QTRY_VERIFY(turned && !c.isSaving());
    QCOMPARE(f.read("other.svg"), kSvg);
    QCOMPARE(f.alerts.shown.size(), 0);
    QCOMPARE(c.rotateField()->text(), QString("30.0000"));
  }

  void whatIsBeingMadeCanBeStopped_data() {
    QTest::addColumn<int>("type");
    QTest::newRow("SVG") << 3;
    QTest::newRow("compressed SVG, which is made in two steps") << 4;
  }
  void whatIsBeingMadeCanBeStopped() {
    QFETCH(int, type);
    SavingFixture f;
    MainWindowController& c = f.show(kSvg, "a.svg", "public.svg-image");
    const auto process = f.service.lastProcess();
    const int before = process->calls(PictureCall::Svg);
    process->hold(PictureCall::Svg);
    c.saveDocumentAs();
    bool stopped = false;
    whileSaving(c, [&] {
      stopped = true;
      emit c.window()->findChild<LoadingCard*>()->cancelled();
    });
    f.panel.answer({true, f.url("other"), type});
    QTRY_VERIFY(stopped && !c.isSaving());
    QCOMPARE(process->calls(PictureCall::Svg), before + 1);
    QCOMPARE(QDir(f.folder.path()).entryList({"other*"}), QStringList());
    QCOMPARE(f.alerts.shown.size(), 0);
    QVERIFY(c.messageBar()->message().isEmpty());
  }

  void aDocumentThatCannotBeWrittenIsTold() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.saveDocumentAs();
    f.panel.answer({true, f.url("nowhere/other"), 4});
    QTRY_COMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.alerts.shown[0].informativeText, f.folder.filePath("nowhere/other.png"));
  }
};

NORVEX_TEST(SaveAsTest)
#include "save_as_test.moc"
