// SVG documents that reach a limit: a sentence names it, or what they are made of is bounded by it.
#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;
using kit::OpenSvg;
using kit::svgOf;

namespace {

Error errorOf(const QByteArray& svg) {
  OpenSvg document(svg);
  return document.ok() ? Error{ErrorKind::Unsupported, QString()} : document.result.error();
}

QByteArray withStyle(const QByteArray& style) {
  return svgOf("width='9' height='9'", "<text style='" + style + "' y='9'>a</text>");
}

/// Groups that each show the next one.
QByteArray chainOfReferences(int length) {
  QByteArray groups;
  for (int i = 0; i < length; ++i)
    groups +=
        "<g id='g" + QByteArray::number(i) + "'><use xlink:href='#g" + QByteArray::number(i + 1) + "'/></g>";
  return svgOf("width='9' height='9'", "<defs>" + groups + "<g id='g" + QByteArray::number(length) +
                                           "'/></defs><use xlink:href='#g0'/>");
}

QByteArray selectorsWithin(int depth) {
  return svgOf("width='9' height='9'", "<style>" + QByteArray(":not(").repeated(depth) + "a" +
                                           QByteArray(")").repeated(depth) + "{fill:red}</style>");
}

QByteArray entity(qsizetype bytes, int uses) {
  return "<!DOCTYPE svg [<!ENTITY e '" + QByteArray(bytes, 'x') + "'>]>" +
         svgOf("width='9' height='9'", "<desc>" + QByteArray("&e;").repeated(uses) + "</desc>");
}

QByteArray matrixOf(int numbers) {
  return svgOf("width='9' height='9'",
               "<filter id='f'><feConvolveMatrix order='" + QByteArray::number(numbers) + ",1'/></filter>");
}

}  // namespace

class SvgLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void aReachedLimitIsNamed_data() {
    QTest::addColumn<QByteArray>("within");
    QTest::addColumn<QByteArray>("beyond");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const char* name, const QByteArray& within, const QByteArray& beyond,
                        const QString& sentence) { QTest::newRow(name) << within << beyond << sentence; };
    row("references", chainOfReferences(limits::maximumDrawingDepth / 2 - 2),
        chainOfReferences(limits::maximumDrawingDepth + 1),
        QStringLiteral("the references of the document nest more than %1 deep")
            .arg(limits::maximumDrawingDepth));
    row("selectors", selectorsWithin(limits::maximumSelectorDepth - 1),
        selectorsWithin(limits::maximumSelectorDepth + 1),
        QStringLiteral("the selectors of the document's style sheets nest more than %1 deep")
            .arg(limits::maximumSelectorDepth));
    row("letters", withStyle("font-size:" + QByteArray::number(limits::maximumSvgFont, 'f', 0)),
        withStyle("font-size:" + QByteArray::number(limits::maximumSvgFont + 1, 'f', 0)),
        QStringLiteral("the document has text of more than %1 units in size")
            .arg(limits::maximumSvgFont, 0, 'f', 0));
    row("matrices", matrixOf(int(limits::maximumFilterMatrix)),
        matrixOf(int(limits::maximumFilterMatrix) + 1),
        QStringLiteral("the document has a filter with a matrix of more than %1 numbers")
            .arg(limits::maximumFilterMatrix));
    row("expansion", entity(1 << 20, int(limits::maximumEntityExpansion >> 20) - 2),
        entity(1 << 20, int(limits::maximumEntityExpansion >> 20) + 1),
        QStringLiteral("the entities of the document expand to more than %1 MiB")
            .arg(limits::maximumEntityExpansion >> 20));
  }
  void aReachedLimitIsNamed() {
    QFETCH(QByteArray, within);
    QFETCH(QByteArray, beyond);
    QFETCH(QString, sentence);
    QCOMPARE(errorOf(within).message, QString());
    const Error error = errorOf(beyond);
    QCOMPARE(error.message, sentence);
    QCOMPARE(error.kind, ErrorKind::Limit);
  }

  void aBombIsNotUnpacked() {
    const QByteArray blanks(qsizetype(limits::maximumInflateRatio) << 12, ' ');
    const Error error = errorOf(kit::gzipped(blanks));
    QCOMPARE(error.kind, ErrorKind::Limit);
    QCOMPARE(error.message, QStringLiteral("the compressed data grows to more than %1 times its size")
                                .arg(limits::maximumInflateRatio));
  }

  void aLongShorthandIsNotRead() {
    const auto fonts = [](qsizetype length) {
      OpenSvg document(withStyle("font:9px " + QByteArray(length - 4, 'A')));
      return document->facts()->fonts.size();
    };
    QCOMPARE(fonts(limits::maximumFontShorthand), 1);
    QCOMPARE(fonts(limits::maximumFontShorthand + 1), 0);
  }

  /// A layer as large as the whole picture at this zoom is beyond what can be made.
  void layersAreMadeOfThePartThatIsShown_data() {
    QTest::addColumn<QSizeF>("pixels");
    QTest::newRow("a side") << QSizeF(limits::maximumLayerSide * 3, 4);
    const double side = std::sqrt(limits::maximumLayerPixels) * 2;
    QTest::newRow("pixels") << QSizeF(side, side);
  }
  void layersAreMadeOfThePartThatIsShown() {
    QFETCH(QSizeF, pixels);
    const QSizeF user = pixels / 1000;
    OpenSvg document(svgOf(
        "width='" + QByteArray::number(user.width()) + "' height='" + QByteArray::number(user.height()) + "'",
        "<filter id='f'><feOffset dx='0' dy='0'/></filter>"
        "<rect width='999' height='999' filter='url(#f)' fill='#00f'/>"));
    QVERIFY(document.ok());
    RenderRequest request;
    request.pixelSize = QSize(4, 4);
    const double scale = 1000 * 4.0 / 3;
    request.pictureToDevice = AffineTransform(scale, 0, 0, -scale, -pixels.width() / 2,
                                              user.height() * 0.75 * scale - pixels.height() / 2 + 2);
    document.context.limits.memoryMiB = 64;
    const Result<QImage> image = kit::imageOf(document->render(request));
    QVERIFY2(image, image ? "" : qPrintable(image.error().message));
    QCOMPARE(image->pixel(2, 2), 0xff0000ffu);
  }

  void imagesOfEffectsHaveNoMorePixelsThanThat() {
    OpenSvg document(svgOf("width='4000' height='1000'",
                           "<filter id='f'><feGaussianBlur stdDeviation='3'/></filter>"
                           "<rect x='20' y='10' width='50' height='20' filter='url(#f)'/>"));
    const Result<EngineBytes> pdf = document->pdf({});
    QVERIFY(pdf);
    const double points = 4000 * 0.75 * 1000 * 0.75;
    QVERIFY(points * 300 * 300 > limits::maximumEffectPixels * 72 * 72);
    QCOMPARE(pdf->report.rasterisedDpi, 72 * std::sqrt(limits::maximumEffectPixels / points));
  }
};

NORVEX_TEST(SvgLimitsTest)
#include "svg_limits_test.moc"
