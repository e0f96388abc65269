// Inspecting a file: the reading stage of a run, told table by table.
#include <set>

#include "frame/converter.h"
#include "frame/steps.h"
#include "frame/table_fates.h"
#include "quillmesh/inspect.hpp"
#include "s2k/keys.h"
#include "s2k/table_titles.h"

namespace quillmesh {
namespace {

constexpr int kProgramControl = 108;

std::string TableName(int tableId) {
  for (const S2kTableFamily& family : kTableFamilies) {
    int index = tableId - family.baseId;
    if (family.members.empty() && index == 0) return std::string(family.firstWord);
    if (index >= 0 && index < static_cast<int>(family.members.size()))
      return std::string(family.firstWord) + " " + std::string(family.members[static_cast<std::size_t>(index)]);
  }
  return "";
}

const char* ReadWarningKey(int tableId) {
  for (const S2kWarningTable& entry : kWarningTables)
    if (entry.tableId == tableId) return entry.key;
  return nullptr;
}

bool HasParser(int tableId) {
  for (const std::vector<S2kTableParser>* list : TableParserLists())
    for (const S2kTableParser& entry : *list)
      if (entry.tableId == tableId) return true;
  return false;
}

void SetFate(InspectedTable& table) {
  table.fate = "ignored";
  const STableFate* fate = table.tableId ? FindTableFate(table.tableId) : nullptr;
  if (!fate) return;
  switch (fate->fate) {
    case TableFate::Reported: {
      const char* key = fate->what ? fate->what : ReadWarningKey(table.tableId);
      if (!key || (fate->what && !HasParser(table.tableId))) return;
      table.fate = "reported";
      table.messageKey = key;
      return;
    }
    case TableFate::Stored:
    case TableFate::Carried:
      if (!HasParser(table.tableId)) return;  // not read by this build
      table.fate = fate->fate == TableFate::Stored ? "stored" : "carried";
      if (fate->fate == TableFate::Carried) table.commands = fate->what;
      return;
  }
}

std::string FirstValue(std::string_view row, std::string_view key) {
  std::vector<std::string> values;
  ReadStringList(row, key, values);
  return values.empty() ? "" : values.front();
}

}  // namespace

Inspection InspectPath(const std::string& inputPath, UserInterface& ui) {
  Inspection inspection;
  CS2kConverter engine(ui);
  engine.onTableRead = [&](const S2kTableRead& read) {
    InspectedTable table;
    table.line = read.line;
    table.title = read.title;
    while (!table.title.empty() && (table.title.back() == '\n' || table.title.back() == '\r'))
      table.title.pop_back();
    table.tableId = read.tableId;
    table.tableName = TableName(read.tableId);
    table.rows = read.tableId >= 1 ? static_cast<int>(read.rows.size()) : read.unkeptRows;
    SetFate(table);
    inspection.tables.push_back(std::move(table));
    if (read.tableId == kProgramControl && !read.rows.empty()) {
      inspection.programName = FirstValue(read.rows.front(), "ProgramName=");
      inspection.programVersion = FirstValue(read.rows.front(), "Version=");
    }
  };
  inspection.code = engine.Run(inputPath, 1);
  const std::string& version = inspection.programVersion;
  if (!version.empty() && version.substr(0, version.find('.')) != "8")
    inspection.versionWarning =
        "written by " + (inspection.programName.empty() ? std::string("version") : inspection.programName + " version") +
        " " + version + ", not 8: later versions write some tables with other keys (joints without GlobalX= "
        "stand at the origin, for one), so check the numbers of the conversion before trusting them";
  return inspection;
}

}  // namespace quillmesh
