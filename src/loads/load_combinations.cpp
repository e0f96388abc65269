// Load combinations: the terms of each combination, gathered in file order,
// and the case kind of each term.
#include "loads/load_combinations.h"

#include <utility>

#include "dynamics/response_spectrum.h"
#include "frame/converter.h"
#include "loads/load_cases.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kCombinationRow> kCombinationKeys[] = {
    TextKey("ComboName=", &S2kCombinationRow::ComboName),
    TextKey("ComboType=", &S2kCombinationRow::ComboType),
    TextKey("CaseType=", &S2kCombinationRow::CaseType),
    TextKey("CaseName=", &S2kCombinationRow::CaseName),
    NumberKey("ScaleFactor=", &S2kCombinationRow::ScaleFactor),
    TextKey("SteelDesign=", &S2kCombinationRow::SteelDesign),
    TextKey("ConcreteDesign=", &S2kCombinationRow::ConcreteDesign),
    TextKey("AlumDesign=", &S2kCombinationRow::AlumDesign),
    TextKey("ColdDesign=", &S2kCombinationRow::ColdDesign),
};

struct SWordValue {
  const char* word;
  int value;
};

constexpr SWordValue kComboTypes[] = {{"Linear Add", 0}, {"Envelope", 1}, {"Abs Add", 2}, {"SRSS", 3}};

struct SCaseKind {
  const char* caseType;
  const char* anal;
};

constexpr SCaseKind kCaseKinds[] = {
    {"Linear Static", "ST"},     {"NonLin Static", "ST"},     {"Response Spectrum", "RS"},
    {"Linear Modal Hist", "TH"}, {"NonLin Modal Hist", "TH"}, {"Moving Load", "MV"},
    {"Response Combo", "CB"},
};

void AddTerm(TvtLoadcombRec& rec, const std::string& anal, const std::string& name, double factor) {
  rec.ANAL.push_back(anal);
  rec.LCNAME.push_back(name);
  rec.FACT.push_back(factor);
}

}  // namespace

const std::vector<S2kTableParser>& CombinationTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {103, RunStep<&CLoadCombinations::ParseCombinations>},
  };
  return parsers;
}

int CLoadCombinations::ParseCombinations() { return engine.ParseRows(kCombinationKeys, combinations_); }

int CLoadCombinations::ConvertCombinations() {
  const CLoadCases& loadCases = engine.Get<CLoadCases>();
  const int n = combinations_.Count();
  TvtLoadcombRec rec;
  std::string prev;
  bool skip = false;
  int key = 0;
  std::vector<std::string> names;
  for (int i = 0; i < n; ++i) {
    const S2kCombinationRow* row = combinations_.Lookup(i + 1);
    if (!row) continue;
    // A term of no static case drops its whole combination, and what was in
    // hand with it.
    if (!loadCases.IsStaticLoadCase(row->CaseName)) {
      skip = true;
      prev = row->ComboName;
      rec = TvtLoadcombRec{};
      continue;
    }
    if (skip && prev == row->ComboName) continue;
    if (prev != row->ComboName && i > 0) {
      if (skip) {
        skip = false;
      } else {
        if (!loadCombinations_.SetAt(++key, std::move(rec))) return 0;
        rec = TvtLoadcombRec{};
      }
    }
    rec.NAME = row->ComboName;
    if (!row->ComboType.empty()) {
      for (const SWordValue& type : kComboTypes)
        if (row->ComboType == type.word) rec.iTYPE = type.value;
    }
    const char* anal = nullptr;
    for (const SCaseKind& kind : kCaseKinds)
      if (row->CaseType == kind.caseType) anal = kind.anal;
    if (!anal) {
      anal = "ST";
      usedUnknownCaseType_ = true;
    }
    // A spectrum case stands for its load rows; only two or more replace it.
    if (std::string(anal) == "RS" && GetSpectrumCaseNames(row->CaseName, row->CaseType, names) >= 2) {
      for (const std::string& name : names) AddTerm(rec, "RS", name, row->ScaleFactor);
    } else {
      AddTerm(rec, anal, row->CaseName, row->ScaleFactor);
    }
    prev = row->ComboName;
    if (i == n - 1 && !loadCombinations_.SetAt(++key, std::move(rec))) return 0;
  }
  return 1;
}

int CLoadCombinations::GetSpectrumCaseNames(const std::string& CaseName, const std::string& CaseType,
                                            std::vector<std::string>& Names) const {
  Names.clear();
  if (CaseType == "Response Spectrum") Names = engine.Get<CResponseSpectrum>().SpectrumLoadNamesOf(CaseName);
  return static_cast<int>(Names.size());
}
