// The writers of *WIND and *SEIS, one section per code.
#include "frame/converter.h"
#include "loads/auto_loads.h"

namespace {

/// One code's section of a case: the block of the case's first record, if
/// any, then the end mark, which names the record the search stopped on, so
/// a table with rows for other cases only still leaves its end mark.
template <class Rec, class WriteLines>
void WriteAutoLoadSection(CS2kConverter& engine, const CKeyedTable<Rec>& table, const CNameIndex<Rec>& cases,
                          const std::string& loadCase, const char* header, WriteLines writeLines) {
  if (table.Empty()) return;
  int key = cases.FindKey(table, loadCase);
  if (key) {
    engine.WriteText("%s, %10s\n\n", "*USE-STLD", loadCase.c_str());
    engine.WriteText("%s\n", header);
    writeLines(*table.Lookup(key));
  } else {
    key = cases.LastWalked(table);
  }
  engine.WriteText(";End of data for load case [%s]\n\n", table.Lookup(key)->LCNAME.c_str());
}

constexpr const char* kWindHeader = "*WIND    ; Wind Loads";
constexpr const char* kSeisHeader = "*SEIS    ; Static Seismic Loads";

}  // namespace

int CAutoLoads::WriteWind(const std::string& LoadCaseName) {
  WriteAutoLoadSection(engine, windUbc1997_, windUbc1997Cases_, LoadCaseName, kWindHeader,
                       [&](const TvtWindUbc1997Rec& rec) {
                         engine.WriteText("; CODE=CODE, SFX, SFY, DESC                   ; line 1\n");
                         engine.WriteText("; [UBC1997]   : iMETHOD, EC, BWS, IF, PC, MRH ; line 2\n\n");
                         engine.WriteText("\tCODE=UBC1997, %5g, %5g, %5s\n", rec.SFX, rec.SFY, rec.DESC.c_str());
                         engine.WriteText("\t\t%d, %5s, %5g, %5g, %5g, %5g\n\n", rec.iMETHOD, rec.EC.c_str(), rec.BWS,
                                          rec.IF, rec.PC, rec.MRH);
                       });
  WriteAutoLoadSection(engine, windIbc2000_, windIbc2000Cases_, LoadCaseName, kWindHeader,
                       [&](const TvtWindIbc2000Rec& rec) {
                         engine.WriteText("; CODE=CODE, SFX, SFY, DESC                                 ; line 1\n");
                         engine.WriteText("; [IBC2000]   : iPROC, BWS, IF, EC, WDF, MRH, iST, GFX, GFY ; line 2\n");
                         engine.WriteText("\tCODE=IBC2000, %5g, %5g, %5s\n", rec.SFX, rec.SFY, rec.DESC.c_str());
                         // iST has an empty field of its own: its conversion prints nothing.
                         engine.WriteText("\t\t%d, %5g, %5g, %5s, %5g, %5g, , %5g, %5g, NO, , , , , , NO, 1\n\n",
                                          rec.iPROC, rec.BWS, rec.IF, rec.EC.c_str(), rec.WDF, rec.MRH, rec.GFX,
                                          rec.GFY);
                       });
  WriteAutoLoadSection(engine, windNbc1995_, windNbc1995Cases_, LoadCaseName, kWindHeader,
                       [&](const TvtWindNbc1995Rec& rec) {
                         engine.WriteText("; CODE=CODE, SFX, SFY, DESC                       ; line 1\n");
                         engine.WriteText("; [NBC1995]   : iPROC, RWS, GEF, CGX, CGY, BH, EC ; line 2\n");
                         engine.WriteText("\tCODE=NBC1995, %5g, %5g, %5s\n", rec.SFX, rec.SFY, rec.DESC.c_str());
                         engine.WriteText("\t\t%d, %5g, %5g, , , 0, %5s, NO, , , , , , NO, 1\n\n", rec.iPROC, rec.RWS,
                                          rec.GEF, rec.EC.c_str());
                       });
  return 1;
}

int CAutoLoads::WriteSeis(const std::string& LoadCaseName) {
  WriteAutoLoadSection(engine, seisUbc1997_, seisUbc1997Cases_, LoadCaseName, kSeisHeader,
                       [&](const TvtSeisUbc1997Rec& rec) {
                         engine.WriteText("; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC              ; line 1\n");
                         engine.WriteText("; [UBC1997] : SPT, ZF, SST, CD, IF, PX, PY, NCX, NCY ; line 2\n");
                         engine.WriteText("\tCODE=UBC1997, %5g, %5g, %5s, %5s,%5s\n", rec.SFX, rec.SFY,
                                          rec.ECCX.c_str(), rec.ECCY.c_str(), rec.DESC.c_str());
                         engine.WriteText("\t\t%s, %5g, %5s, %5g, %5g, %5g, %5g, %5g, %5g\n\n", rec.SPT.c_str(),
                                          rec.ZF, rec.SST.c_str(), rec.CD, rec.IF, rec.PX, rec.PY, rec.NCX, rec.NCY);
                       });
  WriteAutoLoadSection(engine, seisNbc1995_, seisNbc1995Cases_, LoadCaseName, kSeisHeader,
                       [&](const TvtSeisNbc1995Rec& rec) {
                         engine.WriteText("; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC                          ; line 1\n");
                         engine.WriteText(
                             "; [NBC1995] : ZVR, AZ, VZ, IF, FF, PAX, PAY, PCX, PCY, FMFX, FMFY; line 2\n");
                         engine.WriteText("\tCODE=NBC1995, %5g, %5g, %5s, %5s, %5s\n", rec.SFX, rec.SFY,
                                          rec.ECCX.c_str(), rec.ECCY.c_str(), rec.DESC.c_str());
                         engine.WriteText("\t\t%g, %5d, %5d, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g\n\n", rec.ZVR,
                                          rec.AZ, rec.VZ, rec.IF, rec.FF, rec.PAX, rec.PAY, rec.PCX, rec.PCY,
                                          rec.FMFX, rec.FMFY);
                       });
  return 1;
}
