// Arbitrary bytes through the whole engine: the bytes are written as an s2k
// file, read, converted and written as a TVT file beside it. The user
// interface answers every box at once and stops a run after a bounded number
// of advances, so that an input that would read for ever ends.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "quillmesh/quillmesh.hpp"

namespace {

constexpr int kMaxAdvances = 20000;

class BoundedUserInterface : public quillmesh::UserInterface {
 public:
  bool ChooseInputFile(const std::string&, std::string&) override { return false; }
  void ShowMessage(const std::string& text, const std::string& key) override {
    // Every text is read as a user would: touch all of it.
    for (char c : text) sum_ += static_cast<unsigned char>(c);
    for (char c : key) sum_ += static_cast<unsigned char>(c);
  }
  void OpenProgress(int lineCount) override {
    lineCount_ = lineCount;
    advances_ = 0;
  }
  void SetStage(int stage) override { stage_ = stage; }
  void SetRange(int) override {}
  bool Advance(int position) override {
    return ++advances_ <= kMaxAdvances && !quillmesh::ReadingPastEnd(stage_, position, lineCount_);
  }
  void CloseProgress() override {}

 private:
  int lineCount_ = 0, stage_ = 0, advances_ = 0;
  unsigned sum_ = 0;
};

const std::filesystem::path& WorkFolder() {
  static const std::filesystem::path folder = [] {
    std::filesystem::path base = std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
    std::filesystem::path path = base / ("quillmesh-fuzz-" + std::to_string(getpid()));
    std::filesystem::create_directories(path);
    std::atexit([] {
      std::error_code ignored;
      std::filesystem::remove_all(WorkFolder(), ignored);
    });
    return path;
  }();
  return folder;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::filesystem::path input = WorkFolder() / "model.s2k";
  const std::filesystem::path output = WorkFolder() / "model.tvt";
  std::FILE* file = std::fopen(input.c_str(), "wb");
  if (!file) return 0;
  if (size > 0) std::fwrite(data, 1, size, file);
  std::fclose(file);

  BoundedUserInterface ui;
  int code = quillmesh::ConvertPath(input.string(), ui);
  if (code != 0 && code != 1 && code != -1) __builtin_trap();

  std::error_code ignored;
  std::filesystem::remove(output, ignored);
  return 0;
}
