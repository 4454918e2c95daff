#include "application/manual_window.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFragment>

#include "kit/test_main.h"
#include "ui/panels/fitted_page.h"

using namespace norvex;

namespace {

QStringList shownTopics(const ManualWindow& manual) {
  QStringList shown;
  for (int row = 0; row < manual.topics()->count(); ++row)
    if (!manual.topics()->item(row)->isHidden()) shown << manual.topics()->item(row)->text();
  return shown;
}

/// Whether anything of the first page is slanted.
bool hasItalics(const QString& locale) {
  const QLocale before;
  QLocale::setDefault(QLocale(locale));
  const ManualWindow manual;
  QLocale::setDefault(before);
  const QTextDocument* document = manual.page()->document();
  for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
    for (auto part = block.begin(); !part.atEnd(); ++part)
      if (part.fragment().charFormat().fontItalic()) return true;
  return false;
}

}  // namespace

class ManualWindowTest : public QObject {
  Q_OBJECT
 private slots:
  void itBeginsWithTheFirstTopic() {
    const ManualWindow manual;
    QVERIFY(manual.topics()->count() >= 7);
    QCOMPARE(manual.topics()->currentRow(), 0);
    QVERIFY(manual.page()->toPlainText().contains(manual.topics()->item(0)->text()));
  }

  void searchingKeepsTheTopicsThatHoldTheWordAndMarksIt() {
    const ManualWindow manual;
    const int all = manual.topics()->count();
    manual.searchField()->setText("CLIPBOARD");
    const QStringList shown = shownTopics(manual);
    QVERIFY(!shown.isEmpty() && shown.size() < all);
    QVERIFY(manual.page()->toPlainText().contains("clipboard"));
    QVERIFY(!manual.page()->extraSelections().isEmpty());
    manual.searchField()->clear();
    QCOMPARE(shownTopics(manual).size(), all);
    QVERIFY(manual.page()->extraSelections().isEmpty());
  }

  void aWordThatIsNowhereLeavesAnEmptyPage() {
    const ManualWindow manual;
    manual.searchField()->setText("xyzzy");
    QVERIFY(shownTopics(manual).isEmpty());
    QVERIFY(manual.page()->toPlainText().isEmpty());
  }

  void itSpeaksTheUsersLanguageWhereItIsWritten_data() {
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("heading");
    QTest::newRow("German of Austria") << "de_AT"
                                       << "Bilder öffnen";
    QTest::newRow("Spanish of Mexico") << "es_MX"
                                       << "Abrir imágenes";
    QTest::newRow("French") << "fr_FR"
                            << "Ouvrir des images";
    QTest::newRow("Japanese") << "ja_JP"
                              << "画像を開く";
    QTest::newRow("simplified Chinese") << "zh_CN"
                                        << "打开图片";
    QTest::newRow("traditional Chinese, which is not there") << "zh_TW"
                                                             << "Opening pictures";
    QTest::newRow("Klingon, which is not there") << "tlh"
                                                 << "Opening pictures";
  }
  void itSpeaksTheUsersLanguageWhereItIsWritten() {
    QFETCH(QString, locale);
    QFETCH(QString, heading);
    const QLocale before;
    const qsizetype pages = manualPages().size();
    QLocale::setDefault(QLocale(locale));
    const QString told = ManualWindow().page()->toPlainText();
    const qsizetype toldPages = manualPages().size();
    QLocale::setDefault(before);
    QVERIFY2(told.contains(heading), qPrintable(told.left(40)));
    QCOMPARE(toldPages, pages);
  }

  void whatIsNamedIsSlantedWhereTheScriptHasItalics() {
    QVERIFY(hasItalics("en") && hasItalics("fr_FR"));
    QVERIFY(!hasItalics("ja_JP") && !hasItalics("zh_CN"));
  }

