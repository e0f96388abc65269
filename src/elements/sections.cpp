// Frame sections (tables 253, 252, 234) to *SECTION and *SECT-SCALE.
#include <algorithm>
#include <string_view>

#include "elements/properties.h"

#include "frame/converter.h"

namespace {

struct WordCode {
  std::string_view word;
  const char* code;
};

constexpr WordCode kWordCodes[] = {
    {"I/Wide Flange", "H"}, {"Channel", "C"},     {"Tee", "T"},         {"Angle", "L"},
    {"Double Angle", "2L"}, {"Box/Tube", "B"},    {"Pipe", "P"},        {"Rectangular", "SB"},
    {"Circle", "SR"},       {"General", "SB"},
};

// Substrings of the cardinal point, tested in this order: "11 (" is caught by "1 (".
constexpr WordCode kCardinalPointCodes[] = {
    {"1 (", "RB"}, {"2", "CB"}, {"3", "LB"}, {"4", "RC"}, {"5", "CC"},  {"6", "LC"},
    {"7", "RT"},   {"8", "CT"}, {"9", "LT"}, {"10", "CC"}, {"11", "CC"},
};

}  // namespace

void FillSectionDimensions(const S2kFrameSectionRow& row, const std::string& code, bool pairedForm, double* D) {
  if (code == "P") {
    const double values[6] = {row.t3, row.tw, 0, 0, 0, 0};
    std::copy(values, values + 6, D);
  } else if (pairedForm && (code == "2L" || code == "2C")) {
    const double values[6] = {row.t3, (row.t2 - row.dis) / 2.0, row.tw, row.tf, row.dis, 0};
    std::copy(values, values + 6, D);
  } else {
    const double values[6] = {row.t3, row.t2, row.tw, row.tf, row.t2b, row.tfb};
    std::copy(values, values + 6, D);
  }
}

void FillSectionProperties(const S2kFrameSectionRow& row, TvtSectionRec& rec, int end) {
  // The target's y goes with the source's 3.
  rec.AREA[end] = row.Area;
  rec.ASy[end] = row.AS2;
  rec.ASz[end] = row.AS3;
  rec.Ixx[end] = row.TorsConst;
  rec.Iyy[end] = row.I33;
  rec.Izz[end] = row.I22;
}

std::string CProperties::MapSectionShape(const std::string& shape, int& BLT) {
  BLT = 2;
  for (const WordCode& entry : kWordCodes)
    if (shape == entry.word) return entry.code;
  return "";
}

// Tables 202 and 252 are tied by position, not by the frame's name.
void CProperties::FindFrameSection(int key, int& iPRO, int& iMAT) const {
  const auto& assigns = source_.FrameSectionAssigns;
  if (assigns.Empty()) return;
  std::string section;
  if (const S2kFrameSectionAssignRow* assign = assigns.Lookup(key)) section = assign->AnalSect;
  const auto& sections = source_.FrameSections;
  if (sections.Empty()) return;
  const int sectionKey = sectionNames_.FindKey(sections, section);
  if (!sectionKey) return;
  iPRO = sectionKey;
  const S2kFrameSectionRow& row = *sections.Lookup(sectionKey);
  if (row.Shape != "Nonprismatic") {
    FindMaterialNumber(row.Material, iMAT);
    return;
  }
  // A nonprismatic section takes the material of its first segment's start.
  const auto& segments = source_.FrameNonprismatic;
  if (segments.Empty()) return;
  const S2kFrameNonprismaticRow* segment = nonprismaticNames_.Find(segments, section);
  if (!segment) return;
  if (const S2kFrameSectionRow* start = sectionNames_.Find(sections, segment->StartSect))
    FindMaterialNumber(start->Material, iMAT);
}

int CProperties::FindFrameSectionName(const std::string& name, std::string& section) const {
  const S2kFrameSectionAssignRow* row = sectionAssignFrames_.Find(source_.FrameSectionAssigns, name);
  if (!row) return 0;
  section = row->AnalSect;
  return 1;
}

int CProperties::FindFrameSectionKey(std::string_view name) const {
  return sectionNames_.FindKey(source_.FrameSections, name);
}

