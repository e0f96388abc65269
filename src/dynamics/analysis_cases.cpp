// The analysis cases: each case by its type word, then the mass source.
#include "dynamics/analysis_controls.h"
#include "dynamics/time_history.h"
#include "dynamics/moving_loads.h"
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

constexpr S2kField<S2kCaseBuckling1Row> kBuckling1Keys[] = {
    TextKey("Case=", &S2kCaseBuckling1Row::Case),
    NumberKey("NumBuckMode=", &S2kCaseBuckling1Row::NumBuckMode),
    NumberKey("EigenTol=", &S2kCaseBuckling1Row::EigenTol),
};

constexpr S2kField<S2kCaseBuckling2Row> kBuckling2Keys[] = {
    TextKey("Case=", &S2kCaseBuckling2Row::Case),
    TextKey("LoadType=", &S2kCaseBuckling2Row::LoadType),
    TextKey("LoadName=", &S2kCaseBuckling2Row::LoadName),
    NumberKey("LoadSF=", &S2kCaseBuckling2Row::LoadSF),
    NumberKey("TransAccSF=", &S2kCaseBuckling2Row::TransAccSF),
};

constexpr S2kField<S2kCaseModal1Row> kModal1Keys[] = {
    TextKey("Case=", &S2kCaseModal1Row::Case),
    TextKey("ModeType=", &S2kCaseModal1Row::ModeType),
    NumberKey("MaxNumModes=", &S2kCaseModal1Row::MaxNumModes),
    NumberKey("MinNumModes=", &S2kCaseModal1Row::MinNumModes),
    NumberKey("EigenShift=", &S2kCaseModal1Row::EigenShift),
    NumberKey("EigenCutOff=", &S2kCaseModal1Row::EigenCutOff),
    NumberKey("EigenTol=", &S2kCaseModal1Row::EigenTol),
};

constexpr S2kField<S2kCaseModal3Row> kModal3Keys[] = {
    TextKey("Case=", &S2kCaseModal3Row::Case),
    TextKey("LoadType=", &S2kCaseModal3Row::LoadType),
    TextKey("LoadName=", &S2kCaseModal3Row::LoadName),
    NumberKey("MaxCycles=", &S2kCaseModal3Row::MaxCycles),
    NumberKey("TargetPar=", &S2kCaseModal3Row::TargetPar),
};

constexpr S2kField<S2kCaseSpectrum1Row> kSpectrum1Keys[] = {
    TextKey("Case=", &S2kCaseSpectrum1Row::Case),
    TextKey("ModalCombo=", &S2kCaseSpectrum1Row::ModalCombo),
    NumberKey("GMCf1=", &S2kCaseSpectrum1Row::GMCf1),
    NumberKey("GMCf2=", &S2kCaseSpectrum1Row::GMCf2),
    TextKey("DirCombo=", &S2kCaseSpectrum1Row::DirCombo),
    NumberKey("ABSSF=", &S2kCaseSpectrum1Row::ABSSF),
    TextKey("DampingType=", &S2kCaseSpectrum1Row::DampingType),
    NumberKey("ConstDamp=", &S2kCaseSpectrum1Row::ConstDamp),
    NumberKey("FuncDamp=", &S2kCaseSpectrum1Row::FuncDamp),
};

constexpr S2kField<S2kMassSourceRow> kMassSourceKeys[] = {
    TextKey("MassFrom=", &S2kMassSourceRow::MassFrom),
    TextKey("LoadCase=", &S2kMassSourceRow::LoadCase),
    NumberKey("Multiplier=", &S2kMassSourceRow::Multiplier),
};

}  // namespace

const std::vector<S2kTableParser>& AnalysisTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {102, RunStep<&CAnalysisControls::ParseAnalysisCases>},
      {171, RunStep<&CAnalysisControls::ParseCaseBuckling1>},
      {172, RunStep<&CAnalysisControls::ParseCaseBuckling2>},
      {178, RunStep<&CAnalysisControls::ParseCaseModal1>},
      {180, RunStep<&CAnalysisControls::ParseCaseModal3>},
      {190, RunStep<&CAnalysisControls::ParseCaseSpectrum1>},
      {371, RunStep<&CAnalysisControls::ParseMassSource>},
  };
  return parsers;
}

int CAnalysisControls::ParseAnalysisCases() { return engine.ParseRows(kAnalysisKeys, analysisCases_); }
int CAnalysisControls::ParseCaseBuckling1() { return engine.ParseRows(kBuckling1Keys, buckling1_); }
int CAnalysisControls::ParseCaseBuckling2() { return engine.ParseRows(kBuckling2Keys, buckling2_); }
int CAnalysisControls::ParseCaseModal1() { return engine.ParseRows(kModal1Keys, modal1_); }
int CAnalysisControls::ParseCaseModal3() { return engine.ParseRows(kModal3Keys, modal3_); }
int CAnalysisControls::ParseCaseSpectrum1() { return engine.ParseRows(kSpectrum1Keys, spectrum1_); }
int CAnalysisControls::ParseMassSource() { return engine.ParseRows(kMassSourceKeys, massSource_); }

int CAnalysisControls::ConvertAnalysisCases() {
  // Type words are exact; any other case is left out.
  analysisCases_.Walk([&](int, const S2kAnalysisRow& row) {
    const std::string& type = row.Type;
    if (type == "LinStatic") {
      engine.Get<CLoadCases>().ConvertStaticCase(row.Case, type);
    } else if (type == "LinModal") {
      ConvertModalCase(row.Case);
    } else if (type == "LinRespSpec") {
      ConvertSpectrumControl(row.Case);
    } else if (type == "LinModHist") {
      engine.Get<CTimeHistory>().ConvertHistoryCase(row.Case, 1, 1, row.InitialCond);
    } else if (type == "NonModHist") {
      engine.Get<CTimeHistory>().ConvertHistoryCase(row.Case, 2, 1, row.InitialCond);
    } else if (type == "LinDirHis") {
      engine.Get<CTimeHistory>().ConvertHistoryCase(row.Case, 1, 2, row.InitialCond);
    } else if (type == "NonDirHist") {
      engine.Get<CTimeHistory>().ConvertHistoryCase(row.Case, 2, 2, row.InitialCond);
    } else if (type == "LinMoving") {
      engine.Get<CMovingLoads>().ConvertMovingCase(row.Case);
    } else if (type == "LinBuckling") {
      ConvertBucklingCase(row.Case);
    }
  });

  // The mass source: loads, elements, or both for any other word.
  massFromElements_ = 0;
  massSource_.Walk([&](int, const S2kMassSourceRow& row) {
    if (row.MassFrom == "Loads") {
      ConvertLoadToMass();
    } else if (row.MassFrom == "Elements") {
      massFromElements_ = 1;
    } else {
      ConvertLoadToMass();
      massFromElements_ = 1;
    }
  });
  return 1;
}
