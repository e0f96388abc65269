// The run: output paths, file errors, progress, the catalogue, exports.
#include <gtest/gtest.h>

#include "quillmesh/quillmesh.hpp"
#include "s2k/input_file.h"
#include "test_support.h"

namespace fs = std::filesystem;

namespace {

const char* kMinimal = "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes   UY=Yes   UZ=Yes\n\nEND\n";
const char* kFallback = "Error : DLL is not loaded. check message dll!";

TEST(OutputPath, CutsAtTheLastDotAnywhereInThePath) {
  struct Case {
    std::string in, want;
  };
  for (const Case& c : {
           Case{"/m/model.s2k", "/m/model.tvt"},
           Case{"/m/model", "/m/model.tvt"},
           Case{"/m/a.b/model", "/m/a.tvt"},
           Case{"/m/model.tar.s2k", "/m/model.tar.tvt"},
           Case{"model.", "model.tvt"},
           Case{"C:\\a.b\\model", "C:\\a.tvt"},
       }) {
    EXPECT_EQ(c.want, quillmesh::OutputPathFor(c.in)) << c.in;
  }
}

TEST(Run, WritesBesideTheInputByThePathRule) {
  TempFolder folder;
  fs::create_directories(folder / "a.b");
  for (const fs::path& input : {folder / "model", folder / "a.b" / "model"}) {
    WriteFile(input, kMinimal);
    RecordingUserInterface ui;
    ui.chosenPath = input.string();
    std::string output;
    EXPECT_EQ(0, quillmesh::Convert(ui, output));
    EXPECT_EQ(quillmesh::OutputPathFor(input.string()), output);
    EXPECT_TRUE(fs::exists(output)) << output;
  }
  EXPECT_TRUE(fs::exists(folder / "model.tvt"));
  EXPECT_TRUE(fs::exists(folder / "a.tvt"));
}

TEST(Run, CancelledDialogGivesOneWithNothingShown) {
  RecordingUserInterface ui;
  std::string output = "kept";
  EXPECT_EQ(1, quillmesh::Convert(ui, output));
  EXPECT_EQ("kept", output);
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_TRUE(ui.progress.empty());
}

TEST(Run, MissingInputFailsAndLeavesTheWindowOpen) {
  TempFolder folder;
  RecordingUserInterface ui;
  EXPECT_EQ(-1, quillmesh::ConvertPath((folder / "absent.s2k").string(), ui));
  EXPECT_EQ(std::vector<std::string>{"text Cannot open input file!"}, ui.messages);
  EXPECT_EQ(std::vector<std::string>{"open 0"}, ui.progress);
  EXPECT_TRUE(ui.WindowOpen());
  EXPECT_FALSE(fs::exists(folder / "absent.tvt"));
}

TEST(Run, FileErrorsWhileWritingAreShownAndTheRunStillFinishes) {
  TempFolder folder;
  // The output's name is taken by a folder.
  fs::create_directories(folder / "model.tvt");
  RecordingUserInterface ui;
  EXPECT_EQ(0, ConvertText(folder, kMinimal, ui));
  ASSERT_EQ(2u, ui.messages.size());
  EXPECT_EQ(0u, ui.messages[1].find("text Cannot create " + (folder / "model.tvt").string() + ": "))
      << ui.messages[1];

  // An input named .tvt is its own output: held open for reading, it can't be created.
  WriteFile(folder / "input.tvt", kMinimal);
  RecordingUserInterface same;
  EXPECT_EQ(0, quillmesh::ConvertPath((folder / "input.tvt").string(), same));
  ASSERT_EQ(2u, same.messages.size());
  EXPECT_EQ(0u, same.messages[1].find("text Cannot create")) << same.messages[1];
  EXPECT_EQ(kMinimal, ReadFile(folder / "input.tvt"));
}

TEST(Run, ExistingOutputIsKeptUntilWritingBegins) {
  TempFolder folder;
  WriteFile(folder / "model.tvt", "old");
  for (int stage : {1, 2}) {
    RecordingUserInterface ui;
    ui.stopStage = stage;
    EXPECT_EQ(1, ConvertText(folder, kMinimal, ui));
    EXPECT_EQ("old", ReadFile(folder / "model.tvt"));
  }
}

TEST(Progress, FollowsTheStagesLinesAndSteps) {
  TempFolder folder;
  RecordingUserInterface ui;
  // Five reads; the row advances with the two lines counted before it.
  ASSERT_EQ(0, ConvertText(folder, std::string("File a\n") + kMinimal, ui));
  std::vector<std::string> want = {"open 5", "stage 1", "advance 2", "stage 2", "range 20"};
  for (int step = 1; step <= 19; ++step) want.push_back("advance " + std::to_string(step));
  want.insert(want.end(), {"stage 3", "range 37"});
  for (int step = 1; step <= 37; ++step) want.push_back("advance " + std::to_string(step));
  want.push_back("close");
  EXPECT_EQ(want, ui.progress);
}

TEST(Progress, CountsReadsOfAtMost499Characters) {
  const std::string x499(499, 'x'), x498(498, 'x');
  struct Case {
    const char* name;
    std::string text;
    int reads;
  };
  for (const Case& c : {
           Case{"empty", "", 0},
           Case{"one line", "a\n", 1},
           Case{"no newline at the end", "a\nb", 2},
           Case{"empty lines", "\n\n\n", 3},
           Case{"498 and a newline", x498 + "\n", 1},
           Case{"499 and a newline", x499 + "\n", 2},
           Case{"498 and CR LF", x498 + "\r\n", 1},
           Case{"499 and CR LF", x499 + "\r\n", 2},
           Case{"CR alone is a character", x498 + "\rx\n", 2},
           Case{"CR only", "a\rb\rc\r", 1},
           Case{"CR at the end", "a\r", 1},
           Case{"1000 without newline", std::string(1000, 'x'), 3},
           Case{"zero bytes count", std::string("\0\0\n\0", 4), 2},
           Case{"CR LF across the buffer", std::string(65535, '\n') + "\r\nx", 65537},
       }) {
    TempFolder folder;
    WriteFile(folder / "model.s2k", c.text);
    const std::string path = (folder / "model.s2k").string();
    EXPECT_EQ(c.reads, S2kInputFile::CountLines(path)) << c.name;
    S2kInputFile file;
    ASSERT_TRUE(file.Open(path));
    int reads = 0;
    for (std::string line; file.ReadLine(line);) ++reads;
    EXPECT_EQ(c.reads, reads) << c.name;
  }
}

TEST(Progress, AStopClosesTheWindowAtOnce) {
  TempFolder folder;
  RecordingUserInterface ui;
  ui.stopStage = 2;
  ui.stopPosition = 3;
  EXPECT_EQ(1, ConvertText(folder, kMinimal, ui));
  EXPECT_EQ("advance 3", ui.progress.back());
  EXPECT_FALSE(ui.WindowOpen());
}

TEST(Reading, EndsByItselfOrThroughTheStopInEveryWayTheFileCanEnd) {
  struct Case {
    const char* name;
    std::string text;
    int code;
    bool endsInFileLine;
  };
  for (const Case& c : {
           Case{"only a FILE line", "FILE a.$2k was saved\n", 1, true},
           Case{"FILE line without newline", "file a.$2k", 1, true},
           Case{"FILE line after a table", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\nFILE b\n", 1, true},
           Case{"inside a table", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes", 1, false},
           Case{"on a TABLE line", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"", 1, false},
           Case{"on a short line", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\n  ", 0, false},
           Case{"on a foreign line", "FILE a\nFILE b\nFILE c\nSome words", -1, false},
       }) {
    TempFolder folder;
    RecordingUserInterface ui;
    EXPECT_EQ(c.code, ConvertText(folder, c.text, ui)) << c.name;
    EXPECT_EQ(c.endsInFileLine, ui.endsInFileLine) << c.name;
    EXPECT_FALSE(ui.WindowOpen()) << c.name;
    EXPECT_EQ(c.code == 0, fs::exists(folder / "model.tvt")) << c.name;
  }
}

TEST(Catalogue, WithoutItEveryMessageReadsTheFallback) {
  TempFolder folder;
  // A lone foreign line is seen again until it ends the run: five messages.
  RecordingUserInterface bound;
  ConvertText(folder, "Model A\n", bound);
  ASSERT_EQ(5u, bound.texts.size());
  EXPECT_NE(kFallback, bound.texts[0]);

  quillmesh::ReleaseMessageLibrary();
  RecordingUserInterface unbound;
  ConvertText(folder, "Model A\n", unbound);
  struct FilterProbe : RecordingUserInterface {
    std::string seen;
    bool ChooseInputFile(const std::string& f, std::string&) override {
      seen = f;
      return false;
    }
  } probe;
  std::string output;
  quillmesh::Convert(probe, output);
  EXPECT_TRUE(quillmesh::BindMessageLibrary());

  EXPECT_EQ(std::vector<std::string>(5, kFallback), unbound.texts);
  EXPECT_EQ(bound.messages, unbound.messages);
  EXPECT_EQ(kFallback, probe.seen);
  EXPECT_EQ(std::string(bound.texts[0]), quillmesh::LoadMessage("IDS_S2KV8_Export_must_be_executed"));
}

TEST(Catalogue, HoldsEveryKeyAndTheFilterForS2kFiles) {
  const char* keys[] = {
      "IDS_S2KV8_FILE_FILTER", "IDS_S2KV8_Export_must_be_executed", "IDS_S2KV8_Not_Convert",
      "IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_AREA_AtMesh_Not_Convert", "IDS_S2KV8_AREA_PrPrsr_Not_Convert",
      "IDS_S2KV8_AREA_Local_Not_Convert", "IDS_S2KV8_AREA_Stif_Not_Convert", "IDS_S2KV8_SEIS_Data_Not_Convert",
      "IDS_S2KV8_WIND_Data_Not_Convert", "IDS_S2KV8_SOLD_PrPrsr_Not_Convert", "IDS_S2KV8_SOLD_SurfP_Not_Convert",
      "IDS_S2KV8_SOLD_Local_Not_Convert", "IDS_S2KV8_SOLD_Spr_Not_Convert", "IDS_S2KV8_NODE_NOT_Cylindrical",
      "IDS_S2KV8_NODE_Renumbering", "IDS_S2KV8_NODE_Not_Assgn", "IDS_S2KV8_ELEM_Renumbering",
      "IDS_S2KV8_ELEM_Length_Zero", "IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_PLAT_LclAx_Not_Convert",
      "IDS_S2KV8_SOLD_LclAx_Not_Convert", "IDS_S2KV8_MATL_ANIS_Not_Convert", "IDS_S2KV8_SECT_Not_Trans",
      "IDS_S2KV8_SECT_SSEC_Not_Define", "IDS_S2KV8_SECT_ESEC_Not_Define", "IDS_S2KV8_SECT_TAPP_Not_Convert",
      "IDS_S2KV8_AREA_Prop_Not_Convert", "IDS_S2KV8_AREA_Thik_Mod_Not_Confert", "IDS_S2KV8_NODE_NSPR_Not_Convert",
      "IDS_S2KV8_FRAME_2_NSPR", "IDS_S2KV8_PLATE_2_NSPR", "IDS_S2KV8_PLATE_NSPR_Not_Convert",
      "IDS_S2KV8_STLC_Not_Convert", "IDS_S2KV8_PLATE_SurfP_Not_Convert", "IDS_S2KV8_BEAM_End_Release",
      "IDS_S2KV8_BEAM_End_Off_Rls", "IDS_S2KV8_OFFSET_REPLACE_GLOBAL", "IDS_S2KV8_OFFSET_LOCAL_DIR",
      "IDS_S2KV8_NOCONVERT_AREA_GRAV", "IDS_S2KV8_FRAM_GRAV_Not_Convert", "IDS_S2KV8_RESP_BOCA96_Not_Convert",
      "IDS_S2KV8_RESP_FILE_Not_Convert", "IDS_S2KV8_RESP_NHERP97_Not_Convert", "IDS_S2KV8_RESP_NZS4203_Not_Convert",
      "IDS_S2KV8_RESP_SPLC_Not_Convert", "IDS_S2KV8_BUCK_LdType_Not_Convert", "IDS_S2KV8_THLC_Data_Not_Convert",
      "IDS_S2KV8_MDHT_IntpDamp_Not_Convert", "IDS_S2KV8_TMHT_NewMark_Only_Convert", "IDS_S2KV8_TMHT_Func_Not_Convert",
      "IDS_S2KV8_NOCONVERT_VEHICLE", "IDS_S2KV8_MAXLOADED_VEHICLE_CLASS", "IDS_S2KV8_LINK_Sinlge_Joint",
      "IDS_S2KV8_LINK_Mult_Lin_Not_Convert", "IDS_S2KV8_LINK_Mult_Kine_Not_Convert",
      "IDS_S2KV8_REST_Local_Not_Convert", "IDS_S2KV8_REST_AutoAX_Not_Convert",
  };
  EXPECT_EQ(58u, std::size(keys));
  for (const char* key : keys) {
    std::string text = quillmesh::LoadMessage(key);
    EXPECT_NE(key, text);
    EXPECT_NE(kFallback, text);
    std::size_t formats = 0;
    for (std::size_t at = 0; (at = text.find('%', at)) != std::string::npos; ++at) ++formats;
    bool takesArgument = std::string(key) == "IDS_S2KV8_OFFSET_REPLACE_GLOBAL" ||
                         std::string(key) == "IDS_S2KV8_NOCONVERT_VEHICLE";
    EXPECT_EQ(takesArgument ? 1u : 0u, formats) << key;
    if (takesArgument) {
      EXPECT_NE(std::string::npos, text.find("%s")) << key;
    }
  }
  EXPECT_NE(std::string::npos, std::string(quillmesh::LoadMessage("IDS_S2KV8_FILE_FILTER")).find("*.s2k"));
}

}  // namespace
