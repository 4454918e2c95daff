// What a reader of a document brings to its window: a password, the layers to see.
#include <QAction>
#include <QDirIterator>
#include <QDockWidget>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include "kit/test_main.h"
#include "ui/pages/layer_list.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/password_bar.h"
#include "window/viewing/pages_command.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

const QByteArray kOpened("%PDF-1.4\n%opened\n");

/// A PDF that wants "geheim".
class Protected : public WindowFixture {
 public:
  Protected() : c(opened()) {}
  MainWindowController& opened() {
    service.setChoose([](const QByteArray& pdf, const ReaderChoices& choices) -> Result<PictureBytes> {
      if (choices.password.isEmpty()) return PictureBytes{pdf, {}};
      if (choices.password != u"geheim")
        return Error{ErrorKind::Encrypted, QStringLiteral("the password is wrong")};
      BytesReply report;
      report.warnings << QStringLiteral("what is made of it is not protected");
      return PictureBytes{kOpened, report};
    });
    service.setPrepare([](MemoryPictureProcess& made) {
      if (made.bytes() != kOpened)
        made.fail(PictureCall::Facts, {ErrorKind::Encrypted, "the document is protected with a password"});
    });
    return open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
  }
  [[nodiscard]] PasswordBar* bar() { return c.window()->findChild<PasswordBar*>(); }
  [[nodiscard]] QString question() { return bar() ? bar()->question() : QString(); }
  void give(const QString& password) {
    bar()->passwordField()->setText(password);
    bar()->openButton()->click();
  }

  MainWindowController& c;
};

/// Layers "Red" (shown) and "Blue" (hidden), as they were switched last.
class Layered : public WindowFixture {
 public:
  /// `state`: the folder of a window that was there before.
  explicit Layered(const QString& state = {},
                   const QList<PictureLayer>& layers = {{"Red", true}, {"Blue", false}})
      : c(opened(state, layers)) {}
  MainWindowController& opened(const QString& state, const QList<PictureLayer>& layers) {
    if (!state.isEmpty()) qputenv("XDG_STATE_HOME", state.toUtf8());
    service.setPicture(pictureWith(layers));
    if (layers.isEmpty()) return loaded("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    service.setChoose([this](const QByteArray& pdf, const ReaderChoices& choices) {
      service.setPicture(pictureWith(choices.layers.last(2)));
      return PictureBytes{pdf, {}};
    });
    return loaded("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
  }
  static MemoryPicture pictureWith(const QList<PictureLayer>& layers) {
    MemoryPicture picture;
    picture.facts.layers = layers;
    picture.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(0, 0, 300, 400)};
    picture.facts.pageCount = 2;
    return picture;
  }
  [[nodiscard]] LayerList* list() { return c.window()->findChild<LayerList*>(); }
  [[nodiscard]] QAction* action() { return c.window()->findChild<QAction*>(QStringLiteral("layersAction")); }
  [[nodiscard]] bool isListed() {
    const auto* dock = c.window()->findChild<QDockWidget*>(QStringLiteral("layersDock"));
    return dock && !dock->isHidden();
  }
  void press(int row, bool shown) {
    action()->setChecked(true);
    list()->item(row)->setCheckState(shown ? Qt::Checked : Qt::Unchecked);
    if (!QTest::qWaitFor([this] { return !c.isReading(); }, 20000)) qFatal("never read");
  }

  MainWindowController& c;
};

}  // namespace

class ReaderTest : public QObject {
  Q_OBJECT
 private slots:
  void aPasswordIsAskedForInTheBar() {
    Protected f;
    f.c.showWindow();
    QTRY_COMPARE(f.question(), QString("The document is protected by a password."));
    QCOMPARE(f.c.messageBar()->message(), QString());
    QCOMPARE(f.bar()->passwordField()->echoMode(), QLineEdit::Password);
    QVERIFY(!f.bar()->openButton()->isEnabled());
    QVERIFY(!f.c.view()->imageRep());
  }

  void theRightOneOpens() {
    Protected f;
    f.c.showWindow();
    QTRY_VERIFY(!f.question().isEmpty());
    f.give("geheim");
    QTRY_VERIFY(f.c.view()->imageRep());
    QCOMPARE(f.question(), QString());
    QCOMPARE(f.c.messageBar()->message(), QString("What is made of it is not protected."));
  }

