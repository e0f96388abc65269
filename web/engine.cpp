// The engine in the browser: a user interface whose windows are messages to
// the page, posted from the worker that runs the conversion.
#include <emscripten.h>

#include <string>

#include "frame/progress_texts.h"
#include "quillmesh/quillmesh.hpp"

// The worker's side of the page (worker.js) receives these.
EM_JS(void, PostMessageToPage, (const char* text, const char* key), {
  Module.onEngineMessage(UTF8ToString(text), UTF8ToString(key));
});
EM_JS(void, PostNoticeToPage, (const char* text), { Module.onEngineNotice(UTF8ToString(text)); });
EM_JS(void, PostProgressToPage, (const char* what, int value, const char* text), {
  Module.onEngineProgress(UTF8ToString(what), value, UTF8ToString(text));
});

namespace {

class PageUserInterface : public quillmesh::UserInterface {
 public:
  PageUserInterface(int stopStage, int stopPosition) : stopStage_(stopStage), stopPosition_(stopPosition) {}

  // The file comes from the page; the engine never asks for one.
  bool ChooseInputFile(const std::string&, std::string&) override { return false; }
  void ShowMessage(const std::string& text, const std::string& key) override {
    PostMessageToPage(text.c_str(), key.c_str());
  }
  void OpenProgress(int lineCount) override {
    lineCount_ = lineCount;
    high_ = lineCount;
    stage_ = 0;
    shown_ = -1;
    open_ = true;
    PostProgressToPage("open", lineCount, "");
  }
  void SetStage(int stage) override {
    if (stage >= 1 && stage <= 3) stage_ = stage;
    shown_ = -1;
    PostProgressToPage("stage", stage, quillmesh::StageText(stage));
  }
  void SetRange(int high) override {
    high_ = high;
    shown_ = -1;
    PostProgressToPage("range", high, "");
  }
  bool Advance(int position) override {
    if (quillmesh::ReadingPastEnd(stage_, position, lineCount_)) {
      PostNoticeToPage(quillmesh::kEndsInsideTable);
      return Stop();
    }
    if (stopStage_ != 0 && stopStage_ == stage_ && position >= stopPosition_) return Stop();
    // The page is told of a move of a two-hundredth of the bar at most.
    int step = high_ > 0 ? static_cast<int>(200LL * position / high_) : 0;
    if (step != shown_) {
      shown_ = step;
      PostProgressToPage("advance", position, "");
    }
    return true;
  }
  void CloseProgress() override {
    if (open_) PostProgressToPage("close", 0, "");
    open_ = false;
  }
  void InputEndsInFileLine() override { PostNoticeToPage(quillmesh::kEndsInFileLine); }

 private:
  bool Stop() {
    open_ = false;
    PostProgressToPage("stopped", stage_, "");
    return false;
  }

  int stopStage_;
  int stopPosition_;
  int lineCount_ = 0;
  int high_ = 0;
  int stage_ = 0;
  int shown_ = -1;
  bool open_ = false;
};

}  // namespace

extern "C" {

/// Converts the file \p inputPath of the worker's file system, stopping at
/// the first advance of \p stopStage at or past \p stopPosition (0: never).
/// \returns 0 finished, 1 stopped, -1 failed.
EMSCRIPTEN_KEEPALIVE int QmConvert(const char* inputPath, int stopStage, int stopPosition) {
  PageUserInterface ui(stopStage, stopPosition);
  return quillmesh::ConvertPath(inputPath, ui);
}

/// The path of the .tvt file that a conversion of \p inputPath writes.
EMSCRIPTEN_KEEPALIVE const char* QmOutputPath(const char* inputPath) {
  static std::string path;
  path = quillmesh::OutputPathFor(inputPath);
  return path.c_str();
}

}  // extern "C"
