// What every row of the table of formats keeps.
#include "types/picture_format.h"

#include <QSet>

#include "base/latin1_text.h"
#include "kit/test_main.h"
#include "types/document_kind.h"
#include "types/type_description.h"
#include "types/type_identification.h"

using namespace norvex;

class PictureFormatTest : public QObject {
  Q_OBJECT
 private slots:
  void nothingIsToldTwice() {
    QSet<int> ids;
    QSet<QString> names, extensions;
    for (const FormatRow& row : formatTable) {
      QVERIFY2(!ids.contains(int(row.id)), row.title);
      ids << int(row.id);
      if (isWritten(row)) {
        QVERIFY2(!names.contains(latin1(row.name)), row.name.data());
        names << latin1(row.name);
      }
      for (const std::string_view list : {row.extensions, row.otherExtensions})
        forEachWord(list, [&](std::string_view extension) {
          QVERIFY2(!extensions.contains(latin1(extension)), extension.data());
          extensions << latin1(extension);
        });
    }
  }

  void whatIsWrittenHasANameAnExtensionAndATitle() {
    for (const FormatRow& row : formatTable) {
      if (!isWritten(row)) continue;
      const QString extension = latin1(writtenExtension(row.id));
      QVERIFY2(!extension.isEmpty(), row.name.data());
      const auto type = UTType::typeWithFilenameExtension(extension);
      QVERIFY2(type && *type == typeOf(row.id), row.name.data());
      QVERIFY2(localizedDescription(typeOf(row.id)) != typeOf(row.id).identifier(), row.name.data());
      QCOMPARE(formatNamed(row.name), row.id);
    }
  }

  void aTypeIsDescribedByTheTitleOfItsFormat() {
    QCOMPARE(localizedDescription(typeOf(PictureFormat::Svgz)), "Compressed SVG image (SVGZ)");
    QCOMPARE(localizedDescription(typeOf(PictureFormat::Webp)), "WebP image");
    const UTType text = *UTType::typeWithIdentifier("public.plain-text");
    QCOMPARE(localizedDescription(text), text.identifier());
  }

  void listsHaveSingleBlanksAndSmallLetters() {
    for (const FormatRow& row : formatTable)
      for (const std::string_view list : {row.extensions, row.otherExtensions, row.parents, row.mimeTypes})
        forEachWord(list, [&](std::string_view word) { QVERIFY2(!word.empty(), row.title); });
    for (const FormatRow& row : formatTable)
      for (const std::string_view list : {row.name, row.extensions, row.otherExtensions, row.writtenAs})
        QCOMPARE(QString(latin1(list)), QString(latin1(list)).toLower());
  }

  void everyExtensionLeadsToItsRow() {
    for (const FormatRow& row : formatTable)
      forEachWord(row.extensions, [&](std::string_view extension) {
        QCOMPARE(formatOfExtension(extension), row.id);
        QCOMPARE(formatOfExtension(QString(latin1(extension)).toUpper().toStdString()), row.id);
      });
    QCOMPARE(formatOfExtension("eps"), PictureFormat::Eps);
    QVERIFY(!formatOfExtension("txt"));
    QVERIFY(!formatOfExtension(""));
    QVERIFY(!formatNamed(""));
    QVERIFY(!formatNamed("PDF"));
  }

  void everyTypeIsDeclaredAndOfItsKind() {
    for (const FormatRow& row : formatTable) {
      QCOMPARE(documentKind(latin1(row.type)), row.kind);
      QVERIFY2(typeOf(row.id).conformsToType("public.data"), row.title);
      forEachWord(row.mimeTypes, [&](std::string_view name) {
        const auto type = UTType::typeWithMIMEType(latin1(name));
        QVERIFY2(type && *type == typeOf(row.id), name.data());
      });
    }
  }

  void theBytesOfRasterFilesTellTheirFormat() {
    for (const FormatRow& row : formatTable) {
      QVERIFY2(!row.begins[0].empty() == (row.kind == DocumentKind::Other), row.title);
      for (const std::string_view mark : row.begins) {
        if (mark.empty()) continue;
        const QByteArray bytes(mark.data(), qsizetype(mark.size()));
        QCOMPARE(identifyType(bytes + "and more", "a.txt").identifier(), QString(latin1(row.type)));
        QVERIFY(!(identifyType(bytes.chopped(1), "a.txt") == typeOf(row.id)));
      }
    }
  }

  void aKindsOwnExtensionsComeFirst() {
    QCOMPARE(extensionsOf(DocumentKind::Eps), QStringList({"eps", "epsi", "epsf"}));
    QCOMPARE(extensionsOf(DocumentKind::Illustrator), QStringList({"ai"}));
    QCOMPARE(extensionsOf(DocumentKind::Svg), QStringList({"svg", "svgz"}));
  }

  void onlyPixelsMayLoseQuality() {
    for (const FormatRow& row : formatTable) {
      QVERIFY2(row.quality == NoQuality || isRaster(row.id), row.title);
      QVERIFY2(row.quality >= NoQuality && row.quality <= 100, row.title);
    }
    QCOMPARE(rowOf(PictureFormat::Jpeg).quality, 90);
  }

  void theCommandLineGivesTheUsualExtension() {
    QCOMPARE(writtenExtension(PictureFormat::EpsPreview), "eps");
    QCOMPARE(writtenExtension(PictureFormat::Jpeg), "jpg");
    QCOMPARE(typeOf(PictureFormat::Jpeg).preferredFilenameExtension(), "jpeg");
    QCOMPARE(writtenExtension(PictureFormat::Tiff), "tiff");
  }
};

NORVEX_TEST(PictureFormatTest)
#include "picture_format_test.moc"
