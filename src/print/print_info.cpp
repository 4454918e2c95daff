#include "print/print_info.h"

#include <cmath>

#include "protocol/limits.h"

namespace norvex {
namespace {

constexpr double kSideMargin = 72, kOtherMargin = 90;

bool isNumber(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
      return true;
    default:
      return false;
  }
}

}  // namespace

NSPrintInfo& NSPrintInfo::sharedPrintInfo() {
  static NSPrintInfo shared;
  return shared;
}

double NSPrintInfo::number(const char* key, double least, double most, double otherwise) const {
  const QVariant found = value(key);
  if (!isNumber(found)) return otherwise;
  const double told = found.toDouble();
  return told >= least && told <= most ? told : otherwise;
}

int NSPrintInfo::integer(const char* key, int least, int most, int otherwise) const {
  const double told = number(key, least, most, otherwise);
  return told == std::floor(told) ? int(told) : otherwise;
}

bool NSPrintInfo::flag(const char* key, bool otherwise) const {
  const QVariant found = value(key);
  return found.typeId() == QMetaType::Bool ? found.toBool() : otherwise;
}

NSPrintingPaginationMode NSPrintInfo::mode(const char* key) const {
  return NSPrintingPaginationMode(integer(key, int(NSPrintingPaginationMode::Automatic),
                                          int(NSPrintingPaginationMode::Clip),
                                          int(NSPrintingPaginationMode::Automatic)));
}

NSPaperOrientation NSPrintInfo::orientation() const {
  return NSPaperOrientation(integer(NSPrintOrientation, 0, 1, 0));
}

void NSPrintInfo::setOrientation(NSPaperOrientation orientation) {
  set(NSPrintOrientation, int(orientation));
}

QMarginsF NSPrintInfo::margins() const {
  return {number(NSPrintLeftMargin, 0, largestMargin, kSideMargin),
          number(NSPrintTopMargin, 0, largestMargin, kOtherMargin),
          number(NSPrintRightMargin, 0, largestMargin, kSideMargin),
          number(NSPrintBottomMargin, 0, largestMargin, kOtherMargin)};
}

Paper NSPrintInfo::paper() const {
  if (const auto paper = paperNamed(value(NSPrintPaperName).toString())) return *paper;
  return localePaper();
}

QSizeF NSPrintInfo::paperSize() const {
  const QSizeF size = paper().size;
  return orientation() == NSPaperOrientation::Landscape ? size.transposed() : size;
}

double NSPrintInfo::scalingFactor() const {
  return number(NSPrintScalingFactor, smallestScalingFactor, largestScalingFactor, 1);
}

QString NSPrintInfo::printerName() const {
  return value(NSPrintPrinterName).toString();
}

int NSPrintInfo::copies() const {
  return integer(NSPrintCopies, 1, largestCopies, 1);
}

int NSPrintInfo::firstPage() const {
  return printsAllPages() ? 1 : integer(NSPrintFirstPage, 1, limits::maximumPrintPages, 1);
}

int NSPrintInfo::lastPage() const {
  return printsAllPages() ? limits::maximumPrintPages
                          : integer(NSPrintLastPage, 1, limits::maximumPrintPages, limits::maximumPrintPages);
}

void NSPrintInfo::setPageRange(int first, int last) {
  set(NSPrintAllPages, false);
  set(NSPrintFirstPage, first);
  set(NSPrintLastPage, last);
}

DocumentPages NSPrintInfo::documentPages() const {
  return DocumentPages(integer(NorvexDocumentPages, 0, int(DocumentPages::Range), 0));
}

int NSPrintInfo::firstDocumentPage() const {
  return integer(NorvexFirstDocumentPage, 1, limits::maximumPageNumber, 1);
}

int NSPrintInfo::lastDocumentPage() const {
  return integer(NorvexLastDocumentPage, 1, limits::maximumPageNumber, limits::maximumPageNumber);
}

void NSPrintInfo::setDocumentPageRange(int first, int last) {
  setDocumentPages(DocumentPages::Range);
  set(NorvexFirstDocumentPage, first);
  set(NorvexLastDocumentPage, last);
}

QString NSPrintInfo::jobSavingPath() const {
  return value(NSPrintJobSavingPath).toString();
}

void NSPrintInfo::addEntries(const QVariantMap& entries) {
  for (auto it = entries.begin(); it != entries.end(); ++it) dictionary_.insert(it.key(), it.value());
}

}  // namespace norvex
