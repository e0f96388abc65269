// A user interface that records what the engine shows, for tests.
#pragma once

#include <string>
#include <vector>

#include "quillmesh/quillmesh.hpp"

class RecordingUserInterface : public quillmesh::UserInterface {
 public:
  /// Messages as "message KEY", or "text TEXT" for the system's own texts.
  std::vector<std::string> messages;
  /// The texts shown, as the user reads them.
  std::vector<std::string> texts;
  /// Progress calls: "open N", "stage S", "range H", "advance P", "close".
  std::vector<std::string> progress;
  std::string chosenPath;     ///< what the file dialog returns; empty is Cancel
  int stopStage = 0;          ///< stop at the first advance of this stage ...
  int stopPosition = 0;       ///< ... whose position is at least this
  bool stopPastEnd = true;    ///< stop a read that runs past the counted lines
  bool endsInFileLine = false;

  bool ChooseInputFile(const std::string&, std::string& path) override {
    if (chosenPath.empty()) return false;
    path = chosenPath;
    return true;
  }
  void ShowMessage(const std::string& text, const std::string& key) override {
    messages.push_back(key.empty() ? "text " + text : "message " + key);
    texts.push_back(text);
  }
  void OpenProgress(int lineCount) override {
    lineCount_ = lineCount;
    open_ = true;
    progress.push_back("open " + std::to_string(lineCount));
  }
  void SetStage(int stage) override {
    stage_ = stage;
    progress.push_back("stage " + std::to_string(stage));
  }
  void SetRange(int high) override { progress.push_back("range " + std::to_string(high)); }
  bool Advance(int position) override {
    progress.push_back("advance " + std::to_string(position));
    bool stop = (stopStage == stage_ && position >= stopPosition) ||
                (stopPastEnd && quillmesh::ReadingPastEnd(stage_, position, lineCount_));
    if (stop) open_ = false;
    return !stop;
  }
  void CloseProgress() override {
    if (open_) progress.push_back("close");
    open_ = false;
  }
  void InputEndsInFileLine() override { endsInFileLine = true; }

  bool WindowOpen() const { return open_; }

 private:
  int stage_ = 0;
  int lineCount_ = 0;
  bool open_ = false;
};
