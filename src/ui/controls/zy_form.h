// ZyForm: rows of a title and an entry, as an inspector shows facts.
#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace norvex {

/// Titles stand right-aligned in one column, entries in the next. Entries are for reading: their text can be
/// selected and copied, not changed. Starts with one row. Main thread; owns its rows.
class ZyForm final : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QStringList titles READ titles WRITE setTitles)
 public:
  explicit ZyForm(QWidget* parent = nullptr);

  [[nodiscard]] QStringList titles() const;
  /// As many rows as titles; entries of rows that stay keep their text.
  void setTitles(const QStringList& titles);
  [[nodiscard]] int rowCount() const { return static_cast<int>(rows_.size()); }

  /// The entry and the title of a row. REQUIRES 0 <= index < rowCount().
  [[nodiscard]] QLineEdit* cellAtIndex(int index) const { return rows_.at(index).entry; }
  [[nodiscard]] QLabel* titleAtIndex(int index) const { return rows_.at(index).title; }
  /// Puts a text into a row's entry and shows its beginning; the whole text becomes the tooltip when it is
  /// long.
  void setText(int index, const QString& text);
  void setTitle(int index, const QString& title);
  void setRowVisible(int index, bool visible);

  /// Makes the title column as wide as its widest title needs.
  void calcSize();
  /// The same for several forms that stand above each other, so that their entries line up.
  static void alignTitles(const QList<ZyForm*>& forms);

 private:
  struct Row {
    QLabel* title;
    QLineEdit* entry;
  };
  void addRow();
  [[nodiscard]] int widestTitle() const;

  QGridLayout* layout_;
  QList<Row> rows_;
};

}  // namespace norvex
