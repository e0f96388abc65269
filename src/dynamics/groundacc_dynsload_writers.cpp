// The writers of *GROUND-ACC and *DYN-SLOAD.
#include "dynamics/time_history.h"
#include "frame/converter.h"

int CTimeHistory::WriteGroundAcc() {
  if (groundAcc_.Empty()) return 1;
  engine.WriteText("%s\n", "*GROUND-ACC    ; Ground Acceleration");
  engine.WriteText("; THIS, FUNCX, SCALEX, ATIMEX, FUNCY, SCALEY, ATIMEY, FUNCZ, SCALEZ, ATIMEZ, ANGLE\n");
  groundAcc_.Walk([&](int, const TvtGroundAccRec& rec) {
    engine.WriteText("\t%s, %5s, %5g, %5g, %5s, %5g, %5g, %5s, %5g, %5g, %5g\n", rec.THIS.c_str(), rec.FUNCX.c_str(),
                     rec.SCALEX, rec.ATIMEX, rec.FUNCY.c_str(), rec.SCALEY, rec.ATIMEY, rec.FUNCZ.c_str(), rec.SCALEZ,
                     rec.ATIMEZ, rec.ANGLE);
  });
  engine.WriteText("\n");
  return 1;
}

int CTimeHistory::WriteDynSloads() {
  if (dynSloads_.Empty()) return 1;
  engine.WriteText("%s\n", "*DYN-SLOAD    ; Time Varying Static Load");
  engine.WriteText("; THIS, SLOAD, FUNC, ATIME, SCALE\n");
  dynSloads_.Walk([&](int, const TvtDynSloadRec& rec) {
    engine.WriteText("\t%s, %5s, %5s, %5g, %5g\n", rec.THIS.c_str(), rec.SLOAD.c_str(), rec.FUNC.c_str(), rec.ATIME,
                     rec.SCALE);
  });
  engine.WriteText("\n");
  return 1;
}
