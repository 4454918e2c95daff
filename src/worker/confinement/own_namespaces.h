// Networks, and memory and queues shared by number, that are nobody else's.
#pragma once

namespace norvex {

/// The namespaces that a process and all that it forks share with nobody.
struct OwnNamespaces {
  bool network = false;   ///< there is no interface, not even an address of this machine's own
  bool messages = false;  ///< System V's memory, semaphores and queues, and POSIX' queues
};

/// Leaves those of the system, for ever, as far as it permits: for a process in a user namespace of its own
/// (enterFileView()) that has privileges there. Sockets that are open stay connected.
OwnNamespaces enterOwnNamespaces();

}  // namespace norvex
