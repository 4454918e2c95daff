// MainWindowController: the one window controller of a document.
#pragma once

#include <QMainWindow>
#include <QObject>

#include <functional>
#include <memory>

#include "display/norvex_view.h"
#include "display/norvex_view_delegate.h"
#include "document/document_window_controller.h"
#include "ui/picture/drag_source.h"
#include "window/commands/window_parts.h"
#include "window/window_commands.h"

namespace Ui {
class MainWindowController;
}

namespace norvex {

/// Loads the window and its inspector from the interface file, sets their controls up, and hands every
/// command to the object that carries it out. Main thread only; owns its windows.
class MainWindowController final : public QObject,
                                   public WindowParts,
                                   public DocumentWindowController,
                                   public NorvexViewDelegate,
                                   public NSTouchBarDelegate {
  Q_OBJECT
  Q_PROPERTY(double zoomFactor READ zoomFactor WRITE setZoomFactor NOTIFY zoomFactorDidChange)
 public:
  /// The window is loaded from the interface file of the class's own name.
  MainWindowController();
  ~MainWindowController() override;

  // DocumentWindowController
  void setDocument(Document* document) override { document_ = document; }
  void setShouldCloseDocument(bool close) override { shouldCloseDocument_ = close; }
  /// The window appears at once; the file is read on another thread, and the second half of the set-up
  /// follows.
  void showWindow() override;
  /// Reads on another thread as soon as the window is on the screen, otherwise at once.
  void windowDidLoad() override;
  void display() override { redisplay(); }
  void fileDidChangeOnDisk() override;
  void fileDidDisappear() override;
  [[nodiscard]] bool closesWhenDone() const override { return commands_.closing.closesWhenDone(); }
  PictureProducers* producers() override { return &commands_.producers; }
  [[nodiscard]] NorvexView* imageView() override { return view(); }
  [[nodiscard]] std::optional<PictureView> pictureView() const override { return commands_.shownView.now(); }
  void rememberFrame() override { commands_.sizing.saveFrame(); }
  [[nodiscard]] std::optional<QPoint> cornerToHandOn() const override {
    return isWindowLoaded() ? std::optional(commands_.sizing.cornerToHandOn()) : std::nullopt;
  }
  void takePlace(const QPoint& corner) override { commands_.sizing.takePlace(corner); }
  void setFirstView(const PictureView& view) override { commands_.shownView.setFirst(view); }

  /// Loads the interface file on the first call; does not show it and does not read the document.
  QMainWindow* window();
  [[nodiscard]] bool isReading() const { return commands_.loading.isReading(); }
  /// What the user has opened the document with; empty: nothing was asked for.
  [[nodiscard]] QString password() const { return commands_.loading.password(); }
  /// Reads the file again and starts over: upright, at its natural size. A file that cannot be shown any
  /// more, or no longer draws, leaves what is shown, with a message.
  void reload();
  /// Bound to the scroll view's "factor".
  void setZoomFactor(double factor);

  // NorvexViewDelegate
  [[nodiscard]] bool dialKnobClockwise() const override;
  void norvexView(NorvexView& view, const QString& selectedRangeStrings, const QString& end,
                  const QString& area) override;
  /// An SVG picture's PDF form is there, or failed with `error`.
  void pdfImageRepDidLoad(bool success, const Error& error);

  // ---- what the command objects do, under the controller's names
  [[nodiscard]] QSizeF calcWindowMaxSize(const QSizeF& size) const { return commands_.sizing.maxSize(size); }
  void setWindowSize() { commands_.sizing.apply(); }
  void showInspectorWindow(QObject* = nullptr) { commands_.inspector.toggle(); }
  void takeColor(const QColor& color) { commands_.inspector.takeColor(color); }
  void useBackgroundAction(int state) { commands_.inspector.useBackground(state); }
  void rotateChange(double senderValue) { commands_.inspector.rotateChange(senderValue); }
  void doRotateFromKnob() { commands_.inspector.rotateFromKnob(); }
  PictureFormats pboardTypesAndDataObjects() { return commands_.copying.formats(); }
  void doCopy(QObject* = nullptr) { commands_.copying.copyPart(); }
  void copy(QObject* = nullptr) { commands_.copying.copyWhole(); }
  [[nodiscard]] std::optional<DraggedFile> draggedFile() { return commands_.copying.draggedFile(); }
  void doSaveTo(QObject* = nullptr) { commands_.savingTo.run(); }
  void saveDocumentAs(QObject* = nullptr);
  void saveDocumentTo(QObject* = nullptr);
  [[nodiscard]] QList<UTType> writableTypes() const { return commands_.savingAs.writableTypes(); }
  [[nodiscard]] bool isSaving() const { return commands_.savingAs.isSaving(); }
  void doPrinting(QObject* = nullptr) { commands_.printing.printPart(); }
  void printDocument(QObject* = nullptr) { commands_.printing.printWhole(); }
  /// Of the question whether to go on waiting; for tests.
  void setAlarm(Alarm alarm) { commands_.messages.setAlarm(std::move(alarm)); }
  void setPrintServices(const PrintServices& services) { commands_.printing.setServices(services); }
  void setPasteboard(NSPasteboard* pasteboard) { commands_.copying.setPasteboard(pasteboard); }
  void setBeep(std::function<void()> beep) { commands_.copying.setBeep(std::move(beep)); }
  /// A new bar at each call; this controller is its delegate.
  [[nodiscard]] NSTouchBar makeTouchBar() { return mainWindowTouchBar(*this); }
  [[nodiscard]] std::optional<NSCustomTouchBarItem> touchBar(const NSTouchBar& bar,
                                                             const QString& makeItemForIdentifier) override;
  void performTouchBarAction(TouchBarAction action);
  void showTouchBar(bool on) { commands_.menus.showTouchBar(on); }
  [[nodiscard]] TouchStrip* touchStrip() const { return commands_.touchBar.strip(); }

  // Each blocks for the picture process and returns the bytes of the whole, unturned picture, or none.
  QByteArray postScriptData() { return commands_.producers.postScriptData(); }
  QByteArray addEPSHeader(const QByteArray& postScript) {
    return commands_.producers.addEPSHeader(postScript);
  }
  QByteArray postScriptDataWithPreview() { return commands_.producers.postScriptDataWithPreview(); }
  QByteArray epsiData() { return commands_.producers.epsiData(); }
  QByteArray pdfData() { return commands_.producers.pdfData(); }
  QByteArray addPDFHeader(const QByteArray& pdf) { return commands_.producers.addPDFHeader(pdf); }
  QByteArray svgData() { return commands_.producers.svgData(); }
  using Rep = std::shared_ptr<NSImageRep>;
  std::optional<DocRasterImage> docRasterImage(const Rep& rep) { return norvex::docRasterImage(rep); }
  QByteArray tiffData(const Rep& rep) { return commands_.producers.tiffData(rep); }
  QByteArray pngData(const Rep& rep) { return commands_.producers.pngData(rep); }
  QByteArray jpgData(const Rep& rep) { return commands_.producers.jpgData(rep); }
  QByteArray gifData(const Rep& rep) { return commands_.producers.gifData(rep); }

 signals:
  void zoomFactorDidChange(double factor);
  /// The controller is being destroyed; the first argument is the controller, not its window.
  void windowWillClose(QObject* controller);
  /// The document was read and its contents are on the screen.
  void documentShown();
  /// The file on disk is another one than the window shows.
  void fileChanged();
  /// A copy has ended; false: the clipboard is as it was. A copy that a later one replaced is not told.
  void copied(bool written);
  /// Save To has ended after its sheet was confirmed.
  void savedTo(const QString& path, bool written);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void loadWindow();
  void takeWindow();
  void closing();
  /// What was read of the file; `again`: a picture was shown before.
  void take(const DocumentContents& contents, bool again);
  void showContents(const DocumentContents& contents);
  void finishSetUp();

  bool shouldCloseDocument_ = false;
  std::unique_ptr<QWidget> nib_;  ///< what the interface file makes; its windows become windows of their own
  std::unique_ptr<Ui::MainWindowController> ui_;
  QMetaObject::Connection svgObservation_;
  WindowCommands commands_;
};

}  // namespace norvex
