// NSPrintInfo: how something is printed. Paper, margins, scaling, pages, printer.
#pragma once

#include <QMarginsF>
#include <QSizeF>
#include <QString>
#include <QVariantMap>

#include "print/paper.h"

namespace norvex {

enum class NSPaperOrientation { Portrait = 0, Landscape = 1 };
/// The fate of a picture that is larger than a page: more pages, made to fit, cut off.
enum class NSPrintingPaginationMode { Automatic = 0, Fit = 1, Clip = 2 };

/// The pages of a document with several that are printed. A choice of the print panel, which no layout keeps.
enum class DocumentPages { Shown = 0, All = 1, Range = 2 };

// Keys of the settings dictionary.
inline constexpr char NSPrintOrientation[] = "NSOrientation";
inline constexpr char NSPrintLeftMargin[] = "NSLeftMargin";
inline constexpr char NSPrintRightMargin[] = "NSRightMargin";
inline constexpr char NSPrintTopMargin[] = "NSTopMargin";
inline constexpr char NSPrintBottomMargin[] = "NSBottomMargin";
inline constexpr char NSPrintVerticallyCentered[] = "NSVerticallyCentered";
inline constexpr char NSPrintHorizontallyCentered[] = "NSHorizontallyCentered";
inline constexpr char NSPrintVerticalPagination[] = "NSVerticalPagination";
inline constexpr char NSPrintHorizontalPagination[] = "NSHorizontalPagination";
inline constexpr char NSPrintHeaderAndFooter[] = "NSPrintHeaderAndFooter";
inline constexpr char NSPrintPaperName[] = "NSPaperName";
inline constexpr char NSPrintScalingFactor[] = "NSScalingFactor";
inline constexpr char NSPrintPrinterName[] = "NSPrinterName";
inline constexpr char NSPrintCopies[] = "NSCopies";
inline constexpr char NSPrintFirstPage[] = "NSFirstPage";
inline constexpr char NSPrintLastPage[] = "NSLastPage";
inline constexpr char NSPrintAllPages[] = "NSPrintAllPages";
inline constexpr char NSPrintJobSavingPath[] = "NSJobSavingPath";
inline constexpr char NorvexDocumentPages[] = "NorvexDocumentPages";
inline constexpr char NorvexFirstDocumentPage[] = "NorvexFirstDocumentPage";
inline constexpr char NorvexLastDocumentPage[] = "NorvexLastDocumentPage";

/// A value. The dictionary is the state; the accessors read and write it. A key that is absent, or whose
/// value is of another type or out of its range, reads as its default, whatever was merged into the
/// dictionary.
class NSPrintInfo {
 public:
  static constexpr double smallestScalingFactor = 0.01, largestScalingFactor = 100;
  static constexpr int largestCopies = 999;
  static constexpr double largestMargin = 10000;

  /// The platform's own settings: the locale's paper, upright, a margin of 72 points at the sides and of 90
  /// above and below, not scaled, automatic pagination, no header and footer.
  NSPrintInfo() = default;

  /// The settings that everything without settings of its own begins with. Main thread only.
  static NSPrintInfo& sharedPrintInfo();

