// The Check page of the inspector: what a check of the picture found.
#pragma once

#include <QWidget>

#include "check/finding.h"

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QVBoxLayout;

namespace norvex {

class FindingRow;

/// Checks and mends nothing itself: it asks with its signals and is told what came of it. Main thread.
class CheckPage final : public QWidget {
  Q_OBJECT
 public:
  /// Rows that are made; a picture of a thousand bad images is told with the first of them.
  static constexpr int mostRows = 200;

  explicit CheckPage(QWidget* parent = nullptr);

  /// Name of a profile or path of one; empty: the rules as they are.
  [[nodiscard]] QString profile() const { return profile_; }
  /// Shows it as chosen; nothing is told.
  void setProfile(const QString& nameOrFile);

  void showChecking();
  /// `incomplete`: a sentence on why not everything was checked; empty: everything was.
  void showFindings(const Findings& findings, const QString& incomplete = {});
  /// Nothing was checked; a sentence.
  void showProblem(const QString& sentence);

 signals:
  void checkWanted();
  void stopWanted();
  /// profile() is another one.
  void profileChosen();
  /// A file is to be asked for, to be given with setProfile().
  void profileFileWanted();
  void findingChosen(const norvex::Finding& finding);
  /// Of one finding.
  void repairWanted(const norvex::Finding& finding);
  void repairAllWanted();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* makeHead();
  QWidget* makeFoot();
  void fillProfiles();
  void choose(int item);
  QWidget* makeBody();
  /// One sentence in the place of a list.
  void showSentence(const QString& sentence, bool sound);
  void setChecking(bool checking);
  void showSign();
  void clearRows();
  void addRow(const Finding& finding);
  void orderRows();
  void moveFrom(FindingRow* row, int by);
  void tell(const QString& sentence);

  QString profile_;
  bool checking_ = false;
  QComboBox* profiles_ = nullptr;
  QPushButton *again_ = nullptr, *repairAll_ = nullptr;
  QLabel *counts_ = nullptr, *incomplete_ = nullptr, *sign_ = nullptr, *sentence_ = nullptr;
  bool isSound_ = false;  ///< what the sign says
  QProgressBar* progress_ = nullptr;
  QStackedWidget* body_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QWidget* foot_ = nullptr;
  QVBoxLayout* list_ = nullptr;
  QList<FindingRow*> rows_;
};

}  // namespace norvex
