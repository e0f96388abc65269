// The modal, spectrum, buckling, load-to-mass and analysis controls.
#include "dynamics/analysis_controls.h"

#include <cstdint>

#include "elements/elements.h"
#include "frame/converter.h"
#include "geometry/geometry.h"
#include "tvt/structure_type.h"
#include "s2k/keys.h"
#include "s2k/numbers.h"

namespace {

// Sums and differences of whole numbers wrap at 32 bits instead of trapping.
int WrapAdd(int a, int b) { return static_cast<int>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b)); }
int WrapSub(int a, int b) { return static_cast<int>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b)); }

}  // namespace

void CAnalysisControls::ConvertModalCase(const std::string& Case) {
  // A later modal case replaces the earlier one entirely.
  TvtEigenCtrlRec rec;
  // The first row decides, whatever case it names.
  if (const S2kCaseModal1Row* row = modal1_.Lookup(1)) {
    rec.TYPE = row->ModeType;
    UpperCase(rec.TYPE);

    int limit = engine.Get<CElements>().ElementCount();
    // The structure record is filled after the walk, so the factor is
    // still that of its defaults here.
    const int iSMAS = engine.Get<CStructureType>().MassKind();
    if (iSMAS == 1)
      limit *= 3;
    else if (iSMAS == 2)
      limit *= 2;
    int modes = row->MaxNumModes > limit ? limit : TruncateToInt(row->MaxNumModes);

    if (rec.TYPE == "EIGEN") {
      rec.iFREQ = modes;
      rec.TOL = row->EigenTol;
    } else if (rec.TYPE == "RITZ" && !modal3_.Empty()) {
      int zeroEntries = 0;
      const auto* loads = modal3Cases_.Hits(modal3_, Case);
      for (int key : loads ? loads->keys : std::span<const int>()) {
        const S2kCaseModal3Row& load = *modal3_.Lookup(key);
        rec.bINCNL = "NO";
        rec.iGNUM = 1;
        if (load.LoadType == "Load case") {
          rec.KIND.push_back("CASE");
          rec.CASE.push_back(load.LoadName);
        } else if (load.LoadType == "Accel") {
          rec.KIND.push_back("GROUND");
          if (load.LoadName == "Accel UX")
            rec.CASE.push_back("ACCX");
          else if (load.LoadName == "Accel UY")
            rec.CASE.push_back("ACCY");
          else if (load.LoadName == "Accel UZ")
            rec.CASE.push_back("ACCZ");
        }
        rec.iNOG.push_back(TruncateToInt(load.MaxCycles));
        if (load.MaxCycles < engine.ZeroTolerance) ++zeroEntries;
      }
      if (zeroEntries > 0) {
        // The modes left over are shared out among the loads without cycles.
        int sum = 0;
        for (int cycles : rec.iNOG) sum = WrapAdd(sum, cycles);
        const int share = WrapSub(modes, sum) / zeroEntries;
        if (share > 0)
          for (int& cycles : rec.iNOG)
            if (cycles == 0) cycles = share;
      }
    }
  }
  rec.Defined = 1;
  dynamicCaseSeen_ = 1;
  eigenCtrl_ = std::move(rec);
}

void CAnalysisControls::ConvertSpectrumControl(const std::string& /*Case*/) {
  // The first row decides, whatever case it names.
  const S2kCaseSpectrum1Row* row = spectrum1_.Lookup(1);
  if (!row) return;
  TvtSpecCtrlRec rec;
  rec.TYPE = row->ModalCombo;
  rec.DAMPING = row->ModalCombo == "CQC" ? row->ConstDamp : 0;
  rec.bADDSIGN = "NO";
  rec.Defined = 1;
  dynamicCaseSeen_ = 1;
  specCtrl_ = std::move(rec);
}

void CAnalysisControls::ConvertBucklingCase(const std::string& Case) {
  // Only the first buckling case with loads counts.
  if (bucklingDefined_ || buckling1_.Empty() || buckling2_.Empty()) return;
  const auto* loads = buckling2Cases_.Hits(buckling2_, Case);
  if (!loads) return;
  TvtBuckCtrlRec rec;
  for (int key : loads->keys) {
    const S2kCaseBuckling2Row& load = *buckling2_.Lookup(key);
    if (load.LoadType != "Load case") {
      // Ends the case; loads taken before it stand.
      bucklingLoadRefused_ = 1;
      break;
    }
    rec.LCNAME.push_back(load.LoadName);
    rec.FACT.push_back(load.LoadSF);
  }
  if (rec.LCNAME.empty()) return;
  // The last mode row of this case in the walk counts; none leaves the
  // record's values.
  if (const auto* modes = buckling1Cases_.Hits(buckling1_, Case)) {
    const S2kCaseBuckling1Row& row = *buckling1_.Lookup(modes->Last());
    rec.iMODENUM = TruncateToInt(row.NumBuckMode);
    rec.TOL = row.EigenTol;
  }
  rec.iITER = 30;
  buckCtrl_ = std::move(rec);
  bucklingDefined_ = 1;
}

void CAnalysisControls::ConvertLoadToMass() {
  // A later call would make the same record again.
  if (massSource_.Empty() || loadToMass_.Defined) return;
  TvtLoadtomassRec rec;
  massSource_.Walk([&](int, const S2kMassSourceRow& row) {
    if (row.MassFrom == "Elements") return;
    rec.LCNAME.push_back(row.LoadCase);
    rec.FACTOR.push_back(row.Multiplier);
  });
  rec.GRAV = engine.Get<CGeometry>().GravityInModelUnits();
  rec.Defined = 1;
  loadToMass_ = std::move(rec);
}

int CAnalysisControls::ConvertAnalysisControl() {
  if (dynamicCaseSeen_) analCtrl_ = TvtAnalCtrlRec{};
  return 1;
}
