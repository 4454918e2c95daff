// Where the results of a run go: the tree of its files again, below another folder.
#pragma once

#include <QByteArray>

#include <sys/types.h>

#include <optional>

#include "base/result.h"
#include "cli/archive/names/listed_name.h"
#include "cli/arguments/arguments.h"

namespace norvex {

/// A value. For commands that write a file for each.
class OutputNames {
 public:
  /// Nothing for a run without --to.
  [[nodiscard]] static std::optional<OutputNames> of(const Arguments& arguments);

  [[nodiscard]] const QByteArray& folder() const { return folder_; }
  /// The file's place below the folder, with the extension of what is written.
  [[nodiscard]] QByteArray outputOf(const ListedName& name) const;
  /// Nothing is wrong while our folder is there and is the one that it was in the beginning: where a disk has
  /// gone, its place shall not be filled, nor the empty folder that it was mounted on. CannotWrite.
  [[nodiscard]] Result<void> checkFolder() const;
  /// Makes the folders of a result below our own, which is checked. CannotWrite.
  [[nodiscard]] Result<void> makeFoldersOf(const QByteArray& output) const;
  /// Removes a result that the caller has written since fileClock() was that. Where another folder is in the
  /// place of ours the file of that name may be another's, and stays.
  void takeBack(const QByteArray& output, qint64 since) const;

 private:
  struct Place {
    dev_t device;
    ino_t number;
    bool operator==(const Place&) const = default;
  };
  OutputNames(QByteArray folder, QByteArray extension);
  [[nodiscard]] static std::optional<Place> placeOf(const QByteArray& folder);

  QByteArray folder_;
  QByteArray extension_;        ///< empty: that of the file itself
  std::optional<Place> place_;  ///< of the folder in the beginning; nothing: it was not there
};

}  // namespace norvex
