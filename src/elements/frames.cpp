// Frames to *ELEMENT, and the element map.
#include "frame/converter.h"

int CS2kConverter::ConvertFrames() { return 1; }
int CS2kConverter::WriteElements() { return 1; }
