// Nonprismatic sections (table 257) to tapered *SECTION lines.
#include "elements/properties.h"

#include "frame/converter.h"

namespace {

// "Prabolic" as the file spells it; any other word leaves the value.
void ReadVariation(const std::string& word, int& variation) {
  if (word == "Linear")
    variation = 1;
  else if (word == "Prabolic")
    variation = 2;
  else if (word == "Cubic")
    variation = 3;
}

}  // namespace

int CProperties::FindNonprismaticKey(const std::string& name) const {
  return nonprismaticNames_.FindKey(source_.FrameNonprismatic, name);
}

int CProperties::ConvertNonprismaticSection(const S2kFrameSectionRow& section, TvtSectionRec& rec) {
  const CKeyedTable<S2kFrameNonprismaticRow>& segments = source_.FrameNonprismatic;
  if (segments.Empty()) return 1;
  const CKeyedTable<S2kFrameSectionRow>& sections = source_.FrameSections;

  // Any row of several segments, of whichever section, raises the flag.
  if (!target_.TaperMultiSegment)
    segments.Walk([&](int, const S2kFrameNonprismaticRow& row) {
      if (row.NumSegments > 1) target_.TaperMultiSegment = 1;
    });

  bool startMissing = true, endMissing = true;
  std::string startCode, endCode;
  if (const auto* own = nonprismaticNames_.Hits(segments, section.SectionName)) {
    for (int segmentKey : own->keys) {
      const S2kFrameNonprismaticRow& segment = *segments.Lookup(segmentKey);
      rec.TYPE = "TAPERED";
      if (sections.Empty()) break;
      // Every section of the name is met on the way, so the last in walk order stays.
      if (segment.SegmentNum == 1) {
        if (const auto* start = sectionNames_.Hits(sections, segment.StartSect)) {
          const S2kFrameSectionRow& row = *sections.Lookup(start->Last());
          startCode = MapSectionShape(row.Shape, rec.BLT);
          ReadVariation(segment.EI22Var, rec.izVAR);
          ReadVariation(segment.EI33Var, rec.iyVAR);
          FillSectionDimensions(row, startCode, false, rec.D);
          FillSectionProperties(row, rec, 0);
          startMissing = false;
        }
      }
      if (segment.SegmentNum == segment.NumSegments) {
        if (const auto* end = sectionNames_.Hits(sections, segment.EndSect)) {
          const S2kFrameSectionRow& row = *sections.Lookup(end->Last());
          endCode = MapSectionShape(row.Shape, rec.BLT);
          FillSectionDimensions(row, endCode, false, rec.D + 6);
          FillSectionProperties(row, rec, 1);
          endMissing = false;
        }
      }
    }
  }

  // A taper between two shapes vanishes without a word.
  if (startCode != endCode) return 0;
  rec.SHAPE = startCode;
  if (startMissing) {
    target_.TaperStartMissing = 1;
    return 0;
  }
  if (endMissing) {
    target_.TaperEndMissing = 1;
    return 0;
  }
  return 1;
}

void CProperties::WriteTaperedSection(int iSEC, const TvtSectionRec& rec) {
  engine.WriteText("\t%d, %5s, %5s, %5s, %5s, %5d, %5d, %5s\n", iSEC, rec.TYPE.c_str(), rec.SNAME.c_str(),
            rec.OFFSET.c_str(), rec.SHAPE.c_str(), rec.iyVAR, rec.izVAR, rec.STYPE.c_str());
  if (rec.STYPE == "USER") {
    engine.WriteText("\t\t");
    for (int i = 0; i < 12; ++i) engine.WriteText(i ? ",%5g" : "%5g", rec.D[i]);
    engine.WriteText("\n");
  } else if (rec.STYPE == "VALUE") {
    for (int end = 0; end < 2; ++end) {
      engine.WriteText("\t\t");
      for (int i = 0; i < 6; ++i) engine.WriteText(i ? ",%5g" : "%5g", rec.D[6 * end + i]);
      engine.WriteText("\n");
      WriteSectionValues(rec, end);
    }
  }
}
