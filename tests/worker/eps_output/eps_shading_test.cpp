#include <QFile>

#include <array>
#include <cmath>
#include <functional>

#include "kit/test_main.h"
#include "worker/eps_output/postscript_shading.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;
using kit::Converted;

namespace {

const QByteArray kRainbow =
    "<< /FunctionType 3 /Domain [0 1] /Bounds [0.5] /Encode [0 1 0 1] /Functions ["
    "<< /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 1 0] /N 1 >> "
    "<< /FunctionType 2 /Domain [0 1] /C0 [0 1 0] /C1 [0 0 1] /N 1 >>] >>";
const QByteArray kInk =
    "[/Separation /Spot#20Green /DeviceCMYK << /FunctionType 2 /Domain [0 1] /C0 [0 0 0 0] "
    "/C1 [0 0 0 0.3] /N 1 >>]";

using Colour = std::vector<double>;

// Eight bits a flag and a colour, sixteen a coordinate of 0 … 200.
class MeshData {
 public:
  MeshData& flag(int value) { return byte(value); }
  MeshData& point(double x, double y) {
    for (const double value : {x, y}) {
      const int whole = int(std::lround(value / 200 * 65535));
      byte(whole >> 8).byte(whole & 255);
    }
    return *this;
  }
  MeshData& colour(const Colour& values) {
    for (const double value : values) byte(int(std::lround(value * 255)));
    return *this;
  }
  [[nodiscard]] const QByteArray& bytes() const { return bytes_; }

 private:
  MeshData& byte(int value) {
    bytes_ += char(value);
    return *this;
  }
  QByteArray bytes_;
};

// The edge of a patch over [20 180] × [10 90] with bent sides, counter-clockwise from the lower-left corner.
void putEdge(MeshData& data) {
  for (const auto& [x, y] : std::initializer_list<std::pair<double, double>>{{20, 10},
                                                                             {10, 35},
                                                                             {30, 65},
                                                                             {20, 90},
                                                                             {70, 80},
                                                                             {130, 100},
                                                                             {180, 90},
                                                                             {190, 65},
                                                                             {170, 35},
                                                                             {180, 10},
                                                                             {130, 20},
                                                                             {70, 0}})
    data.point(x, y);
}

QByteArray meshOf(int type, const std::array<Colour, 4>& c) {
  MeshData data;
  if (type == 4) {
    data.flag(0).point(20, 10).colour(c[0]).flag(0).point(20, 90).colour(c[1]).flag(0).point(180, 90).colour(
        c[2]);
    data.flag(2).point(180, 10).colour(c[3]);  // joins the first and the last
  } else if (type == 5) {
    data.point(20, 10)
        .colour(c[0])
        .point(180, 10)
        .colour(c[3])
        .point(20, 90)
        .colour(c[1])
        .point(180, 90)
        .colour(c[2]);
  } else {
    data.flag(0);
    putEdge(data);
    if (type == 7) data.point(70, 35).point(70, 65).point(130, 65).point(130, 35);
    for (const Colour& colour : c) data.colour(colour);
  }
  return data.bytes();
}

QByteArray meshEntries(int type, const QByteArray& space, size_t components, const QByteArray& more = {}) {
  QByteArray entries = "/ShadingType " + QByteArray::number(type) + " /ColorSpace " + space +
                       " /BitsPerCoordinate 16 /BitsPerComponent 8 /Decode [0 200 0 200";
  for (size_t i = 0; i < components; ++i) entries += " 0 1";
  return entries + "] " + (type == 5 ? "/VerticesPerRow 2" : "/BitsPerFlag 8") + ' ' + more;
}

QByteArray mesh(int type, const QByteArray& space, const std::array<Colour, 4>& colours,
                const QByteArray& more = {}) {
  return kit::stream(meshOf(type, colours), meshEntries(type, space, colours[0].size(), more));
}

// A page of 200 × 100 points that shows object 5, by sh or as the pattern of a rectangle.
QByteArray pageWith(const QByteArray& shading, bool asPattern, const QByteArray& before = {}) {
  const QByteArray contents = asPattern ? "/Pattern cs /P scn 15 5 170 90 re f" : "/S sh";
  return kit::onePage(
      before + contents,
      "/MediaBox [0 0 200 100] /Resources << /Shading << /S 5 0 R >> /Pattern << /P << /PatternType 2 "
      "/Shading 5 0 R /Matrix [0.9 0 0 0.9 10 5] >> >> >>",
      {shading});
}

const std::array<Colour, 4> kRgb{Colour{1, 0, 0}, Colour{0, 1, 0}, Colour{0, 0, 1}, Colour{1, 1, 0}};
const std::array<Colour, 4> kCmyk{Colour{0, 0, 0, 1}, Colour{0, 0, 0, 0}, Colour{0, 0, 0, 0.5},
                                  Colour{0, 0, 0, 0.2}};
const std::array<Colour, 4> kOne{Colour{0}, Colour{0.4}, Colour{1}, Colour{0.7}};

}  // namespace

