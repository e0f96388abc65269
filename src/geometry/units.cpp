// Units (table 108), the coordinate system (table 104), gravity and temperature.
#include "frame/converter.h"

int CS2kConverter::ParseCoordinateSystem() { return 1; }
int CS2kConverter::ParseProgramControl() { return 1; }
double CS2kConverter::GravityInModelUnits() const { return 9.806; }
double CS2kConverter::ToCelsius(double) const { return 0; }
