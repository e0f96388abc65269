// Rows, records and tables of frames, areas, solids, thickness, end offsets and releases.
#pragma once

#include "s2k/text.h"
#include <string>

#include "s2k/keyed_table.h"

// ---- source rows ----------------------------------------------------------------

/// Table 202: a frame and its two joints.
struct S2kConnectivityFrameRow {
  CText Frame, JointI, JointJ;
  double Length = 0;
};

/// Table 201: an area and its four corners, listed crosswise.
struct S2kConnectivityAreaRow {
  CText Area, Joint1, Joint2, Joint3, Joint4;
  double AreaArea = 0, Volume = 0;
};

/// Table 204: a solid and its eight corners.
struct S2kConnectivitySolidRow {
  CText Solid, Joint1, Joint2, Joint3, Joint4, Joint5, Joint6, Joint7, Joint8;
  double Volume = 0;
};

/// Table 239: the beta angle of a frame.
struct S2kFrameLocalAxes1Row {
  CText Frame;
  double Angle = 0;
  int MirrorAbt2 = 0, MirrorAbt3 = 0, AdvanceAxes = 0;
};

/// Table 240: advanced local axes of a frame.
struct S2kFrameLocalAxes2Row {
  CText Frame, LocalPlan, PlOption1, PlCoordSys, CoordDir1, CoordDir2, PlVecJt1, PlVecJt2;
  double PlVecX = 0, PlVecY = 0, PlVecZ = 0;
};

/// Table 125: the section of an area.
struct S2kAreaSectionAssignRow {
  CText Area, Section, MatProp;
};

/// Table 126: an area section.
struct S2kAreaSectionRow {
  CText Section, Material;
  double MatAngle = 0;
  CText AreaType, Type;
  double Thickness = 0, BendThick = 0, Arc = 0;
  int InComp = 0;
  CText CoordSys, Color;
  double TotalWt = 0, TotalMass = 0;
  double F11Mod = 0, F22Mod = 0, F12Mod = 0, M11Mod = 0, M22Mod = 0, M12Mod = 0, V13Mod = 0, V23Mode = 0,
         MMod = 0, WMod = 0;
};

/// Table 489: the property of a solid.
struct S2kSolidPropAssignRow {
  CText Solid, SolidProp;
};

/// Table 490: a solid property.
struct S2kSolidPropRow {
  CText SolidProp, Material;
  double MatAngleA = 0, MatAngleB = 0, MatAngleC = 0;
  int InComp = 0;
  CText Color;
  double TotalWt = 0, TotalMass = 0;
};

/// Table 505: stored, not converted.
struct S2kSolidSummaryRow {
  CText Solid, SolidProp, Springs, AutoMesh;
  double MatTemp = 0;
  CText GravLoads, SPresLoads, PPresLoads, TempLoads;
  double RefTemp = 0, Volume = 0, CentroidX = 0, CentroidY = 0, CentroidZ = 0;
};

/// Table 243: rigid end zones.
struct S2kFrameOffsetRow {
  CText Frame, Type;
  double LengthI = 0, LengthJ = 0, RigidFactor = 0;
};

/// Table 250: end releases, source order P, V2, V3, T, M2, M3.
struct S2kFrameReleaseRow {
  CText Frame;
  int PI = 0, V2I = 0, V3I = 0, TI = 0, M2I = 0, M3I = 0;
  int PJ = 0, V2J = 0, V3J = 0, TJ = 0, M2J = 0, M3J = 0;
  int PartialFix = 0;
};

/// Table 251: partial fixity springs of released ends.
struct S2kFramePartialFixRow {
  CText Frame;
  double PI = 0, V2I = 0, V3I = 0, TI = 0, M2I = 0, M3I = 0;
  double PJ = 0, V2J = 0, V3J = 0, TJ = 0, M2J = 0, M3J = 0;
};

struct S2kElementTables {
  void Reset() {
    ConnectivityArea.Reset(10001);
    ConnectivityFrame.Reset(10001);
    ConnectivitySolid.Reset(10001);
    FrameLocalAxes1.Reset(10001);
    FrameLocalAxes2.Reset(10001);
    FrameOffset.Reset(10001);
    FrameRelease.Reset(10001);
    FramePartialFix.Reset(10001);
    SolidSummary.Reset(10001);
  }

