// Where the results of a run go: the tree of its files again, below another folder.
#pragma once

#include <QByteArray>

#include <optional>
#include <utility>

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
  /// Makes the folders of a result below our own. That one must be there: where a disk has gone, its place
  /// shall not be filled. CannotWrite.
  [[nodiscard]] Result<void> makeFoldersOf(const QByteArray& output) const;

 private:
  OutputNames(QByteArray folder, QByteArray extension)
      : folder_(std::move(folder)), extension_(std::move(extension)) {}
  QByteArray folder_;
  QByteArray extension_;  ///< empty: that of the file itself
};

}  // namespace norvex
