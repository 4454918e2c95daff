// Which layers of the confinement there are.
#pragma once

namespace norvex {

/// One flag a layer. Each holds without the others against every document; see SECURITY.md for what each
/// does.
struct ConfinementLayers {
  bool landlock = true;     ///< rules of the kernel about files, by path
  bool systemCalls = true;  ///< a list of permitted system calls
  bool fileView = true;     ///< a file system of its own that holds only what engines need
  /// Without enough of them everything is refused. Only where nothing of a document is parsed it may be
  /// false.
  bool required = true;

  /// True if files of the user are out of reach: the least without which no document is read. The list of
  /// system calls cannot look at paths, and the view can be left by whoever may mount.
  [[nodiscard]] bool suffice() const { return !required || landlock || (systemCalls && fileView); }
};

}  // namespace norvex
