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
#include "window/commands/closing_command.h"
#include "window/commands/copy_command.h"
#include "window/commands/inspector_command.h"
#include "window/commands/messages_command.h"
#include "window/commands/printing_command.h"
#include "window/commands/save_as_command.h"
#include "window/commands/save_to_command.h"
#include "window/commands/touch_bar_command.h"
#include "window/commands/window_parts.h"
#include "window/commands/window_producers.h"
#include "window/commands/window_sizing_command.h"
#include "window/contents_display.h"
#include "window/inspector/encoding_command.h"
#include "window/loading_command.h"

namespace Ui {
class MainWindowController;
}

namespace norvex {

class SelectionCommands;

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
  [[nodiscard]] bool closesWhenDone() const override { return closing_.closesWhenDone(); }
  PictureProducers* producers() override { return &producers_; }
  [[nodiscard]] NorvexView* imageView() override { return view(); }
  [[nodiscard]] std::optional<PictureView> pictureView() const override;
  void setFirstView(const PictureView& view) override { firstView_ = view; }

  /// Loads the interface file on the first call; does not show it and does not read the document.
  QMainWindow* window();
  [[nodiscard]] bool isReading() const { return loading_.isReading(); }
  /// What the user has opened the document with; empty: nothing was asked for.
  [[nodiscard]] QString password() const { return loading_.password(); }
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
  [[nodiscard]] QSizeF calcWindowMaxSize(const QSizeF& size) const { return sizing_.maxSize(size); }
  void setWindowSize() { sizing_.apply(); }
  void showInspectorWindow(QObject* = nullptr) { inspector_.toggle(); }
  void takeColor(const QColor& color) { inspector_.takeColor(color); }
  void useBackgroundAction(int state) { inspector_.useBackground(state); }
  void rotateChange(double senderValue) { inspector_.rotateChange(senderValue); }
  void doRotateFromKnob() { inspector_.rotateFromKnob(); }
  PictureFormats pboardTypesAndDataObjects() { return copying_.formats(); }
  void doCopy(QObject* = nullptr) { copying_.copyPart(); }
  void copy(QObject* = nullptr) { copying_.copyWhole(); }
  [[nodiscard]] std::optional<DraggedFile> draggedFile() { return copying_.draggedFile(); }
  void doSaveTo(QObject* = nullptr) { savingTo_.run(); }
  void saveDocumentAs(QObject* = nullptr);
  void saveDocumentTo(QObject* = nullptr);
  [[nodiscard]] QList<UTType> writableTypes() const { return savingAs_.writableTypes(); }
  [[nodiscard]] bool isSaving() const { return savingAs_.isSaving(); }
  void doPrinting(QObject* = nullptr) { printing_.printPart(); }
  void printDocument(QObject* = nullptr) { printing_.printWhole(); }
  /// Of the question whether to go on waiting; for tests.
  void setAlarm(Alarm alarm) { messages_.setAlarm(std::move(alarm)); }
  void setPrintServices(const PrintServices& services) { printing_.setServices(services); }
  void setPasteboard(NSPasteboard* pasteboard) { copying_.setPasteboard(pasteboard); }
  void setBeep(std::function<void()> beep) { copying_.setBeep(std::move(beep)); }
  /// A new bar at each call; this controller is its delegate.
  [[nodiscard]] NSTouchBar makeTouchBar() { return mainWindowTouchBar(*this); }
  [[nodiscard]] std::optional<NSCustomTouchBarItem> touchBar(const NSTouchBar& bar,
                                                             const QString& makeItemForIdentifier) override;
  void performTouchBarAction(TouchBarAction action);
  void showTouchBar(bool on);
  [[nodiscard]] TouchStrip* touchStrip() const { return touchBar_.strip(); }

  // Each blocks for the picture process and returns the bytes of the whole, unturned picture, or none.
  QByteArray postScriptData() { return producers_.postScriptData(); }
  QByteArray addEPSHeader(const QByteArray& postScript) { return producers_.addEPSHeader(postScript); }
  QByteArray postScriptDataWithPreview() { return producers_.postScriptDataWithPreview(); }
  QByteArray epsiData() { return producers_.epsiData(); }
  QByteArray pdfData() { return producers_.pdfData(); }
  QByteArray addPDFHeader(const QByteArray& pdf) { return producers_.addPDFHeader(pdf); }
  QByteArray svgData() { return producers_.svgData(); }
  using Rep = std::shared_ptr<NSImageRep>;
  std::optional<DocRasterImage> docRasterImage(const Rep& rep) { return norvex::docRasterImage(rep); }
  QByteArray tiffData(const Rep& rep) { return producers_.tiffData(rep); }
  QByteArray pngData(const Rep& rep) { return producers_.pngData(rep); }
  QByteArray jpgData(const Rep& rep) { return producers_.jpgData(rep); }
  QByteArray gifData(const Rep& rep) { return producers_.gifData(rep); }

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
  // main_window_controller.cpp
  void connectParts();
  void loadWindow();
  void takeOutlets();
  void stopWork();
  bool stopReading();
  void closing();
  // main_window_setup.cpp
  void setUpControls();
  void setUpTitles();
  void setUpToolbarItems();
  void setUpTexts();
  void take(const DocumentContents& contents, bool again);
  void showContents(const DocumentContents& contents);
  void resetRotationAndZoom();
  void takeFirstView();
  void finishSetUp();
  // main_window_commands.cpp, main_window_menus.cpp
  void connectControls();
  void connectCommands();
  void connectPrinting();
  void setUpPictureMenu();
  void arrangeToolbar();
  void validateCommands();
  void validateSelectionCommands();
  void rotateBy(double degrees);
  void showSource();
  void showAbout();
  void setUpViewing();
  void setUpChoices();

  bool shouldCloseDocument_ = false, observing_ = false;
  std::optional<PictureView> firstView_;  ///< as the picture was shown when it was closed last
  std::unique_ptr<QWidget> nib_;  ///< what the interface file makes; its windows become windows of their own
  std::unique_ptr<Ui::MainWindowController> ui_;
  SelectionCommands* selectionCommands_ = nullptr;
  QMetaObject::Connection svgObservation_;

  WindowProducers producers_;
  InspectorCommand inspector_{*this};
  ContentsDisplay contents_{*this, inspector_};
  EncodingCommand encoding_{*this};
  LoadingCommand loading_{*this};
  MessagesCommand messages_{*this};
  CopyCommand copying_{*this};
  SaveToCommand savingTo_{*this, copying_};
  SaveAsCommand savingAs_{*this, producers_};
  PrintingCommand printing_{*this};
  ClosingCommand closing_{*this, savingAs_, printing_};
  WindowSizingCommand sizing_{*this};
  TouchBarCommand touchBar_{*this, *this, [this](TouchBarAction action) { performTouchBarAction(action); }};
};

}  // namespace norvex
