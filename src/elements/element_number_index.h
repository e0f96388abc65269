// The element map looked up by name and kind: what a walk to the first entry
// with both finds, through open addressing over the map's own entries.
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
    return slots_[Probe(name, kind)];
  }

 private:
  // The map's entries never move, so the slots point at them; at most half
  // the slots are taken, and a probe ends on the entry or an empty slot.
  void Build(const CKeyedTable<TvtElementMapEntry>& map) {
    count_ = map.Count();
    slots_.assign(std::bit_ceil(2 * static_cast<std::size_t>(count_) + 2), nullptr);
    mask_ = slots_.size() - 1;
    map.Walk([&](int, const TvtElementMapEntry& entry) {
      const TvtElementMapEntry*& slot = slots_[Probe(entry.name, entry.kind)];
      if (!slot) slot = &entry;  // the first in walk order stays
    });
  }

  std::size_t Probe(std::string_view name, std::string_view kind) const {
    std::size_t at = std::hash<std::string_view>{}(name) & mask_;
    for (const TvtElementMapEntry* entry; (entry = slots_[at]) && !(entry->name == name && entry->kind == kind);)
      at = (at + 1) & mask_;
    return at;
  }

  std::vector<const TvtElementMapEntry*> slots_;
  std::size_t mask_ = 0;
  int count_ = -1;
};
