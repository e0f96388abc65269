// The command line: exit codes, messages on stderr, runs that must end.
#include <gtest/gtest.h>

#include "test_support.h"

namespace fs = std::filesystem;

namespace {

const char* kMinimal = "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes   UY=Yes   UZ=Yes\n\nEND\n";

std::vector<std::string> ErrLines(const std::string& err) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t nl; (nl = err.find('\n', start)) != std::string::npos; start = nl + 1)
    lines.push_back(err.substr(start, nl - start));
  return lines;
}

TEST(CommandLine, EveryWayTheInputCanEndStopsWellUnderASecond) {
  struct Case {
    const char* name;
    std::string text;
    int exitCode;
    const char* says;  // part of the last line on stderr
  };
  for (const Case& c : {
           Case{"only a FILE line", "FILE a.$2k was saved\n", 1, "ends with a FILE line outside any table"},
           Case{"only a FILE line, no newline", "FILE a.$2k was saved", 1, "ends with a FILE line outside any table"},
           Case{"FILE line after a table", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\n\nFILE b\n", 1,
                "ends with a FILE line outside any table"},
           Case{"inside a table", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\n   UY=Yes", 1,
                "ends inside a table"},
           Case{"on a TABLE line", "FILE a\nTABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n", 1, "ends inside a table"},
           Case{"on a short line", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\n\n", 0, "[IDS_S2KV8_Export"},
           Case{"on a foreign line after three counted lines", "FILE a\nFILE b\nFILE c\nModel D", 2,
                "conversion failed"},
       }) {
    TempFolder folder;
    WriteFile(folder / "model.s2k", c.text);
    CliRun run = RunCli({"--message-keys", "model.s2k"}, folder.Path(), 3);
    EXPECT_EQ(c.exitCode, run.exitCode) << c.name << "\n" << run.err;
    EXPECT_LT(run.seconds, 1.0) << c.name;
    std::vector<std::string> lines = ErrLines(run.err);
    ASSERT_FALSE(lines.empty()) << c.name;
    EXPECT_NE(std::string::npos, lines.back().find(c.says)) << c.name << ": " << lines.back();
    EXPECT_EQ(c.exitCode == 0, fs::exists(folder / "model.tvt")) << c.name;
    EXPECT_EQ(c.exitCode == 0 ? "model.tvt\n" : "", run.out) << c.name;
  }
}

TEST(CommandLine, PrintsEachMessageOnItsOwnLineWithItsKey) {
  TempFolder folder;
  WriteFile(folder / "model.s2k", std::string("Preface line\n") + kMinimal);
  CliRun run = RunCli({"--message-keys", "model.s2k"}, folder.Path());
  EXPECT_EQ(0, run.exitCode);
  std::vector<std::string> lines = ErrLines(run.err);
  ASSERT_EQ(2u, lines.size()) << run.err;
  EXPECT_NE(std::string::npos, lines[0].find(" [IDS_S2KV8_Export_must_be_executed]"));
  EXPECT_NE(std::string::npos, lines[1].find(" [IDS_S2KV8_DATA_Not_Convert]"));

  CliRun plain = RunCli({"model.s2k"}, folder.Path());
  EXPECT_EQ(std::string::npos, plain.err.find("[IDS_"));
  EXPECT_EQ(2u, ErrLines(plain.err).size());
}

TEST(CommandLine, ExitCodesTellFinishedFailedAndUsage) {
  TempFolder folder;
  WriteFile(folder / "good.s2k", kMinimal);
  WriteFile(folder / "bad.s2k", "JOINT 1 X=0\n");
  struct Case {
    std::vector<std::string> args;
    int exitCode;
  };
  for (const Case& c : {
           Case{{"good.s2k"}, 0},
           Case{{"bad.s2k"}, 2},
           Case{{"good.s2k", "bad.s2k"}, 2},
           Case{{"absent.s2k"}, 2},
           Case{{}, 64},
           Case{{"--frobnicate", "good.s2k"}, 64},
           Case{{"--help"}, 0},
           Case{{"--version"}, 0},
       }) {
    CliRun run = RunCli(c.args, folder.Path());
    EXPECT_EQ(c.exitCode, run.exitCode) << (c.args.empty() ? "" : c.args[0]) << "\n" << run.err;
  }
  EXPECT_NE(std::string::npos, RunCli({"--help"}, folder.Path()).out.find("usage: quillmesh"));
  EXPECT_NE(std::string::npos, RunCli({}, folder.Path()).err.find("usage: quillmesh"));
}

TEST(CommandLine, CtrlCStopsTheRunWithNothingWritten) {
  TempFolder folder;
  std::string text = "TABLE:  \"GRID LINES\"\n";
  for (int row = 0; row < 1000000; ++row) text += "   Grid=A\n";
  WriteFile(folder / "model.s2k", text + "\nEND\n");
  CliRun run = RunCli({"--message-keys", "model.s2k"}, folder.Path(), 30, "[IDS_S2KV8_Export_must_be_executed]");
  EXPECT_EQ(1, run.exitCode) << run.err;
  EXPECT_NE(std::string::npos, run.err.find("stopped by Ctrl-C")) << run.err;
  EXPECT_FALSE(fs::exists(folder / "model.tvt"));
}

TEST(CommandLine, WithoutTheCatalogueBesideTheLibraryMessagesReadTheFallback) {
  TempFolder folder;
  fs::path bin = fs::path(QUILLMESH_CLI).parent_path();
  fs::create_directories(folder / "bin");
  fs::copy_file(QUILLMESH_CLI, folder / "bin" / "quillmesh");
  for (const auto& entry : fs::directory_iterator(bin))
    if (entry.path().filename().string().rfind("libquillmesh.so", 0) == 0)
      fs::copy(entry.path(), folder / "bin" / entry.path().filename(), fs::copy_options::copy_symlinks);
  WriteFile(folder / "model.s2k", kMinimal);
  std::string command = (folder / "bin" / "quillmesh").string() + " " + (folder / "model.s2k").string() + " 2>" +
                        (folder / "err").string() + " >/dev/null";
  EXPECT_EQ(0, std::system(command.c_str()));
  EXPECT_EQ("Error : DLL is not loaded. check message dll!\n", ReadFile(folder / "err"));
}

}  // namespace
