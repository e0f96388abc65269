// Several engines at once, under ThreadSanitizer: every thread converts its
// own copy of each model, then the command line's batch converts another
// copy four files at a time; each run must give the bytes and the messages
// of a run alone, and the sanitizer must see no race.
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "batch.h"
#include "quillmesh/quillmesh.hpp"
#include "quillmesh/terminal.hpp"

namespace fs = std::filesystem;

namespace {

// The terminal's interface, so that its shared Ctrl-C and Esc state is
// taken and given back by every thread, with the messages kept.
class KeepingUserInterface : public quillmesh::TerminalUserInterface {
 public:
  explicit KeepingUserInterface(const std::string& input)
      : TerminalUserInterface(Options(input)) {}
  void ShowMessage(const std::string& text, const std::string& key) override { kept += key + ":" + text + "\n"; }
  std::string kept;

 private:
  static quillmesh::TerminalOptions Options(const std::string& input) {
    quillmesh::TerminalOptions options;
    options.inputPath = input;
    options.progress = false;
    return options;
  }
};

std::string Slurp(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// The code, the messages and the TVT bytes of one conversion, its output
// path made the same for every copy.
std::string Outcome(const fs::path& input, int code, const std::string& messages) {
  std::ostringstream result;
  result << "code " << code << "\n" << messages;
  fs::path output = quillmesh::OutputPathFor(input.string());
  if (fs::exists(output)) result << Slurp(output);
  // The header names the output path, which differs from copy to copy.
  std::string text = result.str();
  for (std::size_t at; (at = text.find(output.string())) != std::string::npos;)
    text.replace(at, output.string().size(), "@OUTPUT@");
  return text;
}

std::string Convert(const fs::path& input) {
  KeepingUserInterface ui(input.string());
  std::string outputPath;
  int code = quillmesh::Convert(ui, outputPath);
  return Outcome(input, code, ui.kept);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: parallel_runs WORK_FOLDER MODEL.s2k...\n");
    return 2;
  }
  const fs::path work = argv[1];
  const std::vector<fs::path> models(argv + 2, argv + argc);
  constexpr int kThreads = 4;
  fs::remove_all(work);
  const int batchFolder = kThreads + 1;
  for (int t = 0; t <= batchFolder; ++t) {
    fs::create_directories(work / std::to_string(t));
    for (std::size_t i = 0; i < models.size(); ++i)
      fs::copy_file(models[i], work / std::to_string(t) / (std::to_string(i) + ".s2k"));
  }

  // Folder 0 is converted alone first: the reference.
  std::vector<std::string> expected;
  for (std::size_t i = 0; i < models.size(); ++i)
    expected.push_back(Convert(work / "0" / (std::to_string(i) + ".s2k")));

  std::atomic<int> mismatches{0};
  std::vector<std::thread> threads;
  for (int t = 1; t <= kThreads; ++t)
    threads.emplace_back([&, t] {
      quillmesh::BindMessageLibrary();  // already bound: a no-op that reads the binding
      for (std::size_t k = 0; k < models.size(); ++k) {
        std::size_t i = (k + static_cast<std::size_t>(t) * 7) % models.size();  // each thread its own order
        if (Convert(work / std::to_string(t) / (std::to_string(i) + ".s2k")) != expected[i]) {
          std::fprintf(stderr, "thread %d: %s converts differently\n", t, models[i].c_str());
          ++mismatches;
        }
        if (std::string(quillmesh::LoadMessage("IDS_S2KV8_FILE_FILTER")).empty()) ++mismatches;
      }
    });
  for (std::thread& thread : threads) thread.join();

  cli::Options options;
  options.jobs = 4;
  options.progress = false;
  for (std::size_t i = 0; i < models.size(); ++i)
    options.files.push_back((work / std::to_string(batchFolder) / (std::to_string(i) + ".s2k")).string());
  std::vector<cli::FileResult> results = cli::ConvertAll(options);
  for (std::size_t i = 0; i < models.size(); ++i) {
    std::string messages;
    for (const cli::MessageRecord& message : results[i].messages) messages += message.key + ":" + message.text + "\n";
    if (Outcome(results[i].input, results[i].code, messages) != expected[i]) {
      std::fprintf(stderr, "batch: %s converts differently\n", models[i].c_str());
      ++mismatches;
    }
  }
  std::printf("%zu models, %d threads, %d mismatches\n", models.size(), kThreads, mismatches.load());
  return mismatches == 0 ? 0 : 1;
}
