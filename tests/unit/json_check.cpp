// The JSON reader and schema checker of the tests.
#include "json_check.h"

#include <cmath>
#include <cstdlib>
#include <stdexcept>

namespace {

struct Reader {
  const std::string& text;
  std::size_t at = 0;

  [[noreturn]] void Fail(const std::string& what) {
    throw std::runtime_error(what + " at byte " + std::to_string(at));
  }
  void Space() {
    while (at < text.size() && (text[at] == ' ' || text[at] == '\n' || text[at] == '\r' || text[at] == '\t')) ++at;
  }
  bool Take(char c) {
    Space();
    if (at < text.size() && text[at] == c) return ++at, true;
    return false;
  }
  void Expect(char c) {
    if (!Take(c)) Fail(std::string("expected '") + c + "'");
  }
  bool Word(const char* word) {
    std::string w(word);
    if (text.compare(at, w.size(), w) == 0) return at += w.size(), true;
    return false;
  }
  std::string String() {
    Expect('"');
    std::string out;
    for (;;) {
      if (at >= text.size()) Fail("unterminated string");
      unsigned char c = static_cast<unsigned char>(text[at++]);
      if (c == '"') return out;
      if (c < 0x20) Fail("control character in string");
      if (c != '\\') {
        out += static_cast<char>(c);
        continue;
      }
      if (at >= text.size()) Fail("unterminated escape");
      char e = text[at++];
      switch (e) {
        case '"': out += '"'; break;
        case '\\': out += '\\'; break;
        case '/': out += '/'; break;
        case 'b': out += '\b'; break;
        case 'f': out += '\f'; break;
        case 'n': out += '\n'; break;
        case 'r': out += '\r'; break;
        case 't': out += '\t'; break;
        case 'u': {
          if (at + 4 > text.size()) Fail("short \\u escape");
          unsigned code = static_cast<unsigned>(std::strtoul(text.substr(at, 4).c_str(), nullptr, 16));
          at += 4;
          if (code < 0x80) {
            out += static_cast<char>(code);
          } else if (code < 0x800) {
            out += static_cast<char>(0xC0 | (code >> 6));
            out += static_cast<char>(0x80 | (code & 0x3F));
          } else {
            out += static_cast<char>(0xE0 | (code >> 12));
            out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (code & 0x3F));
          }
          break;
        }
        default: Fail("bad escape");
      }
    }
  }
  JsonValue Value() {
    Space();
    JsonValue v;
    if (at >= text.size()) Fail("unexpected end");
    char c = text[at];
    if (c == '{') {
      ++at;
      v.kind = JsonValue::Object;
      if (Take('}')) return v;
      do {
        Space();
        std::string name = String();
        for (const auto& member : v.members)
          if (member.first == name) Fail("duplicate member " + name);
        Expect(':');
        v.members.emplace_back(name, Value());
      } while (Take(','));
      Expect('}');
    } else if (c == '[') {
      ++at;
      v.kind = JsonValue::Array;
      if (Take(']')) return v;
      do v.items.push_back(Value());
      while (Take(','));
      Expect(']');
    } else if (c == '"') {
      v.kind = JsonValue::String;
      v.text = String();
    } else if (Word("true") || Word("false")) {
      v.kind = JsonValue::Bool;
      v.boolean = text[at - 1] == 'e' && text[at - 2] == 'u';
    } else if (Word("null")) {
      v.kind = JsonValue::Null;
    } else if (c == '-' || (c >= '0' && c <= '9')) {
      std::size_t start = at;
      if (text[at] == '-') ++at;
      if (at >= text.size() || !std::isdigit(static_cast<unsigned char>(text[at]))) Fail("bad number");
      if (text[at] == '0' && at + 1 < text.size() && std::isdigit(static_cast<unsigned char>(text[at + 1])))
        Fail("leading zero");
      while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at]))) ++at;
      bool integral = true;
      if (at < text.size() && text[at] == '.') {
        integral = false;
        ++at;
        while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at]))) ++at;
      }
      if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        integral = false;
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
        while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at]))) ++at;
      }
      v.kind = JsonValue::Number;
      v.number = std::strtod(text.substr(start, at - start).c_str(), nullptr);
      v.integral = integral;
    } else {
      Fail("unexpected character");
    }
    return v;
  }
};

