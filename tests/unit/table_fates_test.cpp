// The one table of what becomes of each table agrees with what the reader
// does: every table it parses is carried or stored, every table that warns
// when read is reported, and nothing is listed twice or out of order.
#include <gtest/gtest.h>

#include <map>

#include "frame/steps.h"
#include "frame/table_fates.h"
#include "s2k/table_titles.h"

namespace {

TEST(TableFates, AgreeWithTheParsersAndWarningsOfTheReader) {
  std::map<int, const STableFate*> fates;
  int previous = 0;
  for (const STableFate& fate : TableFates()) {
    EXPECT_LT(previous, fate.tableId) << "out of order or twice";
    previous = fate.tableId;
    fates[fate.tableId] = &fate;
    EXPECT_EQ(&fate, FindTableFate(fate.tableId));
    if (fate.fate == TableFate::Carried) {
      EXPECT_EQ('*', fate.what ? fate.what[0] : 0) << fate.tableId;
    }
    if (fate.fate == TableFate::Stored) {
      EXPECT_EQ(nullptr, fate.what) << fate.tableId;
    }
  }
  for (const std::vector<S2kTableParser>* list : TableParserLists())
    for (const S2kTableParser& parser : *list) {
      ASSERT_EQ(1u, fates.count(parser.tableId)) << parser.tableId << " is parsed but has no fate";
      EXPECT_TRUE(fates[parser.tableId]->fate != TableFate::Reported || fates[parser.tableId]->what)
          << parser.tableId << " is parsed, not only warned of";
    }
  for (const S2kWarningTable& warning : kWarningTables) {
    ASSERT_EQ(1u, fates.count(warning.tableId)) << warning.tableId;
    EXPECT_EQ(TableFate::Reported, fates[warning.tableId]->fate) << warning.tableId;
    EXPECT_EQ(nullptr, fates[warning.tableId]->what) << warning.tableId << ": the reader's key is the one";
  }
  for (int id : {0, 100, 105, 106, 122, 600}) EXPECT_EQ(nullptr, FindTableFate(id)) << id;
}

}  // namespace
