// Name lookups in keyed tables: the first record in walk order that bears a
// name, found through a hash instead of a walk.
#pragma once

#include <string>
#include <unordered_map>

#include "s2k/keyed_table.h"

/// The key of the first record in walk order of each name of one table, so
/// that a lookup gives what a walk to the first exact match gives. Built at
/// the first lookup, and again whenever the table's count has changed since.
/// A table whose records are rewritten in place under the same count needs a
/// fresh index (Forget).
template <class Rec>
class CNameIndex {
 public:
  explicit CNameIndex(std::string Rec::*name) : name_(name) {}

  /// \returns the key of the first record named \p name, or 0 with none.
  int FindKey(const CKeyedTable<Rec>& table, const std::string& name) const {
    Refresh(table);
    auto it = keys_.find(name);
    return it == keys_.end() ? 0 : it->second;
  }

  /// \returns the first record named \p name, or nullptr.
  const Rec* Find(const CKeyedTable<Rec>& table, const std::string& name) const {
    int key = FindKey(table, name);
    return key ? table.Lookup(key) : nullptr;
  }

  void Forget() const { table_ = nullptr; }

 private:
  void Refresh(const CKeyedTable<Rec>& table) const {
    if (table_ == &table && count_ == table.Count()) return;
    keys_.clear();
    table.Walk([&](int key, const Rec& rec) { keys_.try_emplace(rec.*name_, key); });
    table_ = &table;
    count_ = table.Count();
  }

  std::string Rec::*name_;
  mutable const CKeyedTable<Rec>* table_ = nullptr;
  mutable int count_ = -1;
  mutable std::unordered_map<std::string, int> keys_;
};
