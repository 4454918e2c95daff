// Which of the five kinds a type is.
#include "types/document_kind.h"

#include "kit/test_main.h"
#include "types/uniform_type.h"

using namespace norvex;

class DocumentKindTest : public QObject {
  Q_OBJECT
 private slots:
  void everyTypeHasItsKind_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<DocumentKind>("kind");
    QTest::newRow("SVG") << UTTypeSVG().identifier() << DocumentKind::Svg;
    QTest::newRow("compressed SVG") << "com.Tembrolix.svgz" << DocumentKind::Svg;
    QTest::newRow("EPS") << "com.adobe.encapsulated-postscript" << DocumentKind::Eps;
    QTest::newRow("EPSI") << "com.Tembrolix.epsi" << DocumentKind::Eps;
    QTest::newRow("Illustrator") << "com.adobe.illustrator.ai-image" << DocumentKind::Illustrator;
    QTest::newRow("PDF") << UTTypePDF().identifier() << DocumentKind::Pdf;
    QTest::newRow("text") << "public.plain-text" << DocumentKind::Other;
    QTest::newRow("unknown") << "org.example.unknown" << DocumentKind::Other;
    QTest::newRow("no type") << QString() << DocumentKind::Other;
  }
  void everyTypeHasItsKind() {
    QFETCH(QString, type);
    QFETCH(DocumentKind, kind);
    QCOMPARE(documentKind(type), kind);
  }

  void aSubtypeHasTheKindThatIsTestedFirst() {
    UTType::exportedTypeWithIdentifier("org.example.kind-of-ai", {"com.adobe.illustrator.ai-image"});
    QCOMPARE(documentKind("org.example.kind-of-ai"), DocumentKind::Illustrator);
    UTType::exportedTypeWithIdentifier(
        "org.example.eps-and-ai", {"com.adobe.illustrator.ai-image", "com.adobe.encapsulated-postscript"});
    QCOMPARE(documentKind("org.example.eps-and-ai"), DocumentKind::Eps);
  }
};

NORVEX_TEST(DocumentKindTest)
#include "document_kind_test.moc"
