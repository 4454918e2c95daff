// The files below a folder, found while they are worked on.
#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <vector>

#include "base/cancel_token.h"
#include "cli/archive/names/listed_name.h"
#include "cli/archive/names/name_filter.h"

namespace norvex {

/// See NameSource. Only the folders on the way down are open; names come in the order in which the file
/// system has them. Nothing is followed out of the tree: links, also to folders, are passed over, and so are
/// pipes, sockets and devices. A folder that cannot be read, or that holds itself, is a failure.
class TreeSource final : public NameSource {
 public:
  /// `results`: a folder that is passed over with all that is in it when it lies in the tree (what a run
  /// writes is not its input); empty: there is none.
  TreeSource(QByteArray root, NameFilter filter, const QByteArray& results, const CancelToken& cancel);
  ~TreeSource() override;
  TreeSource(const TreeSource&) = delete;
  TreeSource& operator=(const TreeSource&) = delete;

  std::optional<Listed> next() override;

 private:
  struct Folder {
    DIR* stream = nullptr;
    QByteArray below;  ///< path from the root; empty: it is the root
    dev_t device = 0;
    ino_t inode = 0;
  };

  std::optional<Listed> enter(const QByteArray& below, int descriptor);
  std::optional<Listed> look(const dirent& entry);
  [[nodiscard]] QByteArray pathOf(const QByteArray& below) const;

  const QByteArray root_;
  const NameFilter filter_;
  const CancelToken cancel_;
  dev_t resultsDevice_ = 0;
  ino_t resultsInode_ = 0;  ///< 0: there is no such folder
  bool begun_ = false;
  std::vector<Folder> way_;
};

}  // namespace norvex
