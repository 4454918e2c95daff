// The choice of the encoding in which the source of an EPS picture is read.
#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

#include "base/result.h"
#include "metadata/guessed_header.h"
#include "metadata/header_dictionary.h"

class QComboBox;
class QLabel;
class QWidget;

namespace norvex {

class NSImageRep;
class WindowParts;
class ZyForm;
struct SourceReading;

/// The inspector's controls for it; borrowed.
struct EncodingControls {
  QWidget* row = nullptr;       ///< shown for pictures whose source has an encoding
  QLabel* title = nullptr;      ///< of the list
  QComboBox* popUp = nullptr;   ///< "Automatic", the usual encodings, and all others
  QWidget* box = nullptr;       ///< around the next two; hidden when there is nothing to tell
  QLabel* note = nullptr;       ///< the source is not valid in what was chosen, or the title of a guess
  ZyForm* guessForm = nullptr;  ///< what a source in no encoding seems to say
};

/// A choice reads header and source text again, beside the window, and whenever the file is opened from then
/// on. What is written, copied or printed is made of the file itself, whatever is chosen here. The parts
/// outlive it. Main thread.
class EncodingCommand final : public QObject {
  Q_OBJECT
 public:
  explicit EncodingCommand(WindowParts& parts) : parts_(parts) {}

  /// Once the window is loaded.
  void setUp(const EncodingControls& controls);
  /// A picture is shown (null: none) whose source is read in the encoding of that name (empty: in the one
  /// that was found).
  void show(const std::shared_ptr<NSImageRep>& imageRep, const QString& chosen,
            const std::optional<GuessedHeader>& guess);

 signals:
  /// Another encoding was chosen: how the source reads in it.
  void reread(const norvex::HeaderDictionary& header, const QString& sourceText);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void fill();
  void choose(const QString& encodingName);
  void take(const QString& encodingName, const Result<SourceReading>& reading);
  void select(const QString& encodingName);
  void showGuess(const std::optional<GuessedHeader>& guess);
  void tell(const QString& sentence);

  WindowParts& parts_;
  EncodingControls controls_;
  std::weak_ptr<NSImageRep> imageRep_;  ///< gone: nothing with an encoding is shown
  QString chosen_;
  int choice_ = 0;  ///< counts: the source of a large file is read beside the window
};

}  // namespace norvex
