// The two fields between which pages lie.
#include "ui/controls/page_range_fields.h"

#include <QSignalSpy>
#include <QSpinBox>

#include "kit/test_main.h"

using namespace norvex;

class PageRangeFieldsTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { fields_ = std::make_unique<PageRangeFields>(9); }

  void thePagesAreTheOnesThatThereAre() {
    QCOMPARE(firstField()->minimum(), 1);
    QCOMPARE(firstField()->maximum(), 9);
    QCOMPARE(lastField()->minimum(), 1);
    QCOMPARE(lastField()->maximum(), 9);
  }

  void whatIsSetIsNoChoiceOfAPerson() {
    const QSignalSpy changes(fields_.get(), &PageRangeFields::changed);
    fields_->setPages(4, 7);
    QCOMPARE(pages(), QList({4, 7}));
    QCOMPARE(changes.count(), 0);
  }

  void anEndThatMovesPastTheOtherTakesItAlongAndIsToldOnce() {
    fields_->setPages(4, 7);
    const QSignalSpy changes(fields_.get(), &PageRangeFields::changed);
    lastField()->setValue(2);
    QCOMPARE(pages(), QList({2, 2}));
    QCOMPARE(changes.count(), 1);
    firstField()->setValue(8);
    QCOMPARE(pages(), QList({8, 8}));
    QCOMPARE(changes.count(), 2);
  }

  void anEndThatStaysOnItsSideMovesAlone() {
    fields_->setPages(4, 7);
    firstField()->setValue(7);
    QCOMPARE(pages(), QList({7, 7}));
    firstField()->setValue(3);
    QCOMPARE(pages(), QList({3, 7}));
    lastField()->setValue(5);
    QCOMPARE(pages(), QList({3, 5}));
  }

  void aNumberThatIsBeingTypedIsChosenWhenItIsAskedFor() {
    fields_->setPages(1, 9);
    firstField()->selectAll();
    QTest::keyClicks(firstField(), "6");
    QCOMPARE(fields_->first(), 1);
    fields_->takeTyped();
    QCOMPARE(pages(), QList({6, 9}));
  }

 private:
  [[nodiscard]] QSpinBox* firstField() const { return fields_->findChild<QSpinBox*>("firstPage"); }
  [[nodiscard]] QSpinBox* lastField() const { return fields_->findChild<QSpinBox*>("lastPage"); }
  [[nodiscard]] QList<int> pages() const { return {fields_->first(), fields_->last()}; }

  std::unique_ptr<PageRangeFields> fields_;
};

NORVEX_TEST(PageRangeFieldsTest)
#include "page_range_fields_test.moc"
