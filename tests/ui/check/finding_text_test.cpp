// What a finding says, in the user's language.
#include "ui/check/finding_text.h"

#include <QHash>
#include <QTranslator>

#include "check/finding.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Another language, as long as it lives.
class Words final : public QTranslator {
 public:
  explicit Words(const QHash<QByteArray, QString>& words) : words_(words) {
    QCoreApplication::installTranslator(this);
  }
  ~Words() override { QCoreApplication::removeTranslator(this); }
  [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
    return words_.value(key);
  }
  [[nodiscard]] bool isEmpty() const override { return false; }

 private:
  const QHash<QByteArray, QString> words_;
};

}  // namespace

class FindingTextTest : public QObject {
  Q_OBJECT
 private slots:
  void whatAFindingQuotesIsTranslatedToo() {
    const Words german({{"The preview cannot be read", "Vorschau nicht lesbar"},
                        {"the embedded preview lies outside of the file", "Sie liegt draußen."},
                        {"The interpreter had something to remark", "Anmerkung"},
                        {"the placed picture %1 is not in the file", "Das Bild %1 fehlt."}});
    const FindingText preview =
        textOf(finding(rule("eps.preview.unreadable"), "the embedded preview lies outside of the file"));
    QCOMPARE(preview.sentence, QString("Vorschau nicht lesbar."));
    QCOMPARE(preview.figures, QStringLiteral("Sie liegt draußen."));
    const FindingText remark =
        textOf(finding(rule("eps.program.remark"), "the placed picture logo.eps is not in the file"));
    QCOMPARE(remark.figures, QString("Das Bild logo.eps fehlt."));
  }

  void findingsAreCountedByWhatTheyWeigh() {
    const auto of = [](std::initializer_list<Severity> severities) {
      Findings all;
      for (const Severity severity : severities) {
        Finding one;
        one.severity = severity;
        all.push_back(one);
      }
      return countsOf(all);
    };
    using enum Severity;
    QCOMPARE(of({Note, Error, Note}), QStringLiteral("1 error, 2 notes"));
    QCOMPARE(of({Warning, Error, Note, Warning, Error}), QStringLiteral("2 errors, 2 warnings, 1 note"));
    QCOMPARE(of({Warning}), QStringLiteral("1 warning"));
    QCOMPARE(of({}), QString());
  }

  void aFaultOfAProfileIsToldWithItsReason() {
    const Words german(
        {{"%1, line %2: %3", "%1, Zeile %2: %3."}, {"there is no rule %1", "Keine Regel %1."}});
    QCOMPARE(figuresOf("my.toml, line 4: there is no rule fonts.typ3"),
             QString("My.toml, Zeile 4: Keine Regel fonts.typ3."));
  }

  void aNameThatADocumentGivesIsNoWordOfOurs() {
    const Words german({{"the font %1 is missing, %2 stands in for it", "%1 fehlt, %2 vertritt sie."},
                        {"the pattern %1 is not in the file in a form that is understood and was left out",
                         "Muster %1 fehlt."},
                        {"grey", "Grau"},
                        {"printing", "Drucken"}});
    QCOMPARE(figuresOf("the font grey is missing, printing stands in for it"),
             QString("Grey fehlt, printing vertritt sie."));
    QCOMPARE(
        figuresOf("the pattern printing is not in the file in a form that is understood and was left out"),
        QString("Muster printing fehlt."));
  }
};

NORVEX_TEST(FindingTextTest)
#include "finding_text_test.moc"
