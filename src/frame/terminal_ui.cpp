// The terminal user interface: messages on stderr as they come, a progress
// line when stderr is a terminal, Ctrl-C and Esc to stop.
#include "frame/terminal_ui.h"

#include "frame/progress_texts.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <mutex>

namespace quillmesh {
namespace {

// Ctrl-C, Esc and the terminal's key mode belong to the process, not to one
// conversion: the first open progress takes them, the last close gives them
// back, and a stop reaches every conversion running at that moment.
std::atomic<int> interrupted{0};
std::atomic<bool> escaped{false};
static_assert(std::atomic<int>::is_always_lock_free, "the Ctrl-C handler writes it");

struct SharedTerminal {
  std::mutex lock;
  int users = 0;
  struct sigaction previousAction {};
  bool handlerInstalled = false;
  int tty = -1;
  bool termiosSaved = false;
  struct termios savedTermios {};
};

SharedTerminal& Shared() {
  static SharedTerminal shared;
  return shared;
}

void OnInterrupt(int) {
  if (interrupted) _exit(130);  // a second Ctrl-C does not wait for the run
  interrupted = 1;
}

void TakeTerminal() {
  SharedTerminal& shared = Shared();
  std::lock_guard<std::mutex> hold(shared.lock);
  if (shared.users++ > 0) return;
  interrupted = 0;
  escaped = false;
  struct sigaction action {};
  action.sa_handler = OnInterrupt;
  sigemptyset(&action.sa_mask);
  shared.handlerInstalled = sigaction(SIGINT, &action, &shared.previousAction) == 0;
  // Esc is read from the controlling terminal, key by key, without echo.
  shared.tty = ::open("/dev/tty", O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (shared.tty >= 0 && ::tcgetattr(shared.tty, &shared.savedTermios) == 0) {
    shared.termiosSaved = true;
    struct termios raw = shared.savedTermios;
    raw.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
    raw.c_cc[VMIN] = 0;
    raw.c_cc[VTIME] = 0;
    ::tcsetattr(shared.tty, TCSANOW, &raw);
  }
}

void GiveBackTerminal() {
  SharedTerminal& shared = Shared();
  std::lock_guard<std::mutex> hold(shared.lock);
  if (shared.users == 0 || --shared.users > 0) return;
  if (shared.tty >= 0) {
    if (shared.termiosSaved) ::tcsetattr(shared.tty, TCSANOW, &shared.savedTermios);
    ::close(shared.tty);
  }
  shared.tty = -1;
  shared.termiosSaved = false;
  if (shared.handlerInstalled) sigaction(SIGINT, &shared.previousAction, nullptr);
  shared.handlerInstalled = false;
}

// True once Esc was pressed since the terminal was taken.
bool EscapePressed() {
  SharedTerminal& shared = Shared();
  std::lock_guard<std::mutex> hold(shared.lock);
  if (shared.tty >= 0) {
    unsigned char keys[64];
    for (;;) {
      ssize_t n = ::read(shared.tty, keys, sizeof keys);
      if (n <= 0) break;
      for (ssize_t i = 0; i < n; ++i)
        if (keys[i] == 27) escaped = true;
    }
  }
  return escaped;
}

std::string OneLine(std::string text) {
  for (char& c : text)
    if (c == '\n' || c == '\r') c = ' ';
  return text;
}

}  // namespace

TerminalUserInterface::TerminalUserInterface(TerminalOptions options) : options_(std::move(options)) {
  drawing_ = options_.progress && ::isatty(STDERR_FILENO);
}

TerminalUserInterface::~TerminalUserInterface() { CloseProgress(); }

bool TerminalUserInterface::ChooseInputFile(const std::string& filter, std::string& path) {
  if (!options_.inputPath.empty()) {
    path = options_.inputPath;
    return true;
  }
  std::fprintf(stderr, "s2k file to convert (%s), empty to cancel: ", filter.c_str());
  std::fflush(stderr);
  std::string answer;
  if (!std::getline(std::cin, answer)) return false;
  while (!answer.empty() && (answer.back() == '\r' || answer.back() == ' ')) answer.pop_back();
  if (answer.empty()) return false;
  path = options_.inputPath = answer;
  return true;
}

void TerminalUserInterface::ClearLine() {
  if (lineDrawn_) std::fputs("\r\033[K", stderr);
  lineDrawn_ = false;
}

std::string TerminalUserInterface::MessageLine(const std::string& text, const std::string& key) const {
  std::string line = options_.messagePrefix + OneLine(text);
  if (options_.messageKeys && !key.empty()) line += " [" + key + "]";
  return line;
}

void TerminalUserInterface::ShowMessage(const std::string& text, const std::string& key) {
  ClearLine();
  WriteLine(MessageLine(text, key));
  Draw(true);
}

void TerminalUserInterface::WriteLine(const std::string& line) {
  std::fprintf(stderr, "%s\n", line.c_str());
  std::fflush(stderr);
}

void TerminalUserInterface::Note(const std::string& text) {
  ClearLine();
  WriteLine("quillmesh: " + options_.inputPath + ": " + text);
}

void TerminalUserInterface::OpenProgress(int lineCount) {
  open_ = true;
  lineCount_ = lineCount;
  stage_ = 0;
  high_ = lineCount;
  position_ = 0;
  stopReason_.clear();
  stoppedByUser_ = false;
  if (!holdsTerminal_) TakeTerminal();
  holdsTerminal_ = true;
  Draw(true);
}

void TerminalUserInterface::SetStage(int stage) {
  if (stage >= 1 && stage <= 3) stage_ = stage;
  Draw(true);
}

void TerminalUserInterface::SetRange(int high) {
  high_ = high;
  position_ = 0;
  Draw(true);
}

bool TerminalUserInterface::Advance(int position) {
  if (!open_) return false;
  const char* reason = nullptr;
  if (interrupted)
    reason = "stopped by Ctrl-C";
  else if (EscapePressed())
    reason = "stopped by Esc";
  else if (ReadingPastEnd(stage_, position, lineCount_))
    reason = kEndsInsideTable;
  if (reason) {
    stoppedByUser_ = interrupted || escaped;
    CloseProgress();
    stopReason_ = reason;
    Note(reason);
    return false;
  }
  position_ = position;
  Draw(false);
  return true;
}

void TerminalUserInterface::InputEndsInFileLine() {
  stopReason_ = kEndsInFileLine;
  Note(stopReason_);
}

void TerminalUserInterface::RestoreTerminal() {
  if (holdsTerminal_) GiveBackTerminal();
  holdsTerminal_ = false;
}

void TerminalUserInterface::CloseProgress() {
  if (!open_) return;
  open_ = false;
  ClearLine();
  std::fflush(stderr);
  RestoreTerminal();
}

void TerminalUserInterface::Draw(bool force) {
  if (!drawing_ || !open_ || stage_ == 0) return;
  int percent = high_ > 0 ? static_cast<int>(100.0 * position_ / high_) : 0;
  if (percent > 100) percent = 100;
  if (!force && percent == lastPercent_) return;
  lastPercent_ = percent;
  constexpr int kWidth = 30;
  int filled = percent * kWidth / 100;
  std::string bar(static_cast<std::size_t>(filled), '#');
  bar.append(static_cast<std::size_t>(kWidth - filled), '.');
  std::fprintf(stderr, "\r\033[K%s [%s] %3d%%", StageText(stage_), bar.c_str(), percent);
  std::fflush(stderr);
  lineDrawn_ = true;
}

}  // namespace quillmesh
