// Inks keep their names in EPS, and whoever has not got the ink sees the colour of the screen.
#include <QFile>

#include <lcms2.h>

#include "kit/test_main.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using kit::Converted;
using kit::drawn;
using kit::onePage;

namespace {

QByteArray profileBytes(cmsHPROFILE profile) {
  cmsUInt32Number size = 0;
  cmsSaveProfileToMem(profile, nullptr, &size);
  QByteArray bytes(qsizetype(size), '\0');
  cmsSaveProfileToMem(profile, bytes.data(), &size);
  cmsCloseProfile(profile);
  return bytes;
}

QByteArray grayProfile() {
  cmsToneCurve* curve = cmsBuildGamma(nullptr, 2.2);
  const QByteArray bytes = profileBytes(cmsCreateGrayProfile(cmsD50_xyY(), curve));
  cmsFreeToneCurve(curve);
  return bytes;
}

QByteArray cmykProfile() {
  QFile file("/usr/share/color/icc/ghostscript/default_cmyk.icc");
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QByteArray kGray = "0.3";
const QByteArray kRgb = "0.35 0.12 0.63";
const QByteArray kCmyk = "0.6 0.9 0 0.1";
const QByteArray kLab = "35 45 -50";
const QByteArray kNoRgb = "1 1 1";

int most(QRgb a, QRgb b) {
  return std::max(
      {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

}  // namespace

class EpsColoursTest : public QObject {
  Q_OBJECT
 private slots:
  void inksLookAsOnTheScreen_data() {
    QTest::addColumn<QByteArray>("space");    // the alternate one; a profile is object 6
    QTest::addColumn<QByteArray>("nothing");  // of the ink
    QTest::addColumn<QByteArray>("full");
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<int>("tolerance");
    const QByteArray none;
    QTest::newRow("DeviceGray") << QByteArray("/DeviceGray") << QByteArray("1") << kGray << none << 4;
    QTest::newRow("DeviceRGB") << QByteArray("/DeviceRGB") << kNoRgb << kRgb << none << 4;
    // The two make RGB of CMYK differently.
    QTest::newRow("DeviceCMYK") << QByteArray("/DeviceCMYK") << QByteArray("0 0 0 0") << kCmyk << none << 60;
    // The screen gives it a tint.
    QTest::newRow("CalGray") << QByteArray("[/CalGray << /WhitePoint [0.9642 1 0.8249] /Gamma 2.2 >>]")
                             << QByteArray("1") << kGray << none << 24;
    QTest::newRow("CalRGB") << QByteArray(
                                   "[/CalRGB << /WhitePoint [0.9505 1 1.089] /Gamma [2.2 2.2 2.2] /Matrix "
                                   "[0.4124 0.2126 0.0193 0.3576 0.7152 0.1192 0.1805 0.0722 0.9505] >>]")
                            << kNoRgb << kRgb << none << 12;
    QTest::newRow("Lab") << QByteArray(
                                "[/Lab << /WhitePoint [0.9642 1 0.8249] /Range [-128 127 -128 127] >>]")
                         << QByteArray("100 0 0") << kLab << none << 12;
    const QByteArray based = "[/ICCBased 6 0 R]";
    QTest::newRow("a gray profile") << based << QByteArray("1") << kGray << grayProfile() << 12;
    QTest::newRow("an RGB profile") << based << kNoRgb << kRgb << profileBytes(cmsCreate_sRGBProfile()) << 12;
    QTest::newRow("a Lab profile") << based << QByteArray("100 0 0") << kLab
                                   << profileBytes(cmsCreateLab2Profile(nullptr)) << 12;
    if (!cmykProfile().isEmpty())
      QTest::newRow("a CMYK profile") << based << QByteArray("0 0 0 0") << kCmyk << cmykProfile() << 20;
    QTest::newRow("a profile of another size")
        << based << QByteArray("1") << kGray << (profileBytes(cmsCreate_sRGBProfile()) + "/N 1") << 4;
  }
  void inksLookAsOnTheScreen() {
    QFETCH(QByteArray, space);
    QFETCH(QByteArray, nothing);
    QFETCH(QByteArray, full);
    QFETCH(QByteArray, profile);
    QFETCH(int, tolerance);
    const QByteArray components = QByteArray::number(full.count(' ') + 1);
    if (profile.endsWith("/N 1")) profile.chop(4);
    const QByteArray values = "/C0 [" + nothing + "] /C1 [" + full + "]";
    const QByteArray spot =
        "[/Separation /Spot#20Ink " + space + " << /FunctionType 2 /Domain [0 1] " + values + " /N 1 >>]";
    // Of two inks the first counts; as many components as the space has are made of it.
    QByteArray program = "{ pop ";
    const QList<QByteArray> from = nothing.split(' ');
    const QList<QByteArray> to = full.split(' ');
    for (qsizetype i = 0; i < from.size(); ++i)
      program += "dup " + QByteArray::number(to[i].toDouble() - from[i].toDouble()) + " mul " + from[i] +
                 " add exch ";
    program += "pop }";
    QByteArray range;
    for (qsizetype i = 0; i < from.size(); ++i) range += "-128 127 ";
    const QByteArray inks = "[/DeviceN [/First /Second] " + space + " 5 0 R]";
    const QByteArray pdf = onePage(
        "/Spot cs 1 scn 0 0 50 100 re f 0.5 scn 50 0 50 100 re f /Inks cs 1 0 scn 100 0 50 100 re f "
        "/Index cs 1 scn 150 0 50 100 re f",
        "/MediaBox [0 0 200 100] /Resources << /ColorSpace << /Spot " + spot + " /Inks " + inks +
            " /Index [/Indexed " + spot + " 1 <00FF>] >> >>",
        {kit::stream(program, "/FunctionType 4 /Domain [0 1 0 1] /Range [" + range + "]"),
         kit::stream(profile, "/N " + components)});
    Converted converted(pdf);
    QVERIFY(converted.eps().contains("/Separation (Spot Ink)"));
    QVERIFY(converted.eps().contains("(First)"));
    const QImage image = converted.byGhostscript();
    const QImage screen = drawn(pdf);
    QVERIFY(!image.isNull());
    for (const int x : {50, 150, 250, 350}) {
      const QString both =
          QString("%1: %2 %3").arg(x).arg(image.pixel(x, 100), 0, 16).arg(screen.pixel(x, 100), 0, 16);
      QVERIFY2(most(image.pixel(x, 100), screen.pixel(x, 100)) <= tolerance, qPrintable(both));
    }
  }

  void damagedImagesDoNotStopTheInterpreter_data() {
    QTest::addColumn<QByteArray>("data");
    const QByteArray whole = qCompress(QByteArray(30 * 30 * 3, '\x40')).mid(4);
    QByteArray pattern;
    for (int i = 0; i < 30 * 30 * 3; ++i) pattern += char((i * i) >> 5);
    const QByteArray packed = qCompress(pattern).mid(4);
    QTest::newRow("no zlib data") << QByteArray("no zlib data");
    QTest::newRow("a wrong header") << '\n' + whole;
    QTest::newRow("cut off") << packed.left(packed.size() / 2);
    QTest::newRow("nothing") << QByteArray();
  }
  void damagedImagesDoNotStopTheInterpreter() {
    QFETCH(QByteArray, data);
    const QByteArray pdf = onePage("q 90 0 0 90 5 5 cm /I Do Q 1 0 0 rg 150 20 40 40 re f",
                                   "/MediaBox [0 0 200 100] /Resources << /XObject << /I 5 0 R >> >>",
                                   {kit::stream(data,
                                                "/Type /XObject /Subtype /Image /Width 30 /Height 30 "
                                                "/BitsPerComponent 8 /ColorSpace /DeviceRGB /Filter "
                                                "/FlateDecode")});
    Converted converted(pdf);
    const QImage image = converted.byGhostscript();
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixel(340, 120), qRgb(255, 0, 0));
  }
};

NORVEX_TEST(EpsColoursTest)
#include "eps_colours_test.moc"
