// Joint constraints to *RIGIDLINK.
#include "frame/converter.h"

int CS2kConverter::ConvertConstraints() { return 1; }
int CS2kConverter::WriteRigidLinks() { return 1; }
