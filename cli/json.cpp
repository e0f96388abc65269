// JSON strings: the escapes of the format, and UTF-8 checked byte by byte.
#include "json.h"

#include <cstdio>

namespace cli {
namespace {

// The length of the valid UTF-8 sequence at \p at, or 0.
std::size_t Utf8Length(const std::string& text, std::size_t at) {
  auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  unsigned char lead = byte(at);
  std::size_t length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 0;
  if (length == 0 || at + length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byte(at + i) & 0xC0) != 0x80) return 0;
  if (length == 2 && lead < 0xC2) return 0;                          // overlong
  if (length == 3 && lead == 0xE0 && byte(at + 1) < 0xA0) return 0;  // overlong
  if (length == 3 && lead == 0xED && byte(at + 1) >= 0xA0) return 0; // surrogate
  if (length == 4 && lead == 0xF0 && byte(at + 1) < 0x90) return 0;  // overlong
  if (length == 4 && (lead > 0xF4 || (lead == 0xF4 && byte(at + 1) >= 0x90))) return 0;
  return length;
}

}  // namespace

std::string JsonString(const std::string& text) {
  std::string out = "\"";
  for (std::size_t i = 0; i < text.size();) {
    unsigned char c = static_cast<unsigned char>(text[i]);
    switch (c) {
      case '"': out += "\\\""; ++i; continue;
      case '\\': out += "\\\\"; ++i; continue;
      case '\n': out += "\\n"; ++i; continue;
      case '\r': out += "\\r"; ++i; continue;
      case '\t': out += "\\t"; ++i; continue;
      default: break;
    }
    if (c < 0x20) {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\u%04x", c);
      out += escaped;
      ++i;
      continue;
    }
    std::size_t length = Utf8Length(text, i);
    if (length == 0) {
      out += "\xEF\xBF\xBD";
      ++i;
    } else {
      out.append(text, i, length);
      i += length;
    }
  }
  return out + "\"";
}

}  // namespace cli
