// The frame every per-case load block shares: *USE-STLD, header, comment,
// the case's rows, and the end mark.
#pragma once

#include <string>
#include <vector>

#include "frame/converter.h"
#include "loads/load_cases.h"
#include "s2k/keyed_table.h"

/// Writes the rows of `table` whose case (rec.*caseName) is `loadCase`, framed as a block:
/// "%s, %10s\n\n" with "*USE-STLD" and the case, then `header` (through "%s\n"; nullptr for none)
/// and `comment` (through "%s\n") before the first such row; writeRow(rec) prints each row;
/// ";End of data for load case [%s]\n" and "\n" after them. An empty table or no such row writes nothing.
/// \returns 1.
template <class Rec, class WriteRow>
int WriteCaseBlock(CS2kConverter& engine, const std::string& loadCase, const char* header, const char* comment,
                   const CKeyedTable<Rec>& table, CText Rec::*caseName, WriteRow writeRow,
                   CaseBlockOrder order = CaseBlockOrder::Walk) {
  if (table.Empty()) return 1;
  static const Rec kEmpty{};
  // Each case's rows are gathered in one pass over the table, at its first
  // block; a block then costs its own rows only.
  CLoadCases::SCaseRowIndex& index = engine.Get<CLoadCases>().CaseRowIndex(&table, order);
  if (index.count != table.Count()) {
    index.keysOf.clear();
    index.count = table.Count();
    if (order == CaseBlockOrder::Walk) {
      table.Walk([&](int key, const Rec& rec) { index.keysOf[rec.*caseName].push_back(key); });
    } else {
      // Key 0 stands for the empty record a missing first key leaves.
      int current = 0;
      for (int key = 1; key <= table.Count(); ++key) {
        if (table.Lookup(key)) current = key;
        const Rec* rec = current ? table.Lookup(current) : &kEmpty;
        index.keysOf[rec->*caseName].push_back(current);
      }
    }
  }
  auto hit = index.keysOf.find(loadCase);
  if (hit == index.keysOf.end()) return 1;
  engine.WriteText("%s, %10s\n\n", "*USE-STLD", loadCase.c_str());
  if (header) engine.WriteText("%s\n", header);
  engine.WriteText("%s\n", comment);
  for (int key : hit->second) {
    // In a walk every key is a record's, 0 too.
    const Rec* rec = order == CaseBlockOrder::KeyOrder && key == 0 ? &kEmpty : table.Lookup(key);
    writeRow(*rec);
  }
  engine.WriteText(";End of data for load case [%s]\n", loadCase.c_str());
  engine.WriteText("\n");
  return 1;
}
