#include "window/inspector/encoding_command.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "metadata/text_encoding.h"
#include "picture/image_rep.h"
#include "picture/localized_error.h"
#include "picture/picture_header.h"
#include "ui/controls/zy_form.h"
#include "ui/style/quiet_text.h"
#include "window/commands/window_parts.h"
#include "window/inspector/chosen_encodings.h"
#include "window/inspector/source_reading.h"
#include "window/inspector/usual_encodings.h"

namespace norvex {
namespace {

constexpr int kVisibleItems = 20;

struct GuessedRow {
  const QString& key;
  const char* title;
};

const GuessedRow kGuessed[] = {{header::Title, "Title:"},          {header::Creator, "Creator:"},
                               {header::CreationDate, "Created:"}, {header::For, "For:"},
                               {header::Copyright, "Copyright:"},  {header::Description, "Description:"}};

}  // namespace

void EncodingCommand::setUp(const EncodingControls& controls) {
  controls_ = controls;
  controls_.title->setText(localizedString("Read as:"));
  makeQuiet(*controls_.title);
  QStringList titles;
  for (const GuessedRow& row : kGuessed) titles << localizedString(row.title);
  controls_.guessForm->setTitles(titles);
  // Behind the encoding that was found, as they are read.
  QWidget* before = parts_.encodingForm()->cellAtIndex(0);
  const auto follow = [&before](QWidget* next) {
    QWidget::setTabOrder(before, next);
    before = next;
  };
  follow(controls_.popUp);
  for (int row = 0; row < controls_.guessForm->rowCount(); ++row)
    follow(controls_.guessForm->cellAtIndex(row));
  QComboBox& popUp = *controls_.popUp;
  popUp.setToolTip(localizedString("The encoding in which comments and source text are read"));
  popUp.setMaxVisibleItems(kVisibleItems);
  popUp.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  popUp.setFocusPolicy(Qt::StrongFocus);
  popUp.installEventFilter(this);
  connect(&popUp, &QComboBox::activated, this,
          [this](int index) { choose(controls_.popUp->itemData(index).toString()); });
}

void EncodingCommand::fill() {
  QComboBox& popUp = *controls_.popUp;
  if (popUp.count() > 0) return;
  popUp.addItem(localizedString("Automatic"), QString());
  popUp.insertSeparator(popUp.count());
  const QStringList& all = encodingNames();
  for (const char* usual : usualEncodings)
    if (const QString name = QString::fromLatin1(usual); all.contains(name)) popUp.addItem(name, name);
  popUp.insertSeparator(popUp.count());
  for (const QString& name : all)
    if (popUp.findData(name) < 0) popUp.addItem(name, name);
}

void EncodingCommand::show(const std::shared_ptr<NSImageRep>& imageRep, const QString& chosen,
                           const std::optional<GuessedHeader>& guess) {
  const bool hasEncoding = imageRep && imageRep->pictureKind() == PictureKind::Eps;
  ++choice_;  // what is still being read is of another picture
  imageRep_ = hasEncoding ? imageRep : nullptr;
  controls_.row->setVisible(hasEncoding);
  if (hasEncoding) fill();
  select(chosen);
  showGuess(hasEncoding ? guess : std::nullopt);
}

void EncodingCommand::select(const QString& encodingName) {
  chosen_ = encodingName;
  controls_.popUp->setCurrentIndex(controls_.popUp->findData(encodingName));
}

void EncodingCommand::choose(const QString& encodingName) {
  const int choice = ++choice_;
  const std::shared_ptr<NSImageRep> imageRep = imageRep_.lock();
  if (!imageRep || encodingName == chosen_) return;
  workInBackground(
      this,
      [source = imageRep->sourceBytes(), encodingName]() -> Result<SourceReading> {
        return readSource(source, encodingName, pictureHeader(PictureKind::Eps, source, PictureFacts()));
      },
      [this, choice, encodingName](const Result<SourceReading>& reading) {
        if (choice == choice_) take(encodingName, reading);
      });
}

void EncodingCommand::take(const QString& encodingName, const Result<SourceReading>& reading) {
  if (!reading || !reading->isValid) {
    select(chosen_);
    return tell(reading ? localizedString("The source is not valid in %1.").arg(encodingName)
                        : localizedError(reading.error()).sentence);
  }
  select(encodingName);
  if (const Document* document = parts_.document())
    rememberEncoding(document->fileURL().toLocalFile(), encodingName);
  showGuess(reading->guess);
  emit reread(reading->header, reading->text);
}

void EncodingCommand::tell(const QString& sentence) {
  controls_.note->setText(sentence);
  controls_.box->setVisible(!sentence.isEmpty());
}

void EncodingCommand::showGuess(const std::optional<GuessedHeader>& guess) {
  tell(guess ? localizedString("A guess, as nothing says how the source is encoded. Read as %1:")
                   .arg(guess->encodingName)
             : QString());
  controls_.guessForm->setVisible(guess.has_value());
  for (int row = 0; row < controls_.guessForm->rowCount(); ++row) {
    const QString text = guess ? guess->values.value(kGuessed[row].key).toString() : QString();
    controls_.guessForm->setText(row, text);
    controls_.guessForm->setRowVisible(row, !text.isEmpty());
  }
}

bool EncodingCommand::eventFilter(QObject* watched, QEvent* event) {
  // The wheel scrolls the inspector; it must not choose on the way.
  if (event->type() == QEvent::Wheel && !controls_.popUp->hasFocus()) {
    event->ignore();
    return true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
