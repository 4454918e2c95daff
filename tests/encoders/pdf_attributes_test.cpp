#include "encoders/pdf_attributes.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

const QDateTime now(QDate(2026, 1, 2), QTime(3, 4), Qt::UTC);

std::optional<PdfAttributes> attributesOf(const HeaderDictionary& header) {
  return pdfAttributes(header,
                       {QStringLiteral("Norvex"), QStringLiteral("1.2"), QStringLiteral("Ann User"), now});
}

QString textOf(const HeaderDictionary& header, const char* key) {
  const auto attributes = attributesOf(header);
  return attributes ? attributes->texts.value(QLatin1String(key), QStringLiteral("(absent)"))
                    : QStringLiteral("(failed)");
}

}  // namespace

class PdfAttributesTest : public QObject {
  Q_OBJECT
 private slots:
  void theCreatorIsTheProgramAndTheDocumentsCreatorTheProducer() {
    const HeaderDictionary header = {{header::Creator, "Drawer 3"}};
    QCOMPARE(textOf(header, "Creator"), QStringLiteral("Norvex 1.2"));
    QCOMPARE(textOf(header, "Producer"), QStringLiteral("Drawer 3"));
    QCOMPARE(textOf({{header::Creator, ""}}, "Producer"), QStringLiteral("(absent)"));
  }
  void anEmptyOwnerIsTheUser() {
    QCOMPARE(textOf({{header::For, ""}}, "Author"), QStringLiteral("Ann User"));
    QCOMPARE(textOf({}, "Author"), QStringLiteral("Ann User"));
    QCOMPARE(textOf({{header::For, "Bob"}}, "Author"), QStringLiteral("Bob"));
  }
  void theTitleIsSetWhenThereIsOne() {
    QCOMPARE(textOf({{header::Title, "T"}}, "Title"), QStringLiteral("T"));
    QCOMPARE(textOf({{header::Title, ""}}, "Title"), QString());
    QCOMPARE(textOf({}, "Title"), QStringLiteral("(absent)"));
  }
  void aDescriptionMakesTheTitleTheSubject() {
    QCOMPARE(textOf({{header::Description, "x"}, {header::Title, "T"}}, "Subject"), QStringLiteral("T"));
  }
  void anEmptyDescriptionLeavesTheSubject() {
    QCOMPARE(textOf({{header::Description, ""}, {header::Title, "T"}}, "Subject"),
             QStringLiteral("(absent)"));
  }
  void aDescriptionWithoutATitleFails() { QVERIFY(!attributesOf({{header::Description, "x"}})); }
  void theCreationDateIsNow() { QCOMPARE(attributesOf({})->creationDate, now); }
};

NORVEX_TEST(PdfAttributesTest)
#include "pdf_attributes_test.moc"
