// A language that nobody speaks: every text of the tables is marked and longer by half. What has no marks was
// not looked up, and what does not fit is cut off in some real language.
#include <QAction>
#include <QCheckBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTranslator>

#include <algorithm>

#include "base/localized_string.h"
#include "kit/test_main.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

class PseudoLocale final : public QTranslator {
 public:
  QString translate(const char* context, const char* key, const char*, int) const override {
    const QLatin1String table(context);
    if (table != QLatin1String(defaultStringTable) && table != QLatin1String("MainWindowController"))
      return {};
    const QString text = QString::fromUtf8(key);
    return u'[' + text + QString(text.size() / 2, u'~') + u']';
  }
  bool isEmpty() const override { return false; }
};

bool isMarked(const QString& text) {
  return text.contains(u'[') && text.contains(u']');
}

/// Texts of the file's own, numbers, signs and names that stand as they are need no translation.
bool isWord(const QString& text) {
  static const QStringList own{"a.eps", "A picture", "By hand", "Norvex", "sRGB", "X", "Y", "Bounds"};
  const QString plain = QString(text).remove(u'&');
  const auto letters = std::count_if(plain.begin(), plain.end(), [](QChar c) { return c.isLetter(); });
  return letters > 1 && !own.contains(plain);
}

}  // namespace

class PseudoLocaleTest : public QObject {
  Q_OBJECT

  PseudoLocale locale_;

 private slots:
  void initTestCase() { QCoreApplication::installTranslator(&locale_); }
  void cleanupTestCase() { QCoreApplication::removeTranslator(&locale_); }

  void everyCommandIsTranslated() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QStringList plain;
    int looked = 0;
    for (const QAction* action : c.window()->findChildren<QAction*>()) {
      if (!isWord(action->text())) continue;
      ++looked;
      if (!isMarked(action->text())) plain << action->text();
    }
    QVERIFY(looked > 30);
    QVERIFY2(plain.isEmpty(), qPrintable(plain.join(" | ")));
  }

  void everyTitleOfTheInspectorIsTranslatedAndHasRoom() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow();
    c.inspectorWindow->ensurePolished();
    QCoreApplication::processEvents();
    QStringList plain, cut;
    int looked = 0;
    const auto look = [&](const QWidget* widget, const QString& text) {
      if (!isWord(text)) return;
      ++looked;
      if (!isMarked(text)) plain << text;
      if (widget->isVisible() && widget->width() < widget->minimumSizeHint().width()) cut << text;
    };
    for (const QAbstractButton* button : c.inspectorWindow->findChildren<QAbstractButton*>())
      look(button, button->text());
    for (const QGroupBox* box : c.inspectorWindow->findChildren<QGroupBox*>()) look(box, box->title());
    for (const QTabWidget* tabs : c.inspectorWindow->findChildren<QTabWidget*>())
      for (int i = 0; i < tabs->count(); ++i) look(tabs, tabs->tabText(i));
    QVERIFY(looked > 2);
    QVERIFY2(plain.isEmpty(), qPrintable(plain.join(" | ")));
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(" | ")));
  }

  void everyNameForScreenReadersIsTranslated() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QStringList plain;
    int looked = 0;
    for (QWidget* root : {static_cast<QWidget*>(c.window()), static_cast<QWidget*>(c.inspectorWindow)})
      for (const QWidget* widget : root->findChildren<QWidget*>()) {
        const bool isQtsOwn = qobject_cast<const QTabBar*>(widget->parentWidget()) != nullptr ||
                              qobject_cast<const QDockWidget*>(widget->parentWidget()) != nullptr;
        if (isQtsOwn || !isWord(widget->accessibleName())) continue;
        ++looked;
        if (!isMarked(widget->accessibleName())) plain << widget->accessibleName();
      }
    QVERIFY(looked > 10);
    QVERIFY2(plain.isEmpty(), qPrintable(plain.join(" | ")));
  }
};

NORVEX_TEST(PseudoLocaleTest)
#include "pseudo_locale_test.moc"
