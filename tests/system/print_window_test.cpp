// The built program in a real X server prints on a CUPS server of the test's own.
#include <cmath>

#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/print_server.h"
#include "system/x_session.h"

using namespace norvex;
using kit::XSession;

namespace {

/// Four quarters, each in its colour, 300 × 200 points; nothing of it looks the same turned or mirrored.
const QByteArray kQuarters =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 300 200\n%%EndComments\n"
    "0.816 0.125 0.125 setrgbcolor 0 100 150 100 rectfill\n0.125 0.627 0.125 setrgbcolor 150 100 150 100 "
    "rectfill\n"
    "0.125 0.188 0.816 setrgbcolor 0 0 150 100 rectfill\n0.878 0.753 0.125 setrgbcolor 150 0 150 100 "
    "rectfill\n"
    "0 setgray 165 110 20 8 rectfill\n%%EOF\n";
// Even, so that they begin and end between pixels on the screen as well as in the middle of the paper.
const QSize kSelected(142, 96);
constexpr double kPaperWidth = 297 * 72 / 25.4, kPaperHeight = 210 * 72 / 25.4;
/// Mean difference of the samples that fonts, edges and half a pixel make. Another part of the picture makes
/// more.
constexpr double kAlike = 0.03;

bool isQuarter(QRgb at) {
  for (const QRgb each : {0xd02020u, 0x20a020u, 0x2030d0u, 0xe0c020u})
    if (std::abs(qRed(at) - qRed(each)) < 24 && std::abs(qGreen(at) - qGreen(each)) < 24 &&
        std::abs(qBlue(at) - qBlue(each)) < 24)
      return true;
  return false;
}

}  // namespace

class PrintWindowTest : public QObject {
  Q_OBJECT

  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<outside::PrintServer> server_;
  std::unique_ptr<XSession> session_;

  /// A server with a printer; why there is none otherwise.
  QString serve() {
    server_ = std::make_unique<outside::PrintServer>();
    if (const QString why = server_->start(); !why.isEmpty()) return why;
    return server_->addPrinter("Office") && server_->makeDefault("Office") ? QString()
                                                                           : "CUPS takes no queue here";
  }
  /// The window with the picture.
  bool open() {
    folder_ = std::make_unique<QTemporaryDir>();
    QFile file(folder_->filePath("quarters.eps"));
    if (!file.open(QIODevice::WriteOnly) || file.write(kQuarters) != kQuarters.size()) return false;
    file.close();
    qputenv("CUPS_SERVER", server_->address().toUtf8());
    session_ = std::make_unique<XSession>();
    qunsetenv("CUPS_SERVER");
    if (!session_->start({file.fileName()}, "quarters.eps")) return false;
    // Where the inspector does not lie over it.
    session_->xdo({"windowmove", "--sync", session_->windowsOf("quarters.eps").value(0), "900", "200"});
    return kit::waitUntil([this] { return shown().size() == QSize(300, 200); });
  }
  /// Where the picture is on the screen.
  QRect shown() {
    const QImage screen = session_->screen();
    const QRect window = session_->windowRect("quarters.eps");
    QRect box;
    for (int y = std::max(0, window.top()); y <= std::min(window.bottom(), screen.height() - 1); ++y)
      for (int x = std::max(0, window.left()); x <= std::min(window.right(), screen.width() - 1); ++x)
        if (isQuarter(screen.pixel(x, y))) box |= QRect(x, y, 1, 1);
    return box;
  }
  static QString panelTitle() { return QStringLiteral("Print “quarters”"); }
  /// Opens the print panel by keyboard and waits until it knows the printers.
  bool openPanel() {
    const int asked = server_->requests("CUPS-Get-Printers");
    session_->activate("quarters.eps");
    session_->key("ctrl+alt+p");
    return session_->activate(panelTitle()) &&
           kit::waitUntil([&] { return server_->requests("CUPS-Get-Printers") > asked; });
  }
  /// Presses Return in the panel, which does nothing before it knows the printers.
  bool pressPrint() {
    return kit::waitUntil([this] {
      if (session_->windowsOf(panelTitle()).isEmpty()) return true;
      session_->key("Return");
      return false;
    });
  }

