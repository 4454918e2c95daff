// What is handed to the process that owns the clipboard afterwards.
#include <QCborArray>
#include <QCborValue>
#include <QMimeData>

#include "kit/test_main.h"
#include "ui/panels/clipboard_keeper.h"

using namespace norvex;

class ClipboardKeeperTest : public QObject {
  Q_OBJECT
 private slots:
  void everyFormatArrivesInItsOrder() {
    QMimeData data;
    data.setData("image/svg+xml", "<svg/>");
    data.setData("application/pdf", QByteArray("%PDF\0\xff", 6));
    data.setData("com.adobe.pdf", QByteArray("%PDF\0\xff", 6));
    data.setText("as text");
    const auto kept = unpackedMimeData(packedMimeData(data));
    QVERIFY(kept);
    QCOMPARE(kept->formats(), data.formats());
    for (const QString& format : data.formats()) QCOMPARE(kept->data(format), data.data(format));
  }

  void theSameContentIsHandedOverOnce() {
    const QByteArray large(100'000, 'x');
    QMimeData data;
    for (const char* name : {"image/x-eps", "application/postscript", "application/eps"})
      data.setData(QLatin1String(name), large);
    QVERIFY(packedMimeData(data).size() < 110'000);
  }

  void whatIsTooMuchIsLeftOutLargestFirst() {
    QMimeData data;
    data.setData("image/tiff", QByteArray(5000, 't'));
    data.setData("public.tiff", QByteArray(5000, 't'));
    data.setData("application/pdf", QByteArray(900, 'p'));
    data.setData("image/png", QByteArray(90, 'g'));
    const auto kept = unpackedMimeData(packedMimeData(data, 1000));
    QVERIFY(kept);
    QCOMPARE(kept->formats(), (QStringList{"application/pdf", "image/png"}));
    QVERIFY(packedMimeData(data, 10).isEmpty());
  }

  void nothingIsMadeOfAnythingElse() {
    QVERIFY(packedMimeData({}).isEmpty());
    QVERIFY(!unpackedMimeData({}));
    QVERIFY(!unpackedMimeData("%PDF-1.7"));
    QMimeData data;
    data.setData("application/pdf", QByteArray(900, 'p'));
    const QByteArray packed = packedMimeData(data);
    for (qsizetype length = 0; length < packed.size(); length += 7)
      QVERIFY(!unpackedMimeData(packed.left(length)));
    const QByteArray mark("norvex clipboard 1\n");
    QVERIFY(packed.startsWith(mark));
    for (const int place : {-1, 0, 1}) {  // of the content: there is one
      QCborArray formats;
      formats << QCborArray{"application/pdf", place};
      const bool isThere =
          unpackedMimeData(mark + QCborValue(QCborArray{formats, QCborArray{packed}}).toCbor()) != nullptr;
      QCOMPARE(isThere, place == 0);
    }
  }

  void withoutAnXServerNothingIsLeft() {
    QVERIFY(!leaveClipboardTo("/bin/true"));  // the tests have none
  }
};

NORVEX_TEST(ClipboardKeeperTest)
#include "clipboard_keeper_test.moc"
