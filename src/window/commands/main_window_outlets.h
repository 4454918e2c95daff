// The controls of a document window and of its inspector, under the names that the interface file gives them.
#pragma once

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QMainWindow;
class QWidget;

namespace norvex {

class ColorWell;
class NorvexView;
class NumberField;
class NumberMatrix;
class PathControl;
class SKTZoomingScrollView;
class SourceTextView;
class ZyDialKnob;
class ZyForm;
class ZyImageView;

/// References into the interface file's widgets, set when the window is loaded and null before. None is
/// owned. Those with setters are properties, which store the value unchanged.
class MainWindowOutlets {
 public:
  QLabel* startPoint = nullptr;  ///< start of the selection
  QLabel* endPoint = nullptr;    ///< end of the selection
  QAction* inspectorToolbarItem = nullptr;
  QAction* copyToolbarItem = nullptr;
  QAction* doPrintingToolbarItem = nullptr;
  QAction* doSaveToToolbarItem = nullptr;
  QWidget* inspectorWindow = nullptr;  ///< a window of its own beside the document's
  PathControl* pathControl = nullptr;
  SourceTextView* descriptionView = nullptr;
  SourceTextView* sourceTextView = nullptr;
  NumberMatrix* epsMatrix = nullptr;  ///< the picture rectangle: x, y, width, height
  QGroupBox* epsMatrixBox = nullptr;  ///< its title says what the rectangle is
  QLabel* previewField = nullptr;     ///< "Include Preview" or "Image"
  QComboBox* doSaveToPopUp = nullptr;
  ZyImageView* doSaveToImageView = nullptr;
  QWidget* doSaveToAccessoryView = nullptr;

  [[nodiscard]] QCheckBox* useBackgroundSwitch() const { return useBackgroundSwitch_; }
  void setUseBackgroundSwitch(QCheckBox* control) { useBackgroundSwitch_ = control; }
  [[nodiscard]] QLabel* windowBackgroundColorTitle() const { return windowBackgroundColorTitle_; }
  void setWindowBackgroundColorTitle(QLabel* control) { windowBackgroundColorTitle_ = control; }
  [[nodiscard]] QLabel* rotateTitle() const { return rotateTitle_; }
  void setRotateTitle(QLabel* control) { rotateTitle_ = control; }
  [[nodiscard]] NumberField* rotateField() const { return rotateField_; }
  void setRotateField(NumberField* control) { rotateField_ = control; }
  [[nodiscard]] ColorWell* backgroundColorWell() const { return backgroundColorWell_; }
  void setBackgroundColorWell(ColorWell* control) { backgroundColorWell_ = control; }
  [[nodiscard]] ZyDialKnob* dialKnob() const { return dialKnob_; }
  void setDialKnob(ZyDialKnob* control) { dialKnob_ = control; }
  [[nodiscard]] ZyImageView* previewImageView() const { return previewImageView_; }
  void setPreviewImageView(ZyImageView* control) { previewImageView_ = control; }
  [[nodiscard]] ZyForm* colorSpaceNameForm() const { return colorSpaceNameForm_; }
  void setColorSpaceNameForm(ZyForm* control) { colorSpaceNameForm_ = control; }
  [[nodiscard]] ZyForm* encodingForm() const { return encodingForm_; }
  void setEncodingForm(ZyForm* control) { encodingForm_ = control; }
  [[nodiscard]] ZyForm* titleForm() const { return titleForm_; }
  void setTitleForm(ZyForm* control) { titleForm_ = control; }
  [[nodiscard]] ZyForm* creatorForm() const { return creatorForm_; }
  void setCreatorForm(ZyForm* control) { creatorForm_ = control; }
  [[nodiscard]] ZyForm* creationDateForm() const { return creationDateForm_; }
  void setCreationDateForm(ZyForm* control) { creationDateForm_ = control; }
  [[nodiscard]] ZyForm* forForm() const { return forForm_; }
  void setForForm(ZyForm* control) { forForm_ = control; }
  [[nodiscard]] ZyForm* copyrightForm() const { return copyrightForm_; }
  void setCopyrightForm(ZyForm* control) { copyrightForm_ = control; }
  [[nodiscard]] NorvexView* view() const { return view_; }
  void setView(NorvexView* view) { view_ = view; }
  [[nodiscard]] SKTZoomingScrollView* zoomingScrollView() const { return zoomingScrollView_; }
  void setZoomingScrollView(SKTZoomingScrollView* view) { zoomingScrollView_ = view; }

 protected:
  MainWindowOutlets() = default;
  ~MainWindowOutlets() = default;

 private:
  QCheckBox* useBackgroundSwitch_ = nullptr;
  QLabel* windowBackgroundColorTitle_ = nullptr;
  QLabel* rotateTitle_ = nullptr;
  NumberField* rotateField_ = nullptr;
  ColorWell* backgroundColorWell_ = nullptr;
  ZyDialKnob* dialKnob_ = nullptr;
  ZyImageView* previewImageView_ = nullptr;
  ZyForm* colorSpaceNameForm_ = nullptr;
  ZyForm* encodingForm_ = nullptr;
  ZyForm* titleForm_ = nullptr;
  ZyForm* creatorForm_ = nullptr;
  ZyForm* creationDateForm_ = nullptr;
  ZyForm* forForm_ = nullptr;
  ZyForm* copyrightForm_ = nullptr;
  NorvexView* view_ = nullptr;
  SKTZoomingScrollView* zoomingScrollView_ = nullptr;
};

}  // namespace norvex
