// Lanes, vehicles, vehicle classes and moving load cases.
#include "dynamics/moving_loads.h"

#include <unordered_map>

#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kBridgeLaneRow> kLaneKeys[] = {
    TextKey("LaneName=", &S2kBridgeLaneRow::LaneName),
    TextKey("Frame=", &S2kBridgeLaneRow::Frame),
    NumberKey("Eccen=", &S2kBridgeLaneRow::Eccen),
};

constexpr S2kField<S2kBridgeVehicleRow> kVehicleKeys[] = {
    TextKey("VehName=", &S2kBridgeVehicleRow::VehName),
    TextKey("Type=", &S2kBridgeVehicleRow::Type),
    IntegerKey("ScaleFactor=", &S2kBridgeVehicleRow::ScaleFactor),
    NumberKey("DynAllow=", &S2kBridgeVehicleRow::DynAllow),
};

constexpr S2kField<S2kBridgeGeneralVehicleRow> kGeneralVehicleKeys[] = {
    TextKey("VehName=", &S2kBridgeGeneralVehicleRow::VehName),
    FlagKey("SupprotMom=", &S2kBridgeGeneralVehicleRow::SupprotMom),
    FlagKey("IntSupport=", &S2kBridgeGeneralVehicleRow::IntSupport),
    FlagKey("OtherResp=", &S2kBridgeGeneralVehicleRow::OtherResp),
    NumberKey("LeadUnif=", &S2kBridgeGeneralVehicleRow::LeadUnif),
    NumberKey("TrailUnif=", &S2kBridgeGeneralVehicleRow::TrailUnif),
    NumberKey("FirstAxle=", &S2kBridgeGeneralVehicleRow::FirstAxle),
    NumberKey("AxleMom=", &S2kBridgeGeneralVehicleRow::AxleMom),
    NumberKey("AxleOther=", &S2kBridgeGeneralVehicleRow::AxleOther),
    NumberKey("NumInter=", &S2kBridgeGeneralVehicleRow::NumInter),
};

constexpr S2kField<S2kBridgeVehicleAxleRow> kAxleKeys[] = {
    TextKey("VehName=", &S2kBridgeVehicleAxleRow::VehName),
    NumberKey("InterUnif=", &S2kBridgeVehicleAxleRow::InterUnif),
    NumberKey("InterAxle=", &S2kBridgeVehicleAxleRow::InterAxle),
    NumberKey("InterMinD=", &S2kBridgeVehicleAxleRow::InterMinD),
    NumberKey("InterMaxD=", &S2kBridgeVehicleAxleRow::InterMaxD),
};

constexpr S2kField<S2kBridgeVehicleClassRow> kClassKeys[] = {
    TextKey("VehClass=", &S2kBridgeVehicleClassRow::VehClass),
    TextKey("VehName=", &S2kBridgeVehicleClassRow::VehName),
    NumberKey("ScaleFactor=", &S2kBridgeVehicleClassRow::ScaleFactor),
};

constexpr S2kField<S2kBridgeResponseRow> kResponseKeys[] = {
    TextKey("InitialCond=", &S2kBridgeResponseRow::InitialCond),
    TextKey("Displs=", &S2kBridgeResponseRow::Displs),
    TextKey("Reactions=", &S2kBridgeResponseRow::Reactions),
    TextKey("Springs=", &S2kBridgeResponseRow::Springs),
    TextKey("Frames=", &S2kBridgeResponseRow::Frames),
    TextKey("CalcMethod=", &S2kBridgeResponseRow::CalcMethod),
    FlagKey("Correspond=", &S2kBridgeResponseRow::Correspond),
};

constexpr S2kField<S2kCaseMovingLoad1Row> kCase1Keys[] = {
    TextKey("Case=", &S2kCaseMovingLoad1Row::Case),
    NumberKey("AssignNum=", &S2kCaseMovingLoad1Row::AssignNum),
    TextKey("VehClass=", &S2kCaseMovingLoad1Row::VehClass),
    NumberKey("ScaleFactor=", &S2kCaseMovingLoad1Row::ScaleFactor),
    NumberKey("MinLoaded=", &S2kCaseMovingLoad1Row::MinLoaded),
    NumberKey("MaxLoaded=", &S2kCaseMovingLoad1Row::MaxLoaded),
    NumberKey("NumLanes=", &S2kCaseMovingLoad1Row::NumLanes),
};

