// CText: a text field of a record in eight bytes. Up to six characters stay
// in place; a longer text lives in a block that copies share. Models hold
// hundreds of thousands of names, most of them short, so this keeps a record
// near the size of its numbers.
#pragma once

#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <new>
#include <string>
#include <string_view>

static_assert(std::endian::native == std::endian::little, "CText keeps its tag in the lowest byte");

class CText {
 public:
  static constexpr std::size_t kInPlace = 6;

  CText() noexcept { SetInPlace({}); }
  CText(std::string_view text) { Assign(text); }  // NOLINT: a text converts freely
  CText(const char* text) : CText(std::string_view(text)) {}
  CText(const std::string& text) : CText(std::string_view(text)) {}
  CText(const CText& other) noexcept : bytes_(other.bytes_) {
    if (Block* block = Shared()) block->refs.fetch_add(1, std::memory_order_relaxed);
  }
  CText(CText&& other) noexcept : bytes_(other.bytes_) { other.SetInPlace({}); }
  ~CText() { Release(); }

  CText& operator=(const CText& other) noexcept {
    if (this != &other) {
      CText copy(other);
      Swap(copy);
    }
    return *this;
  }
  CText& operator=(CText&& other) noexcept {
    if (this != &other) {
      Release();
      bytes_ = other.bytes_;
      other.SetInPlace({});
    }
    return *this;
  }
  CText& operator=(std::string_view text) {
    Release();
    Assign(text);
    return *this;
  }
  CText& operator=(const std::string& text) { return *this = std::string_view(text); }
  CText& operator=(const char* text) { return *this = std::string_view(text); }

  CText& operator+=(std::string_view more) { return *this = str().append(more); }
  CText& operator+=(char more) { return *this = str().append(1, more); }

  std::string_view View() const noexcept { return {data(), size()}; }
  operator std::string_view() const noexcept { return View(); }  // NOLINT
  std::string str() const { return std::string(View()); }
  operator std::string() const { return str(); }  // NOLINT: for the many string parameters

  const char* data() const noexcept { return IsInPlace() ? bytes_.chars + 1 : Shared()->chars; }
  const char* c_str() const noexcept { return data(); }
  std::size_t size() const noexcept { return IsInPlace() ? bytes_.chars[0] >> 1 : Shared()->size; }
  std::size_t length() const noexcept { return size(); }
  bool empty() const noexcept { return size() == 0; }
  char operator[](std::size_t at) const noexcept { return data()[at]; }
  const char* begin() const noexcept { return data(); }
  const char* end() const noexcept { return data() + size(); }
  char front() const noexcept { return data()[0]; }
  char back() const noexcept { return data()[size() - 1]; }
  std::size_t find(std::string_view what, std::size_t from = 0) const noexcept { return View().find(what, from); }
  std::size_t find(char what, std::size_t from = 0) const noexcept { return View().find(what, from); }
  std::string substr(std::size_t from, std::size_t count = std::string::npos) const {
    return std::string(View().substr(from, count));
  }
  int compare(std::string_view other) const noexcept { return View().compare(other); }

  friend bool operator==(const CText& a, const CText& b) noexcept {
    return a.bytes_.word == b.bytes_.word || a.View() == b.View();
  }
  friend bool operator==(const CText& a, std::string_view b) noexcept { return a.View() == b; }
  friend bool operator==(const CText& a, const std::string& b) noexcept { return a.View() == std::string_view(b); }
  friend bool operator==(const CText& a, const char* b) noexcept { return a.View() == std::string_view(b); }
  friend bool operator<(const CText& a, const CText& b) noexcept { return a.View().compare(b.View()) < 0; }

  template <class Stream>
  friend auto operator<<(Stream& out, const CText& text) -> decltype(out << std::string_view()) {
    return out << text.View();
  }

  friend std::string operator+(const CText& a, std::string_view b) { return a.str().append(b); }
  friend std::string operator+(std::string_view a, const CText& b) { return std::string(a).append(b.View()); }
  friend std::string operator+(const std::string& a, const CText& b) { return std::string(a).append(b.View()); }
  friend std::string operator+(const char* a, const CText& b) { return std::string(a).append(b.View()); }
  friend std::string operator+(const CText& a, const char* b) { return a.str().append(b); }
  friend std::string operator+(const CText& a, const CText& b) { return a.str().append(b.View()); }

 private:
  struct Block {
    std::atomic<std::uint32_t> refs;
    std::uint32_t size;
    char chars[1];
  };
  // In place: byte 0 holds the size times two plus one (odd), the characters
  // follow and a zero ends them. Shared: the block's address, which is even.
  union Bytes {
    char chars[8];
    std::uint64_t word;
    Block* block;
  };

  bool IsInPlace() const noexcept { return bytes_.chars[0] & 1; }
  Block* Shared() const noexcept { return IsInPlace() ? nullptr : bytes_.block; }

  void SetInPlace(std::string_view text) noexcept {
    bytes_.word = 0;
    bytes_.chars[0] = static_cast<char>(text.size() << 1 | 1);
    if (!text.empty()) std::memcpy(bytes_.chars + 1, text.data(), text.size());
  }
  void Assign(std::string_view text) {
    if (text.size() <= kInPlace) {
      SetInPlace(text);
      return;
    }
    void* memory = ::operator new(offsetof(Block, chars) + text.size() + 1);
    Block* block = new (memory) Block{{1}, static_cast<std::uint32_t>(text.size()), {0}};
    std::memcpy(block->chars, text.data(), text.size());
    block->chars[text.size()] = '\0';
    bytes_.word = 0;
    bytes_.block = block;
  }
  void Release() noexcept {
    if (Block* block = Shared(); block && block->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) {
      block->~Block();
      ::operator delete(block);
    }
  }
  void Swap(CText& other) noexcept { std::swap(bytes_, other.bytes_); }

  Bytes bytes_;
};

static_assert(sizeof(CText) == 8);

template <>
struct std::hash<CText> {
  std::size_t operator()(const CText& text) const noexcept { return std::hash<std::string_view>()(text.View()); }
};

/// Hash and equality that take CText, std::string and views alike, for maps
/// looked up without making a key.
struct CTextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const noexcept { return std::hash<std::string_view>()(text); }
};