class EpsShadingTest : public QObject {
  Q_OBJECT
 private slots:
  void everyTypeIsLeftToTheInterpreter_data() {
    QTest::addColumn<QByteArray>("shading");
    QTest::addColumn<QByteArray>("type");
    const QByteArray sampled = "<< /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >>";
    QTest::newRow("axial")
        << "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [20 0 180 0] /Extend [true false] /Function " +
               kRainbow + " >>"
        << QByteArray("2");
    QTest::newRow("radial")
        << "<< /ShadingType 3 /ColorSpace /DeviceRGB /Coords [60 50 5 120 50 40] /Extend [true false] "
           "/Function " +
               sampled + " >>"
        << QByteArray("3");
    for (const int type : {4, 5, 6, 7}) {
      const QByteArray name = QByteArray::number(type);
      const QByteArray written = type < 6 ? "4" : "7";
      QTest::newRow("RGB " + name) << mesh(type, "/DeviceRGB", kRgb) << written;
      QTest::newRow("CMYK " + name) << mesh(type, "/DeviceCMYK", kCmyk) << written;
      QTest::newRow("gray " + name) << mesh(type, "/DeviceGray", kOne) << written;
      QTest::newRow("spot " + name) << mesh(type, kInk, kOne) << written;
    }
  }
  void everyTypeIsLeftToTheInterpreter() {
    QFETCH(QByteArray, shading);
    QFETCH(QByteArray, type);
    for (const bool asPattern : {false, true}) {
      const QByteArray pdf = pageWith(shading, asPattern);
      Converted converted(pdf);
      const QByteArray& eps = converted.eps();
      QCOMPARE(eps.count(">> NorvexShade\n"), 1);
      QVERIFY(eps.contains("/ShadingType " + type + ' '));
      QVERIFY(eps.contains("%%LanguageLevel: 3\n"));
      QVERIFY(!eps.contains(" image D flushfile"));
      QVERIFY2(eps.size() < 25000, qPrintable(QString::number(eps.size())));
      // CMYK becomes RGB in two ways; what is missing or moved is far above either bound.
      const double away = kit::difference(converted.byGhostscript(), kit::drawn(pdf));
      QVERIFY2(away < (eps.contains("/DeviceCMYK") ? 6 : 3), qPrintable(QString::number(away)));
    }
  }

  // What Poppler's drawing says of these differs in itself, so the colours are looked at one by one.
  void functionsGiveTheColoursOfMeshes() {
    for (const int type : {4, 5, 6, 7}) {
      const std::array<Colour, 4> ramp{Colour{0}, Colour{0}, Colour{1}, Colour{1}};
      Converted converted(pageWith(mesh(type, "/DeviceRGB", ramp, "/Function " + kRainbow), false));
      QVERIFY(converted.eps().contains(
          "/FunctionType 0 /Domain [0 1] /Range [0 1 0 1 0 1] /Size [3] /BitsPerSample 8"));
      const QImage image = converted.byGhostscript();
      QVERIFY(!image.isNull());
      const QRgb left = image.pixel(60, 100);
      const QRgb middle = image.pixel(200, 100);
      const QRgb right = image.pixel(340, 100);
      QVERIFY(qRed(left) > 180 && qBlue(left) < 20);
      QVERIFY(qGreen(middle) > 230 && qRed(middle) < 30 && qBlue(middle) < 30);
      QVERIFY(qBlue(right) > 180 && qRed(right) < 20);
    }
  }

