// Types as identifiers and their conformance.
#include "types/uniform_type.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

UTType type(const QString& identifier) {
  return *UTType::typeWithIdentifier(identifier);
}

}  // namespace

class UniformTypeTest : public QObject {
  Q_OBJECT
 private slots:
  void everyTypeConformsToItself() {
    for (const QString& identifier : {NorvexEPSType, NorvexEPSIType, NorvexIllustratorType, NorvexSVGZType})
      QVERIFY(type(identifier).conformsToType(identifier));
    QVERIFY(UTTypePDF().conformsToType(UTTypePDF()));
  }

  void compressedSvgIsSvg() {
    QVERIFY(type(NorvexSVGZType).conformsToType(UTTypeSVG()));
    QVERIFY(!UTTypeSVG().conformsToType(NorvexSVGZType));
  }

  void epsiIsNotAKindOfEps() {
    QVERIFY(!type(NorvexEPSIType).conformsToType(NorvexEPSType));
    QVERIFY(!type(NorvexEPSType).conformsToType(NorvexEPSIType));
    QVERIFY(type(NorvexEPSIType).conformsToType(PostScriptType));
  }

  void illustratorIsNeitherPdfNorEps() {
    QVERIFY(!type(NorvexIllustratorType).conformsToType(UTTypePDF()));
    QVERIFY(!type(NorvexIllustratorType).conformsToType(NorvexEPSType));
    QVERIFY(type(NorvexIllustratorType).conformsToType("public.image"));
  }

  void aDeclaredTypeConformsToItsParentsAndTheirs() {
    const UTType child = UTType::exportedTypeWithIdentifier("org.example.test.eps-child", {NorvexEPSType});
    const UTType grandchild =
        UTType::exportedTypeWithIdentifier("org.example.test.eps-grandchild", {child.identifier()});
    QVERIFY(grandchild.conformsToType(child));
    QVERIFY(grandchild.conformsToType(NorvexEPSType));
    QVERIFY(grandchild.conformsToType(PostScriptType));
    QVERIFY(!grandchild.conformsToType(UTTypePDF()));
    QVERIFY(type("org.example.test.eps-child").conformsToType(NorvexEPSType));
  }

  void theKindsAboveTheFormatsConformToOneAnother() {
    for (const char* above : {"public.text", "public.data", "public.content", "public.item"})
      QVERIFY2(type("public.plain-text").conformsToType(QLatin1String(above)), above);
    for (const char* above : {"public.composite-content", "public.content", "public.data"})
      QVERIFY2(type(PostScriptType).conformsToType(QLatin1String(above)), above);
    QVERIFY(!type("public.text").conformsToType("public.plain-text"));
    QVERIFY(type("org.gnu.gnu-zip-archive").conformsToType("public.archive"));
    QVERIFY(type("public.archive").conformsToType("public.data"));
    QVERIFY(type("public.xml").conformsToType("public.text"));
    QVERIFY(type("public.image").conformsToType("public.content"));
  }

  void declaringAgainChangesNothing() {
    UTType::exportedTypeWithIdentifier("com.adobe.pdf", {NorvexEPSType});
    QVERIFY(!UTTypePDF().conformsToType(NorvexEPSType));
  }

  void typesThatAreEachOthersParentsEnd() {
    UTType::exportedTypeWithIdentifier("org.example.test.a", {"org.example.test.b"});
    UTType::exportedTypeWithIdentifier("org.example.test.b", {"org.example.test.a"});
    QVERIFY(!type("org.example.test.a").conformsToType(UTTypePDF()));
    QVERIFY(type("org.example.test.a").conformsToType("org.example.test.b"));
  }

  void anUnknownIdentifierIsATypeOfItsOwn() {
    const UTType unknown = type("org.example.unknown");
    QCOMPARE(unknown.identifier(), "org.example.unknown");
    QVERIFY(unknown.conformsToType("org.example.unknown"));
    QVERIFY(!unknown.conformsToType("public.data"));
    QVERIFY(unknown.preferredFilenameExtension().isEmpty());
    QVERIFY(!UTType::typeWithIdentifier(""));
  }

  void letterCaseDoesNotCount() {
    QVERIFY(type("COM.ADOBE.PDF") == UTTypePDF());
    QVERIFY(type("Com.Adobe.Encapsulated-PostScript").conformsToType(NorvexEPSType));
    QVERIFY(type("org.example.X") == type("org.example.x"));
  }

