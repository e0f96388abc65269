// The exported entry points and the C++ interface around the engine.
#include <cstdlib>
#include <cstring>

#include "frame/converter.h"
#include "frame/messages.h"
#include "quillmesh/convert.h"
#include "quillmesh/desktop.hpp"
#include "quillmesh/quillmesh.hpp"

namespace quillmesh {

UserInterface::~UserInterface() = default;

bool ReadingPastEnd(int stage, int position, int lineCount) { return stage == 1 && position > lineCount; }

std::string OutputPathFor(const std::string& inputPath) {
  std::size_t dot = inputPath.rfind('.');
  return (dot == std::string::npos ? inputPath : inputPath.substr(0, dot)) + ".tvt";
}

int ConvertPath(const std::string& inputPath, UserInterface& ui) {
  CS2kConverter converter(ui);
  return converter.Run(inputPath);
}

int Convert(UserInterface& ui, std::string& outputPath) {
  std::string inputPath;
  if (!ui.ChooseInputFile(LoadStrEntry("IDS_S2KV8_FILE_FILTER"), inputPath)) return 1;
  int code = ConvertPath(inputPath, ui);
  if (code != 0) return code;
  outputPath = OutputPathFor(inputPath);
  return 0;
}

}  // namespace quillmesh

extern "C" {

void QmTextFree(QmText* text) {
  if (!text) return;
  std::free(text->text);
  text->text = nullptr;
  text->length = 0;
}

int ConvertFile2(QmText* outputPath) {
  std::string path;
  int code = quillmesh::Convert(*quillmesh::ChooseUserInterface(), path);
  if (code != 0) return code;
  char* copy = static_cast<char*>(std::malloc(path.size() + 1));
  if (!copy) return -1;
  std::memcpy(copy, path.c_str(), path.size() + 1);
  QmTextFree(outputPath);
  outputPath->text = copy;
  outputPath->length = path.size();
  return 0;
}

int ConvertFile(void) {
  QmText path = QM_TEXT_INIT;
  int code = ConvertFile2(&path);
  QmTextFree(&path);
  return code;
}

}  // extern "C"