  CKeyedTable<S2kAreaSectionAssignRow> AreaSectionAssign;  // 125
  CKeyedTable<S2kAreaSectionRow> AreaSection;              // 126
  CKeyedTable<S2kConnectivityAreaRow> ConnectivityArea;    // 201
  CKeyedTable<S2kConnectivityFrameRow> ConnectivityFrame;  // 202
  CKeyedTable<S2kConnectivitySolidRow> ConnectivitySolid;  // 204
  CKeyedTable<S2kFrameLocalAxes1Row> FrameLocalAxes1;      // 239
  CKeyedTable<S2kFrameLocalAxes2Row> FrameLocalAxes2;      // 240
  CKeyedTable<S2kFrameOffsetRow> FrameOffset;              // 243
  CKeyedTable<S2kFrameReleaseRow> FrameRelease;            // 250
  CKeyedTable<S2kFramePartialFixRow> FramePartialFix;      // 251
  CKeyedTable<S2kSolidPropAssignRow> SolidPropAssign;      // 489
  CKeyedTable<S2kSolidPropRow> SolidProp;                  // 490
  CKeyedTable<S2kSolidSummaryRow> SolidSummary;            // 505
};

/// Run flags of the element conversion: set in conversion, tested by writers.
struct ElementRunFlags {
  int FrameLocalAxesWarning = 0;
  int PlateLocalAxesWarning = 0;
  int SolidLocalAxesWarning = 0;
  int ZeroLengthWarning = 0;       ///< set by the frame loads
  int NodeNotAssignedWarning = 0;  ///< nothing sets it
  int AreaStiffModifiers = 0;      ///< no table feeds it
  int ReleasePartialFixity = 0;
  int ReleaseWithOffset = 0;       ///< nothing sets it
};

// ---- target records ---------------------------------------------------------------

/// A frame line of *ELEMENT; joints stay names until written.
struct TvtFrameElementRec {
  CText iEL = "1";
  CText TYPE;
  int reserved = 0;
  int iMAT = 1;
  int iPRO = 1;
  double ANGLE = 0;
  CText iN1, iN2;
  int reserved2 = 0;
};

/// A plate line of *ELEMENT.
struct TvtPlateElementRec {
  CText iEL = "1";
  CText TYPE;
  int iMAT = 1;
  int iPRO = 1;
  double unused = 0;
  CText iN1, iN2, iN3, iN4;
  int iSUB = 1;
  int reserved = 0;
};

/// A solid line of *ELEMENT.
struct TvtSolidElementRec {
  CText iEL;
  CText TYPE;
  int iMAT = 0;
  int iPRO = 0;
  double unused = 0;
  CText iN1, iN2, iN3, iN4, iN5, iN6, iN7, iN8;
};

/// A line of *THICKNESS, keyed by iTHK.
struct TvtThicknessRec {
  CText TYPE;
  CText bSAME;
  double THIK_IN = 0;
  double THIK_OUT = 0;
};

/// A line of *OFFSET. TYPE "ELEMENT" holds RGDi in RGDXi and RGDj in RGDXj.
struct TvtOffsetRec {
  CText ELEM_LIST;
  CText TYPE;
  double RGDXi = 0, RGDYi = 0, RGDZi = 0, RGDXj = 0, RGDYj = 0, RGDZj = 0;
};

/// The two lines of a frame in *FRAME-RLS; flags in target order Fx, Fy, Fz, Mx, My, Mz.
struct TvtFrameRlsRec {
  CText ELEM_LIST;
  CText FLAG_i, FLAG_j;
  double Fxi = 0, Fyi = 0, Fzi = 0, Mxi = 0, Myi = 0, Mzi = 0;
  double Fxj = 0, Fyj = 0, Fzj = 0, Mxj = 0, Myj = 0, Mzj = 0;
};

/// The element map: old to new element numbers, filled by *ELEMENT.
struct TvtElementMapEntry {
  int iEL = 0;
  int number = 0;
  CText name;
  CText kind;  ///< "FRAME", "AREA" or "SOLID"
};

struct TvtElementTables {
  void Reset() {
    FrameElements.Reset(10001);
    FrameReleases.Reset(10001);
    Offsets.Reset(10001);
    PlateElements.Reset(10001);
    Thickness.Reset(1001);
    SolidElements.Reset(10001);
    AreaPropNotConverted = 0;
  }

  CKeyedTable<TvtFrameElementRec> FrameElements;  // key: row of table 202
  CKeyedTable<TvtFrameRlsRec> FrameReleases;      // key: row of table 250
  CKeyedTable<TvtOffsetRec> Offsets;              // key: running counter
  CKeyedTable<TvtPlateElementRec> PlateElements;  // key: row of table 201
  CKeyedTable<TvtThicknessRec> Thickness;         // key: row of table 126
  CKeyedTable<TvtSolidElementRec> SolidElements;  // key: row of table 204
  /// Set when an area section has a type that the target cannot place.
  int AreaPropNotConverted = 0;
};

