// The desktop front end, a library of its own found beside this one, and the
// choice of front end for the C entry points.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "frame/messages.h"
#include "frame/progress_texts.h"
#include "frame/terminal_ui.h"
#include "quillmesh/desktop.hpp"
#include "quillmesh/front_end.h"

namespace quillmesh {
namespace {

constexpr const char* kLibraryName = "libquillmesh_gtk.so";

// Loaded once and kept: a toolkit is not made to be unloaded.
// The front end's table, or why there is none. Loaded once, by the first
// caller, whatever thread it is on.
struct SLoadedFrontEnd {
  const QmFrontEndFunctions* functions = nullptr;
  std::string failure;
};

SLoadedFrontEnd LoadFrontEndLibrary() {
  SLoadedFrontEnd loaded;
  std::string path = LibraryFolder() + "/" + kLibraryName;
  void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!library) {
    const char* error = dlerror();
    loaded.failure = error ? error : "cannot load " + path;
  } else if (auto entry = reinterpret_cast<QmFrontEndEntry>(dlsym(library, QM_FRONT_END_ENTRY))) {
    const QmFrontEndFunctions* found = entry();
    if (found && found->version == QM_FRONT_END_VERSION)
      loaded.functions = found;
    else
      loaded.failure = path + " is of another version";
  } else {
    loaded.failure = path + " has no " + QM_FRONT_END_ENTRY;
  }
  return loaded;
}

const QmFrontEndFunctions* LoadFrontEnd(std::string& why) {
  static const SLoadedFrontEnd loaded = LoadFrontEndLibrary();
  if (!loaded.functions) why = loaded.failure;
  return loaded.functions;
}

class DesktopUserInterface : public UserInterface {
 public:
  DesktopUserInterface(const QmFrontEndFunctions* functions, QmFrontEnd* ui) : f_(functions), ui_(ui) {}
  ~DesktopUserInterface() override { f_->close(ui_); }

  bool ChooseInputFile(const std::string& filter, std::string& path) override {
    char* chosen = nullptr;
    if (!f_->choose_input_file(ui_, filter.c_str(), &chosen) || !chosen) return false;
    path = chosen;
    std::free(chosen);
    return true;
  }
  void ShowMessage(const std::string& text, const std::string&) override { f_->show_message(ui_, text.c_str()); }
  void OpenProgress(int lineCount) override {
    lineCount_ = lineCount;
    stage_ = 0;
    f_->open_progress(ui_, lineCount);
  }
  void SetStage(int stage) override {
    if (stage >= 1 && stage <= 3) stage_ = stage;
    f_->set_stage(ui_, stage);
  }
  void SetRange(int high) override { f_->set_range(ui_, high); }
  bool Advance(int position) override {
    if (ReadingPastEnd(stage_, position, lineCount_)) {
      f_->close_progress(ui_);
      f_->show_message(ui_, kEndsInsideTable);
      return false;
    }
    return f_->advance(ui_, position) != 0;
  }
  void CloseProgress() override { f_->close_progress(ui_); }
  void InputEndsInFileLine() override { f_->show_message(ui_, kEndsInFileLine); }

 private:
  const QmFrontEndFunctions* f_;
  QmFrontEnd* ui_;
  int lineCount_ = 0;
  int stage_ = 0;
};

}  // namespace

std::unique_ptr<UserInterface> OpenDesktopUserInterface(std::string& why) {
  const QmFrontEndFunctions* functions = LoadFrontEnd(why);
  if (!functions) return nullptr;
  char reason[256] = "";
  QmFrontEnd* ui = functions->open(reason, sizeof reason);
  if (!ui) {
    why = reason;
    return nullptr;
  }
  return std::make_unique<DesktopUserInterface>(functions, ui);
}

std::unique_ptr<UserInterface> ChooseUserInterface() {
  const char* forced = std::getenv("QUILLMESH_UI");
  std::string mode = forced ? forced : "";
  if (mode == "terminal") return std::make_unique<TerminalUserInterface>(TerminalOptions{});
  if (!mode.empty() && mode != "desktop")
    std::fprintf(stderr, "quillmesh: QUILLMESH_UI=%s is neither terminal nor desktop; it is not heeded\n",
                 mode.c_str());
  const char* x11 = std::getenv("DISPLAY");
  const char* wayland = std::getenv("WAYLAND_DISPLAY");
  bool display = (x11 && *x11) || (wayland && *wayland);
  if (display || mode == "desktop") {
    std::string why;
    if (auto desktop = OpenDesktopUserInterface(why)) return desktop;
    std::fprintf(stderr, "quillmesh: no desktop windows (%s); the terminal is used\n", why.c_str());
  }
  return std::make_unique<TerminalUserInterface>(TerminalOptions{});
}

}  // namespace quillmesh
