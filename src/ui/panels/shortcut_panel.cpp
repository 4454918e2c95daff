#include "ui/panels/shortcut_panel.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "base/localized_string.h"
#include "ui/panels/centred_window.h"
#include "ui/panels/own_shortcuts.h"
#include "ui/panels/shortcut_list.h"

namespace norvex {
namespace {

const QString kName = QStringLiteral("shortcutPanel");
constexpr int kMargin = 10;

/// The list, and below it the keys of the command that is chosen there.
class ShortcutPanel final : public QDialog {
 public:
  ShortcutPanel(QWidget& window, const QMenuBar& menus);
  /// The field tells what was typed when it loses the keyboard, as it does when the panel goes: nobody takes
  /// it any more then.
  ~ShortcutPanel() override { keys_->disconnect(this); }
  ShortcutPanel(const ShortcutPanel&) = delete;
  ShortcutPanel& operator=(const ShortcutPanel&) = delete;

 private:
  /// The list comes after it, for the keyboard too.
  void addSearch(QVBoxLayout& column, const QMenuBar& menus);
  void addKeys(QVBoxLayout& column);
  void addButtons(QVBoxLayout& column);
  void showCommand();
  void take(const QKeySequence& typed);
  void tell(const QString& sentence) { message_->setText(sentence); }

  QWidget& window_;
  ShortcutList* list_ = nullptr;
  QLabel *title_ = nullptr, *message_ = nullptr;
  QKeySequenceEdit* keys_ = nullptr;
  QPushButton *remove_ = nullptr, *reset_ = nullptr, *resetAll_ = nullptr;
};

ShortcutPanel::ShortcutPanel(QWidget& window, const QMenuBar& menus) : QDialog(&window), window_(window) {
  setObjectName(kName);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(localizedString("Keyboard Shortcuts"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, kMargin);
  addSearch(*column, menus);
  addKeys(*column);
  addButtons(*column);
  connect(list_, &QTreeWidget::currentItemChanged, this, [this] {
    tell({});
    showCommand();
  });
  connect(list_, &QTreeWidget::itemActivated, this, [this] {
    if (keys_->isEnabled()) keys_->setFocus(Qt::OtherFocusReason);
  });
  connect(&OwnShortcuts::shared(), &OwnShortcuts::changed, this, [this] {
    list_->showKeys();
    showCommand();
  });
  showCommand();
  const QSize usual = sizeForTexts(*this, {540, 640});
  resize(fittingScreen(*this, usual.expandedTo({list_->wholeWidth(), 0})));
}

void ShortcutPanel::addSearch(QVBoxLayout& column, const QMenuBar& menus) {
  auto* search = new QLineEdit(this);
  search->setObjectName(QStringLiteral("shortcutSearch"));
  search->setPlaceholderText(localizedString("Search commands and keys"));
  search->setAccessibleName(localizedString("Search commands and keys"));
  search->setClearButtonEnabled(true);
  auto* margin = new QVBoxLayout;
  margin->setContentsMargins(kMargin, kMargin, kMargin, 0);
  margin->addWidget(search);
  column.addLayout(margin);
  list_ = new ShortcutList(this, menus);
  column.addWidget(list_, 1);
  connect(search, &QLineEdit::textChanged, list_, &ShortcutList::filter);
  search->setFocus(Qt::OtherFocusReason);
}

void ShortcutPanel::addKeys(QVBoxLayout& column) {
  title_ = new QLabel(this);
  title_->setObjectName(QStringLiteral("shortcutTitle"));
  title_->setWordWrap(true);
  keys_ = new QKeySequenceEdit(this);
  keys_->setObjectName(QStringLiteral("shortcutKeys"));
  keys_->setAccessibleName(localizedString("New keys"));
  for (auto* field : keys_->findChildren<QLineEdit*>()) field->setAccessibleName(keys_->accessibleName());
  remove_ = new QPushButton(localizedString("&Remove Keys"), this);
  remove_->setObjectName(QStringLiteral("shortcutRemove"));
  reset_ = new QPushButton(localizedString("&Default Keys"), this);
  reset_->setObjectName(QStringLiteral("shortcutReset"));
  message_ = new QLabel(this);
  message_->setObjectName(QStringLiteral("shortcutMessage"));
  message_->setWordWrap(true);
  message_->setMinimumHeight(2 * fontMetrics().lineSpacing());  // nothing moves when there is one
  message_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  auto* row = new QHBoxLayout;
  row->addWidget(keys_, 1);
  for (QPushButton* button : {remove_, reset_}) {
    button->setAutoDefault(false);
    row->addWidget(button);
  }
  auto* box = new QVBoxLayout;
  box->setContentsMargins(kMargin, 0, kMargin, 0);
  box->addWidget(title_);
  box->addLayout(row);
  box->addWidget(message_);
  column.addLayout(box);
  connect(keys_, &QKeySequenceEdit::keySequenceChanged, this, &ShortcutPanel::take);
  connect(remove_, &QPushButton::clicked, this, [this] {
    tell({});
    if (const QAction* command = list_->command()) tell(OwnShortcuts::shared().set(*command, {}));
  });
  connect(reset_, &QPushButton::clicked, this, [this] {
    tell({});
    if (const QAction* command = list_->command()) tell(OwnShortcuts::shared().reset(window_, *command));
  });
}

void ShortcutPanel::addButtons(QVBoxLayout& column) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->setContentsMargins(kMargin, 0, kMargin, 0);
  resetAll_ = buttons->addButton(localizedString("All De&faults"), QDialogButtonBox::ResetRole);
  resetAll_->setObjectName(QStringLiteral("shortcutResetAll"));
  resetAll_->setAutoDefault(false);
  column.addWidget(buttons);
  connect(resetAll_, &QPushButton::clicked, this, [this] { tell(OwnShortcuts::shared().resetAll()); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
}

void ShortcutPanel::showCommand() {
  const QAction* command = list_->command();
  const bool possible = command && OwnShortcuts::mayChange(*command);
  title_->setText(possible
                      ? localizedString("Keys of “%1”:").arg(plainTitle(command->text()))
                      : localizedString("Choose a command, and then press the keys that it shall have."));
  for (QWidget* each : std::initializer_list<QWidget*>{keys_, remove_, reset_}) each->setEnabled(possible);
  remove_->setEnabled(possible && !command->shortcuts().isEmpty());
  reset_->setEnabled(possible && OwnShortcuts::shared().isOwn(*command));
  resetAll_->setEnabled(OwnShortcuts::shared().hasAny());
  const QSignalBlocker quiet(keys_);
  keys_->setKeySequence(possible ? command->shortcut() : QKeySequence());
}

void ShortcutPanel::take(const QKeySequence& typed) {
  QAction* command = list_->command();
  if (!command || typed.isEmpty()) return;
  const QKeySequence keys(typed[0]);  // commands are called with one chord
  tell(OwnShortcuts::complaintAbout(window_, *command, keys));
  if (message_->text().isEmpty()) tell(OwnShortcuts::shared().set(*command, {keys}));
  showCommand();
}

}  // namespace

void showShortcutPanel(QWidget& parent, const QMenuBar& menus) {
  auto* panel = parent.findChild<QDialog*>(kName, Qt::FindDirectChildrenOnly);
  if (!panel) panel = new ShortcutPanel(parent, menus);
  panel->show();
  panel->raise();
  panel->activateWindow();
}

}  // namespace norvex
