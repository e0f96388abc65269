// Joint, frame and area masses to *NODALMASS.
#include "frame/converter.h"

int CS2kConverter::ConvertJointMasses() { return 1; }
int CS2kConverter::ConvertFrameMasses() { return 1; }
int CS2kConverter::ConvertAreaMasses() { return 1; }
int CS2kConverter::WriteNodalMasses() { return 1; }
