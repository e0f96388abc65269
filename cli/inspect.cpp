// The inspection printed: one line per table, or one JSON document.
#include "inspect.h"

#include <cstdio>
#include <sstream>

#include "batch.h"
#include "json.h"
#include "quillmesh/inspect.hpp"

namespace cli {
namespace {

// The title as the file writes it after "TABLE:", quotes and all.
std::string TitleText(const std::string& titleLine) {
  std::size_t colon = titleLine.find(':');
  std::string text = colon == std::string::npos ? titleLine : titleLine.substr(colon + 1);
  std::size_t first = text.find_first_not_of(" \t");
  return first == std::string::npos ? "" : text.substr(first);
}

std::string FateText(const quillmesh::InspectedTable& table) {
  if (table.fate == "carried") return "carried into " + table.commands;
  if (table.fate == "stored") return "stored only";
  if (table.fate == "reported") return "reported with " + table.messageKey;
  return "ignored";
}

std::string TakenFor(const quillmesh::InspectedTable& table) {
  if (table.tableId == 0) return "not recognised";
  return std::to_string(table.tableId) + " " + table.tableName;
}

void PrintText(const std::string& input, const quillmesh::Inspection& inspection) {
  std::printf("%6s  %-44s  %-36s  %6s  %s\n", "LINE", "TITLE", "TAKEN FOR", "ROWS", "FATE");
  for (const quillmesh::InspectedTable& table : inspection.tables)
    std::printf("%6d  %-44s  %-36s  %6d  %s\n", table.line, TitleText(table.title).c_str(),
                TakenFor(table).c_str(), table.rows, FateText(table).c_str());
  int counts[4] = {};
  for (const quillmesh::InspectedTable& table : inspection.tables)
    ++counts[table.fate == "carried" ? 0 : table.fate == "stored" ? 1 : table.fate == "reported" ? 2 : 3];
  std::printf("%zu tables: %d carried, %d stored only, %d reported, %d ignored\n", inspection.tables.size(),
              counts[0], counts[1], counts[2], counts[3]);
  if (!inspection.programVersion.empty())
    std::printf("written by %s version %s\n",
                inspection.programName.empty() ? "the program" : inspection.programName.c_str(),
                inspection.programVersion.c_str());
  if (inspection.code == 1) std::printf("reading was stopped: the tables after the last shown were not read\n");
  if (inspection.code == -1) std::printf("reading failed: a conversion would stop here and write nothing\n");
  if (!inspection.versionWarning.empty())
    std::fprintf(stderr, "quillmesh: %s: warning: %s\n", input.c_str(), inspection.versionWarning.c_str());
}

std::string Json(const std::string& input, const quillmesh::Inspection& inspection, const FileResult& result) {
  std::ostringstream out;
  out << "{\n  \"input\": " << JsonString(input) << ",\n  \"code\": " << inspection.code << ",\n  \"program\": ";
  if (inspection.programVersion.empty() && inspection.programName.empty())
    out << "null";
  else
    out << "{\"name\": " << JsonString(inspection.programName)
        << ", \"version\": " << JsonString(inspection.programVersion) << "}";
  out << ",\n  \"versionWarning\": "
      << (inspection.versionWarning.empty() ? "null" : JsonString(inspection.versionWarning)) << ",\n  \"tables\": [";
  for (std::size_t i = 0; i < inspection.tables.size(); ++i) {
    const quillmesh::InspectedTable& table = inspection.tables[i];
    out << (i ? ",\n    " : "\n    ") << "{\"line\": " << table.line << ", \"title\": " << JsonString(table.title)
        << ", \"tableId\": " << (table.tableId ? std::to_string(table.tableId) : "null")
        << ", \"table\": " << (table.tableId ? JsonString(table.tableName) : "null") << ", \"rows\": " << table.rows
        << ", \"fate\": " << JsonString(table.fate) << ", \"commands\": [";
    std::istringstream commands(table.commands);
    bool first = true;
    for (std::string command; commands >> command; first = false) out << (first ? "" : ", ") << JsonString(command);
    out << "], \"message\": " << (table.messageKey.empty() ? "null" : JsonString(table.messageKey)) << "}";
  }
  out << (inspection.tables.empty() ? "],\n" : "\n  ],\n") << "  \"messages\": [";
  for (std::size_t i = 0; i < result.messages.size(); ++i) {
    const MessageRecord& message = result.messages[i];
    out << (i ? ",\n    " : "\n    ") << "{\"key\": " << (message.key.empty() ? "null" : JsonString(message.key))
        << ", \"text\": " << JsonString(message.text)
        << ", \"argument\": " << (message.hasArgument ? JsonString(message.argument) : "null") << "}";
  }
  out << (result.messages.empty() ? "]\n}\n" : "\n  ]\n}\n");
  return out.str();
}

}  // namespace

int InspectFile(const Options& options) {
  FileResult result;
  result.input = options.files.front();
  quillmesh::TerminalOptions terminal;
  terminal.inputPath = result.input;
  terminal.messageKeys = options.messageKeys;
  terminal.progress = options.progress;
  MessageKeepingInterface ui(terminal, result, true);
  quillmesh::Inspection inspection = quillmesh::InspectPath(result.input, ui);
  if (options.json)
    std::fputs(Json(result.input, inspection, result).c_str(), stdout);
  else
    PrintText(result.input, inspection);
  return inspection.code == 0 ? 0 : inspection.code == 1 ? 1 : 2;
}

}  // namespace cli
