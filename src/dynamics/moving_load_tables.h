// Rows and records of lanes, vehicles, vehicle classes and moving load cases.
#pragma once

#include "s2k/text.h"
#include <string>
#include <vector>

/// Table 161: one frame of a lane.
struct S2kBridgeLaneRow {
  CText LaneName, Frame;
  double Eccen = 0;
};

/// Table 162: a vehicle of a standard kind; its scale factor is a whole number.
struct S2kBridgeVehicleRow {
  CText VehName, Type;
  int ScaleFactor = 0;
  double DynAllow = 0;
};

/// Table 163: a general vehicle.
struct S2kBridgeGeneralVehicleRow {
  CText VehName;
  int SupprotMom = 0, IntSupport = 0, OtherResp = 0;
  double LeadUnif = 0, TrailUnif = 0, FirstAxle = 0, AxleMom = 0, AxleOther = 0, NumInter = 0;
};

/// Table 164: one axle of a general vehicle.
struct S2kBridgeVehicleAxleRow {
  CText VehName;
  double InterUnif = 0, InterAxle = 0, InterMinD = 0, InterMaxD = 0;
};

/// Table 165: a vehicle of a class.
struct S2kBridgeVehicleClassRow {
  CText VehClass, VehName;
  double ScaleFactor = 0;
};

/// Table 166: what the moving load analysis reports.
struct S2kBridgeResponseRow {
  CText InitialCond, Displs, Reactions, Springs, Frames, CalcMethod;
  int Correspond = 0;
};

/// Table 187: a vehicle class assigned in a moving load case.
struct S2kCaseMovingLoad1Row {
  CText Case;
  double AssignNum = 0;
  CText VehClass;
  double ScaleFactor = 0, MinLoaded = 0, MaxLoaded = 0, NumLanes = 0;
};

/// Table 188: a lane of an assignment.
struct S2kCaseMovingLoad2Row {
  CText Case;
  double AssignNum = 0;
  CText Lane;
};

/// Table 189: the scale of a case for a number of loaded lanes.
struct S2kCaseMovingLoad3Row {
  CText Case;
  double NumberLanes = 0, ScaleFactor = 0;
};

/// A frame of *LINELANE.
struct TvtLinelaneRec {
  CText NAME;
  CText LDIST = "LANE";
  CText MOVING = "FORWARD";
  CText iELEM;
  double SKEWS = 0, SKEWE = 0;
  int GROUP = 0;
  double ECC = 0, FACT = 0;
};

/// A vehicle of *VEHICLE: FORM 1 a standard one by its word, FORM 2 a
/// general one with its loads and distances.
struct TvtVehicleRec {
  CText NAME, VehName, bTRAIN;
  int FORM = 0;
  double W = 0, PL = 0, PLM = 0, PLV = 0;
  std::vector<double> LOAD, DIST;
};

/// A class of *VCLASS: the NAMEs of its vehicles.
struct TvtVclassRec {
  CText NAME;
  std::vector<std::string> VLOAD;
};

/// A row of *MVLDCASE.
struct TvtMvldcaseRec {
  CText NAME;
  CText COMB = "INDEPENDENT";
  CText DESC;
  double SCALE1 = 0, SCALE2 = 0, SCALE3 = 0, SCALE4 = 0, SCALE = 0;
  CText TYPE = "VC";
  CText VCLASS;
  int iMIN = 0, iMAX = 0;
  std::vector<std::string> LANE;
};

/// The record of *MOVE-CTRL.
struct TvtMoveCtrlRec {
  CText METHOD = "EXACT", POINT = "ALL";
  int iIGPN = 3;
  CText PLATE = "NODAL", bSTRCALC = "NO", FRAME = "NORMAL", bCSTRCALC = "NO";
  CText bREAC = "YES", bRG = "NO", RGN;
  CText bDISP = "YES", bDG = "NO", DGN;
  CText bFM = "YES", bFG = "NO", FGN;
};
