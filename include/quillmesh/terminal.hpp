// A user interface on a terminal: messages and progress on stderr, the stop
// by Ctrl-C or Esc.
#pragma once

#include <string>

#include "quillmesh/quillmesh.hpp"

namespace quillmesh {

struct TerminalOptions {
  /// The file to convert; empty means ask for it on the terminal.
  std::string inputPath;
  /// Print the catalogue key behind each message.
  bool messageKeys = false;
  /// Draw the progress display (only ever on a terminal).
  bool progress = true;
  /// Written before each message, e.g. the file's name in a batch.
  std::string messagePrefix;
};

class QM_EXPORT TerminalUserInterface : public UserInterface {
 public:
  explicit TerminalUserInterface(TerminalOptions options);
  ~TerminalUserInterface() override;

  bool ChooseInputFile(const std::string& filter, std::string& path) override;
  void ShowMessage(const std::string& text, const std::string& key) override;
  void OpenProgress(int lineCount) override;
  void SetStage(int stage) override;
  void SetRange(int high) override;
  bool Advance(int position) override;
  void CloseProgress() override;
  void InputEndsInFileLine() override;

  /// Why the last run stopped, for the front end's own words; empty when the
  /// user did not stop it.
  const std::string& StopReason() const { return stopReason_; }
  /// True when the last run was stopped by Ctrl-C or Esc, which stop every
  /// conversion running at that moment.
  bool StoppedByUser() const { return stoppedByUser_; }

 protected:
  /// Prints one line of the run's messages and notes on stderr.
  virtual void WriteLine(const std::string& line);

 private:
  /// The line a message is printed as, without its newline.
  std::string MessageLine(const std::string& text, const std::string& key) const;
  void Draw(bool force);
  void ClearLine();
  void Note(const std::string& text);
  void RestoreTerminal();

  TerminalOptions options_;
  bool drawing_ = false;
  bool open_ = false;
  bool lineDrawn_ = false;
  int lineCount_ = 0;
  int stage_ = 0;
  int high_ = 0;
  int position_ = 0;
  int lastPercent_ = -1;
  bool holdsTerminal_ = false;
  bool stoppedByUser_ = false;
  std::string stopReason_;
};

}  // namespace quillmesh
