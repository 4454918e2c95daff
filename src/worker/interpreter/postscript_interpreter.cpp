#include "worker/interpreter/postscript_interpreter.h"

#include <ghostscript/iapi.h>
#include <ghostscript/ierrors.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

#include "worker/engine/distiller_arguments.h"

namespace norvex {
namespace {

/// Memory that the C library gets at once while Ghostscript initialises, and as it does it otherwise.
constexpr int kInitialPad = 16 << 20, kUsualPad = 128 << 10;
constexpr int kFatal = 1;
constexpr int kOtherError = 255;

// The steps of gs at its start with the device, done now and in its order: the paper and those
// options of the command line that are parameters of the device; the halftone and what goes with it; the
// default settings as far as no option replaces them; the state of graphics. The parameters are asked for
// last because setpagedevice goes by those that it has seen before.
constexpr char kSelectDevice[] =
    " finddevice dup getdeviceprops counttomark 2 idiv\n"
    "{ systemdict 2 index known { pop dup load counttomark 2 roll } { pop pop } ifelse } repeat\n"
    "/PageSize currentpagedevice /PageSize get counttomark 2 add -1 roll putdeviceprops setdevice\n"
    ".setdefaultscreen\n";
// The form of its pixels can only be told to a device that is not in use.
constexpr char kSelectCanvas[] =
    "%!\n/display finddevice mark /DisplayFormat 16#10884 counttomark 2 add -1 roll putdeviceprops "
    "setdevice\n"
    ".setdefaultscreen\n";
constexpr char kSetDistiller[] =
    ".distillersettings /default get dup length .distillercommon length add dict begin\n"
    ".distillercommon 2 { { systemdict 2 index known { pop pop } { def } ifelse } forall } repeat\n"
    "currentdict end setdistillerparams\n";
// Colours of a page in RGB are told by profiles, whose tables are kept once they are made.
constexpr char kReadyColours[] =
    "gsave mark /PageSize [ 9 9 ] /bitrgb finddevice putdeviceprops setdevice newpath fill grestore";
constexpr char kBeginPage[] = "newpath fill currentpagedevice pop\n";

/// Where in its own files stands what is read of them.
bool canStartWithoutPdf() {
  constexpr long kKnown = 10000;
  gsapi_revision_t library = {};
  return ::gsapi_revision(&library, sizeof library) == 0 && library.revision == kKnown;
}

}  // namespace

std::vector<QByteArray> PostScriptInterpreter::initialArguments() const {
  std::vector<QByteArray> arguments{"gs"};
  if (canStartWithoutPdf() && !setUp_.withoutPdf.isEmpty()) arguments.push_back("-I" + setUp_.withoutPdf);
  arguments.insert(arguments.end(), engine::distillerOptions.begin(), engine::distillerOptions.end());
  // It draws nothing, and what every text of a PDF needs is there nevertheless.
  arguments.emplace_back("-sDEVICE=nullpage");
  if (setUp_.isForMany) arguments.emplace_back("-dProvideUnicode");
  const auto& streams = engine::distillerStreams;
  arguments.insert(arguments.end(), streams.begin(), streams.end() - 1);
  if (setUp_.isForMany) arguments.insert(arguments.end(), {"-c", kReadyColours, "-f"});
  arguments.emplace_back(streams.back());
  return arguments;
}

int PostScriptInterpreter::run() {
  ::mallopt(M_TOP_PAD, kInitialPad);
  if (::gsapi_new_instance(&instance_, this) < 0) return kFatal;
  ::gsapi_set_arg_encoding(instance_, GS_ARG_ENCODING_UTF8);
  ::gsapi_set_stdio(instance_, readProgram, writeMessage, writeMessage);
  canvas_.serve(instance_);
  std::vector<QByteArray> arguments = initialArguments();
  std::vector<char*> pointers;
  for (QByteArray& argument : arguments) pointers.push_back(argument.data());
  int code = ::gsapi_init_with_args(instance_, int(pointers.size()), pointers.data());
  const int closing = closeDevice();
  if (code == 0 || code == gs_error_Quit) code = closing;
  if (code == 0 || code == gs_error_Info || code == gs_error_Quit) return 0;
  return code == gs_error_Fatal ? kFatal : kOtherError;
}

// A program that has completed its PDF (distill.cpp) leaves nothing to do. The end of the interpreter would
// do it, but first look through all memory for what nobody uses, which takes a third of a small document's
// time.
int PostScriptInterpreter::closeDevice() {
  char name[16] = {};
  const int size = ::gsapi_get_param(instance_, "OutputFile", nullptr, gs_spt_string);
  if (size > 0 && size < int(sizeof name) &&
      ::gsapi_get_param(instance_, "OutputFile", name, gs_spt_string) > 0 &&
      std::strcmp(name, engine::distilledOutput) == 0)
    return 0;
  return ::gsapi_exit(instance_);
}

// Whoever asks for the first byte of the program is initialised: this is where documents are waited for.
int PostScriptInterpreter::readProgram(void* self, char* buffer, int size) {
  auto* interpreter = static_cast<PostScriptInterpreter*>(self);
  if (!std::exchange(interpreter->forked_, true)) interpreter->beginDocument();
  QByteArray& unread = interpreter->unread_;
  if (!unread.isEmpty()) {
    const auto piece = std::min<qsizetype>(size, unread.size());
    std::memcpy(buffer, unread.constData(), size_t(piece));
    unread.remove(0, piece);
    return int(piece);
  }
  ssize_t got = -1;
  do {
    got = ::read(STDIN_FILENO, buffer, size_t(size));
  } while (got < 0 && errno == EINTR);
  return int(got);
}

// The program's own words and the interpreter's; of the initialisation nobody wants to hear.
int PostScriptInterpreter::writeMessage(void* self, const char* text, int size) {
  if (!static_cast<PostScriptInterpreter*>(self)->forked_) return size;
  for (int written = 0; written < size;) {
    const ssize_t put = ::write(STDERR_FILENO, text + written, size_t(size - written));
    if (put < 0 && errno != EINTR) break;
    written += int(std::max<ssize_t>(put, 0));
  }
  return size;
}

void PostScriptInterpreter::beginDocument() {
  ::mallopt(M_TOP_PAD, kUsualPad);
  const Task task = serve_();
  const QByteArray ownFiles = task.scratchFolder + "/*";
  for (const int right : {GS_PERMIT_FILE_READING, GS_PERMIT_FILE_WRITING, GS_PERMIT_FILE_CONTROL})
    ::gsapi_add_control_path(instance_, right, ownFiles.constData());
  // It begins as PostScript does: otherwise what follows would be taken for a PDF where it holds one.
  const QByteArray device = QByteArray("%!\n/") + engine::deviceName(task.device) + kSelectDevice;
  unread_ = (task.device == InterpreterDevice::Canvas ? QByteArray(kSelectCanvas) : device) +
            (task.device == InterpreterDevice::Pdf ? kSetDistiller : "") + kBeginPage;
}

}  // namespace norvex
