// Key readers on which every row parser rests.
#include "s2k/keys.h"

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

// The value text of a key, as it stands in the row: behind the key, cut at
// the last blank before the next '=', its end trimmed. Quotes and tabs are
// still in it.
bool FindRawValue(const S2kRowText& row, std::string_view key, std::string_view& rest) {
  std::size_t at = row.Find(key);
  if (at == std::string_view::npos) return false;
  rest = row.Text().substr(at + key.size());
  std::size_t eq = rest.find('=');
  if (eq != std::string_view::npos && eq >= 1) {
    std::size_t blank = rest.substr(1, eq).rfind(' ');
    if (blank != std::string_view::npos) rest = rest.substr(0, blank + 2);
  }
  while (!rest.empty() && IsSpace(rest.back())) rest.remove_suffix(1);
  return true;
}

bool HasQuoteOrTab(std::string_view text) {
  for (char c : text)
    if (c == '"' || c == '\t') return true;
  return false;
}

// The value text with its quotes gone and its tabs made blanks.
void CleanValue(std::string_view raw, std::string& value) {
  if (!HasQuoteOrTab(raw)) {
    value.assign(raw);
    return;
  }
  value.clear();
  for (char c : raw) {
    if (c == '"') continue;
    value.push_back(c == '\t' ? ' ' : c);
  }
}

bool FindValue(const S2kRowText& row, std::string_view key, std::string& value) {
  std::string_view raw;
  if (!FindRawValue(row, key, raw)) return false;
  CleanValue(raw, value);
  return true;
}

// Item 0 of a comma list: the text before the first comma, without blanks.
void KeepFirstItem(std::string& value) {
  std::size_t comma = value.find(',');
  if (comma == std::string::npos) return;
  value.resize(comma);
  std::erase(value, ' ');
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

int ReadStringList(const std::string& rowText, std::string_view key, std::vector<std::string>& list) {
  std::string value;
  if (!FindValue(S2kRowText(rowText), key, value)) return 0;
  if (value.find(',') == std::string::npos)
    list.push_back(std::move(value));
  else
    SplitCommaList(value, [&](std::string piece) { list.push_back(std::move(piece)); });
  return 1;
}

int ReadNumberList(const std::string& rowText, std::string_view key, std::vector<double>& list) {
  std::string value;
  if (!FindValue(S2kRowText(rowText), key, value)) return 0;
  if (value.find(',') == std::string::npos)
    list.push_back(ParseDouble(value));
  else
    SplitCommaList(value, [&](const std::string& piece) { list.push_back(EvaluateExpression(piece)); });
  return 1;
}

S2kRowText::S2kRowText(std::string_view text) : text_(text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const void* eq = std::memchr(text.data() + at, '=', text.size() - at);
    if (!eq) break;
    if (count_ == kMaxEquals) {
      overflow_ = true;
      break;
    }
    at = static_cast<std::size_t>(static_cast<const char*>(eq) - text.data());
    equals_[count_++] = static_cast<std::uint32_t>(at);
  }
}

// Every occurrence of a key ends at one of the row's '=', so the first '='
// with the key's other characters before it marks the first occurrence.
std::size_t S2kRowText::Find(std::string_view key) const {
  if (overflow_ || key.empty() || key.back() != '=' || text_.size() > 0xffffffffu) return text_.find(key);
  const std::size_t head = key.size() - 1;
  const char last = head ? key[head - 1] : '\0';
  for (std::size_t i = 0; i < count_; ++i) {
    std::size_t eq = equals_[i];
    if (eq < head || (head && text_[eq - 1] != last)) continue;
    if (std::memcmp(text_.data() + eq - head, key.data(), head) == 0) return eq - head;
  }
  return std::string_view::npos;
}

int ReadFirstText(const S2kRowText& row, std::string_view key, std::string& item) {
  if (!FindValue(row, key, item)) return 0;
  KeepFirstItem(item);
  return 1;
}

int ReadFirstNumber(const S2kRowText& row, std::string_view key, double& item) {
  std::string_view raw;
  if (!FindRawValue(row, key, raw)) return 0;
  if (raw.find(',') == std::string_view::npos && !HasQuoteOrTab(raw)) {
    item = ParseDouble(raw);
    return 1;
  }
  std::string value;
  CleanValue(raw, value);
  if (value.find(',') == std::string::npos) {
    item = ParseDouble(value);
  } else {
    KeepFirstItem(value);
    item = EvaluateExpression(value);
  }
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
  if (!FindRawValue(row, key, raw)) return 0;
  std::string value;
  std::string_view text = raw;
  if (HasQuoteOrTab(raw) || raw.find(',') != std::string_view::npos) {
    CleanValue(raw, value);
    KeepFirstItem(value);
    text = value;
  }
  if (same && *same == text)
    item = *same;
  else
    item = text;
  return 1;
}
