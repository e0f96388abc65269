// Joint rotations: angles to matrices, vectors between local and global axes.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "geometry_engine.h"
#include "subject_access.h"

namespace {

constexpr double kShortPi = 3.141592;

struct Engine : GeometryEngine {
  const TvtJointRotationRec& Rotation(const std::string& joint) {
    const TvtJointRotationRec* rec = TargetOf<CGeometry>(engine).FindJointRotation(joint);
    EXPECT_NE(nullptr, rec) << joint;
    static const TvtJointRotationRec identity;
    return rec ? *rec : identity;
  }
};

// Rz Ry Rx written out, as a check on the product.
void ExpectEulerMatrix(const TvtJointRotationRec& rec, double x, double y, double z) {
  x *= kShortPi / 180;
  y *= kShortPi / 180;
  z *= kShortPi / 180;
  const double cx = std::cos(x), sx = std::sin(x), cy = std::cos(y), sy = std::sin(y), cz = std::cos(z),
               sz = std::sin(z);
  const double want[3][3] = {{cz * cy, cz * sy * sx - sz * cx, cz * sy * cx + sz * sx},
                             {sz * cy, sz * sy * sx + cz * cx, sz * sy * cx - cz * sx},
                             {-sy, cy * sx, cy * cx}};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) EXPECT_NEAR(want[i][j], rec.M[i][j], 1e-12) << i << "," << j;
}

TEST(RotationFromAngles, TurnsAboutXThenYThenZWithTheShortPi) {
  struct Case {
    double x, y, z;
  };
  for (const Case& c : {Case{0, 0, 0}, Case{30, 0, 0}, Case{0, 30, 0}, Case{0, 0, 30}, Case{90, 0, 0},
                        Case{0, 90, 0}, Case{0, 0, 90}, Case{30, 30, 30}, Case{90, 30, -45}}) {
    Engine e;
    e.engine.Get<CGeometry>().RotationFromAngles("J", c.x, c.y, c.z);
    SCOPED_TRACE(testing::Message() << c.x << " " << c.y << " " << c.z);
    ExpectEulerMatrix(e.Rotation("J"), c.x, c.y, c.z);
  }
  // The short pi leaves cos 90 just off zero.
  Engine e;
  e.engine.Get<CGeometry>().RotationFromAngles("J", 90, 0, 0);
  const double off = std::cos(90 * 0.01745328888888889);
  EXPECT_EQ(off, e.Rotation("J").M[1][1]);
  EXPECT_GT(off, 1e-7);
  EXPECT_LT(off, 1e-5);
}

TEST(RotationFromAngles, SingleAxisGivesThePlainMatrixExactly) {
  Engine e;
  e.engine.Get<CGeometry>().RotationFromAngles("X30", 30, 0, 0);
  e.engine.Get<CGeometry>().RotationFromAngles("Z30", 0, 0, 30);
  e.engine.Get<CGeometry>().RotationFromAngles("none", 0, 0, 0);
  const double c = std::cos(30 * 0.01745328888888889), s = std::sin(30 * 0.01745328888888889);
  const double x30[3][3] = {{1, 0, 0}, {0, c, -s}, {0, s, c}};
  const double z30[3][3] = {{c, -s, 0}, {s, c, 0}, {0, 0, 1}};
  const double none[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) {
      EXPECT_EQ(x30[i][j], e.Rotation("X30").M[i][j]);
      EXPECT_EQ(z30[i][j], e.Rotation("Z30").M[i][j]);
      EXPECT_EQ(none[i][j], e.Rotation("none").M[i][j]);
    }
  EXPECT_EQ(3, TargetOf<CGeometry>(e.engine).JointRotations.Count());
}

