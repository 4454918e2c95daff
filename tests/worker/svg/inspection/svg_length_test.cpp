// Lengths, view boxes and the size of a picture.
#include "worker/svg/inspection/svg_length.h"

#include <QRandomGenerator>
#include <QRegularExpression>

#include "kit/test_main.h"

using namespace norvex::engine;

class SvgLengthTest : public QObject {
  Q_OBJECT
 private slots:
  void unitsAreThoseOfCss_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("pixels");
    QTest::newRow("none") << "10" << 10.0;
    QTest::newRow("px") << "10px" << 10.0;
    QTest::newRow("pt") << "72pt" << 96.0;
    QTest::newRow("pc") << "6pc" << 96.0;
    QTest::newRow("in") << "1in" << 96.0;
    QTest::newRow("cm") << "2.54cm" << 96.0;
    QTest::newRow("mm") << "25.4mm" << 96.0;
    QTest::newRow("em") << "2em" << 24.0;
    QTest::newRow("ex") << "2ex" << 12.0;
    QTest::newRow("capitals") << "72PT" << 96.0;
    QTest::newRow("blanks around") << " 10px\n" << 10.0;
    QTest::newRow("every blank") << "\r\t\n\v\f 10\r" << 10.0;
    QTest::newRow("exponent") << "1e2" << 100.0;
    QTest::newRow("no digit before the point") << ".5in" << 48.0;
    QTest::newRow("negative") << "-10" << -10.0;
    QTest::newRow("exponent or em") << "1em" << 12.0;
    QTest::newRow("exponent and em") << "1e1em" << 120.0;
    QTest::newRow("plus") << "+10" << 10.0;
    QTest::newRow("point at the end") << "10.px" << 10.0;
  }
  void unitsAreThoseOfCss() {
    QFETCH(QString, text);
    QFETCH(double, pixels);
    const auto length = parseSvgLength(text);
    QVERIFY(length);
    QVERIFY(!length->isPercentage);
    QCOMPARE(length->pixels, pixels);
  }

  void aPercentageIsNoAbsoluteLength() {
    const auto length = parseSvgLength("50%");
    QVERIFY(length && length->isPercentage);
    QCOMPARE(length->percent, 50.0);
  }

  void anEmIsTheFontSize() { QCOMPARE(parseSvgLength("2em", 20)->pixels, 40.0); }

  void whatIsNoLengthIsNothing_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "px", "10 px", "10furlong", "1e999", "nan", "inf", "10;", "--1", "1.2.3",
                             ".", "+", "+.", "e5", "1e+", "1%%"})
      QTest::newRow(text) << QString::fromLatin1(text);
  }
  void whatIsNoLengthIsNothing() {
    QFETCH(QString, text);
    QVERIFY(!parseSvgLength(text));
  }

  void viewBoxes() {
    QCOMPARE(*parseViewBox("0 0 100 50"), QRectF(0, 0, 100, 50));
    QCOMPARE(*parseViewBox(" -10,-20 , 100\n50 "), QRectF(-10, -20, 100, 50));
    QCOMPARE(*parseViewBox("0 0 0 50"), QRectF(0, 0, 0, 50));
    for (const char* text : {"", "0 0 100", "0 0 100 50 1", "0 0 -1 50", "0 0 100 x", "0 0 1e999 1"})
      QVERIFY2(!parseViewBox(text), text);
  }

  /// Whatever the text: what the grammar says in one line is taken, and nothing else.
  void numbersAreThoseOfTheGrammar() {
    const QString number = "[+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?";
    const QRegularExpression length("^\\s*(" + number + ")(px|em|%|)\\s*$");
    const QRegularExpression box("^\\s*" + number + "(?:[\\s,]+" + number + "){3}\\s*$");
    const QRegularExpression outOfRange("[eE][+-]?[0-9]{3}");
    const QStringList pieces{"0",  "7",  "12", ".", "+", "-",  "e",        "E",
                             "px", "em", "%",  " ", ",", "\n", QChar(0xa0)};
    QRandomGenerator random(3);
    int lengths = 0, boxes = 0;
    for (int round = 0; round < 200'000; ++round) {
      QString text;
      for (quint32 left = random.bounded(1u, 14u); left > 0; --left)
        text += pieces[random.bounded(int(pieces.size()))];
      if (text.contains(outOfRange)) continue;
      const bool isLength = length.match(text).hasMatch();
      QVERIFY2(parseSvgLength(text).has_value() == isLength, qPrintable(text));
      lengths += isLength;
      text = random.bounded(2) ? "1" + text + " 2,3" : "0 0" + text + "4 5";
      const auto parsed = parseViewBox(text);
      const bool isBox = box.match(text).hasMatch();
      if (parsed) QVERIFY2(isBox, qPrintable(text));
      if (isBox && !text.contains('-') && !text.contains('e', Qt::CaseInsensitive))
        QVERIFY2(parsed, qPrintable(text));
      boxes += parsed.has_value();
    }
    QVERIFY(lengths > 500);
    QVERIFY(boxes > 500);
  }

  void theSizeOfThePicture_data() {
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QString>("viewBox");
    QTest::addColumn<QSizeF>("size");
    const QSizeF whole(400, 100);  // the view box of most rows
    const QString box = "0 0 400 100";
    QTest::newRow("both absolute") << "200"
                                   << "1in" << box << QSizeF(200, 96);
    QTest::newRow("both absent") << ""
                                 << "" << box << whole;
    QTest::newRow("both 100%") << "100%"
                               << "100%" << box << whole;
    QTest::newRow("both 50%") << "50%"
                              << "50%" << box << QSizeF(200, 50);
    QTest::newRow("width alone keeps the proportion") << "200"
                                                      << "" << box << QSizeF(200, 50);
    QTest::newRow("height alone keeps the proportion") << ""
                                                       << "50" << box << QSizeF(200, 50);
    QTest::newRow("width and a percentage") << "200"
                                            << "50%" << box << QSizeF(200, 25);
    QTest::newRow("nothing at all: what is drawn") << ""
                                                   << ""
                                                   << "" << QSizeF(70, 30);
    QTest::newRow("width alone, no view box") << "200"
                                              << ""
                                              << "" << QSizeF(200, 30);
    QTest::newRow("an empty view box counts as none") << ""
                                                      << ""
                                                      << "0 0 0 10" << QSizeF(70, 30);
    QTest::newRow("negative counts as absent") << "-1"
                                               << "" << box << whole;
    QTest::newRow("unreadable counts as absent") << "wide"
                                                 << "" << box << whole;
    QTest::newRow("auto") << "auto"
                          << "auto" << box << whole;
    QTest::newRow("zero stays zero") << "0"
                                     << "10" << box << QSizeF(0, 10);
  }
  void theSizeOfThePicture() {
    QFETCH(QString, width);
    QFETCH(QString, height);
    QFETCH(QString, viewBox);
    QFETCH(QSizeF, size);
    QHash<QString, QString> attributes;
    if (!width.isEmpty()) attributes["width"] = width;
    if (!height.isEmpty()) attributes["height"] = height;
    if (!viewBox.isEmpty()) attributes["viewBox"] = viewBox;
    QCOMPARE(svgPixelSize(svgGeometry(attributes), [] { return QSizeF(70, 30); }), size);
  }

  void whereNothingIsDrawnTheSizeIsTheDefaultOfCss() {
    QCOMPARE(svgPixelSize(svgGeometry({}), [] { return QSizeF(); }), QSizeF(300, 150));
  }

  void theRootsFontSizeMeasuresItsEm() {
    const SvgGeometry geometry = svgGeometry({{"width", "10em"}, {"height", "10ex"}, {"font-size", "20px"}});
    QCOMPARE(geometry.width->pixels, 200.0);
    QCOMPARE(geometry.height->pixels, 100.0);
  }

  void aStyleIsStrongerThanAnAttribute() {
    QCOMPARE(svgGeometry({{"width", "10"}, {"style", "fill:red; width : 30px"}}).width->pixels, 30.0);
  }

  void whatIsPassedOverIsTold() {
    const SvgGeometry geometry = svgGeometry({{"width", "x"}, {"height", "-1"}, {"viewBox", "1 2"}});
    QVERIFY(geometry.badWidth && geometry.badHeight && geometry.badViewBox);
    QVERIFY(!geometry.width && !geometry.height && !geometry.viewBox);
    const SvgGeometry fine = svgGeometry({{"width", "1"}});
    QVERIFY(!fine.badWidth && !fine.badHeight && !fine.badViewBox);
  }
};

NORVEX_TEST(SvgLengthTest)
#include "svg_length_test.moc"
