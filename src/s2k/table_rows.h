// The row texts of one table, kept in large blocks rather than one heap
// block per row.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

class S2kTableRows {
 public:
  S2kTableRows() = default;
  S2kTableRows(std::initializer_list<std::string_view> rows);
  S2kTableRows(S2kTableRows&& other) noexcept { *this = std::move(other); }
  S2kTableRows& operator=(S2kTableRows&& other) noexcept;

  std::size_t size() const { return rows_.size(); }
  bool empty() const { return rows_.empty(); }
  std::string_view operator[](std::size_t i) const { return rows_[i]; }
  std::string_view front() const { return rows_.front(); }

  /// Keeps a copy of \p text as the next row; the rows kept don't move.
  void push_back(std::string_view text);
  /// Drops the rows and frees their memory.
  void clear();

 private:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 16;
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* free_ = nullptr;  // the free room at the end of the last full-size block
  std::size_t room_ = 0;
  std::vector<std::string_view> rows_;
};
