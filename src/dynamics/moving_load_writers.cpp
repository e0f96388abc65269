// The writers of *LINELANE, *VEHICLE, *VCLASS, *MVLDCASE and *MOVE-CTRL.
#include "dynamics/moving_loads.h"
#include "elements/elements.h"
#include "frame/converter.h"

// Each lane's name once, then its frames, three to a line.
int CMovingLoads::WriteLanes() {
  if (linelanes_.Empty()) return 1;
  engine.WriteText("%5s\n", "*LINELANE    ; Traffic Line Lanes");
  engine.WriteText("; NAME=NAME, LDIST, GROUP, SKEWS, SKEWE, MOVING  ; line 1\n");
  engine.WriteText(";      iELEM1, ECC1, FACT1, ...                  ; from line 2\n");
  CElements& elements = engine.Get<CElements>();
  TvtLinelaneRec rec;
  std::string previous;
  int c = 0;
  for (int key = 1; key <= linelanes_.Count(); ++key) {
    linelanes_.Lookup(key, rec);  // a missing key prints the record before it again
    if (rec.NAME != previous) {
      engine.WriteText("\n\tNAME=%s, %5s, %5d, %5g, %5g, %5s\n", rec.NAME.c_str(), rec.LDIST.c_str(), rec.GROUP,
                       rec.SKEWS, rec.SKEWE, rec.MOVING.c_str());
      c = 0;
    } else if (c > 1 && c % 3 == 0) {
      engine.WriteText("\n");
    } else {
      engine.WriteText(",");
    }
    previous = rec.NAME;
    ++c;
    engine.WriteText("\t\t%d, %5g, %5g", elements.ElementNumberOf(rec.iELEM, "FRAME"), rec.ECC, rec.FACT);
  }
  engine.WriteText("\n\n");
  return 1;
}

int CMovingLoads::WriteVehicles() {
  if (tvtVehicles_.Empty()) return 1;
  if (!notConvertedVehicles_.empty()) engine.ShowMessage("IDS_S2KV8_NOCONVERT_VEHICLE", notConvertedVehicles_);
  engine.WriteText("%s\n", "*VEHICLE    ; Vehicles");
  engine.WriteText("; NAME=NAME, 1\n");
  engine.WriteText("; NAME=NAME, 2, bTRAIN, W(W1), PL(D1), PLM(W2), PLV(D2)  ; line 1\n");
  engine.WriteText(";      LOAD1, DIST1, LOAD2, DIST2, ...                   ; from line 2\n");
  tvtVehicles_.Walk([&](int, const TvtVehicleRec& rec) {
    if (rec.FORM == 1) {
      engine.WriteText("\tNAME=%s, %2d\n", rec.NAME.c_str(), 1);
    } else {
      engine.WriteText("\t\tNAME=%s, %2d, %5s, %5g, %5g, %5g, %5g", rec.NAME.c_str(), rec.FORM, rec.bTRAIN.c_str(),
                       rec.W, rec.PL, rec.PLM, rec.PLV);
      for (std::size_t k = 0; k < rec.LOAD.size(); ++k) {
        engine.WriteText(k % 2 == 0 ? "\n\t\t\t" : ",");
        engine.WriteText("%5g, %5g", rec.LOAD[k], rec.DIST[k]);
      }
    }
    engine.WriteText("\n");
  });
  engine.WriteText("\n");
  return 1;
}

int CMovingLoads::WriteVclasses() {
  if (vclasses_.Empty()) return 1;
  engine.WriteText("%s\n", "*VCLASS    ; Vehicle Classes");
  engine.WriteText("; NAME=NAME                  ; line 1\n");
  engine.WriteText(";      VLOAD1, VLOAD2, ...   ; from line 2\n");
  vclasses_.Walk([&](int, const TvtVclassRec& rec) {
    engine.WriteText("\tNAME=%s\n", rec.NAME.c_str());
    for (std::size_t k = 0; k < rec.VLOAD.size(); ++k) {
      engine.WriteText("\t\t%s", rec.VLOAD[k].c_str());
      if (k + 1 < rec.VLOAD.size()) engine.WriteText(",");
      if (k > 0 && k % 5 == 0) engine.WriteText("\n");
    }
    engine.WriteText("\n");
  });
  engine.WriteText("\n");
  return 1;
}

// A case's name once, then one line per assignment with its lanes from the
// last to the first; *MOVE-CTRL follows at once.
int CMovingLoads::WriteMvldcases() {
  if (mvldcases_.Empty()) return 1;
  if (maxLoadedFlag_) engine.ShowMessage("IDS_S2KV8_MAXLOADED_VEHICLE_CLASS");
  engine.WriteText("%s\n", "*MVLDCASE   ; Moving Load Cases");
  engine.WriteText("; NAME=NAME, SCALE1, SCALE2, SCALE3, SCALE4, COMB, DESC           ; 1st line\n");
  engine.WriteText(";      TYPE1, VCLASS1, SCALE1, iMIN1, iMAX1, LANE11, LANE12, ...  ; 2nd line\n");
  engine.WriteText(";      ...                                                        ; ...\n");
  engine.WriteText(";      TYPEn, VCLASSn, SCALEn, iMINn, iMAXn, LANEn1, LANEn2, ...  ; n+1th line\n");
  TvtMvldcaseRec rec;
  std::string previous;
  for (int key = 1; key <= mvldcases_.Count(); ++key) {
    mvldcases_.Lookup(key, rec);  // a missing key prints the record before it again
    if (rec.NAME != previous)
      engine.WriteText("\tNAME=%s, %5g, %5g, %5g, %5g, %5s, %5s\n", rec.NAME.c_str(), rec.SCALE1, rec.SCALE2,
                       rec.SCALE3, rec.SCALE4, rec.COMB.c_str(), rec.DESC.c_str());
    previous = rec.NAME;
    engine.WriteText("\t\t%s, %5s, %5g, %5d, %5d", rec.TYPE.c_str(), rec.VCLASS.c_str(), rec.SCALE, rec.iMIN,
                     rec.iMAX);
    for (auto lane = rec.LANE.rbegin(); lane != rec.LANE.rend(); ++lane) engine.WriteText(",%5s", lane->c_str());
    engine.WriteText("\n");
  }
  engine.WriteText("\n");
  return WriteMoveCtrl();
}

int CMovingLoads::WriteMoveCtrl() {
  const TvtMoveCtrlRec& r = moveCtrl_;
  engine.WriteText("%s\n", "*MOVE-CTRL    ; Moving Load Analysis Control");
  engine.WriteText(
      "; METHOD, POINT, iIGPN, PLATE, bSTRCALC, FRAME, bCSTRCALC, bREAC, bRG, RGN, bDISP, bDG, DGN, bFM, bFG, FGN\n");
  engine.WriteText("\t%s, %5s, %5d, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s\n\n",
                   r.METHOD.c_str(), r.POINT.c_str(), r.iIGPN, r.PLATE.c_str(), r.bSTRCALC.c_str(), r.FRAME.c_str(),
                   r.bCSTRCALC.c_str(), r.bREAC.c_str(), r.bRG.c_str(), r.RGN.c_str(), r.bDISP.c_str(),
                   r.bDG.c_str(), r.DGN.c_str(), r.bFM.c_str(), r.bFG.c_str(), r.FGN.c_str());
  return 1;
}
