#include "worker/confinement/own_namespaces.h"

#include <sched.h>

namespace norvex {

OwnNamespaces enterOwnNamespaces() {
  return {::unshare(CLONE_NEWNET) == 0, ::unshare(CLONE_NEWIPC) == 0};
}

}  // namespace norvex