constexpr S2kField<S2kCaseMovingLoad2Row> kCase2Keys[] = {
    TextKey("Case=", &S2kCaseMovingLoad2Row::Case),
    NumberKey("AssignNum=", &S2kCaseMovingLoad2Row::AssignNum),
    TextKey("Lane=", &S2kCaseMovingLoad2Row::Lane),
};

constexpr S2kField<S2kCaseMovingLoad3Row> kCase3Keys[] = {
    TextKey("Case=", &S2kCaseMovingLoad3Row::Case),
    NumberKey("NumberLanes=", &S2kCaseMovingLoad3Row::NumberLanes),
    NumberKey("ScaleFactor=", &S2kCaseMovingLoad3Row::ScaleFactor),
};

/// The three fields a group of results takes from its word: none, all, or
/// the group of that name.
void ReadResultGroup(const std::string& word, CText& enabled, CText& byGroup, CText& group) {
  if (word.empty() || word == "None") {
    enabled = "NO";
    byGroup = "NO";
  } else if (word == "ALL") {
    enabled = "YES";
    byGroup = "NO";
  } else {
    enabled = "YES";
    byGroup = "YES";
    group = word;
  }
}

/// Item \p i of \p list, 0 past its end: a vehicle without axles reads zeros.
double At(const std::vector<double>& list, std::size_t i) { return i < list.size() ? list[i] : 0.0; }

}  // namespace

const std::vector<S2kTableParser>& MovingLoadTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {161, RunStep<&CMovingLoads::ParseLanes>},
      {162, RunStep<&CMovingLoads::ParseVehicles>},
      {163, RunStep<&CMovingLoads::ParseGeneralVehicles>},
      {164, RunStep<&CMovingLoads::ParseVehicleAxles>},
      {165, RunStep<&CMovingLoads::ParseVehicleClasses>},
      {166, RunStep<&CMovingLoads::ParseResponse>},
      {187, RunStep<&CMovingLoads::ParseCaseMovingLoad1>},
      {188, RunStep<&CMovingLoads::ParseCaseMovingLoad2>},
      {189, RunStep<&CMovingLoads::ParseCaseMovingLoad3>},
  };
  return parsers;
}

CMovingLoads::CMovingLoads(CS2kConverter& engine) : CSubject(engine) {
  lanes_.Reset(10001);
  vehicles_.Reset(1001);
  generalVehicles_.Reset(1001);
  axles_.Reset(1001);
  classes_.Reset(1001);
  movingCases_.Reset(1001);
  caseLanes_.Reset(1001);
  caseScales_.Reset(1001);
  linelanes_.Reset(10001);
  tvtVehicles_.Reset(10001);
  vclasses_.Reset(10001);
  mvldcases_.Reset(10001);
}

int CMovingLoads::ParseLanes() { return engine.ParseRows(kLaneKeys, lanes_); }
int CMovingLoads::ParseVehicles() { return engine.ParseRows(kVehicleKeys, vehicles_); }
int CMovingLoads::ParseGeneralVehicles() { return engine.ParseRows(kGeneralVehicleKeys, generalVehicles_); }
int CMovingLoads::ParseVehicleAxles() { return engine.ParseRows(kAxleKeys, axles_); }
int CMovingLoads::ParseVehicleClasses() { return engine.ParseRows(kClassKeys, classes_); }
int CMovingLoads::ParseResponse() { return engine.ParseRows(kResponseKeys, response_); }
int CMovingLoads::ParseCaseMovingLoad1() { return engine.ParseRows(kCase1Keys, movingCases_); }
int CMovingLoads::ParseCaseMovingLoad2() { return engine.ParseRows(kCase2Keys, caseLanes_); }
int CMovingLoads::ParseCaseMovingLoad3() { return engine.ParseRows(kCase3Keys, caseScales_); }

int CMovingLoads::ConvertLanes() {
  int ok = 1;
  lanes_.Walk([&](int key, const S2kBridgeLaneRow& row) {
    if (!ok) return;
    TvtLinelaneRec rec;
    rec.NAME = row.LaneName;
    rec.iELEM = row.Frame;
    rec.ECC = -row.Eccen;
    ok = linelanes_.SetAt(key, std::move(rec));
  });
  return ok;
}

