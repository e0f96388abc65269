// Materials to *MATERIAL.
#include "frame/converter.h"

int CS2kConverter::ConvertMaterials() { return 1; }
int CS2kConverter::WriteMaterials() { return 1; }
