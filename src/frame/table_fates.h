// What becomes of the rows of each table: the commands they are carried
// into, kept and never written, or reported with a message.
#pragma once

#include <span>

enum class TableFate {
  Carried,   ///< converted into the commands named
  Stored,    ///< read and kept; no command is written from them
  Reported,  ///< a message tells the user they are not converted
};

struct STableFate {
  int tableId;
  TableFate fate;
  /// Carried: the commands, blank-separated. Reported: the message key,
  /// or nullptr for the tables that warn when read (their key is the
  /// reader's, kWarningTables).
  const char* what;
};

/// Every table with a parser or a warning, by id; a table not listed is
/// passed over in silence.
std::span<const STableFate> TableFates();

/// The row of \p tableId, or nullptr when the table is ignored.
const STableFate* FindTableFate(int tableId);
