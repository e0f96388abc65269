// The writers of *LOADTOMASS, *ANAL-CTRL, *SPEC-CTRL, *EIGEN-CTRL and *BUCK-CTRL.
#include "dynamics/analysis_controls.h"
#include "frame/converter.h"

int CAnalysisControls::WriteLoadToMass() {
  const TvtLoadtomassRec& rec = loadToMass_;
  if (!rec.Defined) return 1;
  engine.WriteText("; *LOADTOMASS, DIR, bNODAL, bBEAM, bFLOOR, bPRES, GRAV\n");
  engine.WriteText(";     LCNAME1, FACTOR1, LCNAME2, FACTOR2, ...   ; from line 1\n");
  engine.WriteText("\t*LOADTOMASS, %5s, %5s, %5s, %5s, %5s, %5g\n", rec.DIR.c_str(), rec.bNODAL.c_str(),
                   rec.bBEAM.c_str(), rec.bFLOOR.c_str(), rec.bPRES.c_str(), rec.GRAV);
  // The first entry stands alone, then five to a line.
  const std::size_t count = rec.LCNAME.size();
  for (std::size_t k = 0; k < count; ++k) {
    engine.WriteText("\t%s, %5g", rec.LCNAME[k].c_str(), rec.FACTOR[k]);
    engine.WriteText(k + 1 == count || k % 5 == 0 ? "\n\t" : ",");
  }
  engine.WriteText("\n");
  return 1;
}

int CAnalysisControls::WriteAnalCtrl() {
  if (!dynamicCaseSeen_) return 1;
  const TvtAnalCtrlRec& rec = analCtrl_;
  engine.WriteText("*ANAL-CTRL\n");
  engine.WriteText("; bARDC, bANRC, iTYPE, iITER, TOL            ; iTYPE=0\n");
  engine.WriteText("; bARDC, bANRC, iTYPE, iITER, iSITER, TOL    ; iTYPE=1\n");
  engine.WriteText("\t%s, %5s, %5d, %5d, %5g\n", rec.bARDC.c_str(), rec.bANRC.c_str(), 0, rec.iITER, rec.TOL);
  engine.WriteText("\n");
  return 1;
}

int CAnalysisControls::WriteSpecCtrl() {
  const TvtSpecCtrlRec& rec = specCtrl_;
  if (!rec.Defined) return 1;
  engine.WriteText("%s\n", "*SPEC-CTRL    ; Response Spectrum Analysis Control");
  engine.WriteText("; TYPE, DAMPING, bADDSIGN\n");
  engine.WriteText("\t%s, %5g, %5s\n", rec.TYPE.c_str(), rec.DAMPING, rec.bADDSIGN.c_str());
  engine.WriteText("\n");
  return 1;
}

int CAnalysisControls::WriteEigenCtrl() {
  const TvtEigenCtrlRec& rec = eigenCtrl_;
  if (!rec.Defined) return 1;
  engine.WriteText("%s\n", "*EIGEN-CTRL    ; Eigenvalue Analysis Control");
  engine.WriteText("; TYPE, iFREQ, iITER, iDIM, TOL          ; TYPE=EIGEN\n");
  engine.WriteText("; TYPE, bINCNL, iGNUM                    ; TYPE=RITZ(line 1)\n");
  engine.WriteText(";       KIND1, CASE1/GROUND1, iNOG1, ... ; TYPE=RITZ(from line2)\n");
  if (rec.TYPE == "EIGEN") {
    engine.WriteText("\t%s, %5d, %5d, %5d, %5g\n", rec.TYPE.c_str(), rec.iFREQ, rec.iITER, rec.iDIM, rec.TOL);
  } else if (rec.TYPE == "RITZ") {
    engine.WriteText("\t%s, %5s, %5d", rec.TYPE.c_str(), rec.bINCNL.c_str(), rec.iGNUM);
    // One entry per load; a load whose kind or name was not known leaves its
    // text lists shorter, and the missing texts print empty.
    auto at = [](const std::vector<std::string>& list, std::size_t k) {
      return k < list.size() ? list[k].c_str() : "";
    };
    for (std::size_t k = 0; k < rec.iNOG.size(); ++k) {
      engine.WriteText(k % 3 == 0 ? "\n\t\t" : ",");
      engine.WriteText("%5s, %5s, %5d", at(rec.KIND, k), at(rec.CASE, k), rec.iNOG[k]);
    }
  }
  engine.WriteText("\n\n");
  return 1;
}

int CAnalysisControls::WriteBuckCtrl() {
  if (bucklingDefined_) {
    const TvtBuckCtrlRec& rec = buckCtrl_;
    if (bucklingLoadRefused_) engine.ShowMessage("IDS_S2KV8_BUCK_LdType_Not_Convert");
    engine.WriteText("%s\n", "*BUCK-CTRL    ; Buckling Analysis Control");
    engine.WriteText("; iMODENUM, iITER, TOL                 ; line 1\n");
    engine.WriteText("; LCNAME1, FACT1, LCNAME2, FACT2, ...  ; from line 2\n");
    engine.WriteText("\t%d, %5d, %5g", rec.iMODENUM, rec.iITER, rec.TOL);
    for (std::size_t k = 0; k < rec.LCNAME.size(); ++k) {
      engine.WriteText(k % 3 == 0 ? "\n\t\t" : ",");
      engine.WriteText("%5s, %5g", rec.LCNAME[k].c_str(), rec.FACT[k]);
    }
  }
  // Two empty lines stand here in every file, buckling or not.
  engine.WriteText("\n\n");
  return 1;
}
