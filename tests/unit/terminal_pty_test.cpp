// The command line on a terminal of the test's own (a pseudo-terminal): the
// progress display and the stop by Esc, as a user at a terminal meets them.
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utmp.h>

#include <chrono>
#include <csignal>
#include <gtest/gtest.h>

#include "test_support.h"

namespace fs = std::filesystem;

namespace {

struct TerminalRun {
  int exitCode = -1;
  std::string screen;  // all that was written to the terminal
};

// Runs the command line in \p folder on a new pseudo-terminal whose input
// already holds \p typed.
TerminalRun RunOnTerminal(const std::vector<std::string>& args, const fs::path& folder, const std::string& typed) {
  TerminalRun run;
  int master = -1, slave = -1;
  struct winsize size {};
  size.ws_col = 120;
  size.ws_row = 40;
  if (openpty(&master, &slave, nullptr, nullptr, &size) != 0) return run;
  if (!typed.empty() && write(master, typed.data(), typed.size()) != static_cast<ssize_t>(typed.size())) return run;
  pid_t child = fork();
  if (child == 0) {
    close(master);
    login_tty(slave);
    if (chdir(folder.c_str()) != 0) _exit(127);
    std::vector<char*> argv{const_cast<char*>(QUILLMESH_CLI)};
    for (const std::string& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    execv(QUILLMESH_CLI, argv.data());
    _exit(127);
  }
  close(slave);
  auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  char buffer[4096];
  for (;;) {
    struct pollfd wait {master, POLLIN, 0};
    if (std::chrono::steady_clock::now() > deadline) {
      kill(child, SIGKILL);
      break;
    }
    if (poll(&wait, 1, 100) <= 0) continue;
    ssize_t n = read(master, buffer, sizeof buffer);
    if (n <= 0) break;  // the terminal closed with the program's end
    run.screen.append(buffer, static_cast<std::size_t>(n));
  }
  int status = 0;
  waitpid(child, &status, 0);
  close(master);
  if (WIFEXITED(status)) run.exitCode = WEXITSTATUS(status);
  return run;
}

const char* kTwoTables =
    "TABLE:  \"AREA AUTO MESH ASSIGNMENTS\"\n"
    "   Area=1   AutoMesh=Yes\n"
    "\n"
    "TABLE:  \"JOINT COORDINATES\"\n"
    "   Joint=1   CoordSys=GLOBAL   CoordType=Cartesian   GlobalX=0   GlobalY=0   GlobalZ=0\n"
    "   Joint=2   CoordSys=GLOBAL   CoordType=Cartesian   GlobalX=1   GlobalY=0   GlobalZ=0\n"
    "\n"
    "END TABLE DATA\n";

}  // namespace

TEST(TerminalFrontEnd, ShowsEachStageOnOneLineAndClearsItForMessages) {
  TempFolder folder;
  WriteFile(folder / "model.s2k", kTwoTables);
  TerminalRun run = RunOnTerminal({"model.s2k"}, folder.Path(), "");
  ASSERT_EQ(0, run.exitCode) << run.screen;
  const std::string clear = "\r\033[K";
  for (const char* line : {"Reading [s2k] file of SAP2000 V8 [", "Converting [s2k] file to TARVO text file [",
                           "Writing TARVO text file [##############################] 100%"})
    EXPECT_NE(std::string::npos, run.screen.find(clear + line)) << line << "\n" << run.screen;
  // A message in the middle of the run takes the line and the bar comes back under it.
  std::string message = quillmesh::LoadMessage("IDS_S2KV8_AREA_AtMesh_Not_Convert");
  std::size_t at = run.screen.find(clear + message + "\r\n");
  ASSERT_NE(std::string::npos, at) << run.screen;
  EXPECT_EQ(at + clear.size() + message.size() + 2, run.screen.find(clear + "Reading", at))
      << "the reading line is drawn again right after the message";
  EXPECT_TRUE(fs::exists(folder / "model.tvt"));
}

TEST(TerminalFrontEnd, EscTypedBeforeTheRunStopsItAtTheFirstTableRow) {
  TempFolder folder;
  WriteFile(folder / "model.s2k", kTwoTables);
  TerminalRun run = RunOnTerminal({"--message-keys", "model.s2k"}, folder.Path(), "\033");
  EXPECT_EQ(1, run.exitCode) << run.screen;
  EXPECT_NE(std::string::npos, run.screen.find("stopped by Esc")) << run.screen;
  EXPECT_EQ(std::string::npos, run.screen.find("IDS_S2KV8_AREA_AtMesh_Not_Convert"))
      << "stopped at the first row, before the table's message";
  EXPECT_FALSE(fs::exists(folder / "model.tvt"));
}

TEST(TerminalFrontEnd, OtherKeysDoNotStopTheRun) {
  TempFolder folder;
  WriteFile(folder / "model.s2k", kTwoTables);
  TerminalRun run = RunOnTerminal({"model.s2k"}, folder.Path(), "q x\n");
  EXPECT_EQ(0, run.exitCode) << run.screen;
  EXPECT_TRUE(fs::exists(folder / "model.tvt"));
}
