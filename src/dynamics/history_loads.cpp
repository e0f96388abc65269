// The loads of history cases: a function record per load, a time varying
// static load per load pattern, one ground acceleration row per case.
#include "dynamics/time_history.h"
#include "frame/converter.h"
#include "geometry/geometry.h"

int CTimeHistory::ConvertModalHistoryLoads(const std::string& Case) {
  return ConvertHistoryLoads(modalLoads_, modalLoadCases_, Case, true);
}

int CTimeHistory::ConvertDirectHistoryLoads(const std::string& Case) {
  return ConvertHistoryLoads(directLoads_, directLoadCases_, Case, false);
}

int CTimeHistory::ConvertHistoryLoads(const CKeyedTable<S2kHistoryLoadRow>& table,
                                      const CNameIndex<S2kHistoryLoadRow>& cases, const std::string& Case,
                                      bool modal) {
  const auto* hit = cases.Hits(table, Case);
  if (!hit) return 1;
  for (int key : hit->keys) {
    const S2kHistoryLoadRow& row = *table.Lookup(key);
    TvtTfunctionRec function;
    function.FUNC = row.Function;
    function.GRAV = engine.Get<CGeometry>().GravityInModelUnits();
    if (!CollectFunctionPoints(row.Function, function.TIME, function.VALUE)) {
      // The loads after it are left out too.
      historyFunctionRefused_ = 1;
      return 0;
    }
    if (row.LoadType == "Load case" || (modal && row.LoadType == "LoadPattern")) {
      function.iTYPE = 5;
      function.SCALE = row.LoadSF;
      TvtDynSloadRec load{Case, row.LoadName, row.Function, row.ArrivalTime, row.LoadSFGiven ? row.LoadSF : 1};
      if (!dynSloads_.SetAt(dynSloads_.Count() + 1, std::move(load))) return 0;
    } else if (row.LoadType == "Accel") {
      function.iTYPE = 2;
      function.SCALE = row.TransAccSF;
      // One row per case gathers its three directions.
      auto [at, added] = groundAccOf_.try_emplace(Case, groundAcc_.Count() + 1);
      TvtGroundAccRec ground;
      if (added)
        ground.THIS = Case;
      else
        ground = *groundAcc_.Lookup(at->second);
      if (row.LoadName == "Accel U1") {
        ground.FUNCX = row.Function;
        ground.SCALEX = row.TransAccSF;
        ground.ATIMEX = row.ArrivalTime;
      } else if (row.LoadName == "Accel U2") {
        ground.FUNCY = row.Function;
        ground.SCALEY = row.TransAccSF;
        ground.ATIMEY = row.ArrivalTime;
      } else if (row.LoadName == "Accel U3") {
        ground.FUNCZ = row.Function;
        ground.SCALEZ = row.TransAccSF;
        ground.ATIMEZ = row.ArrivalTime;
      }
      ground.ANGLE = row.Angle;
      if (!groundAcc_.SetAt(at->second, std::move(ground))) return 0;
    }
    // Every load has its own copy of its function.
    if (!functions_.SetAt(functions_.Count() + 1, std::move(function))) return 0;
  }
  return 1;
}

int CTimeHistory::CollectFunctionPoints(const std::string& name, std::vector<double>& times,
                                        std::vector<double>& values) {
  // Any "from file" row hides every user function. The file a function
  // names is never opened: its rows hold the points.
  const bool fromFile = !fromFile_.Empty();
  if (functionKeysCount_ < 0) {
    const int count = fromFile ? fromFile_.Count() : user_.Count();
    for (int key = 1; key <= count; ++key) {
      const CText* rowName = nullptr;
      if (fromFile) {
        if (const S2kHistoryFromFileRow* row = fromFile_.Lookup(key)) rowName = &row->Name;
      } else if (const S2kHistoryUserRow* row = user_.Lookup(key)) {
        rowName = &row->Name;
      }
      if (rowName) functionKeys_[*rowName].push_back(key);
    }
    functionKeysCount_ = count;
  }
  auto hit = functionKeys_.find(name);
  if (hit == functionKeys_.end()) return 0;
  for (int key : hit->second) {
    if (fromFile) {
      const S2kHistoryFromFileRow& row = *fromFile_.Lookup(key);
      times.push_back(row.Time);
      values.push_back(row.Value);
    } else {
      const S2kHistoryUserRow& row = *user_.Lookup(key);
      times.push_back(row.Time);
      values.push_back(row.Value);
    }
  }
  return 1;
}
