// Joint local axes to *LOCALAXIS, and the rotation helpers.
#include "frame/converter.h"

const TvtJointRotationRec* TvtGeometryTables::FindJointRotation(const std::string&) const { return nullptr; }
int TvtGeometryTables::StoreJointRotation(const TvtJointRotationRec&, bool) { return 1; }
int CS2kConverter::ConvertJointLocalAxes() { return 1; }
int CS2kConverter::WriteLocalAxes() { return 1; }
void CS2kConverter::RotationFromAngles(const std::string&, double, double, double) {}
int CS2kConverter::HasJointLocalAxes(const std::string&) const { return 0; }
int CS2kConverter::LocalToGlobal(const std::string&, double&, double&, double&) const { return 1; }
int CS2kConverter::GlobalToLocal(const std::string&, double&, double&, double&) const { return 1; }
void CS2kConverter::ApplyAdvancedLocalAxes(TvtLocalAxisRec&) {}
