// libcups, as libgs calls it: there is no printer.
#include "programs/stand_in.h"

NORVEX_ABSENT(cupsRasterClose)
NORVEX_ABSENT(cupsRasterOpen)
NORVEX_ABSENT(cupsRasterWriteHeader2)
NORVEX_ABSENT(cupsRasterWritePixels)
NORVEX_ABSENT(ppdFindAttr)
NORVEX_ABSENT(ppdOpenFile)
