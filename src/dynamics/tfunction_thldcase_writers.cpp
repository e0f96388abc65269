// The writers of *TFUNCTION and *THLDCASE.
#include "dynamics/time_history.h"
#include "frame/converter.h"

int CTimeHistory::WriteTfunctions() {
  if (functions_.Empty()) return 1;
  if (historyFunctionRefused_) engine.ShowMessage("IDS_S2KV8_TMHT_Func_Not_Convert");
  engine.WriteText("%s\n", "*TFUNCTION    ; Time History Function");
  engine.WriteText("; FUNC=NAME, 1, iTYPE, SCALE, GRAV, DESC           ; line 1\n");
  engine.WriteText(";      TIME1, VALUE1, TIME2, VALUE2, ...           ; from line 2\n");
  functions_.Walk([&](int, const TvtTfunctionRec& rec) {
    engine.WriteText("\tFUNC=%s, %2d, %5d, %5g, %5g, %5s", rec.FUNC.c_str(), rec.one, rec.iTYPE, rec.SCALE, rec.GRAV,
                     rec.DESC.c_str());
    // The first point opens a line without a tab; three points to a line.
    for (std::size_t k = 0; k < rec.TIME.size(); ++k) {
      engine.WriteText(k == 0 ? "\n" : k % 3 == 0 ? "\n\t\t" : ",");
      engine.WriteText("%5g, %5g", rec.TIME[k], rec.VALUE[k]);
    }
    engine.WriteText("\n\n");
  });
  engine.WriteText("\n");
  return 1;
}

int CTimeHistory::WriteThldcases() {
  if (cases_.Empty()) return 1;
  if (historyDampingRefused_) engine.ShowMessage("IDS_S2KV8_MDHT_IntpDamp_Not_Convert");
  if (historyDataRefused_) engine.ShowMessage("IDS_S2KV8_THLC_Data_Not_Convert");
  if (historyMethodRefused_) engine.ShowMessage("IDS_S2KV8_TMHT_NewMark_Only_Convert");
  static const char* const kComments[] = {
      "; NAME=NAME, DESC                                                  ; line 1",
      ";      ETIME, INC, iOUT, iICOND, FSPLC, iATYPE, iAMETHOD, iTHTYPE  ; line 2",
      ";      iMDTYPE, [DR-DC], [TIP], [NACP]                             ; line 3",
      ";      iMODE1, DAMPING1, iMODE2, DAMPING2, ...                     ; from line 4",
      "; [DR-DC] : DALL                                                   ; iMDTYPE=1",
      ";         : iCOEF, bMASSP, MASSC, bSTIFFP, STIFFC                  ; iMDTYPE=2, iCOEF=1",
      ";         : iCOEF, iCALC, bMASSP, FP1, DR1, bSTIFFP, FP2, DR2      ; iMDTYPE=2, iCOEF=2",
      "; [TIP]   : iNMM, GAMMA, BETA                                      ; iAMETHOD=2",
      "; [NACP]  : MINSSS, iMAXITER, CONVTOL                              ; iATYPE=2",
  };
  engine.WriteText("%s\n", "*THLDCASE   ; Time History Load Cases");
  for (const char* comment : kComments) engine.WriteText("%s\n", comment);
  cases_.Walk([&](int, const TvtThldcaseRec& rec) {
    engine.WriteText("\tNAME=%s, %5s\n", rec.NAME.c_str(), rec.DESC.c_str());
    engine.WriteText("\t\t%g, %5g, %5d, %5d, %5s, %5d, %5d, %5d\n", rec.ETIME, rec.INC, rec.iOUT, rec.iICOND,
                     rec.FSPLC.c_str(), rec.iATYPE, rec.iAMETHOD, rec.iTHTYPE);
    // Line 3: the damping, then integration and nonlinear parameters.
    const bool mass = rec.bMASSP == "YES";
    const bool stiffness = rec.bSTIFFP == "YES";
    if (rec.iMDTYPE == 1) {
      engine.WriteText("\t\t%d,", rec.iMDTYPE);
      engine.WriteText("%5g,", rec.DALL);
    } else if (rec.iCOEF == 1) {
      engine.WriteText("\t\t%d, %5s,", rec.iCOEF, rec.bMASSP.c_str());
      if (mass)
        engine.WriteText("%5g", rec.MASSC);
      else
        engine.WriteText(" ,");
      engine.WriteText("%5s,", rec.bSTIFFP.c_str());
      if (stiffness)
        engine.WriteText("%5g", rec.STIFFC);
      else
        engine.WriteText(" ,");
    } else if (rec.iCOEF == 2) {
      engine.WriteText("\t\t%d, %5d, %5s,", rec.iCOEF, rec.iCALC, rec.bMASSP.c_str());
      if (mass)
        engine.WriteText("%5g, %5g,", rec.FP1, rec.DR1);
      else
        engine.WriteText(" , ,");
      engine.WriteText("%5s,", rec.bSTIFFP.c_str());
      if (stiffness)
        engine.WriteText("%5g, %5g,", rec.FP2, rec.DR2);
      else
        engine.WriteText(" , ,");
    }
    if (rec.iAMETHOD == 2)
      engine.WriteText("%5d, %5g, %5g,", rec.iNMM, rec.GAMMA, rec.BETA);
    else
      engine.WriteText(" 1, , ,");
    if (rec.iATYPE == 2)
      engine.WriteText("%5g, %5d, %5g", rec.MINSSS, rec.iMAXITER, rec.CONVTOL);
    else
      engine.WriteText(" , ,");
    engine.WriteText("\n");
    // The mode damping list, three entries to a line.
    if (!rec.iMODE.empty()) {
      for (std::size_t k = 0; k < rec.iMODE.size(); ++k) {
        engine.WriteText(k % 3 == 0 ? "\n\t\t" : ",");
        engine.WriteText("%5d, %5g", rec.iMODE[k], rec.DAMPING[k]);
      }
      engine.WriteText("\n");
    }
    engine.WriteText("\n\n");
  });
  return 1;
}
