// Merging nodal masses by joint name.
#include <gtest/gtest.h>

#include "geometry/mass_tables.h"

namespace {

struct Mass {
  std::string name;
  double m;
};

// Merges and inserts each mass as the conversion does; returns the table in
// key order as "name:mX" texts.
std::vector<std::string> MergeAll(TvtMassTables& tables, const std::vector<Mass>& masses) {
  for (const Mass& mass : masses) {
    TvtNodalmassRec rec{mass.name, mass.m, 2 * mass.m, 3 * mass.m, 0, 0, mass.m};
    int key = 1;
    tables.MergeNodalMass(mass.name, key, rec);
    tables.NodalMasses.SetAt(key, rec);
  }
  std::vector<std::string> rows;
  for (int key = 1; key <= tables.NodalMasses.Count(); ++key) {
    const TvtNodalmassRec* rec = tables.NodalMasses.Lookup(key);
    if (!rec) {
      rows.push_back("gap");
      continue;
    }
    EXPECT_EQ(2 * rec->mX, rec->mY) << rec->NODE_LIST;
    EXPECT_EQ(3 * rec->mX, rec->mZ) << rec->NODE_LIST;
    EXPECT_EQ(rec->mX, rec->rmZ) << rec->NODE_LIST;
    char text[64];
    std::snprintf(text, sizeof text, "%s:%g", rec->NODE_LIST.c_str(), rec->mX);
    rows.push_back(text);
  }
  return rows;
}

TEST(MergeNodalMass, SumsUnderTheFirstKeyWithoutGaps) {
  struct Case {
    std::vector<Mass> masses;
    std::vector<std::string> want;
  };
  for (const Case& c : {
           Case{{{"7", 1}}, {"7:1"}},
           Case{{{"7", 1}, {"7", 2}}, {"7:3"}},
           Case{{{"A", 1}, {"B", 2}, {"A", 4}, {"C", 8}, {"B", 16}}, {"A:5", "B:18", "C:8"}},
           Case{{{"", 1}, {"1", 2}, {"", 4}}, {":5", "1:2"}},       // the empty name is a name
           Case{{{"a", 1}, {"A", 2}, {"a ", 4}}, {"a:1", "A:2", "a :4"}},  // exact comparison
       }) {
    TvtMassTables tables;
    tables.Reset();
    EXPECT_EQ(c.want, MergeAll(tables, c.masses));
  }
}

TEST(MergeNodalMass, LeavesTheCallersKeyOnAnEmptyTable) {
  TvtMassTables tables;
  tables.Reset();
  TvtNodalmassRec rec{"9", 1, 1, 1, 0, 0, 0};
  int key = 5;
  tables.MergeNodalMass("9", key, rec);
  EXPECT_EQ(5, key);
  EXPECT_EQ(1, rec.mX);
}

TEST(MergeNodalMass, FindsRowsThatWentInWithoutIt) {
  TvtMassTables tables;
  tables.Reset();
  MergeAll(tables, {{"1", 1}});
  // A record set straight into the table, and a merge whose record was never inserted.
  tables.NodalMasses.SetAt(2, TvtNodalmassRec{"2", 10, 20, 30, 0, 0, 10});
  TvtNodalmassRec dropped{"3", 1, 2, 3, 0, 0, 1};
  int key = 1;
  tables.MergeNodalMass("3", key, dropped);
  EXPECT_EQ(3, key);
  EXPECT_EQ((std::vector<std::string>{"1:1", "2:15", "3:4"}), MergeAll(tables, {{"2", 5}, {"3", 4}}));
}

}  // namespace
