#include "application/history_keeper.h"

#include <QDir>
#include <QTemporaryDir>

#include "application/recent_files.h"
#include "history/desktop_recents.h"
#include "kit/test_main.h"

using namespace norvex;

class HistoryKeeperTest : public QObject {
  Q_OBJECT

  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<QSettings> settings_;
  std::unique_ptr<RecentFiles> recent_;
  std::unique_ptr<HistoryKeeper> keeper_;

  QUrl file(const QString& name) const {
    QFile file(folder_->filePath(name));
    if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write test data");
    return QUrl::fromLocalFile(file.fileName());
  }
  QByteArray desktopList() const {
    keeper_->waitForDesktop();
    QFile list(desktopRecentsFile());
    return list.open(QIODevice::ReadOnly) ? list.readAll() : QByteArray();
  }
  /// Every byte that is anywhere below the folder.
  QByteArray everything() const {
    keeper_->waitForDesktop();
    settings_->sync();
    QByteArray all;
    for (const char* place : {"state", "data"}) {
      const QDir folder(folder_->filePath(place));
      for (const QString& name : folder.entryList(QDir::Files)) {
        QFile each(folder.filePath(name));
        if (each.open(QIODevice::ReadOnly)) all += each.readAll();
      }
    }
    return all;
  }

 private slots:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", folder_->filePath("data").toLocal8Bit());
    settings_ = std::make_unique<QSettings>(folder_->filePath("state/history.ini"), QSettings::IniFormat);
    recent_ = std::make_unique<RecentFiles>(*settings_);
    keeper_ = std::make_unique<HistoryKeeper>(*settings_, *recent_, folder_->filePath("state"));
  }
  void cleanup() { keeper_.reset(); }

  void anOpenedFileIsRememberedInBothLists() {
    keeper_->opened(file("a.eps"), "image/x-eps");
    QCOMPARE(recent_->urls(), QList<QUrl>{file("a.eps")});
    QVERIFY(desktopList().contains("a.eps"));
  }

  // The desktop's list costs more than the picture that is being opened.
  void theDesktopIsToldWhenThePictureIsThereAtTheLatestAtTheEnd() {
    keeper_->opened(file("a.eps"), "image/x-eps");
    QVERIFY(!QFile::exists(desktopRecentsFile()));
    keeper_.reset();
    QVERIFY(QFile::exists(desktopRecentsFile()));
  }

  void aPictureComesBackAsItWasShown() {
    keeper_->opened(file("a.eps"), "image/x-eps");
    keeper_->closed(file("a.eps"), PictureView{2, 45, 0});
    QVERIFY(keeper_->view(file("a.eps")) == (PictureView{2, 45, 0}));
    keeper_->closed(file("a.eps"), std::nullopt);  // it could not be shown
    QVERIFY(keeper_->view(file("a.eps")).has_value());
  }

  void switchedOffItForgetsAndNoFileIsNamedAnywhere() {
    keeper_->opened(file("secret.eps"), "image/x-eps");
    keeper_->closed(file("secret.eps"), PictureView{2, 0, 0});
    keeper_->opened(file("secret.eps"), "image/x-eps");
    QVERIFY(everything().contains("secret"));
    keeper_->setOn(false);
    QVERIFY(!everything().contains("secret"));
    keeper_->opened(file("secret.eps"), "image/x-eps");
    keeper_->closed(file("secret.eps"), PictureView{2, 0, 0});
    QVERIFY(!everything().contains("secret"));
    HistoryKeeper again(*settings_, *recent_, folder_->filePath("state"));
    QVERIFY(!again.isOn());
    again.setOn(true);
    QVERIFY(again.isOn());
  }

  void switchedOnAgainItKeepsWhatIsOpenForAfterACrash() {
    keeper_->opened(file("before.eps"), "image/x-eps");
    keeper_->setOn(false);
    keeper_->opened(file("meanwhile.eps"), "image/x-eps");
    keeper_->opened(file("gone.eps"), "image/x-eps");
    keeper_->closed(file("gone.eps"), std::nullopt);
    QVERIFY(!everything().contains("meanwhile"));
    keeper_->setOn(true);
    QVERIFY(everything().contains("before.eps") && everything().contains("meanwhile.eps"));
    QVERIFY(!everything().contains("gone.eps"));
  }

  void clearingForgetsAndGoesOnRemembering() {
    keeper_->opened(file("a.eps"), "image/x-eps");
    keeper_->closed(file("a.eps"), PictureView{2, 0, 0});
    keeper_->clear();
    QVERIFY(recent_->urls().isEmpty() && !keeper_->view(file("a.eps")));
    QVERIFY(!desktopList().contains("a.eps"));
    keeper_->opened(file("b.eps"), "image/x-eps");
    QCOMPARE(recent_->urls().size(), 1);
  }

  void ofFilesThatAreLeftThoseThatAreGoneAreNotOffered() {
    QFile left(folder_->filePath("state/1.session"));
    QVERIFY(QDir(folder_->path()).mkpath("state") && left.open(QIODevice::WriteOnly));
    const QString there = file("there.eps").toLocalFile(), gone = folder_->filePath("gone.eps");
    left.write(QString("{\"files\":[\"%1\",\"%2\"],\"last\":\"%2\"}").arg(there, gone).toUtf8());
    left.close();
    const LeftSession session = keeper_->takeLeftSession();
    QCOMPARE(session.files, QStringList{there});
    QCOMPARE(session.last, there);
  }
};

NORVEX_TEST(HistoryKeeperTest)
#include "history_keeper_test.moc"
