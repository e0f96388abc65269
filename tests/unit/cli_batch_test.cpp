// The command line around the conversion: options and help, batches one at
// a time and in parallel.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "quillmesh/version.h"
#include "test_support.h"

namespace fs = std::filesystem;

namespace {

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

const char* kGood = "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes   UY=Yes   UZ=Yes\n\nEND\n";
const char* kFails = "JOINT 1 X=0\n";
const char* kStops = "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\n   UY=Yes";

TEST(CommandLineOptions, VersionComesFromTheProjectAndHelpListsEveryOptionTheParserTakes) {
  TempFolder folder;
  EXPECT_EQ(std::string(QUILLMESH_PROJECT_VERSION), QUILLMESH_VERSION);
  CliRun version = RunCli({"--version"}, folder.Path());
  EXPECT_EQ(0, version.exitCode);
  EXPECT_EQ(std::string("quillmesh ") + QUILLMESH_PROJECT_VERSION + "\n", version.out);

  CliRun help = RunCli({"--help"}, folder.Path());
  ASSERT_EQ(0, help.exitCode);
  // Each option line: "  -j, --jobs N   text" or "  --report FILE.json   text".
  std::map<std::string, std::string> listed;  // name -> its argument
  for (const std::string& line : Lines(help.out)) {
    if (line.rfind("  -", 0) != 0) continue;
    std::istringstream words(line);
    std::vector<std::string> names;
    std::string word, argument;
    while (words >> word) {
      if (word[0] != '-') {
        if (std::isupper(static_cast<unsigned char>(word[0]))) argument = word;
        break;
      }
      if (word.back() == ',') word.pop_back();
      names.push_back(word);
    }
    for (const std::string& name : names) listed[name] = argument;
  }
  for (const char* name : {"-j", "--jobs", "--report", "--message-keys", "--no-progress", "--json", "--help",
                           "--version"})
    EXPECT_EQ(1u, listed.count(name)) << name << " is missing from the help:\n" << help.out;
  for (const auto& [name, argument] : listed) {
    std::vector<std::string> args = {name};
    if (!argument.empty()) args.push_back(argument == "N" ? "1" : "report.json");
    args.push_back("absent.s2k");
    CliRun run = RunCli(args, folder.Path());
    EXPECT_EQ(std::string::npos, run.err.find("unknown option")) << name << "\n" << run.err;
  }
}

TEST(CommandLineOptions, WrongWordsAreUsageErrors) {
  TempFolder folder;
  WriteFile(folder / "a.s2k", kGood);
  struct Case {
    std::vector<std::string> args;
    const char* says;
  };
  for (const Case& c : {
           Case{{"-j", "0", "a.s2k"}, "-j needs a number"},
           Case{{"-j0", "a.s2k"}, "-j needs a number"},
           Case{{"--jobs=0", "a.s2k"}, "-j needs a number"},
           Case{{"-j", "a.s2k"}, "-j needs a number"},
           Case{{"a.s2k", "-j"}, "--jobs needs N"},
           Case{{"-j", "-2", "a.s2k"}, "-j needs a number"},
           Case{{"-j", "2x", "a.s2k"}, "-j needs a number"},
           Case{{"--report"}, "--report needs FILE.json"},
           Case{{"--report=", "a.s2k"}, "--report needs a file name"},
           Case{{"--json", "a.s2k"}, "--json goes with inspect"},
           Case{{"inspect", "a.s2k", "a.s2k"}, "inspect takes one file"},
           Case{{"inspect", "-j", "2", "a.s2k"}, "inspect takes neither"},
           Case{{"-x", "a.s2k"}, "unknown option -x"},
           Case{{"-j", "2"}, "no input file"},
       }) {
    CliRun run = RunCli(c.args, folder.Path());
    EXPECT_EQ(64, run.exitCode) << c.args[0] << "\n" << run.err;
    EXPECT_NE(std::string::npos, run.err.find(c.says)) << c.args[0] << "\n" << run.err;
    EXPECT_FALSE(fs::exists(folder / "a.tvt")) << c.args[0];
  }
  // A file whose name begins with a dash is reached after "--".
  WriteFile(folder / "-b.s2k", kGood);
  EXPECT_EQ(0, RunCli({"--", "-b.s2k"}, folder.Path()).exitCode);
  EXPECT_TRUE(fs::exists(folder / "-b.tvt"));
}

TEST(CommandLineBatch, ExitStatusIsTheWorstOfTheFilesAndAStopOfOneFileEndsOnlyThatFile) {
  struct Case {
    std::vector<std::string> texts;
    int exitCode;
  };
  for (const char* jobs : {"1", "3"}) {
    for (const Case& c : {
             Case{{kGood, kGood}, 0},
             Case{{kGood, kStops, kGood}, 1},
             Case{{kStops, kFails}, 2},
             Case{{kFails, kStops, kGood}, 2},
             Case{{kGood, kFails}, 2},
         }) {
      TempFolder folder;
      std::vector<std::string> args = {"-j", jobs};
      for (std::size_t i = 0; i < c.texts.size(); ++i) {
        std::string name = "m" + std::to_string(i) + ".s2k";
        WriteFile(folder / name, c.texts[i]);
        args.push_back(name);
      }
      CliRun run = RunCli(args, folder.Path());
      EXPECT_EQ(c.exitCode, run.exitCode) << "-j " << jobs << "\n" << run.err;
      for (std::size_t i = 0; i < c.texts.size(); ++i)
        EXPECT_EQ(c.texts[i] == kGood, fs::exists(folder / ("m" + std::to_string(i) + ".tvt")))
            << "-j " << jobs << " file " << i;
    }
  }
}

TEST(CommandLineBatch, TwentyFilesInParallelGiveTheBytesAndTheLinesOfOneAtATime) {
  std::vector<std::pair<std::string, std::string>> files;  // name, text
  std::vector<fs::path> golden;
  for (const auto& entry : fs::directory_iterator(fs::path(QUILLMESH_TEST_DIR) / "golden"))
    if (fs::exists(entry.path() / "model.s2k")) golden.push_back(entry.path() / "model.s2k");
  std::sort(golden.begin(), golden.end());
  ASSERT_GE(golden.size(), 17u);
  for (std::size_t i = 0; i < 17; ++i) files.push_back({"m" + std::to_string(i) + ".s2k", ReadFile(golden[i])});
  files.push_back({"fails.s2k", kFails});
  files.push_back({"stops.s2k", kStops});
  files.push_back({"good.s2k", kGood});

  std::map<std::string, CliRun> runs;
  std::map<std::string, std::string> reports;
  std::map<std::string, std::map<std::string, std::string>> outputs;  // jobs -> tvt name -> bytes
  for (const char* jobs : {"1", "2"}) {
    TempFolder folder;
    std::vector<std::string> args = {"--message-keys", "--report", "run.json", "-j", jobs};
    for (const auto& [name, text] : files) {
      WriteFile(folder / name, text);
      args.push_back(name);
    }
    runs[jobs] = RunCli(args, folder.Path(), 60);
    reports[jobs] = ReadFile(folder / "run.json");
    for (const auto& entry : fs::directory_iterator(folder.Path()))
      if (entry.path().extension() == ".tvt") outputs[jobs][entry.path().filename()] = ReadFile(entry.path());
  }
  EXPECT_EQ(2, runs["1"].exitCode) << runs["1"].err;
  EXPECT_EQ(2, runs["2"].exitCode) << runs["2"].err;
  EXPECT_EQ(18u, outputs["1"].size());
  EXPECT_EQ(outputs["1"], outputs["2"]);
  EXPECT_EQ(runs["1"].out, runs["2"].out);
  EXPECT_EQ(runs["1"].err, runs["2"].err);
  EXPECT_NE(std::string::npos, reports["1"].find("\"stops.s2k\""));
  EXPECT_EQ(reports["1"], reports["2"]);

  // Every line names its file, and a file's lines stand together.
  std::vector<std::string> owners;
  for (const std::string& line : Lines(runs["2"].err)) {
    std::string owner;
    for (const auto& [name, text] : files)
      if (line.rfind(name + ": ", 0) == 0 || line.rfind("quillmesh: " + name + ": ", 0) == 0) owner = name;
    ASSERT_FALSE(owner.empty()) << line;
    if (owners.empty() || owners.back() != owner) owners.push_back(owner);
  }
  std::set<std::string> distinct(owners.begin(), owners.end());
  EXPECT_EQ(owners.size(), distinct.size()) << runs["2"].err;
  EXPECT_EQ(files.size(), distinct.size());
}

}  // namespace

