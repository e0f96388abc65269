// Joint, frame and area springs to *SPRING, *GSPRING and *GSPRTYPE.
#include "frame/converter.h"

int CS2kConverter::ConvertJointSprings() { return 1; }
int CS2kConverter::ConvertCoupledSprings() { return 1; }
int CS2kConverter::ConvertFrameSprings() { return 1; }
int CS2kConverter::ConvertAreaSprings() { return 1; }
int CS2kConverter::WriteSprings() { return 1; }
int CS2kConverter::WriteGeneralSprings() { return 1; }
