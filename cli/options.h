// The command line's words: what to do and how.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace cli {

enum class Command { Convert, Inspect, Help, Version };

struct Options {
  Command command = Command::Convert;
  std::vector<std::string> files;
  bool messageKeys = false;
  bool progress = true;
  int jobs = 1;
  std::string reportPath;  ///< empty: no report
  bool json = false;       ///< inspect prints JSON
};

/// Reads the arguments into \p options. \returns an empty text, or what is
/// wrong with them (a usage error).
std::string ParseArguments(const std::vector<std::string>& args, Options& options);

/// The help: the forms of the command, then every option on one line.
void PrintUsage(std::FILE* out);

}  // namespace cli
