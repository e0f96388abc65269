// Key readers on which every row parser rests.
#include "s2k/keys.h"

#include <cctype>
#include <cstring>

#include "s2k/numbers.h"

namespace {

bool IsSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

void TrimRight(std::string& text) {
  std::size_t end = text.size();
  while (end > 0 && IsSpace(text[end - 1])) --end;
  text.resize(end);
}

// The value of a key: behind it, cut at the last blank before the next '='.
bool FindValue(const std::string& rowText, std::string_view key, std::string& value) {
  std::size_t at = rowText.find(key);
  if (at == std::string::npos) return false;
  std::string_view rest = std::string_view(rowText).substr(at + key.size());
  std::size_t eq = rest.find('=');
  if (eq != std::string_view::npos) {
    for (std::size_t s = eq; s >= 1; --s) {
      if (rest[s] == ' ') {
        rest = rest.substr(0, s + 1);
        break;
      }
    }
  }
  while (!rest.empty() && IsSpace(rest.back())) rest.remove_suffix(1);
  value.clear();
  for (char c : rest) {
    if (c == '"') continue;
    value.push_back(c == '\t' ? ' ' : c);
  }
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

bool StartsWith(std::string_view text, std::string_view prefix) {
  return text.substr(0, prefix.size()) == prefix;
}

int TrimRowLine(std::string& line) {
  std::size_t begin = 0;
  while (begin < line.size() && IsSpace(line[begin])) ++begin;
  line.erase(0, begin);
  std::size_t mark = line.find(" _");
  if (mark != std::string::npos) {
    line.resize(mark);
    return 1;
  }
  TrimRight(line);
  return 0;
}

int ReadStringList(const std::string& rowText, std::string_view key, std::vector<std::string>& list) {
  std::string value;
  if (!FindValue(rowText, key, value)) return 0;
  if (value.find(',') == std::string::npos)
    list.push_back(std::move(value));
  else
    SplitCommaList(value, [&](std::string piece) { list.push_back(std::move(piece)); });
  return 1;
}

int ReadNumberList(const std::string& rowText, std::string_view key, std::vector<double>& list) {
  std::string value;
  if (!FindValue(rowText, key, value)) return 0;
  if (value.find(',') == std::string::npos)
    list.push_back(ParseDouble(value));
  else
    SplitCommaList(value, [&](const std::string& piece) { list.push_back(EvaluateExpression(piece)); });
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

int IsYes(const std::string& value) { return value == "Yes" ? 1 : 0; }

int IsDigit(char ch) { return (ch == '\0' || std::strchr("0123456789", ch) != nullptr) ? 1 : 0; }