bool CMovingLoads::IsStandardVehicleWord(const std::string& word) {
  static const char* const kWords[] = {"H15-44", "HS15-44", "H15-44L", "HS15-44L", "H20-44", "HS20-44",
                                       "H20-44L", "HS20-44L", "HS-25", "HS-25L", "AML"};
  for (const char* known : kWords)
    if (word == known) return true;
  return false;
}

void CMovingLoads::AddNotConvertedVehicle(const std::string& name) {
  if (!notConvertedVehicles_.empty()) notConvertedVehicles_ += ", ";
  notConvertedVehicles_ += name;
}

// A word with a small "n" behind its first letter is a numbered family: the
// scale factor takes the place of the "n", and only the target's own words
// go through. The other words are mapped, refused or kept as they stand.
int CMovingLoads::ConvertStandardVehicles() {
  int count = tvtVehicles_.Count();
  int ok = 1;
  vehicles_.Walk([&](int, const S2kBridgeVehicleRow& row) {
    if (!ok) return;
    const std::string& type = row.Type;
    const std::size_t p = type.find('n');
    std::string name;
    if (p != std::string::npos && p > 0) {
      name = type.substr(0, p) + std::to_string(row.ScaleFactor) + type.substr(p + 1);
      if (!IsStandardVehicleWord(name)) {
        AddNotConvertedVehicle(name);
        return;
      }
    } else if (type == "HL-93K") {
      name = "HL-93TRK";
    } else if (type == "HL-93M") {
      name = "HL-93TDM";
    } else if (type == "Cooper E 80") {
      name = "L-25";
    } else if (type == "UICn") {
      name = "HL";
    } else if (type == "RL" || type == "HL-93S") {
      AddNotConvertedVehicle(type);
      return;
    } else {
      name = type;
    }
    TvtVehicleRec rec;
    rec.NAME = name;
    rec.VehName = row.VehName;
    rec.FORM = 1;
    ok = tvtVehicles_.SetAt(++count, std::move(rec));
  });
  return ok;
}

int CMovingLoads::ConvertGeneralVehicles() {
  if (generalVehicles_.Empty() || axles_.Empty()) return 1;
  // The axle rows of each vehicle in key order.
  std::unordered_map<std::string, std::vector<const S2kBridgeVehicleAxleRow*>> axlesOf;
  axles_.ForEachKey([&](int, const S2kBridgeVehicleAxleRow& row) { axlesOf[row.VehName].push_back(&row); });
  int count = tvtVehicles_.Count();
  int ok = 1;
  generalVehicles_.Walk([&](int, const S2kBridgeGeneralVehicleRow& row) {
    if (!ok) return;
    TvtVehicleRec rec;
    rec.NAME = row.VehName;
    rec.FORM = 2;
    rec.bTRAIN = row.TrailUnif < engine.ZeroTolerance ? "NO" : "YES";
    std::vector<double> U, A, C, D;
    if (auto it = axlesOf.find(row.VehName); it != axlesOf.end()) {
      for (const S2kBridgeVehicleAxleRow* axle : it->second) {
        U.push_back(axle->InterUnif);
        A.push_back(axle->InterAxle);
        C.push_back(axle->InterMinD);
        D.push_back(axle->InterMaxD);
      }
    }
    const std::size_t n = U.size();
    const bool train = rec.bTRAIN == "YES";
    for (std::size_t i = 0; i + 1 < n; ++i) {
      if (!train) {
        rec.LOAD.push_back(A[i]);
        rec.DIST.push_back(i + 2 < n ? C[i + 1] : D[i]);
      } else {
        if (i + 2 == n) break;
        rec.LOAD.push_back(A[i + 1]);
        rec.DIST.push_back(C[i + 1]);
      }
    }
    if (!train) {
      // PL and PLV both take AxleOther=.
      rec.W = At(U, 0);
      rec.PL = row.AxleOther;
      rec.PLM = row.AxleMom;
      rec.PLV = row.AxleOther;
    } else {
      rec.W = row.LeadUnif;
      rec.PL = row.FirstAxle;
      rec.PLM = row.TrailUnif;
      rec.PLV = n > 0 ? C[n - 1] : 0.0;
    }
    ok = tvtVehicles_.SetAt(++count, std::move(rec));
  });
  return ok;
}

