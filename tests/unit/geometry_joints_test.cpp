// Joint numbers, units, and the masters of constraints.
#include <gtest/gtest.h>

#include <random>

#include "geometry_engine.h"
#include "subject_access.h"

namespace {

using Engine = GeometryEngine;

template <class Row>
Row Named(const std::string& joint) {
  Row row;
  row.Joint = joint;
  return row;
}

TEST(LookupNodeNumber, EmptyMapAndUnknownNamesLeaveTheNumber) {
  Engine e;
  TvtGeometryTables& target = TargetOf<CGeometry>(e.engine);
  int number = 42;
  EXPECT_EQ(1, target.LookupNodeNumber("A", number));  // empty map
  EXPECT_EQ(42, number);
  target.jointNumberMap.SetAt(1, TvtJointNumberRec{1, 1, "A"});
  target.jointNumberMap.SetAt(2, TvtJointNumberRec{2, 2, "B"});
  EXPECT_EQ(0, target.LookupNodeNumber("C", number));
  EXPECT_EQ(42, number);
  EXPECT_EQ(0, target.LookupNodeNumber("a", number));  // exact comparison
  EXPECT_EQ(1, target.LookupNodeNumber("B", number));
  EXPECT_EQ(2, number);
}

// The index must give what a walk to the first equal name gives, whatever
// the insertion order, duplicates and bucket count.
TEST(LookupNodeNumber, FindsWhatTheWalkFindsFirst) {
  for (int buckets : {17, 10001}) {
    Engine e;
    TvtGeometryTables& target = TargetOf<CGeometry>(e.engine);
    target.jointNumberMap.Reset(buckets);
    std::mt19937 random(buckets);
    std::vector<int> keys(900);
    for (int i = 0; i < 900; ++i) keys[i] = i + 1;
    std::shuffle(keys.begin(), keys.end(), random);
    for (int key : keys) target.jointNumberMap.SetAt(key, TvtJointNumberRec{key, key, std::to_string(random() % 40)});
    for (int name = 0; name <= 40; ++name) {
      int walked = -1;
      target.jointNumberMap.Walk([&](int, const TvtJointNumberRec& rec) {
        if (walked < 0 && rec.Joint == std::to_string(name)) walked = rec.number;
      });
      int number = -1;
      EXPECT_EQ(walked >= 0, target.LookupNodeNumber(std::to_string(name), number) == 1) << name;
      EXPECT_EQ(walked, number) << name << ", " << buckets;
    }
  }
}

TEST(NodeNumberOf, AtoiForKeptNumbersAndTheMapOtherwise) {
  Engine e;
  CS2kConverter& engine = e.engine;
  struct Case {
    std::string name;
    int kept;
  };
  for (const Case& c : {Case{"12", 12}, Case{"007", 7}, Case{"A", 0}, Case{"", 0}, Case{"4294967303", 7},
                        Case{"-3", -3}, Case{" 5", 5}})
    EXPECT_EQ(c.kept, engine.Get<CGeometry>().NodeNumberOf(c.name)) << c.name;
  TargetOf<CGeometry>(engine).jointsKeepNumbers = 0;
  EXPECT_EQ(0, engine.Get<CGeometry>().NodeNumberOf("12"));  // empty map
  TargetOf<CGeometry>(engine).jointNumberMap.SetAt(3, TvtJointNumberRec{3, 3, "12"});
  EXPECT_EQ(3, engine.Get<CGeometry>().NodeNumberOf("12"));
  EXPECT_EQ(0, engine.Get<CGeometry>().NodeNumberOf("007"));
}

TEST(ConvertJoints, OneNameNotAllDigitsRenumbersTheModel) {
  struct Case {
    std::vector<std::string> names;
    int keep;
  };
  for (const Case& c : {Case{{}, 1}, Case{{"1", "2", "10"}, 1}, Case{{"007", ""}, 1}, Case{{"12345678901"}, 1},
                        Case{{"1", "A1"}, 0}, Case{{"-1"}, 0}, Case{{"1 "}, 0}, Case{{"+1"}, 0}, Case{{"1.0"}, 0}}) {
    Engine e;
    for (std::size_t i = 0; i < c.names.size(); ++i)
      SourceOf<CGeometry>(e.engine).JointCoordinates.SetAt(static_cast<int>(i + 1), Named<S2kJointCoordinatesRow>(c.names[i]));
    ASSERT_EQ(1, e.engine.Get<CGeometry>().ConvertJoints());
    EXPECT_EQ(c.keep, TargetOf<CGeometry>(e.engine).jointsKeepNumbers) << testing::PrintToString(c.names);
    EXPECT_EQ(static_cast<int>(c.names.size()), TargetOf<CGeometry>(e.engine).Nodes.Count());
  }
}

TEST(Units, GravityByLengthUnitAndTemperaturesInCelsius) {
  struct Gravity {
    std::string length;
    double want;
  };
  for (const Gravity& c : {Gravity{"m", 9.806}, Gravity{"M", 9.806}, Gravity{"cm", 9.806 * 0.01},
                           Gravity{"mm", 9.806 * 0.001}, Gravity{"in", 9.806 * 39.3701}, Gravity{"ft", 9.806 * 3.2808},
                           Gravity{"km", 9.806}, Gravity{"", 9.806}}) {
    Engine e;
    SourceOf<CGeometry>(e.engine).LengthUnit = c.length;
    EXPECT_EQ(c.want, e.engine.Get<CGeometry>().GravityInModelUnits()) << c.length;
  }
  struct Temperature {
    std::string unit;
    double value, want;
  };
  for (const Temperature& c : {Temperature{"C", 20, 20}, Temperature{"c", -5, -5}, Temperature{"F", 212, 100},
                               Temperature{"f", 32, 0}, Temperature{"F", -40, -40}, Temperature{"K", 300, 0},
                               Temperature{"", 20, 0}}) {
    Engine e;
    SourceOf<CGeometry>(e.engine).TemperatureUnit = c.unit;
    EXPECT_DOUBLE_EQ(c.want, e.engine.Get<CGeometry>().ToCelsius(c.value)) << c.unit << " " << c.value;
  }
}

// The master of a diaphragm: the member of the first mass row in the walk of
// the mass table; the first member when no joint has a mass; none, and the
// first member lost, when masses lie elsewhere only.
TEST(ConvertConstraints, DiaphragmMastersByAddedMass) {
  struct Case {
    std::vector<std::string> members;
    std::vector<std::string> massJoints;  // rows of table 331 in file order
    std::string master, slaves;
  };
  for (const Case& c : {
           Case{{"1", "2", "3"}, {}, "1", "2 3"},
           Case{{"1", "2", "3"}, {"9"}, "", "2 3"},
           Case{{"1", "2", "3"}, {"2"}, "2", "1 3"},
           Case{{"1", "2", "3"}, {"2", "3"}, "3", "1 2"},   // the walk meets the later row first
           Case{{"1", "2", "3"}, {"3", "2", "1"}, "1", "2 3"},
           Case{{"3", "1", "3"}, {"3"}, "3", "1 3"},      // a repeated member goes once
           Case{{"1", "2"}, {"1", "2", "9", "9"}, "2", "1"},
       }) {
    Engine e;
    S2kGeometryTables& source = SourceOf<CGeometry>(e.engine);
    for (std::size_t i = 0; i < c.members.size(); ++i)
      source.JointConstraintAssignments.SetAt(static_cast<int>(i + 1),
                                              S2kJointConstraintAssignmentsRow{c.members[i], "D1", "Diaphragm"});
    for (std::size_t i = 0; i < c.massJoints.size(); ++i)
      SourceOf<CMasses>(e.engine).JointMasses.SetAt(static_cast<int>(i + 1), Named<S2kJointMassRow>(c.massJoints[i]));
    source.ConstraintDiaphragm.SetAt(1, S2kConstraintDiaphragmRow{"D1", "GLOBAL", "Z"});
    ASSERT_EQ(1, e.engine.Get<CGeometry>().ConvertConstraints());
    const TvtRigidlinkRec* link = TargetOf<CGeometry>(e.engine).RigidLinks.Lookup(1);
    ASSERT_NE(nullptr, link);
    EXPECT_EQ(c.master, link->M_NODE) << testing::PrintToString(c.massJoints);
    EXPECT_EQ(c.slaves, link->S_NODE_LIST) << testing::PrintToString(c.massJoints);
    EXPECT_EQ("110001", link->DOF);
  }
}

}  // namespace
