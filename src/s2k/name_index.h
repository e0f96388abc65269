// Name lookups in keyed tables: what a walk to the first exact match finds,
// through a hash instead of a walk.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "s2k/keyed_table.h"

/// For every name of one text field of a table, the keys of its records in
/// walk order, and the key a whole walk ends on. Built at the first lookup,
/// and again whenever the table's count has changed since (tables only grow
/// while the file is read). A table whose records are rewritten in place
/// under the same count needs Forget.
template <class Rec>
class CNameIndex {
 public:
  /// The keys of one name, in walk order; never empty.
  struct Hit {
    std::vector<int> keys;
    int First() const { return keys.front(); }
    int Last() const { return keys.back(); }
  };

  explicit CNameIndex(std::string Rec::*name) : name_(name) {}

  /// The records named \p name, or nullptr when there are none.
  const Hit* Hits(const CKeyedTable<Rec>& table, const std::string& name) const {
    Refresh(table);
    auto it = hits_.find(name);
    return it == hits_.end() ? nullptr : &it->second;
  }

  /// \returns the key of the first record named \p name, or 0 with none.
  int FindKey(const CKeyedTable<Rec>& table, const std::string& name) const {
    const Hit* hit = Hits(table, name);
    return hit ? hit->First() : 0;
  }

  /// \returns the first record named \p name, or nullptr.
  const Rec* Find(const CKeyedTable<Rec>& table, const std::string& name) const {
    const Hit* hit = Hits(table, name);
    return hit ? table.Lookup(hit->First()) : nullptr;
  }

  /// The key a walk ends on; 0 for an empty table.
  int LastWalked(const CKeyedTable<Rec>& table) const {
    Refresh(table);
    return lastWalked_;
  }

  void Forget() const { table_ = nullptr; }

 private:
  void Refresh(const CKeyedTable<Rec>& table) const {
    if (table_ == &table && count_ == table.Count()) return;
    table_ = &table;
    count_ = table.Count();
    hits_.clear();
    lastWalked_ = 0;
    table.Walk([&](int key, const Rec& rec) {
      hits_[rec.*name_].keys.push_back(key);
      lastWalked_ = key;
    });
  }

  std::string Rec::*name_;
  mutable const CKeyedTable<Rec>* table_ = nullptr;
  mutable int count_ = -1;
  mutable int lastWalked_ = 0;
  mutable std::unordered_map<std::string, Hit> hits_;
};
