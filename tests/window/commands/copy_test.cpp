// Copy: what is put on the pasteboard, when, and what leaves it alone.
#include <QAction>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <thread>

#include "desktop/memory_pasteboard.h"
#include "kit/test_main.h"
#include "picture/web_image_rep.h"
#include "ui/panels/qt_pasteboard.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/dragged_file_data.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

const Error kDied{ErrorKind::Died, QStringLiteral("the picture process ended")};
const QByteArray kSvg = "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'/>";
const QString kEpsType = QStringLiteral("com.adobe.encapsulated-postscript");

class CopyFixture : public WindowFixture {
 public:
  MainWindowController& show(const QByteArray& bytes, const QString& name, const QString& type) {
    MainWindowController& made = loaded(bytes, name, type);
    made.setPasteboard(&pasteboard);
    made.setBeep([this] { ++beeps; });
    return made;
  }
  MainWindowController& eps() { return show(epsBytes(), "a.eps", NorvexEPSType); }
  MainWindowController& pdf() { return show(emptyPdf({200, 100}), "a.pdf", "com.adobe.pdf"); }
  MainWindowController& svg() { return show(kSvg, "a.svg", "public.svg-image"); }
  QStringList types() const {
    return pasteboard.objects.isEmpty() ? QStringList() : pasteboard.objects.first().types();
  }

  MemoryPasteboard pasteboard;
  int beeps = 0;
};

void drag(NorvexView& view, const QPointF& to) {
  QVERIFY(view.mouseDown());
  view.mouseDragged(to);
  view.mouseUp(to);
}

void select(NorvexView& view, const QPointF& from, const QPointF& to) {
  view.clearSelectRect();
  drag(view, from);
  drag(view, to);
}

/// The end of the copy that `start` begins; an invalid answer when it does not come.
QVariant copied(MainWindowController& c, const std::function<void()>& start) {
  QSignalSpy end(&c, &MainWindowController::copied);
  start();
  if (end.isEmpty() && !end.wait(20000)) return {};
  return end.first().first();
}

}  // namespace

