// Inputs that are not what the reader expects, and the real-world corpus.
#include <gtest/gtest.h>

#include "test_support.h"

namespace fs = std::filesystem;

namespace {

const std::vector<std::string> kForeignFile = {
    "message IDS_S2KV8_Export_must_be_executed", "message IDS_S2KV8_DATA_Not_Convert",
    "message IDS_S2KV8_DATA_Not_Convert",        "message IDS_S2KV8_DATA_Not_Convert",
    "message IDS_S2KV8_Not_Convert"};

TEST(Robustness, UnexpectedBytesGiveTheDocumentedEnd) {
  std::string binary;
  for (int cycle = 0; cycle < 64; ++cycle)
    for (int byte = 0; byte < 256; ++byte) binary.push_back(static_cast<char>(byte));
  struct Case {
    const char* name;
    std::string text;
    int code;
    std::vector<std::string> messages;
  };
  for (const Case& c : {
           // Read in pieces of 499 characters, each a foreign line.
           Case{"one enormous line", std::string(1 << 20, 'x'), -1, kForeignFile},
           // Every line is empty up to its first zero: a run of short lines.
           Case{"zeros", std::string(1 << 20, '\0'), 0, {kForeignFile[0]}},
           // Lines cut at their zero byte: 11 to 255 is a foreign line.
           Case{"binary", binary, -1, kForeignFile},
       }) {
    TempFolder folder;
    RecordingUserInterface ui;
    EXPECT_EQ(c.code, ConvertText(folder, c.text, ui)) << c.name;
    EXPECT_EQ(c.messages, ui.messages) << c.name;
    EXPECT_EQ(c.code == 0, fs::exists(folder / "model.tvt")) << c.name;
  }
}

TEST(Robustness, ManyRowsOfAnUnsupportedTableGiveOneMessage) {
  std::string text = "TABLE:  \"AREA AUTO MESH ASSIGNMENTS\"\n";
  for (int row = 1; row <= 10000; ++row) text += "   Area=" + std::to_string(row) + "   AutoMesh=Yes\n";
  text += "\nEND\n";
  TempFolder folder;
  RecordingUserInterface ui;
  EXPECT_EQ(0, ConvertText(folder, text, ui));
  EXPECT_EQ((std::vector<std::string>{"message IDS_S2KV8_Export_must_be_executed",
                                      "message IDS_S2KV8_AREA_AtMesh_Not_Convert"}),
            ui.messages);
}

std::vector<fs::path> CorpusFiles() {
  std::vector<fs::path> files;
  if (fs::exists(QUILLMESH_CORPUS_DIR))
    for (const auto& entry : fs::directory_iterator(QUILLMESH_CORPUS_DIR))
      if (entry.path().extension() == ".s2k") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

class Corpus : public testing::TestWithParam<fs::path> {};

TEST_P(Corpus, ConvertsToACompleteFile) {
  TempFolder folder;
  fs::copy_file(GetParam(), folder / "model.s2k");
  RecordingUserInterface ui;
  EXPECT_EQ(0, quillmesh::ConvertPath((folder / "model.s2k").string(), ui));
  std::string tvt = ReadFile(folder / "model.tvt");
  ASSERT_GE(tvt.size(), 8u);
  EXPECT_EQ("*ENDDATA", tvt.substr(tvt.size() - 8));
}

INSTANTIATE_TEST_SUITE_P(Files, Corpus, testing::ValuesIn(CorpusFiles()),
                         [](const testing::TestParamInfo<fs::path>& info) { return CaseName(info.param); });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Corpus);

}  // namespace