bool Equal(const JsonValue& a, const JsonValue& b) {
  if (a.kind != b.kind) return false;
  switch (a.kind) {
    case JsonValue::Null: return true;
    case JsonValue::Bool: return a.boolean == b.boolean;
    case JsonValue::Number: return a.number == b.number;
    case JsonValue::String: return a.text == b.text;
    default: return false;  // the schemas compare scalars only
  }
}

bool HasType(const JsonValue& v, const std::string& type) {
  if (type == "null") return v.kind == JsonValue::Null;
  if (type == "boolean") return v.kind == JsonValue::Bool;
  if (type == "number") return v.kind == JsonValue::Number;
  if (type == "integer") return v.kind == JsonValue::Number && v.integral;
  if (type == "string") return v.kind == JsonValue::String;
  if (type == "array") return v.kind == JsonValue::Array;
  if (type == "object") return v.kind == JsonValue::Object;
  throw std::runtime_error("unknown type in schema: " + type);
}

}  // namespace

const JsonValue* JsonValue::Find(const std::string& name) const {
  for (const auto& member : members)
    if (member.first == name) return &member.second;
  return nullptr;
}

const JsonValue& JsonValue::operator[](const std::string& name) const {
  if (const JsonValue* found = Find(name)) return *found;
  throw std::out_of_range("no member " + name);
}

bool ParseJson(const std::string& text, JsonValue& value, std::string& error) {
  Reader reader{text};
  try {
    value = reader.Value();
    reader.Space();
    if (reader.at != text.size()) reader.Fail("text after the document");
  } catch (const std::exception& e) {
    error = e.what();
    return false;
  }
  return true;
}

std::vector<std::string> SchemaErrors(const JsonValue& value, const JsonValue& schema, const std::string& at) {
  static const char* kKnown[] = {"$schema", "title", "description", "type", "enum", "required", "properties",
                                 "additionalProperties", "items", "minimum"};
  std::vector<std::string> errors;
  for (const auto& [keyword, unused] : schema.members) {
    bool known = false;
    for (const char* k : kKnown) known = known || keyword == k;
    if (!known) throw std::runtime_error("schema keyword the checker does not know: " + keyword);
  }
  if (const JsonValue* type = schema.Find("type")) {
    bool ok = false;
    if (type->kind == JsonValue::String) ok = HasType(value, type->text);
    for (const JsonValue& t : type->items) ok = ok || HasType(value, t.text);
    if (!ok) return {at + ": wrong type"};
  }
  if (const JsonValue* choices = schema.Find("enum")) {
    bool ok = false;
    for (const JsonValue& choice : choices->items) ok = ok || Equal(value, choice);
    if (!ok) errors.push_back(at + ": not one of the allowed values");
  }
  if (const JsonValue* minimum = schema.Find("minimum"))
    if (value.kind == JsonValue::Number && value.number < minimum->number) errors.push_back(at + ": below minimum");
  if (value.kind == JsonValue::Object) {
    if (const JsonValue* required = schema.Find("required"))
      for (const JsonValue& name : required->items)
        if (!value.Find(name.text)) errors.push_back(at + ": missing " + name.text);
    const JsonValue* properties = schema.Find("properties");
    const JsonValue* additional = schema.Find("additionalProperties");
    for (const auto& [name, member] : value.members) {
      const JsonValue* sub = properties ? properties->Find(name) : nullptr;
      if (!sub && additional && additional->kind == JsonValue::Object) sub = additional;
      if (!sub && additional && additional->kind == JsonValue::Bool && !additional->boolean) {
        errors.push_back(at + ": unexpected member " + name);
        continue;
      }
      if (sub)
        for (std::string& e : SchemaErrors(member, *sub, at + "." + name)) errors.push_back(std::move(e));
    }
  }
  if (value.kind == JsonValue::Array)
    if (const JsonValue* items = schema.Find("items"))
      for (std::size_t i = 0; i < value.items.size(); ++i)
        for (std::string& e : SchemaErrors(value.items[i], *items, at + "[" + std::to_string(i) + "]"))
          errors.push_back(std::move(e));
  return errors;
}
