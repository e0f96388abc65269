// End offsets to *OFFSET and releases to *FRAME-RLS.
#include "frame/converter.h"

int CS2kConverter::ConvertEndOffsets() { return 1; }
int CS2kConverter::ConvertFrameReleases() { return 1; }
int CS2kConverter::WriteOffsets() { return 1; }
int CS2kConverter::WriteFrameReleases() { return 1; }