int CProperties::FindSectionOffsetCode(const std::string& name, std::string& offset) const {
  const CKeyedTable<S2kFrameSectionAssignRow>& assigns = source_.FrameSectionAssigns;
  if (assigns.Empty()) return 1;
  // A section that no frame uses takes the frame of the walk's last row.
  int assignKey = sectionAssignNames_.FindKey(assigns, name);
  if (!assignKey) assignKey = sectionAssignNames_.LastWalked(assigns);
  const std::string& frame = assigns.Lookup(assignKey)->Frame;

  const CKeyedTable<S2kFrameInsertionRow>& insertions = source_.FrameInsertions;
  if (insertions.Empty()) return 1;
  offset.clear();
  const S2kFrameInsertionRow* insertion = insertionFrames_.Find(insertions, frame);
  if (!insertion) return 0;
  const std::string& cardinalPoint = insertion->CardinalPt;
  for (const WordCode& entry : kCardinalPointCodes) {
    if (cardinalPoint.find(entry.word) != std::string::npos) {
      offset = entry.code;
      break;
    }
  }
  return 1;
}

int CProperties::ConvertFrameSections() {
  const CKeyedTable<S2kFrameSectionRow>& table = source_.FrameSections;
  if (table.Empty()) return 1;
  CKeyedTable<TvtSectScaleRec>& scales = target_.SectScales;
  int ok = 1;
  table.Walk([&](int key, const S2kFrameSectionRow& row) {
    if (!ok) return;
    TvtSectionRec rec;
    if (row.Shape == "Nonprismatic") {
      if (!ConvertNonprismaticSection(row, rec)) return;
    } else {
      rec.TYPE = "VALUE";
      rec.SHAPE = MapSectionShape(row.Shape, rec.BLT);
      if (rec.SHAPE.empty()) {
        flags_.SectionNotTranslated = 1;
        return;
      }
      FillSectionDimensions(row, rec.SHAPE, true, rec.D);
      FillSectionProperties(row, rec, 0);
      // MMod takes no part; a factor counts when it isn't exactly 1.
      if (row.AMod != 1.0 || row.A2Mod != 1.0 || row.A3Mod != 1.0 || row.JMod != 1.0 || row.I3Mod != 1.0 ||
          row.I2Mod != 1.0 || row.WMod != 1.0) {
        const TvtSectScaleRec scale{key, row.AMod, row.A2Mod, row.A3Mod, row.JMod, row.I3Mod, row.I2Mod, row.WMod};
        if (!scales.SetAt(scales.Count() + 1, scale)) {
          ok = 0;
          return;
        }
      }
    }
    rec.SNAME = row.SectionName;
    std::string offset = rec.OFFSET;
    FindSectionOffsetCode(rec.SNAME, offset);
    rec.OFFSET = offset;
    ok = target_.Sections.SetAt(key, rec);
  });
  return ok;
}

