// The header dictionary of SVG documents.
#include "picture/svg_header.h"

#include "kit/test_main.h"
#include "picture/web_image_rep.h"

using namespace norvex;

class SvgHeaderTest : public QObject {
  Q_OBJECT
 private slots:
  void withoutADocumentThereIsTheColourSpaceAlone() {
    const HeaderDictionary dictionary = svgHeader(Error{ErrorKind::NotParsable, "no SVG"});
    QCOMPARE(dictionary.keys(), QStringList({"ColorSpace"}));
    QCOMPARE(dictionary.value(header::ColorSpace).value<QColorSpace>(), QColorSpace(QColorSpace::SRgb));
  }

  void withoutAColourSpaceItIsSrgb() {
    const HeaderDictionary dictionary = svgHeader(PictureFacts());
    QCOMPARE(dictionary.keys(), QStringList({"ColorSpace"}));
    QCOMPARE(dictionary.value(header::ColorSpace).value<QColorSpace>(), QColorSpace(QColorSpace::SRgb));
  }

  void theDocumentsOwnColourSpaceIsKept() {
    const QColorSpace own(QColorSpace::DisplayP3);
    const HeaderDictionary dictionary = svgHeader(PictureFacts(), own);
    QCOMPARE(dictionary.value(header::ColorSpace).value<QColorSpace>(), own);
  }

  void everythingThatIsSupplied() {
    PictureFacts facts;
    facts.title = "t";
    facts.description = "d";
    facts.encodingName = "utf-8";
    facts.encodingNumber = 4;
    facts.fixedRatioX = true;
    facts.fixedRatioY = false;
    const HeaderDictionary dictionary = svgHeader(facts);
    QCOMPARE(dictionary.value(header::Title).toString(), "t");
    QCOMPARE(dictionary.value(header::Description).toString(), "d");
    QCOMPARE(dictionary.value(header::Encoding).toString(), "utf-8");
    QCOMPARE(dictionary.value(header::EncodingNumber).toLongLong(), 4);
    QCOMPARE(dictionary.value(header::EncodingNumber).typeId(), QMetaType::LongLong);
    QCOMPARE(dictionary.value(ZyWebViewFixedRatioXKey), QVariant(true));
    QCOMPARE(dictionary.value(ZyWebViewFixedRatioYKey), QVariant(false));
    QCOMPARE(dictionary.size(), 7);
  }

  void aRatioThatIsNotStatedIsAbsent() {
    PictureFacts facts;
    facts.fixedRatioX = true;
    const HeaderDictionary dictionary = svgHeader(facts);
    QVERIFY(dictionary.contains(ZyWebViewFixedRatioXKey));
    QVERIFY(!dictionary.contains(ZyWebViewFixedRatioYKey));
  }
};

NORVEX_TEST(SvgHeaderTest)
#include "svg_header_test.moc"
