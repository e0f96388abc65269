// *CONLOAD and *SPDISP: the joint loads of one load case.
#include "frame/converter.h"
#include "geometry/geometry.h"
#include "loads/case_block.h"
#include "loads/joint_loads.h"

int CJointLoads::WriteConload(const std::string& loadCase) {
  return WriteCaseBlock(engine, loadCase, "*CONLOAD    ; Nodal Loads", ";NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP",
                        conloads_, &TvtConloadRec::LCNAME, [&](const TvtConloadRec& rec) {
                          engine.WriteText("\t%d, %5g, %5g, %5g, %5g, %5g, %5g,\n", engine.Get<CGeometry>().NodeNumberOf(rec.NODE_LIST),
                                           rec.FX, rec.FY, rec.FZ, rec.MX, rec.MY, rec.MZ);
                        });
}

int CJointLoads::WriteSpdisp(const std::string& loadCase) {
  return WriteCaseBlock(engine, loadCase, "*SPDISP    ; Specified Displacement of Supports",
                        "; NODE_LIST, FLAG, Dx, Dy, Dz, Rx, Ry, Rz, GROUP", spdisps_, &TvtSpdispRec::LCNAME,
                        [&](const TvtSpdispRec& rec) {
                          engine.WriteText("\t%d, %5s, %5g, %5g, %5g, %5g, %5g, %5g,\n",
                                           engine.Get<CGeometry>().NodeNumberOf(rec.NODE_LIST), rec.FLAG.c_str(), rec.Dx, rec.Dy,
                                           rec.Dz, rec.Rx, rec.Ry, rec.Rz);
                        });
}