int CProperties::WriteSections() {
  const CKeyedTable<TvtSectionRec>& table = target_.Sections;
  if (table.Empty()) return 1;
  if (flags_.SectionNotTranslated) engine.ShowMessage("IDS_S2KV8_SECT_Not_Trans");
  if (target_.TaperMultiSegment) engine.ShowMessage("IDS_S2KV8_SECT_TAPP_Not_Convert");
  if (target_.TaperStartMissing) engine.ShowMessage("IDS_S2KV8_SECT_SSEC_Not_Define");
  if (target_.TaperEndMissing) engine.ShowMessage("IDS_S2KV8_SECT_ESEC_Not_Define");
  engine.WriteText("%s\n", "*SECTION    ; Section\n");
  engine.WriteText("; iSEC, TYPE, SNAME, OFFSET, SHAPE, [DATA] {, CCSHAPE}                     ; DB/USER\n");
  engine.WriteText("; iSEC, TYPE, SNAME, OFFSET, SHAPE, BLT, D1, D2, D3, D4, D5, D6            ; 1st line - VALUE\n");
  engine.WriteText(";       AREA, ASy, ASz, Ixx, Iyy, Izz                                      ; 2nd line\n");
  engine.WriteText(";       CyP, CyM, CzP, CzM, QyB, QzB, PERI_OUT, PERI_IN, Cy, Cz            ; 3rd line\n");
  engine.WriteText("; iSEC, TYPE, SNAME, OFFSET, SHAPE, iyVAR, izVAR, STYPE                    ; 1st line - TAPERED\n");
  engine.WriteText(";       [DIM1], [DIM2]                                                     ; 2nd line(STYPE=USER)\n");
  engine.WriteText(";       D11, D12, D13, D14, D15, D16                                       ; 2nd line(STYPE=VALUE)\n");
  engine.WriteText(";       AREA1, ASy1, ASz1, Ixx1, Iyy1, Izz1                                ; 3rd line(STYPE=VALUE)\n");
  engine.WriteText(";       CyP1, CyM1, CzP1, CzM1, QyB1, QzB1, PERI_OUT1, PERI_IN1, Cy1, Cz1  ; 4th line(STYPE=VALUE)\n");
  engine.WriteText(";       D21, D22, D23, D24, D25, D26                                       ; 5th line(STYPE=VALUE)\n");
  engine.WriteText(";       AREA2, ASy2, ASz2, Ixx2, Iyy2, Izz2                                ; 6th line(STYPE=VALUE)\n");
  engine.WriteText(";       CyP2, CyM2, CzP2, CzM2, QyB2, QzB2, PERI_OUT2, PERI_IN2, Cy2, Cz2  ; 7th line(STYPE=VALUE)\n");
  engine.WriteText("; [DATA] : 1, DB, NAME or 2, D1, D2, D3, D4, D5, D6\n");
  engine.WriteText("; [DIM1], [DIM2] : D1, D2, D3, D4, D5, D6\n");

  // By number, 1 to the record count: a dropped row leaves a line of
  // defaults, and as many of the highest numbers go unwritten.
  const TvtSectionRec placeholder;
  for (int iSEC = 1; iSEC <= table.Count(); ++iSEC) {
    const TvtSectionRec* found = table.Lookup(iSEC);
    const TvtSectionRec& rec = found ? *found : placeholder;
    const double* D = rec.D;
    if (rec.TYPE == "TAPERED") {
      WriteTaperedSection(iSEC, rec);
    } else if (rec.TYPE == "VALUE") {
      engine.WriteText("\t%d, %5s, %5s, %5s, %5s, BUILT, %5g, %5g, %5g, %5g, %5g, %5g\n", iSEC, rec.TYPE.c_str(),
                rec.SNAME.c_str(), rec.OFFSET.c_str(), rec.SHAPE.c_str(), D[0], D[1], D[2], D[3], D[4], D[5]);
      WriteSectionValues(rec, 0);
    } else {
      engine.WriteText("\t%d, %5s, %5s, %5s, %5s, 2, %5g, %5g, %5g, %5g, %5g, %5g\n", iSEC, rec.TYPE.c_str(),
                rec.SNAME.c_str(), rec.OFFSET.c_str(), rec.SHAPE.c_str(), D[0], D[1], D[2], D[3], D[4], D[5]);
    }
  }
  engine.WriteText("\n");
  return 1;
}

void CProperties::WriteSectionValues(const TvtSectionRec& rec, int end) {
  engine.WriteText("\t\t%g, %5g, %5g, %5g, %5g, %5g\n", rec.AREA[end], rec.ASy[end], rec.ASz[end], rec.Ixx[end],
            rec.Iyy[end], rec.Izz[end]);
  engine.WriteText("\t\t%g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g\n", rec.CyP[end], rec.CyM[end], rec.CzP[end],
            rec.CzM[end], rec.QyB[end], rec.QzB[end], rec.PERI_OUT[end], rec.PERI_IN[end], rec.Cy[end],
            rec.Cz[end]);
}

int CProperties::WriteSectionScales() {
  const CKeyedTable<TvtSectScaleRec>& table = target_.SectScales;
  if (table.Empty()) return 1;
  engine.WriteText("%s\n", "*SECT-SCALE    ; Section Stiffness Scale Factor");
  engine.WriteText("; iSEC, AREA_SF, ASY_SF, ASZ_SF, IXX_SF, IYY_SF, IZZ_SF, WGT_SF\n");
  table.Walk([&](int, const TvtSectScaleRec& rec) {
    engine.WriteText("\t%d, %5g, %5g, %5g, %5g, %5g, %5g, %5g\n", rec.iSEC, rec.AREA_SF, rec.ASY_SF, rec.ASZ_SF,
              rec.IXX_SF, rec.IYY_SF, rec.IZZ_SF, rec.WGT_SF);
  });
  engine.WriteText("\n");
  return 1;
}
