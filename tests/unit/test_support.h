// Helpers shared by the tests: temporary folders, files, conversions.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "recording_ui.h"

std::string ReadFile(const std::filesystem::path& path);
void WriteFile(const std::filesystem::path& path, const std::string& bytes);

/// A fresh folder under the system's temporary folder, removed on exit.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

/// A test name made of a file's stem: letters and digits, '_' for the rest.
std::string CaseName(const std::filesystem::path& path);

/// Converts \p s2k written to model.s2k in \p folder; \returns the code.
int ConvertText(const TempFolder& folder, const std::string& s2k, RecordingUserInterface& ui);

/// What a run of the command line gave.
struct CliRun {
  int exitCode = -1;      ///< -1 when it had to be killed
  std::string out, err;
  double seconds = 0;
};

/// Runs the quillmesh command line with \p args in \p folder, killing it
/// after \p limitSeconds.
/// With \p interruptWhen, sends it SIGINT once its stderr holds that text.
CliRun RunCli(const std::vector<std::string>& args, const std::filesystem::path& folder, double limitSeconds = 5,
              const std::string& interruptWhen = "");
