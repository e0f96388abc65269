// The TVT file: its header, the writer steps in their order, its end mark.
#include <cstdarg>
#include <cstdio>

#include "frame/converter.h"
#include "s2k/keys.h"

int CS2kConverter::WriteText(const char* format, ...) {
  char small[512];
  va_list args;
  va_start(args, format);
  int size = std::vsnprintf(small, sizeof small, format, args);
  va_end(args);
  if (size < 0) return 1;
  if (static_cast<std::size_t>(size) < sizeof small) {
    outputFile.Write(std::string_view(small, static_cast<std::size_t>(size)));
    return 1;
  }
  std::string text(static_cast<std::size_t>(size), '\0');
  va_start(args, format);
  std::vsnprintf(text.data(), text.size() + 1, format, args);
  va_end(args);
  outputFile.Write(text);
  return 1;
}

int CS2kConverter::WriteOutput(const std::string& inputPath) {
  ui_.SetStage(3);
  std::string outputPath = quillmesh::OutputPathFor(inputPath);
  try {
    outputFile.Create(outputPath, inputFile.Handle());
    WriteText(";---------------------------------------------------------------------------\n");
    WriteText(";  TARVO/Frame Text(TVT) File.\n");
    WriteText(";  %s\n", outputPath.c_str());
    WriteText(";---------------------------------------------------------------------------\n\n");
    int code = WriteCommands();
    if (code != 0) {
      outputFile.Close();
      return code;
    }
    WriteText("*ENDDATA");
    outputFile.Close();
  } catch (const TvtFileError& error) {
    outputFile.Abandon();
    ui_.ShowMessage(error.text, "");
  }
  return 0;
}

// Writer steps; the bar advances to each step's number. Element numbers exist
// only once *ELEMENT is written, so the commands that print them follow it.
int CS2kConverter::WriteCommands() {
  using Step = int (CS2kConverter::*)();
  static constexpr Step kSteps[37] = {
      &CS2kConverter::WriteVersionAndUnits,  // 1 *VERSION, *UNIT
      &CS2kConverter::WriteStructType,       // 2 *STRUCTYPE
      &CS2kConverter::WriteNodes,            // 3 *NODE
      &CS2kConverter::WriteLocalAxes,        // 4 *LOCALAXIS
      &CS2kConverter::WriteElements,         // 5 *ELEMENT
      &CS2kConverter::WriteMaterials,        // 6 *MATERIAL
      &CS2kConverter::WriteSections,         // 7 *SECTION
      &CS2kConverter::WriteSectionScales,    // 8 *SECT-SCALE
      &CS2kConverter::WriteThicknesses,      // 9 *THICKNESS
      &CS2kConverter::WriteConstraints,      // 10 *CONSTRAINT
      &CS2kConverter::WriteSprings,          // 11 *SPRING
      &CS2kConverter::WriteGeneralSprings,   // 12 *GSPRING, *GSPRTYPE
      nullptr,                               // 13 *STLDCASE and the load blocks of each case
      &CS2kConverter::WriteNodalMasses,      // 14 *NODALMASS
      &CS2kConverter::WriteOffsets,          // 15 *OFFSET
      &CS2kConverter::WriteFrameReleases,    // 16 *FRAME-RLS
      nullptr,                               // 17 *INIFORCE
      nullptr,                               // 18 *ELASTICLINK
      nullptr,                               // 19 *NL-PROP
      nullptr,                               // 20 *NL-LINK
      &CS2kConverter::WriteRigidLinks,       // 21 *RIGIDLINK
      nullptr,                               // 22 *LINELANE
      nullptr,                               // 23 *VEHICLE
      nullptr,                               // 24 *VCLASS
      nullptr,                               // 25 *MVLDCASE
      nullptr,                               // 26 *SFUNCTION
      nullptr,                               // 27 *SPLDCASE
      nullptr,                               // 28 *LOADTOMASS
      nullptr,                               // 29 *ANAL-CTRL
      nullptr,                               // 30 spectrum control
      nullptr,                               // 31 *EIGEN-CTRL
      nullptr,                               // 32 *BUCK-CTRL
      nullptr,                               // 33 *TFUNCTION
      nullptr,                               // 34 *THLDCASE
      nullptr,                               // 35 *GROUND-ACC
      nullptr,                               // 36 *DYN-SLOAD
      nullptr,                               // 37 *LOADCOMB
  };
  ui_.SetRange(37);
  for (int i = 0; i < 37; ++i) {
    if (kSteps[i] && !(this->*kSteps[i])()) return -1;
    if (!ui_.Advance(i + 1)) return 1;
  }
  return 0;
}

int CS2kConverter::WriteVersionAndUnits() {
  WriteText("%s\n%s\n\n", "*VERSION", "5.8.1");
  WriteText("%s\n", "*UNIT    ; Unit System");
  WriteText("; FORCE, LENGTH\n");
  std::string force = sourceModel->ForceUnit;
  std::string length = sourceModel->LengthUnit;
  UpperCase(force);
  UpperCase(length);
  if (force == "TON") force = "TONF";
  if (force == "LB") force = "LBF";
  WriteText("\t%s, %5s\n\n", force.c_str(), length.c_str());
  return 1;
}