TEST(LocalToGlobal, TurnsByTheMatrixAndCutsBelowOneHundredThousandth) {
  struct Case {
    double x, y, z;     // angles of the joint
    double in[3];       // local
    double global[3];   // what LocalToGlobal gives
  };
  const double c30 = std::cos(30 * 0.01745328888888889), s30 = std::sin(30 * 0.01745328888888889);
  for (const Case& c : {
           Case{0, 0, 30, {1, 0, 0}, {c30, s30, 0}},
           Case{0, 0, 30, {0, 2, 0}, {-2 * s30, 2 * c30, 0}},
           Case{0, 0, 90, {1, 0, 0}, {0, 1, 0}},     // cos 90 of the short pi is cut
           Case{90, 0, 0, {0, 1, 0}, {0, 0, 1}},
           Case{0, 90, 0, {0, 0, 5}, {5, 0, 0}},
           Case{0, 0, 30, {1e-6, 0, 0}, {0, 0, 0}},  // small genuine values go too
       }) {
    Engine e;
    e.engine.Get<CGeometry>().RotationFromAngles("J", c.x, c.y, c.z);
    double v[3] = {c.in[0], c.in[1], c.in[2]};
    EXPECT_EQ(1, e.engine.Get<CGeometry>().LocalToGlobal("J", v[0], v[1], v[2]));
    for (int i = 0; i < 3; ++i) {
      SCOPED_TRACE(testing::Message() << c.x << " " << c.y << " " << c.z << " " << i);
      if (c.global[i] == 0)
        EXPECT_EQ(0, v[i]);
      else
        EXPECT_NEAR(c.global[i], v[i], 1e-12);
    }
    // And back by the transpose.
    EXPECT_EQ(1, e.engine.Get<CGeometry>().GlobalToLocal("J", v[0], v[1], v[2]));
    for (int i = 0; i < 3; ++i)
      if (std::fabs(c.in[i]) >= 1e-5) {
        EXPECT_NEAR(c.in[i], v[i], 1e-5) << i;
      }
  }
}

TEST(LocalToGlobal, LeavesVectorsAloneWithoutARecord) {
  Engine e;
  double a = 1e-9, b = 2, c = -3;
  EXPECT_EQ(1, e.engine.Get<CGeometry>().LocalToGlobal("J", a, b, c));  // no record at all
  EXPECT_EQ(1, e.engine.Get<CGeometry>().GlobalToLocal("J", a, b, c));
  EXPECT_EQ(0, e.engine.Get<CGeometry>().HasJointLocalAxes("J"));
  e.engine.Get<CGeometry>().RotationFromAngles("other", 0, 0, 30);
  EXPECT_EQ(0, e.engine.Get<CGeometry>().LocalToGlobal("J", a, b, c));  // records, none of this joint
  EXPECT_EQ(0, e.engine.Get<CGeometry>().GlobalToLocal("J", a, b, c));
  EXPECT_EQ(1e-9, a);  // no cut-off either
  EXPECT_EQ(2, b);
  EXPECT_EQ(-3, c);
  EXPECT_EQ(1, e.engine.Get<CGeometry>().HasJointLocalAxes("other"));
  EXPECT_EQ(0, e.engine.Get<CGeometry>().HasJointLocalAxes("Other"));
}

// The name lookup must find what a walk of the records finds first, also
// with many records of one joint and a bucket count that wraps.
TEST(JointRotations, FindTheRecordAWalkMeetsFirst) {
  for (int buckets : {17, 10001}) {
    Engine e;
    TvtGeometryTables& tables = TargetOf<CGeometry>(e.engine);
    tables.JointRotations.Reset(buckets);
    std::mt19937 random(buckets);
    const std::vector<std::string> names = {"A", "B", "C", "D", "E", "F", "G"};
    for (int i = 0; i < 700; ++i) {
      TvtJointRotationRec rec{names[random() % names.size()]};
      rec.M[0][0] = i;
      tables.StoreJointRotation(rec, random() % 4 == 0);
      if (i % 50 != 49) continue;
      for (const std::string& name : names) {
        const TvtJointRotationRec* walked = nullptr;
        tables.JointRotations.Walk([&](int, const TvtJointRotationRec& r) {
          if (!walked && r.Joint == name) walked = &r;
        });
        const TvtJointRotationRec* found = tables.FindJointRotation(name);
        ASSERT_EQ(walked == nullptr, found == nullptr) << name;
        if (found) {
          EXPECT_EQ(walked->M[0][0], found->M[0][0]) << name << " after " << i << ", " << buckets;
        }
      }
    }
    EXPECT_EQ(nullptr, tables.FindJointRotation("H"));
  }
}

