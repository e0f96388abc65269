// Joint local axes to *LOCALAXIS, and the rotation helpers.
#include <array>
#include <cmath>

#include "geometry/geometry.h"

#include "frame/converter.h"

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

constexpr Matrix kIdentity = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

Matrix Product(const Matrix& p, const Matrix& q) {
  Matrix r{};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) r[i][j] = p[i][0] * q[0][j] + p[i][1] * q[1][j] + p[i][2] * q[2][j];
  return r;
}

Vector Cross(const Vector& p, const Vector& q) {
  return {p[1] * q[2] - p[2] * q[1], p[2] * q[0] - p[0] * q[2], p[0] * q[1] - p[1] * q[0]};
}

// The unit vector of a direction word; (0, 0, 0) for any other word.
Vector Direction(const std::string& word) {
  static const struct {
    const char* word;
    Vector vector;
  } kDirections[] = {{"X", {1, 0, 0}},  {"Y", {0, 1, 0}},  {"Z", {0, 0, 1}},
                     {"-X", {-1, 0, 0}}, {"-Y", {0, -1, 0}}, {"-Z", {0, 0, -1}}};
  for (const auto& entry : kDirections)
    if (word == entry.word) return entry.vector;
  return {0, 0, 0};
}

// Turns (a, b, c) by the joint's M or by its transpose; tiny results
// become 0. Without any record nothing changes and the result is 1.
int TurnVector(const TvtGeometryTables& target, std::string_view joint, bool transpose, double& a, double& b, double& c) {
  if (target.JointRotations.Empty()) return 1;
  const TvtJointRotationRec* rec = target.FindJointRotation(joint);
  if (!rec) return 0;
  const double(&m)[3][3] = rec->M;
  double r[3];
  for (int i = 0; i < 3; ++i) {
    r[i] = transpose ? m[0][i] * a + m[1][i] * b + m[2][i] * c : m[i][0] * a + m[i][1] * b + m[i][2] * c;
    if (std::fabs(r[i]) < 1e-5) r[i] = 0;
  }
  a = r[0];
  b = r[1];
  c = r[2];
  return 1;
}

}  // namespace

const TvtJointRotationRec* TvtGeometryTables::FindJointRotation(std::string_view joint) const {
  auto found = rotationKeys_.find(joint);
  return found == rotationKeys_.end() ? nullptr : JointRotations.Lookup(found->second);
}

int TvtGeometryTables::StoreJointRotation(const TvtJointRotationRec& rec, bool replace) {
  auto found = rotationKeys_.find(rec.Joint);
  if (replace && found != rotationKeys_.end()) return JointRotations.SetAt(found->second, rec);
  int key = JointRotations.Count() + 1;
  // A new key heads the chain of its bucket, so it comes first in the walk
  // unless the joint's first record lies in an earlier bucket.
  auto bucket = [&](int k) { return (static_cast<unsigned>(k) >> 4) % static_cast<unsigned>(JointRotations.Size()); };
  if (found == rotationKeys_.end())
    rotationKeys_.emplace(rec.Joint, key);
  else if (bucket(key) <= bucket(found->second))
    found->second = key;
  return JointRotations.SetAt(key, rec);
}

int CGeometry::HasJointLocalAxes(std::string_view joint) const {
  return target_.FindJointRotation(joint) != nullptr;
}

int CGeometry::LocalToGlobal(std::string_view joint, double& a, double& b, double& c) const {
  return TurnVector(target_, joint, false, a, b, c);
}

int CGeometry::GlobalToLocal(std::string_view joint, double& a, double& b, double& c) const {
  return TurnVector(target_, joint, true, a, b, c);
}

// The program's pi stops at 3.141592, and its angles with it.
void CGeometry::RotationFromAngles(const std::string& joint, double x, double y, double z) {
  constexpr double kRadiansPerDegree = 0.01745328888888889;
  x *= kRadiansPerDegree;
  y *= kRadiansPerDegree;
  z *= kRadiansPerDegree;
  const double tolerance = engine.ZeroTolerance;
  Matrix m = kIdentity;
  bool any = false;
  auto apply = [&](double angle, const Matrix& turn) {
    if (std::fabs(angle) <= tolerance) return;
    m = any ? Product(turn, m) : turn;
    any = true;
  };
  apply(x, {{{1, 0, 0}, {0, std::cos(x), -std::sin(x)}, {0, std::sin(x), std::cos(x)}}});
  apply(y, {{{std::cos(y), 0, std::sin(y)}, {0, 1, 0}, {-std::sin(y), 0, std::cos(y)}}});
  apply(z, {{{std::cos(z), -std::sin(z), 0}, {std::sin(z), std::cos(z), 0}, {0, 0, 1}}});
  TvtJointRotationRec rec{joint};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) rec.M[i][j] = m[i][j];
  target_.StoreJointRotation(rec, false);
}

