#include "history/remembered_views.h"

#include <QSettings>
#include <QTemporaryDir>

#include "kit/test_main.h"

using namespace norvex;

class RememberedViewsTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;
  std::unique_ptr<QSettings> settings_;

 private slots:
  void init() {
    settings_ = std::make_unique<QSettings>(folder_.filePath("history.ini"), QSettings::IniFormat);
    settings_->clear();
  }

  void aViewComesBackToTheDigit() {
    const PictureView view{1.2345678901234567, 30.1, 6};
    RememberedViews(*settings_).remember("/tmp/ä; b=/c.pdf", view);
    settings_->sync();
    QSettings again(settings_->fileName(), QSettings::IniFormat);
    const auto read = RememberedViews(again).view("/tmp/ä; b=/c.pdf");
    QVERIFY(read.has_value());
    QVERIFY(*read == view);
    QVERIFY(!RememberedViews(again).view("/tmp/ä; b=/d.pdf"));
  }

  void viewsThatWereKeptEarlierAreFoundAgain() {
    settings_->setValue("Views/416080171a109b045e9fcdae", QStringList{"/a.pdf", "1", "2", "30", "4", "0"});
    QVERIFY(RememberedViews(*settings_).view("/a.pdf") == PictureView({2, 30, 4}));
  }

  void aZoomThatFollowsTheWindowIsKeptAsOne() {
    RememberedViews views(*settings_);
    views.remember("/a.pdf", {2, 0, 0, KeptFit::Width});
    QVERIFY(views.view("/a.pdf") == PictureView({2, 0, 0, KeptFit::Width}));
    // As it was written before there was one.
    const QString key = settings_->allKeys().constFirst();
    settings_->setValue(key, settings_->value(key).toStringList().mid(0, 5));
    QVERIFY(views.view("/a.pdf") == PictureView({2, 0, 0}));
  }

  void whatIsShownAsEveryFileAtFirstIsNotKept() {
    RememberedViews views(*settings_);
    views.remember("/a.pdf", {2, 0, 0});
    views.remember("/a.pdf", {1, 0, 0});
    QVERIFY(!views.view("/a.pdf"));
    QVERIFY(settings_->allKeys().isEmpty());
  }

  void onlySoManyAreKeptAndTheOldestGo() {
    RememberedViews views(*settings_);
    views.remember("/first.pdf", {4, 0, 0});
    QTest::qWait(2);
    for (int i = 0; i < RememberedViews::maximumCount; ++i)
      views.remember(QString("/%1.pdf").arg(i), {3, 0, 0});
    QCOMPARE(settings_->allKeys().size(), RememberedViews::maximumCount);
    QVERIFY(!views.view("/first.pdf"));
    QVERIFY(views.view(QString("/%1.pdf").arg(RememberedViews::maximumCount - 1)));
  }

  void aFileEditedByHandDoesNoHarm_data() {
    QTest::addColumn<QVariant>("value");
    QTest::newRow("a number") << QVariant(7);
    QTest::newRow("too few") << QVariant(QStringList{"/a.pdf", "1"});
    QTest::newRow("no zoom") << QVariant(QStringList{"/a.pdf", "1", "0", "0", "0"});
    QTest::newRow("endless zoom") << QVariant(QStringList{"/a.pdf", "1", "inf", "0", "0"});
    QTest::newRow("no angle") << QVariant(QStringList{"/a.pdf", "1", "1", "nan", "0"});
    QTest::newRow("no fit") << QVariant(QStringList{"/a.pdf", "1", "1", "0", "0", "3"});
    QTest::newRow("page before the first") << QVariant(QStringList{"/a.pdf", "1", "1", "0", "-1"});
  }
  void aFileEditedByHandDoesNoHarm() {
    QFETCH(QVariant, value);
    RememberedViews views(*settings_);
    views.remember("/a.pdf", {2, 0, 0});
    settings_->setValue(settings_->allKeys().constFirst(), value);
    QVERIFY(!views.view("/a.pdf"));
  }

  void aViewBelongsToTheFileThatItNames() {
    RememberedViews views(*settings_);
    views.remember("/a.pdf", {2, 0, 0});
    const QString key = settings_->allKeys().constFirst();
    const QVariant ofAnother = settings_->value(key);
    settings_->clear();
    views.remember("/b.pdf", {3, 0, 0});
    settings_->setValue(settings_->allKeys().constFirst(), ofAnother);
    QVERIFY(!views.view("/b.pdf"));
    settings_->clear();
    QVERIFY(!views.view("/b.pdf"));
  }

  void clearingForgetsAll() {
    RememberedViews views(*settings_);
    views.remember("/a.pdf", {2, 0, 0});
    settings_->setValue("other", 1);
    views.clear();
    QCOMPARE(settings_->allKeys(), QStringList{"other"});
  }
};

NORVEX_TEST(RememberedViewsTest)
#include "remembered_views_test.moc"
