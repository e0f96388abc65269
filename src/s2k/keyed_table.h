// The keyed table: integer keys to records held by copy, read out by key or
// in the walk order of a hash of 17, 1001 or 10001 buckets.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <unordered_map>
#include <utility>
#include <vector>

template <class Rec>
class CKeyedTable {
 public:
  CKeyedTable() = default;
  CKeyedTable(const CKeyedTable&) = delete;
  CKeyedTable& operator=(const CKeyedTable&) = delete;
  ~CKeyedTable() {
    for (std::uint32_t at = 0; at < count_; ++at) RecAt(at)->~Rec();
  }

  /// Sets the bucket count that decides the walk order. Entries stay.
  void Reset(int size) {
    size_ = size > 0 ? size : 17;
    walkValid_ = false;
  }
  int Size() const { return size_; }

  /// Inserts or overwrites; an overwritten key keeps its place. \returns 1.
  /// A record never moves once in: pointers from Lookup stay valid.
  template <class R>
  int SetAt(int key, R&& rec) {
    if (std::uint32_t at = Find(key); at != kNone) {
      *RecAt(at) = std::forward<R>(rec);
      return 1;
    }
    const std::uint32_t at = count_;
    if (at == chunks_.size() * kPerChunk) chunks_.push_back(std::unique_ptr<Chunk>(new Chunk));
    Chunk& chunk = *chunks_[at / kPerChunk];
    ::new (static_cast<void*>(chunk.recs + at % kPerChunk * sizeof(Rec))) Rec(std::forward<R>(rec));
    chunk.keys[at % kPerChunk] = key;
    ++count_;
    walkValid_ = false;
    // Keys 1, 2, 3 ... in the order of the rows need no index. Other keys
    // go to the dense index, as long as it stays within twice the entries;
    // the rest to the hash.
    if (prefix_ == at && static_cast<std::int64_t>(key) == static_cast<std::int64_t>(at) + 1) {
      ++prefix_;
    } else if (key >= 0 && static_cast<std::size_t>(key) < DenseLimit()) {
      if (static_cast<std::size_t>(key) >= dense_.size()) GrowDense(static_cast<std::size_t>(key));
      dense_[static_cast<std::size_t>(key)] = at;
    } else {
      sparse_.emplace(key, at);
    }
    return 1;
  }

  /// \returns the record of \p key, or nullptr.
  const Rec* Lookup(int key) const {
    std::uint32_t at = Find(key);
    return at == kNone ? nullptr : RecAt(at);
  }
  Rec* Lookup(int key) {
    std::uint32_t at = Find(key);
    return at == kNone ? nullptr : RecAt(at);
  }
  bool Lookup(int key, Rec& out) const {
    const Rec* rec = Lookup(key);
    if (rec) out = *rec;
    return rec != nullptr;
  }

  int Count() const { return static_cast<int>(count_); }
  bool Empty() const { return count_ == 0; }

  /// Calls \p fn(key, rec) in walk order: buckets (key >> 4) % size from 0
  /// upward, the newest key of a bucket first.
  template <class Fn>
  void Walk(Fn&& fn) const {
    for (std::uint32_t at : WalkOrder()) fn(KeyAt(at), *RecAt(at));
  }
  template <class Fn>
  void Walk(Fn&& fn) {
    for (std::uint32_t at : WalkOrder()) fn(KeyAt(at), *RecAt(at));
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
    keys.reserve(count_);
    Walk([&](int key, const Rec&) { keys.push_back(key); });
    return keys;
  }

 private:
  static constexpr std::uint32_t kNone = 0xffffffffu;
  static constexpr std::size_t kDenseSlack = 64;
  // Records go in chunks of a fixed count, about 4 KiB each: a big table
  // neither copies its records as it grows nor leaves freed blocks behind.
  static constexpr std::size_t kPerChunk = std::bit_floor(std::max<std::size_t>(16, 4096 / sizeof(Rec)));

  struct Chunk {
    int keys[kPerChunk];
    alignas(Rec) unsigned char recs[kPerChunk * sizeof(Rec)];
  };

  int KeyAt(std::uint32_t at) const { return chunks_[at / kPerChunk]->keys[at % kPerChunk]; }
  Rec* RecAt(std::uint32_t at) const {
    return std::launder(reinterpret_cast<Rec*>(chunks_[at / kPerChunk]->recs + at % kPerChunk * sizeof(Rec)));
  }

  std::size_t DenseLimit() const { return 2 * static_cast<std::size_t>(count_) + kDenseSlack; }

  // Doubles the dense index at least, within its limit. Whenever its room
  // grows, the keys of the hash that fit move into it: a table filled in
  // walk order meets its high keys first.
  void GrowDense(std::size_t key) {
    const std::size_t room = dense_.capacity();
    dense_.resize(std::min(std::max(key + 1, 2 * dense_.size()), DenseLimit()), kNone);
    if (dense_.capacity() == room) return;
    for (auto it = sparse_.begin(); it != sparse_.end();) {
      if (it->first >= 0 && static_cast<std::size_t>(it->first) < dense_.size()) {
        dense_[static_cast<std::size_t>(it->first)] = it->second;
        it = sparse_.erase(it);
      } else {
        ++it;
      }
    }
    if (sparse_.empty()) std::unordered_map<int, std::uint32_t>().swap(sparse_);
  }

  // The place of \p key, or kNone.
  std::uint32_t Find(int key) const {
    if (key > 0 && static_cast<std::uint32_t>(key) <= prefix_) return static_cast<std::uint32_t>(key) - 1;
    if (key >= 0 && static_cast<std::size_t>(key) < dense_.size() && dense_[static_cast<std::size_t>(key)] != kNone)
      return dense_[static_cast<std::size_t>(key)];
    if (sparse_.empty()) return kNone;
    auto it = sparse_.find(key);
    return it == sparse_.end() ? kNone : it->second;
  }

  std::uint32_t Bucket(int key) const {
    return (static_cast<std::uint32_t>(key) >> 4) % static_cast<std::uint32_t>(size_);
  }
  const std::vector<std::uint32_t>& WalkOrder() const {
    if (!walkValid_) {
      // Buckets in order; within a bucket the newest entry heads the chain.
      std::vector<std::uint32_t> start(static_cast<std::size_t>(size_) + 1, 0);
      for (std::uint32_t at = 0; at < count_; ++at) ++start[Bucket(KeyAt(at)) + 1];
      for (std::size_t b = 1; b < start.size(); ++b) start[b] += start[b - 1];
      walk_.assign(count_, 0);  // exactly the entries, no spare room
      for (std::uint32_t at = count_; at-- > 0;) walk_[start[Bucket(KeyAt(at))]++] = at;
      walkValid_ = true;
    }
    return walk_;
  }

  int size_ = 17;
  std::uint32_t count_ = 0;
  std::uint32_t prefix_ = 0;  // entries 0 to prefix_ - 1 hold keys 1 to prefix_
  std::vector<std::unique_ptr<Chunk>> chunks_;
  std::vector<std::uint32_t> dense_;
  std::unordered_map<int, std::uint32_t> sparse_;
  mutable std::vector<std::uint32_t> walk_;
  mutable bool walkValid_ = false;
};
