// The lines above and below a printed page, of both views.
#include "display/page_header_footer.h"

#include <QImage>
#include <QPainter>
#include <QTimeZone>
#include <QUrl>

#include "display/norvex_rendering_view.h"
#include "display/norvex_view.h"
#include "display/view_fixture.h"
#include "kit/test_main.h"
#include "metadata/full_date.h"

using namespace norvex;
using norvex::kit::QuarteredImageRep;

namespace {

const QDateTime moment(QDate(2014, 2, 3), QTime(9, 7, 5), Qt::UTC);

QRect inkOf(const PageLine& line) {
  QImage image(600, 40, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  drawPageLine(painter, QRectF(0, 0, 600, 40), line);
  painter.end();
  QRect ink;
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x < 600; ++x)
      if (image.pixel(x, y) != 0xFFFFFFFFu) ink |= QRect(x, y, 1, 1);
  return ink;
}

}  // namespace

class PageHeaderFooterTest : public QObject {
  Q_OBJECT
 private slots:
  void withoutATitleThereIsNeither() {
    QVERIFY(!pageHeader(QString(), moment));
    QVERIFY(!pageFooter(QString()));
    NorvexView view;
    view.setPrintJobTitle("a job's title is no page's title");
    QVERIFY(!view.pageHeader());
    QVERIFY(!view.pageFooter());
    NorvexRenderingView rendering(QRectF(0, 0, 10, 10), nullptr);
    rendering.setPrintJobTitle("a job's title is no page's title");
    QVERIFY(!rendering.pageHeader());
    QVERIFY(!rendering.pageFooter());
  }

  void theHeaderIsTheFullDateAfterTwoTabs() {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const auto header = pageHeader("a title", moment, english);
    QVERIFY(header);
    QCOMPARE(header->text, "\t\t" + fullDate(moment, english));
    QVERIFY(header->text.contains("Monday, February 3, 2014"));
    QVERIFY(header->text.contains("9:07:05"));
    QVERIFY(!header->text.contains("a title"));
    QCOMPARE(header->font, defaultPageLine().font);
  }

  void theHeaderFollowsTheLocale() {
    const auto german = pageHeader("t", moment, QLocale(QLocale::German, QLocale::Germany));
    QVERIFY(german->text.contains("Montag, 3. Februar 2014"));
    const auto japanese = pageHeader("t", moment, QLocale(QLocale::Japanese, QLocale::Japan));
    QVERIFY(japanese->text.contains(QString::fromUtf8("2014年2月3日")));
  }

  void theHeaderFollowsTheCalendar() {
    const auto thai = pageHeader("t", moment, QLocale(QLocale::Thai, QLocale::Thailand));
    QVERIFY2(thai->text.contains("2557"), qPrintable(thai->text));  // 543 years ahead
    QVERIFY(!thai->text.contains("2014"));
  }

  void theHeaderIsInTheLanguageOfTheUsersDates() {
    const QByteArray before = qgetenv("LC_ALL");
    qputenv("LC_ALL", "de_DE.UTF-8");
    QLocale::setDefault(QLocale::system());
    const auto german = pageHeader("t", moment);
    QLocale::setDefault(QLocale::c());
    if (before.isNull())
      qunsetenv("LC_ALL");
    else
      qputenv("LC_ALL", before);
    QVERIFY2(german->text.contains("Montag, 3. Februar 2014"), qPrintable(german->text));
  }

  void theDateIsTakenAnewForEachRequest() {
    NorvexView view;
    view.setTitle("t");
    NorvexRenderingView rendering(QRectF(), nullptr);
    rendering.setTitle("t");
    const auto first = view.pageHeader(), printed = rendering.pageHeader();
    QVERIFY(first && !first->text.trimmed().isEmpty() && printed);
    QTRY_VERIFY_WITH_TIMEOUT(view.pageHeader()->text != first->text, 5000);  // a second goes by
    QTRY_VERIFY_WITH_TIMEOUT(rendering.pageHeader()->text != printed->text, 5000);
  }

