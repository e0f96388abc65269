// The formats of WriteText, taken apart once each: found again by their
// address and checked against a copy of their text.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

class TvtFormats {
 public:
  /// Bytes copied at once: texts, blanks and numbers go in blocks this long.
  static constexpr std::size_t kBlock = 16;

  /// The text before a conversion (at the end, the text after the last).
  struct Piece {
    std::uint16_t textAt;
    std::uint16_t textSize;
    char kind;           ///< 'd', 'g' or 's'; 0 for the text at the end
    std::uint8_t width;  ///< padded on the left with blanks to this
  };
  struct Format {
    std::string text;           ///< the format's text, then kBlock blanks
    std::size_t size = 0;       ///< of the format's text alone
    std::size_t room = 0;       ///< the most it writes, texts of %s aside
    std::vector<Piece> pieces;  ///< empty for a format that isn't simple
  };

  /// \p format taken apart. Simple formats hold %d %g %s with a width of at
  /// most 64 and no flags, and nothing else.
  const Format& Find(const char* format) {
    if (!slots_.empty()) {
      const Slot& slot = slots_[SlotOf(format, slots_.size())];
      if (slot.key == format && std::strncmp(format, slot.format->text.data(), slot.format->size) == 0 &&
          format[slot.format->size] == '\0')
        return *slot.format;
    }
    return Add(format);
  }

 private:
  static constexpr std::size_t kMostSlots = 1 << 14;
  static std::size_t SlotOf(const char* key, std::size_t count) {
    return (reinterpret_cast<std::uintptr_t>(key) >> 3) * 0x9E3779B97F4A7C15u >> 40 & (count - 1);
  }
  const Format& Add(const char* format);

  struct Slot {
    const char* key = nullptr;
    std::unique_ptr<Format> format;
  };
  std::vector<Slot> slots_;  ///< open addressing; a power of two long
  std::size_t used_ = 0;
};
