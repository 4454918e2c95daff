#include "window/reading/text_command.h"

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QEvent>
#include <QGuiApplication>
#include <QLineF>
#include <QMenu>
#include <QPointer>
#include <QStringList>

#include <utility>

#include "base/localized_string.h"
#include "desktop/alert.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_parts.h"
#include "window/reading/late_text_marks.h"
#include "window/reading/page_letters.h"
#include "window/reading/taken_key.h"

namespace norvex {
namespace {

/// A click may tremble; points of the picture.
constexpr double kClick = 2;

/// What other programs may be asked to open for a document.
bool isOpened(const QUrl& url) {
  static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")};
  return url.isValid() && schemes.contains(url.scheme().toLower());
}

}  // namespace

TextCommand::TextCommand(WindowParts& parts, PageLetters& letters, LateTextMarks& marks, QObject* parent)
    : QObject(parent), parts_(parts), letters_(letters), marks_(marks), opener_([](const QUrl& url) {
        return QDesktopServices::openUrl(url);
      }) {}

void TextCommand::setUp(QMenu& menu, QAction* before) {
  mode_ = new QAction(localizedString("Select &Text"), this);
  mode_->setObjectName(QStringLiteral("selectTextAction"));
  mode_->setCheckable(true);
  mode_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_T);
  connect(mode_, &QAction::toggled, this, &TextCommand::setOn);
  copy_ = new QAction(localizedString("Copy Te&xt"), this);
  copy_->setObjectName(QStringLiteral("copyTextAction"));
  copy_->setShortcut(Qt::CTRL | Qt::ALT | Qt::Key_C);
  connect(copy_, &QAction::triggered, this, &TextCommand::copy);
  menu.insertAction(before, mode_);
  menu.insertAction(before, copy_);
  parts_.scrollArea()->installEventFilter(this);
  pageDidChange();
}

bool TextCommand::eventFilter(QObject* watched, QEvent* event) {
  if (!mode_->isChecked()) return QObject::eventFilter(watched, event);
  if (!selected_.isEmpty() && takesCopy(*event)) {
    if (event->type() == QEvent::KeyPress) copy();
    return true;
  }
  if (!takesKey(*event, Qt::Key_Escape)) return QObject::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress) mode_->setChecked(false);
  return true;
}

void TextCommand::setOn(bool on) {
  if (!on) {
    if (marks_.made()) marks_.made()->setSelecting(false);
    return select({});
  }
  TextMarks& marks = marks_.get();
  connect(&marks, &TextMarks::pressed, this, &TextCommand::press, Qt::UniqueConnection);
  connect(&marks, &TextMarks::dragged, this, &TextCommand::drag, Qt::UniqueConnection);
  connect(&marks, &TextMarks::released, this, &TextCommand::release, Qt::UniqueConnection);
  connect(&marks, &TextMarks::hovered, this, &TextCommand::hover, Qt::UniqueConnection);
  marks.setSelecting(true);
  letters_.want();
}

void TextCommand::pageDidChange() {
  const bool any = parts_.validateUserInterfaceItem();
  mode_->setEnabled(any);
  if (!any) mode_->setChecked(false);
  start_ = -1;
  select({});
  if (mode_->isChecked()) letters_.want();
}

void TextCommand::select(const LetterRun& run) {
  selected_ = run;
  const PageText* text = letters_.text();
  if (marks_.made())
    marks_.made()->setSelected(text && !run.isEmpty() ? placesOf(*text, run) : QList<QRectF>());
  copy_->setEnabled(text && !run.isEmpty());
}

void TextCommand::press(const QPointF& point) {
  select({});
  pressPoint_ = point;
  const PageText* text = letters_.text();
  start_ = text ? letterNear(*text, point) : -1;
}

void TextCommand::drag(const QPointF& point) {
  if (pressPoint_ && QLineF(*pressPoint_, point).length() < kClick) return;
  pressPoint_.reset();
  const PageText* text = letters_.text();
  if (text && start_ >= 0) select(runBetween(*text, start_, letterNear(*text, point)));
}

void TextCommand::release(const QPointF& point) {
  const bool clicked = std::exchange(pressPoint_, std::nullopt).has_value();
  start_ = -1;
  const PageText* text = letters_.text();
  if (!clicked || !text) return;
  if (const PageLink* link = linkAt(*text, point)) follow(PageLink(*link));
}

void TextCommand::hover(const QPointF& point) {
  const PageText* text = letters_.text();
  const PageLink* link = text ? linkAt(*text, point) : nullptr;
  marks_.get().setShape(link ? Qt::PointingHandCursor : Qt::IBeamCursor);
  marks_.get().setToolTip(link && isOpened(QUrl(link->address)) ? shownAddress(link->address) : QString());
}

QString TextCommand::shownAddress(const QString& address) {
  return QString::fromLatin1(QUrl(address).toEncoded(QUrl::FullyEncoded));
}

void TextCommand::follow(const PageLink& link) {
  if (link.address.isEmpty()) {
    emit pageChosen(link.page);
    return;
  }
  const QUrl url(link.address);
  if (!isOpened(url) || !parts_.alerts()) {
    BriefNote::tell(*parts_.scrollArea(), localizedString("Links of this kind are not followed."));
    return;
  }
  Alert alert;
  alert.style = AlertStyle::Informational;
  alert.messageText = localizedString("The picture links to this address. Open it?");
  alert.informativeText = shownAddress(link.address);
  alert.buttons = {localizedString("Open Address"), localizedString("Cancel")};
  const QPointer<TextCommand> self(this);  // the window may go while the question is on the screen
  const auto opener = opener_;
  if (parts_.alerts()->runModal(alert) != 0 || opener(url) || !self) return;
  BriefNote::tell(*parts_.scrollArea(), localizedString("No program here opens this address."));
}

QString TextCommand::selectedText() const {
  const PageText* text = letters_.text();
  return text ? text->text.mid(selected_.from, selected_.length) : QString();
}

void TextCommand::copy() {
  const QString text = selectedText();
  if (text.isEmpty()) return;
  QGuiApplication::clipboard()->setText(text);
  BriefNote::tell(*parts_.scrollArea(), localizedString("Text copied"));
}

}  // namespace norvex
