// Pages put together from their plates.
#include "picture/inks/ink_image.h"

#include "kit/test_main.h"
#include "picture/inks/ink_colours.h"
#include "picture/inks/separated_page.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;

namespace {

constexpr QRgb kWhite = 0xffffffff;

/// A row of pixels, each given by its amounts of ink; the fifth ink is green, the sixth nobody knows.
PageInks row(const QList<QByteArray>& pixels) {
  PageInks page;
  page.pixels = QSize(int(pixels.size()), 1);
  for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"}) page.inks << Ink{name, false, {}, 0, 0};
  page.inks << Ink{"Green", true, ProcessInks{255, 0, 255, 0}, 0, 0} << Ink{"Varnish", true, {}, 0, 0};
  for (qsizetype ink = 0; ink < page.inks.size(); ++ink)
    for (const QByteArray& pixel : pixels) page.plates.append(ink < pixel.size() ? pixel[ink] : '\0');
  return page;
}

QByteArray inks(std::initializer_list<int> amounts) {
  QByteArray pixel;
  for (const int amount : amounts) pixel.append(char(amount));
  return pixel;
}

}  // namespace

class InkImageTest : public QObject {
  Q_OBJECT
 private slots:
  void inksHaveTheirOwnColoursOnWhite() {
    const PageInks page = row({inks({}), inks({255}), inks({0, 255}), inks({0, 0, 255}), inks({0, 0, 0, 255}),
                               inks({255, 255}), inks({0, 0, 0, 0, 255})});
    const QImage image = inkImage(page, everyInk(page));
    QCOMPARE(image.size(), QSize(7, 1));
    QCOMPARE(image.pixel(0, 0), kWhite);
    QCOMPARE(image.pixel(1, 0), qRgb(0, 173, 239));
    QCOMPARE(image.pixel(2, 0), qRgb(236, 0, 140));
    QCOMPARE(image.pixel(3, 0), qRgb(255, 242, 0));
    QCOMPARE(image.pixel(4, 0), qRgb(35, 31, 32));
    QCOMPARE(image.pixel(5, 0), qRgb(46, 49, 146));
    QCOMPARE(image.pixel(6, 0), qRgb(0, 166, 80));  // as its stand-in
  }

  void aTintIsBetweenThePaperAndTheInk() {
    const PageInks page = row({inks({102}), inks({0, 0, 0, 0, 102})});
    const QImage image = inkImage(page, everyInk(page));
    QCOMPARE(image.pixel(0, 0), qRgb(153, 222, 249));
    QCOMPARE(image.pixel(1, 0), qRgb(153, 219, 185));
  }

  void aTintOfASpotInkTakesOfEachColourItsPart() {
    PageInks page = row({inks({0, 0, 0, 0, 102})});
    page.inks[4].alternate = ProcessInks{0, 255, 0, 0};  // 236 0 140
    QCOMPARE(inkImage(page, everyInk(page)).pixel(0, 0), qRgb(247, 153, 209));
    PageInks full = row({inks({0, 0, 0, 0, 255})});
    full.inks[4].alternate = ProcessInks{0, 0, 0, 255};
    QCOMPARE(inkImage(full, everyInk(full)).pixel(0, 0), qRgb(35, 31, 32));
  }

  void everyOverprintOfFullInksIsAsTheScreenShowsIt() {
    const QRgb shown[] = {0xffffff, 0x00adef, 0xec008c, 0x2e3192, 0xfff200, 0x00a650, 0xed1c24, 0x363639,
                          0x231f20, 0x000f24, 0x240000, 0x000001, 0x1c1a00, 0x001300, 0x220000, 0x000000};
    for (int i = 0; i < 16; ++i)
      QCOMPARE(rgbOf(colourOfProcessInks(float(i & 1), float(i >> 1 & 1), float(i >> 2 & 1), float(i >> 3))),
               shown[i] | 0xff000000);
  }

