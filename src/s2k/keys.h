// Reading rows: the continuation mark, key values as texts or numbers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Trims \p line; cuts it at the first " _" anywhere. \returns 1 when the
/// row goes on in the next line.
int TrimRowLine(std::string& line);

/// Appends the values of the first occurrence of \p key (a plain substring,
/// "=" included) to \p list. \returns 0, list untouched, when it is absent.
int ReadStringList(const std::string& rowText, std::string_view key, std::vector<std::string>& list);
int ReadNumberList(const std::string& rowText, std::string_view key, std::vector<double>& list);

/// One comma-list item: + - * / strictly from left to right.
double EvaluateExpression(const std::string& text);

/// 1 for the exact text "Yes".
int IsYes(const std::string& value);
/// 1 for the ten digits, and for the terminating zero character.
int IsDigit(char ch);

/// Upper-cases ASCII letters in place.
void UpperCase(std::string& text);
bool StartsWith(std::string_view text, std::string_view prefix);
