// *ELTEMPER, *NDTEMPER and *THERGRAD: the temperature loads of one case.
#include "elements/elements.h"
#include "frame/converter.h"
#include "geometry/geometry.h"
#include "loads/case_block.h"
#include "loads/temperature_loads.h"

int CTemperatureLoads::WriteEltemper(const std::string& loadCase) {
  return WriteCaseBlock(
      engine, loadCase, "*ELTEMPER    ; Element Temperatures", "; ELEM_LIST, TEMPER, GROUP", eltempers_,
      &TvtEltemperRec::LCNAME,
      [&](const TvtEltemperRec& rec) {
        engine.WriteText("\t%d, %5g,\n", engine.Get<CElements>().ElementNumberOf(rec.ELEM_LIST, rec.ETYP),
                         rec.TEMPER);
      },
      CaseBlockOrder::KeyOrder);
}

// The walk of the table: its first key is 0 and there is no key 1.
int CTemperatureLoads::WriteNdtemper(const std::string& loadCase) {
  return WriteCaseBlock(engine, loadCase, "*NDTEMPER    ; Nodal Temperatures", "; NODE_LIST, TEMPER, GROUP",
                        ndtempers_, &TvtNdtemperRec::LCNAME, [&](const TvtNdtemperRec& rec) {
                          engine.WriteText("\t%d, %5g,\n", engine.Get<CGeometry>().NodeNumberOf(rec.NODE_LIST),
                                           rec.TEMPER);
                        });
}

int CTemperatureLoads::WriteThergrad(const std::string& loadCase) {
  return WriteCaseBlock(
      engine, loadCase, "*THERGRAD    ; Temperature Gradient",
      "; ELEM_LIST, iETYP, TZ, bUSEHZ, HZ, TY, bUSEHY, HY, GROUP", thergrads_, &TvtThergradRec::LCNAME,
      [&](const TvtThergradRec& rec) {
        engine.WriteText("\t%d, %5d, %5g, %5s, %5g, %5g, %5s, %5g,\n",
                         engine.Get<CElements>().ElementNumberOf(rec.ELEM_LIST, rec.ETYP), rec.iETYP, rec.TZ,
                         rec.bUSEHZ.c_str(), rec.HZ, rec.TY, rec.bUSEHY.c_str(), rec.HY);
      },
      CaseBlockOrder::KeyOrder);
}
