#include "ui/panels/file_dialogs.h"

#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QTreeView>

#include <algorithm>

#include "ui/panels/centred_window.h"

namespace norvex {
namespace {

constexpr int kName = 0, kSize = 1, kType = 2, kDate = 3;  // the columns of a QFileSystemModel
constexpr int kLeastLetters = 18;                          // of a name, before other columns give way
constexpr int kMostLetters = 30;                           // of a place

/// Columns are hidden and shown as the list gets narrower and wider.
class NameRoom final : public QObject {
 public:
  explicit NameRoom(QTreeView& list) : QObject(&list), list_(list) {
    list_.header()->setStretchLastSection(false);
    list_.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list_.header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    list_.viewport()->installEventFilter(this);
    connect(
        list_.header(), &QHeaderView::sectionResized, this,
        [this](int column) {
          if (column != kName) share();  // files were read whose facts are longer
        },
        Qt::QueuedConnection);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show) share();
    return QObject::eventFilter(watched, event);
  }

 private:
  void share() {
    int left = list_.viewport()->width() - kLeastLetters * list_.fontMetrics().averageCharWidth();
    for (const int column : {kDate, kSize, kType}) {
      left -= wholeWidth(column);
      list_.setColumnHidden(column, left < 0);
    }
  }
  [[nodiscard]] int wholeWidth(int column) const {
    const QAbstractItemView& view = list_;
    return std::max(view.sizeHintForColumn(column), list_.header()->sectionSizeHint(column));
  }

  QTreeView& list_;
};

void showWholePlaces(QFileDialog& dialog) {
  auto* places = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
  if (!places) return;
  const int whole = places->sizeHintForColumn(0) + 2 * places->frameWidth();
  places->setMinimumWidth(std::min(whole, kMostLetters * places->fontMetrics().averageCharWidth()));
  places->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // longer ones are shortened
}

void nameFolders(QFileDialog& dialog) {
  auto* title = dialog.findChild<QLabel*>(QStringLiteral("lookInLabel"));
  auto* folders = dialog.findChild<QComboBox*>(QStringLiteral("lookInCombo"));
  if (title && folders) title->setBuddy(folders);
}

}  // namespace

void settleFileDialog(QFileDialog& dialog, const QSize& usual) {
  if (auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) new NameRoom(*list);
  showWholePlaces(dialog);
  nameFolders(dialog);
  dialog.resize(sizeForTexts(dialog, usual));
}

QString nameFilter(const QString& title, const QStringList& extensions) {
  QStringList patterns;
  for (const QString& extension : extensions)
    patterns << QStringLiteral("*.") + extension << QStringLiteral("*.") + extension.toUpper();
  return title + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

}  // namespace norvex
