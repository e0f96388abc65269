// Rows and records of lanes, vehicles, vehicle classes and moving load cases.
#pragma once

#include <string>
#include <vector>

/// Table 161: one frame of a lane.
struct S2kBridgeLaneRow {
  std::string LaneName, Frame;
  double Eccen = 0;
};

/// Table 162: a vehicle of a standard kind; its scale factor is a whole number.
struct S2kBridgeVehicleRow {
  std::string VehName, Type;
  int ScaleFactor = 0;
  double DynAllow = 0;
};

/// Table 163: a general vehicle.
struct S2kBridgeGeneralVehicleRow {
  std::string VehName;
  int SupprotMom = 0, IntSupport = 0, OtherResp = 0;
  double LeadUnif = 0, TrailUnif = 0, FirstAxle = 0, AxleMom = 0, AxleOther = 0, NumInter = 0;
};

/// Table 164: one axle of a general vehicle.
struct S2kBridgeVehicleAxleRow {
  std::string VehName;
  double InterUnif = 0, InterAxle = 0, InterMinD = 0, InterMaxD = 0;
};

/// Table 165: a vehicle of a class.
struct S2kBridgeVehicleClassRow {
  std::string VehClass, VehName;
  double ScaleFactor = 0;
};

/// Table 166: what the moving load analysis reports.
struct S2kBridgeResponseRow {
  std::string InitialCond, Displs, Reactions, Springs, Frames, CalcMethod;
  int Correspond = 0;
};

/// Table 187: a vehicle class assigned in a moving load case.
struct S2kCaseMovingLoad1Row {
  std::string Case;
  double AssignNum = 0;
  std::string VehClass;
  double ScaleFactor = 0, MinLoaded = 0, MaxLoaded = 0, NumLanes = 0;
};

/// Table 188: a lane of an assignment.
struct S2kCaseMovingLoad2Row {
  std::string Case;
  double AssignNum = 0;
  std::string Lane;
};

/// Table 189: the scale of a case for a number of loaded lanes.
struct S2kCaseMovingLoad3Row {
  std::string Case;
  double NumberLanes = 0, ScaleFactor = 0;
};

/// A frame of *LINELANE.
struct TvtLinelaneRec {
  std::string NAME;
  std::string LDIST = "LANE";
  std::string MOVING = "FORWARD";
  std::string iELEM;
  double SKEWS = 0, SKEWE = 0;
  int GROUP = 0;
  double ECC = 0, FACT = 0;
};

/// A vehicle of *VEHICLE: FORM 1 a standard one by its word, FORM 2 a
/// general one with its loads and distances.
struct TvtVehicleRec {
  std::string NAME, VehName, bTRAIN;
  int FORM = 0;
  double W = 0, PL = 0, PLM = 0, PLV = 0;
  std::vector<double> LOAD, DIST;
};

/// A class of *VCLASS: the NAMEs of its vehicles.
struct TvtVclassRec {
  std::string NAME;
  std::vector<std::string> VLOAD;
};

/// A row of *MVLDCASE.
struct TvtMvldcaseRec {
  std::string NAME;
  std::string COMB = "INDEPENDENT";
  std::string DESC;
  double SCALE1 = 0, SCALE2 = 0, SCALE3 = 0, SCALE4 = 0, SCALE = 0;
  std::string TYPE = "VC";
  std::string VCLASS;
  int iMIN = 0, iMAX = 0;
  std::vector<std::string> LANE;
};

/// The record of *MOVE-CTRL.
struct TvtMoveCtrlRec {
  std::string METHOD = "EXACT", POINT = "ALL";
  int iIGPN = 3;
  std::string PLATE = "NODAL", bSTRCALC = "NO", FRAME = "NORMAL", bCSTRCALC = "NO";
  std::string bREAC = "YES", bRG = "NO", RGN;
  std::string bDISP = "YES", bDG = "NO", DGN;
  std::string bFM = "YES", bFG = "NO", FGN;
};
