// The titles the reader knows: first words in their order, and each
// family's member words, numbered from its base id, in the order of the
// titles; the order of the words is what decides.
#pragma once

#include <vector>
#include <string_view>

struct S2kTableFamily {
  std::string_view firstWord;
  int baseId;  ///< the id of a family with one table, or of its first member
  std::vector<std::string_view> members;  ///< empty for one table
};

inline const S2kTableFamily kTableFamilies[] = {
    {"ACTIVE", 101, {}},
    {"ANALYSIS", 102, {}},
    {"AREA", 111, {"MASS", "MESH", "GRAVITY", "PORE", "ROTATE", "SURFACE", "TEMPERATURE", "UNIFORM TO FRAME", "UNIFORM", "WIND", "TYPICAL", "ADVANCED", "MATERIAL", "REFERENCE", "SECTION ASSIGNMENTS", "SECTION PROPERTIES", "SPRING", "STIFFNESS"}},
    {"AUTO", 131, {"SEISMIC - BOCA96", "SEISMIC - IBC2000", "SEISMIC - NBCC95", "SEISMIC - NEHRP97", "SEISMIC - UBC94", "SEISMIC - UBC97", "SEISMIC - UBC97 ISOLATED", "SEISMIC - USER COEFFICIENT", "SEISMIC - USER LOADS", "SEISMIC ECCENTRICITY OVERRIDES", "SEISMIC LOADS TO GROUPS", "SEISMIC LOADS TO HORIZONTAL DIAPHRAGMS", "SEISMIC LOADS TO JOINTS", "WIND - ASCE7-88", "WIND - ASCE7-95", "WIND - ASCE7-98", "WIND - BOCA96", "WIND - BS6399-95", "WIND - NBCC95", "WIND - UBC94", "WIND - UBC97", "WIND - USER", "WIND EXPOSURE FOR HORIZONTAL DIAPHRAGMS", "WIND LOADS TO GROUPS", "WIND LOADS TO HORIZONTAL DIAPHRAGMS", "WIND LOADS TO JOINTS"}},
    {"BRIDGE", 161, {"Bridge Loads 1", "Bridge Loads 2", "Bridge Loads 3", "Bridge Loads 4", "Bridge Loads 5", "Bridge Loads 6"}},
    {"CASE", 171, {"BUCKLING 1", "BUCKLING 2", "DIRECT HISTORY 1", "DIRECT HISTORY 2", "DIRECT HISTORY 3", "DIRECT HISTORY 4", "DIRECT HISTORY 5", "MODAL 1", "MODAL 2", "MODAL 3", "MODAL HISTORY 1", "MODAL HISTORY 2", "MODAL HISTORY 3", "MODAL HISTORY 4", "MODAL HISTORY 5", "MODAL HISTORY 6", "MOVING LOAD 1", "MOVING LOAD 2", "MOVING LOAD 3", "SPECTRUM 1", "SPECTRUM 2", "SPECTRUM 3", "SPECTRUM 4", "SPECTRUM 5", "STATIC 1", "STATIC 2", "STATIC 3", "STATIC 4", "STATE 1", "STATE 2"}},
    {"COMBINATION", 103, {}},
    {"CONNECTIVITY", 201, {"AREA", "FRAME", "LINK", "SOLID"}},
    {"CONSTRAINT", 211, {"BEAM", "BODY", "DIAPHRAGM", "EQUAL", "LINE", "LOCAL", "PLATE", "ROD", "WELD"}},
    {"COORDINATE", 104, {}},
    {"DATABASE", 221, {"DOCUMENTATION", "FIELD", "FORMAT", "TABLE"}},
    {"FRAME", 231, {"MASS", "CABLE", "DESIGN", "INSERTION", "DISTRIBUTED", "GRAVITY", "POINT", "LOADS - TEMPERATURE", "TYPICAL", "ADVANCED", "MATERIAL TEMPERATURES", "NL HINGE", "OFFSET", "STATION", "P-DELTA", "PATTERNS", "MULTIPLIERS", "MODIFIERS", "REFERENCE TEMPERATURES", "ASSIGNMENTS 1 - GENERAL", "FIXITY", "SECTION ASSIGNMENTS", "PROPERTIES 1 - GENERAL", "COLUMN", "BEAM", "SELECT", "NONPRISMATIC", "SPRING", "SUBDIVISION", "TENSION"}},
    {"FUNCTION", 271, {"PLOT FUNCTIONS", "BOCA96", "EUROCODE8", "SPECTRUM - FROM FILE", "IBC2000", "NBCC95", "NEHRP97", "NZS4203", "UBC94", "UBC97", "SPECTRUM - USER", "COSINE", "HISTORY - FROM FILE", "RAMP", "SAWTOOTH", "SINE", "TRIANGULAR", "HISTORY - USER PERIODIC", "HISTORY - USER"}},
    {"GENERAL", 105, {}},
    {"GENERALIZED", 301, {"Translational", "Rotational"}},
    {"GRID", 106, {}},
    {"GROUPS", 311, {"1", "2", "3"}},
    {"HINGE", 321, {"1", "2", "3", "4", "5", "6", "7"}},
    {"JOINT", 331, {"Mass", "Constraint", "Coordinates", "Force", "Ground", "Typical", "Advanced", "Panel", "Pattern Assignments", "Definitions", "Restraint", "Uncoupled", "Spring Assignments 2 - Coupled"}},
    {"LINK", 351, {"Gravity", "Typical", "Advanced", "01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "Property"}},
    {"LOAD", 107, {}},
    {"MASSES", 371, {"1", "2"}},
    {"MATERIAL", 381, {"1", "2", "3", "4", "5", "6"}},
    {"NAMED", 391, {"Results 1 - General", "Selections", "Element", "Model", "Nonlinear", "Traces 1 - General", "Vertical", "Spectrum 1 - General", "Joints", "Damping", "Freq"}},
    {"OVERWRITES", 411, {"AA-ASD 2000", "AA-LRFD 2000", "AASHTO Concrete 97", "ACI 318-99", "BS8110 89", "BS8110 97", "CSA-A233-94", "EUROCODE 2-1992", "Indian IS 456-2000", "Italian DM 14-2-92", "Mexican RCDF 2001", "NZS 3101-95", "Concrete Design - UBC97", "AASHTO Steel 97", "AISC-ASD89", "AISC-LRFD93", "API RP2A-LRFD 97", "API RP2A-WSD2000", "ASCE 10-97", "BS5950 2000", "BS5950 90", "CISC 95", "EUROCODE 3-1993", "Italian UNI 10011", "UBC97-ASD", "UBC97-LRFD"}},
    {"PREFERENCES", 441, {"AA-ASD 2000", "AA-LRFD 2000", "AASHTO Concrete 97", "ACI 318-99", "BS8110 89", "BS8110 97", "CSA-A233-94", "EUROCODE 2-1992", "Indian IS 456-2000", "Italian DM 14-2-92", "Mexican RCDF 2001", "NZS 3101-95", "Concrete Design - UBC97", "DIMENSIONAL", "AASHTO Steel 97", "AISC-ASD89", "AISC-LRFD93", "API RP2A-LRFD 97", "API RP2A-WSD2000", "ASCE 10-97", "BS5950 2000", "BS5950 90", "CISC 95", "EUROCODE 3-1993", "Italian UNI 10011", "UBC97-ASD", "UBC97-LRFD"}},
    {"PROGRAM", 108, {}},
    {"PROJECT", 109, {}},
    {"REBAR", 110, {}},
    {"SECTION", 471, {"1", "2"}},
    {"SOLID", 481, {"Mesh", "Gravity", "Pore", "Surface", "- Temperature", "Typical", "Advanced", "Material", "Property Assignments", "Definitions", "Temperatures", "Spring Assignments"}},
    {"SUMMARY", 501, {"Area", "Frame", "Joint", "Link", "Solid"}},
    {"OPTIONS", 600, {}},
};

/// The tables that only warn: their message, once per table met.
struct S2kWarningTable {
  int tableId;
  const char* key;
};

inline constexpr S2kWarningTable kWarningTables[] = {
    {112, "IDS_S2KV8_AREA_AtMesh_Not_Convert"},
    {114, "IDS_S2KV8_AREA_PrPrsr_Not_Convert"},
    {121, "IDS_S2KV8_AREA_Local_Not_Convert"},
    {128, "IDS_S2KV8_AREA_Stif_Not_Convert"},
    {131, "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {132, "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {134, "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {135, "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {137, "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {144, "IDS_S2KV8_WIND_Data_Not_Convert"},
    {145, "IDS_S2KV8_WIND_Data_Not_Convert"},
    {147, "IDS_S2KV8_WIND_Data_Not_Convert"},
    {148, "IDS_S2KV8_WIND_Data_Not_Convert"},
    {150, "IDS_S2KV8_WIND_Data_Not_Convert"},
    {483, "IDS_S2KV8_SOLD_PrPrsr_Not_Convert"},
    {484, "IDS_S2KV8_SOLD_SurfP_Not_Convert"},
    {486, "IDS_S2KV8_SOLD_Local_Not_Convert"},
    {492, "IDS_S2KV8_SOLD_Spr_Not_Convert"},
};
