// The JSON report of a run: its shape against the documented schema, and
// what it says of each input.
#include <gtest/gtest.h>

#include <sstream>

#include "json_check.h"
#include "quillmesh/quillmesh.hpp"
#include "test_support.h"

namespace fs = std::filesystem;

namespace {

const fs::path kTests = QUILLMESH_TEST_DIR;

JsonValue Parse(const std::string& text) {
  JsonValue value;
  std::string error;
  EXPECT_TRUE(ParseJson(text, value, error)) << error << "\n" << text;
  return value;
}

std::vector<std::string> ExpectedKeys(const fs::path& expectedRun) {
  std::vector<std::string> keys;
  std::istringstream in(ReadFile(expectedRun));
  for (std::string line; std::getline(in, line);)
    if (line.rfind("message ", 0) == 0) keys.push_back(line.substr(8));
  return keys;
}

std::vector<std::string> KeysOf(const JsonValue& input) {
  std::vector<std::string> keys;
  for (const JsonValue& message : input["messages"].items)
    keys.push_back(message["key"].kind == JsonValue::Null ? "(none)" : message["key"].text);
  return keys;
}

TEST(CommandLineReport, TellsEachInputsCodeMessagesAndCommandLinesAsTheSchemaSays) {
  TempFolder folder;
  const fs::path offsets = kTests / "golden" / "elements-offsets-rigid-zones-and-joint-offsets";
  const fs::path loads = kTests / "golden" / "loads-joint-forces-and-ground";
  WriteFile(folder / "offsets.s2k", ReadFile(offsets / "model.s2k"));
  WriteFile(folder / "loads.s2k", ReadFile(loads / "model.s2k"));
  WriteFile(folder / "stops.s2k", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\n   UY=Yes");
  WriteFile(folder / "fails.s2k", "JOINT 1 X=0\n");
  CliRun run = RunCli({"--report", "run.json", "offsets.s2k", "loads.s2k", "stops.s2k", "fails.s2k", "absent.s2k"},
                      folder.Path(), 20);
  ASSERT_EQ(2, run.exitCode) << run.err;

  JsonValue schema = Parse(ReadFile(kTests / ".." / "cli" / "report.schema.json"));
  JsonValue report = Parse(ReadFile(folder / "run.json"));
  std::vector<std::string> errors = SchemaErrors(report, schema);
  EXPECT_TRUE(errors.empty()) << errors.front();
  EXPECT_EQ(2, report["exitStatus"].number);
  EXPECT_EQ(quillmesh::Version(), report["version"].text);
  const JsonValue& inputs = report["inputs"];
  ASSERT_EQ(5u, inputs.items.size());

  struct Expected {
    const char* input;
    const char* output;
    int code;
    const char* status;
    std::vector<std::string> keys;
    const char* stopSays;  // nullptr: no stop reason
  };
  for (std::size_t i = 0; const Expected& e : {
           Expected{"offsets.s2k", "offsets.tvt", 0, "finished", ExpectedKeys(offsets / "expected.run"), nullptr},
           Expected{"loads.s2k", "loads.tvt", 0, "finished", ExpectedKeys(loads / "expected.run"), nullptr},
           Expected{"stops.s2k", "stops.tvt", 1, "stopped", {"IDS_S2KV8_Export_must_be_executed"},
                    "ends inside a table"},
           Expected{"fails.s2k", "fails.tvt", -1, "failed",
                    {"IDS_S2KV8_Export_must_be_executed", "IDS_S2KV8_Not_Convert"}, nullptr},
           Expected{"absent.s2k", "absent.tvt", -1, "failed", {"(none)"}, nullptr},
       }) {
    const JsonValue& input = inputs[i++];
    EXPECT_EQ(e.input, input["input"].text);
    EXPECT_EQ(e.output, input["output"].text) << e.input;
    EXPECT_EQ(e.code, input["code"].number) << e.input;
    EXPECT_EQ(e.status, input["status"].text) << e.input;
    EXPECT_EQ(e.keys, KeysOf(input)) << e.input;
    if (e.stopSays)
      EXPECT_NE(std::string::npos, input["stopReason"].text.find(e.stopSays)) << e.input;
    else
      EXPECT_EQ(JsonValue::Null, input["stopReason"].kind) << e.input;
    if (e.code != 0) {
      EXPECT_TRUE(input["commands"].members.empty()) << e.input;
    }
  }

  // The texts as the user read them; the argument where the text took one.
  int formatted = 0;
  for (const JsonValue& message : inputs[0]["messages"].items) {
    const std::string key = message["key"].text;
    const char* catalogue = quillmesh::LoadMessage(key.c_str());
    if (key == "IDS_S2KV8_OFFSET_REPLACE_GLOBAL") {
      ++formatted;
      ASSERT_EQ(JsonValue::String, message["argument"].kind);
      std::string text = catalogue;
      text.replace(text.find("%s"), 2, message["argument"].text);
      EXPECT_EQ(text, message["text"].text);
    } else {
      EXPECT_EQ(JsonValue::Null, message["argument"].kind) << key;
      EXPECT_EQ(catalogue, message["text"].text) << key;
    }
  }
  EXPECT_EQ(2, formatted);
  EXPECT_EQ("Cannot open input file!", inputs[4]["messages"][0]["text"].text);

  // The lines under each command of loads.tvt, counted by hand from its
  // expected file: comments and blank lines aside, each command's blocks summed.
  std::vector<std::pair<std::string, int>> commands;
  for (const auto& [name, count] : inputs[1]["commands"].members) commands.push_back({name, int(count.number)});
  std::vector<std::pair<std::string, int>> expected = {
      {"*VERSION", 1}, {"*UNIT", 1},    {"*STRUCTYPE", 1}, {"*NODE", 4},   {"*LOCALAXIS", 2},
      {"*STLDCASE", 2}, {"*USE-STLD", 0}, {"*CONLOAD", 6}, {"*SPDISP", 6}, {"*ENDDATA", 0}};
  EXPECT_EQ(expected, commands);
}

TEST(CommandLineReport, TheSchemaCheckCatchesAReportOfAnotherShape) {
  JsonValue schema = Parse(ReadFile(kTests / ".." / "cli" / "report.schema.json"));
  const std::string input =
      R"({"input": "a.s2k", "output": "a.tvt", "code": CODE, "status": STATUS, "stopReason": null,
          "messages": [MESSAGE], "commands": COMMANDS})";
  struct Case {
    const char* what;
    std::string code, status, message, commands;
    bool valid;
  };
  const std::string good = R"({"key": "K", "text": "T", "argument": null})";
  for (const Case& c : {
           Case{"a valid input", "0", R"("finished")", good, R"({"*NODE": 3})", true},
           Case{"not run", "null", R"("not converted")", good, "{}", true},
           Case{"a code of 2", "2", R"("failed")", good, "{}", false},
           Case{"an unknown status", "0", R"("done")", good, "{}", false},
           Case{"a message without text", "0", R"("finished")", R"({"key": "K", "argument": null})", "{}", false},
           Case{"a message with more", "0", R"("finished")",
                R"({"key": "K", "text": "T", "argument": null, "level": 1})", "{}", false},
           Case{"a fractional count", "0", R"("finished")", good, R"({"*NODE": 1.5})", false},
           Case{"a negative count", "0", R"("finished")", good, R"({"*NODE": -1})", false},
       }) {
    std::string text = input;
    auto put = [&](const std::string& slot, const std::string& value) { text.replace(text.find(slot), slot.size(), value); };
    put("CODE", c.code);
    put("STATUS", c.status);
    put("MESSAGE", c.message);
    put("COMMANDS", c.commands);
    JsonValue report = Parse(R"({"tool": "quillmesh", "version": "1", "exitStatus": 0, "inputs": [)" + text + "]}");
    EXPECT_EQ(c.valid, SchemaErrors(report, schema).empty()) << c.what;
  }
}

TEST(CommandLineReport, AReportThatCannotBeWrittenFailsTheRunAfterTheConversions) {
  TempFolder folder;
  WriteFile(folder / "a.s2k", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\n\nEND\n");
  fs::create_directories(folder / "taken.json");  // a folder where the report should go
  for (const char* path : {"missing/run.json", "taken.json"}) {
    fs::remove(folder / "a.tvt");
    CliRun run = RunCli({"--report", path, "a.s2k"}, folder.Path());
    EXPECT_EQ(2, run.exitCode) << path;
    EXPECT_NE(std::string::npos, run.err.find(std::string("cannot write the report ") + path)) << run.err;
    EXPECT_TRUE(fs::exists(folder / "a.tvt")) << path;
    EXPECT_EQ("a.tvt\n", run.out) << path;
    EXPECT_FALSE(fs::exists(folder / "taken.json.partial"));
  }
}

}  // namespace
