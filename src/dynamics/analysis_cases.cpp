// The analysis cases: each case by its type word, then the mass source.
#include "dynamics/analysis_controls.h"
#include "frame/converter.h"
#include "loads/load_cases.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kAnalysisRow> kAnalysisKeys[] = {
    TextKey("Case=", &S2kAnalysisRow::Case),
    TextKey("Type=", &S2kAnalysisRow::Type),
    TextKey("InitialCond=", &S2kAnalysisRow::InitialCond),
    TextKey("ModalCase=", &S2kAnalysisRow::ModalCase),
};

}  // namespace

const std::vector<S2kTableParser>& AnalysisTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {102, RunStep<&CAnalysisControls::ParseAnalysisCases>},
  };
  return parsers;
}

int CAnalysisControls::ParseAnalysisCases() { return engine.ParseRows(kAnalysisKeys, analysisCases_); }

int CAnalysisControls::ConvertAnalysisCases() {
  // Type words are exact; any other case is left out.
  analysisCases_.Walk([&](int, const S2kAnalysisRow& row) {
    const std::string& type = row.Type;
    if (type == "LinStatic") {
      engine.Get<CLoadCases>().ConvertStaticCase(row.Case, type);
    } else if (type == "LinModal") {
      // ConvertModalCase(row.Case)
    } else if (type == "LinRespSpec") {
      // ConvertSpectrumControl(row.Case)
    } else if (type == "LinModHist") {
      // engine.Get<CTimeHistory>().ConvertHistoryCase(row.Case, 1, 1, row.InitialCond)
    } else if (type == "NonModHist") {
      // engine.Get<CTimeHistory>().ConvertHistoryCase(row.Case, 2, 1, row.InitialCond)
    } else if (type == "LinDirHis") {
      // engine.Get<CTimeHistory>().ConvertHistoryCase(row.Case, 1, 2, row.InitialCond)
    } else if (type == "NonDirHist") {
      // engine.Get<CTimeHistory>().ConvertHistoryCase(row.Case, 2, 2, row.InitialCond)
    } else if (type == "LinMoving") {
      // engine.Get<CMovingLoads>().ConvertMovingCase(row.Case)
    } else if (type == "LinBuckling") {
      // ConvertBucklingCase(row.Case)
    }
  });
  return 1;
}
