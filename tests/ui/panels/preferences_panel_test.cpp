// The window of choices: what it shows is what is chosen, and what is chosen counts at once.
#include "ui/panels/preferences_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// What somebody has chosen.
struct Chosen {
  bool on = true;
  int unit = 1;
  int cleared = 0;

  [[nodiscard]] QList<Preference> preferences() {
    Preference box{.group = "Window", .name = "box", .title = "&Fits", .hint = "Why."};
    box.read = [this] { return on; };
    box.write = [this](const QVariant& to) { on = to.toBool(); };
    Preference list{.group = "Window", .name = "list", .title = "&Unit:"};
    list.options = {{"Points", 0}, {"Inches", 1}};
    list.read = [this] { return unit; };
    list.write = [this](const QVariant& to) { unit = to.toInt(); };
    Preference button{.group = "Files", .name = "button", .title = "&Clear"};
    button.act = [this] { ++cleared; };
    button.isPossible = [this] { return cleared == 0; };
    return {box, list, button};
  }
};

template <typename Control>
Control* find(const PreferencesPanel& panel, const char* name) {
  auto* control = panel.findChild<Control*>(QLatin1String(name));
  if (!control) qFatal("no %s", name);
  return control;
}

}  // namespace

class PreferencesPanelTest : public QObject {
  Q_OBJECT
 private slots:
  void itShowsWhatIsChosen() {
    Chosen chosen;
    const PreferencesPanel panel(chosen.preferences());
    QVERIFY(find<QCheckBox>(panel, "box")->isChecked());
    QCOMPARE(find<QComboBox>(panel, "list")->currentText(), QStringLiteral("Inches"));
  }

  // Where the letters of a language are no keys, mnemonics stand behind the titles.
  void whatAScreenReaderSaysHoldsNoMnemonic() {
    Preference box{.group = "Files", .name = "box", .title = QString::fromUtf8("记住文件(&E)")};
    Preference list{.group = "Files", .name = "list", .title = QString::fromUtf8("长度单位(&U)：")};
    list.options = {{"Points", 0}};
    const PreferencesPanel panel({box, list});
    QCOMPARE(find<QCheckBox>(panel, "box")->accessibleName(), QString::fromUtf8("记住文件"));
    QCOMPARE(find<QComboBox>(panel, "list")->accessibleName(), QString::fromUtf8("长度单位"));
  }

  void aChoiceCountsAtOnce() {
    Chosen chosen;
    const PreferencesPanel panel(chosen.preferences());
    find<QCheckBox>(panel, "box")->click();
    QVERIFY(!chosen.on);
    auto* list = find<QComboBox>(panel, "list");
    list->setCurrentIndex(0);
    emit list->activated(0);
    QCOMPARE(chosen.unit, 0);
    auto* button = find<QPushButton>(panel, "button");
    button->click();
    QCOMPARE(chosen.cleared, 1);
    QVERIFY2(!button->isEnabled(), "nothing is left to clear");
  }

  void whatWasChosenElsewhereIsShownWithoutBeingWrittenBack() {
    Chosen chosen;
    PreferencesPanel panel(chosen.preferences());
    chosen.on = false;
    chosen.unit = 0;
    panel.refresh();
    QVERIFY(!find<QCheckBox>(panel, "box")->isChecked());
    QCOMPARE(find<QComboBox>(panel, "list")->currentText(), QStringLiteral("Points"));
    QVERIFY(!chosen.on && chosen.unit == 0);
  }

  void everyControlIsReachedWithTabAndHasANameWithoutMarks() {
    Chosen chosen;
    PreferencesPanel panel(chosen.preferences());
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    for (const auto& [name, said] :
         {std::pair("box", "Fits"), std::pair("list", "Unit"), std::pair("button", "Clear")}) {
      auto* control = find<QWidget>(panel, name);
      QVERIFY(control->focusPolicy() & Qt::TabFocus);
      QCOMPARE(control->accessibleName(), QString(said));
    }
    QCOMPARE(find<QWidget>(panel, "box")->accessibleDescription(), QStringLiteral("Why."));
    QTest::keyClick(&panel, Qt::Key_U, Qt::AltModifier);
    QVERIFY(find<QWidget>(panel, "list")->hasFocus());
    QTest::keyClick(&panel, Qt::Key_Escape);
    QVERIFY(!panel.isVisible());
  }
};

NORVEX_TEST(PreferencesPanelTest)
#include "preferences_panel_test.moc"
