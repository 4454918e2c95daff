// norvex-postscript SCRATCH_ROOT [pdf] [lone]: the interpreter of PostScript, ready before there is a
// document. The only program that links libgs. Requests are taken at descriptor 3; see
// protocol/interpreter_request.h. That they are is told once at descriptor 4; 5 is /proc where it is started
// within a view of the files.
#include <sys/auxv.h>
#include <sys/prctl.h>
#include <sys/socket.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "protocol/control_descriptor.h"
#include "worker/confinement/process_files.h"
#include "worker/confinement/sandbox.h"
#include "worker/engine/distiller_arguments.h"
#include "worker/interpreter/interpreter_server.h"
#include "worker/interpreter/postscript_interpreter.h"
#include "worker/interpreter_program.h"

namespace {

void setEnvironment(const std::string& scratchRoot) {
  ::clearenv();
  for (const char* variable : norvex::engine::distillerEnvironment) ::putenv(const_cast<char*>(variable));
  // Temporary files of everybody would be everybody's: each document gets the right to its own folder alone.
  ::setenv("TMPDIR", (scratchRoot + "/none").c_str(), 1);
}

/// Beside the program, as whoever started it calls it: within a view of the files there is no /proc to ask.
std::string partOfInterpreter(const char* name) {
  const auto* program = reinterpret_cast<const char*>(::getauxval(AT_EXECFN));
  return program == nullptr ? "" : std::filesystem::path(program).parent_path() / name;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace norvex;
  if (argc < 2 || !hasControlSocket()) {
    std::fputs("norvex-postscript: is started by norvex, not by hand\n", stderr);
    return 2;
  }
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  std::signal(SIGPIPE, SIG_IGN);
  setEnvironment(argv[1]);
  adoptProcessFiles(interpreterProcessFiles);
  prepareSandboxes(argv[1], {}, true);
  const auto isTold = [&](std::string_view word) {
    return std::any_of(argv + 2, argv + argc, [&](const char* each) { return each == word; });
  };
  PostScriptInterpreter::SetUp setUp;
  if (!isTold(interpreterReadsPdf)) setUp.withoutPdf = partOfInterpreter("without-pdf").c_str();
  setUp.isForMany = !isTold(interpreterIsForOne);
  InterpreterServer server(FileDescriptor(controlDescriptor), FileDescriptor(interpreterReadiness), argv[1]);
  PostScriptInterpreter interpreter([&server] { return server.serve(); }, setUp);
  const int code = interpreter.run();
  std::fflush(nullptr);
  ::_exit(code);  // the memory of a document is given back as a whole
}
