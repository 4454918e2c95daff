// How often the parts of a long print job are put together.
#include "print/joined_pages.h"

#include "kit/test_main.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;

namespace {

/// Puts parts together by writing them one behind the other, or as one of them where they are all the same.
struct Joiner {
  explicit Joiner(bool sharesAll = false) {
    MemoryPicture picture;
    picture.setAttributes = [this, sharesAll](const QByteArray& bytes, const PdfAttributes& attributes) {
      const Result<QList<PageExcerpt>> parts = decodePageExcerpts(bytes);
      if (!parts) qFatal("no parts");
      titles << attributes.texts.value("Title");
      QByteArray together;
      for (const PageExcerpt& part : *parts) joined += part.pdf.size(), together += part.pdf;
      return sharesAll ? parts->first().pdf : together;
    };
    service.setPicture(picture);
  }
  MemoryPictureService service;
  qsizetype joined = 0;  ///< bytes, each as often as it was put together
  QStringList titles;
};

}  // namespace

class JoinedPagesTest : public QObject {
  Q_OBJECT
 private slots:
  void aSinglePartIsTheFile() {
    Joiner joiner;
    JoinedPages pages(joiner.service, "A book", 100);
    QVERIFY(pages.add("only", {}).ok());
    QCOMPARE(*pages.file({}), QByteArray("only"));
    QCOMPARE(joiner.joined, qsizetype(0));
  }

  void partsStandInTheirOrderUnderTheTitle() {
    Joiner joiner;
    JoinedPages pages(joiner.service, "A book", 10);
    for (const char* part : {"one two ", "three ", "four ", "five"}) QVERIFY(pages.add(part, {}).ok());
    QCOMPARE(*pages.file({}), QByteArray("one two three four five"));
    QCOMPARE(joiner.titles.last(), QString("A book"));
  }

  void pagesThatShareNothingArePutTogetherAFewTimesAlone() {
    constexpr int kParts = 400, kSize = 40;
    Joiner joiner;
    JoinedPages pages(joiner.service, {}, 100);
    for (int i = 0; i < kParts; ++i) QVERIFY(pages.add(QByteArray(kSize, char('a' + i % 26)), {}).ok());
    QCOMPARE(pages.file({})->size(), qsizetype(kParts * kSize));
    QVERIFY2(joiner.joined < 4 * kParts * kSize, qPrintable(QString::number(joiner.joined)));
  }

  void ofPagesThatShareEverythingNoMoreThanTheBoundIsKept() {
    Joiner joiner(true);
    JoinedPages pages(joiner.service, {}, 100);
    for (int i = 0; i < 10; ++i) QVERIFY(pages.add(QByteArray(40, 'a'), {}).ok());
    QCOMPARE(joiner.titles.size(), 3);  // whenever three more have come
    QCOMPARE(pages.file({})->size(), qsizetype(40));
  }
};

NORVEX_TEST(JoinedPagesTest)
#include "joined_pages_test.moc"
