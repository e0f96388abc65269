// The terminal user interface: messages on stderr as they come, a progress
// line when stderr is a terminal, Ctrl-C and Esc to stop.
#include "frame/terminal_ui.h"

#include "frame/progress_texts.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <iostream>

namespace quillmesh {
namespace {

volatile std::sig_atomic_t interrupted = 0;
struct sigaction previousAction {};
bool handlerInstalled = false;

void OnInterrupt(int) {
  if (interrupted) _exit(130);  // a second Ctrl-C does not wait for the run
  interrupted = 1;
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

void TerminalUserInterface::ShowMessage(const std::string& text, const std::string& key) {
  ClearLine();
  std::string line = OneLine(text);
  if (options_.messageKeys && !key.empty()) line += " [" + key + "]";
  std::fprintf(stderr, "%s\n", line.c_str());
  std::fflush(stderr);
  Draw(true);
}

void TerminalUserInterface::Note(const std::string& text) {
  ClearLine();
  std::fprintf(stderr, "quillmesh: %s: %s\n", options_.inputPath.c_str(), text.c_str());
  std::fflush(stderr);
}

void TerminalUserInterface::OpenProgress(int lineCount) {
  open_ = true;
  lineCount_ = lineCount;
  stage_ = 0;
  high_ = lineCount;
  position_ = 0;
  stopReason_.clear();
  interrupted = 0;
  struct sigaction action {};
  action.sa_handler = OnInterrupt;
  sigemptyset(&action.sa_mask);
  if (!handlerInstalled && sigaction(SIGINT, &action, &previousAction) == 0) handlerInstalled = true;
  // Esc is read from the controlling terminal, key by key, without echo.
  tty_ = ::open("/dev/tty", O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (tty_ >= 0) {
    struct termios saved {};
    if (::tcgetattr(tty_, &saved) == 0) {
      static_assert(sizeof(saved) <= sizeof(savedTermios_));
      std::memcpy(savedTermios_, &saved, sizeof saved);
      termiosSaved_ = true;
      struct termios raw = saved;
      raw.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
      raw.c_cc[VMIN] = 0;
      raw.c_cc[VTIME] = 0;
      ::tcsetattr(tty_, TCSANOW, &raw);
    }
  }
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

bool TerminalUserInterface::EscapePressed() {
  if (tty_ < 0) return false;
  unsigned char keys[64];
  bool escape = false;
  for (;;) {
    ssize_t n = ::read(tty_, keys, sizeof keys);
    if (n <= 0) break;
    for (ssize_t i = 0; i < n; ++i)
      if (keys[i] == 27) escape = true;
  }
  return escape;
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
  if (tty_ >= 0) {
    if (termiosSaved_) {
      struct termios saved {};
      std::memcpy(&saved, savedTermios_, sizeof saved);
      ::tcsetattr(tty_, TCSANOW, &saved);
    }
    ::close(tty_);
  }
  tty_ = -1;
  termiosSaved_ = false;
  if (handlerInstalled) sigaction(SIGINT, &previousAction, nullptr);
  handlerInstalled = false;
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
