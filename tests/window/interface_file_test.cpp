// The interface file holds every control that the window controller names.
#include <QAccessible>
#include <QAction>
#include <QFile>
#include <QMainWindow>
#include <QXmlStreamReader>

#include "kit/test_main.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

QHash<QString, QString> namesInFile() {
  QFile file(QStringLiteral(NORVEX_SOURCE_DIR "/src/resources/MainWindowController.ui"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QHash<QString, QString> names;
  QXmlStreamReader xml(&file);
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QLatin1String("widget"))
      names.insert(xml.attributes().value("name").toString(), xml.attributes().value("class").toString());
    if (xml.name() == QLatin1String("action"))
      names.insert(xml.attributes().value("name").toString(), QStringLiteral("QAction"));
  }
  return xml.hasError() ? QHash<QString, QString>() : names;
}

}  // namespace

class InterfaceFileTest : public QObject {
  Q_OBJECT
 private slots:
  void everyFieldIsAControlOfTheFile_data() {
    QTest::addColumn<QString>("cls");
    const QList<std::pair<const char*, const char*>> fields{
        {"startPoint", "QLabel"},
        {"endPoint", "QLabel"},
        {"inspectorToolbarItem", "QAction"},
        {"copyToolbarItem", "QAction"},
        {"doPrintingToolbarItem", "QAction"},
        {"doSaveToToolbarItem", "QAction"},
        {"inspectorWindow", "QWidget"},
        {"pathControl", "norvex::PathControl"},
        {"descriptionView", "norvex::SourceTextView"},
        {"sourceTextView", "norvex::SourceTextView"},
        {"epsMatrix", "norvex::NumberMatrix"},
        {"epsMatrixBox", "QGroupBox"},
        {"previewField", "QLabel"},
        {"doSaveToPopUp", "QComboBox"},
        {"doSaveToImageView", "norvex::ZyImageView"},
        {"doSaveToAccessoryView", "QWidget"},
        {"useBackgroundSwitch", "QCheckBox"},
        {"windowBackgroundColorTitle", "QLabel"},
        {"rotateTitle", "QLabel"},
        {"rotateField", "norvex::NumberField"},
        {"backgroundColorWell", "norvex::ColorWell"},
        {"dialKnob", "norvex::ZyDialKnob"},
        {"previewImageView", "norvex::ZyImageView"},
        {"colorSpaceNameForm", "norvex::ZyForm"},
        {"encodingForm", "norvex::ZyForm"},
        {"titleForm", "norvex::ZyForm"},
        {"creatorForm", "norvex::ZyForm"},
        {"creationDateForm", "norvex::ZyForm"},
        {"forForm", "norvex::ZyForm"},
        {"copyrightForm", "norvex::ZyForm"},
        {"view", "norvex::NorvexViewWidget"},
        {"zoomingScrollView", "norvex::ZoomingScrollArea"}};
    for (const auto& [name, cls] : fields) QTest::newRow(name) << QString::fromLatin1(cls);
  }
  void everyFieldIsAControlOfTheFile() {
    QFETCH(QString, cls);
    QCOMPARE(namesInFile().value(QString::fromLatin1(QTest::currentDataTag())), cls);
  }

  void everyOutletIsConnectedWhenTheWindowIsLoaded() {
    WindowFixture fixture;
    MainWindowController& c = fixture.controller();
    QVERIFY(!c.isWindowLoaded());
    c.window();
    QVERIFY(c.startPoint && c.endPoint && c.inspectorToolbarItem && c.copyToolbarItem &&
            c.doPrintingToolbarItem && c.doSaveToToolbarItem);
    QVERIFY(c.inspectorWindow && c.pathControl && c.descriptionView && c.sourceTextView && c.epsMatrix &&
            c.epsMatrixBox);
    QVERIFY(c.previewField && c.doSaveToPopUp && c.doSaveToImageView && c.doSaveToAccessoryView);
    QVERIFY(c.useBackgroundSwitch() && c.windowBackgroundColorTitle() && c.rotateTitle() && c.rotateField() &&
            c.backgroundColorWell());
    QVERIFY(c.dialKnob() && c.previewImageView() && c.colorSpaceNameForm() && c.encodingForm() &&
            c.titleForm() && c.creatorForm());
    QVERIFY(c.creationDateForm() && c.forForm() && c.copyrightForm() && c.view() && c.zoomingScrollView());
  }

  void everyControlThatTakesTheFocusHasAName() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QStringList nameless;
    for (QWidget* top : {static_cast<QWidget*>(c.window()), c.inspectorWindow, c.doSaveToAccessoryView})
      for (QWidget* widget : top->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->inherits("QScrollArea") ||
            widget->inherits("QTabWidget") || !widget->isVisibleTo(top) ||
            widget->objectName().startsWith("qt_"))
          continue;
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
        if (interface && interface->text(QAccessible::Name).isEmpty() && widget->toolTip().isEmpty())
          nameless << QString::fromLatin1(widget->metaObject()->className()) + ' ' + widget->objectName() +
                          " in " + widget->parentWidget()->objectName();
      }
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join('\n')));
  }

  void everyShortcutIsGivenOnce() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QSet<QKeySequence> seen;
    for (QAction* action : c.window()->findChildren<QAction*>())
      for (const QKeySequence& keys : action->shortcuts()) {
        QVERIFY2(!seen.contains(keys), qPrintable(keys.toString()));
        seen.insert(keys);
      }
    QVERIFY(seen.contains(Qt::CTRL | Qt::Key_I) && seen.contains(Qt::Key_F5) && seen.contains(Qt::Key_F11));
  }
};

NORVEX_TEST(InterfaceFileTest)
#include "interface_file_test.moc"
