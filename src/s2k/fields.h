// A table's keys described once: key, field, kind. One reader serves all.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "s2k/keyed_table.h"
#include "s2k/keys.h"
#include "s2k/numbers.h"
#include "s2k/table_rows.h"
#include "s2k/text.h"

enum class S2kFieldKind { Text, Number, Integer, Flag };

template <class Row>
struct S2kField {
  std::string_view Key;
  S2kFieldKind Kind;
  CText Row::*Text = nullptr;
  double Row::*Number = nullptr;
  int Row::*Integer = nullptr;  // Integer (a number cut to 32 bits) and Flag ("Yes")
};

template <class Row>
constexpr S2kField<Row> TextKey(std::string_view key, CText Row::*field) {
  return {key, S2kFieldKind::Text, field, nullptr, nullptr};
}
template <class Row>
constexpr S2kField<Row> NumberKey(std::string_view key, double Row::*field) {
  return {key, S2kFieldKind::Number, nullptr, field, nullptr};
}
template <class Row>
constexpr S2kField<Row> IntegerKey(std::string_view key, int Row::*field) {
  return {key, S2kFieldKind::Integer, nullptr, nullptr, field};
}
template <class Row>
constexpr S2kField<Row> FlagKey(std::string_view key, int Row::*field) {
  return {key, S2kFieldKind::Flag, nullptr, nullptr, field};
}

/// Reads one key into its field: item 0 of the list when the key is there
/// and the list isn't empty; otherwise the field keeps what it had.
/// A text equal to the one of \p previous shares its storage.
template <class Row>
void ReadField(const S2kRowText& rowText, const S2kField<Row>& field, Row& row, const Row* previous = nullptr) {
  switch (field.Kind) {
    case S2kFieldKind::Number:
    case S2kFieldKind::Integer: {
      double value = 0;
      if (ReadFirstNumber(rowText, field.Key, value)) {
        if (field.Kind == S2kFieldKind::Number)
          row.*field.Number = value;
        else
          row.*field.Integer = TruncateToInt(value);
      }
      return;
    }
    case S2kFieldKind::Text:
      // The last row's text again (a section, a material, a type) is shared.
      ReadFirstText(rowText, field.Key, row.*field.Text, previous ? &(previous->*field.Text) : nullptr);
      return;
    case S2kFieldKind::Flag: {
      CText value;
      if (ReadFirstText(rowText, field.Key, value)) row.*field.Integer = IsYes(value);
      return;
    }
  }
}

template <class Row>
void ReadField(const std::string& rowText, const S2kField<Row>& field, Row& row) {
  ReadField(S2kRowText(rowText), field, row);
}

/// Reads every key of \p fields, in their order, into \p row.
template <class Row, std::size_t N>
void ReadFields(const S2kRowText& text, const S2kField<Row> (&fields)[N], Row& row, const Row* previous = nullptr) {
  for (const S2kField<Row>& field : fields) ReadField(text, field, row, previous);
}

template <class Row, std::size_t N>
void ReadFields(std::string_view rowText, const S2kField<Row> (&fields)[N], Row& row, const Row* previous = nullptr) {
  ReadFields(S2kRowText(rowText), fields, row, previous);
}

/// The row parser of every plain table: row i (from 0) goes under key i + 1,
/// starting from the row's defaults. \p special runs after the keys and may
/// stop the parse by returning false. \returns 1, or 0 when stopped.
template <class Row, std::size_t N, class Special>
int ParseRows(const S2kTableRows& rows, const S2kField<Row> (&fields)[N], CKeyedTable<Row>& table,
              Special&& special) {
  const Row* previous = nullptr;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const S2kRowText text(rows[i]);
    Row row{};
    ReadFields(text, fields, row, previous);
    if (!special(text, row)) return 0;
    if (!table.SetAt(static_cast<int>(i + 1), std::move(row))) return 0;
    previous = table.Lookup(static_cast<int>(i + 1));
  }
  return 1;
}

template <class Row, std::size_t N>
int ParseRows(const S2kTableRows& rows, const S2kField<Row> (&fields)[N], CKeyedTable<Row>& table) {
  return ParseRows(rows, fields, table, [](const S2kRowText&, Row&) { return true; });
}
