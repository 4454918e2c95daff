// PostScriptInterpreter: Ghostscript as a library, initialised once and then forked for each document.
#pragma once

#include <QByteArray>

#include <functional>
#include <vector>

#include "protocol/interpreter_request.h"
#include "worker/interpreter/canvas_device.h"

namespace norvex {

/// The only code that libgs is linked for. Initialised as the gs that is started for a document is, but with
/// a device that writes nothing; it becomes the device of that gs when there is a document. A program and
/// what it changes are seen in its own process only. One in a process; single-threaded.
class PostScriptInterpreter {
 public:
  struct Task {
    QByteArray scratchFolder;  ///< for its temporary files
    InterpreterDevice device = InterpreterDevice::Pdf;
  };
  /// Called when everything is initialised. It forks as often as it likes and returns in the forked processes
  /// only; the original process ends within it. A returned process has standard input for the program,
  /// standard output for the pages, standard error for messages.
  using Serve = std::function<Task()>;
  struct SetUp {
    /// A folder with files that are read in place of those with which Ghostscript reads PDF; where they do
    /// not fit its version, it starts with its own. Empty: it is to read PDF, too.
    QByteArray withoutPdf;
    /// Makes ready what every text of a PDF needs and the profiles of colours, which takes longer than a
    /// document without text.
    bool isForMany = true;
  };

  PostScriptInterpreter(Serve serve, SetUp setUp) : serve_(std::move(serve)), setUp_(std::move(setUp)) {}
  PostScriptInterpreter(const PostScriptInterpreter&) = delete;
  PostScriptInterpreter& operator=(const PostScriptInterpreter&) = delete;
  ~PostScriptInterpreter() = default;

  /// Gives the exit code that gs would have: of a forked process when its document is done, of the original
  /// one when the interpreter cannot be initialised. The memory is left for the end of the process, which
  /// must flush the C library's streams.
  int run();

 private:
  static int readProgram(void* self, char* buffer, int size);
  static int writeMessage(void* self, const char* text, int size);
  [[nodiscard]] std::vector<QByteArray> initialArguments() const;
  void beginDocument();
  /// Completes the output. Gives gs's code, as run() needs it.
  int closeDevice();
  Serve serve_;
  SetUp setUp_;
  CanvasDevice canvas_;
  void* instance_ = nullptr;
  bool forked_ = false;
  QByteArray unread_;  ///< of what is run before the document's own program
};

}  // namespace norvex
