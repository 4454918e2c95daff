// The built program prints: to files, and to a CUPS server of the test's own.
#include <QRegularExpression>
#include <QTransform>

#include <sys/mount.h>

#include "kit/program.h"
#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/print_server.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QStringList kSamples{"lighthouse.svg", "lighthouse.pdf", "lighthouse.eps", "lighthouse-cs.ai"};

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class PrintSystemTest : public QObject {
  Q_OBJECT

  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<outside::PrintServer> server_;

  QString path(const QString& name) const { return folder_->filePath(name); }
  QString write(const QString& name, const QByteArray& bytes) {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
    return file.fileName();
  }
  Ran print(const QStringList& arguments) {
    return kit::norvex(QStringList{"print"} + arguments, {}, 60,
                       {server_ ? server_->environment() : QString("X=")});
  }
  static QString fact(const QString& pdf, const QByteArray& name) {
    for (const QByteArray& line : run("pdfinfo", {pdf}).out.split('\n'))
      if (line.startsWith(name + ':')) return QString::fromUtf8(line.mid(name.size() + 1).trimmed());
    return {};
  }
  /// A page as it is seen, a point a pixel.
  QImage drawn(const QString& pdf, int page) {
    const QString number = QString::number(page);
    run("pdftoppm", {"-r", "72", "-f", number, "-l", number, "-singlefile", "-png", pdf, path("drawn")});
    return QImage(path("drawn.png")).convertToFormat(QImage::Format_RGB32);
  }
  /// A server with a printer; QSKIPs in the caller when it answers a sentence.
  QString serve() {
    server_ = std::make_unique<outside::PrintServer>();
    const QString why = server_->start();
    if (why.isEmpty() && !server_->addPrinter("Office")) return "CUPS takes no queue here";
    return why;
  }

 private slots:
  void init() { folder_ = std::make_unique<QTemporaryDir>(); }
  void cleanup() {
    server_.reset();
    folder_.reset();
  }

  // ---- to a file ----------------------------------------------------------------------------------------

  void everyKindIsPrintedAsVectors_data() {
    QTest::addColumn<QString>("sample");
    for (const QString& sample : kSamples) QTest::newRow(qPrintable(sample)) << sample;
  }
  void everyKindIsPrintedAsVectors() {
    QFETCH(QString, sample);
    const Ran ran = print({kit::sample(sample), "-o", path("a.pdf"), "--paper", "A4"});
    QVERIFY2(ran.exitCode == 0, ran.err);
    QCOMPARE(outside::complaintAbout(path("a.pdf"), "pdf"), QString());
    QCOMPARE(fact(path("a.pdf"), "Pages"), QString("1"));
    QVERIFY2(fact(path("a.pdf"), "Page size").endsWith("(A4)"), qPrintable(fact(path("a.pdf"), "Page size")));
    QCOMPARE(fact(path("a.pdf"), "Title"), QFileInfo(sample).completeBaseName());
    QCOMPARE(run("pdfimages", {"-list", path("a.pdf")}).out,
             run("pdfimages", {"-list", kit::sample("lighthouse.pdf")}).out);
  }

  void whatIsPrintedIsThePicture() {
    QVERIFY(print({sample("lighthouse.pdf"), "-o", path("a.pdf"), "--paper", "A4"}).exitCode == 0);
    const QImage whole = outside::drawnOutside(sample("lighthouse.pdf"), "pdf");
    const QImage page = outside::drawnOutside(path("a.pdf"), "pdf");
    QVERIFY(whole.width() < page.width() && whole.height() < page.height());
    const QPoint corner((page.width() - whole.width()) / 2, (page.height() - whole.height()) / 2);
    QVERIFY(outside::difference(whole, page.copy(QRect(corner, whole.size()))) < 0.03);
  }

  void thePaperLiesByItself() {
    QVERIFY(print({sample("lighthouse.svg"), "-o", path("a.pdf"), "--paper", "Letter"}).exitCode == 0);
    QVERIFY2(fact(path("a.pdf"), "Page size").startsWith("792 x 612"),
             qPrintable(fact(path("a.pdf"), "Page size")));
    QVERIFY(
        print({sample("lighthouse.svg"), "-o", path("b.pdf"), "--paper", "Letter", "--portrait"}).exitCode ==
        0);
    QVERIFY(fact(path("b.pdf"), "Page size").startsWith("612 x 792"));
  }

  void headerAndFooterCanBeRead() {
    const QString file = write("My Picture.svg", bytesOf(sample("lighthouse.svg")));
    QVERIFY(print({file, "-o", path("a.pdf"), "--header-footer"}).exitCode == 0);
    const QString text = QString::fromUtf8(run("pdftotext", {"-layout", path("a.pdf"), "-"}).out);
    QVERIFY2(text.contains("file://" + file), qPrintable(text));
    QVERIFY2(text.contains(QString::number(QDate::currentDate().year())), qPrintable(text));
    QCOMPARE(fact(path("a.pdf"), "Title"), QString("My Picture"));
  }

  void aLargePictureTakesItsPages() {
    const QString svg = write("large.svg",
                              "<svg xmlns='http://www.w3.org/2000/svg' width='3000pt' height='2000pt'>"
                              "<rect width='100%' height='100%' fill='teal'/></svg>");
    QVERIFY(print({svg, "-o", path("a.pdf"), "--paper", "A4", "--portrait"}).exitCode == 0);
    QCOMPARE(fact(path("a.pdf"), "Pages"), QString("18"));
    QVERIFY(print({svg, "-o", path("b.pdf"), "--paper", "A4", "--landscape"}).exitCode == 0);
    QCOMPARE(fact(path("b.pdf"), "Pages"), QString("16"));
  }

  void theDateIsAtTheRightAboveAndTheLocationAtTheLeftBelow() {
    const QString file = write("My Picture.svg", bytesOf(sample("lighthouse.svg")));
    QVERIFY(print({file, "-o", path("a.pdf"), "--paper", "A4", "--header-footer"}).exitCode == 0);
    const QByteArray words = run("pdftotext", {"-bbox", path("a.pdf"), "-"}).out;
    static const QRegularExpression word(
        "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"[0-9.]+\">([^<]*)<");
    double headerEnd = 0, footerStart = 1e9;
    for (auto it = word.globalMatch(QString::fromUtf8(words)); it.hasNext();) {
      const auto match = it.next();
      const double y = match.captured(2).toDouble();
      if (y < 36) headerEnd = std::max(headerEnd, match.captured(3).toDouble());
      if (y > 595.28 - 36) footerStart = std::min(footerStart, match.captured(1).toDouble());
    }
    QVERIFY2(std::abs(headerEnd - (841.89 - 18)) < 1, qPrintable(QString::number(headerEnd)));
    QVERIFY2(std::abs(footerStart - 18) < 1, qPrintable(QString::number(footerStart)));
  }

  void onlyPdfIsWritten_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("png") << "a.png" << 2;
    QTest::newRow("ps") << "a.b.PS" << 2;
    QTest::newRow("pdf") << "a.pdf" << 0;
    QTest::newRow("PDF") << "a.PDF" << 0;
    QTest::newRow("no extension") << "pages" << 0;
    QTest::newRow("hidden") << ".pages" << 0;
  }
  void onlyPdfIsWritten() {
    QFETCH(QString, name);
    QFETCH(int, exitCode);
    const Ran ran = print({sample("lighthouse.svg"), "-o", path(name)});
    QCOMPARE(ran.exitCode, exitCode);
    QCOMPARE(QFile::exists(path(name)), exitCode == 0);
    if (exitCode == 0) {
      QVERIFY(bytesOf(path(name)).startsWith("%PDF-"));
      return;
    }
    QCOMPARE(QString::fromUtf8(ran.err),
             "norvex: the pages are written as PDF: " + path(name) +
                 " needs a name that ends in .pdf; norvex print --help shows what there is\n");
  }

  void standardOutputIsPdfToo() {
    const Ran ran = print({sample("lighthouse.svg"), "-o", "-"});
    QCOMPARE(ran.exitCode, 0);
    QVERIFY(ran.out.startsWith("%PDF-"));
  }

  void anExistingFileIsKeptWithoutForce() {
    const QString old = write("a.pdf", "old");
    const Ran ran = print({sample("lighthouse.svg"), "-o", old});
    QCOMPARE(ran.exitCode, 4);
    QCOMPARE(ran.err.count('\n'), 1);
    QCOMPARE(bytesOf(old), QByteArray("old"));
    QCOMPARE(print({sample("lighthouse.svg"), "-o", old, "--force"}).exitCode, 0);
    QVERIFY(bytesOf(old).startsWith("%PDF-"));
  }

  void aFullDiskIsOneSentence() {
    const QString disk = path("disk");
    QVERIFY(QDir().mkpath(disk));
    if (::mount("tmpfs", QFile::encodeName(disk), "tmpfs", 0, "size=4k") != 0)
      QSKIP("mounting is not permitted here");
    const Ran ran = print({sample("lighthouse.svg"), "-o", disk + "/a.pdf"});
    const QStringList left = QDir(disk).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    ::umount(QFile::encodeName(disk));
    QCOMPARE(ran.exitCode, 4);
    QVERIFY2(ran.err.endsWith(": there is no space left to write to\n") && ran.err.count('\n') == 1, ran.err);
    QCOMPARE(left, QStringList());
  }

  // ---- to a printer -------------------------------------------------------------------------------------

  void theJobArrivesWithItsTitleAndItsPages() {
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    const QString file = write("My Picture.svg", bytesOf(sample("lighthouse.svg")));
    const Ran ran = print({file, "--printer", "Office", "--paper", "A4", "--header-footer"});
    QVERIFY2(ran.exitCode == 0, ran.err);
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(server_->spooledFiles().size(), 1);
    QCOMPARE(server_->jobTitle(1), QString("My Picture"));
    const QString pdf = server_->spooledFiles().first();
    QCOMPARE(outside::complaintAbout(pdf, "pdf"), QString());
    QCOMPARE(fact(pdf, "Pages"), QString("1"));
    QVERIFY2(fact(pdf, "Page size").startsWith("841.89 x 595.276"), qPrintable(fact(pdf, "Page size")));
    QVERIFY(run("pdftotext", {"-layout", pdf, "-"}).out.contains("My Picture.svg"));
    QCOMPARE(run("pdfimages", {"-list", pdf}).out.count('\n'), 2);
  }

  void aPrinterThatIsNotThereIsTold() {
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    Ran ran = print({sample("lighthouse.svg"), "--printer", "Attic"});
    QCOMPARE(ran.exitCode, 4);
    QCOMPARE(QString::fromUtf8(ran.err),
             "norvex: " + sample("lighthouse.svg") + ": there is no printer named “Attic”\n");
    QVERIFY(server_->removePrinter("Office"));
    ran = print({sample("lighthouse.svg"), "--printer", "Office"});
    QCOMPARE(ran.exitCode, 4);
    QVERIFY(ran.err.endsWith(QString(": there is no printer named “Office”\n").toUtf8()));
    QVERIFY(server_->spooledFiles().isEmpty());
  }

  void aPrinterThatRefusesIsTold() {
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    QVERIFY(server_->refuseJobs("Office"));
    const Ran ran = print({sample("lighthouse.svg"), "--printer", "Office"});
    QCOMPARE(ran.exitCode, 4);
    QCOMPARE(QString::fromUtf8(ran.err),
             "norvex: " + sample("lighthouse.svg") + ": the printer “Office” takes no jobs\n");
    QVERIFY(server_->spooledFiles().isEmpty());
  }

  void aPrinterThatWantsAPasswordIsTold() {
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    QVERIFY(server_->wantPassword("Office"));
    const Ran ran = print({sample("lighthouse.svg"), "--printer", "Office"});
    QCOMPARE(ran.exitCode, 4);
    QCOMPARE(QString::fromUtf8(ran.err),
             "norvex: " + sample("lighthouse.svg") +
                 ": the printer “Office” wants a user name and a password, which are not asked for here\n");
    QVERIFY(server_->spooledFiles().isEmpty());
  }

  void theFiltersPutTheSheetOnUprightPaper_data() {
    QTest::addColumn<QString>("orientation");
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("turned");
    // 720 points wide: lying paper holds it, standing paper takes two sheets.
    QTest::newRow("landscape") << "--landscape" << 1 << true;
    QTest::newRow("portrait") << "--portrait" << 2 << false;
  }
  void theFiltersPutTheSheetOnUprightPaper() {
    if (!QFile::exists("/usr/lib/cups/filter/pdftopdf")) QSKIP("CUPS's filters for PDF are not installed");
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    QFETCH(QString, orientation);
    QFETCH(int, pages);
    QFETCH(bool, turned);
    QVERIFY(server_->addPrinter("Filtered",
                                QStringLiteral(NORVEX_SOURCE_DIR "/tests/data/print/pdf-printer.ppd")));
    const QStringList common{sample("lighthouse.pdf"), "--paper", "A4", orientation};
    QCOMPARE(print(common + QStringList{"--printer", "Filtered"}).exitCode, 0);
    QTRY_COMPARE_WITH_TIMEOUT(server_->jobs(CUPS_WHICHJOBS_COMPLETED), 1, 30000);
    const QString printed = server_->printed("Filtered");
    QCOMPARE(outside::complaintAbout(printed, "pdf"), QString());
    QCOMPARE(fact(printed, "Pages").toInt(), pages);
    QCOMPARE(run("pdfimages", {"-list", printed}).out,
             run("pdfimages", {"-list", sample("lighthouse.pdf")}).out);
    // Every sheet that is fed is upright A4, and shows what the job's own page shows, in its size.
    QCOMPARE(print(common + QStringList{"-o", path("own.pdf")}).exitCode, 0);
    for (int page = 1; page <= pages; ++page) {
      const QImage sheet = drawn(printed, page);
      QVERIFY(sheet.width() < sheet.height());
      const QImage own = drawn(path("own.pdf"), page);
      const auto alike = [&](double degrees) {
        return outside::difference(own.transformed(QTransform().rotate(degrees)), sheet);
      };
      if (!turned) {
        QVERIFY2(alike(0) < 0.02, qPrintable(QString::number(alike(0))));
        continue;
      }
      QVERIFY2(std::min(alike(90), alike(270)) < 0.02,
               qPrintable(QString::number(std::min(alike(90), alike(270)))));
      QVERIFY(std::max(alike(90), alike(270)) > 0.1);
    }
  }

  void aStoppedPrinterKeepsTheJobForLater() {
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    QVERIFY(server_->stopPrinter("Office"));
    QCOMPARE(print({sample("lighthouse.svg"), "--printer", "Office"}).exitCode, 0);
    QCOMPARE(server_->spooledFiles().size(), 1);
  }

  void aServerThatIsGoneIsTold() {
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    server_->stop();
    const Ran ran = print({sample("lighthouse.svg"), "--printer", "Office"});
    QCOMPARE(ran.exitCode, 4);
    QVERIFY2(ran.err.endsWith(": the print service cannot be reached\n"), ran.err);
  }

  void everyStepOfTheWayIsLargeToo() {
    // More pages than one piece of a transfer holds.
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' width='2000pt' height='2000pt' viewBox='0 0 2000 2000'>";
    for (int i = 0; i < 20000; ++i) {
      svg += "<circle cx='" + QByteArray::number(i * 37 % 1999) + "' cy='" +
             QByteArray::number(i * 53 % 1997) + "' r='" + QByteArray::number(1 + i % 17) + "' fill='#" +
             QByteArray::number(0x100000 + i * 977 % 0xefffff, 16) + "'/>";
    }
    const Ran ran = print({write("many.svg", svg + "</svg>"), "--printer", "Office", "--paper", "A4"});
    QVERIFY2(ran.exitCode == 0, ran.err);
    const QString pdf = server_->spooledFiles().first();
    QVERIFY(QFileInfo(pdf).size() > 200000);
    QCOMPARE(outside::complaintAbout(pdf, "pdf"), QString());
    QCOMPARE(fact(pdf, "Pages"), QString("12"));
  }
};

NORVEX_TEST(PrintSystemTest)
#include "print_test.moc"
