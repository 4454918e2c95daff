// The inspector's page about inks: a list with switches, and the page as these inks print it.
#pragma once

#include <QImage>
#include <QList>
#include <QPoint>
#include <QString>
#include <QWidget>

#include "picture/inks/ink_image.h"
#include "protocol/page_inks.h"

class QBoxLayout;
class QCheckBox;
class QLabel;
class QPushButton;
class QScrollArea;
class QSpinBox;
class QTreeWidget;

namespace norvex {

class SeparationView;

/// Knows what was chosen, and of the plates only what it is told to show. Main thread.
class InksPage final : public QWidget {
  Q_OBJECT
 public:
  explicit InksPage(QWidget* parent = nullptr);

  /// Lists the inks, in the place of a sentence; inks of the same names stay switched as they were. `most`:
  /// percent in one place. Sends no signal.
  void showInks(const PageInks& page, double most);
  /// Null: none yet.
  void showImage(const QImage& image);
  /// A sentence in the place of everything.
  void tell(const QString& sentence);
  /// The sentence while the inks are found out. A list that is in sight stays, but nothing can be chosen of
  /// it until showInks().
  void showSeparating(const QString& sentence);
  /// Percent of each ink under the pointer; empty: it is not over the picture.
  void showAmounts(const QList<double>& percent);

  [[nodiscard]] InkChoice choice() const;
  [[nodiscard]] bool simulatesOverprint() const;
  /// The picture in the window is to be shown as these inks print it.
  [[nodiscard]] bool isInPicture() const;

 signals:
  void choiceChanged();
  void overprintChanged();
  void inPictureChanged();
  /// A pixel of the image that is shown, or (-1, -1).
  void pointed(QPoint pixel);

 private:
  QBoxLayout* makeButtons();
  QBoxLayout* makeOptions();
  void makeList();
  void choose();
  void showOnlyCurrent();
  void showAll();
  void showTotal(const QString& text);
  void setSeparated(bool separated);

  QScrollArea* scroll_;
  QWidget* contents_;
  QLabel* sentence_;
  SeparationView* view_;
  QTreeWidget* list_;
  QLabel* total_;
  QPushButton* only_;
  QPushButton* all_;
  QCheckBox* plates_;
  QCheckBox* overprint_;
  QCheckBox* inPicture_;
  QCheckBox* heat_;
  QSpinBox* limit_;
  QString most_;
  bool filling_ = false;
};

}  // namespace norvex