class CopyTest : public QObject {
  Q_OBJECT
 private slots:
  void anEpsWithoutSelectionIsCopiedAsSeen() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    const PictureFormats formats = c.pboardTypesAndDataObjects();
    QCOMPARE(formats.Types, (QStringList{kEpsType, "com.adobe.pdf", "public.tiff"}));
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(true));
    QCOMPARE(f.types(), (QStringList{kEpsType, "com.adobe.pdf", "public.tiff"}));
    QCOMPARE(f.service.lastProcess()->bytes().left(4), QByteArray("%PDF"));  // rasters are drawn from the PDF
    QCOMPARE(f.pasteboard.clearCount, 1);
    QCOMPARE(f.pasteboard.writeCount, 1);
  }

  void theSelectionIsCopiedWhereThereIsOne() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    const auto process = f.service.lastProcess();
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(true));
    QCOMPARE(process->composeRequests().first().rect, c.view()->visibleRect());
    select(*c.view(), {-50, -20}, {-10, 10});
    QCOMPARE(c.view()->selectRect(), QRectF(-50, -20, 40, 30));
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(true));
    QCOMPARE(process->composeRequests().last().rect, QRectF(-50, -20, 40, 30));
  }

  void aSelectionOfNoWidthCountsAsNone() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    const auto process = f.service.lastProcess();
    QVERIFY(c.view()->mouseDown());
    c.view()->mouseUp({7, 8});  // a click
    QCOMPARE(c.view()->selectRect().width(), 0.0);
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(true));
    QCOMPARE(process->composeRequests().first().rect, c.view()->visibleRect());
  }

  void aStartPointAloneCountsAsNoSelection() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    const auto process = f.service.lastProcess();
    drag(*c.view(), {5, 6});
    QCOMPARE(c.view()->selectRect(), QRectF(5, 6, 1, 0));
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(true));
    QCOMPARE(process->composeRequests().first().rect, c.view()->visibleRect());
  }

  void pdfAndSvgKeepTheirOrder() {
    CopyFixture f;
    MainWindowController& c = f.pdf();
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(true));
    QCOMPARE(f.types(), (QStringList{"com.adobe.pdf", kEpsType, "public.tiff"}));
    CopyFixture g;
    MainWindowController& d = g.svg();
    QCOMPARE(copied(d, [&] { d.doCopy(); }), QVariant(true));
    QCOMPARE(g.types(), (QStringList{"public.svg-image", "com.adobe.pdf", kEpsType, "public.tiff"}));
    QVERIFY(g.pasteboard.objects.first().fallbacks().first().data.startsWith("\x89PNG"));
  }

  void withoutAPictureCopyingBeepsAndTouchesNothing() {
    CopyFixture f;
    MainWindowController& c = f.show("no picture", "a.eps", NorvexEPSType);
    QVERIFY(!c.view()->imageRep());
    c.copy();
    QCOMPARE(f.beeps, 1);
    c.doCopy();
    QCOMPARE(f.beeps, 2);
    QCOMPARE(c.pboardTypesAndDataObjects().count(), 0);
    QCOMPARE(f.beeps, 3);
    QTest::qWait(10);
    QCOMPARE(f.pasteboard.writeCount, 0);
    QCOMPARE(f.pasteboard.clearCount, 0);
    QVERIFY(!c.copyToolbarItem->isEnabled() && !c.doSaveToToolbarItem->isEnabled());
  }

  void theWholePictureIsCopiedAsItsFileHasIt() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    select(*c.view(), {-50, -20}, {-10, 10});  // has no say
    QCOMPARE(copied(c, [&] { c.copy(); }), QVariant(true));
    QCOMPARE(f.types(), (QStringList{kEpsType}));
    QCOMPARE(f.pasteboard.objects.first().dataForType(kEpsType), epsBytes());
    CopyFixture g;
    MainWindowController& d = g.pdf();
    QCOMPARE(copied(d, [&] { d.copy(); }), QVariant(true));
    QCOMPARE(g.types(), (QStringList{"com.adobe.pdf"}));
    QCOMPARE(g.pasteboard.objects.first().dataForType("com.adobe.pdf"), emptyPdf({200, 100}));
  }

  void whatWasCopiedIsToldWithItsSize() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    select(*c.view(), {-50, -20}, {-10, 10});
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(true));
    auto* note = c.scrollArea()->findChild<BriefNote*>();
    QVERIFY(note);
    QCOMPARE(note->text(), QString("Copied 40 × 30 pt"));
    QCOMPARE(copied(c, [&] { c.copy(); }), QVariant(true));
    QCOMPARE(note->text(), QString("Copied 200 × 100 pt"));
    QCOMPARE(c.scrollArea()->findChildren<BriefNote*>().size(), 1);
    QVERIFY(!note->isHidden());
    QTRY_VERIFY(note->isHidden());
  }

  void aWholeEpsIsThereAsPdfAndPixelsForOthers() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    QCOMPARE(copied(c, [&] { c.copy(); }), QVariant(true));
    const auto mime = mimeDataOf(f.pasteboard.objects.first());
    QVERIFY(mime->data("application/pdf").startsWith("%PDF"));
    QVERIFY(mime->data("image/png").startsWith("\x89PNG"));
    QCOMPARE(mime->data("image/x-eps"), epsBytes());
    QVERIFY(mime->data("image/svg+xml").startsWith("<svg"));
  }

  void theWholeSvgIsCopiedInFourFormats() {
    CopyFixture f;
    MainWindowController& c = f.svg();
    QCOMPARE(copied(c, [&] { c.copy(); }), QVariant(true));
    QCOMPARE(f.types(), (QStringList{ZySVGDocumentTypeName, "com.adobe.pdf", kEpsType, "public.tiff"}));
    QCOMPARE(f.pasteboard.objects.first().dataForType(ZySVGDocumentTypeName), kSvg);
  }

  void aFormatThatCannotBeMadeIsLeftOut() {
    CopyFixture f;
    MainWindowController& c = f.svg();
    f.service.lastProcess()->fail(PictureCall::Compose, kDied);
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(true));
    QCOMPARE(f.types(), (QStringList{"public.svg-image", "public.tiff"}));
  }

  void aProcessThatDiesLeavesTheClipboardAlone() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    f.service.lastProcess()->fail(PictureCall::Compose, kDied);
    NSPasteboardItem before;
    before.setData("before", "public.plain-text");
    f.pasteboard.writeObjects({before});
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(false));
    QCOMPARE(f.pasteboard.clearCount, 0);
    QCOMPARE(f.types(), (QStringList{"public.plain-text"}));
    QVERIFY(!c.messageBar()->message().isEmpty());
  }

  void aClipboardThatCannotBeHadIsTold() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    FailingPasteboard failing;
    c.setPasteboard(&failing);
    QCOMPARE(copied(c, [&] { c.doCopy(); }), QVariant(false));
    QCOMPARE(failing.writeCount, 1);
    QVERIFY(!c.messageBar()->message().isEmpty());
  }

  void copyReturnsBeforeAnythingIsMade() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Compose);
    QSignalSpy end(&c, &MainWindowController::copied);
    c.doCopy();  // a copy that waited here would never end
    QCOMPARE(f.pasteboard.writeCount, 0);
    select(*c.view(), {-50, -20}, {-10, 10});  // after the moment of copying
    process->release(PictureCall::Compose);
    QVERIFY(end.wait(20000));
    QCOMPARE(f.types().size(), 3);
    for (const ComposeRequest& each : process->composeRequests())
      QVERIFY(each.rect != QRectF(-50, -20, 40, 30));
  }

  void theLastCopyCounts() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Compose);
    QSignalSpy end(&c, &MainWindowController::copied);
    c.doCopy();
    QVERIFY(process->waitUntilHeld(PictureCall::Compose));
    c.copy();
    process->release(PictureCall::Compose);  // what others may take is composed for this one, too
    QVERIFY(end.count() == 1 || end.wait(20000));
    QTest::qWait(50);
    QCOMPARE(end.count(), 1);
    QCOMPARE(f.types(), (QStringList{kEpsType}));
    QCOMPARE(f.pasteboard.objects.first().dataForType(kEpsType), epsBytes());
  }

  void aWindowThatGoesAwayTakesItsCopyWithIt() {
    auto f = std::make_unique<CopyFixture>();
    MainWindowController& c = f->eps();
    const auto process = f->service.lastProcess();
    process->hold(PictureCall::Compose);
    c.doCopy();
    QVERIFY(process->waitUntilHeld(PictureCall::Compose));
    // A copy that is not ended with its window waits at the latch, and the end of the window for the copy:
    // after a while the latch opens, and the call comes to its end without having been cancelled.
    std::atomic<bool> gone = false;
    std::thread patience([&] {
      for (int i = 0; i < 500 && !gone; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
      process->release(PictureCall::Compose);
    });
    f.reset();
    gone = true;
    patience.join();
    QVERIFY(process->cancelledCalls() > 0);
  }

  void theItemsOfToolbarAndMenuCopy() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    QVERIFY(c.copyToolbarItem->isEnabled() && c.copyToolbarItem->isVisible() &&
            c.doSaveToToolbarItem->isVisible());
    QCOMPARE(copied(c, [&] { c.copyToolbarItem->trigger(); }), QVariant(true));
    QCOMPARE(f.types().size(), 3);
    auto* whole = c.window()->findChild<QAction*>("copyAction");
    QVERIFY(whole->shortcuts().contains(QKeySequence(QKeySequence::Copy)));
    QCOMPARE(copied(c, [&] { whole->trigger(); }), QVariant(true));
    QCOMPARE(f.types(), (QStringList{kEpsType}));
  }

  void theCornersOfTheSelectionAreShown() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    c.norvexView(*c.view(), "12.5\t3", "", "");
    QCOMPARE(c.startPoint->text(), QString("(    12.50,     3.00)"));
    QCOMPARE(c.endPoint->text(), QString());
    c.norvexView(*c.view(), "  12.5\t3", "-7\t1234567.891", "1\t1");
    QCOMPARE(c.endPoint->text(), QString("(    -7.00,1234567.89)"));
    c.norvexView(*c.view(), "", "5\t5", "1\t1");
    QCOMPARE(c.startPoint->text(), QString());
    QCOMPARE(c.endPoint->text(), QString());
  }

  void aNumberThatCannotBeReadKeepsTheOneBefore() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    c.norvexView(*c.view(), "1\t2", "x\t9", "");
    QCOMPARE(c.endPoint->text(), QString("(     1.00,     2.00)"));
    c.norvexView(*c.view(), "1\t2", "7", "");
    QCOMPARE(c.endPoint->text(), QString("(     7.00,     2.00)"));
  }

  void otherProgramsAreOfferedVectorsFirst() {
    NSPasteboardItem item;
    item.setData("T", "public.tiff");
    item.setData("E", kEpsType);
    item.setData("P", "com.adobe.pdf");
    item.setData("S", "public.svg-image");
    item.setFallback("G", "public.png");
    const auto mime = mimeDataOf(item);
    QCOMPARE(mime->formats(),
             (QStringList{"image/svg+xml", "application/pdf", "image/x-eps", "application/postscript",
                          "image/x-e-postscript", "application/eps", "image/png", "image/tiff", "public.tiff",
                          kEpsType, "com.adobe.pdf", "public.svg-image"}));
    QCOMPARE(mime->data("image/x-e-postscript"), QByteArray("E"));
    QCOMPARE(mime->data("image/png"), QByteArray("G"));
    QCOMPARE(mime->data("com.adobe.pdf"), QByteArray("P"));
  }

  void anItemKeepsOneOfEachType() {
    NSPasteboardItem item;
    QVERIFY(item.types().isEmpty());
    item.setFallback("G", "public.png");
    QVERIFY(item.types().isEmpty());  // fallbacks are no types
    item.setData("1", "a");
    item.setData("2", "b");
    item.setData("3", "a");
    QCOMPARE(item.types(), (QStringList{"a", "b"}));
    QCOMPARE(item.dataForType("a"), QByteArray("3"));
    QCOMPARE(item.dataForType("c"), QByteArray());
  }

  void thePreviewIsDraggedOutAsTheWholeFile() {
    CopyFixture f;
    MainWindowController& c = f.eps();
    select(*c.view(), {-50, -20}, {-10, 10});  // has no say
    CopyCommand command(c);
    const auto dragged = command.draggedWhole();
    QVERIFY(dragged);
    QCOMPARE(dragged->name, QString("a.eps"));
    QCOMPARE(dragged->bytes(), epsBytes());
    QCOMPARE(c.previewImageView()->cursor().shape(), Qt::OpenHandCursor);
    CopyFixture none;
    MainWindowController& d = none.show("no picture", "a.eps", NorvexEPSType);
    QVERIFY(!CopyCommand(d).draggedWhole());
  }

  void aDraggedFileIsWrittenWhenItIsAskedFor() {
    int asked = 0;
    const DraggedFileData data({"pic_clip.pdf", [&asked] { return ++asked, QByteArray("%PDF"); }});
    QCOMPARE(data.formats(), QStringList{"text/uri-list"});
    QCOMPARE(asked, 0);
    const QList<QUrl> urls = data.urls();
    QCOMPARE(urls.size(), 1);
    QCOMPARE(urls.first().fileName(), QString("pic_clip.pdf"));
    QFile file(urls.first().toLocalFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("%PDF"));
    QCOMPARE(data.data("text/uri-list"), QByteArray(urls.first().toEncoded() + "\r\n"));
    QCOMPARE(asked, 1);
    const DraggedFileData none({"pic_clip.pdf", [] { return QByteArray(); }});
    QVERIFY(none.urls().isEmpty());
  }
};

NORVEX_TEST(CopyTest)
#include "copy_test.moc"
