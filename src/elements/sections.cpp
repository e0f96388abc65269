// Frame sections to *SECTION and *SECT-SCALE.
#include "frame/converter.h"

int CS2kConverter::ConvertFrameSections() { return 1; }
int CS2kConverter::WriteSections() { return 1; }
int CS2kConverter::WriteSectionScales() { return 1; }
std::string CS2kConverter::MapSectionShape(const std::string&, int& BLT) { BLT = 2; return ""; }
int CS2kConverter::FindFrameSectionKey(const std::string&) { return 0; }
int CS2kConverter::FindSectionOffsetCode(const std::string&, std::string&) { return 1; }
int CS2kConverter::ConvertNonprismaticSection(const S2kFrameSectionRow&, TvtSectionRec&) { return 1; }
