// The Check page: what it shows of findings, and what it asks for.
#include "ui/check/check_page.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTranslator>

#include "check/mending.h"
#include "check/profile.h"
#include "kit/test_main.h"
#include "ui/check/finding_row.h"
#include "ui/check/finding_text.h"
#include "ui/check/severity_icon.h"

using namespace norvex;

namespace {

const Finding kCut =
    finding(rule("eps.bounding-box.cuts-ink"), "the box cuts <b>ink</b> off", {}, {}, QRectF(10, 20, 30, 40));
const Finding kFont = finding(rule("fonts.missing"), "the font A is missing", 7, "A");
const Finding kPreview = finding(rule("eps.preview.missing"), "there is no preview");

struct Shown {
  explicit Shown(const Findings& findings = {}, const QString& incomplete = {}) {
    page.resize(320, 500);
    page.show();
    if (!QTest::qWaitForWindowExposed(&page)) qFatal("the page is not shown");
    page.showFindings(findings, incomplete);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] QList<FindingRow*> rows() const {
    QList<FindingRow*> all = page.findChildren<FindingRow*>();
    std::sort(all.begin(), all.end(),
              [](const FindingRow* a, const FindingRow* b) { return a->y() < b->y(); });
    return all;
  }
  [[nodiscard]] QString text(const char* name) const { return page.findChild<QLabel*>(name)->text(); }
  [[nodiscard]] bool sees(const char* name) const { return page.findChild<QWidget*>(name)->isVisible(); }
  CheckPage page;
};

}  // namespace