  void aWrongOneIsToldAndAskedForAgain() {
    Protected f;
    f.c.showWindow();
    QTRY_VERIFY(!f.question().isEmpty());
    f.give("falsch");
    QTRY_COMPARE(f.question(), QString("The password is wrong."));
    QCOMPARE(f.bar()->passwordField()->text(), QString());
    f.give("geheim");
    QTRY_VERIFY(f.c.view()->imageRep());
  }

  void escapeInTheBarIsTheBars() {
    Protected f;
    f.c.showWindow();
    QTRY_VERIFY(!f.question().isEmpty());
    QVERIFY(QTest::qWaitForWindowActive(f.c.window()));
    int others = 0;
    QShortcut other(Qt::Key_Escape, f.c.window());  // as in full screen
    connect(&other, &QShortcut::activated, &other, [&] { ++others; });
    f.bar()->passwordField()->setFocus();
    QTest::keyClick(f.bar()->passwordField(), Qt::Key_Escape);
    QCOMPARE(f.question(), QString());
    QCOMPARE(others, 0);
    QTest::keyClick(f.c.window(), Qt::Key_Escape);
    QCOMPARE(others, 1);
  }

  void reloadingNeedsItNoMore() {
    Protected f;
    f.c.showWindow();
    QTRY_VERIFY(!f.question().isEmpty());
    f.give("geheim");
    QTRY_VERIFY(f.c.view()->imageRep());
    f.revert();
    QVERIFY(f.c.view()->imageRep());
    QCOMPARE(f.service.choices().constLast().password, QString("geheim"));
    QCOMPARE(f.question(), QString());
  }

