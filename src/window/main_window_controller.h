// MainWindowController: the one window controller of a document.
#pragma once

#include <QColorSpace>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

#include "base/cancel_token.h"
#include "base/result.h"
#include "display/norvex_view.h"
#include "display/norvex_view_delegate.h"
#include "display/window_sizing.h"
#include "document/document.h"
#include "document/document_window_controller.h"
#include "window/document_contents.h"
#include "window/main_window_outlets.h"
#include "window/picture_formats.h"
#include "window/touch_bar.h"
#include "window/window_producers.h"
#include "window/window_work.h"

class QAction;
class QLabel;
class QWindowStateChangeEvent;

namespace Ui {
class MainWindowController;
}

namespace norvex {

class AlertPresenter;
class LoadingCard;
struct DraggedFile;
class MessageBar;
class NorvexViewWidget;
class NSPasteboard;
class NSPasteboardItem;
class NSSavePanel;
class PrintCommands;
class SelectionCommands;
class TouchStrip;
class ZoomingScrollArea;

/// Sets up every control of the document window and its inspector, reads the picture from the document's
/// file, and shows what was read. Main thread only; owns its windows.
class MainWindowController final : public QObject,
                                   public DocumentWindowController,
                                   public NorvexViewDelegate,
                                   public NSTouchBarDelegate,
                                   public MainWindowOutlets {
  Q_OBJECT
  Q_PROPERTY(double zoomFactor READ zoomFactor WRITE setZoomFactor NOTIFY zoomFactorDidChange)
 public:
  /// The window is loaded from the interface file of the class's own name.
  MainWindowController();
  ~MainWindowController() override;

  // DocumentWindowController
  void setDocument(Document* document) override;
  void setShouldCloseDocument(bool close) override { shouldCloseDocument_ = close; }
  /// The window appears at once; the file is read on another thread, and windowDidLoad()'s second half
  /// follows.
  void showWindow() override;
  void windowDidLoad() override;
  void display() override;
  void fileDidChangeOnDisk() override;
  void fileDidDisappear() override;
  [[nodiscard]] bool closesWhenDone() const override { return closesWhenDone_; }

  [[nodiscard]] Document* document() const { return document_; }
  /// Loads the interface file on the first call; does not show it and does not read the document.
  QMainWindow* window();
  [[nodiscard]] bool isWindowLoaded() const { return window_ != nullptr; }
  /// Whether the document is being read on another thread.
  [[nodiscard]] bool isReading() const { return reading_ != nullptr; }

  /// 1.0 shows a point of the picture as a point of the screen. Bound to the scroll view's "factor".
  [[nodiscard]] double zoomFactor() const { return zoomFactor_; }
  void setZoomFactor(double factor);

  // ---- window size
  // --------------------------------------------------------------------------------------------------
  /// The maximum window size for a wanted visible size of the picture.
  [[nodiscard]] QSizeF calcWindowMaxSize(const QSizeF& size) const;
  /// Gives the window its maximum size and shrinks it to that. Never enlarges it.
  void setWindowSize();

  // ---- inspector
  // ----------------------------------------------------------------------------------------------------
  void showInspectorWindow(QObject* sender = nullptr);
  void takeColor(const QColor& color);
  /// `state` as of a check box: 0 off, 1 mixed, 2 on.
  void useBackgroundAction(int state);
  void rotateChange(double senderValue);
  void doRotateFromKnob();

  /// Every command whose target is the controller is enabled exactly when the view has a picture.
  [[nodiscard]] bool validateUserInterfaceItem() const;
  /// An SVG picture's PDF form is there, or failed with `error`.
  void pdfImageRepDidLoad(bool success, const Error& error);

  // ---- the picture as bytes
  // ----------------------------------------------------------------------------------------- Each blocks for
  // the picture process and returns the bytes of the whole, unturned picture, or none.
  PictureProducers* producers() override;
  QByteArray postScriptData();
  QByteArray addEPSHeader(const QByteArray& postScript);
  QByteArray postScriptDataWithPreview();
  QByteArray epsiData();
  QByteArray pdfData();
  QByteArray addPDFHeader(const QByteArray& pdf);
  QByteArray svgData();
  std::optional<DocRasterImage> docRasterImage(const std::shared_ptr<NSImageRep>& imageRep);
  QByteArray tiffData(const std::shared_ptr<NSImageRep>& imageRep);
  QByteArray pngData(const std::shared_ptr<NSImageRep>& imageRep);
  QByteArray jpgData(const std::shared_ptr<NSImageRep>& imageRep);
  QByteArray gifData(const std::shared_ptr<NSImageRep>& imageRep);

  // ---- handing parts of the picture on
  // ------------------------------------------------------------------------------
  /// The formats of the selection, or of what is visible without one, as promises of their bytes. Beeps and
  /// is empty without a picture.
  PictureFormats pboardTypesAndDataObjects();
  /// Copies those formats. Returns at once: they are made in the background, and then the clipboard changes
  /// in one step. What cannot be made is left out; when nothing can, the clipboard stays as it is. copied()
  /// tells the end.
  void doCopy(QObject* sender = nullptr);
  /// Copies the whole picture in the formats that its representation has by itself, in the same way.
  void copy(QObject* sender = nullptr);
  /// The best of those formats as a file for another program, which begins to be made; none without a
  /// picture.
  std::optional<DraggedFile> draggedFile();
  /// Opens a sheet that writes those formats, and PNG, JPEG and GIF, to a file. savedTo() tells the end.
  void doSaveTo(QObject* sender = nullptr);
  /// Opens a sheet that writes the whole picture in any type that can be written.
  void saveDocumentAs(QObject* sender = nullptr);
  /// The same under another title: both write a copy, the document stays what it is.
  void saveDocumentTo(QObject* sender = nullptr);
  [[nodiscard]] QList<UTType> writableTypes() const;
  /// Reads the file again for the user and starts over: upright, at its natural size. A file that cannot be
  /// shown any more, or no longer draws, leaves what is shown, with a message.
  void reload();
  /// Whether a picture is being written by Save As. The window works on.
  [[nodiscard]] bool isSaving() const { return saving_; }

  // ---- Touch Bar
  // ----------------------------------------------------------------------------------------------------
  /// A new bar at each call; this controller is its delegate.
  [[nodiscard]] NSTouchBar makeTouchBar();
  [[nodiscard]] std::optional<NSCustomTouchBarItem> touchBar(const NSTouchBar& touchBar,
                                                             const QString& makeItemForIdentifier) override;
  void performTouchBarAction(TouchBarAction action);
  /// Shows the bar as a strip of large buttons below the picture, or hides it.
  void showTouchBar(bool on);
  /// Null before the strip was first shown.
  [[nodiscard]] TouchStrip* touchStrip() const { return touchStrip_; }

  // ---- printing
  // -----------------------------------------------------------------------------------------------------
  /// Prints the selected rectangle, or the visible one without a selection, as it is turned.
  void doPrinting(QObject* sender = nullptr);
  /// Prints the whole picture as it is turned: the document's own printing.
  void printDocument(QObject* sender = nullptr);
  /// Another print service or other panels than the platform's; not owned. What is null stays the platform's.
  void setPrintServices(const PrintServices& services);
  [[nodiscard]] NorvexView* imageView() override { return view(); }

  // NorvexViewDelegate
  [[nodiscard]] bool dialKnobClockwise() const override;
  void norvexView(NorvexView& view, const QString& selectedRangeStrings, const QString& end,
                  const QString& area) override;

  /// Shows the alerts of this controller; not owned, null: they are shown by the platform.
  void setAlertPresenter(AlertPresenter* presenter) { alerts_ = presenter; }
  /// The clipboard and the save panel; not owned, null: the platform's.
  void setPasteboard(NSPasteboard* pasteboard) { pasteboard_ = pasteboard; }
  void setSavePanel(NSSavePanel* panel) { savePanel_ = panel; }
  /// What is done instead of the platform's beep.
  void setBeep(std::function<void()> beep) { beep_ = std::move(beep); }
  [[nodiscard]] ZoomingScrollArea* scrollArea() const { return scrollArea_; }
  [[nodiscard]] NorvexViewWidget* viewWidget() const { return viewWidget_; }
  [[nodiscard]] MessageBar* messageBar() const { return messageBar_; }
  [[nodiscard]] const QColorSpace& windowColorSpace() const { return windowColorSpace_; }

 signals:
  void zoomFactorDidChange(double factor);
  /// The controller is being destroyed; the first argument is the controller, not its window.
  void windowWillClose(QObject* controller);
  /// The document was read and its contents are on the screen.
  void documentShown();
  /// A copy has ended; false: the clipboard is as it was. A copy that a later one replaced is not told.
  void copied(bool written);
  /// Save To has ended after its sheet was confirmed.
  void savedTo(const QString& path, bool written);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // main_window_controller.cpp
  void loadWindow();
  void takeOutlets();
  // main_window_closing.cpp
  /// Whether a file is being written, or something printed, that would be lost with the window.
  [[nodiscard]] bool wouldLoseWork() const;
  void stopEverything();
  /// Whether the window stays for now: the user wants that, or it closes when its work has ended.
  bool closesLater();
  void closeIfDone();
  void closing();
  // main_window_setup.cpp: windowDidLoad's first half and last step
  void setUpControls();
  void setUpTitles();
  void setUpToolbarItems();
  void setUpBackground();
  void setUpTexts();
  void applyBackgroundState(int state);
  void finishSetUp();
  // main_window_loading.cpp: windowDidLoad's second half
  void startReading();
  void takeReading();
  void stopReading();
  /// Shows what was read; what is no picture any more leaves the one that is shown.
  void take(const DocumentContents& contents, bool again);
  void showUntitledDocument();
  void showContents(const DocumentContents& contents);
  void showPicture(const DocumentContents& contents);
  void showSvgPicture(const DocumentContents& contents);
  void showMatrix(const QRectF& rect);
  void showHeader(const DocumentContents& contents);
  void showPreview(const DocumentContents& contents);
  void showColorSpace(const HeaderDictionary& header);
  void showBoundingBoxes(const NSImageRep* rep);
  void showNotes(const NSImageRep* rep);
  /// Fonts that others stand in for are known once something was drawn.
  void showDrawingRemarks();
  void addNotes(const QStringList& sentences);
  void showResources(const NSImageRep* rep);
  void resetRotationAndZoom();
  // main_window_messages.cpp
  void watchPicture();
  void followRendering();
  void showProblem(const Error& error);
  void stopWork();
  void tellThatPictureStays(const Error& error);
  /// Draws again what failed or was stopped.
  void retryDrawing();
  void messageActionChosen();
  // main_window_commands.cpp
  void connectControls();
  void connectCommands();
  void arrangeToolbar();
  void validateCommands();
  void validateSelectionCommands();
  void rotateBy(double degrees);
  void showAbout();
  void toggleFullScreen(bool on);
  // main_window_print.cpp
  void setUpPrinting();
  void connectPrinting();
  // main_window_sizing.cpp
  [[nodiscard]] WindowMeasures windowMeasures() const;
  void settleLayout() const;
  void windowStateDidChange(const QWindowStateChangeEvent& event);
  void restoreFrame();
  void saveFrame() const;
  // main_window_touch_bar.cpp
  void validateTouchStrip();
  // main_window_inspector.cpp
  void titleInspector();
  void showSource();
  void orderInspector();
  void placeInspector();
  void showRotationText();

  // main_window_encoding.cpp
  WindowProducers& windowProducers();
  // main_window_copy.cpp
  void NSBeep() const;
  [[nodiscard]] PictureSnapshot snapshot() const;
  void writeWhenMade(const PictureFormats& formats, const std::shared_ptr<PromisedData>& png);
  void write(const NSPasteboardItem& item);
  void stopCopying();
  // main_window_save_to.cpp, main_window_save_as.cpp
  struct SaveToSheet;
  [[nodiscard]] QString clipName() const;
  NSSavePanel& savePanel();
  void fillSaveToAccessory(const std::shared_ptr<SaveToSheet>& sheet);
  void makeSaveToFormats(const std::shared_ptr<SaveToSheet>& sheet);
  void removeSaveToFormat(SaveToSheet& sheet, const std::shared_ptr<PromisedData>& data);
  void saveTo(const std::shared_ptr<SaveToSheet>& sheet, const QUrl& url);
  void runSavePanel(const QString& title);
  void saveAs(const QUrl& url, const UTType& type);
  void workBesideTheWindow(const std::function<void()>& work, const CancelToken& cancel);
  void showWriteFailure(const Error& error, const QString& path);

  // main_window_context_menu.cpp
  void setUpPictureMenu();
  struct Reading;

  QPointer<Document> document_;
  bool shouldCloseDocument_ = false;
  bool inspectorPlaced_ = false, observing_ = false;
  bool closesWhenDone_ = false, askingToClose_ = false;
  AlertPresenter* alerts_ = nullptr;

  std::unique_ptr<QWidget> nib_;  ///< what the interface file makes; its windows become windows of their own
  std::unique_ptr<Ui::MainWindowController> ui_;
  QPointer<QMainWindow> window_;
  ZoomingScrollArea* scrollArea_ = nullptr;
  NorvexViewWidget* viewWidget_ = nullptr;
  MessageBar* messageBar_ = nullptr;
  LoadingCard* loadingCard_ = nullptr;
  SelectionCommands* selectionCommands_ = nullptr;
  TouchStrip* touchStrip_ = nullptr;

  double zoomFactor_ = 1.0;
  QColorSpace windowColorSpace_{QColorSpace::SRgb};
  std::shared_ptr<Reading> reading_;  ///< null while nothing is read
  std::shared_ptr<StoppableProcess> process_;
  std::function<void()> messageAction_;
  std::unique_ptr<WindowProducers> producers_;
  NSPasteboard* pasteboard_ = nullptr;
  NSSavePanel* savePanel_ = nullptr;
  std::unique_ptr<NSSavePanel> ownSavePanel_;
  std::function<void()> beep_;
  WindowWork work_;
  std::optional<CancelToken> copying_;  ///< of the copy under way
  int copyingNumber_ = 0;               ///< what the work calls it
  bool saving_ = false;                 ///< Save As is making its picture or writing it
  QMetaObject::Connection svgObservation_;
  PrintServices printServices_;
  std::unique_ptr<PrintInteraction> ownPrintInteraction_;
  std::unique_ptr<PrintCommands> printCommands_;  ///< ends before the interaction that it tells
};

}  // namespace norvex
