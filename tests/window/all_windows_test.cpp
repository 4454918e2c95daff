// Every window of the program as somebody meets it who has no mouse, or no eyes.
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>

#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QStyleOption>
#include <QTabBar>
#include <QTextBrowser>
#include <QTreeWidget>

#include <functional>
#include <memory>

#include "application/manual_window.h"
#include "application/recent_files.h"
#include "application/start_panel.h"
#include "kit/desktop_palette.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"
#include "print/memory_printing.h"
#include "ui/controls/control_accessible.h"
#include "ui/export/export_dialog.h"
#include "ui/pages/rectangle_dialog.h"
#include "ui/panels/preferences_panel.h"
#include "ui/panels/save_sheet.h"
#include "ui/panels/shortcut_panel.h"
#include "ui/picture/message_bar.h"
#include "ui/print/page_layout_sheet.h"
#include "ui/print/print_panel.h"
#include "ui/style/outlined_style.h"
#include "window/accessible_walk.h"
#include "window/viewing/view_preferences.h"
#include "window/window_fixture.h"

using namespace norvex;
using kit::complaintsAbout;

namespace {

class Drawing final : public PrintableView {
 public:
  [[nodiscard]] PrintSource printSource() const override {
    PrintSource source;
    source.shown.size = {200, 100};
    source.jobTitle = "A drawing";
    return source;
  }
};

/// What a window needs to be there; the window ends first.
struct Made {
  std::shared_ptr<void> needs;
  std::unique_ptr<QWidget> own;
  QWidget* window = nullptr;
};

template <typename Window, typename Needs, typename... Arguments>
Made made(const std::shared_ptr<Needs>& needs, Arguments&&... arguments) {
  Made made{needs, std::make_unique<Window>(std::forward<Arguments>(arguments)...), nullptr};
  made.window = made.own.get();
  return made;
}

Made startPanel() {
  struct Needs {
    QTemporaryDir folder;
    QSettings settings{folder.filePath("history.ini"), QSettings::IniFormat};
    RecentFiles recent{settings};
  };
  const auto needs = std::make_shared<Needs>();
  needs->recent.add(QUrl::fromLocalFile(needs->folder.filePath("history.ini")));
  return made<StartPanel>(needs, needs->recent);
}

Made manual() {
  return made<ManualWindow>(std::make_shared<int>());
}

Made preferences() {
  return made<PreferencesPanel>(std::make_shared<int>(), viewPreferences());
}

Made exporting() {
  ExportOffer offer;
  for (const FormatRow& row : formatTable)
    if (isWritten(row)) offer.formats << row.id;
  offer.areas = {{ExportArea::Selection, {20, 20}}, {ExportArea::Page, {200, 100}}};
  offer.folder = QDir::tempPath();
  offer.name = "a";
  return made<ExportDialog>(std::make_shared<int>(), nullptr, offer, ExportChoice());
}

Made rectangle() {
  return made<RectangleDialog>(std::make_shared<int>(), QRectF(0, 0, 20, 20), QSizeF(200, 100),
                               LengthUnit::Points, nullptr);
}

Made printing() {
  struct Needs {
    NullPictureService pictures;
    kit::MemorySpooler spooler{{{"Office", "Office", PrinterState::Idle, true, true}}};
    std::unique_ptr<NSPrintOperation> operation = NSPrintOperation::printOperationWithView(
        std::make_unique<Drawing>(), NSPrintInfo(), {&pictures, &spooler, nullptr});
  };
  const auto needs = std::make_shared<Needs>();
  return made<PrintPanel>(needs, *needs->operation, needs->spooler, nullptr);
}

Made pageSetup() {
  return made<PageLayoutSheet>(std::make_shared<int>(), NSPrintInfo(), nullptr);
}

Made saving() {
  SavePanelSettings settings;
  settings.directoryURL = QUrl::fromLocalFile(QDir::tempPath());
  settings.nameFieldStringValue = "a";
  return made<SaveSheet>(std::make_shared<int>(), nullptr, settings);
}

/// All that may stand beside, above and below the picture.
Made crowded() {
  const auto needs = std::make_shared<WindowFixture>();
  MemoryPicture picture;
  picture.facts.layers = {{"Red", true}, {"", false}};
  picture.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(0, 0, 300, 400)};
  picture.facts.pageCount = 2;
  needs->service.setPicture(picture);
  MainWindowController& c = needs->loaded("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
  c.window()->resize(780, 780);
  c.window()->show();
  for (const char* name : {"pageThumbnailsAction", "layersAction", "inspectorInWindowAction"})
    c.window()->findChild<QAction*>(QLatin1String(name))->trigger();
  c.findChild<QAction*>("findInPictureAction")->trigger();
  c.messageBar()->showMessage(MessageBar::Kind::Warning, "It is so.", "Do", "Why", "Do not");
  return {needs, nullptr, c.window()};
}

Made shortcuts() {
  struct Needs {
    WindowFixture fixture;
  };
  const auto needs = std::make_shared<Needs>();
  MainWindowController& c = needs->fixture.loadedEps();
  c.window()->show();
  showShortcutPanel(*c.window(), *c.menuBar);
  Made made{needs, nullptr, c.window()->findChild<QDialog*>("shortcutPanel")};
  return made;
}

Made document() {
  const auto needs = std::make_shared<WindowFixture>();
  MainWindowController& c = needs->loadedEps();
  c.window()->resize(900, 700);
  return {needs, nullptr, c.window()};
}

Made inspector() {
  const auto needs = std::make_shared<WindowFixture>();
  MainWindowController& c = needs->loadedEps();
  c.window()->show();
  c.showInspectorWindow();
  return {needs, nullptr, c.inspectorWindow};
}

using Maker = Made (*)();

void show(const Made& made) {
  made.window->show();
  made.window->activateWindow();
  if (!QTest::qWaitForWindowActive(made.window->window())) qFatal("no active window");
  QCoreApplication::processEvents();
}

/// The colours of a desktop for people who see little.
QPalette highContrast() {
  QPalette palette;
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::AlternateBase,
                          QPalette::ToolTipBase, QPalette::HighlightedText})
    palette.setColor(role, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
                          QPalette::ToolTipText, QPalette::PlaceholderText})
    palette.setColor(role, Qt::white);
  for (const auto role : {QPalette::Highlight, QPalette::Link}) palette.setColor(role, Qt::yellow);
  return palette;
}

