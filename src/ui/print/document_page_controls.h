// The pages of a document that are printed.
#pragma once

#include <QObject>

#include "print/print_info.h"
#include "print/printable_view.h"

class QComboBox;
class QFormLayout;
class QWidget;

namespace norvex {

class PageRangeFields;

/// Part of the print panel, of a document with several pages. Main thread.
class DocumentPageControls final : public QObject {
  Q_OBJECT
 public:
  /// Adds its row to `form`, which outlives this. `source`: of a document with several pages.
  DocumentPageControls(const PrintSource& source, const NSPrintInfo& info, QFormLayout* form,
                       QObject* parent);

  /// Writes what is chosen and typed, and nothing else, into `info`.
  void applyTo(NSPrintInfo& info) const;

 signals:
  /// A person chose something.
  void changed();

 private:
  void showRange();

  QComboBox* which_;
  QWidget* range_;
  PageRangeFields* pages_;
};

}  // namespace norvex
