// The read loop: lines of the s2k file to tables of row texts.
#include <string>

#include "frame/converter.h"
#include "s2k/keys.h"

namespace {

// The first words of a file of the older layout.
constexpr std::string_view kOlderLayoutWords[] = {"SYSTEM", "JOINT", "RESTRAINT", "MATERIAL",
                                                  "FRAME",  "LOAD",  "PATTERN"};

bool IsOlderLayout(const std::string& titleLine) {
  for (std::string_view word : kOlderLayoutWords)
    if (StartsWith(titleLine, word)) return true;
  return false;
}

}  // namespace

// A read that meets the end of the file leaves the line as it was, and the
// loops don't test for it: they see the last line again. That is how a file
// without END ends (short lines, a foreign line) or goes on until stopped.
int CS2kConverter::ReadTables() {
  rowRows.clear();
  ui_.SetStage(1);
  std::string line, titleLine, rowText;
  int lineCounter = 0;
  int shortRun = 0;
  for (;;) {
    bool fresh = inputFile.ReadLine(line);
    titleLine = line;
    UpperCase(titleLine);
    if (titleLine.size() < 5) {
      if (++shortRun > 10) return 0;
      continue;
    }
    shortRun = 0;
    ++lineCounter;
    if (StartsWith(titleLine, "END")) return 0;
    if (StartsWith(titleLine, "FILE")) {
      // Departs from the plain loop: a last line FILE outside any table would
      // be ignored for ever with no advance of the bar where a stop could be
      // noticed, so the read ends here as if the user had stopped it.
      if (!fresh) {
        ui_.CloseProgress();
        ui_.InputEndsInFileLine();
        return 1;
      }
      continue;
    }
    if (StartsWith(titleLine, "TABLE")) {
      const int titleLineNumber = inputFile.LineNumber();
      const std::string title = onTableRead ? line : std::string();
      int unkeptRows = 0;
      int tableId = 0;
      bool newTitle = true;
      for (;;) {
        if (newTitle) {
          tableId = RecogniseTable(titleLine);
          rowText.clear();
          rowRows.clear();
          unkeptRows = 0;
          newTitle = false;
        }
        // The line itself stays as read: at the end of the file it is seen again.
        inputFile.ReadLine(line);
        if (line.size() < 3) break;
        if (!ui_.Advance(lineCounter)) return 1;
        ++lineCounter;
        if (StartsWith(line, "END") || StartsWith(line, "FILE")) break;
        if (StartsWith(line, "TABLE")) {
          newTitle = true;  // the old title stands
          continue;
        }
        std::string_view piece = line;
        if (tableId < 1) {
          if (onTableRead && !TrimRowLine(piece)) ++unkeptRows;
          continue;
        }
        const int goesOn = TrimRowLine(piece);
        if (goesOn || !rowText.empty()) {
          // A row of several lines is gathered first.
          rowText += piece;
          if (goesOn) continue;
          piece = rowText;
        }
        rowRows.push_back(piece);
        rowText.clear();
      }
      if (onTableRead) onTableRead({titleLineNumber, title, tableId, rowRows, unkeptRows});
      if (tableId >= 1 && !ParseTable(tableId)) return -1;
      rowRows.clear();  // parsed: the texts and their memory go
      continue;
    }
    if (IsOlderLayout(titleLine) || lineCounter > 3) {
      ShowMessage("IDS_S2KV8_Not_Convert");
      return -1;
    }
    ShowMessage("IDS_S2KV8_DATA_Not_Convert");
  }
}
