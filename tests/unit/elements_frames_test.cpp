// Frame sections by position, element number lookups and the element tables' keys.
#include <gtest/gtest.h>

#include <string>

#include "frame/converter.h"
#include "recording_ui.h"
#include "subject_access.h"

namespace {

struct Engine {
  RecordingUserInterface ui;
  CS2kConverter engine{ui};
  Engine() {
    engine.ResetConversion();
    engine.ResetConversion();
  }
};

S2kFrameSectionRow Section(const std::string& name, const std::string& material, const std::string& shape = "Box") {
  S2kFrameSectionRow row;
  row.SectionName = name;
  row.Material = material;
  row.Shape = shape;
  return row;
}

}  // namespace

// Table 252 counts by its row's position, whatever frame it names; a
// nonprismatic section takes the material of its first segment's start.
TEST(FindFrameSection, TiesAssignmentsByPositionAndFollowsTapers) {
  Engine e;
  auto& source = SourceOf<CProperties>(e.engine);
  for (const char* name : {"M1", "M2"}) {
    S2kMaterial1Row row;
    row.Material = name;
    source.Material1.SetAt(source.Material1.Count() + 1, row);
  }
  source.FrameSections.SetAt(1, Section("A", "M1"));
  source.FrameSections.SetAt(2, Section("B", "M2"));
  source.FrameSections.SetAt(3, Section("T", "M1", "Nonprismatic"));
  source.FrameSections.SetAt(4, Section("C", "NONE"));
  S2kFrameNonprismaticRow segment;
  segment.SectionName = "T";
  segment.StartSect = "B";
  source.FrameNonprismatic.SetAt(1, segment);
  const char* assigned[][2] = {{"F2", "B"}, {"F1", "A"}, {"F3", "T"}, {"F4", "NOPE"}, {"F5", "C"}};
  for (int k = 0; k < 5; ++k) {
    S2kFrameSectionAssignRow row;
    row.Frame = assigned[k][0];
    row.AnalSect = assigned[k][1];
    source.FrameSectionAssigns.SetAt(k + 1, row);
  }
  struct Case {
    int key, iPRO, iMAT;
  };
  // Key 5's material is unknown: the number of the walk's last row (1).
  for (const Case& c : {Case{1, 2, 2}, Case{2, 1, 1}, Case{3, 3, 2}, Case{4, 1, 1}, Case{5, 4, 1}, Case{6, 1, 1}}) {
    int iPRO = 1, iMAT = 1;
    e.engine.Get<CProperties>().FindFrameSection(c.key, iPRO, iMAT);
    EXPECT_EQ(c.iPRO, iPRO) << c.key;
    EXPECT_EQ(c.iMAT, iMAT) << c.key;
  }
}

TEST(FindElementNumber, MatchesNameAndKindFirstInWalkOrder) {
  Engine e;
  int number = 7;
  EXPECT_EQ(1, e.engine.Get<CElements>().FindElementNumber("1", "FRAME", number)) << "an empty map finds everything";
  EXPECT_EQ(7, number);
  auto& map = SubjectAccess::ElementNumberMap(e.engine);
  map.SetAt(1, TvtElementMapEntry{1, 1, "A", "FRAME"});
  map.SetAt(2, TvtElementMapEntry{2, 2, "A", "AREA"});
  map.SetAt(3, TvtElementMapEntry{3, 3, "A", "FRAME"});  // same bucket, newer: walked first
  map.SetAt(17, TvtElementMapEntry{17, 17, "B", "SOLID"});
  struct Case {
    const char *name, *kind;
    int found, number;
  };
  for (const Case& c : {Case{"A", "FRAME", 1, 3}, Case{"A", "AREA", 1, 2}, Case{"B", "SOLID", 1, 17},
                        Case{"B", "FRAME", 0, -1}, Case{"a", "FRAME", 0, -1}}) {
    number = -1;
    EXPECT_EQ(c.found, e.engine.Get<CElements>().FindElementNumber(c.name, c.kind, number)) << c.name << c.kind;
    EXPECT_EQ(c.number, number) << c.name << c.kind;
  }
  SubjectAccess::ElementsRenumbered(e.engine) = 1;
  EXPECT_EQ(0, e.engine.Get<CElements>().ElementNumberOf("B", "AREA"));
  EXPECT_EQ(2, e.engine.Get<CElements>().ElementNumberOf("A", "AREA"));
  SubjectAccess::ElementsRenumbered(e.engine) = 0;
  EXPECT_EQ(12, e.engine.Get<CElements>().ElementNumberOf(" 12x", "AREA")) << "kept numbers read the name";
}

