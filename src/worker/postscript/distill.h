// PostScript to PDF, once for each document: the one place where a document's program is run.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QStringList>

#include "base/result.h"
#include "protocol/interpreter_request.h"
#include "worker/engine/engine.h"

namespace norvex::engine {

class ProgramWatch;

struct Distilled {
  QByteArray pdf;        ///< one page, media box [0 0 width height] of the picture's box
  QStringList warnings;  ///< one plain sentence each
  /// Why the program stopped before it had finished the page, as takeProgramStop() finds it; the page then
  /// shows what it had drawn. Empty: the page is finished.
  QString stoppedBy;

  /// stoppedBy, where there is one, and the warnings.
  [[nodiscard]] QStringList remarks() const {
    return stoppedBy.isEmpty() ? warnings : QStringList(stoppedBy) + warnings;
  }
};

/// Where the pages of a program go.
struct PageDevice {
  InterpreterDevice device = InterpreterDevice::Pdf;
  QByteArray parameters = {};  ///< entries for setpagedevice besides the page's size
};

/// What a device has written of a program.
struct DrawnProgram {
  QByteArray output;
  QStringList warnings;  ///< as Distilled has them
  QString stoppedBy;     ///< likewise; the page may then be without a mark, for which there is no word here
};

/// Runs `postScript` as distill() does and gives what the device has written. Fails as distill(), but for
/// what it finds in the PDF. `watch`: knows what the program has drawn when it takes long.
[[nodiscard]] Result<DrawnProgram> drawProgram(const QByteArray& postScript, const QRectF& box,
                                               const PageDevice& device, EngineContext& context,
                                               ProgramWatch* watch = nullptr);

/// Runs `postScript` (no binary header) and gives what it draws inside `box` (default user space, points) as
/// a page of exactly that size with the box's lower-left corner at its origin. The document cannot change the
/// page; a missing showpage is made up for; only the first page counts. Colours, fonts and images are kept as
/// they are. Uses up context.warmGhostscript. Fails with NotParsable and the interpreter's error in one
/// sentence when an error stops the program before it has drawn anything, with Limit when that is a lack of
/// memory, and as GhostscriptChild::run().
[[nodiscard]] Result<Distilled> distill(const QByteArray& postScript, const QRectF& box,
                                        EngineContext& context, ProgramWatch* watch = nullptr);

}  // namespace norvex::engine
