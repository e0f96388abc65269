// Areas and solids to plate and solid elements.
#include "frame/converter.h"

int CS2kConverter::ConvertAreas() { return 1; }
int CS2kConverter::ConvertSolids() { return 1; }
