// CSurfaceLoads: uniform loads and surface pressures on areas (*PRESSURE).
#pragma once

#include <string>

#include "frame/subject.h"
#include "loads/surface_tables.h"
#include "s2k/keyed_table.h"

class CSurfaceLoads : public CSubject {
 public:
  explicit CSurfaceLoads(CS2kConverter& engine);

  int ParseAreaUniform();  // 119
  int ParseAreaSurface();  // 116

  /// Conversion step 4, after the areas: uniform loads, then pressures.
  int ConvertAreaUniformLoads();
  int ConvertAreaSurfaceLoads();
  /// Corner values of \p record: \p PU times the pattern's value at each
  /// joint of \p Area, the third and fourth crossed.
  void ApplyAreaJointPattern(const std::string& Area, const std::string& Pattern, double PU, TvtPressureRec& record);

  /// The *PRESSURE block of \p loadCase, in the order of the keys.
  int WritePressure(const std::string& loadCase);

 private:
  int AddPressure(const TvtPressureRec& rec) { return pressures_.SetAt(pressures_.Count() + 1, rec); }

  CKeyedTable<S2kAreaUniformRow> uniformLoads_;  // 119
  CKeyedTable<S2kAreaSurfaceRow> surfaceLoads_;  // 116
  CKeyedTable<TvtPressureRec> pressures_;        // *PRESSURE
  int surfaceFaceRefused_ = 0;                   ///< a pressure on a face other than 5 and 6
};
