// The controls of an export: format, part of the picture, and what belongs to the format.
#pragma once

#include <QWidget>

#include "ui/export/export_choice.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QSpinBox;

namespace norvex {

class ColorWell;
class PageRangeFields;

/// Shows the controls that mean something for the format that is chosen. Main thread.
class ExportOptions final : public QWidget {
  Q_OBJECT
 public:
  /// A choice of `first` that `offer` does not have becomes the first that it has.
  ExportOptions(const ExportOffer& offer, const ExportChoice& first, QWidget* parent);

  [[nodiscard]] ExportChoice choice() const;
  /// Chooses the number that is still being typed, if there is one.
  void takeTyped();
  /// False: that format is not offered, and nothing changed.
  bool setFormat(PictureFormat format);
  /// Of the chosen part; points.
  [[nodiscard]] QSizeF size() const;

 signals:
  void changed();

 private:
  void addFormats(const ExportChoice& first);
  void addAreas(const ExportChoice& first);
  void addPages();
  void addPixels(const ExportChoice& first);
  void addBackground(const ExportChoice& first);
  void addQuality(const ExportChoice& first);
  void addText(const ExportChoice& first);
  void addColors(const ExportChoice& first);
  /// Those that the format holds.
  void offerColors();
  [[nodiscard]] PictureFormat format() const;
  [[nodiscard]] const ExportOffer::Area& area() const;
  [[nodiscard]] bool mayKeepText() const;
  /// After each choice: leaves away what the format and the part say nothing of, and tells.
  void showWhatApplies();
  /// Only a PDF holds several pages.
  void allowPages(bool allowed);
  void showPixels();
  void takePixels(int pixels, double points);

  ExportOffer offer_;
  QFormLayout* form_;
  QComboBox *formats_, *areas_, *colors_;
  QDoubleSpinBox* dpi_;
  QSpinBox *wide_, *high_, *quality_;
  PageRangeFields* pages_;
  QWidget *pixels_, *ground_, *losing_;
  QCheckBox *filled_, *lossless_, *text_;
  ColorWell* color_;
};

}  // namespace norvex
