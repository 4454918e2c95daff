// libtiff, as libgs calls it: no TIFF file can be written.
#include "programs/stand_in.h"

NORVEX_ABSENT(TIFFCheckpointDirectory)
NORVEX_ABSENT(TIFFCleanup)
NORVEX_ABSENT(TIFFClientOpen)
NORVEX_ABSENT(TIFFClientdata)
NORVEX_ABSENT(TIFFClose)
NORVEX_ABSENT(TIFFDefaultStripSize)
NORVEX_ABSENT(TIFFFileName)
NORVEX_ABSENT(TIFFScanlineSize)
NORVEX_ABSENT(TIFFSetErrorHandler)
NORVEX_ABSENT(TIFFSetErrorHandlerExt)
NORVEX_ABSENT(TIFFSetField)
NORVEX_ABSENT(TIFFSetWarningHandler)
NORVEX_ABSENT(TIFFSetWarningHandlerExt)
NORVEX_ABSENT(TIFFSwabArrayOfShort)
NORVEX_ABSENT(TIFFWriteDirectory)
NORVEX_ABSENT(TIFFWriteScanline)
