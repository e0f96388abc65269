// A program of a library user: converts a model through the installed
// library and says whether the catalogue was found.
#include <cstdio>
#include <cstring>
#include <string>

#include <quillmesh/quillmesh.hpp>
#include <quillmesh/version.h>

namespace {

class CountingUserInterface : public quillmesh::UserInterface {
 public:
  int messages = 0;
  bool ChooseInputFile(const std::string&, std::string&) override { return false; }
  void ShowMessage(const std::string&, const std::string&) override { ++messages; }
  void OpenProgress(int) override {}
  void SetStage(int) override {}
  void SetRange(int) override {}
  bool Advance(int) override { return true; }
  void CloseProgress() override {}
};

}  // namespace

// consumer MODEL.s2k: prints "VERSION catalogue|fallback CODE MESSAGES".
int main(int argc, char** argv) {
  if (argc != 2) return 2;
  if (std::strcmp(quillmesh::Version(), QUILLMESH_VERSION) != 0) return 3;
  const char* filter = quillmesh::LoadMessage("IDS_S2KV8_FILE_FILTER");
  bool bound = std::strstr(filter, "*.s2k") != nullptr;
  CountingUserInterface ui;
  int code = quillmesh::ConvertPath(argv[1], ui);
  std::printf("%s %s %d %d\n", quillmesh::Version(), bound ? "catalogue" : "fallback", code, ui.messages);
  return 0;
}