/// Dark grey, as most desktops have it.
QPalette darkScheme() {
  QPalette palette(QColor(42, 46, 50));
  palette.setColor(QPalette::Base, QColor(27, 30, 32));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(role, QColor(252, 252, 252));
  palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
  return palette;
}

}  // namespace

Q_DECLARE_METATYPE(Maker)

class AllWindowsTest : public QObject {
  Q_OBJECT

  static void everyWindow() {
    QTest::addColumn<Maker>("maker");
    QTest::newRow("start panel") << &startPanel;
    QTest::newRow("manual") << &manual;
    QTest::newRow("preferences") << &preferences;
    QTest::newRow("export") << &exporting;
    QTest::newRow("rectangle") << &rectangle;
    QTest::newRow("print") << &printing;
    QTest::newRow("page setup") << &pageSetup;
    QTest::newRow("save") << &saving;
    QTest::newRow("shortcuts") << &shortcuts;
    QTest::newRow("document") << &document;
    QTest::newRow("inspector") << &inspector;
  }

 private slots:
  void initTestCase() { installControlAccessibility(); }  // as the program does when it starts

  void everyControlHasANameAndARole_data() {
    everyWindow();
    QTest::newRow("all beside the picture") << &crowded;
  }
  void everyControlHasANameAndARole() {
    QFETCH(Maker, maker);
    const Made made = maker();
    show(made);
    const QStringList complaints = complaintsAbout(made.window);
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join('\n')));
  }

  /// Somebody who goes through a window with Tab sees where the keyboard is.
  void theFocusIsSeen_data() {
    everyWindow();
    QTest::newRow("all beside the picture") << &crowded;
  }
  void theFocusIsSeen() {
    QFETCH(Maker, maker);
    const Made made = maker();
    show(made);
    made.window->setAttribute(Qt::WA_KeyboardFocusChange);  // as the key does
    QStringList unseen;
    int looked = 0;
    for (QWidget* widget : made.window->findChildren<QWidget*>()) {
      const bool reached = (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget->isVisible() &&
                           widget->isEnabled() && !widget->focusProxy() && widget->window() == made.window;
      // What only scrolls has nothing to mark, and a list of places marks the one that is shown.
      const bool marksNothing = qobject_cast<QTextBrowser*>(widget) || qobject_cast<QScrollArea*>(widget) ||
                                widget->objectName() == QLatin1String("sidebar");
      if (!reached || marksNothing) continue;
      if (QWidget* now = QApplication::focusWidget()) now->clearFocus();
      // The button for Return is marked as long as no other one is.
      const auto* button = qobject_cast<QPushButton*>(widget);
      if (button && button->isDefault()) continue;
      const QImage before = widget->grab().toImage();
      widget->setFocus(Qt::TabFocusReason);
      QCoreApplication::processEvents();
      if (!widget->hasFocus()) continue;
      ++looked;
      if (widget->grab().toImage() == before)
        unseen << QStringLiteral("%1 %2").arg(widget->metaObject()->className(), widget->objectName());
    }
    QVERIFY(looked > 0);
    QVERIFY2(unseen.isEmpty(), qPrintable(unseen.join('\n')));
  }

  void onADarkGroundEveryControlHasAnOutline_data() {
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QPalette>("palette");
    for (const auto& [name, palette] :
         {std::pair("black", highContrast()), std::pair("dark", darkScheme())}) {
      QTest::addRow("preferences, %s", name) << Maker(&preferences) << palette;
      QTest::addRow("export, %s", name) << Maker(&exporting) << palette;
      QTest::addRow("print, %s", name) << Maker(&printing) << palette;
    }
  }
  void onADarkGroundEveryControlHasAnOutline() {
    QFETCH(Maker, maker);
    QFETCH(QPalette, palette);
    QApplication::setStyle(new OutlinedStyle(QStringLiteral("fusion")));
    {
      const kit::DesktopPalette desktop(palette);
      const Made made = maker();
      show(made);
      for (QWidget* widget : made.window->findChildren<QWidget*>()) {
        if (auto* box = qobject_cast<QCheckBox*>(widget); box && box->isVisible()) {
          QStyleOptionButton option;
          option.initFrom(box);
          const QRect mark = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
          const QColor edge = box->grab().toImage().pixelColor(mark.left(), mark.center().y());
          QVERIFY2(edge.lightness() > 80, qPrintable(box->text()));
        }
        const bool framed = widget->inherits("QComboBox") || widget->inherits("QAbstractSpinBox") ||
                            widget->inherits("QPushButton");
        if (!framed || !widget->isVisible()) continue;
        const QImage image = widget->grab().toImage();
        const QColor edge = image.pixelColor(image.width() / 2, 0).lightness() >
                                    image.pixelColor(image.width() / 2, 1).lightness()
                                ? image.pixelColor(image.width() / 2, 0)
                                : image.pixelColor(image.width() / 2, 1);
        QVERIFY2(edge.lightness() > 80, qPrintable(widget->objectName()));
      }
    }
    QApplication::setStyle(QStringLiteral("fusion"));
  }

  void onADarkGroundWhatStandsInAnEmptyFieldCanBeRead() {
    OutlinedStyle style(QStringLiteral("fusion"));
    QPalette dark = darkScheme();
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      dark.setColor(QPalette::Disabled, role, Qt::black);
    dark.setColor(QPalette::PlaceholderText, Qt::black);
    style.polish(dark);
    QVERIFY(dark.color(QPalette::PlaceholderText).lightness() > 120);
    QVERIFY(dark.color(QPalette::Disabled, QPalette::ButtonText).lightness() > 120);
  }

  void onBlackWhatIsQuietIsNotBlack() {
    OutlinedStyle style(QStringLiteral("fusion"));
    QPalette dark = highContrast();
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      dark.setColor(QPalette::Disabled, role, Qt::black);
    dark.setColor(QPalette::PlaceholderText, Qt::black);
    style.polish(dark);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      QVERIFY(dark.color(QPalette::Disabled, role).lightness() > 100);
    QVERIFY(dark.color(QPalette::PlaceholderText).lightness() > 100);
    QVERIFY(dark.color(QPalette::Mid).lightness() > 100);
    QVERIFY(dark.color(QPalette::Midlight).lightness() > 40);
    QPalette light(Qt::white);
    const QPalette before = light;
    style.polish(light);
    QCOMPARE(light, before);
  }

  /// Texts of four times the size make of every screen one that is too small.
  void onASmallScreenTheButtonsOfAPanelAreSeen_data() {
    QTest::addColumn<Maker>("maker");
    QTest::newRow("preferences") << &preferences;
    QTest::newRow("export") << &exporting;
    QTest::newRow("print") << &printing;
    QTest::newRow("page setup") << &pageSetup;
  }
  void onASmallScreenTheButtonsOfAPanelAreSeen() {
    QFETCH(Maker, maker);
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 4);
    QApplication::setFont(large);
    const auto back = qScopeGuard([&] { QApplication::setFont(usual); });
    const Made made = maker();
    show(made);
    const QRect screen = made.window->screen()->availableGeometry();
    QTRY_VERIFY(screen.contains(made.window->geometry()));
    const auto* buttons = made.window->findChild<QDialogButtonBox*>();
    QVERIFY(made.window->rect().contains(
        {buttons->mapTo(made.window, QPoint()), buttons->size().boundedTo(screen.size())}));
    QVERIFY(buttons->height() >= buttons->minimumSizeHint().height());
  }

  void textsOfTwiceTheSizeHaveRoom_data() { everyWindow(); }
  void textsOfTwiceTheSizeHaveRoom() {
    QFETCH(Maker, maker);
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2);
    QApplication::setFont(large);
    QStringList cut;
    {
      const Made made = maker();
      show(made);
      for (const QLabel* label : made.window->findChildren<QLabel*>())
        if (label->isVisible() && !label->wordWrap() && !label->text().isEmpty() &&
            label->height() < label->fontMetrics().height() - 2)
          cut << label->text();
      for (const QWidget* widget : made.window->findChildren<QWidget*>())
        if (widget->isVisible() && (widget->inherits("QPushButton") || widget->inherits("QCheckBox")) &&
            (widget->width() < widget->sizeHint().width() - 2 ||
             widget->height() < widget->sizeHint().height() - 2))
          cut << widget->accessibleName() + widget->objectName();
      for (const QTabBar* tabs : made.window->findChildren<QTabBar*>())
        if (tabs->isVisible() && tabs->width() < tabs->sizeHint().width()) cut << "the tabs";
      for (const QLineEdit* field : made.window->findChildren<QLineEdit*>())
        if (field->isVisible() && field->isReadOnly() && field->inherits("norvex::FactField") &&
            field->width() < 10 * field->fontMetrics().averageCharWidth())
          cut << field->accessibleName();
    }
    QApplication::setFont(usual);
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
  }
};

NORVEX_TEST(AllWindowsTest)
#include "all_windows_test.moc"
