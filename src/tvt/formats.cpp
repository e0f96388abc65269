// Taking WriteText's formats apart.
#include "tvt/formats.h"

#include <cstring>

namespace {

std::unique_ptr<TvtFormats::Format> Parse(const char* format) {
  auto parsed = std::make_unique<TvtFormats::Format>();
  parsed->text = format;
  const std::size_t size = parsed->size = parsed->text.size();
  parsed->text.append(TvtFormats::kBlock, ' ');
  if (size > UINT16_MAX) return parsed;
  std::vector<TvtFormats::Piece> pieces;
  std::size_t textAt = 0;
  for (std::size_t at = 0;; ++at) {
    if (at == size) {
      pieces.push_back({std::uint16_t(textAt), std::uint16_t(at - textAt), 0, 0});
      break;
    }
    if (format[at] != '%') continue;
    const std::size_t textEnd = at++;
    int width = 0;
    while (format[at] >= '0' && format[at] <= '9') {
      if (width == 0 && format[at] == '0') return parsed;  // a flag
      width = width * 10 + (format[at++] - '0');
      if (width > 64) return parsed;
    }
    const char kind = format[at];
    if (kind != 'd' && kind != 'g' && kind != 's') return parsed;
    pieces.push_back({std::uint16_t(textAt), std::uint16_t(textEnd - textAt), kind, std::uint8_t(width)});
    parsed->room += 64 + TvtFormats::kBlock;
    textAt = at + 1;
  }
  parsed->room += size + TvtFormats::kBlock;
  parsed->pieces = std::move(pieces);
  return parsed;
}

}  // namespace

// A format not found at its slot: further on, new, or a text made at run
// time that changed at its address.
const TvtFormats::Format& TvtFormats::Add(const char* format) {
  if (used_ * 2 >= slots_.size()) {
    // Formats made at run time could fill it without end: it starts over.
    std::vector<Slot> slots(slots_.empty() || slots_.size() >= kMostSlots ? 256 : slots_.size() * 2);
    used_ = 0;
    if (slots.size() > slots_.size()) {
      for (Slot& slot : slots_) {
        if (!slot.key) continue;
        std::size_t i = SlotOf(slot.key, slots.size());
        while (slots[i].key) i = (i + 1) & (slots.size() - 1);
        slots[i] = std::move(slot);
        ++used_;
      }
    }
    slots_ = std::move(slots);
  }
  std::size_t i = SlotOf(format, slots_.size());
  while (slots_[i].key && slots_[i].key != format) i = (i + 1) & (slots_.size() - 1);
  Slot& slot = slots_[i];
  if (slot.key) {
    const Format& known = *slot.format;
    if (std::strncmp(format, known.text.data(), known.size) == 0 && format[known.size] == '\0') return known;
  } else {
    slot.key = format;
    ++used_;
  }
  slot.format = Parse(format);
  return *slot.format;
}
