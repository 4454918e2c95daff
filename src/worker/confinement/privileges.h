// Rights beyond plain access: those of a user's number, or of a namespace of one's own.
#pragma once

namespace norvex {

/// Gives up every privilege for ever, also those inside a namespace of our own and those of the superuser:
/// nothing can be mounted, and nothing read but as its owner. No program that is started gets any. False: it
/// could not.
[[nodiscard]] bool dropPrivileges();

}  // namespace norvex
