#include "application/manual_window.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QShortcut>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

#include <algorithm>

#include "base/localized_string.h"
#include "ui/panels/centred_window.h"
#include "ui/panels/fitted_page.h"

namespace norvex {
namespace {

constexpr int kPageRole = Qt::UserRole;
constexpr int kTextRole = Qt::UserRole + 1;

/// The folder of the best language that the manual is written in. As with the string tables, "de-AT" is also
/// served by "de", but only "zh-CN" by "zh_CN".
QString languageFolder() {
  for (QString language : QLocale().uiLanguages()) {
    for (language.replace('-', '_'); !language.isEmpty();
         language.truncate(std::max(qsizetype(0), language.lastIndexOf('_')))) {
      const QString folder = QStringLiteral(":/manual/") + language;
      if (QDir(folder).exists()) return folder;
    }
  }
  return QStringLiteral(":/manual/en");
}

QString htmlOf(const QString& page) {
  QFile file(page);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The text between the tags of the heading.
QString titleOf(const QString& html) {
  const QString heading = html.section(QStringLiteral("<h1>"), 1).section(QStringLiteral("</h1>"), 0, 0);
  return QTextDocumentFragment::fromHtml(heading).toPlainText();
}

/// Chinese and Japanese have no italics: slanted letters are hard to read, what is named stands in bold.
QString nameStyle(const QString& page) {
  const bool hasItalics = !page.contains(QStringLiteral("/ja/")) && !page.contains(QStringLiteral("/zh"));
  return hasItalics ? QString() : QStringLiteral(" i { font-style: normal; font-weight: 600; }");
}

QString styleFor(const QPalette& palette) {
  const QString quiet = palette.color(QPalette::PlaceholderText).name();
  return QStringLiteral(
             "h1 { font-size: x-large; margin-bottom: 10px; }"
             "h2 { font-size: large; margin-top: 18px; margin-bottom: 6px; }"
             "p, li { line-height: 135%; } li { margin-bottom: 4px; }"
             "pre { background-color: %1; margin: 8px; white-space: pre-wrap; } a { color: %2; } .quiet { "
             "color: %3; }")
      .arg(palette.color(QPalette::AlternateBase).name(), palette.color(QPalette::Link).name(), quiet);
}

constexpr int kFieldMargins = 16;  // pixels beside the text of a field, frame and all

/// Rows with room between them. A list's own spacing makes its rows narrower when it lays them out than when
/// it paints them: a title that fits in the one and not in the other lost its second line.
class RoomyRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 4);
  }
};

QListWidget* makeTopics(QWidget* window) {
  auto* topics = new QListWidget(window);
  topics->setAccessibleName(localizedString("Topics"));
  topics->setFrameShape(QFrame::NoFrame);
  topics->setWordWrap(true);
  topics->setResizeMode(QListView::Adjust);
  topics->setItemDelegate(new RoomyRows(topics));
  return topics;
}

FittedPage* makePage(QWidget* window) {
  auto* page = new FittedPage(window);
  page->setAccessibleName(localizedString("Page of the manual"));
  page->setFrameShape(QFrame::NoFrame);
  page->setOpenLinks(false);
  page->setSearchPaths({languageFolder(), QStringLiteral(":/manual")});
  page->document()->setDocumentMargin(24);
  return page;
}

}  // namespace

QStringList manualPages() {
  const QDir folder(languageFolder());
  QStringList pages;
  for (const QString& name : folder.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name))
    pages << folder.filePath(name);
  return pages;
}

ManualWindow::ManualWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName(QStringLiteral("ManualWindow"));
  setWindowTitle(localizedString("Norvex Manual"));
  search_ = new QLineEdit(this);
  search_->setPlaceholderText(localizedString("Search the manual"));
  search_->setAccessibleName(localizedString("Search the manual"));
  search_->setClearButtonEnabled(true);
  topics_ = makeTopics(this);
  page_ = makePage(this);
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(12, 12, 8, 12);
  column->addWidget(search_);
  column->addWidget(topics_, 1);
  auto* splitter = new QSplitter(this);
  splitter->addWidget(side);
  splitter->addWidget(page_);
  splitter->setStretchFactor(1, 1);
  const QSize usual = sizeForTexts(*this, {900, 640});
  // On a low screen a quarter of it is too little for what the field says of itself.
  const int wanted = search_->fontMetrics().horizontalAdvance(search_->placeholderText()) + kFieldMargins;
  search_->setMinimumWidth(qMin(wanted, usual.width() * 2 / 5));
  splitter->setSizes({usual.width() / 4, usual.width() * 3 / 4});
  splitter->setChildrenCollapsible(false);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(splitter);

  connect(topics_, &QListWidget::currentItemChanged, this, &ManualWindow::showTopic);
  connect(search_, &QLineEdit::textChanged, this, &ManualWindow::searchFor);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, search_, [this] {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
  });
  fill();
  resize(usual);
  search_->setFocus();
}

void ManualWindow::fill() {
  for (const QString& page : manualPages()) {
    const QString html = htmlOf(page);
    auto* item = new QListWidgetItem(titleOf(html), topics_);
    item->setData(kPageRole, page);
    item->setData(kTextRole, QTextDocumentFragment::fromHtml(html).toPlainText());
  }
  topics_->setCurrentRow(0);
}

void ManualWindow::showTopic() {
  const QListWidgetItem* item = topics_->currentItem();
  if (!item) return page_->clear();
  const QString page = item->data(kPageRole).toString();
  page_->document()->setDefaultStyleSheet(styleFor(palette()) + nameStyle(page));
  page_->setHtml(htmlOf(page));
  page_->fitPictures();
  markWord();
}

void ManualWindow::searchFor(const QString& word) {
  QListWidgetItem* first = nullptr;
  for (int row = 0; row < topics_->count(); ++row) {
    QListWidgetItem* item = topics_->item(row);
    const bool holds = item->data(kTextRole).toString().contains(word, Qt::CaseInsensitive);
    item->setHidden(!holds);
    if (holds && !first) first = item;
  }
  const QListWidgetItem* current = topics_->currentItem();
  if (!current || current->isHidden()) topics_->setCurrentItem(first);
  markWord();
}

void ManualWindow::markWord() {
  page_->moveCursor(QTextCursor::Start);
  QList<QTextEdit::ExtraSelection> marks;
  const QString word = search_->text();
  QTextCursor at(page_->document());
  while (!word.isEmpty()) {
    at = page_->document()->find(word, at);
    if (at.isNull()) break;
    QTextEdit::ExtraSelection mark{at, {}};
    mark.format.setBackground(palette().color(QPalette::Highlight));
    mark.format.setForeground(palette().color(QPalette::HighlightedText));
    marks << mark;
  }
  page_->setExtraSelections(marks);
  if (marks.isEmpty()) return;
  QTextCursor first = marks.constFirst().cursor;
  first.clearSelection();
  page_->setTextCursor(first);
  page_->ensureCursorVisible();
}

void ManualWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange && page_) showTopic();
  QWidget::changeEvent(event);
}

}  // namespace norvex