// A map that grows after lookups, with names repeated across kinds, buckets
// and keys: every lookup gives what a walk to the first match gives.
TEST(FindElementNumber, AgreesWithAWalkAsTheMapGrows) {
  Engine e;
  auto& map = SubjectAccess::ElementNumberMap(e.engine);
  const char* kinds[] = {"FRAME", "AREA", "SOLID"};
  auto walk = [&](const std::string& name, const std::string& kind) {
    int found = 0;
    map.Walk([&](int, const TvtElementMapEntry& entry) {
      if (!found && entry.name == name && entry.kind == kind) found = entry.number;
    });
    return found;
  };
  int key = 0;
  for (int round = 0; round < 3; ++round) {
    // 700 entries a round: 60 names, so each name of a kind recurs in many
    // buckets; the numbers differ from the keys.
    for (int k = 0; k < 700; ++k, ++key)
      map.SetAt(key + 1, TvtElementMapEntry{key + 1, 5000 + key, "E" + std::to_string(key * 7 % 60), kinds[key % 3]});
    for (int n = 0; n < 62; ++n)
      for (const char* kind : {"FRAME", "AREA", "SOLID", "frame", ""}) {
        std::string name = "E" + std::to_string(n);
        int number = -1;
        int want = walk(name, kind);
        EXPECT_EQ(want ? 1 : 0, e.engine.Get<CElements>().FindElementNumber(name, kind, number)) << name << kind;
        EXPECT_EQ(want ? want : -1, number) << name << kind << " round " << round;
      }
  }
}

TEST(ElementNames, OnlyDigitsKeepNumbers) {
  struct Case {
    const char* name;
    int numeric;
  };
  for (const Case& c : {Case{"12", 1}, Case{"", 1}, Case{"007", 1}, Case{"-3", 0}, Case{"1 ", 0}, Case{"B1", 0}}) {
    Engine e;
    e.engine.Get<CElements>().NoteElementName(c.name);
    EXPECT_EQ(c.numeric, SubjectAccess::ElementNamesNumeric(e.engine)) << '"' << c.name << '"';
  }
}

// " Type=" is not found inside "AreaType="; releases read "Yes" only.
TEST(ElementParsers, ReadTheirKeys) {
  Engine e;
  e.engine.rowRows = {"Section=S   AreaType=Plane   Type=Plane-Strain   Thickness=0.2", "Section=T   AreaType=Shell"};
  ASSERT_EQ(1, e.engine.Get<CElements>().ParseAreaSection());
  const auto* first = SourceOf<CElements>(e.engine).AreaSection.Lookup(1);
  const auto* second = SourceOf<CElements>(e.engine).AreaSection.Lookup(2);
  ASSERT_TRUE(first && second);
  EXPECT_EQ("Plane", first->AreaType);
  EXPECT_EQ("Plane-Strain", first->Type);
  EXPECT_EQ(0.2, first->Thickness);
  EXPECT_EQ("", second->Type);

  e.engine.rowRows = {"Frame=F   PI=Yes   V2I=YES   M3J=Yes   PartialFix=Yes"};
  ASSERT_EQ(1, e.engine.Get<CElements>().ParseFrameRelease());
  const auto* release = SourceOf<CElements>(e.engine).FrameRelease.Lookup(1);
  ASSERT_TRUE(release);
  EXPECT_EQ(1, release->PI);
  EXPECT_EQ(0, release->V2I);
  EXPECT_EQ(1, release->M3J);
  EXPECT_EQ(1, release->PartialFix);
}
