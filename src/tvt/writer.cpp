// The TVT file: its header, the writer steps in their order, its end mark.
#include <cstdarg>
#include <cstdio>

#include "frame/converter.h"
#include "frame/steps.h"
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

int CS2kConverter::WriteCommands() {
  ui_.SetRange(kWriterStepCount);
  return RunSteps(WriterSteps(), kWriterStepCount);
}
