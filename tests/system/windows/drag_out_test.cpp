// The whole picture is taken out of the inspector's preview with the mouse alone, into another program.
#include <QFileInfo>

#include "kit/test_main.h"
#include "system/x_session.h"

using namespace norvex;
using kit::XSession;

namespace {

const QColor kColor(0x20, 0xa0, 0x60);
/// 300 × 200 points of one colour.
const QByteArray kEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 300 200\n%%EndComments\n0.1255 0.6275 0.3765 setrgbcolor 0 "
    "0 "
    "300 200 rectfill\n%%EOF\n";
const QByteArray kSvg =
    "<svg xmlns='http://www.w3.org/2000/svg' width='300pt' height='200pt'><path d='M0 0h400v267H0z' "
    "fill='#20a060'/></svg>";

/// The middle of what has that colour there; null: nothing has.
QPoint middleOfColour(const QImage& screen, const QRect& in) {
  QRect box;
  for (int y = std::max(0, in.top()); y <= std::min(in.bottom(), screen.height() - 1); ++y)
    for (int x = std::max(0, in.left()); x <= std::min(in.right(), screen.width() - 1); ++x) {
      const QColor at(screen.pixel(x, y));
      if (std::abs(at.red() - kColor.red()) < 8 && std::abs(at.green() - kColor.green()) < 8 &&
          std::abs(at.blue() - kColor.blue()) < 8)
        box |= QRect(x, y, 1, 1);
    }
  return box.center();
}

}  // namespace

class DragOutTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    if (const QString program = XSession::missing(); !program.isEmpty())
      QSKIP(qPrintable(program + " is not installed: no window can be worked here"));
  }

  void theWholePictureIsDraggedFromThePreview_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("dropped");
    QTest::newRow("an EPS") << "quiet sea.eps" << kEps << "quiet sea.eps";
    QTest::newRow("an SVG") << "quiet sea.svg" << kSvg << "quiet sea.svg";
  }
  void theWholePictureIsDraggedFromThePreview() {
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, dropped);
    XSession session;
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    QProcess target;
    target.setProcessEnvironment(session.environment());
    target.start(QStringLiteral(NORVEX_BUILD_DIR "/norvex-drop-target"), {});
    QVERIFY(session.start({file.fileName()}, name));
    session.key("ctrl+i");
    const QString inspector = name + " Inspector";
    QVERIFY(session.activate(inspector));
    session.xdo({"windowmove", "--sync", session.windowsOf(inspector).value(0), "20", "40"});
    QVERIFY(kit::waitUntil([&] { return !session.windowsOf("Drop Target").isEmpty(); }));
    session.xdo({"windowraise", session.windowsOf("Drop Target").value(0)});
    QPoint preview;
    QVERIFY(kit::waitUntil([&] {
      preview = middleOfColour(session.screen(), session.windowRect(inspector));
      return !preview.isNull();
    }));
    session.waitUntilStill();
    preview = middleOfColour(session.screen(), session.windowRect(inspector));

    const QPoint there = session.windowRect("Drop Target").center();
    session.press(preview);
    for (int step = 1; step <= 10; ++step) {
      session.moveTo(preview + (there - preview) * step / 10);
      QThread::msleep(50);  // as a hand does
    }
    session.moveTo(there + QPoint(3, 3));
    QThread::msleep(300);
    session.release();
    QVERIFY2(kit::waitUntil([&] {
               target.waitForReadyRead(10);
               return target.peek(1 << 16).contains("over\n");
             }),
             "nothing was dropped");
    const QList<QByteArray> told = target.readAllStandardOutput().trimmed().split('\n');
    QVERIFY2(told.contains("format text/uri-list"), told.join(", ").constData());
    const QString path = QString::fromUtf8(told.value(told.size() - 2)).section(u' ', 1);
    QCOMPARE(QFileInfo(path).fileName(), dropped);
    const auto json = kit::norvex({"info", "--json", path});
    QCOMPARE(json.exitCode, 0);
    const QString png = folder.filePath("taken.png");
    QCOMPARE(kit::norvex({"convert", path, "-o", png, "--dpi", "72"}).exitCode, 0);
    const QImage taken(png);
    QCOMPARE(taken.size(), QSize(300, 200));
    QVERIFY(!middleOfColour(taken, taken.rect()).isNull());
    target.kill();
    target.waitForFinished();
  }
};

NORVEX_TEST(DragOutTest)
#include "drag_out_test.moc"
