// Rows, records and tables of materials, frame sections and nonprismatic sections.
#pragma once

#include "s2k/text.h"
#include <string>
#include <unordered_map>
#include <vector>

#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

// ---- source rows ---------------------------------------------------------------

/// Table 381: one material.
struct S2kMaterial1Row {
  CText Material;
  CText Type;
  CText DesignType;
  double UnitMass = 0;
  double UnitWeight = 0;
  double E = 0;
  double U = 0;
  double A = 0;
  int NumAdvance = 0;
  CText Color;
};

/// Table 382: the axis-wise constants of a material, one row per temperature.
struct S2kMaterial2Row {
  CText Material;
  double Temp = 0;
  double E1 = 0, E2 = 0, E3 = 0;
  double G12 = 0, G13 = 0, G23 = 0;
  double U12 = 0, U13 = 0, U23 = 0;
  double U14 = 0, U24 = 0, U34 = 0;
  double U15 = 0, U25 = 0, U35 = 0, U45 = 0;
  double U16 = 0, U26 = 0, U36 = 0, U46 = 0, U56 = 0;
  double A1 = 0, A2 = 0, A3 = 0;
  double A12 = 0, A13 = 0, A23 = 0;
};

/// Table 253: one frame section.
struct S2kFrameSectionRow {
  CText SectionName;
  CText Material;
  CText Shape;
  double t3 = 0, t2 = 0, tf = 0, tw = 0, t2b = 0, tfb = 0, dis = 0;
  double Area = 0;
  double TorsConst = 0;
  double I33 = 0, I22 = 0;
  double AS2 = 0, AS3 = 0;
  double S33 = 0, S22 = 0, Z33 = 0, Z22 = 0, R33 = 0, R22 = 0;
  CText Color;
  double TotalWt = 0, TotalMass = 0;
  double AMod = 0, A2Mod = 0, A3Mod = 0, JMod = 0, I2Mod = 0, I3Mod = 0, MMod = 0, WMod = 0;
  CText SectInFile;
  CText FileName;
};

/// Table 252: the section of one frame.
struct S2kFrameSectionAssignRow {
  CText Frame;
  CText SectionType;
  CText AutoSelect;
  CText AnalSect;
  CText DesignSect;
  CText MatProp;
};

/// Table 248: per-frame modifiers, stored only.
struct S2kFrameModifiersRow {
  CText Frame;
  double AMod = 0, AS2Mod = 0, AS3Mod = 0, JMod = 0, I22Mod = 0, I33Mod = 0, MassMod = 0, WeightMod = 0;
};

/// Table 257: one segment of a nonprismatic section.
struct S2kFrameNonprismaticRow {
  CText SectionName;
  int NumSegments = 0;
  int SegmentNum = 0;
  CText StartSect;
  CText EndSect;
  CText LengthType;
  double AbsLength = 0, VarLength = 0;
  CText EI33Var;
  CText EI22Var;
};

/// Table 234: the insertion point and joint offsets of one frame.
struct S2kFrameInsertionRow {
  CText Frame;
  CText CardinalPt;
  CText CoordSys;
  double JtOffsetXI = 0, JtOffsetYI = 0, JtOffsetZI = 0;
  double JtOffsetXJ = 0, JtOffsetYJ = 0, JtOffsetZJ = 0;
};

struct S2kPropertyTables {
  void Reset() {
    Material1.Reset(17);
    Material2.Reset(17);
    FrameInsertions.Reset(10001);
    FrameModifiers.Reset(10001);
    FrameSectionAssigns.Reset(10001);
    FrameSections.Reset(10001);
    FrameNonprismatic.Reset(10001);
  }

  CKeyedTable<S2kFrameInsertionRow> FrameInsertions;        // 234
  CKeyedTable<S2kFrameModifiersRow> FrameModifiers;          // 248
  CKeyedTable<S2kFrameSectionAssignRow> FrameSectionAssigns;  // 252
  CKeyedTable<S2kFrameSectionRow> FrameSections;             // 253
  CKeyedTable<S2kFrameNonprismaticRow> FrameNonprismatic;    // 257
  CKeyedTable<S2kMaterial1Row> Material1;                    // 381
  CKeyedTable<S2kMaterial2Row> Material2;                    // 382
};

// ---- target records --------------------------------------------------------------

/// A line of *MATERIAL; kind 1 isotropic, 2 orthotropic.
struct TvtMaterialRec {
  CText TYPE = "USER";
  CText MNAME;
  int kind = 1;
  double SPHEAT = 0, HEATCO = 0;
  double ELAST = 0, POISN = 0, THERMAL = 0;
  double DEN = 0;
  double Ex = 0, Ey = 0, Ez = 0;
  double Tx = 0, Ty = 0, Tz = 0;
  double Sxy = 0, Sxz = 0, Syz = 0;
  double Pxy = 0, Pxz = 0, Pyz = 0;
};

/// A line, or the lines, of *SECTION. Index 0 is the section or a taper's
/// start, index 1 a taper's end.
struct TvtSectionRec {
  CText TYPE = "DBUSER";
  CText SNAME;
  CText OFFSET = "CC";
  CText SHAPE = "SB";
  int BLT = 2;
  double D[12] = {};
  double AREA[2] = {}, ASy[2] = {}, ASz[2] = {}, Ixx[2] = {}, Iyy[2] = {}, Izz[2] = {};
  double CyP[2] = {}, CyM[2] = {}, CzP[2] = {}, CzM[2] = {}, QyB[2] = {}, QzB[2] = {};
  double PERI_OUT[2] = {}, PERI_IN[2] = {}, Cy[2] = {}, Cz[2] = {};
  int iyVAR = 1, izVAR = 1;
  CText STYPE = "USER";
};

/// A line of *SECT-SCALE.
struct TvtSectScaleRec {
  int iSEC = 0;
  double AREA_SF = 0, ASY_SF = 0, ASZ_SF = 0, IXX_SF = 0, IYY_SF = 0, IZZ_SF = 0, WGT_SF = 0;
};

struct TvtPropertyTables {
  void Reset() {
    Materials.Reset(10001);
    Sections.Reset(10001);
    SectScales.Reset(10001);
    TaperMultiSegment = TaperStartMissing = TaperEndMissing = 0;
  }

  CKeyedTable<TvtMaterialRec> Materials;
  CKeyedTable<TvtSectionRec> Sections;
  CKeyedTable<TvtSectScaleRec> SectScales;
  int TaperMultiSegment = 0;
  int TaperStartMissing = 0;
  int TaperEndMissing = 0;
};

/// Run flags: set in conversion, tested by the writers.
struct PropertyRunFlags {
  int MaterialAnisotropic = 0;
  int SectionNotTranslated = 0;
};

/// D1 to D6 of a section by its shape code, into \p D. With \p pairedForm the
/// double shapes take their own order, as plain sections do; the ends of a
/// taper don't.
void FillSectionDimensions(const S2kFrameSectionRow& row, const std::string& code, bool pairedForm, double* D);
/// AREA, ASy, ASz, Ixx, Iyy, Izz of index \p end from the section's row.
void FillSectionProperties(const S2kFrameSectionRow& row, TvtSectionRec& rec, int end);
