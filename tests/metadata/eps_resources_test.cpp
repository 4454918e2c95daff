#include "metadata/eps_resources.h"
#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

EpsResources resourcesOf(const QByteArray& comments, const QByteArray& rest = {}) {
  return epsResources("%!PS-Adobe-3.0 EPSF-3.0\n" + comments + "%%EndComments\n" + rest);
}

}  // namespace

class EpsResourcesTest : public QObject {
  Q_OBJECT
 private slots:
  void fontsOfEveryComment() {
    QCOMPARE(resourcesOf("%%DocumentFonts: Helvetica Times-Roman\r\n%%+ Symbol\r\n%%+Helvetica\r\n").fonts,
             (QStringList{"Helvetica", "Times-Roman", "Symbol"}));
    QCOMPARE(resourcesOf(
                 "%%DocumentNeededResources: procset Level1 1.0 0\n%%+ font Courier Courier-Bold\n%%+ "
                 "encoding X\n%%DocumentSuppliedResources: font (My Font)\n%%DocumentSuppliedFonts: Last\n")
                 .fonts,
             (QStringList{"Courier", "Courier-Bold", "My Font", "Last"}));
    QCOMPARE(resourcesOf("%%DocumentNeededFonts: One\n%%DocumentResources: font Two\n").fonts,
             (QStringList{"One", "Two"}));
  }

  /// What stands before the kind, on the line or on those before it, is of none.
  void eachCommentSaysItsKindAnew() {
    QCOMPARE(
        resourcesOf("%%DocumentNeededResources: font One\n%%DocumentSuppliedResources: Nameless font Two\n")
            .fonts,
        (QStringList{"One", "Two"}));
  }

  void inksAreProcessColoursThenCustomOnes() {
    QCOMPARE(resourcesOf(
                 "%%DocumentCustomColors: (PANTONE 186 C) (Dark (old) gold)\n%%DocumentProcessColors: Cyan "
                 "Black\n")
                 .colors,
             (QStringList{"Cyan", "Black", "PANTONE 186 C", "Dark (old) gold"}));
  }

  void platesAreFilesOrPartsOfThisOne() {
    QCOMPARE(resourcesOf("%%CyanPlate: a cyan.eps\n%%BlackPlate: (k.eps)\n").plates,
             (QList<EpsPlate>{{"Cyan", "a cyan.eps"}, {"Black", "k.eps"}}));
    QCOMPARE(
        resourcesOf("%%PlateFile: (PANTONE 186 C) EPS Local red.eps\r%%PlateFile: (Black) EPS #001200 345\r")
            .plates,
        (QList<EpsPlate>{{"PANTONE 186 C", "red.eps"}, {"Black", {}, 1200, 345}}));
    QCOMPARE(resourcesOf("%%MagentaPlate: m.eps\n%%YellowPlate: y.eps\n").plates,
             (QList<EpsPlate>{{"Magenta", "m.eps"}, {"Yellow", "y.eps"}}));
    QVERIFY(resourcesOf("%%PlateFile: (Black) EPS #000000 345\n%%PlateFile: (Black) EPS #00900 0\n")
                .plates.isEmpty());
    QVERIFY(resourcesOf("%%PlateFile: (Black) EPS #-00005 345\n%%PlateFile: (Black)\n%%CyanPlate:\n")
                .plates.isEmpty());
  }

  void thePictureEndsBeforeTheFirstPlate() {
    const QByteArray header = "%!PS-Adobe-3.0 EPSF-3.0\n%%PlateFile: (Cyan) EPS #000080 5\n%%EndComments\n";
    const QByteArray picture = header.leftJustified(80, '\n');
    QCOMPARE(compositeOf(picture + "%!PS plate"), picture);
    QCOMPARE(compositeOf(picture + "no plate"), picture + "no plate");
    QCOMPARE(compositeOf(header), header);
  }

  void whatIsLeftToTheEndIsReadThere() {
    QCOMPARE(resourcesOf("%%DocumentFonts: (atend)\n",
                         "/Times findfont\n%%Trailer\n%%DocumentFonts: Times\n%%EOF\n")
                 .fonts,
             QStringList{"Times"});
    QVERIFY(resourcesOf("%%DocumentFonts: (atend)\n", "show\n").fonts.isEmpty());
    QVERIFY(resourcesOf("", "%%Trailer\n%%DocumentFonts: Times\n").fonts.isEmpty());
  }

  void onlyTheHeaderCounts() {
    QVERIFY(resourcesOf("", "%%DocumentFonts: Embedded\n").fonts.isEmpty());
    QVERIFY(epsResources("%!PS\nshowpage\n%%DocumentFonts: Late\n").fonts.isEmpty());
    QVERIFY(resourcesOf("%%Title: %%DocumentFonts: No\n").fonts.isEmpty());
    QVERIFY(epsResources("").fonts.isEmpty());
    QVERIFY(epsResources("%%DocumentFonts:").fonts.isEmpty());
    QVERIFY(resourcesOf("%%DocumentFonts: ()\n%%DocumentCustomColors: (open\n").fonts.isEmpty());
  }

  void namesWithoutEndAreCut() {
    QByteArray many = "%%DocumentFonts:";
    for (int i = 0; i < 5000; ++i) many += " F" + QByteArray::number(i);
    QCOMPARE(resourcesOf(many + "\n").fonts.size(), limits::maximumResourceNames);
  }

  void aTrailerWithoutEndIsReadInPart() {
    const auto fonts = [](qsizetype between) {
      return resourcesOf("%%DocumentFonts: (atend)\n",
                         "%%Trailer\n%" + QByteArray(between, 'x') + "\n%%DocumentFonts: Times\n%%EOF\n")
          .fonts;
    };
    QCOMPARE(fonts(9), QStringList{"Times"});
    QCOMPARE(fonts(limits::maximumTrailerBytes), QStringList());
  }
};

NORVEX_TEST(EpsResourcesTest)
#include "eps_resources_test.moc"