  void functionsOfThePlaceAreShadings() {
    const QByteArray program = kit::stream("{ exch dup 3 1 roll mul exch 0.5 exch 1 exch sub exch }",
                                           "/FunctionType 4 /Domain [0 1 0 1] "
                                           "/Range [0 1 0 1 0 1]");
    for (const bool asPattern : {false, true}) {
      const QByteArray contents = asPattern ? "/Pattern cs /P scn 15 5 170 90 re f" : "/S sh";
      const QByteArray pdf = kit::onePage(
          contents,
          "/MediaBox [0 0 200 100] /Resources << /Shading << /S 6 0 R >> /Pattern << /P << /PatternType 2 "
          "/Shading 6 0 R >> >> >>",
          {program,
           "<< /ShadingType 1 /ColorSpace /DeviceRGB /Matrix [160 0 20 80 20 10] /Function 5 0 R >>"});
      Converted converted(pdf);
      QVERIFY(converted.eps().contains("/ShadingType 1 /Domain [0 1 0 1] /Matrix [160 0 20 80 20 10]"));
      QVERIFY(converted.eps().size() < 25000);
      const double away = kit::difference(converted.byGhostscript(), kit::drawn(pdf));
      QVERIFY2(away < 3, qPrintable(QString::number(away)));
    }
  }

  // Grey from 0.5 to 1 across, whatever the numbers of its domain.
  void aFunctionOfThePlaceIsAskedWithinItsDomain() {
    const QByteArray pdf =
        kit::onePage("/S sh", "/MediaBox [0 0 200 100] /Resources << /Shading << /S 6 0 R >> >>",
                     {kit::stream("{ pop 4 div }", "/FunctionType 4 /Domain [2 4 3 5] /Range [0 1]"),
                      "<< /ShadingType 1 /Domain [2 4 3 5] /ColorSpace /DeviceGray /Matrix [100 0 0 50 -200 "
                      "-150] /Function "
                      "5 0 R >>"});
    const QByteArray eps = Converted(pdf).eps();
    QVERIFY2(eps.contains("/ShadingType 1 /Domain [2 4 3 5] /Matrix [100 0 0 50 -200 -150]"), eps);
    // Four places, each a byte: 80 ff 80 ff.
    QVERIFY2(eps.contains("/Size [2 2]") && eps.contains("<~JH(0\"~>"), eps);
  }

  void coloursOfMeshesStayInTheirSpace() {
    const QByteArray cmyk = Converted(pageWith(mesh(7, "/DeviceCMYK", kCmyk), false)).eps();
    QVERIFY(cmyk.contains("/DeviceCMYK {} cs\n"));
    QVERIFY(cmyk.contains("0 1 0 1 0 1 0 1]\n/DataSource"));
    const QByteArray spot = Converted(pageWith(mesh(6, kInk, kOne), false)).eps();
    QVERIFY(spot.contains("[/Separation (Spot Green) /DeviceCMYK"));
  }

  void severalInksStaySeveral() {
    const QByteArray tint =
        kit::stream("{ 0 0 }", "/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1 0 1]");
    const QByteArray pdf = kit::onePage("/Two cs 0.25 0.75 scn 10 10 50 50 re f",
                                        "/MediaBox [0 0 200 100] /Resources << /ColorSpace << /Two [/DeviceN "
                                        "[/One /Other#20one] /DeviceCMYK 5 0 R] >> >>",
                                        {tint});
    Converted converted(pdf);
    QVERIFY(converted.eps().contains("[/DeviceN\n  [ (One) (Other one) ]"));
    QVERIFY(converted.eps().contains("[0.25 0.75] sc\n"));
    const double away = kit::difference(converted.byGhostscript(), kit::drawn(pdf));
    QVERIFY2(away < 8, qPrintable(QString::number(away)));  // CMYK becomes RGB in two ways
  }