class CheckPageTest : public QObject {
  Q_OBJECT
 private slots:
  void everyFindingIsARowInItsOrderWithSeverityPlaceAndMend() {
    Shown shown({kFont, kCut, kPreview});
    const QList<FindingRow*> rows = shown.rows();
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows[0]->accessibleName(),
             QStringLiteral("Error. The font A is missing. Line 7 · A. Embed the font"));
    QCOMPARE(rows[1]->accessibleName(),
             QStringLiteral("Warning. The box cuts <b>ink</b> off. at 25, 40 pt. Repair computes it"));
    for (const QLabel* label : rows[1]->findChildren<QLabel*>())
      QVERIFY(label->pixmap().isNull() ? label->textFormat() == Qt::PlainText : true);
    QCOMPARE(shown.text("checkCounts"), QStringLiteral("1 error, 1 warning, 1 note"));
  }

  void nothingFoundIsAQuietSentenceAndNoList() {
    Shown shown;
    QVERIFY(shown.rows().isEmpty() && shown.sees("checkSentence"));
    QCOMPARE(shown.text("checkSentence"), QStringLiteral("Nothing was found."));
    QVERIFY(!shown.sees("checkCounts") && !shown.sees("repairAll"));
  }

  void anIncompleteCheckDoesNotSayThatNothingWasFound() {
    Shown shown({}, QStringLiteral("Not everything could be checked."));
    QCOMPARE(shown.text("checkSentence"), QStringLiteral("Not everything could be checked."));
    shown.page.showFindings({kFont}, QStringLiteral("Not everything could be checked."));
    QVERIFY(shown.sees("checkIncomplete") && shown.sees("checkCounts"));
    QCOMPARE(shown.rows().size(), 1);
  }

  void onlyWhatIsSoundHasItsSign() {
    Shown shown;
    const auto sign = [&] { return shown.page.findChild<QLabel*>("checkSign")->pixmap().toImage(); };
    const QImage sound = soundIcon(44, 1, false).toImage();
    const QImage warning = severityIcon(Severity::Warning, 44, 1, false).toImage();
    QCOMPARE(sign(), sound);
    shown.page.showFindings({}, QStringLiteral("Not everything could be checked."));
    QCOMPARE(sign(), warning);
    shown.page.showFindings({});
    QCOMPARE(sign(), sound);
    shown.page.showProblem(QStringLiteral("The profile cannot be read."));
    QCOMPARE(sign(), warning);
    shown.page.setPalette(QPalette(QColor(60, 60, 60), QColor(30, 30, 30)));
    QCOMPARE(sign(), severityIcon(Severity::Warning, 44, 1, true).toImage());
  }

  void aCheckThatRunsCanBeStopped() {
    Shown shown({kFont});
    const auto* again = shown.page.findChild<QPushButton*>("checkAgain");
    const auto* list = shown.page.findChild<QScrollArea*>();
    QCOMPARE(again->text(), QStringLiteral("Check Again"));
    QVERIFY(list->isVisible());
    shown.page.showChecking();
    QCOMPARE(again->text(), QStringLiteral("Stop"));
    QVERIFY(!list->isVisible() && shown.sees("checkSentence") && shown.text("checkSentence").isEmpty());
    shown.page.showFindings({kFont});
    QCOMPARE(again->text(), QStringLiteral("Check Again"));
    QVERIFY(list->isVisible());
    QCOMPARE(list->widget()->accessibleName(), QStringLiteral("Findings"));
  }

  void aFindingsWordsStandBesideItsSignAndItsButtonAtTheRight() {
    Shown shown({kCut});
    const FindingRow& row = *shown.rows()[0];
    const QList<QLabel*> labels = row.findChildren<QLabel*>();
    const QLabel* sign = *std::find_if(labels.begin(), labels.end(),
                                       [](const QLabel* each) { return !each->pixmap().isNull(); });
    int left = -1;
    for (const QLabel* words : labels) {
      if (words == sign) continue;
      if (left < 0) left = words->x();
      QCOMPARE(words->x(), left);
      QVERIFY(words->x() > sign->geometry().right());
    }
    QVERIFY(row.repairButton()->geometry().right() > row.width() - 20);
  }

  void aSeveritysSignIsTheSameFromBothSides() {
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
      const QImage sign = severityIcon(severity, 256, 1, false).toImage();
      int others = 0;  // beyond what the smoothing of an edge makes of it
      for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 128; ++x) {
          const QColor one = sign.pixelColor(x, y), other = sign.pixelColor(255 - x, y);
          others += qAbs(one.alpha() - other.alpha()) > 128 || qAbs(one.green() - other.green()) > 64;
        }
      QVERIFY2(others < 20, qPrintable(QString::number(others)));
    }
  }

  void whatRepairMendsHasAButtonAndNothingElse() {
    Shown shown({kFont, kCut});
    QVERIFY(!shown.rows()[0]->repairButton() && shown.rows()[1]->repairButton());
    QVERIFY(shown.sees("repairAll"));
    QSignalSpy one(&shown.page, &CheckPage::repairWanted), all(&shown.page, &CheckPage::repairAllWanted);
    shown.rows()[1]->repairButton()->click();
    QCOMPARE(one.size(), 1);
    QCOMPARE(one[0][0].value<Finding>().rule, kCut.rule);
    shown.page.findChild<QPushButton*>("repairAll")->click();
    QCOMPARE(all.size(), 1);
    shown.page.showFindings({kFont});
    QVERIFY(!shown.sees("repairAll"));
  }

  void theTablesRepairsAreToldApart() {
    QCOMPARE(mendingOf(*kFont.rule), Mending::ByHand);
    QCOMPARE(mendingOf(*kCut.rule), Mending::Repair);
    QCOMPARE(mendingOf(*kPreview.rule), Mending::Preview);
    for (const RuleRow& row : ruleTable)
      QVERIFY2(mendingWords(row).find("--") == std::string_view::npos, row.identifier.data());
  }

  void aPressAndTheReturnKeyChooseAFinding() {
    Shown shown({kFont, kCut});
    QSignalSpy chosen(&shown.page, &CheckPage::findingChosen);
    QTest::mouseClick(shown.rows()[1], Qt::LeftButton);
    QTest::keyClick(shown.rows()[0], Qt::Key_Return);
    QTest::keyClick(shown.rows()[0], Qt::Key_Space);
    QCOMPARE(chosen.size(), 3);
    QCOMPARE(chosen[0][0].value<Finding>().rule, kCut.rule);
    QCOMPARE(chosen[1][0].value<Finding>().line, std::optional(7));
  }

  void arrowKeysGoFromRowToRowAndIntoSight() {
    Shown shown(Findings(40, kFont));
    QApplication::setActiveWindow(&shown.page);
    QTRY_VERIFY(shown.page.findChild<QScrollArea*>()->widget()->height() > 40 * 30);
    const QList<FindingRow*> rows = shown.rows();
    rows[0]->setFocus();
    for (int i = 0; i < 30; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(rows[30]));
    const auto isInSight = [&](const QWidget* row) {
      const QWidget* port = shown.page.findChild<QScrollArea*>()->viewport();
      return port->rect().contains(QRect(row->mapTo(port, QPoint(0, 0)), row->size()));
    };
    QVERIFY(isInSight(rows[30]));
    QVERIFY(!isInSight(rows[0]));
    for (int i = 0; i < 40; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(rows[0]));
    QTest::keyClick(rows[0], Qt::Key_End);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(rows[39]));
    QTest::keyClick(rows[39], Qt::Key_Home);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(rows[0]));
  }

  void tabGoesFromTopToBottom() {
    Shown shown({kFont, kCut, kPreview});
    QApplication::setActiveWindow(&shown.page);
    const QList<FindingRow*> rows = shown.rows();
    const QList<QWidget*> wanted{shown.page.findChild<QWidget*>("checkAgain"),
                                 rows[0],
                                 rows[1],
                                 rows[1]->repairButton(),
                                 rows[2],
                                 rows[2]->repairButton(),
                                 shown.page.findChild<QWidget*>("repairAll")};
    shown.page.findChild<QComboBox*>("checkProfile")->setFocus();
    for (QWidget* next : wanted) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      QCOMPARE(QApplication::focusWidget(), next);
    }
  }

  void theKeyboardIsNotLostWithTheRowThatHadIt() {
    Shown shown({kFont});
    QApplication::setActiveWindow(&shown.page);
    shown.rows()[0]->setFocus();
    shown.page.showChecking();
    QCOMPARE(QApplication::focusWidget(), shown.page.findChild<QWidget*>("checkAgain"));
  }

  void everyWordOfARowIsSeenInANarrowPage() {
    Finding wordy = kCut;
    wordy.sentence =
        QStringLiteral("one two three four five six seven eight nine ten eleven twelve ").repeated(4);
    Shown shown({wordy});
    for (const QLabel* label : shown.rows()[0]->findChildren<QLabel*>())
      if (!label->text().isEmpty())
        QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
    QCOMPARE(shown.page.findChild<QScrollArea*>()->widget()->width(),
             shown.page.findChild<QScrollArea*>()->viewport()->width());
  }

  void newFindingsTakeThePlaceOfThoseBefore() {
    Shown shown({kFont, kCut, kPreview});
    for (const Findings& next : {Findings{kCut}, Findings{kPreview, kFont}}) {
      shown.page.showFindings(next, {});
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      QCoreApplication::processEvents();
      QCOMPARE(shown.rows().size(), next.size());
    }
  }

  void theRowsAreAsWideAsThePageAndOnlyScrollDownwards() {
    Shown shown({kFont, kCut, kPreview});
    const auto* scroll = shown.page.findChild<QScrollArea*>();
    for (const int width : {320, 600}) {
      shown.page.resize(width, 500);
      QCoreApplication::processEvents();
      for (const FindingRow* row : shown.rows()) QCOMPARE(row->width(), scroll->viewport()->width());
    }
  }

  void ofVeryManyFindingsTheFirstAreShownAndTheRestIsCounted() {
    Shown shown(Findings(CheckPage::mostRows + 12, kFont));
    QCOMPARE(shown.rows().size(), qsizetype(CheckPage::mostRows));
    QStringList texts;
    for (const QLabel* label : shown.page.findChildren<QLabel*>()) texts << label->text();
    QVERIFY(texts.contains(QStringLiteral("12 more are not shown.")));
  }

  void theButtonStopsWhileAPictureIsChecked() {
    Shown shown;
    auto* button = shown.page.findChild<QPushButton*>("checkAgain");
    QSignalSpy check(&shown.page, &CheckPage::checkWanted), stop(&shown.page, &CheckPage::stopWanted);
    button->click();
    shown.page.showChecking();
    button->click();
    QVERIFY(check.size() == 1 && stop.size() == 1);
    shown.page.showProblem(QStringLiteral("Gone."));
    QCOMPARE(shown.text("checkSentence"), QStringLiteral("Gone."));
    button->click();
    QCOMPARE(check.size(), 2);
  }

  void aRowThatHasTheKeyboardIsFramed() {
    Shown shown({kFont});
    QApplication::setActiveWindow(&shown.page);
    FindingRow* row = shown.rows().first();
    row->setFocus();
    QVERIFY(row->hasFocus());
    const QColor frame = row->palette().color(QPalette::Highlight);
    const QPoint left(3, row->height() / 2);
    QCOMPARE(row->grab().toImage().pixelColor(left).name(), frame.name());
    row->clearFocus();
    QVERIFY(row->grab().toImage().pixelColor(left).name() != frame.name());
  }

  void everyShippedProfileIsOfferedAndAFile() {
    Shown shown;
    auto* list = shown.page.findChild<QComboBox*>("checkProfile");
    for (const QString& name : shippedProfiles()) QVERIFY2(list->findData(name) >= 0, qPrintable(name));
    QSignalSpy chosen(&shown.page, &CheckPage::profileChosen),
        file(&shown.page, &CheckPage::profileFileWanted);
    const auto choose = [&](int item) {
      list->setCurrentIndex(item);
      emit list->activated(item);
    };
    choose(list->findData("web"));
    QCOMPARE(shown.page.profile(), QStringLiteral("web"));
    choose(list->findData("web"));
    QCOMPARE(chosen.size(), 1);
    choose(list->count() - 1);
    QCOMPARE(file.size(), 1);
    QCOMPARE(list->currentData().toString(), QStringLiteral("web"));  // until a file is named
    shown.page.setProfile(QStringLiteral("/a/my house.toml"));
    QCOMPARE(list->currentText(), QStringLiteral("my house"));
    QCOMPARE(list->currentData(Qt::ToolTipRole).toString(), QStringLiteral("/a/my house.toml"));
    QCOMPARE(chosen.size(), 1);
  }

  void everyWordOfRulesAndProfilesStandsInEveryLanguagesTable() {
    QStringList keys;
    for (const RuleRow& row : ruleTable)
      for (const std::string_view words : {row.title, mendingWords(row)})
        keys << QString::fromUtf8(words.data(), qsizetype(words.size()));
    const Shown shown;
    const auto* profiles = shown.page.findChild<QComboBox*>("checkProfile");
    for (int item = 0; item < profiles->count(); ++item) keys << profiles->itemText(item);
    keys.removeAll(QString());
    const QDir tables(NORVEX_SOURCE_DIR "/src/resources");
    const QStringList names = tables.entryList({"norvex_*.ts"});
    QVERIFY(names.size() > 4);
    for (const QString& name : names) {
      QFile file(tables.filePath(name));
      QVERIFY(file.open(QIODevice::ReadOnly));
      const QString table = QString::fromUtf8(file.readAll());
      for (const QString& key : keys)
        QVERIFY2(table.contains("<source>" + key.toHtmlEscaped() + "</source>") ||
                     table.contains("<source>" + key + "</source>"),
                 qPrintable(name + ": " + key));
    }
  }

  void inAnotherLanguageTheRuleSpeaksAndTheFiguresStandBehindIt() {
    class German final : public QTranslator {
     public:
      QString translate(const char*, const char* key, const char*, int) const override {
        const QByteArray words(key);
        if (words == "Ink lies outside the bounding box") return QStringLiteral("Farbe liegt daneben");
        if (words == "Bytes behind the program's end") return QStringLiteral("Bytes hinter dem Ende");
        if (words == "bytes behind %%EOF: %1") return QStringLiteral("%1 Byte zu viel.");
        return words == "showpage is missing" ? QStringLiteral("showpage fehlt") : QString();
      }
      bool isEmpty() const override { return false; }
    } german;
    QCOMPARE(textOf(kCut).figures, QString());
    QCoreApplication::installTranslator(&german);
    QCOMPARE(textOf(kCut).sentence, QStringLiteral("Farbe liegt daneben."));
    QCOMPARE(textOf(kCut).figures, QStringLiteral("The box cuts <b>ink</b> off."));
    const FindingText plain = textOf(finding(rule("eps.showpage.missing"), "showpage is missing"));
    QCOMPARE(plain.sentence, QStringLiteral("showpage fehlt."));
    QCOMPARE(plain.figures, QString());  // nothing beyond the rule
    const FindingText counted = textOf(finding(rule("eps.bytes.behind"), "bytes behind %%EOF: 12"));
    QCOMPARE(counted.sentence, QStringLiteral("Bytes hinter dem Ende."));
    QCOMPARE(counted.figures, QStringLiteral("12 Byte zu viel."));  // translated as well
    QCoreApplication::removeTranslator(&german);
  }

  void operatorsKeepTheirLetters() {
    QCOMPARE(textOf(finding(rule("eps.showpage.missing"), "showpage is missing")).sentence,
             QStringLiteral("showpage is missing."));
    QCOMPARE(textOf(finding(rule("eps.language-level.undeclared"), "rectfill takes level 2", 3, "rectfill"))
                 .sentence,
             QStringLiteral("rectfill takes level 2."));
  }

  void pageLineObjectAndPlaceStandInTheirOrder() {
    Finding all = kCut;
    all.page = 3;
    all.line = 12;
    all.object = QStringLiteral("X");
    QCOMPARE(textOf(all).where, QStringLiteral("Page 3 · Line 12 · X · at 25, 40 pt"));
    QCOMPARE(textOf(kPreview).where, QString());
    QCOMPARE(textOf(kPreview).mend, QStringLiteral("Repair makes one."));
  }
};

NORVEX_TEST(CheckPageTest)
#include "check_page_test.moc"
