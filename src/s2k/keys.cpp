// Key readers on which every row parser rests.
#include "s2k/keys.h"

#include <bit>
#include <cctype>
#include <cstring>

#include "s2k/numbers.h"

namespace {

// White space as the "C" locale has it.
bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

void TrimRight(std::string& text) {
  std::size_t end = text.size();
  while (end > 0 && IsSpace(text[end - 1])) --end;
  text.resize(end);
}

// The first comma, quote or tab of a value text; its size when there is none.
std::size_t FirstSpecial(std::string_view raw) {
  std::size_t at = 0;
  while (at < raw.size() && raw[at] != ',' && raw[at] != '"' && raw[at] != '\t') ++at;
  return at;
}

// The value text with its quotes gone and its tabs made blanks; \p special
// is where the first comma, quote or tab stands.
void CleanValue(std::string_view raw, std::string& value, std::size_t special) {
  value.assign(raw.data(), special);
  for (char c : raw.substr(special)) {
    if (c == '"') continue;
    value.push_back(c == '\t' ? ' ' : c);
  }
}

bool FindCleanValue(const S2kRowText& row, std::string_view key, std::string& value) {
  std::string_view raw;
  if (!row.FindValue(key, raw)) return false;
  CleanValue(raw, value, FirstSpecial(raw));
  return true;
}

// Item 0 of the value's list: the clean value, or for a comma list the text
// before the first comma without quotes, tabs and blanks.
void FirstItem(std::string_view raw, std::string& item) {
  const std::size_t special = FirstSpecial(raw);
  const std::size_t comma = raw.find(',', special);
  if (comma == std::string_view::npos) {
    CleanValue(raw, item, special);
    return;
  }
  item.clear();
  for (char c : raw.substr(0, comma))
    if (c != '"' && c != '\t' && c != ' ') item.push_back(c);
}

constexpr bool kLittleEndian = std::endian::native == std::endian::little;
constexpr std::uint64_t kOnes = 0x0101010101010101u, kLow7 = 0x7f7f7f7f7f7f7f7fu;

// The high bit of each character of \p word that is the one repeated in
// \p want, and of no other.
std::uint64_t SameCharacters(std::uint64_t word, std::uint64_t want) {
  word ^= want;
  return ~(((word & kLow7) + kLow7) | word | kLow7);
}

// The place, from 0, of the first character marked in \p found.
std::size_t FirstMarked(std::uint64_t found) {
  return static_cast<std::size_t>(kLittleEndian ? std::countr_zero(found) : std::countl_zero(found)) / 8;
}

std::uint64_t WithoutFirstMarked(std::uint64_t found) {
  return kLittleEndian ? found & (found - 1) : found & ~(std::uint64_t{1} << (63 - std::countl_zero(found)));
}

template <class Word>
Word Load(const char* text) {
  Word word;
  std::memcpy(&word, text, sizeof word);
  return word;
}

// Whether the \p n characters at \p a and \p b are the same, compared a
// word at a time; the last word may overlap the one before.
bool SameText(const char* a, const char* b, std::size_t n) {
  if (n >= 8) {
    for (; n > 8; a += 8, b += 8, n -= 8)
      if (Load<std::uint64_t>(a) != Load<std::uint64_t>(b)) return false;
    return Load<std::uint64_t>(a + n - 8) == Load<std::uint64_t>(b + n - 8);
  }
  if (n >= 4)
    return Load<std::uint32_t>(a) == Load<std::uint32_t>(b) &&
           Load<std::uint32_t>(a + n - 4) == Load<std::uint32_t>(b + n - 4);
  for (; n; --n)
    if (*a++ != *b++) return false;
  return true;
}

// Comma lists lose every blank and split at each comma, keeping empty pieces.
template <class Fn>
void SplitCommaList(std::string& value, Fn&& add) {
  std::erase(value, ' ');
  std::size_t start = 0;
  for (;;) {
    std::size_t comma = value.find(',', start);
    if (comma == std::string::npos) {
      add(value.substr(start));
      return;
    }
    add(value.substr(start, comma - start));
    start = comma + 1;
  }
}

}  // namespace