  void noFileHoldsThePassword() {
    Protected f;
    f.c.showWindow();
    QTRY_VERIFY(!f.question().isEmpty());
    f.give("geheim");
    QTRY_VERIFY(f.c.view()->imageRep());
    f.c.window()->close();
    QDirIterator it(f.folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    int files = 0;
    while (it.hasNext()) {
      QFile file(it.next());
      QVERIFY(file.open(QIODevice::ReadOnly));
      QVERIFY2(!file.readAll().contains("geheim"), qPrintable(file.fileName()));
      ++files;
    }
    QVERIFY(files > 0);
  }

  void layersAreListedWhereThereAreSome() {
    Layered f;
    QVERIFY(f.action()->isEnabled());
    QVERIFY(!f.isListed());
    f.action()->trigger();
    QVERIFY(f.isListed());
    QCOMPARE(f.list()->count(), 2);
    QCOMPARE(f.list()->item(0)->text(), QString("Red"));
    QCOMPARE(f.list()->item(0)->checkState(), Qt::Checked);
    QCOMPARE(f.list()->item(1)->checkState(), Qt::Unchecked);
    f.action()->trigger();
    QVERIFY(!f.isListed());

    WindowFixture without;
    MainWindowController& c = without.loadedEps();
    QVERIFY(!c.window()->findChild<QAction*>(QStringLiteral("layersAction"))->isEnabled());
    QVERIFY(!c.window()->findChild<QDockWidget*>(QStringLiteral("layersDock")));
  }

  void layersThatAFileGetsLaterDoNotOpenTheList() {
    Layered f;
    f.action()->trigger();
    QVERIFY(f.isListed());
    f.service.setChoose({});
    f.service.setPicture(Layered::pictureWith({}));
    f.revert();
    QVERIFY(!f.isListed());
    f.service.setPicture(Layered::pictureWith({{"Red", true}}));
    f.revert();  // a file that had some, and was read while it was being written
    QVERIFY(f.isListed());

    Layered plain(f.folder.path(), {});
    QVERIFY(!plain.action()->isEnabled());
    plain.service.setPicture(Layered::pictureWith({{"Red", true}}));
    plain.revert();
    QVERIFY(plain.action()->isEnabled());
    QVERIFY(!plain.action()->isChecked() && !plain.isListed());
    Layered next(f.folder.path());  // nobody has chosen otherwise
    QVERIFY(next.isListed());
    plain.action()->trigger();
    QVERIFY(plain.isListed());
  }

  void theNextWindowListsThemAsThisOneDoes() {
    Layered f;
    f.action()->trigger();
    Layered next(f.folder.path());
    QVERIFY(next.action()->isChecked() && next.isListed());
    next.action()->trigger();
    Layered third(f.folder.path());
    QVERIFY(!third.action()->isChecked() && !third.isListed());
  }

  void theListsOwnButtonClosesItAsTheCommandDoes() {
    Layered f;
    f.c.window()->show();
    f.action()->trigger();
    f.c.window()->findChild<QDockWidget*>("layersDock")->close();
    QVERIFY(!f.action()->isChecked() && !f.isListed());
  }

  void aSwitchShowsTheDocumentWithOtherLayersInItsPlace() {
    Layered f;
    f.c.rotateChange(90);
    f.c.findChild<PagesCommand*>()->show(1);
    const auto before = f.c.view()->imageRep();
    f.press(1, true);
    QVERIFY(f.c.view()->imageRep() != before);
    QCOMPARE(f.list()->item(1)->checkState(), Qt::Checked);
    QCOMPARE(f.service.choices().constLast().layers.constLast().shown, true);
    QCOMPARE(f.c.view()->imageRep()->page(), 1);
    QCOMPARE(f.c.view()->bounds().size(), QSizeF(400, 300));
    f.revert();
    QCOMPARE(f.list()->item(1)->checkState(), Qt::Checked);
  }

  void aLayerThatComesUpIsToldBehindWhatWasShown() {
    Layered f;
    const auto told = [&f] {
      QString text;
      for (const PictureLayer& layer : f.service.choices().constLast().layers)
        text += layer.name.left(1) + (layer.shown ? u'+' : u'-');
      return text;
    };
    f.press(1, true);
    QCOMPARE(told(), QString("R+B-R+B+"));
    const auto* note = f.c.window()->findChild<BriefNote*>();
    QVERIFY(!note || !note->text().contains("locks"));
    f.press(0, false);
    QCOMPARE(told(), QString("R-B+"));
    f.press(0, true);
    QCOMPARE(told(), QString("R-B+R+B+"));
  }

  void noMoreLayersAreToldThanTheEngineTakes() {
    for (const int count : {250, 251}) {
      Layered f;
      QList<PictureLayer> layers;
      for (int i = 0; i < count; ++i) layers.append({QString::number(i), i == 0});
      f.service.setPicture(Layered::pictureWith(layers));
      f.revert();
      f.press(1, true);
      QCOMPARE(f.service.choices().constLast().layers.size(), count == 250 ? 500 : 251);
    }
  }

  void aLockedLayerSpringsBackAndSaysWhy() {
    Layered f;
    f.service.setChoose([](const QByteArray& pdf, const ReaderChoices&) { return PictureBytes{pdf, {}}; });
    f.press(1, true);
    QCOMPARE(f.list()->item(1)->checkState(), Qt::Unchecked);
    QCOMPARE(f.c.window()->findChild<BriefNote*>()->text(), QString("The document locks this layer."));
  }

  void aSwitchThatIsStoppedSpringsBack() {
    Layered f;
    f.c.window()->show();
    f.action()->setChecked(true);
    f.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    f.list()->item(1)->setCheckState(Qt::Checked);
    QVERIFY(f.c.isReading());
    emit f.c.loadingCard()->cancelled();
    QVERIFY(!f.c.isReading());
    QCOMPARE(f.list()->item(1)->checkState(), Qt::Unchecked);
    // Nobody comes back to the place of a switch that never was.
    f.service.setPrepare([](MemoryPictureProcess&) {});
    f.c.findChild<PagesCommand*>()->show(1);
    f.c.reload();
    QTRY_VERIFY(!f.c.isReading());
    QCOMPARE(f.list()->item(1)->checkState(), Qt::Unchecked);
    f.action()->setChecked(false);
  }

  void aNameThatLooksLikeMarkupIsAName() {
    LayerList list;
    list.setLayers({{"<b>Grid</b>", true}, {"", true}});
    QCOMPARE(list.item(0)->text(), QString("<b>Grid</b>"));
    QVERIFY(!list.item(0)->toolTip().contains("<b>"));
    QCOMPARE(list.item(1)->text(), QString("Layer 2"));
  }
};

NORVEX_TEST(ReaderTest)
#include "reader_test.moc"