  void everyRowHasItsOwnPixels() {
    PageInks page = row({inks({}), inks({255}), inks({51}), inks({102})});
    page.pixels = QSize(2, 2);
    const QImage image = inkImage(page, everyInk(page));
    QCOMPARE(image.pixel(0, 0), kWhite);
    QCOMPARE(image.pixel(1, 0), qRgb(0, 173, 239));
    QCOMPARE(image.pixel(0, 1), qRgb(204, 239, 252));
    QCOMPARE(image.pixel(1, 1), qRgb(153, 222, 249));
    QCOMPARE(inksAt(page, QPoint(1, 0)).first(), 100.0);
    QCOMPARE(inksAt(page, QPoint(0, 1)).first(), 20.0);
    QCOMPARE(inksAt(page, QPoint(1, 1)).first(), 40.0);
  }

  void aSpotInkOverAnotherTakesFromWhatThatLeaves() {
    const PageInks page = row({inks({0, 0, 255, 0, 255})});
    const QRgb colour = inkImage(page, everyInk(page)).pixel(0, 0);
    QCOMPARE(colour, qRgb(0, qRound(242 * 166 / 255.0), 0));
  }

  void inksCanBeSwitchedOff() {
    const PageInks page = row({inks({255, 255, 0, 0, 255})});
    InkChoice choice = everyInk(page);
    choice.shown[1] = choice.shown[4] = false;
    QCOMPARE(inkImage(page, choice).pixel(0, 0), qRgb(0, 173, 239));
    choice.shown.fill(false);
    QCOMPARE(inkImage(page, choice).pixel(0, 0), kWhite);
  }

  void aPlateIsTheInkAsGrey() {
    const PageInks page = row({inks({0, 0, 255, 0, 153}), inks({0, 0, 0, 0, 255}), inks({})});
    InkChoice choice = everyInk(page);
    choice.shown.fill(false);
    choice.shown[4] = true;
    choice.isPlate = true;
    const QImage image = inkImage(page, choice);
    QCOMPARE(image.pixel(0, 0), qRgb(102, 102, 102));
    QCOMPARE(image.pixel(1, 0), qRgb(0, 0, 0));
    QCOMPARE(image.pixel(2, 0), kWhite);
    choice.shown.fill(true);
    QCOMPARE(inkImage(page, choice).pixel(0, 0), qRgb(0, 0, 0));  // together more than one full ink
  }

  void onlyWhatIsAboveTheLimitIsHot() {
    const PageInks page =
        row({inks({255, 255, 255}), inks({255, 255, 255, 1}), inks({255, 255, 255, 255, 255})});
    InkChoice choice = everyInk(page);
    choice.limit = 300;
    const QImage image = inkImage(page, choice);
    const QRgb cool = image.pixel(0, 0), warm = image.pixel(1, 0), hot = image.pixel(2, 0);
    QVERIFY(qRed(cool) == qGreen(cool) && qGreen(cool) == qBlue(cool));
    QVERIFY(qRed(warm) > 200 && qBlue(warm) == 0);
    QVERIFY(qGreen(hot) < qGreen(warm) && qBlue(hot) == 0);
    // What is not shown counts all the same: it is printed.
    choice.shown.fill(false);
    QCOMPARE(qBlue(inkImage(page, choice).pixel(2, 0)), 0);
  }

  void heatGrowsOverAHundredPercentAndWhatIsCoolIsPale() {
    const PageInks page = row({inks({255}), inks({0, 255}), inks({255, 255, 255})});
    InkChoice choice = everyInk(page);
    choice.limit = 250;
    const QImage half = inkImage(page, choice);
    QCOMPARE(half.pixel(0, 0), qRgb(223, 223, 223));  // a quarter of its grey: 128 and 86
    QCOMPARE(half.pixel(1, 0), qRgb(213, 213, 213));
    QCOMPARE(half.pixel(2, 0), qRgb(217, 70, 0));
    choice.limit = 100;  // hotter than hot there is not
    const QRgb hottest = inkImage(page, choice).pixel(2, 0);
    QVERIFY(qRed(hottest) == 178 || qRed(hottest) == 179);
    QVERIFY(qGreen(hottest) == 0 && qBlue(hottest) == 0);
  }

