// End to end: every folder under tests/golden is a model, the TVT file it
// must give byte for byte, and the messages and code of its run.
//
//   model.s2k      the input
//   expected.tvt   the output, "@OUTPUT@" standing for its own path in the
//                  header; absent when the run must leave no file
//   expected.run   "message KEY" or "text TEXT" per message, in order, then
//                  "code N"
//   stop           optional "STAGE POSITION": the user stops the run at the
//                  first advance of that stage at or past that position
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "test_support.h"

namespace fs = std::filesystem;

namespace {

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);)
    if (!line.empty()) lines.push_back(line);
  return lines;
}

std::string Replace(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

std::vector<fs::path> GoldenCases() {
  std::vector<fs::path> cases;
  for (const auto& entry : fs::directory_iterator(fs::path(QUILLMESH_TEST_DIR) / "golden"))
    if (entry.is_directory()) cases.push_back(entry.path());
  std::sort(cases.begin(), cases.end());
  return cases;
}

class Golden : public testing::TestWithParam<fs::path> {};

TEST_P(Golden, GivesExactOutputMessagesAndCode) {
  const fs::path& dir = GetParam();
  TempFolder work;
  fs::copy_file(dir / "model.s2k", work / "model.s2k");
  RecordingUserInterface ui;
  if (fs::exists(dir / "stop")) std::istringstream(ReadFile(dir / "stop")) >> ui.stopStage >> ui.stopPosition;

  int code = quillmesh::ConvertPath((work / "model.s2k").string(), ui);

  std::vector<std::string> got = ui.messages;
  got.push_back("code " + std::to_string(code));
  EXPECT_EQ(Lines(ReadFile(dir / "expected.run")), got);
  fs::path output = work / "model.tvt";
  if (fs::exists(dir / "expected.tvt")) {
    ASSERT_TRUE(fs::exists(output));
    EXPECT_EQ(Replace(ReadFile(dir / "expected.tvt"), "@OUTPUT@", output.string()), ReadFile(output));
  } else {
    EXPECT_FALSE(fs::exists(output));
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, testing::ValuesIn(GoldenCases()),
                         [](const testing::TestParamInfo<fs::path>& info) { return CaseName(info.param); });

}  // namespace