  void theFooterBeginsWithTheTitle() {
    const QString title = QUrl::fromPercentEncoding(QUrl("file:///home/ann/My%20Picture.eps").toEncoded());
    NorvexView view;
    view.setTitle(title);
    view.setPrintJobTitle("My Picture");
    QCOMPARE(view.pageFooter()->text, QString("file:///home/ann/My Picture.eps\t\t"));
    QCOMPARE(view.printJobTitle(), QString("My Picture"));
    NorvexRenderingView rendering(QRectF(), nullptr);
    rendering.setTitle("Untitled");
    rendering.setPrintJobTitle("Untitled");
    QCOMPARE(rendering.pageFooter()->text, QString("Untitled\t\t"));
    QVERIFY(rendering.pageHeader()->text.startsWith("\t\t"));
    QCOMPARE(rendering.printJobTitle(), QString("Untitled"));
  }

  void anEmptyTitleIsATitle() {
    QCOMPARE(pageFooter(QString(""))->text, QString("\t\t"));
    QVERIFY(pageHeader(QString(""), moment));
  }

  void aTitleWithPlaceholdersIsTakenAsItIs() {
    QCOMPARE(pageFooter("100%1 %@ %s")->text, QString("100%1 %@ %s\t\t"));
  }

  void theDateIsDrawnAtTheRightAndTheTitleAtTheLeft() {
    const QRect header = inkOf(*pageHeader("t", moment, QLocale(QLocale::English, QLocale::UnitedStates)));
    const QRect footer = inkOf(*pageFooter("file:///a.eps"));
    QVERIFY(!header.isEmpty() && !footer.isEmpty());
    QVERIFY2(header.right() > 585 && header.left() > 100,
             qPrintable(QString::number(header.left()) + " " + QString::number(header.right())));
    QVERIFY(footer.left() < 10 && footer.right() < 400);
  }

  void aLongTitleIsShortenedToTheLine() {
    const QRect footer = inkOf(*pageFooter(QString(1000, 'm')));
    QVERIFY(footer.left() < 10 && footer.right() > 500);
    const QRect both = inkOf({QString(1000, 'm') + "\t\t" + QString(1000, 'w'), defaultPageLine().font});
    QVERIFY(!both.isEmpty());
  }

  void theRenderingViewDrawsThePictureAtItsOriginAndNothingElse() {
    QuarteredImageRep rep({20, 10});
    NorvexRenderingView view(QRectF(0, 0, 40, 40), &rep);
    QCOMPARE(view.imageRep(), static_cast<NSImageRep*>(&rep));
    QCOMPARE(view.bounds(), QRectF(0, 0, 40, 40));
    QVERIFY(!view.isOpaque() && !view.drawsBackground() && !view.knowsPageRange());
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setTransform(QTransform(1, 0, 0, -1, 0, 40));
    view.drawRect(painter, view.bounds());
    painter.end();
    QCOMPARE(image.pixelColor(2, 38), QColor(Qt::red));
    QCOMPARE(image.pixelColor(18, 32), QColor(Qt::white));
    QCOMPARE(image.pixelColor(22, 38), QColor(Qt::black));
    QCOMPARE(image.pixelColor(2, 28), QColor(Qt::black));
  }

  void aRenderingViewWithoutAPictureIsBlank() {
    NorvexRenderingView view(QRectF(0, 0, 10, 10), nullptr);
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    const QImage before = image;
    QPainter painter(&image);
    view.drawRect(painter, view.bounds());
    painter.end();
    QCOMPARE(image, before);
    QVERIFY(view.dataWithPDFInsideRect(view.bounds()).isEmpty());
  }
};

NORVEX_TEST(PageHeaderFooterTest)
#include "page_header_footer_test.moc"