  void indicesBecomeTheirColours() {
    const QByteArray pdf = pageWith(
        kit::stream(
            MeshData()
                .flag(0)
                .point(0, 0)
                .colour({0})
                .flag(0)
                .point(200, 0)
                .colour({1 / 255.0})
                .flag(0)
                .point(100, 100)
                .colour({2 / 255.0})
                .bytes(),
            "/ShadingType 4 /ColorSpace [/Indexed /DeviceRGB 2 <ff000000ff000000ff>] /BitsPerCoordinate 16 "
            "/BitsPerComponent 8 /BitsPerFlag 8 /Decode [0 200 0 200 0 255]"),
        false);
    const QImage image = Converted(pdf).byGhostscript();
    QVERIFY(!image.isNull());
    QVERIFY(qRed(image.pixel(20, 197)) > 200 && qGreen(image.pixel(380, 197)) > 200);
    const QRgb between =
        image.pixel(200, 197);  // half one colour and half the other, none of those in the list
    QVERIFY(std::abs(qRed(between) - 128) < 12 && std::abs(qGreen(between) - 128) < 12 &&
            qBlue(between) < 12);
  }

  void brokenMeshesAreHarmless_data() {
    QTest::addColumn<QByteArray>("shading");
    const std::array<Colour, 4>& c = kRgb;
    for (const int type : {4, 5, 6, 7}) {
      const QByteArray name = QByteArray::number(type);
      const QByteArray entries = meshEntries(type, "/DeviceRGB", 3);
      QTest::newRow("empty " + name) << kit::stream({}, entries);
      QTest::newRow("cut off " + name) << kit::stream(meshOf(type, c).left(17), entries);
      QTest::newRow("noise " + name) << kit::stream(QByteArray("\xff\x03\x7f\x81", 4).repeated(500), entries);
      QTest::newRow("far away " + name) << kit::stream(
          meshOf(type, c), QByteArray(entries).replace("[0 200 0 200", "[-1e300 1e300 -1e38 1e38"));
      QTest::newRow("a point " + name) << kit::stream(QByteArray(200, '\0'), entries);
      QTest::newRow("a function of no size " + name)
          << kit::stream(meshOf(type, kOne), meshEntries(type, "/DeviceRGB", 1,
                                                         "/Function << /FunctionType 2 /Domain [1 1] /N 1 "
                                                         "/C0 [0 0 0] /C1 [1 1 1] >>"));
    }
    QTest::newRow("rows of none") << kit::stream(meshOf(5, c),
                                                 meshEntries(5, "/DeviceRGB", 3).replace("Row 2", "Row 0"));
    QTest::newRow("rows of very many")
        << kit::stream(meshOf(5, c), meshEntries(5, "/DeviceRGB", 3).replace("Row 2", "Row 100000000"));
    QTest::newRow("no domain") << QByteArray(
        "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [1e300 0 -1e300 0] /Domain "
        "[1 0] /Function " +
        kRainbow + " >>");
  }
  void brokenMeshesAreHarmless() {
    QFETCH(QByteArray, shading);
    const QByteArray pdf = pageWith(shading, false, "1 0 0 rg 90 40 20 20 re f ");
    Converted converted(pdf);
    QVERIFY2(!converted.eps().isEmpty(), qPrintable(converted.error().message));
    QVERIFY(converted.eps().size() < 100000);
    QVERIFY(!converted.byGhostscript().isNull());
  }

