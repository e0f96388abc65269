// Joint forces and ground displacements: their tables and their conversion.
// A force is carried to global axes, a displacement to the joint's own.
#include "loads/joint_loads.h"

#include <cmath>

#include "frame/converter.h"
#include "geometry/geometry.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kJointForceRow> kJointForceKeys[] = {
    TextKey("Joint=", &S2kJointForceRow::Joint),       TextKey("LoadCase=", &S2kJointForceRow::LoadCase),
    TextKey("CoordSys=", &S2kJointForceRow::CoordSys), NumberKey("F1=", &S2kJointForceRow::F1),
    NumberKey("F2=", &S2kJointForceRow::F2),           NumberKey("F3=", &S2kJointForceRow::F3),
    NumberKey("M1=", &S2kJointForceRow::M1),           NumberKey("M2=", &S2kJointForceRow::M2),
    NumberKey("M3=", &S2kJointForceRow::M3),
};

constexpr S2kField<S2kJointGroundRow> kJointGroundKeys[] = {
    TextKey("Joint=", &S2kJointGroundRow::Joint),       TextKey("LoadCase=", &S2kJointGroundRow::LoadCase),
    TextKey("CoordSys=", &S2kJointGroundRow::CoordSys), NumberKey("U1=", &S2kJointGroundRow::U1),
    NumberKey("U2=", &S2kJointGroundRow::U2),           NumberKey("U3=", &S2kJointGroundRow::U3),
    NumberKey("R1=", &S2kJointGroundRow::R1),           NumberKey("R2=", &S2kJointGroundRow::R2),
    NumberKey("R3=", &S2kJointGroundRow::R3),
};

}  // namespace

const std::vector<S2kTableParser>& JointLoadTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {334, RunStep<&CJointLoads::ParseJointForces>},
      {335, RunStep<&CJointLoads::ParseJointGrounds>},
  };
  return parsers;
}

CJointLoads::CJointLoads(CS2kConverter& engine) : CSubject(engine) {
  forces_.Reset(10001);
  grounds_.Reset(10001);
  conloads_.Reset(10001);
  spdisps_.Reset(10001);
}

int CJointLoads::ParseJointForces() { return engine.ParseRows(kJointForceKeys, forces_); }
int CJointLoads::ParseJointGrounds() { return engine.ParseRows(kJointGroundKeys, grounds_); }

// A user coordinate system is taken as global, with no word said.
int CJointLoads::ConvertJointForces() {
  const CGeometry& geometry = engine.Get<CGeometry>();
  int ok = 1;
  forces_.Walk([&](int key, const S2kJointForceRow& row) {
    if (!ok) return;
    TvtConloadRec rec{row.Joint, row.LoadCase, row.F1, row.F2, row.F3, row.M1, row.M2, row.M3};
    if (row.CoordSys == "Local") {
      geometry.LocalToGlobal(row.Joint, rec.FX, rec.FY, rec.FZ);
      geometry.LocalToGlobal(row.Joint, rec.MX, rec.MY, rec.MZ);
    }
    ok = conloads_.SetAt(key, std::move(rec));
  });
  return ok;
}

int CJointLoads::ConvertJointGroundDisplacements() {
  const CGeometry& geometry = engine.Get<CGeometry>();
  int ok = 1;
  grounds_.Walk([&](int key, const S2kJointGroundRow& row) {
    if (!ok) return;
    TvtSpdispRec rec{row.Joint, "", row.LoadCase, row.U1, row.U2, row.U3, row.R1, row.R2, row.R3};
    if (geometry.HasJointLocalAxes(row.Joint) && row.CoordSys == "GLOBAL") {
      geometry.GlobalToLocal(row.Joint, rec.Dx, rec.Dy, rec.Dz);
      geometry.GlobalToLocal(row.Joint, rec.Rx, rec.Ry, rec.Rz);
    }
    // Here a value of exactly the tolerance counts.
    for (double value : {rec.Dx, rec.Dy, rec.Dz, rec.Rx, rec.Ry, rec.Rz})
      rec.FLAG += std::fabs(value) >= engine.ZeroTolerance ? '1' : '0';
    ok = spdisps_.SetAt(key, std::move(rec));
  });
  return ok;
}
