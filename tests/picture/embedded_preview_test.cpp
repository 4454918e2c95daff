// The preview of an EPS file, whichever of the three forms it has.
#include "picture/embedded_preview.h"

#include <QtEndian>

#include "kit/test_main.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;

namespace {

const QByteArray kProgram("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n%%EndComments\nshowpage\n");
const QByteArray kInterchange("%%BeginPreview: 8 1 1 1\n%A5\n%%EndPreview\n");

/// A binary file of a program and the sections of a metafile and a TIFF.
QByteArray binary(const QByteArray& program, const QByteArray& metafile, const QByteArray& tiff) {
  QByteArray header(30, '\0');
  header.replace(0, 4, "\xC5\xD0\xD3\xC6");
  qsizetype at = 4, from = header.size();
  for (const QByteArray& section : {program, metafile, tiff}) {
    if (!section.isEmpty()) qToLittleEndian(quint32(from), header.data() + at);
    qToLittleEndian(quint32(section.size()), header.data() + at + 4);
    from += section.size();
    at += 8;
  }
  return header + program + metafile + tiff;
}

NSBitmapImageRep decoded() {
  NSBitmapImageRep raster;
  raster.pixelsWide = 3;
  raster.pixelsHigh = raster.bytesPerRow = 3;
  raster.data = "decoded..";
  return raster;
}

}  // namespace

class EmbeddedPreviewTest : public QObject {
  Q_OBJECT
 private slots:
  void aSectionIsDecodedByTheProcess_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("TIFF") << binary(kProgram, {}, "II*");
    QTest::newRow("metafile") << binary(kProgram, "metafile", {});
    QTest::newRow("both") << binary(kProgram, "metafile", "II*");
  }
  void aSectionIsDecodedByTheProcess() {
    QFETCH(QByteArray, file);
    MemoryPictureService service;
    service.setPreview(decoded());
    const auto preview = embeddedPreview(service, file);
    QVERIFY(preview && *preview);
    QCOMPARE((*preview)->data, decoded().data);
    QCOMPARE(service.previewCount(), 1);
    service.setPreview(Error{ErrorKind::NotParsable, QStringLiteral("no preview at all")});
    const auto broken = embeddedPreview(service, file);
    QVERIFY(!broken);
    QCOMPARE(broken.error().message, "no preview at all");
  }

  void anInterchangePreviewNeedsNoProcess() {
    MemoryPictureService service;
    const auto preview = embeddedPreview(service, kProgram + kInterchange);
    QVERIFY(preview && *preview);
    QCOMPARE((*preview)->data, QByteArray("\x5A"));
    QCOMPARE(service.previewCount(), 0);
    const auto broken = embeddedPreview(service, kProgram + "%%BeginPreview: 8 0 1 1\n");
    QVERIFY(!broken);
    QCOMPARE(broken.error().message, "the embedded preview is malformed");
  }

  void withoutAPreviewThereIsNone() {
    MemoryPictureService service;
    for (const QByteArray& file : {kProgram, binary(kProgram, {}, {}), QByteArray()}) {
      const auto preview = embeddedPreview(service, file);
      QVERIFY(preview.ok());
      QVERIFY(!*preview);
    }
    QCOMPARE(service.previewCount(), 0);
  }
};

NORVEX_TEST(EmbeddedPreviewTest)
#include "embedded_preview_test.moc"
