// quillmesh inspect: each table met, what it is taken for, its rows and its
// fate, and nothing written.
#include <gtest/gtest.h>

#include <sstream>

#include "json_check.h"
#include "test_support.h"

namespace fs = std::filesystem;

namespace {

// Lines 1 to 23; each table's title line is noted beside it.
const char* kModel =
    "File C:\\models\\frame.$2k was saved on 1/2/03\n"                                      // 1
    "\n"                                                                                     // 2
    "TABLE:  \"PROGRAM CONTROL\"\n"                                                          // 3
    "   ProgramName=SAP2000   Version=8.2.3   CurrUnits=\"KN, m, C\"\n"                      // 4
    "\n"                                                                                     // 5
    "TABLE:  \"JOINT COORDINATES\"\n"                                                        // 6
    "   Joint=1   CoordSys=GLOBAL   CoordType=Cartesian   GlobalX=0   GlobalY=0   GlobalZ=0\n"
    "   Joint=2   CoordSys=GLOBAL   CoordType=Cart _\n"                                      // 8
    "      esian   GlobalX=3   GlobalY=0   GlobalZ=0\n"                                      // 9: one row of two lines
    "\n"                                                                                     // 10
    "TABLE:  \"GROUPS 1 - DEFINITIONS\"\n"                                                   // 11
    "   GroupName=ALL   Selection=Yes\n"                                                     // 12
    "\n"                                                                                     // 13
    "TABLE:  \"AREA AUTO MESH ASSIGNMENTS\"\n"                                               // 14
    "   Area=1   MeshType=Default\n"                                                         // 15
    "\n"                                                                                     // 16
    "TABLE:  \"SOMETHING NEWER\"\n"                                                          // 17
    "   A=1\n"                                                                               // 18
    "   A=2\n"                                                                               // 19
    "\n"                                                                                     // 20
    "TABLE:  \"GRID LINES\"\n"                                                               // 21
    "   CoordSys=GLOBAL   AxisDir=X   GridID=A   XRYZCoord=0\n"                              // 22
    "END TABLE DATA\n";                                                                      // 23

struct Expected {
  int line;
  const char* title;
  int tableId;  // 0: not recognised
  const char* table;
  int rows;
  const char* fate;
  std::vector<std::string> commands;
  const char* message;  // nullptr: none
};

const std::vector<Expected> kExpected = {
    {3, "\"PROGRAM CONTROL\"", 108, "PROGRAM", 1, "carried", {"*UNIT"}, nullptr},
    {6, "\"JOINT COORDINATES\"", 333, "JOINT Coordinates", 2, "carried", {"*NODE"}, nullptr},
    {11, "\"GROUPS 1 - DEFINITIONS\"", 311, "GROUPS 1", 1, "stored", {}, nullptr},
    {14, "\"AREA AUTO MESH ASSIGNMENTS\"", 112, "AREA MESH", 1, "reported", {}, "IDS_S2KV8_AREA_AtMesh_Not_Convert"},
    {17, "\"SOMETHING NEWER\"", 0, nullptr, 2, "ignored", {}, nullptr},
    {21, "\"GRID LINES\"", 106, "GRID", 1, "ignored", {}, nullptr},
};

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  std::istringstream in(text);
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

TEST(CommandLineInspect, TellsEachTableItsLineRowsAndFateAsATable) {
  TempFolder folder;
  WriteFile(folder / "model.s2k", kModel);
  CliRun run = RunCli({"inspect", "--message-keys", "model.s2k"}, folder.Path());
  ASSERT_EQ(0, run.exitCode) << run.err;
  EXPECT_FALSE(fs::exists(folder / "model.tvt"));
  std::vector<std::string> lines = Lines(run.out);
  ASSERT_EQ(kExpected.size() + 3, lines.size()) << run.out;
  EXPECT_EQ((std::vector<std::string>{"LINE", "TITLE", "TAKEN", "FOR", "ROWS", "FATE"}), Words(lines[0]));
  for (std::size_t i = 0; i < kExpected.size(); ++i) {
    const Expected& e = kExpected[i];
    std::string taken = e.tableId ? std::to_string(e.tableId) + " " + e.table : "not recognised";
    std::string fate = std::string(e.fate) == "carried"    ? "carried into " + e.commands.front()
                       : std::string(e.fate) == "stored"   ? "stored only"
                       : std::string(e.fate) == "reported" ? std::string("reported with ") + e.message
                                                           : "ignored";
    std::string want = std::to_string(e.line) + " " + e.title + " " + taken + " " + std::to_string(e.rows) + " " + fate;
    std::string got;
    for (const std::string& word : Words(lines[i + 1])) got += (got.empty() ? "" : " ") + word;
    EXPECT_EQ(want, got);
  }
  EXPECT_EQ("6 tables: 2 carried, 1 stored only, 1 reported, 2 ignored", lines[kExpected.size() + 1]);
  EXPECT_EQ("written by SAP2000 version 8.2.3", lines[kExpected.size() + 2]);
  // The reading's messages, as a conversion shows them; no version warning.
  std::vector<std::string> err = Lines(run.err);
  ASSERT_EQ(2u, err.size()) << run.err;
  EXPECT_NE(std::string::npos, err[0].find("[IDS_S2KV8_Export_must_be_executed]"));
  EXPECT_NE(std::string::npos, err[1].find("[IDS_S2KV8_AREA_AtMesh_Not_Convert]"));
}

TEST(CommandLineInspect, TellsTheSameAsJson) {
  TempFolder folder;
  WriteFile(folder / "model.s2k", kModel);
  CliRun run = RunCli({"inspect", "--json", "model.s2k"}, folder.Path());
  ASSERT_EQ(0, run.exitCode) << run.err;
  EXPECT_FALSE(fs::exists(folder / "model.tvt"));
  JsonValue json;
  std::string error;
  ASSERT_TRUE(ParseJson(run.out, json, error)) << error << "\n" << run.out;
  EXPECT_EQ("model.s2k", json["input"].text);
  EXPECT_EQ(0, json["code"].number);
  EXPECT_EQ("8.2.3", json["program"]["version"].text);
  EXPECT_EQ(JsonValue::Null, json["versionWarning"].kind);
  const JsonValue& tables = json["tables"];
  ASSERT_EQ(kExpected.size(), tables.items.size());
  for (std::size_t i = 0; i < kExpected.size(); ++i) {
    const Expected& e = kExpected[i];
    const JsonValue& t = tables[i];
    EXPECT_EQ(e.line, t["line"].number) << i;
    EXPECT_EQ(std::string("TABLE:  ") + e.title, t["title"].text) << i;
    if (e.tableId) {
      EXPECT_EQ(e.tableId, t["tableId"].number) << i;
      EXPECT_EQ(e.table, t["table"].text) << i;
    } else {
      EXPECT_EQ(JsonValue::Null, t["tableId"].kind) << i;
      EXPECT_EQ(JsonValue::Null, t["table"].kind) << i;
    }
    EXPECT_EQ(e.rows, t["rows"].number) << i;
    EXPECT_EQ(e.fate, t["fate"].text) << i;
    std::vector<std::string> commands;
    for (const JsonValue& c : t["commands"].items) commands.push_back(c.text);
    EXPECT_EQ(e.commands, commands) << i;
    if (e.message)
      EXPECT_EQ(e.message, t["message"].text) << i;
    else
      EXPECT_EQ(JsonValue::Null, t["message"].kind) << i;
  }
  std::vector<std::string> keys;
  for (const JsonValue& m : json["messages"].items) keys.push_back(m["key"].text);
  EXPECT_EQ((std::vector<std::string>{"IDS_S2KV8_Export_must_be_executed", "IDS_S2KV8_AREA_AtMesh_Not_Convert"}),
            keys);
}

TEST(CommandLineInspect, WarnsOfAFileWrittenByAnotherVersionThan8) {
  TempFolder folder;
  struct Case {
    const char* name;
    std::string text;
    const char* warns;  // nullptr: no warning
  };
  fs::path corpus = fs::path(QUILLMESH_CORPUS_DIR) / "ga-cross-frame-nonprismatic-v20.s2k";
  for (const Case& c : {
           Case{"version 20 of the corpus", ReadFile(corpus), "written by SAP2000 version 20.2.0, not 8"},
           Case{"version 8", "TABLE:  \"PROGRAM CONTROL\"\n   ProgramName=SAP2000   Version=8.0.0\n\nEND\n", nullptr},
           Case{"version 9", "TABLE:  \"PROGRAM CONTROL\"\n   ProgramName=SAP2000   Version=9.0.3\n\nEND\n",
                "written by SAP2000 version 9.0.3, not 8"},
           Case{"no program control", "TABLE:  \"GRID LINES\"\n   GridID=A\n\nEND\n", nullptr},
       }) {
    WriteFile(folder / "model.s2k", c.text);
    for (const char* form : {"--json", "--no-progress"}) {
      CliRun run = RunCli({"inspect", form, "model.s2k"}, folder.Path(), 20);
      EXPECT_EQ(0, run.exitCode) << c.name << " " << form << "\n" << run.err;
      const std::string& where = std::string(form) == "--json" ? run.out : run.err;
      if (c.warns)
        EXPECT_NE(std::string::npos, where.find(c.warns)) << c.name << " " << form << "\n" << where;
      else
        EXPECT_EQ(std::string::npos, where.find("not 8")) << c.name << " " << form << "\n" << where;
    }
    EXPECT_FALSE(fs::exists(folder / "model.tvt")) << c.name;
  }
}

TEST(CommandLineInspect, BadInputEndsAsTheReadingOfAConversionEnds) {
  struct Case {
    const char* name;
    std::string text;  // empty name of file: absent
    int exitCode;
    const char* says;  // in stdout or stderr
  };
  std::string binary;
  for (int i = 0; i < 4096; ++i) binary += static_cast<char>((i * 37 + 11) % 256);
  for (const Case& c : {
           Case{"absent", "", 2, "Cannot open input file!"},
           Case{"empty", std::string("\0", 0), 0, "0 tables"},
           Case{"older layout", "JOINT 1 X=0\n", 2, "reading failed"},
           Case{"ends inside a table", "TABLE:  \"GRID LINES\"\n   GridID=A\n   GridID=B", 1, "reading was stopped"},
           Case{"ends with a FILE line", "FILE a.$2k\n", 1, "ends with a FILE line"},
           Case{"binary", binary, 2, "reading failed"},
           Case{"title without rows", "TABLE:  \"JOINT COORDINATES\"\n\nEND\n", 0, "1 tables"},
           Case{"a folder by that name", "", 2, "Cannot open input file!"},
           Case{"CR only", "TABLE:  \"GRID LINES\"\r   GridID=A\r\rEND\r", 1, "reading was stopped"},
           Case{"NUL bytes", std::string(1 << 16, '\0'), 0, "0 tables"},
           Case{"a line of 1 MB", std::string(1 << 20, 'x') + "\n", 2, "reading failed"},
           Case{"a title of 10,000 characters", "TABLE:  \"" + std::string(10000, 'A') + "\"\n   A=1\n\nEND\n", 0,
                "not recognised"},
       }) {
    TempFolder folder;
    if (std::string(c.name) == "a folder by that name")
      fs::create_directories(folder / "model.s2k");
    else if (std::string(c.name) != "absent")
      WriteFile(folder / "model.s2k", c.text);
    CliRun run = RunCli({"inspect", "model.s2k"}, folder.Path(), 5);
    EXPECT_EQ(c.exitCode, run.exitCode) << c.name << "\n" << run.out << run.err;
    EXPECT_NE(std::string::npos, (run.out + run.err).find(c.says)) << c.name << "\n" << run.out << run.err;
    EXPECT_FALSE(fs::exists(folder / "model.tvt")) << c.name;
  }
}

}  // namespace
