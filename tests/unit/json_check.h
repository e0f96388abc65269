// A JSON reader and a checker of the schema keywords the tool's documents
// use (type, enum, required, properties, additionalProperties, items,
// minimum), for tests.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

struct JsonValue {
  enum Kind { Null, Bool, Number, String, Array, Object } kind = Null;
  bool boolean = false;
  double number = 0;
  bool integral = false;
  std::string text;
  std::vector<JsonValue> items;
  std::vector<std::pair<std::string, JsonValue>> members;  ///< in document order

  /// The member \p name, or nullptr.
  const JsonValue* Find(const std::string& name) const;
  const JsonValue& operator[](const std::string& name) const;
  const JsonValue& operator[](std::size_t index) const { return items.at(index); }
};

/// Parses \p text as one JSON document. \returns false with \p error set
/// when it isn't one.
bool ParseJson(const std::string& text, JsonValue& value, std::string& error);

/// The places where \p value breaks \p schema, one line each; empty when it
/// is valid.
std::vector<std::string> SchemaErrors(const JsonValue& value, const JsonValue& schema, const std::string& at = "$");
