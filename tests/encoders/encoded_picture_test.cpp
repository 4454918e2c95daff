// Which facts of a picture a file of each format has no room for.
#include "encoders/encoded_picture.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

HeaderDictionary everyFact() {
  HeaderDictionary facts;
  for (const QString& key : {header::Title, header::Creator, header::CreationDate, header::For,
                             header::Copyright, header::Description})
    facts.insert(key, QStringLiteral("something"));
  return facts;
}

}  // namespace

class EncodedPictureTest : public QObject {
  Q_OBJECT
 private slots:
  void whatHasNoRoomIsNamed_data() {
    QTest::addColumn<PictureKind>("source");
    QTest::addColumn<PictureFormat>("format");
    QTest::addColumn<QStringList>("lost");
    const auto row = [](const char* name, PictureKind source, PictureFormat format, const QStringList& lost) {
      QTest::newRow(name) << source << format << lost;
    };
    using enum PictureFormat;
    row("SVG to EPS", PictureKind::Svg, Eps, {header::Description});
    row("SVG to EPSI", PictureKind::Svg, Epsi, {header::Description});
    row("PDF to EPS", PictureKind::Pdf, Eps, {header::Description});
    row("PDF to PDF", PictureKind::Pdf, Pdf, {header::Copyright});
    row("EPS to PDF", PictureKind::Eps, Pdf, {header::CreationDate, header::Copyright, header::Description});
    row("SVG to PDF", PictureKind::Svg, Pdf, {header::CreationDate, header::Copyright, header::Description});
    row("SVG to SVG", PictureKind::Svg, Svg,
        {header::Creator, header::CreationDate, header::For, header::Copyright});
    row("SVG to SVGZ", PictureKind::Svg, Svgz,
        {header::Creator, header::CreationDate, header::For, header::Copyright});
    row("EPS to SVG", PictureKind::Eps, Svg, {});
    row("PDF to SVGZ", PictureKind::Pdf, Svgz, {});
    row("EPS to PNG", PictureKind::Eps, Png,
        {header::Title, header::Creator, header::CreationDate, header::For, header::Copyright,
         header::Description});
  }
  void whatHasNoRoomIsNamed() {
    QFETCH(PictureKind, source);
    QFETCH(PictureFormat, format);
    QFETCH(QStringList, lost);
    QCOMPARE(metadataLost(everyFact(), source, format, false), lost);
    QCOMPARE(metadataLost(everyFact(), source, format, true), QStringList());
  }

  void whatIsNotSaidIsNotLost() {
    HeaderDictionary facts;
    facts.insert(header::Title, QStringLiteral(" \n "));
    facts.insert(header::Creator, QVariant());
    QCOMPARE(metadataLost(facts, PictureKind::Eps, PictureFormat::Png, false), QStringList());
  }
};

NORVEX_TEST(EncodedPictureTest)
#include "encoded_picture_test.moc"
