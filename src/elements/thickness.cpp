// Area sections to *THICKNESS.
#include "frame/converter.h"

int CS2kConverter::ConvertAreaSections() { return 1; }
int CS2kConverter::WriteThickness() { return 1; }
