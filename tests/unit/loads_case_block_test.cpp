// The per-case frame of the load blocks, read in both orders, against a
// plain walk of the whole table per case.
#include <gtest/gtest.h>

#include "frame/converter.h"
#include "loads/case_block.h"
#include "recording_ui.h"
#include "test_support.h"

namespace {

struct Row {
  CText Case;
  int value = 0;
};

// Writes the blocks of \p cases over a table of \p rows under \p keys
// (0 for a key left out), each case in turn, as the load writers do.
std::string WriteBlocks(const std::vector<std::pair<int, Row>>& rows, const std::vector<std::string>& cases,
                        CaseBlockOrder order) {
  TempFolder folder;
  RecordingUserInterface ui;
  CS2kConverter engine(ui);
  CKeyedTable<Row> table;
  table.Reset(10001);
  for (const auto& [key, row] : rows) table.SetAt(key, row);
  engine.outputFile.Create((folder / "out.tvt").string(), nullptr);
  for (const std::string& loadCase : cases)
    WriteCaseBlock(engine, loadCase, "*H", "; c", table, &Row::Case,
                   [&](const Row& row) { engine.WriteText("\t%d\n", row.value); }, order);
  engine.outputFile.Close();
  return ReadFile(folder / "out.tvt");
}

std::string Block(const std::string& loadCase, const std::string& rows) {
  return "*USE-STLD, " + std::string(10 - std::min<std::size_t>(10, loadCase.size()), ' ') + loadCase +
         "\n\n*H\n; c\n" + rows + ";End of data for load case [" + loadCase + "]\n\n";
}

TEST(WriteCaseBlock, FramesEachCasesRowsInTheTablesOrder) {
  struct Case {
    const char* name;
    std::vector<std::pair<int, Row>> rows;
    std::vector<std::string> cases;
    CaseBlockOrder order;
    std::string want;
  };
  const std::vector<std::pair<int, Row>> mixed = {{1, {"A", 1}}, {2, {"B", 2}}, {3, {"A", 3}}, {17, {"A", 17}}};
  for (const Case& c : {
           Case{"walk: runs of 16 keys, newest first", mixed, {"A", "B"}, CaseBlockOrder::Walk,
                Block("A", "\t3\n\t1\n\t17\n") + Block("B", "\t2\n")},
           Case{"key order: keys 1 to the count, the gap at 4 repeating 3", mixed, {"A"}, CaseBlockOrder::KeyOrder,
                Block("A", "\t1\n\t3\n\t3\n")},
           Case{"a case without rows leaves no trace", mixed, {"C", "a", ""}, CaseBlockOrder::Walk, ""},
           Case{"a case asked twice is written twice", {{1, {"A", 1}}}, {"A", "A"}, CaseBlockOrder::Walk,
                Block("A", "\t1\n") + Block("A", "\t1\n")},
           Case{"a missing key prints the record before it again", {{1, {"A", 1}}, {3, {"B", 3}}, {4, {"A", 4}}},
                {"A", "B"}, CaseBlockOrder::KeyOrder, Block("A", "\t1\n\t1\n") + Block("B", "\t3\n")},
           Case{"a missing first key is an empty record of the empty case", {{2, {"", 2}}, {3, {"A", 3}}},
                {"", "A"}, CaseBlockOrder::KeyOrder, Block("", "\t0\n\t2\n")},
           Case{"an empty table writes nothing", {}, {"A", ""}, CaseBlockOrder::KeyOrder, ""},
       }) {
    EXPECT_EQ(c.want, WriteBlocks(c.rows, c.cases, c.order)) << c.name;
  }
}

}  // namespace
