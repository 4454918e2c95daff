// norvex: starts the picture process, then becomes the application. It links nothing but the C++ library:
// loading the application takes as long as loading the picture process, and this way the two go on side by
// side.
#include <dlfcn.h>

#include <cstdio>
#include <string_view>

#include "platform/picture/spawned_worker.h"
#include "programs/application_entry.h"
#include "programs/expected_pictures.h"

namespace {

/// What is only asked about the program itself needs no picture process.
bool mayNeedPictures(int argc, char** argv) {
  return argc < 2 || argv[1][0] != '-';
}

/// The lightest part that can do what is asked for; each of them tells of every mistake.
const char* partFor(int argc, char** argv) {
  const std::string_view first = argc > 1 ? argv[1] : "";
  for (const char* command : {"convert", "info", "preview", "source", "--version", "--help"})
    if (first == command) return "norvex-commands.so";
  return "norvex-application.so";
}

}  // namespace

int main(int argc, char** argv) {
  using namespace norvex;
  SpawnedWorker worker;
  if (mayNeedPictures(argc, argv))
    worker = spawnWorker(partOfProgram("norvex-worker"), expectedNeeds(argc, argv));
  void* application = ::dlopen(partOfProgram(partFor(argc, argv)).c_str(), RTLD_LAZY | RTLD_LOCAL);
  void* entry = application == nullptr ? nullptr : ::dlsym(application, kApplicationEntry);
  if (entry == nullptr) {
    std::fprintf(stderr, "norvex: the application could not be loaded (%s)\n", ::dlerror());
    return kNotLoaded;
  }
  return reinterpret_cast<ApplicationEntry*>(entry)(argc, argv, &worker);
}