  void extensions_data() {
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("identifier");
    QTest::newRow("eps") << "eps"
                         << "com.adobe.encapsulated-postscript";
    QTest::newRow("epsf") << "EPSF"
                          << "com.adobe.encapsulated-postscript";
    QTest::newRow("epsi") << "epsi"
                          << "com.Tembrolix.epsi";
    QTest::newRow("ai") << "ai"
                        << "com.adobe.illustrator.ai-image";
    QTest::newRow("pdf") << "Pdf"
                         << "com.adobe.pdf";
    QTest::newRow("svg") << "svg"
                         << "public.svg-image";
    QTest::newRow("svgz") << "svgz"
                          << "com.Tembrolix.svgz";
    QTest::newRow("tif") << "tif"
                         << "public.tiff";
    QTest::newRow("png") << "png"
                         << "public.png";
    QTest::newRow("jpg") << "jpg"
                         << "public.jpeg";
    QTest::newRow("gif") << "gif"
                         << "com.compuserve.gif";
    QTest::newRow("ps") << "ps"
                        << "com.adobe.postscript";
    QTest::newRow("txt") << "txt"
                         << "public.plain-text";
    QTest::newRow("xml") << "xml"
                         << "public.xml";
    QTest::newRow("gz") << "gz"
                        << "org.gnu.gnu-zip-archive";
  }
  void extensions() {
    QFETCH(QString, extension);
    QFETCH(QString, identifier);
    const auto found = UTType::typeWithFilenameExtension(extension);
    QVERIFY(found);
    QCOMPARE(found->identifier(), identifier);
  }

  void noTypeHasAnUnknownExtensionOrMimeType() {
    QVERIFY(!UTType::typeWithFilenameExtension("xyz"));
    QVERIFY(!UTType::typeWithFilenameExtension(""));
    QVERIFY(!UTType::typeWithMIMEType("image/unheard-of"));
    QVERIFY(!UTType::typeWithMIMEType(""));
  }

  void mimeTypes_data() {
    QTest::addColumn<QString>("mimeType");
    QTest::addColumn<QString>("identifier");
    QTest::newRow("eps") << "image/x-eps"
                         << "com.adobe.encapsulated-postscript";
    QTest::newRow("eps alias") << "application/eps"
                               << "com.adobe.encapsulated-postscript";
    QTest::newRow("ai") << "application/illustrator"
                        << "com.adobe.illustrator.ai-image";
    QTest::newRow("ai alias") << "application/vnd.adobe.illustrator"
                              << "com.adobe.illustrator.ai-image";
    QTest::newRow("pdf") << "application/pdf"
                         << "com.adobe.pdf";
    QTest::newRow("pdf alias") << "application/x-pdf"
                               << "com.adobe.pdf";
    QTest::newRow("ps") << "application/postscript"
                        << "com.adobe.postscript";
    QTest::newRow("svg") << "image/svg+xml"
                         << "public.svg-image";
    QTest::newRow("svgz") << "image/svg+xml-compressed"
                          << "com.Tembrolix.svgz";
    QTest::newRow("ps alias") << "application/x-postscript"
                              << "com.adobe.postscript";
    QTest::newRow("text") << "text/plain"
                          << "public.plain-text";
    QTest::newRow("xml") << "application/xml"
                         << "public.xml";
    QTest::newRow("xml alias") << "text/xml"
                               << "public.xml";
    QTest::newRow("gzip") << "application/gzip"
                          << "org.gnu.gnu-zip-archive";
    QTest::newRow("gzip alias") << "application/x-gzip"
                                << "org.gnu.gnu-zip-archive";
    QTest::newRow("bytes") << "application/octet-stream"
                           << "public.data";
    QTest::newRow("letter case") << "IMAGE/PNG"
                                 << "public.png";
  }
  void mimeTypes() {
    QFETCH(QString, mimeType);
    QFETCH(QString, identifier);
    const auto found = UTType::typeWithMIMEType(mimeType);
    QVERIFY(found);
    QCOMPARE(found->identifier(), identifier);
  }

  void preferredNames() {
    QCOMPARE(type(NorvexEPSType).preferredFilenameExtension(), "eps");
    QCOMPARE(type(NorvexEPSIType).preferredFilenameExtension(), "epsi");
    QCOMPARE(type(NorvexEPSType).preferredMIMEType(), "image/x-eps");
    QCOMPARE(UTTypePDF().preferredFilenameExtension(), "pdf");
    QCOMPARE(UTTypeSVG().preferredFilenameExtension(), "svg");
    QCOMPARE(UTTypeSVG().preferredMIMEType(), "image/svg+xml");
    QCOMPARE(UTTypeTIFF().preferredFilenameExtension(), "tiff");
    QCOMPARE(UTTypeJPEG().preferredFilenameExtension(), "jpeg");
    QCOMPARE(UTTypeGIF().preferredMIMEType(), "image/gif");
    QCOMPARE(UTTypePNG().preferredFilenameExtension(), "png");
  }
};

NORVEX_TEST(UniformTypeTest)
#include "uniform_type_test.moc"