  [[nodiscard]] NSPaperOrientation orientation() const;
  void setOrientation(NSPaperOrientation orientation);
  /// Points on the paper as it is read.
  [[nodiscard]] QMarginsF margins() const;
  [[nodiscard]] double leftMargin() const { return margins().left(); }
  [[nodiscard]] double rightMargin() const { return margins().right(); }
  [[nodiscard]] double topMargin() const { return margins().top(); }
  [[nodiscard]] double bottomMargin() const { return margins().bottom(); }
  void setLeftMargin(double points) { set(NSPrintLeftMargin, points); }
  void setRightMargin(double points) { set(NSPrintRightMargin, points); }
  void setTopMargin(double points) { set(NSPrintTopMargin, points); }
  void setBottomMargin(double points) { set(NSPrintBottomMargin, points); }
  /// Of a picture that fits on one page in that direction.
  [[nodiscard]] bool isVerticallyCentered() const { return flag(NSPrintVerticallyCentered, true); }
  void setVerticallyCentered(bool centered) { set(NSPrintVerticallyCentered, centered); }
  [[nodiscard]] bool isHorizontallyCentered() const { return flag(NSPrintHorizontallyCentered, true); }
  void setHorizontallyCentered(bool centered) { set(NSPrintHorizontallyCentered, centered); }
  [[nodiscard]] NSPrintingPaginationMode verticalPagination() const {
    return mode(NSPrintVerticalPagination);
  }
  void setVerticalPagination(NSPrintingPaginationMode mode) { set(NSPrintVerticalPagination, int(mode)); }
  [[nodiscard]] NSPrintingPaginationMode horizontalPagination() const {
    return mode(NSPrintHorizontalPagination);
  }
  void setHorizontalPagination(NSPrintingPaginationMode mode) { set(NSPrintHorizontalPagination, int(mode)); }
  [[nodiscard]] bool printsHeaderAndFooter() const { return flag(NSPrintHeaderAndFooter, false); }
  void setPrintsHeaderAndFooter(bool prints) { set(NSPrintHeaderAndFooter, prints); }

  [[nodiscard]] Paper paper() const;
  void setPaper(const Paper& paper) { set(NSPrintPaperName, paper.keyword); }
  /// The paper as it is read: lying when the orientation is landscape. Points.
  [[nodiscard]] QSizeF paperSize() const;
  /// 1: a point of the picture is a point on paper.
  [[nodiscard]] double scalingFactor() const;
  void setScalingFactor(double factor) { set(NSPrintScalingFactor, factor); }
  /// Empty: no printer in particular.
  [[nodiscard]] QString printerName() const;
  void setPrinterName(const QString& name) { set(NSPrintPrinterName, name); }

  [[nodiscard]] int copies() const;
  void setCopies(int copies) { set(NSPrintCopies, copies); }
  /// Of the sheets that the job takes. From 1; all of them until one of these is set.
  [[nodiscard]] bool printsAllPages() const { return flag(NSPrintAllPages, true); }
  [[nodiscard]] int firstPage() const;
  [[nodiscard]] int lastPage() const;
  void setPageRange(int first, int last);
  void setPrintsAllPages() { set(NSPrintAllPages, true); }
  /// Pages of the document, each of which takes one sheet or several.
  [[nodiscard]] DocumentPages documentPages() const;
  void setDocumentPages(DocumentPages pages) { set(NorvexDocumentPages, int(pages)); }
  /// From 1; of a range alone.
  [[nodiscard]] int firstDocumentPage() const;
  [[nodiscard]] int lastDocumentPage() const;
  void setDocumentPageRange(int first, int last);
  /// Where the job is written as PDF in the place of being printed; empty: it is printed.
  [[nodiscard]] QString jobSavingPath() const;
  void setJobSavingPath(const QString& path) { set(NSPrintJobSavingPath, path); }

  [[nodiscard]] const QVariantMap& dictionary() const { return dictionary_; }
  /// The given entries win.
  void addEntries(const QVariantMap& entries);
  void set(const char* key, const QVariant& value) { dictionary_.insert(QString::fromLatin1(key), value); }

  friend bool operator==(const NSPrintInfo& a, const NSPrintInfo& b) {
    return a.dictionary_ == b.dictionary_;
  }

 private:
  [[nodiscard]] QVariant value(const char* key) const { return dictionary_.value(QString::fromLatin1(key)); }
  [[nodiscard]] double number(const char* key, double least, double most, double otherwise) const;
  [[nodiscard]] int integer(const char* key, int least, int most, int otherwise) const;
  [[nodiscard]] bool flag(const char* key, bool otherwise) const;
  [[nodiscard]] NSPrintingPaginationMode mode(const char* key) const;

  QVariantMap dictionary_;
};

}  // namespace norvex
