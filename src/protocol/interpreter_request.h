// How a document's process asks norvex-postscript for an interpreter of its own.
#pragma once

#include <QDeadlineTimer>

#include "base/cancel_token.h"
#include "base/file_descriptor.h"
#include "base/result.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// What becomes of the pages of a program.
enum class InterpreterDevice : char {
  Pdf = 'p',
  Plates = 's',  ///< a Photoshop file of CMYK and spot channels
  Canvas = 'c',  ///< pixels that can be looked at while they are drawn: CanvasHeader
};

/// How the output for a Canvas begins. Its pixels, white where nothing is drawn, begin at canvasPixels: rows
/// from the top, each pixel a byte of blue, green, red and one without a meaning.
struct CanvasHeader {
  int width = 0, height = 0, bytesPerRow = 0;  ///< 0: nothing can be looked at yet
};
inline constexpr qint64 canvasPixels = 4096;

/// The descriptors of one interpreter. Nothing in it names a file: whoever asks has read a document already.
struct InterpreterRequest {
  PictureLimits limits;
  InterpreterDevice device = InterpreterDevice::Pdf;
  FileDescriptor program;   ///< the PostScript, to be read to its end
  FileDescriptor output;    ///< where the pages go
  FileDescriptor messages;  ///< where the program and the interpreter speak to
  /// A pipe for kInterpreterBegun and then, once the interpreter has ended, an InterpreterOutcome. When
  /// nobody reads it any more, the interpreter is killed.
  FileDescriptor outcome;
  int asker = 0;  ///< the process that sent it, as the kernel tells whoever takes it; 0: unknown
};

/// Written as soon as there is an interpreter. A pipe that ends without it: nobody took the request.
inline constexpr char kInterpreterBegun = 'b';
/// As waitpid() gives it. SIGXFSZ as the signal: its temporary files were too many or too large.
using InterpreterOutcome = int;
/// The exit code of an interpreter that could not be confined and therefore has read nothing.
inline constexpr int kInterpreterNotConfined = 125;

/// A connection at which requests are made, by any number of processes at once, and the end that takes them.
/// The latter is at its end when nobody has the former any more. Fails with Died.
struct InterpreterConnection {
  FileDescriptor asking, taking;
};
[[nodiscard]] Result<InterpreterConnection> makeInterpreterConnection();

/// Sends copies of the descriptors; waits for nobody, but where others keep too many descriptors under way,
/// until those have arrived: some seconds. Fails with Died when nobody listens or too many wait, and with
/// Cancelled.
[[nodiscard]] Result<void> sendInterpreterRequest(int asking, const InterpreterRequest& request,
                                                  const CancelToken& cancel = {},
                                                  QDeadlineTimer until = QDeadlineTimer(5000));

/// A pipe through which whoever takes requests tells that it is able to serve them. It is not the connection
/// itself, which everybody who asks can read from. No document may get an end of it. Fails with Died.
struct ReadinessPipe {
  FileDescriptor hearing, telling;
};
[[nodiscard]] Result<ReadinessPipe> makeReadinessPipe();
/// Tells it, once.
void tellInterpretersReady(FileDescriptor telling);
/// True if that has been told, also when whoever told it has gone. Takes the news: it is given once.
[[nodiscard]] bool hadInterpretersReady(int hearing);

/// Waits for the next request. Fails with Died when there will be none any more, with Protocol when it is no
/// request (others may follow).
[[nodiscard]] Result<InterpreterRequest> receiveInterpreterRequest(int taking);

}  // namespace norvex
