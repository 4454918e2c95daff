// The desktop's clipboard: under which names a picture lies there.
#include "ui/panels/qt_pasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "kit/test_main.h"
#include "types/uniform_type.h"

using namespace norvex;

class QtPasteboardTest : public QObject {
  Q_OBJECT
 private slots:
  void everyTypeHasTheNamesThatOtherProgramsAskFor() {
    QCOMPARE(clipboardTargets(UTTypeSVG().identifier()), QStringList{"image/svg+xml"});
    QCOMPARE(clipboardTargets(UTTypePDF().identifier()), QStringList{"application/pdf"});
    QCOMPARE(clipboardTargets(NorvexEPSType), (QStringList{"image/x-eps", "application/postscript",
                                                           "image/x-e-postscript", "application/eps"}));
    QCOMPARE(clipboardTargets(UTTypePNG().identifier()), QStringList{"image/png"});
    QCOMPARE(clipboardTargets(UTTypeTIFF().identifier()), QStringList{"image/tiff"});
    QVERIFY(clipboardTargets("org.example.unknown").isEmpty());
  }

  void whatStaysSharpComesFirst() {
    NSPasteboardItem item;
    item.setData("tiff", UTTypeTIFF().identifier());
    item.setData("pdf", UTTypePDF().identifier());
    item.setFallback("svg", UTTypeSVG().identifier());
    item.setData("own", "org.example.unknown");
    const auto mime = mimeDataOf(item);
    QCOMPARE(mime->formats(),
             (QStringList{"image/svg+xml", "application/pdf", "image/tiff", UTTypeTIFF().identifier(),
                          UTTypePDF().identifier(), "org.example.unknown"}));
    QCOMPARE(mime->data("image/svg+xml"), QByteArray("svg"));
    QCOMPARE(mime->data("application/pdf"), QByteArray("pdf"));
    QCOMPARE(mime->data("org.example.unknown"), QByteArray("own"));
  }

  void thereIsRoomForOneThing() {
    NSPasteboardItem first, second;
    first.setData("one", UTTypePDF().identifier());
    second.setData("two", UTTypePDF().identifier());
    QtPasteboard board;
    QVERIFY(!board.writeObjects({}));
    static_cast<void>(board.writeObjects({first, second}));  // the tests' platform owns no clipboard
    QCOMPARE(QGuiApplication::clipboard()->mimeData()->data("application/pdf"), QByteArray("one"));
  }
};

NORVEX_TEST(QtPasteboardTest)
#include "qt_pasteboard_test.moc"
