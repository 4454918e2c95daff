// The confinement of documents on this system, told to people.
#pragma once

namespace norvex {

/// Tries each layer in a process of its own and tells on standard output what is on, what it gives and what
/// is missing here. 0, or 6 where documents would be refused.
[[nodiscard]] int tellConfinement();

}  // namespace norvex
