// A table's row texts in blocks of 64 KiB.
#include "s2k/table_rows.h"

#include <cstring>

S2kTableRows::S2kTableRows(std::initializer_list<std::string_view> rows) {
  for (std::string_view row : rows) push_back(row);
}

// A row longer than a quarter block gets a block of its own, and the room
// left in the last one stays for the rows behind it.
void S2kTableRows::push_back(std::string_view text) {
  char* at;
  if (text.size() > kBlockSize / 4) {
    blocks_.emplace_back(new char[text.size()]);
    at = blocks_.back().get();
  } else {
    if (text.size() > room_) {
      blocks_.emplace_back(new char[kBlockSize]);
      free_ = blocks_.back().get();
      room_ = kBlockSize;
    }
    at = free_;
    free_ += text.size();
    room_ -= text.size();
  }
  if (!text.empty()) std::memcpy(at, text.data(), text.size());
  rows_.emplace_back(at, text.size());
}

S2kTableRows& S2kTableRows::operator=(S2kTableRows&& other) noexcept {
  blocks_ = std::exchange(other.blocks_, {});
  rows_ = std::exchange(other.rows_, {});
  free_ = std::exchange(other.free_, nullptr);
  room_ = std::exchange(other.room_, 0);
  return *this;
}

void S2kTableRows::clear() {
  std::vector<std::string_view>().swap(rows_);
  std::vector<std::unique_ptr<char[]>>().swap(blocks_);
  free_ = nullptr;
  room_ = 0;
}
