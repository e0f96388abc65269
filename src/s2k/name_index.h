// Name lookups in keyed tables: what a walk to the first exact match finds,
// through a hash instead of a walk.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "s2k/keyed_table.h"
#include "s2k/text.h"

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
    std::span<const int> keys;
    int First() const { return keys.front(); }
    int Last() const { return keys.back(); }
  };

  explicit CNameIndex(CText Rec::*name) : name_(name) {}

  /// The records named \p name, or nullptr when there are none.
  const Hit* Hits(const CKeyedTable<Rec>& table, std::string_view name) const {
    Refresh(table);
    auto it = groups_.find(name);
    return it == groups_.end() ? nullptr : &hits_[it->second];
  }

  /// \returns the key of the first record named \p name, or 0 with none.
  int FindKey(const CKeyedTable<Rec>& table, std::string_view name) const {
    const Hit* hit = Hits(table, name);
    return hit ? hit->First() : 0;
  }

  /// \returns the first record named \p name, or nullptr.
  const Rec* Find(const CKeyedTable<Rec>& table, std::string_view name) const {
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
    groups_.clear();
    lastWalked_ = 0;
    // The keys of each name lie together in one array, in walk order.
    std::vector<std::uint32_t> groupOf;
    std::vector<std::uint32_t> start;
    groupOf.reserve(static_cast<std::size_t>(count_));
    table.Walk([&](int, const Rec& rec) {
      auto [it, fresh] = groups_.try_emplace(rec.*name_, static_cast<std::uint32_t>(start.size()));
      if (fresh) start.push_back(0);
      ++start[it->second];
      groupOf.push_back(it->second);
    });
    std::uint32_t sum = 0;
    for (std::uint32_t& at : start) sum += std::exchange(at, sum);
    keys_.assign(groupOf.size(), 0);
    hits_.assign(start.size(), Hit{});
    std::size_t i = 0;
    table.Walk([&](int key, const Rec&) {
      keys_[start[groupOf[i]]++] = key;
      lastWalked_ = key;
      ++i;
    });
    std::uint32_t begin = 0;
    for (std::size_t g = 0; g < start.size(); ++g) {
      hits_[g].keys = std::span<const int>(keys_.data() + begin, start[g] - begin);
      begin = start[g];
    }
  }

  CText Rec::*name_;
  mutable const CKeyedTable<Rec>* table_ = nullptr;
  mutable int count_ = -1;
  mutable int lastWalked_ = 0;
  mutable std::unordered_map<CText, std::uint32_t, CTextHash, std::equal_to<>> groups_;
  mutable std::vector<int> keys_;
  mutable std::vector<Hit> hits_;
};
