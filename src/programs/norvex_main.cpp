// norvex: starts the picture process, then becomes the application. It links nothing but the C++ library:
// loading the application takes as long as loading the picture process, and this way the two go on side by
// side.
#include <dlfcn.h>

#include <cstdio>

#include "platform/picture/spawned_worker.h"
#include "programs/application_entry.h"

namespace {

/// What is only asked about the program itself needs no picture process.
bool mayNeedPictures(int argc, char** argv) {
  return argc < 2 || argv[1][0] != '-';
}

}  // namespace

int main(int argc, char** argv) {
  using namespace norvex;
  SpawnedWorker worker;
  if (mayNeedPictures(argc, argv)) worker = spawnWorker(partOfProgram("norvex-worker"));
  void* application = ::dlopen(partOfProgram("norvex-application.so").c_str(), RTLD_LAZY | RTLD_LOCAL);
  void* entry = application == nullptr ? nullptr : ::dlsym(application, kApplicationEntry);
  if (entry == nullptr) {
    std::fprintf(stderr, "norvex: the application could not be loaded (%s)\n", ::dlerror());
    return kNotLoaded;
  }
  return reinterpret_cast<ApplicationEntry*>(entry)(argc, argv, &worker);
}