void UpperCase(std::string& text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

void UpperCase(CText& text) {
  std::string upper = text;
  UpperCase(upper);
  text = upper;
}

bool StartsWith(std::string_view text, std::string_view prefix) {
  return text.substr(0, prefix.size()) == prefix;
}

int TrimRowLine(std::string_view& line) {
  std::size_t begin = 0;
  while (begin < line.size() && IsSpace(line[begin])) ++begin;
  line.remove_prefix(begin);
  // The first " _" is the first '_' with a blank before it.
  for (std::size_t at = 1; at < line.size(); ++at) {
    const void* mark = std::memchr(line.data() + at, '_', line.size() - at);
    if (!mark) break;
    at = static_cast<std::size_t>(static_cast<const char*>(mark) - line.data());
    if (line[at - 1] == ' ') {
      line = line.substr(0, at - 1);
      return 1;
    }
  }
  while (!line.empty() && IsSpace(line.back())) line.remove_suffix(1);
  return 0;
}

int TrimRowLine(std::string& line) {
  std::string_view piece = line;
  int goesOn = TrimRowLine(piece);
  line = std::string(piece);
  return goesOn;
}

int ReadFirstText(const std::string& rowText, std::string_view key, std::string& item) {
  return ReadFirstText(S2kRowText(rowText), key, item);
}

int ReadFirstNumber(const std::string& rowText, std::string_view key, double& item) {
  return ReadFirstNumber(S2kRowText(rowText), key, item);
}

int ReadStringList(std::string_view rowText, std::string_view key, std::vector<std::string>& list) {
  std::string value;
  if (!FindCleanValue(S2kRowText(rowText), key, value)) return 0;
  if (value.find(',') == std::string::npos)
    list.push_back(std::move(value));
  else
    SplitCommaList(value, [&](std::string piece) { list.push_back(std::move(piece)); });
  return 1;
}

int ReadNumberList(std::string_view rowText, std::string_view key, std::vector<double>& list) {
  std::string value;
  if (!FindCleanValue(S2kRowText(rowText), key, value)) return 0;
  if (value.find(',') == std::string::npos)
    list.push_back(ParseDouble(value));
  else
    SplitCommaList(value, [&](const std::string& piece) { list.push_back(EvaluateExpression(piece)); });
  return 1;
}

// The '=' are found eight characters at a time.
S2kRowText::S2kRowText(std::string_view text) : text_(text) {
  const char* data = text.data();
  const std::size_t size = text.size();
  if (size > 0xffffffffu) {
    overflow_ = true;
    return;
  }
  auto note = [&](std::size_t at) {
    if (count_ == kMaxEquals) {
      overflow_ = true;
      return false;
    }
    equals_[count_] = static_cast<std::uint32_t>(at);
    lasts_[count_++] = at ? data[at - 1] : '\0';
    return true;
  };
  std::size_t at = 0;
  for (; at + 8 <= size; at += 8) {
    std::uint64_t word;
    std::memcpy(&word, data + at, 8);
    for (std::uint64_t found = SameCharacters(word, kOnes * '='); found; found = WithoutFirstMarked(found))
      if (!note(at + FirstMarked(found))) return;
  }
  for (; at < size; ++at)
    if (data[at] == '=' && !note(at)) return;
  // The last characters are read eight at a time.
  for (std::size_t i = count_; i % 8; ++i) lasts_[i] = '\0';
}

bool S2kRowText::Indexed(std::string_view key) const { return !overflow_ && !key.empty() && key.back() == '='; }

// Every occurrence of a key ends at one of the row's '=', so the first '='
// with the key's other characters before it marks the first occurrence.
std::size_t S2kRowText::FindEqual(std::string_view key) const {
  const std::size_t head = key.size() - 1;
  if (head == 0) return count_ ? 0 : kNone;
  const std::uint64_t last = kOnes * static_cast<unsigned char>(key[head - 1]);
  for (std::size_t base = 0; base < count_; base += 8) {
    std::uint64_t word;
    std::memcpy(&word, lasts_ + base, 8);
    for (std::uint64_t found = SameCharacters(word, last); found; found = WithoutFirstMarked(found)) {
      const std::size_t i = base + FirstMarked(found);
      if (i >= count_) return kNone;
      const std::size_t eq = equals_[i];
      if (eq >= head && SameText(text_.data() + eq - head, key.data(), head - 1)) return i;
    }
  }
  return kNone;
}

std::size_t S2kRowText::Find(std::string_view key) const {
  if (!Indexed(key)) return text_.find(key);
  const std::size_t i = FindEqual(key);
  return i == kNone ? std::string_view::npos : equals_[i] - (key.size() - 1);
}

bool S2kRowText::FindValue(std::string_view key, std::string_view& value) const {
  std::size_t begin, next;  // where the value starts, where the next '=' stands
  if (Indexed(key)) {
    const std::size_t i = FindEqual(key);
    if (i == kNone) return false;
    begin = equals_[i] + 1;
    next = i + 1 < count_ ? equals_[i + 1] : std::string_view::npos;
  } else {
    const std::size_t at = text_.find(key);
    if (at == std::string_view::npos) return false;
    begin = at + key.size();
    next = text_.find('=', begin);
  }
  // The last blank before the next '=' ends the value; the value's first
  // character never does.
  const char* data = text_.data();
  std::size_t end = text_.size();
  if (next != std::string_view::npos)
    for (std::size_t p = next; p > begin + 1;)
      if (data[--p] == ' ') {
        end = p;
        break;
      }
  while (end > begin && IsSpace(data[end - 1])) --end;
  value = std::string_view(data + begin, end - begin);
  return true;
}

int ReadFirstText(const S2kRowText& row, std::string_view key, std::string& item) {
  std::string_view raw;
  if (!row.FindValue(key, raw)) return 0;
  FirstItem(raw, item);
  return 1;
}

int ReadFirstNumber(const S2kRowText& row, std::string_view key, double& item) {
  std::string_view raw;
  if (!row.FindValue(key, raw)) return 0;
  if (FirstSpecial(raw) == raw.size()) {
    item = ParseDouble(raw);
    return 1;
  }
  std::string value;
  FirstItem(raw, value);
  item = raw.find(',') == std::string_view::npos ? ParseDouble(value) : EvaluateExpression(value);
  return 1;
}

double EvaluateExpression(const std::string& text) {
  std::string piece = text;
  UpperCase(piece);
  TrimRight(piece);
  std::vector<std::size_t> ops;
  for (std::size_t i = 0; i < piece.size(); ++i) {
    char c = piece[i];
    if (c != '+' && c != '-' && c != '*' && c != '/') continue;
    if (i == 0 || i + 1 == piece.size() || piece[i - 1] == 'E' || piece[i - 1] == ' ') continue;
    ops.push_back(i);
  }
  if (ops.empty()) return ParseDouble(piece);
  auto apply = [](char op, double a, double b) {
    switch (op) {
      case '*': return a * b;
      case '+': return a + b;
      case '-': return a - b;
      default: return a / b;
    }
  };
  double result = ParseDouble(std::string_view(piece).substr(0, ops[0]));
  for (std::size_t k = 1; k < ops.size(); ++k) {
    std::string_view between = std::string_view(piece).substr(ops[k - 1] + 1, ops[k] - ops[k - 1] - 1);
    result = apply(piece[ops[k - 1]], result, ParseDouble(between));
  }
  return apply(piece[ops.back()], result, ParseDouble(std::string_view(piece).substr(ops.back() + 1)));
}

int IsYes(std::string_view value) { return value == "Yes" ? 1 : 0; }

int IsDigit(char ch) { return (ch == '\0' || std::strchr("0123456789", ch) != nullptr) ? 1 : 0; }

int ReadFirstText(const S2kRowText& row, std::string_view key, CText& item, const CText* same) {
  std::string_view raw;
  if (!row.FindValue(key, raw)) return 0;
  std::string value;
  std::string_view text = raw;
  if (FirstSpecial(raw) != raw.size()) {
    FirstItem(raw, value);
    text = value;
  }
  if (same && *same == text)
    item = *same;
  else
    item = text;
  return 1;
}
