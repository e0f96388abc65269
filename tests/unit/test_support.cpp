// Helpers shared by the tests.
#include "test_support.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cctype>
#include <chrono>
#include <fstream>
#include <thread>
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

CliRun RunCli(const std::vector<std::string>& args, const std::filesystem::path& folder, double limitSeconds,
              const std::string& interruptWhen) {
  std::vector<std::string> words = {QUILLMESH_CLI};
  words.insert(words.end(), args.begin(), args.end());
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  std::string outPath = (folder / "cli.out").string(), errPath = (folder / "cli.err").string();
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  posix_spawn_file_actions_addopen(&actions, 2, errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  std::string cwd = std::filesystem::current_path().string();
  std::filesystem::current_path(folder);
  pid_t pid = 0;
  int spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ);
  std::filesystem::current_path(cwd);
  posix_spawn_file_actions_destroy(&actions);
  CliRun run;
  if (spawned != 0) return run;
  auto start = std::chrono::steady_clock::now();
  int status = 0;
  bool interrupted = interruptWhen.empty();
  for (;;) {
    if (waitpid(pid, &status, WNOHANG) == pid) break;
    if (!interrupted && ReadFile(errPath).find(interruptWhen) != std::string::npos) {
      kill(pid, SIGINT);
      interrupted = true;
    }
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (run.seconds > limitSeconds) {
      kill(pid, SIGKILL);
      waitpid(pid, &status, 0);
      status = -1;
      break;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  if (status != -1 && WIFEXITED(status)) run.exitCode = WEXITSTATUS(status);
  run.out = ReadFile(outPath);
  run.err = ReadFile(errPath);
  return run;
}

std::string CaseName(const std::filesystem::path& path) {
  std::string name = path.stem().string();
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}