  void amountsAreCountedInPercentOfAFullInk() {
    const PageInks page = row({inks({51, 255}), inks({255, 255, 255, 0, 51, 255})});
    QCOMPARE(inksAt(page, QPoint(0, 0)), QList<double>({20, 100, 0, 0, 0, 0}));
    QCOMPARE(inksAt(page, QPoint(1, 0)), QList<double>({100, 100, 100, 0, 20, 100}));
    QVERIFY(inksAt(page, QPoint(2, 0)).isEmpty() && inksAt(page, QPoint(0, -1)).isEmpty());
    QCOMPARE(mostInk(page), 420.0);
    QCOMPARE(shareAbove(page, 120), 0.5);
    QCOMPARE(shareAbove(page, 119), 1.0);
    QCOMPARE(shareAbove(page, 420), 0.0);
  }

  void theColoursBetweenTheFullOnesAreThoseOfTheScreen() {
    // What pdftocairo shows for these shares.
    QCOMPARE(rgbOf(colourOfProcessInks(0.237965F, 0.544229F, 0.369955F, 0.60392F)), qRgb(92, 53, 58));
    QCOMPARE(rgbOf(colourOfProcessInks(0.836461F, 0.476353F, 0.639068F, 0.150616F)), qRgb(52, 101, 94));
  }

  void anInkThatNobodyKnowsIsGrey() {
    const PageInks page = row({inks({})});
    QCOMPARE(rgbOf(ownColour(page, 5)), qRgb(128, 128, 128));
    QCOMPARE(rgbOf(ownColour(page, 4)), qRgb(0, 166, 80));
  }

  void cancelledWorkGivesNothing() {
    CancelToken cancel;
    cancel.cancel();
    const PageInks page = row({inks({})});
    QVERIFY(inkImage(page, everyInk(page), cancel).isNull());
  }

  void aPageIsAskedForItsInks() {
    MemoryPicture picture;
    ExamineRequest asked;
    const PageInks page = row({inks({255})});
    picture.examine = [&](const ExamineRequest& request) {
      asked = request;
      return encodePageInks(page);
    };
    picture.report.warnings = {"a remark"};
    MemoryPictureProcess process({}, picture);
    const Result<SeparatedPage> answer =
        separatedPage(process, PictureKind::Pdf, {4, 150, true, QRectF(1, 2, 3, 4)});
    QVERIFY(answer.ok());
    QCOMPARE(asked.what, Examination::Inks);
    QCOMPARE(asked.page, 4);
    QCOMPARE(asked.dpi, 150.0);
    QVERIFY(asked.overprint);
    QCOMPARE(asked.part, std::optional(QRectF(1, 2, 3, 4)));
    QCOMPARE(answer->warnings, QStringList{"a remark"});
    QCOMPARE(answer->inks.plates, page.plates);
    const Result<SeparatedPage> svg = separatedPage(process, PictureKind::Svg, {});
    QVERIFY(!svg);
    QCOMPARE(svg.error().kind, ErrorKind::Unsupported);
    QCOMPARE(svg.error().message, "an SVG picture has no inks: its colours are those of a screen");
    QCOMPARE(process.calls(PictureCall::Examine), 1);
  }

  void anAnswerThatIsNoneIsRefused() {
    MemoryPicture picture;
    picture.examine = [](const ExamineRequest&) { return QByteArray("\xa0"); };
    MemoryPictureProcess process({}, picture);
    const Result<SeparatedPage> answer = separatedPage(process, PictureKind::Eps, {});
    QVERIFY(!answer);
    QCOMPARE(answer.error().kind, ErrorKind::Protocol);
  }
};

NORVEX_TEST(InkImageTest)
#include "ink_image_test.moc"
