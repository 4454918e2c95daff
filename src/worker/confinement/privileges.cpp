#include "worker/confinement/privileges.h"

#include <linux/capability.h>
#include <linux/securebits.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace norvex {

bool dropPrivileges() {
  if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return false;
  // Number 0 means nothing any more. Only who has a privilege may say so, and nobody else needs to.
  (void)::prctl(PR_SET_SECUREBITS, SECURE_ALL_BITS | SECURE_ALL_LOCKS, 0, 0, 0);
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct none[2] = {};
  return ::syscall(SYS_capset, &header, none) == 0;
}

}  // namespace norvex
