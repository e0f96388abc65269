// The run of one conversion: reading, converting, writing.
#include "frame/converter.h"

#include <cstdio>

#include "frame/messages.h"

CS2kConverter::CS2kConverter(quillmesh::UserInterface& ui)
    : ui_(ui), sourceModel(std::make_unique<CS2kModel>()),
      targetModel(std::make_unique<CTvtModel>(*sourceModel)) {
  firstWords = {"ACTIVE",  "ANALYSIS", "AREA",        "AUTO",       "BRIDGE",      "CASE",    "COMBINATION",
                "CONNECTIVITY", "CONSTRAINT", "COORDINATE", "DATABASE", "FRAME",   "FUNCTION", "GENERAL",
                "GENERALIZED",  "GRID",       "GROUPS",     "HINGE",    "JOINT",   "LINK",     "LOAD",
                "MASSES",       "MATERIAL",   "NAMED",      "OVERWRITES", "PREFERENCES", "PROGRAM", "PROJECT",
                "REBAR",        "SECTION",    "SOLID",      "SUMMARY",  "OPTIONS"};
}

CS2kConverter::~CS2kConverter() = default;

void CS2kConverter::ShowMessage(const char* key) { ui_.ShowMessage(LoadStrEntry(key), key); }

void CS2kConverter::ShowMessage(const char* key, const std::string& argument) {
  const char* format = LoadStrEntry(key);
  int size = std::snprintf(nullptr, 0, format, argument.c_str());
  std::string text(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
  if (size > 0) std::snprintf(text.data(), text.size() + 1, format, argument.c_str());
  ui_.ShowMessage(text, key);
}

void CS2kConverter::ResetConversion() {
  geometryFlags = {};
  massFlags = {};
  propertyFlags = {};
  elementFlags = {};
  springFlags = {};
  ElementsRenumbered = 0;
  ElementNamesNumeric = 1;
  solidNodeCount = 8;
  targetModel->jointsKeepNumbers = 1;
  elementNumberMap.Reset(10001);
}

int CS2kConverter::Run(const std::string& inputPath) {
  ui_.OpenProgress(S2kInputFile::CountLines(inputPath));
  if (!inputFile.Open(inputPath)) {
    ui_.ShowMessage("Cannot open input file!", "");
    return -1;
  }
  ShowMessage("IDS_S2KV8_Export_must_be_executed");
  ResetConversion();
  sourceModel->Reset();
  int code = ReadTables();
  if (code == 0) code = ConvertModel();
  if (code == 0) code = WriteOutput(inputPath);
  inputFile.Close();
  ui_.CloseProgress();
  return code;
}

// Conversion steps; the bar advances to each step's number. Frames refer to
// nodes, and load cases and sections come after the elements that use them.
int CS2kConverter::ConvertModel() {
  using Step = int (CS2kConverter::*)();
  static constexpr Step kSteps[19] = {
      &CS2kConverter::ConvertJointStep,     // 1 joints
      &CS2kConverter::ConvertFrameStep,     // 2 frames
      nullptr,                              // 3 links
      &CS2kConverter::ConvertAreaStep,      // 4 areas
      &CS2kConverter::ConvertSolidStep,     // 5 solids
      nullptr,                              // 6 load cases
      &CS2kConverter::ConvertMaterials,     // 7 materials
      &CS2kConverter::ConvertFrameSections, // 8 frame sections, nonprismatic sections, scale factors
      &CS2kConverter::ConvertAreaSections,  // 9 area sections to thickness
      nullptr,                              // 10 lanes
      nullptr,                              // 11 vehicles of table 162
      nullptr,                              // 12 vehicles of tables 163 and 164
      nullptr,                              // 13 vehicle classes
      nullptr,                              // 14 moving load cases
      nullptr,                              // 15 spectrum functions
      nullptr,                              // 16 spectrum load cases
      &CS2kConverter::ConvertAnalysisStep,  // 17 analysis cases, mass source, *STRUCTYPE
      nullptr,                              // 18 *ANAL-CTRL
      nullptr,                              // 19 load combinations
  };
  ui_.SetStage(2);
  ui_.SetRange(20);
  targetModel->Reset();
  for (int i = 0; i < 19; ++i) {
    if (kSteps[i] && !(this->*kSteps[i])()) return -1;
    if (!ui_.Advance(i + 1)) return 1;
  }
  return 0;
}

// Joints first: every later step names them. The joint number map comes
// last, once all joints are known.
int CS2kConverter::ConvertJointStep() {
  return ConvertJoints() && ConvertRestraints() && ConvertJointLocalAxes() && ConvertJointSprings() &&
         ConvertCoupledSprings() && ConvertJointMasses() && ConvertConstraints() &&
         (targetModel->jointsKeepNumbers || BuildJointNumberMap());
}

int CS2kConverter::ConvertFrameStep() {
  return ConvertFrames() && ConvertFrameReleases() && ConvertFrameOffsets() && ConvertLineSprings(1) &&
         ConvertFrameMasses();
}

int CS2kConverter::ConvertAreaStep() { return ConvertAreas() && ConvertAreaMasses() && ConvertLineSprings(2); }

int CS2kConverter::ConvertSolidStep() { return ConvertSolids(); }
int CS2kConverter::ConvertAnalysisStep() { return ConvertStructType(); }
