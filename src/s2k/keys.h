// Reading rows: the continuation mark, key values as texts or numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "s2k/text.h"

/// Trims \p line; cuts it at the first " _" anywhere. \returns 1 when the
/// row goes on in the next line.
int TrimRowLine(std::string& line);
/// The same on a view of the line.
int TrimRowLine(std::string_view& line);

/// Appends the values of the first occurrence of \p key (a plain substring,
/// "=" included) to \p list. \returns 0, list untouched, when it is absent.
int ReadStringList(std::string_view rowText, std::string_view key, std::vector<std::string>& list);
int ReadNumberList(std::string_view rowText, std::string_view key, std::vector<double>& list);

/// A row read for many keys: the places of its '=' are found once.
class S2kRowText {
 public:
  explicit S2kRowText(std::string_view text);
  std::string_view Text() const { return text_; }
  /// Where \p key first stands in the row, as a plain substring search finds it.
  std::size_t Find(std::string_view key) const;
  /// The value text of \p key as it stands in the row: behind the key, cut
  /// at the last blank before the next '=', its end trimmed; quotes and tabs
  /// still in it. \returns false when the key is absent.
  bool FindValue(std::string_view key, std::string_view& value) const;

 private:
  static constexpr std::size_t kMaxEquals = 64;
  static constexpr std::size_t kNone = ~std::size_t{0};
  /// Which '=' ends the first occurrence of \p key, or kNone.
  std::size_t FindEqual(std::string_view key) const;
  bool Indexed(std::string_view key) const;

  std::string_view text_;
  std::uint32_t equals_[kMaxEquals];
  char lasts_[kMaxEquals];  // the character before each '=', zeros behind the last
  std::size_t count_ = 0;
  bool overflow_ = false;  // more '=' than places: plain search
};

/// Item 0 of what ReadStringList and ReadNumberList would append, without
/// making the list. \returns 0, item untouched, when the key is absent.
int ReadFirstText(const S2kRowText& row, std::string_view key, std::string& item);
int ReadFirstNumber(const S2kRowText& row, std::string_view key, double& item);
int ReadFirstText(const std::string& rowText, std::string_view key, std::string& item);
/// The same into a record's text; a text equal to \p same is shared with it.
int ReadFirstText(const S2kRowText& row, std::string_view key, CText& item, const CText* same = nullptr);
int ReadFirstNumber(const std::string& rowText, std::string_view key, double& item);

/// One comma-list item: + - * / strictly from left to right.
double EvaluateExpression(const std::string& text);

/// 1 for the exact text "Yes".
int IsYes(std::string_view value);
/// 1 for the ten digits, and for the terminating zero character.
int IsDigit(char ch);

/// Upper-cases ASCII letters in place.
void UpperCase(std::string& text);
void UpperCase(CText& text);
bool StartsWith(std::string_view text, std::string_view prefix);
