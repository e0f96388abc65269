// *PRESTRESS (in the blocks of each case) and *INIFORCE, by their keys.
#include "elements/elements.h"
#include "frame/converter.h"
#include "loads/case_block.h"
#include "loads/prestress_loads.h"

int CPrestressLoads::WritePrestress(const std::string& loadCase) {
  return WriteCaseBlock(
      engine, loadCase, "*PRESTRESS    ; Prestress Beam Loads", "; ELEM_LIST, LTYPE, TENS, DI, DM, DJ, GROUP",
      prestress_, &TvtPrestressRec::LCNAME,
      [&](const TvtPrestressRec& rec) {
        engine.WriteText("\t%d, %5s, %5g, %5g, %5g, %5g,\n",
                         engine.Get<CElements>().ElementNumberOf(rec.ELEM_LIST, "FRAME"), rec.LTYPE.c_str(), rec.TENS,
                         rec.DI, rec.DM, rec.DJ);
      },
      CaseBlockOrder::KeyOrder);
}

int CPrestressLoads::WriteIniforce() {
  if (initialForces_.Empty()) return 1;
  engine.WriteText("%s\n", "*INIFORCE    ; Initial Forces for Geometric Stiffness");
  engine.WriteText("; ELEM_LIST, DIR, FORCE\n");
  CElements& elements = engine.Get<CElements>();
  initialForces_.ForEachKey([&](int, const TvtIniforceRec& rec) {
    engine.WriteText("\t%d, %5s, %5g\n", elements.ElementNumberOf(rec.ELEM_LIST, "FRAME"), rec.DIR.c_str(),
                     rec.FORCE);
  });
  engine.WriteText("\n");
  return 1;
}
