// *PRESSURE: the face loads of plates of one case, by their running numbers.
#include "elements/elements.h"
#include "frame/converter.h"
#include "loads/case_block.h"
#include "loads/surface_loads.h"

int CSurfaceLoads::WritePressure(const std::string& loadCase) {
  if (pressures_.Empty()) return 1;
  // Said for every case, whether it has pressures or not.
  if (surfaceFaceRefused_) engine.ShowMessage("IDS_S2KV8_PLATE_SurfP_Not_Convert");
  return WriteCaseBlock(
      engine, loadCase, "*PRESSURE    ; Pressure Loads",
      "; ELEM_LIST, CMD, ETYP, LTYP, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP  ; ETYP=PLATE, LTYP=FACE\n"
      "; ELEM_LIST, CMD, ETYP, LTYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP          ; ETYP=PLATE, LTYP=EDGE\n"
      "; ELEM_LIST, CMD, ETYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP                ; ETYP=PLANE\n"
      "; ELEM_LIST, CMD, ETYP, iFACE, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP ; ETYP=SOLID",
      pressures_, &TvtPressureRec::LCNAME,
      [&](const TvtPressureRec& rec) {
        engine.WriteText("\t%d, PRES, %5s, %5s, %5s, %5g, %5g, %5g, %5s, %5g, %5g, %5g, %5g, %5g,\n",
                         engine.Get<CElements>().ElementNumberOf(rec.ELEM_LIST, "AREA"), rec.ETYP.c_str(),
                         rec.LTYP.c_str(), rec.DIR.c_str(), rec.VX, rec.VY, rec.VZ, rec.bPROJ.c_str(), rec.PU, rec.P1,
                         rec.P2, rec.P3, rec.P4);
      },
      CaseBlockOrder::KeyOrder);
}
