// Joint restraints to *CONSTRAINT.
#include "frame/converter.h"

int CS2kConverter::ConvertRestraints() { return 1; }
int CS2kConverter::WriteConstraints() { return 1; }