TEST(JointRotations, ReplaceKeepsTheKeyAndAddingTakesTheNext) {
  Engine e;
  TvtGeometryTables& tables = TargetOf<CGeometry>(e.engine);
  TvtJointRotationRec a{"A"}, b{"B"};
  a.M[2][2] = 5;
  tables.StoreJointRotation(a, true);  // nothing to replace: added under 1
  tables.StoreJointRotation(b, false);
  a.M[2][2] = 7;
  tables.StoreJointRotation(a, true);
  EXPECT_EQ(2, tables.JointRotations.Count());
  EXPECT_EQ(7, tables.JointRotations.Lookup(1)->M[2][2]);
  tables.StoreJointRotation(a, false);  // angles never replace
  EXPECT_EQ(3, tables.JointRotations.Count());
  EXPECT_EQ("A", tables.JointRotations.Lookup(3)->Joint);
}

// Angles and advanced axes together, through the conversion.
TEST(ConvertJointLocalAxes, RecordsOnlyTurnedJointsAndReplacesForAdvancedAxes) {
  Engine e;
  auto& typical = SourceOf<CGeometry>(e.engine).JointLocalAxes1;
  typical.SetAt(1, S2kJointLocalAxes1Row{"zero", 0, 0, 0, 0});
  typical.SetAt(2, S2kJointLocalAxes1Row{"turned", 0, 0, 30, 1});
  typical.SetAt(3, S2kJointLocalAxes1Row{"parallel", 0, 0, 0, 1});
  S2kJointLocalAxes2Row turned;
  turned.Joint = "turned";
  turned.LocalPlane = "12";
  turned.AxOption1 = turned.PlOption1 = "User Vector";
  turned.AxVecY = 2;
  turned.PlVecZ = 3;
  S2kJointLocalAxes2Row parallel = turned;
  parallel.Joint = "parallel";
  parallel.PlVecZ = 0;
  parallel.PlVecY = -1;
  SourceOf<CGeometry>(e.engine).JointLocalAxes2.SetAt(1, turned);
  SourceOf<CGeometry>(e.engine).JointLocalAxes2.SetAt(2, parallel);
  ASSERT_EQ(1, e.engine.Get<CGeometry>().ConvertJointLocalAxes());

  EXPECT_EQ(0, e.engine.Get<CGeometry>().HasJointLocalAxes("zero"));
  EXPECT_EQ(1, e.engine.Get<CGeometry>().HasJointLocalAxes("turned"));
  EXPECT_EQ(1, e.engine.Get<CGeometry>().HasJointLocalAxes("parallel"));
  EXPECT_EQ(2, TargetOf<CGeometry>(e.engine).JointRotations.Count());
  // Axis 1 along global Y, axis 2 along global Z: the angles' record is replaced.
  const double want[3][3] = {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) EXPECT_EQ(want[i][j], e.Rotation("turned").M[i][j]) << i << "," << j;
  // A plane vector along the axis keeps the global axes.
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) EXPECT_EQ(i == j ? 1 : 0, e.Rotation("parallel").M[i][j]);
  // The lines keep the vectors as they were, not made unit.
  const TvtLocalAxisRec* line = TargetOf<CGeometry>(e.engine).LocalAxes.Lookup(2);
  ASSERT_NE(nullptr, line);
  EXPECT_EQ(3, line->iMETHOD);
  EXPECT_EQ((std::vector<double>{0, 2, 0, 0, 0, 12}),
            (std::vector<double>{line->V1X, line->V1Y, line->V1Z, line->V2X, line->V2Y, line->V2Z}));
  EXPECT_EQ(30, line->ANGLE_x);  // AngleC
}

// Only a sum below the limit keeps the global axes; a sum that is no number
// (an infinite vector) is divided through like any other.
TEST(ConvertJointLocalAxes, InfiniteVectorGivesNoNumberAxesNotGlobalOnes) {
  Engine e;
  SourceOf<CGeometry>(e.engine).JointLocalAxes1.SetAt(1, S2kJointLocalAxes1Row{"far", 0, 0, 0, 1});
  S2kJointLocalAxes2Row far;
  far.Joint = "far";
  far.LocalPlane = "12";
  far.AxOption1 = far.PlOption1 = "User Vector";
  far.AxVecX = INFINITY;
  far.PlVecY = 1;
  SourceOf<CGeometry>(e.engine).JointLocalAxes2.SetAt(1, far);
  ASSERT_EQ(1, e.engine.Get<CGeometry>().ConvertJointLocalAxes());
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(std::isnan(e.Rotation("far").M[i][1])) << i;
}

}  // namespace
