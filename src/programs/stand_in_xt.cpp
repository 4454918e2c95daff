// libXt, as libgs calls it: there is no display.
#include "programs/stand_in.h"

NORVEX_ABSENT(XtAppCreateShell)
NORVEX_ABSENT(XtAppSetFallbackResources)
NORVEX_ABSENT(XtCloseDisplay)
NORVEX_ABSENT(XtCreateApplicationContext)
NORVEX_ABSENT(XtDestroyApplicationContext)
NORVEX_ABSENT(XtDestroyWidget)
NORVEX_ABSENT(XtGetApplicationResources)
NORVEX_ABSENT(XtOpenDisplay)
NORVEX_ABSENT(XtToolkitInitialize)

// What the names of resources are offsets into, and a class that is only ever handed back.
extern "C" [[gnu::visibility("default")]] const char XtStrings[8192];
extern "C" [[gnu::visibility("default")]] const char XtShellStrings[8192];
extern "C" [[gnu::visibility("default")]] const void* const applicationShellWidgetClass;
extern "C" const char XtStrings[8192] = {};
extern "C" const char XtShellStrings[8192] = {};
extern "C" const void* const applicationShellWidgetClass = nullptr;