// Axes from an axis vector A and a plane vector B, as table 337 gives them.
void CGeometry::ApplyAdvancedLocalAxes(TvtLocalAxisRec& rec) {
  const S2kJointLocalAxes2Row* row =
      source_.advancedAxesByJoint.Find(source_.JointLocalAxes2, rec.NODE_LIST);
  if (!row) return;
  auto vectorOf = [&](const std::string& option, const std::string& direction, const std::string& from,
                      const std::string& to, const Vector& user) -> Vector {
    if (option == "Coord Dir") return Direction(direction);
    if (option == "User Vector") return user;
    if (option != "Two Joints") return {0, 0, 0};
    Vector p, q;
    FindJointGlobalCoordinates(from, p[0], p[1], p[2]);
    FindJointGlobalCoordinates(to, q[0], q[1], q[2]);
    return {q[0] - p[0], q[1] - p[1], q[2] - p[2]};
  };
  const Vector a = vectorOf(row->AxOption1, row->AxCoordDir, row->AxVecJt1, row->AxVecJt2,
                            {row->AxVecX, row->AxVecY, row->AxVecZ});
  const Vector b = vectorOf(row->PlOption1, row->CoordDir1 == row->AxCoordDir ? row->CoordDir2 : row->CoordDir1,
                            row->PlVecJt1, row->PlVecJt2, {row->PlVecX, row->PlVecY, row->PlVecZ});
  Vector v1{}, v2{};
  const std::string& plane = row->LocalPlane;
  if (plane == "12") {
    v1 = a;
    v2 = Cross(Cross(a, b), a);
  } else if (plane == "13") {
    v1 = a;
    v2 = Cross(b, a);
  } else if (plane == "21") {
    v1 = Cross(a, Cross(b, a));
    v2 = a;
  } else if (plane == "31") {
    v1 = Cross(a, Cross(b, a));
    v2 = Cross(a, b);
  } else if (plane == "23") {
    v1 = Cross(a, b);
    v2 = a;
  } else if (plane == "32") {
    v1 = Cross(b, a);
    v2 = Cross(Cross(a, b), a);
  }
  const Vector axes[3] = {v1, v2, Cross(v1, v2)};

  // A plane vector along the axis leaves no third axis: the joint keeps the
  // global axes while its line keeps the vectors.
  TvtJointRotationRec rotation{rec.NODE_LIST};
  double sums[3];
  for (int k = 0; k < 3; ++k)
    sums[k] = std::pow(axes[k][0], 2) + std::pow(axes[k][1], 2) + std::pow(axes[k][2], 2);
  const double tolerance = engine.ZeroTolerance;
  if (!(sums[0] < tolerance || sums[1] < tolerance || sums[2] < tolerance))
    for (int k = 0; k < 3; ++k)
      for (int i = 0; i < 3; ++i) rotation.M[i][k] = axes[k][i] / std::sqrt(sums[k]);
  target_.StoreJointRotation(rotation, true);

  rec.iMETHOD = 3;
  rec.V1X = v1[0];
  rec.V1Y = v1[1];
  rec.V1Z = v1[2];
  rec.V2X = v2[0];
  rec.V2Y = v2[1];
  rec.V2Z = v2[2];
}

int CGeometry::ConvertJointLocalAxes() {
  int ok = 1;
  source_.JointLocalAxes1.Walk([&](int key, const S2kJointLocalAxes1Row& row) {
    if (!ok) return;
    TvtLocalAxisRec rec;
    rec.NODE_LIST = row.Joint;
    rec.iMETHOD = 1;
    // The target turns about x first: angle C, then B, then A.
    rec.ANGLE_x = row.AngleC;
    rec.ANGLE_y = row.AngleB;
    rec.ANGLE_z = row.AngleA;
    if (std::fabs(row.AngleC) + std::fabs(row.AngleB) + std::fabs(row.AngleA) > engine.ZeroTolerance)
      RotationFromAngles(row.Joint, row.AngleC, row.AngleB, row.AngleA);
    if (row.AdvanceAxes) ApplyAdvancedLocalAxes(rec);
    ok = target_.LocalAxes.SetAt(key, rec);
  });
  return ok;
}

int CGeometry::WriteLocalAxes() {
  const CKeyedTable<TvtLocalAxisRec>& axes = target_.LocalAxes;
  if (axes.Empty()) return 1;
  engine.WriteText("%s\n", "*LOCALAXIS    ; Node Local Axis");
  engine.WriteText("; NODE_LIST, iMETHOD, ANGLE-x, ANGLE-y, ANGLE-z                    ; iMETHOD=1\n");
  engine.WriteText("; NODE_LIST, iMETHOD, P0X, P0Y, P0Z, P1X, P1Y, P1Z, P2X, P2Y, P2Z  ; iMETHOD=2\n");
  engine.WriteText("; NODE_LIST, iMETHOD, V1X, V1Y, V1Z, V2X, V2Y, V2Z                 ; iMETHOD=3\n");
  axes.ForEachKey([&](int, const TvtLocalAxisRec& rec) {
    int number = NodeNumberOf(rec.NODE_LIST);
    if (rec.iMETHOD == 1)
      engine.WriteText("\t%d, %5d, %5g, %5g, %5g\n", number, 1, rec.ANGLE_x, rec.ANGLE_y, rec.ANGLE_z);
    else if (rec.iMETHOD == 3)
      engine.WriteText("\t%d, %5d, %5g, %5g, %5g, %5g, %5g, %5g\n", number, 3, rec.V1X, rec.V1Y, rec.V1Z, rec.V2X, rec.V2Y,
                rec.V2Z);
  });
  engine.WriteText("\n");
  return 1;
}
