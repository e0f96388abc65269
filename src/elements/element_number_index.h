// The element map looked up by name and kind: what a walk to the first entry
// with both finds, through open addressing over the map's keys.
#pragma once

#include <bit>
#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "elements/element_tables.h"

class CElementNumberIndex {
 public:
  /// The first entry of \p map in walk order named \p name of \p kind, or
  /// nullptr. Built at the first lookup, and again whenever the map's count
  /// has changed since.
  const TvtElementMapEntry* Find(const CKeyedTable<TvtElementMapEntry>& map, std::string_view name,
                                 std::string_view kind) {
    if (count_ != map.Count()) Build(map);
    return map.Lookup(keys_[Probe(map, name, kind)]);
  }

 private:
  // At most half the slots are taken, and a probe ends on the entry or an
  // empty slot; an empty slot holds a key the map has not.
  void Build(const CKeyedTable<TvtElementMapEntry>& map) {
    count_ = map.Count();
    absent_ = 0;
    while (map.Lookup(absent_)) --absent_;
    keys_.assign(std::bit_ceil(2 * static_cast<std::size_t>(count_) + 2), absent_);
    mask_ = keys_.size() - 1;
    map.Walk([&](int key, const TvtElementMapEntry& entry) {
      int& slot = keys_[Probe(map, entry.name, entry.kind)];
      if (slot == absent_) slot = key;  // the first in walk order stays
    });
  }

  std::size_t Probe(const CKeyedTable<TvtElementMapEntry>& map, std::string_view name, std::string_view kind) const {
    std::size_t at = std::hash<std::string_view>{}(name) & mask_;
    for (const TvtElementMapEntry* entry; (entry = map.Lookup(keys_[at])) && !(entry->name == name && entry->kind == kind);)
      at = (at + 1) & mask_;
    return at;
  }

  std::vector<int> keys_;
  std::size_t mask_ = 0;
  int absent_ = 0;
  int count_ = -1;
};