 private slots:
  void initTestCase() {
    if (const QString program = XSession::missing(); !program.isEmpty())
      QSKIP(qPrintable(program + " is not installed: no window can be worked here"));
  }
  void cleanup() {
    session_.reset();
    server_.reset();
    folder_.reset();
  }

  void theSelectionIsPrintedAsItIsShown_data() {
    QTest::addColumn<QString>("angle");
    QTest::newRow("0") << "";
    QTest::newRow("90") << "90";
    QTest::newRow("33.3") << "33.18";  // degrees and minutes
  }
  void theSelectionIsPrintedAsItIsShown() {
    QFETCH(QString, angle);
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    QVERIFY(open());
    if (!angle.isEmpty()) {
      QVERIFY(session_->typeInInspector("quarters.eps", angle,
                                        [this] { return shown().size() != QSize(300, 200); }));
      session_->activate("quarters.eps");
    }
    const QRect picture = shown();
    const QPoint middle = picture.center() + QPoint(1, 1);  // between the pixels left and right of it
    const QRect selected(middle - QPoint(kSelected.width() / 2, kSelected.height() / 2), kSelected);
    const QImage before = session_->screen();
    session_->drag(middle, selected.topLeft());
    session_->drag(middle, selected.topLeft() + QPoint(kSelected.width(), kSelected.height()));
    QVERIFY(openPanel());
    QVERIFY(pressPrint());
    QVERIFY(kit::waitUntil([this] { return server_->spooledFiles().size() == 1; }));
    QVERIFY(kit::waitUntil([this] { return server_->jobs(CUPS_WHICHJOBS_ACTIVE) == 0; }));
    const QString pdf = server_->spooledFiles().first();
    QCOMPARE(server_->jobTitle(1), QString("quarters"));
    QCOMPARE(outside::complaintAbout(pdf, "pdf"), QString());
    QCOMPARE(kit::run("pdfimages", {"-list", pdf}).out.count('\n'), 2);
    kit::run("pdftoppm", {"-r", "72", "-singlefile", "-png", pdf, folder_->filePath("page")});
    const QImage page(folder_->filePath("page.png"));
    QCOMPARE(page.size(), QSize(int(std::ceil(kPaperWidth)), int(std::ceil(kPaperHeight))));
    const QRect place(QPoint(qRound((kPaperWidth - kSelected.width()) / 2),
                             qRound((kPaperHeight - kSelected.height()) / 2)),
                      kSelected);
    const QImage expected = before.copy(selected), printed = page.copy(place);
    const double apart = outside::difference(expected, printed);
    if (apart >= kAlike) expected.save("print-expected.png"), printed.save("print-printed.png");
    QVERIFY2(apart < kAlike, qPrintable(QString::number(apart)));
    for (const QImage& other :
         {expected.mirrored(true, false), expected.mirrored(false, true), expected.mirrored(true, true),
          before.copy(selected.translated(12, 0)), before.copy(selected.translated(0, 12))})
      QVERIFY(outside::difference(other, printed) > kAlike);
    // Nothing else is on the paper.
    QImage rest = page.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < rest.height(); ++y)
      for (int x = 0; x < rest.width(); ++x)
        if (!place.adjusted(-1, -1, 1, 1).contains(x, y)) QCOMPARE(rest.pixel(x, y), qRgb(255, 255, 255));
  }

  void aSlowJobShowsProgressAndCancellingLeavesNothing() {
    if (const QString why = serve(); !why.isEmpty()) QSKIP(qPrintable(why));
    QVERIFY(open());
    QVERIFY(openPanel());
    server_->pause();
    QVERIFY(pressPrint());
    QVERIFY(session_->activate("Printing"));
    if (qEnvironmentVariableIsSet("NORVEX_KEEP_SCREENS")) session_->screen().save("print-progress.png");
    session_->key("Escape");
    QVERIFY(kit::waitUntil([this] { return session_->windowsOf("Printing").isEmpty(); }));
    QVERIFY2(session_->isAlive(), session_->said());
    server_->goOn();
    // The next job is the first one that arrives, with the settings as they were.
    QVERIFY(openPanel());
    QCOMPARE(server_->jobs(), 0);
    QVERIFY(pressPrint());
    QVERIFY(kit::waitUntil([this] { return server_->spooledFiles().size() == 1; }));
    QCOMPARE(server_->jobs(), 1);
  }
};

NORVEX_TEST(PrintWindowTest)
#include "print_window_test.moc"
