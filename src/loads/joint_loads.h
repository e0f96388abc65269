// CJointLoads: forces on joints (*CONLOAD) and displacements of their
// supports (*SPDISP).
#pragma once

#include <string>

#include "frame/subject.h"
#include "loads/joint_load_tables.h"
#include "s2k/keyed_table.h"

class CJointLoads : public CSubject {
 public:
  explicit CJointLoads(CS2kConverter& engine);

  int ParseJointForces();   // 334
  int ParseJointGrounds();  // 335

  /// Conversion step 1: forces given in local axes are turned to global axes.
  int ConvertJointForces();
  /// Conversion step 1: displacements given in global axes are turned to the
  /// joint's local axes, and each value flags its degree of freedom.
  int ConvertJointGroundDisplacements();

  /// The *CONLOAD and *SPDISP blocks of \p loadCase.
  int WriteConload(const std::string& loadCase);
  int WriteSpdisp(const std::string& loadCase);

 private:
  CKeyedTable<S2kJointForceRow> forces_;    // 334
  CKeyedTable<S2kJointGroundRow> grounds_;  // 335
  CKeyedTable<TvtConloadRec> conloads_;     // *CONLOAD
  CKeyedTable<TvtSpdispRec> spdisps_;       // *SPDISP
};
