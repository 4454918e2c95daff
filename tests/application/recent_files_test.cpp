#include "application/recent_files.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "application/open_panel.h"
#include "kit/test_main.h"

using namespace norvex;

class RecentFilesTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;
  std::unique_ptr<QSettings> settings_;

 private slots:
  void init() {
    settings_ = std::make_unique<QSettings>(folder_.filePath("settings.ini"), QSettings::IniFormat);
    settings_->clear();
  }

  void theNewestIsFirstAndEachStandsOnce() {
    RecentFiles recent(*settings_);
    QSignalSpy changed(&recent, &RecentFiles::changed);
    for (const char* path : {"/a.eps", "/b.eps", "/a.eps"}) recent.add(QUrl::fromLocalFile(path));
    QCOMPARE(recent.urls(), (QList<QUrl>{QUrl::fromLocalFile("/a.eps"), QUrl::fromLocalFile("/b.eps")}));
    QCOMPARE(changed.size(), 3);
  }

  void onlySoManyAreKept() {
    RecentFiles recent(*settings_);
    for (int i = 0; i < 40; ++i) recent.add(QUrl::fromLocalFile(QString("/%1.eps").arg(i)));
    QCOMPARE(recent.urls().size(), RecentFiles::maximumCount);
    QCOMPARE(recent.urls().first(), QUrl::fromLocalFile("/39.eps"));
  }

  void theyOutliveTheProgram() {
    RecentFiles(*settings_).add(QUrl::fromLocalFile("/tmp/ä %20;x.eps"));
    settings_->sync();
    QSettings again(settings_->fileName(), QSettings::IniFormat);
    QCOMPARE(RecentFiles(again).urls(), (QList<QUrl>{QUrl::fromLocalFile("/tmp/ä %20;x.eps")}));
  }

  void addressesOnTheNetAreNotRemembered() {
    RecentFiles recent(*settings_);
    recent.add(QUrl("https://example.org/a.eps"));
    recent.add(QUrl());
    QVERIFY(recent.urls().isEmpty());
  }

  void removingAndClearing() {
    RecentFiles recent(*settings_);
    for (const char* path : {"/a.eps", "/b.eps", "/c.eps"}) recent.add(QUrl::fromLocalFile(path));
    QSignalSpy changed(&recent, &RecentFiles::changed);
    recent.remove(QUrl::fromLocalFile("/d.eps"));
    QVERIFY(changed.isEmpty());
    recent.remove(QUrl::fromLocalFile("/b.eps"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(recent.urls(), (QList<QUrl>{QUrl::fromLocalFile("/c.eps"), QUrl::fromLocalFile("/a.eps")}));
    recent.clear();
    QVERIFY(recent.urls().isEmpty());
  }

  void settingsEditedByHandDoNoHarm() {
    RecentFiles recent(*settings_);
    settings_->setValue("RecentFiles", 7);
    QVERIFY(recent.urls().size() <= 1);
    settings_->setValue("RecentFiles", QStringList(5000, "/x.eps") << "");
    QCOMPARE(recent.urls().size(), RecentFiles::maximumCount);
  }

  void theLastFolderIsOneThatExists() {
    RecentFiles recent(*settings_);
    QVERIFY(recent.lastFolder().isEmpty());
    recent.add(QUrl::fromLocalFile(folder_.filePath("a.eps")));
    recent.add(QUrl::fromLocalFile("/nonexistent/folder/b.eps"));
    QCOMPARE(recent.lastFolder(), folder_.path());
  }

  void theOpenPanelOffersEveryKindInBothLetterCases() {
    const QStringList filters = openPanelFilters();
    QCOMPARE(filters.size(), 6);
    for (const char* pattern : {"*.eps", "*.EPS", "*.epsi", "*.ai", "*.pdf", "*.svg", "*.svgz", "*.SVGZ"})
      QVERIFY2(filters.first().contains(pattern), pattern);
    QVERIFY(filters.last().contains("(*)"));
  }
};

NORVEX_TEST(RecentFilesTest)
#include "recent_files_test.moc"
