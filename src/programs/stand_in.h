// Stand-ins for libraries that libgs is linked with for devices to which no page is drawn here: windows of
// X11, printers of CUPS, TIFF files. Half of all the libraries that an interpreter would load come with them
// (Kerberos, TLS, D-Bus), a fifth of the time that it takes to start, and nothing of it is missed in a
// process that reads documents. A function of such a library fails, as it does where there is no display and
// no printer.
#pragma once

/// One that gives nothing, whatever it is called with.
#define NORVEX_ABSENT(function)                                     \
  extern "C" [[gnu::visibility("default")]] const void* function(); \
  extern "C" const void* function() {                               \
    return nullptr;                                                 \
  }
