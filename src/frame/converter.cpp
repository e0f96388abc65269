// The run of one conversion: reading, converting, writing.
#include "frame/converter.h"

#include <cstdio>

#include "frame/messages.h"
#include "frame/steps.h"

CS2kConverter::CS2kConverter(quillmesh::UserInterface& ui)
    : ui_(ui) {
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
  ui_.ShowFormattedMessage(text, key, argument);
}

void CS2kConverter::ResetConversion() {
  subjects_.clear();
}

int CS2kConverter::Run(const std::string& inputPath, int lastStage) {
  ui_.OpenProgress(S2kInputFile::CountLines(inputPath));
  if (!inputFile.Open(inputPath)) {
    ui_.ShowMessage("Cannot open input file!", "");
    return -1;
  }
  ShowMessage("IDS_S2KV8_Export_must_be_executed");
  ResetConversion();
  int code = ReadTables();
  if (code == 0 && lastStage >= 2) code = ConvertModel();
  if (code == 0 && lastStage >= 3) code = WriteOutput(inputPath);
  inputFile.Close();
  ui_.CloseProgress();
  return code;
}

int CS2kConverter::RunSteps(std::span<const SRunStep> steps, int count) {
  std::size_t row = 0;
  for (int number = 1; number <= count; ++number) {
    for (; row < steps.size() && steps[row].number == number; ++row)
      if (!steps[row].run(*this)) return -1;
    if (!ui_.Advance(number)) return 1;
  }
  return 0;
}

int CS2kConverter::ConvertModel() {
  ui_.SetStage(2);
  ui_.SetRange(kConversionStepCount + 1);
  return RunSteps(ConversionSteps(), kConversionStepCount);
}
