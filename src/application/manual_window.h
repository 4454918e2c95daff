// The manual, in a window of its own.
#pragma once

#include <QWidget>

class QLineEdit;
class QListWidget;

namespace norvex {

class FittedPage;

/// The topics beside the page of the one that is chosen, and a field that keeps those topics that hold a word
/// and marks it on the page. Escape closes it. Main thread.
class ManualWindow final : public QWidget {
  Q_OBJECT
 public:
  explicit ManualWindow(QWidget* parent = nullptr);

  [[nodiscard]] QLineEdit* searchField() const { return search_; }
  [[nodiscard]] QListWidget* topics() const { return topics_; }
  [[nodiscard]] FittedPage* page() const { return page_; }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void fill();
  void showTopic();
  void searchFor(const QString& word);
  void markWord();

  QLineEdit* search_ = nullptr;
  QListWidget* topics_ = nullptr;
  FittedPage* page_ = nullptr;
};

/// Names of the pages of the manual in their order, in the user's language where it is there.
[[nodiscard]] QStringList manualPages();

}  // namespace norvex
