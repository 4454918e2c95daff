// Small pictures of the recent files in the start panel.
#include <QFile>
#include <QListWidget>
#include <QSettings>
#include <QTemporaryDir>

#include "application/recent_file_delegate.h"
#include "application/recent_files.h"
#include "application/recent_thumbnails.h"
#include "application/start_panel.h"
#include "base/background_work.h"
#include "kit/test_main.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;

namespace {

struct Panel {
  Panel() : settings(folder.filePath("settings.ini"), QSettings::IniFormat), recent(settings) {}
  QUrl add(const QString& name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write the test's file");
    file.close();
    const QUrl url = QUrl::fromLocalFile(file.fileName());
    recent.add(url);
    return url;
  }
  [[nodiscard]] QImage shownFor(const QString& name) {
    const QList<QListWidgetItem*> items = panel->recentList()->findItems(name, Qt::MatchExactly);
    return items.isEmpty() ? QImage() : items.first()->data(thumbnailRole).value<QImage>();
  }

  QTemporaryDir folder;
  QSettings settings;
  RecentFiles recent;
  MemoryPictureService service;
  WaitingThreadsEnd threadsEnd;
  std::unique_ptr<StartPanel> panel;
};

}  // namespace

class RecentThumbnailsTest : public QObject {
  Q_OBJECT
 private slots:
  void aPictureTakesThePlaceOfItsBadge() {
    Panel f;
    f.add("a.pdf", emptyPdf({200, 100}));
    f.add("b.pdf", emptyPdf({200, 100}));
    f.panel = std::make_unique<StartPanel>(f.recent);
    const RecentThumbnails thumbnails(f.service, *f.panel);
    QVERIFY(f.shownFor("a.pdf").isNull());
    f.panel->show();
    QTRY_VERIFY(!f.shownFor("a.pdf").isNull() && !f.shownFor("b.pdf").isNull());
    QCOMPARE(f.shownFor("a.pdf").size(), QSize(96, 48));
    f.add("c.pdf", emptyPdf({200, 100}));  // while it is shown
    QTRY_VERIFY(!f.shownFor("c.pdf").isNull());
    QVERIFY(!f.shownFor("a.pdf").isNull());
    QCOMPARE(f.service.openCount(), 3);  // each once
  }

  void whatCannotBeDrawnKeepsItsBadge() {
    Panel f;
    f.add("a.pdf", "no picture at all");
    const QUrl gone = f.add("gone.pdf", {});
    QVERIFY(QFile::remove(gone.toLocalFile()));
    f.add("good.pdf", emptyPdf({200, 100}));
    f.panel = std::make_unique<StartPanel>(f.recent);
    const RecentThumbnails thumbnails(f.service, *f.panel);
    f.panel->show();
    QTRY_VERIFY(!f.shownFor("good.pdf").isNull());
    QVERIFY(f.shownFor("gone.pdf").isNull());
  }

  void nothingIsMadeForAPanelThatNobodySees() {
    Panel f;
    f.add("a.pdf", emptyPdf({200, 100}));
    f.panel = std::make_unique<StartPanel>(f.recent);
    const RecentThumbnails thumbnails(f.service, *f.panel);
    QTest::qWait(50);
    QCOMPARE(f.service.openCount(), 0);
  }

  void aPictureThatTakesTooLongIsGivenUpWithThePanel() {
    Panel f;
    f.add("a.pdf", emptyPdf({200, 100}));
    f.service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Render); });
    f.panel = std::make_unique<StartPanel>(f.recent);
    const RecentThumbnails thumbnails(f.service, *f.panel);
    f.panel->show();
    QTRY_VERIFY(f.service.lastProcess() && f.service.lastProcess()->calls(PictureCall::Render) == 1);
    f.panel->hide();
    QTRY_COMPARE(f.service.lastProcess()->cancelledCalls(), 1);
    f.service.setPrepare(nullptr);
    f.panel->show();  // and tried again when it is there
    QTRY_VERIFY(!f.shownFor("a.pdf").isNull());
  }
};

NORVEX_TEST(RecentThumbnailsTest)
#include "recent_thumbnails_test.moc"
