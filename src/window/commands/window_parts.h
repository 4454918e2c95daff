// The parts of a document window that its command objects work on.
#pragma once

#include <QColorSpace>
#include <QMainWindow>
#include <QPointer>

#include <memory>

#include "document/document.h"
#include "window/commands/main_window_outlets.h"
#include "window/commands/window_work.h"

class QLabel;
class QMenuBar;
class QTabWidget;
class QToolBar;

namespace norvex {

class AlertPresenter;
struct Error;
class LoadingCard;
class MessageBar;
class NorvexViewWidget;
class NSSavePanel;
class ZoomingScrollArea;

/// The window's widgets, its document and its work under way, and what several commands ask of them. The
/// controller is one and hands itself to its command objects, which do not know each other's window
/// otherwise. Main thread.
class WindowParts : public MainWindowOutlets {
 public:
  WindowParts(const WindowParts&) = delete;
  WindowParts& operator=(const WindowParts&) = delete;

  [[nodiscard]] Document* document() const { return document_; }
  /// Null before the window is loaded.
  [[nodiscard]] QMainWindow* mainWindow() const { return window_; }
  [[nodiscard]] bool isWindowLoaded() const { return window_ != nullptr; }
  [[nodiscard]] ZoomingScrollArea* scrollArea() const { return scrollArea_; }
  [[nodiscard]] NorvexViewWidget* viewWidget() const { return viewWidget_; }
  [[nodiscard]] MessageBar* messageBar() const { return messageBar_; }
  [[nodiscard]] LoadingCard* loadingCard() const { return loadingCard_; }
  [[nodiscard]] const QColorSpace& windowColorSpace() const { return windowColorSpace_; }
  [[nodiscard]] WindowWork& work() { return work_; }
  /// 1.0 shows a point of the picture as a point of the screen.
  [[nodiscard]] double zoomFactor() const { return zoomFactor_; }

  /// Every command whose target is the controller is enabled exactly when the view has a picture.
  [[nodiscard]] bool validateUserInterfaceItem() const;
  /// The rectangle that a command takes: the selection, or what is visible without one; view coordinates.
  [[nodiscard]] QRectF chosenRect() const;
  /// "NAME_clip" after the name of the window's file.
  [[nodiscard]] QString clipName() const;
  /// Draws the window again at once, if it is on the screen.
  void redisplay();

  /// Shows the alerts of this window; not owned. Null: nobody is told, and nobody is asked.
  void setAlertPresenter(AlertPresenter* presenter) { alerts_ = presenter; }
  [[nodiscard]] AlertPresenter* alerts() const { return alerts_; }
  /// Not owned; null: the platform's.
  void setSavePanel(NSSavePanel* panel) { savePanel_ = panel; }
  [[nodiscard]] NSSavePanel& savePanel();
  /// Tells in the window's bar what there is to know about something that was done; nothing without
  /// sentences.
  void tell(const QStringList& sentences);
  /// Tells that the file at `path` could not be written.
  void showWriteFailure(const Error& error, const QString& path);

  // Parts of the interface file that have no name in the outlets.
  QMenuBar* menuBar = nullptr;
  QToolBar* toolbar = nullptr;
  QTabWidget* inspectorTabs = nullptr;
  QWidget* sourcePage = nullptr;
  ZyForm* boundingBoxForm = nullptr;
  ZyForm* usesForm = nullptr;
  QLabel* noteField = nullptr;
  QLabel* rotateReadout = nullptr;
  QLabel* doSaveToNote = nullptr;

 protected:
  WindowParts();
  ~WindowParts();

  QPointer<Document> document_;
  QPointer<QMainWindow> window_;
  ZoomingScrollArea* scrollArea_ = nullptr;
  NorvexViewWidget* viewWidget_ = nullptr;
  MessageBar* messageBar_ = nullptr;
  LoadingCard* loadingCard_ = nullptr;
  QColorSpace windowColorSpace_{QColorSpace::SRgb};
  double zoomFactor_ = 1.0;

 private:
  WindowWork work_;
  AlertPresenter* alerts_ = nullptr;
  NSSavePanel* savePanel_ = nullptr;
  std::unique_ptr<NSSavePanel> ownSavePanel_;
};

}  // namespace norvex