// Consecutive rows of one class name make a class; a class is stored when the
// name changes and after the last row, under a count of all classes met.
int CMovingLoads::ConvertVehicleClasses() {
  if (classes_.Empty()) return 1;
  // What each vehicle is found by: a standard one by its name in the input,
  // a general one by its NAME; the first in walk order counts.
  std::unordered_map<std::string, std::string> vehicleNames;
  tvtVehicles_.Walk([&](int, const TvtVehicleRec& rec) {
    vehicleNames.try_emplace(rec.FORM == 1 ? rec.VehName : rec.NAME, rec.NAME);
  });
  const bool noVehicles = vehicles_.Empty() && generalVehicles_.Empty();
  int count = 0;
  int ok = 1;
  bool first = true;
  TvtVclassRec current;
  auto store = [&] {
    ++count;
    if (!current.NAME.empty() && !vclasses_.SetAt(count, current)) ok = 0;
    current.VLOAD.clear();
  };
  bool ended = false;
  classes_.Walk([&](int, const S2kBridgeVehicleClassRow& row) {
    if (ended || !ok) return;
    if (!first && row.VehClass != current.NAME) store();
    first = false;
    current.NAME = row.VehClass;
    if (noVehicles) {
      ended = true;
      return;
    }
    if (auto it = vehicleNames.find(row.VehName); it != vehicleNames.end()) current.VLOAD.push_back(it->second);
  });
  if (ended || !ok) return ok;
  store();
  return ok;
}

bool CMovingLoads::HasVehicleClass(const std::string& name) const {
  return vclassNames_.Hits(vclasses_, name) != nullptr;
}

double CMovingLoads::LaneScale(const std::string& Case, int lanes) const {
  if (const auto* hit = caseScaleNames_.Hits(caseScales_, Case))
    for (int key : hit->keys) {
      const S2kCaseMovingLoad3Row& row = *caseScales_.Lookup(key);
      if (row.NumberLanes == lanes) return row.ScaleFactor;
    }
  return 0;
}

void CMovingLoads::LanesOfAssignment(const std::string& Case, double number, std::vector<std::string>& list) const {
  if (const auto* hit = caseLaneNames_.Hits(caseLanes_, Case))
    for (int key : hit->keys) {
      const S2kCaseMovingLoad2Row& row = *caseLanes_.Lookup(key);
      if (row.AssignNum == number) list.push_back(row.Lane);
    }
}

// A case survives only where a vehicle class bears the case's own name.
int CMovingLoads::ConvertMovingCases() {
  int ok = 1;
  movingCases_.Walk([&](int key, const S2kCaseMovingLoad1Row& row) {
    if (!ok || !HasVehicleClass(row.Case)) return;
    TvtMvldcaseRec rec;
    rec.NAME = row.Case;
    double* scales[] = {&rec.SCALE1, &rec.SCALE2, &rec.SCALE3, &rec.SCALE4};
    for (int lanes = 1; lanes <= 4; ++lanes) *scales[lanes - 1] = LaneScale(row.Case, lanes);
    rec.VCLASS = row.VehClass;
    rec.SCALE = row.ScaleFactor;
    rec.iMIN = TruncateToInt(row.MinLoaded);
    rec.iMAX = TruncateToInt(row.MaxLoaded);
    LanesOfAssignment(row.Case, row.AssignNum, rec.LANE);
    for (double* scale : scales)
      if (*scale < engine.ZeroTolerance) *scale = 1;
    if (rec.iMAX == 0) {
      maxLoadedFlag_ = 1;
      rec.iMAX = 1;
    }
    ok = mvldcases_.SetAt(key, std::move(rec));
  });
  return ok;
}

// Whatever the case, the control comes from the first row of table 166.
void CMovingLoads::ConvertMovingCase(const std::string& /*Case*/) {
  if (movingCases_.Empty()) return;
  TvtMoveCtrlRec rec;
  S2kBridgeResponseRow row;
  response_.Lookup(1, row);
  rec.METHOD = row.CalcMethod;
  rec.FRAME = row.Correspond ? "AXIAL" : "NORMAL";
  ReadResultGroup(row.Reactions, rec.bREAC, rec.bRG, rec.RGN);
  ReadResultGroup(row.Displs, rec.bDISP, rec.bDG, rec.DGN);
  ReadResultGroup(row.Frames, rec.bFM, rec.bFG, rec.FGN);
  moveCtrl_ = std::move(rec);
}
