// What the rules find around the program of an EPS file.
#include "check/eps_file_rules.h"

#include <QtEndian>

#include "kit/test_main.h"

using namespace norvex;

namespace {

const QByteArray kProgram(
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n%%EndComments\nshowpage\n%%EOF\n");

struct Place {
  qsizetype from = 0, length = 0;
};

/// A file that begins with the binary header, whose sections lie as told; its program stands behind the
/// header.
QByteArray file(const Place& program, const Place& metafile, const Place& tiff, qsizetype size) {
  QByteArray bytes(30, '\0');
  bytes.replace(0, 4, "\xC5\xD0\xD3\xC6");
  qsizetype at = 4;
  for (const Place& one : {program, metafile, tiff}) {
    qToLittleEndian(quint32(one.from), bytes.data() + at);
    qToLittleEndian(quint32(one.length), bytes.data() + at + 4);
    at += 8;
  }
  bytes += kProgram;
  return bytes.leftJustified(size, 'x', true);
}

/// The sections that findings of the rule are about.
QStringList sectionsOf(const QByteArray& file, std::string_view identifier) {
  QStringList names;
  for (const Finding& one : epsFileFindings(file))
    if (one.rule->identifier == identifier) names << one.object;
  return names;
}

}  // namespace

class EpsFileRulesTest : public QObject {
  Q_OBJECT
 private slots:
  void sectionsThatTouchLieOverNothing() {
    const qsizetype n = kProgram.size();
    const QByteArray sound = file({30, n}, {30 + n, 10}, {40 + n, 10}, 50 + n);
    QCOMPARE(sectionsOf(sound, "eps.dos-header.overlap"), QStringList());
    QCOMPARE(sectionsOf(sound, "eps.dos-header.outside"), QStringList());
  }

  void theSectionThatLiesOverAnotherIsNamed() {
    const qsizetype n = kProgram.size();
    QCOMPARE(sectionsOf(file({30, n}, {29 + n, 10}, {39 + n, 10}, 50 + n), "eps.dos-header.overlap"),
             QStringList{"metafile"});
    QCOMPARE(sectionsOf(file({30, n}, {30 + n, 10}, {39 + n, 10}, 50 + n), "eps.dos-header.overlap"),
             QStringList{"TIFF"});
  }

  void aSectionOverTheHeaderItselfIsTold() {
    const qsizetype n = kProgram.size();
    QCOMPARE(sectionsOf(file({30, n}, {29, 1}, {0, 0}, 30 + n), "eps.dos-header.overlap"),
             QStringList{"metafile"});
  }

  void whatStandsBehindTheDocumentsOwnEndIsCounted() {
    const auto told = [](const QByteArray& bytes) {
      for (const Finding& one : epsFileFindings(bytes))
        if (one.rule->identifier == "eps.bytes.behind") return one.sentence;
      return QString();
    };
    QCOMPARE(told(kProgram), QString());
    QCOMPARE(told(kProgram + "\x04\n"), QString());
    QCOMPARE(told(kProgram + "%AI9_PrivateDataBegin\n"), QString());
    QCOMPARE(told(kProgram + "grestore\n"), QString("bytes behind %%EOF: 8"));
    const QByteArray font = "%!PS-Adobe-3.0 Resource-Font\n12 dict pop\n%%EOF\n";
    QCOMPARE(told("%!PS-Adobe-3.0 EPSF-3.0\n%%EndComments\n" + font + "9 9 moveto\nshowpage\n"), QString());
  }

  void theSectionThatEndsBehindTheFileIsNamed() {
    const qsizetype n = kProgram.size();
    QCOMPARE(sectionsOf(file({30, n}, {30 + n, 10}, {0, 0}, 39 + n), "eps.dos-header.outside"),
             QStringList{"metafile"});
    QCOMPARE(sectionsOf(file({30, n + 1}, {0, 0}, {0, 0}, 30 + n), "eps.dos-header.outside"),
             QStringList{"PostScript"});
  }
};

NORVEX_TEST(EpsFileRulesTest)
#include "eps_file_rules_test.moc"
