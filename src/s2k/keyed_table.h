// The keyed table: integer keys to records held by copy, read out by key or
// in the walk order of a hash of 17, 1001 or 10001 buckets.
#pragma once

#include <cstdint>
#include <deque>
#include <unordered_map>
#include <utility>
#include <vector>

template <class Rec>
class CKeyedTable {
 public:
  /// Sets the bucket count that decides the walk order. Entries stay.
  void Reset(int size) {
    size_ = size > 0 ? size : 17;
    walkValid_ = false;
  }
  int Size() const { return size_; }

  /// Inserts or overwrites; an overwritten key keeps its place. \returns 1.
  template <class R>
  int SetAt(int key, R&& rec) {
    if (std::size_t at = Find(key); at != kAbsent) {
      entries_[at].second = std::forward<R>(rec);
      return 1;
    }
    std::size_t at = entries_.size();
    entries_.emplace_back(key, std::forward<R>(rec));
    walkValid_ = false;
    // Keys that are row positions (1, 2, 3 ...) go to the dense index, as
    // long as it stays within twice the entries; the rest to the hash.
    if (key >= 0 && static_cast<std::size_t>(key) < 2 * entries_.size() + kDenseSlack) {
      if (static_cast<std::size_t>(key) >= dense_.size()) dense_.resize(static_cast<std::size_t>(key) + 1, kNone);
      dense_[static_cast<std::size_t>(key)] = static_cast<std::uint32_t>(at);
    } else {
      sparse_.emplace(key, at);
    }
    return 1;
  }

  /// \returns the record of \p key, or nullptr.
  const Rec* Lookup(int key) const {
    std::size_t at = Find(key);
    return at == kAbsent ? nullptr : &entries_[at].second;
  }
  Rec* Lookup(int key) {
    std::size_t at = Find(key);
    return at == kAbsent ? nullptr : &entries_[at].second;
  }
  bool Lookup(int key, Rec& out) const {
    const Rec* rec = Lookup(key);
    if (rec) out = *rec;
    return rec != nullptr;
  }

  int Count() const { return static_cast<int>(entries_.size()); }
  bool Empty() const { return entries_.empty(); }

  /// Calls \p fn(key, rec) in walk order: buckets (key >> 4) % size from 0
  /// upward, the newest key of a bucket first.
  template <class Fn>
  void Walk(Fn&& fn) const {
    for (std::size_t i : WalkOrder()) fn(entries_[i].first, entries_[i].second);
  }
  template <class Fn>
  void Walk(Fn&& fn) {
    for (std::size_t i : WalkOrder()) fn(entries_[i].first, entries_[i].second);
  }

  /// Calls \p fn(key, rec) for keys 1 to Count that exist.
  template <class Fn>
  void ForEachKey(Fn&& fn) const {
    for (int key = 1; key <= Count(); ++key)
      if (const Rec* rec = Lookup(key)) fn(key, *rec);
  }

  /// Keys in walk order.
  std::vector<int> WalkKeys() const {
    std::vector<int> keys;
    keys.reserve(entries_.size());
    Walk([&](int key, const Rec&) { keys.push_back(key); });
    return keys;
  }

 private:
  static constexpr std::uint32_t kNone = 0xffffffffu;
  static constexpr std::size_t kAbsent = static_cast<std::size_t>(-1);
  static constexpr std::size_t kDenseSlack = 64;

  // The place of \p key in entries_, or kAbsent.
  std::size_t Find(int key) const {
    if (key >= 0 && static_cast<std::size_t>(key) < dense_.size() && dense_[static_cast<std::size_t>(key)] != kNone)
      return dense_[static_cast<std::size_t>(key)];
    if (sparse_.empty()) return kAbsent;
    auto it = sparse_.find(key);
    return it == sparse_.end() ? kAbsent : it->second;
  }

  std::uint32_t Bucket(int key) const {
    return (static_cast<std::uint32_t>(key) >> 4) % static_cast<std::uint32_t>(size_);
  }
  const std::vector<std::size_t>& WalkOrder() const {
    if (!walkValid_) {
      // Buckets in order; within a bucket the newest entry heads the chain.
      std::vector<std::size_t> start(static_cast<std::size_t>(size_) + 1, 0);
      for (const auto& entry : entries_) ++start[Bucket(entry.first) + 1];
      for (std::size_t b = 1; b < start.size(); ++b) start[b] += start[b - 1];
      walk_.resize(entries_.size());
      for (std::size_t i = entries_.size(); i-- > 0;) walk_[start[Bucket(entries_[i].first)]++] = i;
      walkValid_ = true;
    }
    return walk_;
  }

  int size_ = 17;
  std::deque<std::pair<int, Rec>> entries_;
  std::vector<std::uint32_t> dense_;
  std::unordered_map<int, std::size_t> sparse_;
  mutable std::vector<std::size_t> walk_;
  mutable bool walkValid_ = false;
};
