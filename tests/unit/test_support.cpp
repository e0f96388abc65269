// Helpers shared by the tests.
#include "test_support.h"

#include <fstream>
#include <random>
#include <sstream>

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
}

TempFolder::TempFolder() {
  std::random_device random;
  path_ = std::filesystem::temp_directory_path() / ("quillmesh-test-" + std::to_string(random()));
  std::filesystem::create_directories(path_);
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all, std::filesystem::perm_options::add, ignored);
  std::filesystem::remove_all(path_, ignored);
}

int ConvertText(const TempFolder& folder, const std::string& s2k, RecordingUserInterface& ui) {
  WriteFile(folder / "model.s2k", s2k);
  return quillmesh::ConvertPath((folder / "model.s2k").string(), ui);
}
