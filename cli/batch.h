// Conversions of the files named on the command line, one after another or
// several at a time, each with its own engine.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "options.h"
#include "quillmesh/terminal.hpp"

namespace cli {

/// A message as the engine issued it.
struct MessageRecord {
  std::string key;       ///< empty for the system's own texts
  std::string text;      ///< as the user reads it
  std::string argument;  ///< the text argument of a formatted message
  bool hasArgument = false;
};

/// What became of one input.
struct FileResult {
  std::string input;
  std::string output;     ///< where the TVT file goes
  int code = 1;           ///< the engine's: 0 finished, 1 stopped, -1 failed
  bool ran = false;       ///< false when the batch was stopped before it
  std::string stopReason; ///< the front end's words for a stop
  std::vector<MessageRecord> messages;
  std::string printed;    ///< its message lines, for a batch run in parallel
};

// The terminal's interface, that also keeps each message for the report;
// in a parallel batch it holds the lines back until the file is done.
class MessageKeepingInterface : public quillmesh::TerminalUserInterface {
 public:
  MessageKeepingInterface(quillmesh::TerminalOptions options, FileResult& result, bool live)
      : TerminalUserInterface(std::move(options)), result_(result), live_(live) {}

  void ShowMessage(const std::string& text, const std::string& key) override {
    result_.messages.push_back({key, text, "", false});
    TerminalUserInterface::ShowMessage(text, key);
  }
  void ShowFormattedMessage(const std::string& text, const std::string& key, const std::string& argument) override {
    result_.messages.push_back({key, text, argument, true});
    TerminalUserInterface::ShowMessage(text, key);
  }

 protected:
  void WriteLine(const std::string& line) override {
    if (live_)
      TerminalUserInterface::WriteLine(line);
    else
      result_.printed += line + "\n";
  }

 private:
  FileResult& result_;
  bool live_;
};

/// The exit status of a file: 0 finished, 1 stopped, 2 failed.
int ExitStatusOf(const FileResult& result);

/// Converts every file of \p options; messages go to stderr, the output
/// paths to stdout. \returns the results in the order of the files.
std::vector<FileResult> ConvertAll(const Options& options);

}  // namespace cli
