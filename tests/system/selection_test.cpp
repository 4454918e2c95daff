// Selecting with a real mouse and real keys in a real X server: what the fields say and which pixels change.
#include <QPointF>
#include <QRectF>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

#include "kit/test_main.h"
#include "system/painted_screen.h"
#include "system/x_session.h"

using namespace norvex;
using kit::boundsOf;
using kit::count;
using kit::isBlue;
using kit::isRed;
using kit::kEps;
using kit::kHeight;
using kit::kSvg;
using kit::kWidth;
using kit::near;
using kit::paperIn;
using kit::XSession;

namespace {

/// The two numbers of a field, "(    50.00,    30.00)".
QPointF numbersOf(const QString& field) {
  static const QRegularExpression form(
      QStringLiteral("^\\( *(-?[0-9]+\\.[0-9]{2}), *(-?[0-9]+\\.[0-9]{2})\\)$"));
  const auto match = form.match(field.trimmed());
  return match.hasMatch() ? QPointF(match.captured(1).toDouble(), match.captured(2).toDouble())
                          : QPointF(qQNaN(), qQNaN());
}

/// The same points as the fields have to tell them, from a rectangle in view coordinates.
std::pair<QPointF, QPointF> told(const QRectF& r, double degrees, bool flipped) {
  const double t = degrees * M_PI / 180, c = std::cos(t), s = std::sin(t);
  const auto plain = [&](double x, double y) {
    return QPointF(kWidth / 2 + c * x + s * y, kHeight / 2 - s * x + c * y);
  };
  if (!flipped) return {plain(r.left(), r.top()), plain(r.right(), r.bottom())};
  const double upper = r.bottom(), right = r.right();
  return {QPointF(kWidth / 2 + c * r.left() + s * upper, kHeight / 2 + s * r.left() - c * upper),
          QPointF(kWidth / 2 + c * right - s * upper, kHeight / 2 + s * right + c * upper)};
}

}  // namespace

class SelectionSystemTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    if (const QString program = XSession::missing(); !program.isEmpty())
      QSKIP(qPrintable(program + " is not installed: no window can be worked here"));
    session_ = std::make_unique<XSession>();
  }
  void init() { folder_ = std::make_unique<QTemporaryDir>(); }
  void cleanup() { session_->stop(); }
  void cleanupTestCase() { session_.reset(); }

  void twoDragsMarkARectangleAndAClickRemovesIt_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("degrees");
    for (const char* name : {"a.eps", "a.svg"})
      for (const double degrees : {0.0, 90.0, 33.3})
        QTest::addRow("%s at %g", name, degrees) << QString(name) << degrees;
  }
  void twoDragsMarkARectangleAndAClickRemovesIt() {
    QFETCH(QString, name);
    QFETCH(double, degrees);
    QVERIFY(open(name));
    if (degrees == 90) session_->key("ctrl+shift+r");
    if (degrees == 33.3) QVERIFY(turnInTheInspector(name, "33.18"));
    const double t = degrees * M_PI / 180;
    const QSizeF turned(std::abs(kWidth * std::cos(t)) + std::abs(kHeight * std::sin(t)),
                        std::abs(kWidth * std::sin(t)) + std::abs(kHeight * std::cos(t)));
    const auto sized = [&] {
      const QRect paper = paperIn(session_->screen());
      return std::abs(paper.width() - turned.width()) < 6 &&
             std::abs(paper.height() - turned.height()) < 6;  // smooth corners fade
    };
    QVERIFY2(kit::waitUntil(sized),
             qPrintable(QString("the picture has not the size of one turned by %1").arg(degrees)));
    const QImage before = untouched();
    const QRect paper = paperIn(before);
    const QPointF middle = QRectF(paper).center();
    const QPoint start = middle.toPoint() + QPoint(-27, 21), end = middle.toPoint() + QPoint(33, -36);

    session_->drag(middle.toPoint() + QPoint(5, 5), start);
    QVERIFY(kit::waitUntil([&] { return count(session_->screen(), paper, isRed) > 100; }));
    const QImage placed = session_->screen();
    for (const int along : {-30, -12, 12, 30}) {
      QVERIFY(near(placed, {start.x() + along, start.y()}, isRed));
      QVERIFY(near(placed, {start.x(), start.y() + along}, isRed));
    }
    QCOMPARE(count(placed, paper, isBlue), 0);

    session_->drag(middle.toPoint() + QPoint(-20, -20), end);
    QVERIFY(kit::waitUntil([&] { return count(session_->screen(), paper, isBlue) > 100; }));
    const QImage marked = session_->screen();
    const QRect box = QRect(start, end).normalized();
    for (const double part : {0.1, 0.3, 0.5, 0.7, 0.9}) {
      const int x = int(std::lround(start.x() + part * (end.x() - start.x()))),
                y = int(std::lround(start.y() + part * (end.y() - start.y())));
      for (const QPoint& at :
           {QPoint(x, start.y()), QPoint(x, end.y()), QPoint(start.x(), y), QPoint(end.x(), y)})
        QVERIFY2(near(marked, at, isBlue), qPrintable(QString("no blue at %1, %2").arg(at.x()).arg(at.y())));
    }
    QCOMPARE(count(marked, box.adjusted(3, 3, -3, -3), isBlue), 0);
    QCOMPARE(count(marked, paper, isRed), 0);

    // Neither turned nor flipped, screen points are view points counted from the middle.
    const QRectF inView(QPointF(std::min(start.x(), end.x()) - middle.x() - 0.5,
                                middle.y() + 0.5 - std::max(start.y(), end.y())),
                        QSizeF(60, 57));
    // The dial of an SVG picture turns clockwise; the command turns as seen.
    const bool flipped = name.endsWith(".svg");
    const auto [first, second] = told(inView, flipped && degrees == 33.3 ? -degrees : degrees, flipped);
    const auto fields = fieldsAfter(before);
    QVERIFY2(apart(fields.first, first) < 1.5, qPrintable(shown(fields.first, first)));
    QVERIFY2(apart(fields.second, second) < 1.5, qPrintable(shown(fields.second, second)));

    session_->click(middle.toPoint());
    QVERIFY(kit::waitUntil([&] { return count(session_->screen(), paper, isBlue) == 0; }));
    const QImage cleared = untouched();
    QCOMPARE(count(cleared, paper, isRed), 0);
    QVERIFY(changed(before, cleared).isNull());  // the fields are empty again
  }

  void keysMarkMoveSizeAndRemove() {
    QVERIFY(open("a.eps"));
    const QImage before = untouched();
    const QRect paper = paperIn(before);
    session_->key("ctrl+a");
    QVERIFY(kit::waitUntil([&] { return count(session_->screen(), paper, isBlue) > 400; }));
    for (int i = 0; i < 5; ++i) session_->key("ctrl+shift+Left");
    for (int i = 0; i < 3; ++i) session_->key("ctrl+Down");
    session_->key("shift+Right");
    session_->key("Right");
    const auto fields = fieldsAfter(before);
    QCOMPARE(fields.first, QPointF(11, 0));
    QCOMPARE(fields.second, QPointF(121, 117));
    session_->activate("a.eps");
    session_->click(paper.center());
    session_->key("ctrl+a");
    session_->key("Escape");
    QVERIFY(kit::waitUntil([&] { return changed(before, untouched()).isNull(); }));
    QCOMPARE(count(session_->screen(), paper, isBlue), 0);
  }

  // ---- what must not happen
  // ---------------------------------------------------------------------------------------

  void anAngleThatIsNoNumberLeavesThePictureAsItIs_data() {
    QTest::addColumn<QString>("typed");
    for (const char* typed : {"nan", "inf", "1e400", "-1e308", "abc"}) QTest::newRow(typed) << QString(typed);
  }
  void anAngleThatIsNoNumberLeavesThePictureAsItIs() {
    QFETCH(QString, typed);
    QVERIFY(open("a.eps"));
    QVERIFY(turnInTheInspector("a.eps", "90", typed));
    QVERIFY(kit::waitUntil([this] { return paperIn(session_->screen()).size() == QSize(120, 160); }));
    QVERIFY(stillSelects());
  }

  void aPictureThatCannotBeReadLeavesAUsableWindow_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::newRow("no PostScript")
        << QByteArray(
               "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 300 200\n%%EndComments\nthis is no operator\n")
        << "b.eps";
    QTest::newRow("no size, EPS")
        << QByteArray("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 5 5 5 5\n%%EndComments\n0 0 9 9 rectfill\n")
        << "b.eps";
    QTest::newRow("no size, SVG") << QByteArray(
                                         "<svg xmlns='http://www.w3.org/2000/svg' width='0' height='0'><rect "
                                         "width='9' height='9'/></svg>")
                                  << "b.svg";
    QTest::newRow("a billion points")
        << QByteArray(
               "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 1000000000 1000000000\n%%EndComments\n1 0.9 0.2 "
               "setrgbcolor 0 0 1000000000 1000000000 rectfill\n%%EOF\n")
        << "b.eps";
    QTest::newRow("a billion points of SVG")
        << QByteArray(
               "<svg xmlns='http://www.w3.org/2000/svg' width='1000000000pt' height='1000000000pt'><rect "
               "width='100%' height='100%' fill='#ffe633'/></svg>")
        << "b.svg";
  }
  void aPictureThatCannotBeReadLeavesAUsableWindow() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QVERIFY(session_->start({write(name, bytes)}, name));
    session_->waitUntilStill();  // read, or told why not
    const QPoint middle = middleOfWindow(name);
    QVERIFY(!middle.isNull());
    session_->drag(middle, middle + QPoint(-60, 40));
    session_->drag(middle, middle + QPoint(60, -40));
    session_->key("ctrl+a");
    for (const char* keys :
         {"Left", "ctrl+Up", "ctrl+shift+r", "ctrl+plus", "ctrl+9", "ctrl+minus", "Escape"})
      session_->key(keys);
    session_->click(middle);
    QVERIFY2(session_->isAlive(), session_->said());
    // What is worked with keys answers: the inspector comes.
    session_->activate(name);
    session_->key("ctrl+i");
    QVERIFY2(session_->isAlive(), session_->said());
  }

  void aWorkerKilledDuringADragLeavesTheSelectionUsable() {
    QVERIFY(open("a.eps"));
    const QRect paper = paperIn(session_->screen());
    const QPoint middle = paper.center();
    session_->drag(middle, middle - QPoint(40, -30));
    session_->press(middle);
    session_->moveTo(middle + QPoint(10, -10));
    const QList<qint64> workers = kit::descendants(session_->id(), "norvex-worker");
    QVERIFY(!workers.isEmpty());
    for (const qint64 worker : workers) ::kill(pid_t(worker), SIGKILL);
    session_->moveTo(middle + QPoint(60, -50));
    session_->release();
    QVERIFY(kit::waitUntil([&] { return count(session_->screen(), paper, isBlue) > 100; }));
    QVERIFY2(session_->isAlive(), session_->said());
    session_->click(middle);
    QVERIFY(kit::waitUntil([&] { return count(session_->screen(), paper, isBlue) == 0; }));
    // Another process draws what is asked for next.
    session_->key("ctrl+shift+r");
    QVERIFY(kit::waitUntil([this] { return paperIn(session_->screen()).size() == QSize(120, 160); }));
    QVERIFY(stillSelects());
  }

 private:
  QString write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_->filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
  }

  bool open(const QString& name) {
    if (!session_->start({write(name, name.endsWith(".svg") ? kSvg : kEps)}, name)) return false;
    const QSize whole{int(kWidth), int(kHeight)};
    if (kit::waitUntil([&] { return paperIn(session_->screen()).size() == whole; })) return true;
    qWarning() << name << "is" << paperIn(session_->screen()) << "large; it said" << session_->said();
    return false;
  }

  QPoint middleOfWindow(const QString& title) { return session_->windowRect(title).center(); }

  /// Types the angle into the field of the inspector, found with Tab as a user without a mouse would;
  /// `before` it, a text that must not do anything. Whether the picture turned.
  bool turnInTheInspector(const QString& title, const QString& angle, const QString& before = {}) {
    // Of the window alone: the inspector shows the picture too, unturned. It must not lie over the window.
    session_->xdo({"windowmove", "--sync", session_->windowsOf(title).value(0), "1100", "300"});
    const QRect window = session_->windowRect(title);
    const auto size = [&] { return paperIn(session_->screen().copy(window)).size(); };
    const QSize unturned = size();
    session_->activate(title);
    session_->key("ctrl+i");
    if (!session_->activate(title + " Inspector")) return false;
    session_->xdo({"windowmove", "--sync", session_->windowsOf(title + " Inspector").value(0), "20", "40"});
    kit::waitUntil([&] { return size() == unturned; }, 5);
    bool turned = false;
    for (int tabs = 1; tabs <= 12 && !turned; ++tabs) {
      session_->key("Tab");  // marks the whole text of a field
      if (tabsToAngle_ > 0 && tabs < tabsToAngle_) continue;
      for (const QString& text : {before, angle}) {
        if (text.isEmpty()) continue;
        session_->xdo({"type", text});
        session_->key("Return");
        if (text == angle) break;
        session_->key("shift+Tab");
        session_->key("Tab");
      }
      turned = kit::waitUntil([&] { return size() != unturned; }, tabsToAngle_ > 0 ? 10 : 1);
      if (turned) tabsToAngle_ = tabs;
    }
    session_->activate(title);
    session_->key("ctrl+i");  // away with it: it may lie over the picture
    kit::waitUntil([&] { return session_->windowsOf(title + " Inspector").isEmpty(); }, 5);
    return turned;
  }

  bool stillSelects() {
    const QRect paper = paperIn(session_->screen());
    const QPoint middle = paper.center();
    session_->drag(middle, middle + QPoint(-30, 30));
    session_->drag(middle, middle + QPoint(30, -30));
    const bool marked = kit::waitUntil([&] { return count(session_->screen(), paper, isBlue) > 100; }, 5);
    return marked && session_->isAlive();
  }

  /// What differs outside the picture and its handles: the bar with the two fields at the window's lower
  /// edge.
  static QRect changed(const QImage& before, const QImage& after) {
    const QRect paper = paperIn(before);
    constexpr int kHandles = 16;
    const QRect below(0, paper.bottom() + kHandles, before.width(),
                      before.height() - paper.bottom() - kHandles);
    return boundsOf(below, [&](int x, int y) {
      return before.pixel(x, y) != after.pixel(x, y) && !isRed(after.pixel(x, y));
    });
  }

  /// The screen without the pointer's coordinates in the bar.
  QImage untouched() {
    session_->moveTo({3, 3});
    QThread::msleep(150);
    return session_->screen();
  }

  QString copiedFrom(const QPoint& at) {
    session_->click(at, 3);  // marks the whole text
    session_->key("ctrl+c");
    return session_->selection("clipboard");
  }

  /// The numbers of the start and the end field, copied out of them. The end field is the last in its bar,
  /// the start field stands to the left of what becomes marked when the end field is clicked.
  std::pair<QPointF, QPointF> fieldsAfter(const QImage& before) {
    std::pair<QPointF, QPointF> found{{qQNaN(), qQNaN()}, {qQNaN(), qQNaN()}};
    const QImage told = untouched();
    const QRect bar = changed(before, told);
    if (bar.isNull()) return found;
    found.second = numbersOf(copiedFrom({bar.right() - 15, bar.center().y()}));
    const QRect marked = changed(told, session_->screen());
    if (!marked.isNull()) found.first = numbersOf(copiedFrom({marked.left() - 30, bar.center().y()}));
    return found;
  }

  static double apart(const QPointF& one, const QPointF& other) {
    return std::hypot(one.x() - other.x(), one.y() - other.y());
  }
  static QString shown(const QPointF& is, const QPointF& should) {
    return QString("(%1, %2) instead of (%3, %4)").arg(is.x()).arg(is.y()).arg(should.x()).arg(should.y());
  }

  int tabsToAngle_ = 0;  ///< 0: not found yet
  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<XSession> session_;
};

NORVEX_TEST(SelectionSystemTest)
#include "selection_test.moc"
