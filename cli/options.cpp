// The options, described once: the parser and the help both read this table.
#include "options.h"

#include <cerrno>
#include <cstdlib>

namespace cli {
namespace {

struct OptionRow {
  const char* shortName;  ///< "" when there is none
  const char* longName;
  const char* argument;   ///< "" for a flag
  const char* help;
  /// Takes the option, with its argument when it has one. \returns an error.
  std::string (*apply)(const std::string& argument, Options& options);
};

std::string ParseJobs(const std::string& text, Options& options) {
  errno = 0;
  char* end = nullptr;
  long jobs = std::strtol(text.c_str(), &end, 10);
  if (text.empty() || *end != '\0' || errno != 0 || jobs < 1 || jobs > 256)
    return "-j needs a number of files to convert at a time, from 1 to 256, not '" + text + "'";
  options.jobs = static_cast<int>(jobs);
  return "";
}

// A flag that sets a member of the options to a fixed value.
template <auto Member, auto Value>
std::string Set(const std::string&, Options& options) {
  options.*Member = Value;
  return "";
}

std::string SetReport(const std::string& path, Options& options) {
  if (path.empty()) return "--report needs a file name";
  options.reportPath = path;
  return "";
}

constexpr OptionRow kOptions[] = {
    {"-j", "--jobs", "N", "convert N files at a time, each with its own engine (default 1)", ParseJobs},
    {"", "--report", "FILE.json", "write one JSON report of the whole run to FILE.json", SetReport},
    {"", "--json", "", "inspect: print the tables as one JSON document", Set<&Options::json, true>},
    {"", "--message-keys", "", "print the catalogue key behind each message", Set<&Options::messageKeys, true>},
    {"", "--no-progress", "", "no progress display, even on a terminal", Set<&Options::progress, false>},
    {"-h", "--help", "", "show this help", Set<&Options::command, Command::Help>},
    {"-V", "--version", "", "show the version", Set<&Options::command, Command::Version>},
};

// The option that \p arg names, and its argument when glued to it
// ("-j4", "--jobs=4").
const OptionRow* Find(const std::string& arg, std::string& glued, bool& hasGlued) {
  hasGlued = false;
  for (const OptionRow& option : kOptions) {
    std::string longName = option.longName;
    std::string shortName = option.shortName;
    if (arg == longName || (!shortName.empty() && arg == shortName)) return &option;
    if (*option.argument) {
      if (arg.rfind(longName + "=", 0) == 0) {
        glued = arg.substr(longName.size() + 1);
        hasGlued = true;
        return &option;
      }
      if (!shortName.empty() && arg.size() > shortName.size() && arg.rfind(shortName, 0) == 0) {
        glued = arg.substr(shortName.size());
        hasGlued = true;
        return &option;
      }
    }
  }
  return nullptr;
}

}  // namespace

std::string ParseArguments(const std::vector<std::string>& args, Options& options) {
  bool optionsDone = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (!optionsDone && arg == "--") {
      optionsDone = true;
      continue;
    }
    if (optionsDone || arg.size() < 2 || arg[0] != '-') {
      if (!optionsDone && arg == "inspect" && options.files.empty() && options.command == Command::Convert)
        options.command = Command::Inspect;
      else
        options.files.push_back(arg);
      continue;
    }
    std::string argument;
    bool glued = false;
    const OptionRow* option = Find(arg, argument, glued);
    if (!option) return "unknown option " + arg;
    if (*option->argument && !glued) {
      if (i + 1 >= args.size()) return std::string(option->longName) + " needs " + option->argument;
      argument = args[++i];
    }
    std::string error = option->apply(argument, options);
    if (!error.empty()) return error;
    if (options.command == Command::Help || options.command == Command::Version) return "";
  }
  if (options.files.empty()) return "no input file";
  if (options.command == Command::Inspect) {
    if (options.files.size() != 1) return "inspect takes one file";
    if (!options.reportPath.empty() || options.jobs != 1) return "inspect takes neither --report nor -j";
  } else if (options.json) {
    return "--json goes with inspect";
  }
  return "";
}

void PrintUsage(std::FILE* out) {
  std::fputs(
      "usage: quillmesh [options] FILE.s2k...\n"
      "       quillmesh inspect [--json] FILE.s2k\n"
      "Converts SAP2000 V8 text models (.s2k) into TVT files written beside them;\n"
      "inspect tells each table of a file and what a conversion makes of it, writing nothing.\n"
      "\n"
      "options:\n",
      out);
  for (const OptionRow& option : kOptions) {
    std::string names = *option.shortName ? std::string(option.shortName) + ", " + option.longName : option.longName;
    if (*option.argument) names += std::string(" ") + option.argument;
    std::fprintf(out, "  %-22s %s\n", names.c_str(), option.help);
  }
  std::fputs(
      "\n"
      "Messages go to stderr as they come, each file's together and led by its name\n"
      "when there are several; the path of each TVT file to stdout.\n"
      "Ctrl-C or Esc stops the conversions.\n"
      "exit status: the worst of the files: 0 finished, 1 stopped, 2 failed; 64 usage error\n",
      out);
}

}  // namespace cli
