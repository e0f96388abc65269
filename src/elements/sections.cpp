// Frame sections to *SECTION and *SECT-SCALE.
#include "frame/converter.h"

int CS2kConverter::ConvertFrameSections() { return 1; }
int CS2kConverter::WriteSections() { return 1; }
int CS2kConverter::WriteSectionScales() { return 1; }
