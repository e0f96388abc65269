// Inputs that are not what the reader expects, and the real-world corpus.
#include <gtest/gtest.h>

#include <unistd.h>

#include <fstream>
#include <functional>

#include "test_support.h"

namespace fs = std::filesystem;

namespace {

const std::string kExport = "message IDS_S2KV8_Export_must_be_executed";
const std::vector<std::string> kForeignFile = {kExport, "message IDS_S2KV8_DATA_Not_Convert",
                                               "message IDS_S2KV8_DATA_Not_Convert",
                                               "message IDS_S2KV8_DATA_Not_Convert", "message IDS_S2KV8_Not_Convert"};

// Writes \p count copies of \p piece to \p path without holding them all.
void WriteRepeated(const fs::path& path, const std::string& head, const std::string& piece, long count,
                   const std::string& tail) {
  std::ofstream out(path, std::ios::binary);
  out << head;
  std::string block;
  for (int i = 0; i < 1024; ++i) block += piece;
  for (; count >= 1024; count -= 1024) out << block;
  for (; count > 0; --count) out << piece;
  out << tail;
}

// What a conversion leaves beside its input.
enum class OnDisk { Nothing, Complete };

struct BadInput {
  const char* name;
  std::function<void(const fs::path& input)> make;  // leaves nothing for a missing file
  int code;
  std::vector<std::string> messages;
  OnDisk disk;
  std::string inOutput = "";  // a text the output holds
};

std::string Binary() {
  std::string bytes;
  for (int cycle = 0; cycle < 64; ++cycle)
    for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  return bytes;
}

const std::string kDof = "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n";
const std::string kJoints = "TABLE:  \"JOINT COORDINATES\"\n";
// *STRUCTYPE of "UX=No   UY=Yes" (UZ on by default).
const std::string kTwo = "\t2,     0, 9.806,";

// The table in the README under "Bad input": each row here is a row there.
const BadInput kBadInputs[] = {
    {"missing", [](const fs::path&) {}, -1, {"text Cannot open input file!"}, OnDisk::Nothing},
    // On this platform a folder opens for reading, but it is no file.
    {"a folder, unreadable as a file", [](const fs::path& in) { fs::create_directory(in); }, -1,
     {"text Cannot open input file!"}, OnDisk::Nothing},
    {"no read permission",
     [](const fs::path& in) {
       WriteFile(in, kDof + "   UX=No   UY=Yes\n\nEND\n");
       fs::permissions(in, fs::perms::none);
     },
     // The superuser reads it all the same.
     geteuid() == 0 ? 0 : -1, geteuid() == 0 ? std::vector<std::string>{kExport}
                                             : std::vector<std::string>{"text Cannot open input file!"},
     geteuid() == 0 ? OnDisk::Complete : OnDisk::Nothing, geteuid() == 0 ? kTwo : ""},
    {"empty", [](const fs::path& in) { WriteFile(in, ""); }, 0, {kExport}, OnDisk::Complete, "\t,      \n"},
    // Lines cut at their zero byte: the bytes 11 to 255 make a foreign line.
    {"binary", [](const fs::path& in) { WriteFile(in, Binary()); }, -1, kForeignFile, OnDisk::Nothing},
    // Every line is empty up to its first zero: a run of short lines.
    {"NUL bytes", [](const fs::path& in) { WriteFile(in, std::string(1 << 20, '\0')); }, 0, {kExport},
     OnDisk::Complete},
    {"no newline at the end, after END", [](const fs::path& in) { WriteFile(in, kDof + "   UX=No   UY=Yes\n\nEND"); },
     0, {kExport}, OnDisk::Complete, kTwo},
    // The last row is read again and again; the stop past the counted lines ends it.
    {"no newline at the end, inside a table", [](const fs::path& in) { WriteFile(in, kDof + "   UX=No   UY=Yes"); }, 1,
     {kExport}, OnDisk::Nothing},
    // CR alone ends no line: the file is one title line, seen again as a body line.
    {"CR only",
     [](const fs::path& in) { WriteFile(in, "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\r   UX=No   UY=Yes\r\rEND\r"); }, 1,
     {kExport}, OnDisk::Nothing},
    {"CR LF",
     [](const fs::path& in) { WriteFile(in, "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\r\n   UX=No   UY=Yes\r\n\r\nEND\r\n"); },
     0, {kExport}, OnDisk::Complete, kTwo},
    // Read in pieces of 499 characters, each a foreign line.
    {"a line of 1 MB", [](const fs::path& in) { WriteFile(in, std::string(1 << 20, 'x')); }, -1, kForeignFile,
     OnDisk::Nothing},
    // The pieces of the row after the first are rows without keys.
    {"a row of 1 MB",
     [](const fs::path& in) { WriteRepeated(in, kDof + "   UX=No   UY=Yes", " ", 1 << 20, "\n\nEND\n"); }, 0,
     {kExport}, OnDisk::Complete, kTwo},
    // 2 GB and more, sparse: a model, END, then zero bytes the reader never reaches.
    {"a file of 2 GB",
     [](const fs::path& in) {
       WriteFile(in, kDof + "   UX=No   UY=Yes\n\nEND\n");
       fs::resize_file(in, (1ull << 31) + 4096);
     },
     0, {kExport}, OnDisk::Complete, kTwo},
    // Units come from the first row.
    {"a million rows of one key",
     [](const fs::path& in) {
       WriteRepeated(in, "TABLE:  \"PROGRAM CONTROL\"\n", "   CurrUnits=\"Kip, in, F\"\n", 1000000, "\nEND\n");
     },
     0, {kExport}, OnDisk::Complete, "\tKIP,    IN\n"},
    // Cut into pieces of 499: the first piece names a table no one knows,
    // the rest are its rows.
    {"a title of 10,000 characters",
     [](const fs::path& in) {
       WriteFile(in, "TABLE:  \"" + std::string(10000, 'T') + "\"\n   UX=Yes\n\n" + kDof + "   UX=No   UY=Yes\n\nEND\n");
     },
     0, {kExport}, OnDisk::Complete, kTwo},
    // A row that never ends is dropped with its table: the defaults stand,
    // UX and UZ on, UY off.
    {"continuation marks without end",
     [](const fs::path& in) { WriteRepeated(in, kDof + "   UX=No _\n", "   UY=Yes _\n", 100000, "\nEND\n"); }, 0,
     {kExport}, OnDisk::Complete, "\t1,     0, 9.806,"},
    {"continuation marks to the end of the file",
     [](const fs::path& in) { WriteRepeated(in, kDof, "   UX=No _\n", 1000, ""); }, 1, {kExport}, OnDisk::Nothing},
    // A name of 10,000 characters, joined from continued lines.
    {"a name of 10,000 characters",
     [](const fs::path& in) {
       WriteRepeated(in, kJoints + "   GlobalX=1   Joint=", std::string(98, 'N') + " _\n", 100,
                     std::string(200, 'N') + "\n\nEND\n");
     },
     0, {kExport, "message IDS_S2KV8_NODE_Renumbering"}, OnDisk::Complete,
     "\t1,     1,     0,     0 \t\t;Joint=" + std::string(10000, 'N') + "\n"},
    // atof of the format's day: no inf, nan or hexadecimal; out of range is
    // infinite or 0; 400 digits are past the largest double.
    {"numbers of every odd form",
     [](const fs::path& in) {
       WriteFile(in, kJoints + "   Joint=1   GlobalX=1e400   GlobalY=-0   GlobalZ=nan\n" +
                         "   Joint=2   GlobalX=inf   GlobalY=0x1A   GlobalZ=1" + std::string(399, '0') + "\n" +
                         "   Joint=3   GlobalX=-1e400   GlobalY=1e-400   GlobalZ=-infinity\n\nEND\n");
     },
     0, {kExport}, OnDisk::Complete,
     "\t1,   inf,    -0,     0\n\t2,     0,     0,   inf\n\t3,  -inf,     0,     0\n"},
    {"a million tables",
     [](const fs::path& in) { WriteRepeated(in, "", kDof + "   UX=No   UY=Yes\n\n", 1000000, "END\n"); }, 0,
     {kExport}, OnDisk::Complete, kTwo},
};

TEST(Robustness, EveryKindOfBadInputGetsItsDocumentedEnd) {
  for (const BadInput& c : kBadInputs) {
    TempFolder folder;
    const fs::path input = folder / "model.s2k";
    c.make(input);
    RecordingUserInterface ui;
    EXPECT_EQ(c.code, quillmesh::ConvertPath(input.string(), ui)) << c.name;
    EXPECT_EQ(c.messages, ui.messages) << c.name;
    const fs::path output = folder / "model.tvt";
    if (c.disk == OnDisk::Nothing) {
      EXPECT_FALSE(fs::exists(output)) << c.name;
    } else {
      std::string tvt = ReadFile(output);
      EXPECT_TRUE(tvt.ends_with("\n\n\n*ENDDATA")) << c.name;
      EXPECT_NE(std::string::npos, tvt.find(c.inOutput)) << c.name;
    }
    std::error_code ignored;
    fs::remove(input, ignored);  // the large ones at once
  }
}

TEST(Robustness, ManyRowsOfAnUnsupportedTableGiveOneMessage) {
  std::string text = "TABLE:  \"AREA AUTO MESH ASSIGNMENTS\"\n";
  for (int row = 1; row <= 10000; ++row) text += "   Area=" + std::to_string(row) + "   AutoMesh=Yes\n";
  text += "\nEND\n";
  TempFolder folder;
  RecordingUserInterface ui;
  EXPECT_EQ(0, ConvertText(folder, text, ui));
  EXPECT_EQ((std::vector<std::string>{kExport, "message IDS_S2KV8_AREA_AtMesh_Not_Convert"}), ui.messages);
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