namespace {

TEST(CommandLineBatch, CtrlCStopsTheFileUnderWayAndTheFilesNotBegun) {
  TempFolder folder;
  std::string text = "TABLE:  \"GRID LINES\"\n";
  for (int row = 0; row < 1000000; ++row) text += "   Grid=A\n";
  for (const char* name : {"a.s2k", "b.s2k", "c.s2k"}) WriteFile(folder / name, text + "\nEND\n");
  CliRun run = RunCli({"--message-keys", "--report", "run.json", "a.s2k", "b.s2k", "c.s2k"}, folder.Path(), 30,
                      "[IDS_S2KV8_Export_must_be_executed]");
  EXPECT_EQ(1, run.exitCode) << run.err;
  EXPECT_NE(std::string::npos, run.err.find("quillmesh: a.s2k: stopped by Ctrl-C")) << run.err;
  EXPECT_NE(std::string::npos, run.err.find("quillmesh: b.s2k: not converted, the run was stopped")) << run.err;
  EXPECT_NE(std::string::npos, run.err.find("quillmesh: c.s2k: not converted, the run was stopped")) << run.err;
  for (const char* name : {"a.tvt", "b.tvt", "c.tvt"}) EXPECT_FALSE(fs::exists(folder / name)) << name;
  std::string report = ReadFile(folder / "run.json");
  EXPECT_NE(std::string::npos, report.find("\"status\": \"not converted\"")) << report;
}

}  // namespace
