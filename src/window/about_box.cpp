#include "window/about_box.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

#include <chrono>
#include <memory>
#include <utility>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "base/sentence.h"
#include "picture/localized_error.h"
#include "ui/panels/centred_window.h"
#include "ui/panels/modal_dialog.h"
#include "ui/panels/panel_body.h"

namespace norvex {
namespace {

constexpr std::chrono::milliseconds kGrace(500);
constexpr int kWidth = 520;  // pixels
constexpr double kNameScale = 1.4;

ConfinementWords& confinementWords() {
  static ConfinementWords words;
  return words;
}

QString description() {
  return localizedString(
             "Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.") +
         QStringLiteral("\n\n") +
         localizedString(
             "Free software under the GNU General Public License, version 3 or later. The interpreter "
             "of PostScript is under the GNU Affero General Public License, version 3 or later.");
}

/// Each line is a paragraph of sentences.
QString localizedConfinement(const QString& lines) {
  QStringList paragraphs;
  for (const QString& line : lines.split(u'\n')) {
    QString paragraph;
    for (const QString& sentence : line.split(QStringLiteral(". "))) {
      const QString told = localizedSentence(withoutFullStop(sentence));
      paragraph +=
          (paragraph.isEmpty() || paragraph.endsWith(u'\u3002') ? QString() : QStringLiteral(" ")) + told;
    }
    paragraphs << paragraph;
  }
  return paragraphs.join(QStringLiteral("\n\n"));
}

QLabel* makeText(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

/// As high as its texts, scrolled where the screen is lower.
class AboutDialog final : public QDialog {
 public:
  explicit AboutDialog(QWidget* parent) : QDialog(parent) {
    setWindowTitle(localizedString("About Norvex"));
    auto* contents = new QWidget(this);
    auto* row = new QHBoxLayout(contents);
    row->setSpacing(16);
    auto* icon = new QLabel(contents);
    icon->setPixmap(QApplication::windowIcon().pixmap(QSize(64, 64), devicePixelRatioF()));
    row->addWidget(icon, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    column->setSpacing(12);
    row->addLayout(column, 1);
    auto* name = makeText(QStringLiteral("Norvex %1").arg(QStringLiteral(NORVEX_VERSION)), contents);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * kNameScale);
    large.setWeight(QFont::DemiBold);
    name->setFont(large);
    column->addWidget(name);
    text_ = makeText(description(), contents);
    text_->setObjectName(QStringLiteral("aboutText"));
    column->addWidget(text_);
    column->addStretch();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    body_ = fillPanel(*this, contents, buttons);
    fit();
  }

  void tell(const QString& confinement) {
    text_->setText(description() + QStringLiteral("\n\n") +
                   localizedString("How the documents that it opens are confined:") + QStringLiteral("\n\n") +
                   localizedConfinement(confinement));
    fit();
  }

 private:
  void fit() {
    body_->updateGeometry();  // it would hear of another text later
    const int wide = sizeForTexts(*this, QSize(kWidth, 0)).width();
    resize(fittingScreen(*this, QSize(wide, layout()->totalHeightForWidth(wide))));
  }

  QLabel* text_ = nullptr;
  PanelBody* body_ = nullptr;
};

/// Asks on another thread: a program is started for it. A box that grows would jump, so it waits a moment.
void addConfinement(AboutDialog& box) {
  if (!confinementWords()) return;
  const auto answer = std::make_shared<QString>();  // of the thread, until it is done
  const auto show = [&box, answer] {
    if (!answer->isEmpty()) box.tell(*answer);
  };
  const BackgroundWork asking = workInBackground(
      &box, [answer, words = confinementWords()] { *answer = words().trimmed(); }, show);
  if (asking.waitFor(kGrace)) show();
}

}  // namespace

void setConfinementWords(ConfinementWords words) {
  confinementWords() = std::move(words);
}

void showAboutBox(QWidget& parent) {
  ModalDialog<AboutDialog> about(&parent);
  addConfinement(*about);
  (void)about.isAnswered();
}

}  // namespace norvex
