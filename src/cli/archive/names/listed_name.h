// A name that a run over an archive goes through. Names are bytes here, whatever they may say.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <variant>

namespace norvex {

/// A file to work on.
struct ListedName {
  QByteArray path;   ///< as it is opened
  QByteArray below;  ///< its place below the folder of the results: "sub/a.eps", without "." and ".."
};

/// Something that is not worked on.
struct PassedOver {
  QByteArray path;
  QString reason;  ///< a plain sentence
  bool isFailure =
      false;  ///< it should have been done (an unreadable folder), and not just left alone (a link)
};

using Listed = std::variant<ListedName, PassedOver>;

/// The seam before lists and trees: names one after the other, so that a million of them take no memory. One
/// thread uses it.
class NameSource {
 public:
  virtual ~NameSource() = default;
  /// Nothing at the end, and when the run was cancelled. May wait for whoever writes the list.
  [[nodiscard]] virtual std::optional<Listed> next() = 0;
  /// True if next() would wait.
  [[nodiscard]] virtual bool wouldWait() { return false; }
};

/// `folder` and `name` with one slash between them.
[[nodiscard]] inline QByteArray pathBelow(const QByteArray& folder, const QByteArray& name) {
  if (folder.isEmpty()) return name;
  return folder.endsWith('/') ? folder + name : folder + '/' + name;
}

}  // namespace norvex
