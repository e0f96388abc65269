// Table titles to table ids, and ids to their parser or warning.
#include <array>

#include "frame/converter.h"
#include "s2k/keys.h"
#include "frame/steps.h"
#include "s2k/table_parsers.h"
#include "s2k/table_titles.h"

namespace {

constexpr int kFirstId = 101;
constexpr int kLastId = 505;

// What ParseTable does for each id, gathered once from every subject.
struct TableActions {
  std::array<StepFunction, kLastId + 1> parse{};
  std::array<const char*, kLastId + 1> warning{};

  TableActions() {
    for (const std::vector<S2kTableParser>* list : TableParserLists())
      for (const S2kTableParser& entry : *list) parse[entry.tableId] = entry.parse;
    for (const S2kWarningTable& entry : kWarningTables) warning[entry.tableId] = entry.key;
  }
};

const TableActions& Actions() {
  static const TableActions actions;
  return actions;
}

}  // namespace

int CS2kConverter::RecogniseTable(const std::string& titleLine) const {
  for (std::size_t index = 0; index < firstWords.size(); ++index)
    if (titleLine.find(firstWords[index]) == 9) return RecogniseMember(titleLine, static_cast<int>(index));
  return 0;
}

int CS2kConverter::RecogniseMember(const std::string& titleLine, int index) const {
  const S2kTableFamily& family = kTableFamilies[index];
  if (family.members.empty()) return family.baseId;
  for (std::size_t k = 0; k < family.members.size(); ++k) {
    std::string word(family.members[k]);
    UpperCase(word);
    if (titleLine.find(word) != std::string::npos) return family.baseId + static_cast<int>(k);
  }
  return 0;
}

int CS2kConverter::ParseTable(int tableId) {
  if (tableId < kFirstId || tableId > kLastId) return 1;
  const TableActions& actions = Actions();
  if (auto parse = actions.parse[tableId]) return parse(*this);
  if (const char* key = actions.warning[tableId]) ShowMessage(key);
  return 1;
}