  void manyPiecesStaySmall() {
    MeshData data;
    const auto corner = [&](int x, int y) { data.flag(0).point(x, y).colour({x / 200.0, y / 100.0, 0.5}); };
    for (int x = 0; x < 200; ++x)
      for (int y = 0; y < 100; ++y) {
        corner(x, y), corner(x + 1, y), corner(x, y + 1);
        corner(x + 1, y), corner(x, y + 1), corner(x + 1, y + 1);
      }
    const QByteArray pdf = pageWith(kit::stream(data.bytes(), meshEntries(4, "/DeviceRGB", 3)), false);
    Converted converted(pdf);
    QVERIFY(converted.eps().contains("~>\n<~"));  // more than one string: PostScript's are short
    QVERIFY2(converted.eps().size() < pdf.size(), qPrintable(QString::number(converted.eps().size())));
    const QImage image = converted.byGhostscript();
    for (const QPoint& at : {QPoint(20, 20), QPoint(200, 100), QPoint(390, 150), QPoint(77, 180)}) {
      const QRgb pixel = image.pixel(at);
      QVERIFY(std::abs(qRed(pixel) - at.x() * 255 / 400) < 5 &&
              std::abs(qGreen(pixel) - (200 - at.y()) * 255 / 200) < 5 && std::abs(qBlue(pixel) - 128) < 5);
    }
  }

  void patternsWithoutColourTakeTheOneOfTheMoment() {
    const QByteArray tile =
        kit::stream("/S sh",
                    "/PatternType 1 /PaintType 2 /TilingType 1 /BBox [0 0 50 50] /XStep 50 "
                    "/YStep 50 /Resources << /Shading << /S 6 0 R >> >>");
    Converted converted(
        kit::onePage("/C cs 1 0 0 /P scn 0 0 200 100 re f",
                     "/MediaBox [0 0 200 100] /Resources << /ColorSpace << /C [/Pattern /DeviceRGB] >> "
                     "/Pattern << /P 5 0 R >> >>",
                     {tile, mesh(4, "/DeviceRGB", kRgb)}));
    QVERIFY(!converted.eps().contains(">> NorvexShade"));
    QVERIFY(!converted.byGhostscript().isNull());
  }

  void aTableIsAsLongAsTheColoursNeed() {
    const auto of = [](const std::function<double(double)>& value) {
      return sampledFunction(0, 1, 1, [&](double u, double* colour) { *colour = value(u); });
    };
    QVERIFY(of([](double u) { return u; }).contains("/Size [2] /BitsPerSample 8"));
    QVERIFY(of([](double u) { return std::abs(u - 0.25); }).contains("/Size [5]"));
    QVERIFY(of([](double u) { return u < 0.3 ? 0.0 : 1.0; }).contains("/Size [1025]"));
    QVERIFY(
        of([](double u) { return 100 * u - 50; }).contains("/Range [-50 50] /Size [2] /BitsPerSample 16"));
    QVERIFY(of([](double u) { return u < 0.5 ? NAN : 0.0; }).contains("/Size [2]"));
  }

  void aTableOfTwoParametersIsAsLongAsItsColoursNeed() {
    const auto of = [](const std::function<double(double, double)>& value) {
      constexpr double domain[4] = {0, 1, 0, 2};
      return sampledFunction(domain, 1, [&](double u, double v, double* colour) { *colour = value(u, v); });
    };
    QVERIFY(of([](double u, double v) { return u * v; }).contains("/Domain [0 1 0 2]"));
    QVERIFY(of([](double u, double v) { return u * v; }).contains("/Size [2 2]"));
    QVERIFY(of([](double u, double) { return std::abs(u - 0.25); }).contains("/Size [5 5]"));
    QVERIFY(of([](double, double v) { return std::abs(v - 0.5); }).contains("/Size [3 3]"));
  }

  void aMeshWithoutFinitePiecesIsNone() {
    ShadingMesh mesh(ShadingMesh::Kind::Triangles, 1);
    const std::array<double, 6> points{0, 0, INFINITY, 0, 0, 1};
    const std::array<double, 3> colours{0, 0, NAN};
    const std::array<double, 6> fine{0, 0, 1, 0, 0, 1};
    mesh.add(points.data(), fine.data());
    mesh.add(fine.data(), colours.data());
    QVERIFY(mesh.entries({}).isEmpty());
    mesh.add(fine.data(), fine.data());
    QVERIFY(mesh.entries({}).startsWith("/ShadingType 4 "));
  }
};

NORVEX_TEST(EpsShadingTest)
#include "eps_shading_test.moc"
