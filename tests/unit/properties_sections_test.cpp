// Shape codes, insertion codes and the reduction of nonprismatic sections.
#include <gtest/gtest.h>

#include "frame/converter.h"
#include "recording_ui.h"
#include "subject_access.h"

namespace {

TEST(MapSectionShape, ExactWordsOnly) {
  struct Case {
    std::string word, code;
  };
  for (const Case& c : {Case{"I/Wide Flange", "H"}, Case{"Channel", "C"}, Case{"Tee", "T"}, Case{"Angle", "L"},
                        Case{"Double Angle", "2L"}, Case{"Box/Tube", "B"}, Case{"Pipe", "P"},
                        Case{"Rectangular", "SB"}, Case{"Circle", "SR"}, Case{"General", "SB"},
                        Case{"rectangular", ""}, Case{"Nonprismatic", ""}, Case{"Pipe ", ""}, Case{"", ""}}) {
    int BLT = 0;
    EXPECT_EQ(c.code, CProperties::MapSectionShape(c.word, BLT)) << c.word;
    EXPECT_EQ(2, BLT) << c.word;
  }
}

TEST(FindSectionOffsetCode, CardinalPointsBySubstringInOrder) {
  struct Case {
    std::string cardinalPoint, code;
  };
  for (const Case& c : {Case{"1 (Bottom Left)", "RB"}, Case{"2 (Bottom Center)", "CB"}, Case{"3", "LB"},
                        Case{"4 (Middle Left)", "RC"}, Case{"5", "CC"}, Case{"6", "LC"}, Case{"7", "RT"},
                        Case{"8 (Top Center)", "CT"}, Case{"9", "LT"}, Case{"10 (Centroid)", "CC"},
                        Case{"11 (Shear Center)", "RB"}, Case{"11", "CC"}, Case{"12", "CB"},
                        Case{"Centroid", ""}, Case{"", ""}}) {
    RecordingUserInterface ui;
    CS2kConverter engine(ui);
    engine.ResetConversion();
    SourceOf<CProperties>(engine).FrameSectionAssigns.SetAt(1, S2kFrameSectionAssignRow{"F1", "", "", "SEC", "", ""});
    SourceOf<CProperties>(engine).FrameInsertions.SetAt(1, S2kFrameInsertionRow{"F1", c.cardinalPoint, "GLOBAL"});
    std::string offset = "CC";
    EXPECT_EQ(1, engine.Get<CProperties>().FindSectionOffsetCode("SEC", offset)) << c.cardinalPoint;
    EXPECT_EQ(c.code, offset) << c.cardinalPoint;
  }
}

TEST(FindSectionOffsetCode, MissingTablesAndRows) {
  RecordingUserInterface ui;
  CS2kConverter engine(ui);
  engine.ResetConversion();
  std::string offset = "CC";
  EXPECT_EQ(1, engine.Get<CProperties>().FindSectionOffsetCode("SEC", offset));
  EXPECT_EQ("CC", offset) << "no assignments";

  // 17 assignments: the walk runs 15..1, then 17, 16, and stops on 16 when nothing matches.
  for (int key = 1; key <= 17; ++key)
    SourceOf<CProperties>(engine).FrameSectionAssigns.SetAt(key, S2kFrameSectionAssignRow{"F" + std::to_string(key), "", "", "S", "", ""});
  EXPECT_EQ(1, engine.Get<CProperties>().FindSectionOffsetCode("SEC", offset));
  EXPECT_EQ("CC", offset) << "no insertion rows";

  SourceOf<CProperties>(engine).FrameInsertions.SetAt(1, S2kFrameInsertionRow{"F16", "7", ""});
  SourceOf<CProperties>(engine).FrameInsertions.SetAt(2, S2kFrameInsertionRow{"F15", "9", ""});
  EXPECT_EQ(1, engine.Get<CProperties>().FindSectionOffsetCode("UNUSED", offset));
  EXPECT_EQ("RT", offset) << "an unused section takes the frame the walk ended on";
  EXPECT_EQ(1, engine.Get<CProperties>().FindSectionOffsetCode("S", offset));
  EXPECT_EQ("LT", offset) << "the first assignment in walk order is key 15";

  SourceOf<CProperties>(engine).FrameSectionAssigns.SetAt(18, S2kFrameSectionAssignRow{"F18", "", "", "ALONE", "", ""});
  offset = "CC";
  EXPECT_EQ(0, engine.Get<CProperties>().FindSectionOffsetCode("ALONE", offset));
  EXPECT_EQ("", offset) << "a frame without insertion row clears the code";
}

S2kFrameSectionRow Section(const std::string& name, const std::string& shape, double t3) {
  S2kFrameSectionRow row;
  row.SectionName = name;
  row.Shape = shape;
  row.t3 = t3;
  row.t2 = t3 / 2;
  row.tw = 0.01;
  row.tf = 0.02;
  row.Area = t3 * 10;
  row.I33 = t3 * 100;
  return row;
}

S2kFrameNonprismaticRow Segment(const std::string& name, int count, int number, const std::string& start,
                                const std::string& end, const std::string& ei33 = "",
                                const std::string& ei22 = "") {
  S2kFrameNonprismaticRow row;
  row.SectionName = name;
  row.NumSegments = count;
  row.SegmentNum = number;
  row.StartSect = start;
  row.EndSect = end;
  row.EI33Var = ei33;
  row.EI22Var = ei22;
  return row;
}

TEST(ConvertNonprismaticSection, VariationWords) {
  struct Case {
    std::string ei33, ei22;
    int iyVAR, izVAR;
  };
  for (const Case& c : {Case{"Linear", "Cubic", 1, 3}, Case{"Prabolic", "Linear", 2, 1},
                        Case{"Parabolic", "Prabolic", 1, 2}, Case{"cubic", "", 1, 1}, Case{"Cubic", "Cubic", 3, 3}}) {
    RecordingUserInterface ui;
    CS2kConverter engine(ui);
    engine.ResetConversion();
    SourceOf<CProperties>(engine).FrameSections.SetAt(1, Section("A", "Pipe", 0.3));
    SourceOf<CProperties>(engine).FrameSections.SetAt(2, Section("B", "Pipe", 0.5));
    const S2kFrameSectionRow taper = Section("T", "Nonprismatic", 0);
    SourceOf<CProperties>(engine).FrameSections.SetAt(3, taper);
    SourceOf<CProperties>(engine).FrameNonprismatic.SetAt(1, Segment("T", 1, 1, "A", "B", c.ei33, c.ei22));
    TvtSectionRec rec;
    ASSERT_EQ(1, engine.Get<CProperties>().ConvertNonprismaticSection(taper, rec)) << c.ei33;
    EXPECT_EQ("TAPERED", rec.TYPE);
    EXPECT_EQ("P", rec.SHAPE);
    EXPECT_EQ(c.iyVAR, rec.iyVAR) << c.ei33;
    EXPECT_EQ(c.izVAR, rec.izVAR) << c.ei22;
    const double want[12] = {0.3, 0.01, 0, 0, 0, 0, 0.5, 0.01, 0, 0, 0, 0};
    for (int i = 0; i < 12; ++i) EXPECT_EQ(want[i], rec.D[i]) << i;
    EXPECT_EQ(3, rec.AREA[0]);
    EXPECT_EQ(5, rec.AREA[1]);
    EXPECT_EQ(50, rec.Iyy[1]);
  }
}

TEST(ConvertNonprismaticSection, EndsFlagsAndDuplicateNames) {
  RecordingUserInterface ui;
  CS2kConverter engine(ui);
  engine.ResetConversion();
  CKeyedTable<S2kFrameSectionRow>& sections = SourceOf<CProperties>(engine).FrameSections;
  sections.SetAt(1, Section("A", "Double Angle", 0.2));
  sections.SetAt(2, Section("A", "Double Angle", 0.4));  // walked before key 1
  sections.SetAt(3, Section("B", "Double Angle", 0.6));
  sections.SetAt(4, Section("R", "Rectangular", 0.8));
  sections.SetAt(5, Section("X", "Unknown", 1));
  CKeyedTable<S2kFrameNonprismaticRow>& segments = SourceOf<CProperties>(engine).FrameNonprismatic;
  segments.SetAt(1, Segment("T", 1, 1, "A", "B"));
  segments.SetAt(2, Segment("MIX", 1, 1, "A", "R"));
  segments.SetAt(3, Segment("NOEND", 1, 1, "X", "NONE"));
  segments.SetAt(4, Segment("HALF", 2, 1, "A", "B"));

  EXPECT_EQ(2, engine.Get<CProperties>().FindFrameSectionKey("A")) << "the lookup by name stops at the first in walk order";
  EXPECT_EQ(0, engine.Get<CProperties>().FindFrameSectionKey("Z"));
  EXPECT_EQ(4, engine.Get<CProperties>().FindNonprismaticKey("HALF"));
  EXPECT_EQ(0, engine.Get<CProperties>().FindNonprismaticKey("A"));

  TvtSectionRec rec;
  ASSERT_EQ(1, engine.Get<CProperties>().ConvertNonprismaticSection(Section("T", "Nonprismatic", 0), rec));
  EXPECT_EQ("2L", rec.SHAPE);
  EXPECT_EQ(0.2, rec.D[0]) << "every section of the name is met; key 1 is walked last";
  EXPECT_EQ(0.1, rec.D[1]) << "the plain order, not the one of double angles";
  EXPECT_EQ(0.6, rec.D[6]);
  EXPECT_EQ(1, TargetOf<CProperties>(engine).TaperMultiSegment) << "any row of several segments";

  rec = {};
  EXPECT_EQ(0, engine.Get<CProperties>().ConvertNonprismaticSection(Section("MIX", "Nonprismatic", 0), rec));
  EXPECT_EQ(0, TargetOf<CProperties>(engine).TaperStartMissing + TargetOf<CProperties>(engine).TaperEndMissing);
  rec = {};
  EXPECT_EQ(0, engine.Get<CProperties>().ConvertNonprismaticSection(Section("HALF", "Nonprismatic", 0), rec))
      << "no last segment: the end code stays empty and differs";
  EXPECT_EQ(0, TargetOf<CProperties>(engine).TaperStartMissing + TargetOf<CProperties>(engine).TaperEndMissing);
  rec = {};
  EXPECT_EQ(0, engine.Get<CProperties>().ConvertNonprismaticSection(Section("NOEND", "Nonprismatic", 0), rec));
  EXPECT_EQ(1, TargetOf<CProperties>(engine).TaperEndMissing);
  EXPECT_EQ(0, TargetOf<CProperties>(engine).TaperStartMissing);
  rec = {};
  EXPECT_EQ(0, engine.Get<CProperties>().ConvertNonprismaticSection(Section("NONE", "Nonprismatic", 0), rec));
  EXPECT_EQ(1, TargetOf<CProperties>(engine).TaperStartMissing);
  EXPECT_EQ("DBUSER", rec.TYPE);
}

}  // namespace
