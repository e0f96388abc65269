// *BEAMLOAD: the frame loads of one load case, by their running numbers, so
// gravity rows come first, then point loads, then distributed loads.
#include "elements/elements.h"
#include "frame/converter.h"
#include "loads/case_block.h"
#include "loads/frame_loads.h"

int CFrameLoads::WriteBeamload(const std::string& loadCase) {
  return WriteCaseBlock(
      engine, loadCase, "*BEAMLOAD    ; Element Beam Loads",
      "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP", beamloads_, &TvtBeamloadRec::LCNAME,
      [&](const TvtBeamloadRec& rec) {
        engine.WriteText("\t%d, %5s, %5s, %5s, %5s, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g,\n",
                         engine.Get<CElements>().ElementNumberOf(rec.ELEM_LIST, "FRAME"), rec.CMD.c_str(), rec.TYPE.c_str(),
                         rec.DIR.c_str(), rec.bPROJ.c_str(), rec.D1, rec.P1, rec.D2, rec.P2, rec.D3, rec.P3, rec.D4,
                         rec.P4);
      },
      CaseBlockOrder::KeyOrder);
}