  void everyLanguageTellsTheSame() {
    const QDir folder(":/manual");
    int languages = 0;
    for (const QString& language : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      ++languages;
      for (const QString& page : QDir(":/manual/en").entryList({"*.html"})) {
        QFile file(":/manual/" + language + '/' + page), english(":/manual/en/" + page);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        QVERIFY(english.open(QIODevice::ReadOnly));
        const QByteArray told = file.readAll(), model = english.readAll();
        for (const char* tag : {"<h2>", "<p>", "<li>", "<pre>", "<img "})
          QVERIFY2(told.count(tag) == model.count(tag), qPrintable(file.fileName() + ' ' + tag));
      }
    }
    QVERIFY(languages >= 6);
  }

  void everyLanguageShowsTheProgramInItsWords() {
    const QStringList pictures = QDir(":/manual").entryList({"*.png"});
    QVERIFY(pictures.size() >= 3);
    for (const QString& language : QDir(":/manual").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      if (language == u"en") continue;
      for (const QString& name : pictures) {
        const QImage own(":/manual/" + language + '/' + name);
        QVERIFY2(!own.isNull(), qPrintable(language + ' ' + name));
        QVERIFY2(own != QImage(":/manual/" + name), qPrintable(language + ' ' + name));
      }
    }
  }

  void theManualShowsThePicturesOfItsLanguage() {
    const QLocale before;
    QLocale::setDefault(QLocale("fr_FR"));
    const ManualWindow manual;
    QLocale::setDefault(before);
    const auto shown = manual.page()->loadResource(QTextDocument::ImageResource, QUrl("window.png"));
    QFile french(":/manual/fr/window.png");
    QVERIFY(french.open(QIODevice::ReadOnly));
    QCOMPARE(shown.toByteArray(), french.readAll());
  }

  void aNarrowWindowCutsNothingOffWhatTheSearchFieldSaysOfItself() {
    ManualWindow manual;
    manual.resize(1, 1);  // as narrow as it can be
    manual.show();
    const QLineEdit& field = *manual.searchField();
    const int text = field.fontMetrics().horizontalAdvance(field.placeholderText());
    QVERIFY2(field.width() >= text + 8, qPrintable(QString("%1 of %2").arg(field.width()).arg(text)));
  }

  void aPageThatIsNarrowIsNotScrolledSideways() {
    ManualWindow manual;
    manual.show();
    const QScrollBar& sideways = *manual.page()->horizontalScrollBar();
    const auto widest = [&manual] {
      double width = 0;
      const QTextDocument& document = *manual.page()->document();
      for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
          width = std::max(width, part.fragment().charFormat().toImageFormat().width());
      return width;
    };
    for (int row = 0; row < manual.topics()->count(); ++row) {
      manual.topics()->setCurrentRow(row);
      manual.resize(1000, 640);
      const double meant = widest();
      manual.resize(520, 400);
      QVERIFY2(sideways.maximum() == 0, qPrintable(manual.topics()->item(row)->text()));
      QVERIFY(widest() <= manual.page()->viewport()->width());
      manual.resize(1000, 640);
      QCOMPARE(widest(), meant);
    }
    manual.resize(520, 400);
    manual.topics()->setCurrentRow(0);  // shown when the page is narrow already
    QCOMPARE(sideways.maximum(), 0);
  }

  void everyPictureOfThePagesIsThere() {
    static const QRegularExpression image("<img src=\"([^\"]+)\"");
    int count = 0;
    for (const QString& page : manualPages()) {
      QFile file(page);
      QVERIFY(file.open(QIODevice::ReadOnly));
      const QString html = QString::fromUtf8(file.readAll());
      QCOMPARE(html.count("<h1>"), 1);
      for (const QRegularExpressionMatch& match : image.globalMatch(html)) {
        ++count;
        const QString path = ":/manual/" + match.captured(1);
        QVERIFY2(!QImage(path).isNull(), qPrintable(path));
      }
    }
    QVERIFY(count > 0);
  }
};

NORVEX_TEST(ManualWindowTest)
#include "manual_window_test.moc"
