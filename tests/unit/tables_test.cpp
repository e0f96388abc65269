// Keyed tables, title recognition and the shared row parser.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "frame/converter.h"
#include "frame/steps.h"
#include "recording_ui.h"
#include "s2k/fields.h"
#include "s2k/table_parsers.h"
#include "s2k/table_titles.h"

namespace {

std::vector<int> Range(int from, int to) {  // inclusive, either direction
  std::vector<int> keys;
  for (int k = from; from <= to ? k <= to : k >= to; from <= to ? ++k : --k) keys.push_back(k);
  return keys;
}

std::vector<int> Concat(std::initializer_list<std::vector<int>> parts) {
  std::vector<int> all;
  for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

std::vector<int> WalkOf(int buckets, int rows) {
  CKeyedTable<int> table;
  table.Reset(buckets);
  for (int key = 1; key <= rows; ++key) table.SetAt(key, key * 10);
  return table.WalkKeys();
}

std::vector<int> Head(const std::vector<int>& keys, std::size_t n) {
  return {keys.begin(), keys.begin() + static_cast<long>(std::min(n, keys.size()))};
}

TEST(KeyedTable, WalksInRunsOfSixteenAndWrapsWithTheBucketCount) {
  EXPECT_EQ(Concat({Range(15, 1), Range(20, 16)}), WalkOf(10001, 20));
  EXPECT_EQ(Concat({Range(15, 1), Range(20, 16)}), WalkOf(17, 20));
  // 17 buckets: key 272 falls into bucket 0 again, and the newest comes first.
  EXPECT_EQ(Concat({Range(287, 272), Range(15, 1), Range(300, 288), Range(31, 16)}), Head(WalkOf(17, 300), 60));
  EXPECT_EQ(Concat({Range(16020, 16016), Range(15, 1), Range(31, 16)}), Head(WalkOf(1001, 16020), 36));
  EXPECT_EQ(Concat({Range(160020, 160016), Range(15, 1)}), Head(WalkOf(10001, 160020), 20));
}

TEST(KeyedTable, OverwritesInPlaceAndLooksUp) {
  CKeyedTable<std::string> table;
  table.Reset(10001);
  for (int key = 1; key <= 3; ++key) table.SetAt(key, "first");
  table.SetAt(2, "second");
  EXPECT_EQ(3, table.Count());
  EXPECT_EQ((std::vector<int>{3, 2, 1}), table.WalkKeys());
  std::string got = "stale";
  EXPECT_TRUE(table.Lookup(2, got));
  EXPECT_EQ("second", got);
  EXPECT_FALSE(table.Lookup(9, got));
  EXPECT_EQ("second", got);  // a failed lookup leaves the output alone
  std::vector<int> keyOrder;
  table.ForEachKey([&](int key, const std::string&) { keyOrder.push_back(key); });
  EXPECT_EQ((std::vector<int>{1, 2, 3}), keyOrder);
}

TEST(KeyedTable, FindsKeysFarApartNegativeOrHuge) {
  CKeyedTable<int> table;
  table.Reset(17);
  const int keys[] = {1000000, 1, -5, 2, 3000, 2147483647, 0, -2147483647 - 1, 4, 70};
  for (int key : keys) table.SetAt(key, key / 2);
  table.SetAt(3000, 7);  // overwritten in place
  table.SetAt(1000000, 8);
  EXPECT_EQ(10, table.Count());
  for (int key : keys) {
    int got = -1;
    EXPECT_TRUE(table.Lookup(key, got)) << key;
    EXPECT_EQ(key == 3000 ? 7 : key == 1000000 ? 8 : key / 2, got) << key;
  }
  for (int absent : {3, 5, 69, 71, 999999, -4, 2147483646}) EXPECT_EQ(nullptr, table.Lookup(absent)) << absent;
  // Buckets of 17: 0 to 15 in bucket 0, 3000 in 187 % 17 = 0, 70 in 4,
  // 1000000 in 62500 % 17 = 8; the others by their unsigned value shifted:
  // 0x07FFFFFF % 17 = 7, 0x08000000 % 17 = 8, 0x0FFFFFFF % 17 = 15 for -5.
  // The newest of a bucket comes first.
  EXPECT_EQ((std::vector<int>{4, 0, 3000, 2, 1, 70, 2147483647, -2147483647 - 1, 1000000, -5}), table.WalkKeys());
}

// Keys in the order of the rows, then out of it: each found, none made up.
TEST(KeyedTable, FindsKeysInAnyOrder) {
  const std::vector<int> orders[] = {
      {1, 2, 3, 4, 5}, {1, 2, 3, 0, 4, 5}, {1, 2, 4, 3}, {2, 1, 3}, {1, 2, 3, -1, 100000, 4, 6}, {0, 1, 2},
      Range(3000, 1), WalkOf(17, 3000), Concat({Range(-1, -500), Range(1, 800), Range(100000, 99000)}),
  };
  for (const std::vector<int>& keys : orders) {
    CKeyedTable<int> table;
    for (int key : keys) table.SetAt(key, key * 10);
    for (int key : keys) table.SetAt(key, *table.Lookup(key) + 1);  // overwritten in place
    EXPECT_EQ(static_cast<int>(keys.size()), table.Count());
    for (int key : keys) {
      const int* got = table.Lookup(key);
      ASSERT_NE(nullptr, got) << key;
      EXPECT_EQ(key * 10 + 1, *got) << key;
    }
    for (int other : {-501, -2, 0, 5, 6, 7, 801, 3001, 98999, 99999, 100001}) {
      if (std::find(keys.begin(), keys.end(), other) == keys.end()) {
        EXPECT_EQ(nullptr, table.Lookup(other)) << other;
      }
    }
  }
}

// Counts the records alive, to see each one made once and destroyed once.
struct CountedRow {
  static inline int alive = 0;
  std::string text;
  explicit CountedRow(std::string t) : text(std::move(t)) { ++alive; }
  CountedRow(const CountedRow& other) : text(other.text) { ++alive; }
  CountedRow& operator=(const CountedRow&) = default;
  ~CountedRow() { --alive; }
};

// Callers keep the records they looked up while the table grows.
TEST(KeyedTable, KeepsRecordsInPlaceAsItGrows) {
  {
    CKeyedTable<CountedRow> table;
    table.Reset(10001);
    std::vector<const CountedRow*> held;
    for (int key = 1; key <= 40; ++key) {
      table.SetAt(key, CountedRow("row " + std::to_string(key) + " with a text too long to sit inside the string"));
      held.push_back(table.Lookup(key));
    }
    const CountedRow* far = nullptr;
    for (int key = 41; key <= 30000; ++key) {
      table.SetAt(key % 2 ? key : -key, CountedRow(std::to_string(key)));
      if (key == 50) far = table.Lookup(-50);
      if (key % 5000 == 0) table.WalkKeys();
    }
    table.SetAt(7, CountedRow("seven again"));
    EXPECT_EQ(30000, table.Count());
    EXPECT_EQ(30000, CountedRow::alive);
    for (int key = 1; key <= 40; ++key) {
      EXPECT_EQ(held[static_cast<std::size_t>(key - 1)], table.Lookup(key)) << key;
      EXPECT_EQ(key == 7 ? "seven again" : "row " + std::to_string(key) + " with a text too long to sit inside the string",
                held[static_cast<std::size_t>(key - 1)]->text);
    }
    EXPECT_EQ(far, table.Lookup(-50));
    EXPECT_EQ("50", far->text);
    std::size_t walked = 0;
    table.Walk([&](int key, const CountedRow& row) {
      walked += &row == table.Lookup(key);
    });
    EXPECT_EQ(30000u, walked);
  }
  EXPECT_EQ(0, CountedRow::alive);
}

TEST(Recognition, FirstWordAtColumnNineThenTheFirstMemberWordAnywhere) {
  RecordingUserInterface ui;
  CS2kConverter engine(ui);
  struct Case {
    std::string title;
    int want;
  };
  for (const Case& c : {
           Case{"TABLE:  \"ACTIVE DEGREES OF FREEDOM\"", 101},
           Case{"TABLE:  \"JOINT COORDINATES\"", 333},
           Case{"TABLE:  \"JOINT\"", 0},
           Case{"TABLE: \"JOINT COORDINATES\"", 0},    // one blank
           Case{"TABLE:   \"JOINT COORDINATES\"", 0},  // three blanks
           Case{"TABLE:  \"GENERALIZED DISPLACEMENTS\"", 105},
           Case{"TABLE:  \"AUTO SEISMIC - UBC97 ISOLATED\"", 136},
           Case{"TABLE:  \"AUTO SEISMIC - UBC97\"", 136},
           Case{"TABLE:  \"AUTO WIND - ASCE7-98\"", 146},
           Case{"TABLE:  \"AREA LOADS - TEMPERATURE\"", 117},
           Case{"TABLE:  \"AREA MATERIAL TEMPERATURE\"", 117},
           Case{"TABLE:  \"AREA UNIFORM TO FRAME LOADS\"", 118},
           Case{"TABLE:  \"AREA LOADS - UNIFORM\"", 119},
           Case{"TABLE:  \"DATABASE FIELD DEFINITIONS\"", 222},
           Case{"TABLE:  \"DATABASE OTHER\"", 224},  // "TABLE" is in every title
           Case{"TABLE:  \"FRAME LOADS - TEMPERATURE\"", 238},
           Case{"TABLE:  \"FRAME SECTION ASSIGNMENTS\"", 252},
           Case{"TABLE:  \"FRAME SECTION PROPERTIES 1 - GENERAL\"", 253},
           Case{"TABLE:  \"FRAME SECTION PROPERTIES 01 - GENERAL\"", 0},  // the member word is "1 - GENERAL"
           Case{"TABLE:  \"MATERIAL PROPERTIES 01 - GENERAL\"", 381},
           Case{"TABLE:  \"MATERIAL PROPERTIES 02 - BASIC MECHANICAL PROPERTIES\"", 382},
           Case{"TABLE:  \"GROUPS 3 - MASSES AND WEIGHTS\"", 313},
           Case{"TABLE:  \"LINK PROPERTY DEFINITIONS 10 - PLASTIC (WEN)\"", 363},
           Case{"TABLE:  \"JOINT SPRING ASSIGNMENTS 2 - COUPLED\"", 343},
           Case{"TABLE:  \"SOLIDS\"", 0},
           Case{"TABLE:  \"SOLID PROPERTY ASSIGNMENTS\"", 489},
           Case{"TABLE:  \"CONNECTIVITY - FRAME\"", 202},
           Case{"TABLE:  \"BRIDGE LOADS 3 - VEHICLES 2\"", 163},
           Case{"TABLE:  \"OPTIONS - COLORS\"", 600},
           Case{"TABLE:  \"PROGRAM CONTROL\"", 108},
           Case{"TABLE:  \"NOT A TABLE\"", 0},
       }) {
    EXPECT_EQ(c.want, engine.RecogniseTable(c.title)) << c.title;
  }
}

TEST(Recognition, EveryTableHasOneParserOrOneWarningAtMost) {
  std::map<int, int> owners;
  for (const std::vector<S2kTableParser>* list : TableParserLists())
    for (const S2kTableParser& entry : *list) ++owners[entry.tableId];
  for (const S2kWarningTable& entry : kWarningTables) ++owners[entry.tableId];
  for (const auto& [id, count] : owners) EXPECT_EQ(1, count) << "table " << id;
}

struct TestRow {
  CText Name, Type;
  double Value = 7;
  int Count = 0, On = 0;
};

constexpr S2kField<TestRow> kTestKeys[] = {
    TextKey("Name=", &TestRow::Name),       TextKey("Type=", &TestRow::Type),
    NumberKey("Value=", &TestRow::Value),   IntegerKey("Count=", &TestRow::Count),
    FlagKey("On=", &TestRow::On),
};

TEST(ParseRows, KeysRowsByPositionWithDefaultsForMissingKeys) {
  const S2kTableRows rows = {
      "Name=A   Type=X   Value=1.5   Count=2.9   On=Yes",
      "Type=Y",                                        // missing keys keep the defaults
      "Name=C   AreaType=Z   Name=D   Count=1e10",     // substring key, repeated key, out of range
      "",
  };
  CKeyedTable<TestRow> table;
  ASSERT_EQ(1, ParseRows(rows, kTestKeys, table));
  ASSERT_EQ(4, table.Count());
  const TestRow* a = table.Lookup(1);
  EXPECT_EQ("A", a->Name);
  EXPECT_EQ(1.5, a->Value);
  EXPECT_EQ(2, a->Count);
  EXPECT_EQ(1, a->On);
  const TestRow* b = table.Lookup(2);
  EXPECT_EQ("", b->Name);
  EXPECT_EQ("Y", b->Type);
  EXPECT_EQ(7, b->Value);
  const TestRow* c = table.Lookup(3);
  EXPECT_EQ("C", c->Name);
  EXPECT_EQ("Z", c->Type);
  EXPECT_EQ(-2147483647 - 1, c->Count);
  EXPECT_EQ("", table.Lookup(4)->Name);

  // A second table of the same kind overwrites key by key.
  ASSERT_EQ(1, ParseRows(S2kTableRows{"Name=E"}, kTestKeys, table));
  EXPECT_EQ("E", table.Lookup(1)->Name);
  EXPECT_EQ("Y", table.Lookup(2)->Type);
}

}  // namespace
