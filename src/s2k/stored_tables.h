// Tables whose rows are stored and that no conversion reads, so that every
// table of the format is read whole.
#pragma once

#include <string>

#include "frame/subject.h"
#include "s2k/keyed_table.h"

struct S2kAreaRotateLoadRow {
  std::string Area;
  std::string LoadCase;
  double AngularBel = 0;
};

struct S2kAreaUniformToFrameLoadRow {
  std::string Area;
  std::string LoadCase;
  std::string CoordSys;
  std::string Dir;
  double UnifLoad = 0;
  std::string DistType;
};

struct S2kAreaWindCoefficientRow {
  std::string Area;
  std::string LoadCase;
  std::string Windward;
  double Cp = 0;
  double XComponent = 0;
  double YComponent = 0;
  double ZComponent = 0;
};

struct S2kAreaMaterialTemperatureRow {
  std::string Area;
  double Temp = 0;
  std::string JtPattern;
};

struct S2kCaseModalLoadRow {
  std::string Case;
  std::string LoadType;
  std::string LoadName;
  double TargetPar = 0;
  std::string StatCorrect;
};

struct S2kCaseModalHistoryDampingRow {
  std::string Case;
  double Period = 0;
  double Frequency = 0;
  double Damping = 0;
};

struct S2kCaseSpectrumModalDampingRow {
  std::string Case;
  double Period = 0;
  double Frequency = 0;
  double Damping = 0;
};

struct S2kCaseSpectrumProportionalDampingRow {
  std::string Case;
  std::string SpecifyType;
  double MassCoeff = 0;
  double StiffCoeff = 0;
  double Period1 = 0;
  double Frequency1 = 0;
  double Damping1 = 0;
  double Period2 = 0;
  double Frequency2 = 0;
  double Damping2 = 0;
};

struct S2kCaseSpectrumModeDampingRow {
  std::string Case;
  std::string Mode;
  double Damping = 0;
};

struct S2kConstraintLocalRow {
  std::string Name;
  std::string U1;
  std::string U2;
  std::string U3;
  std::string R1;
  std::string R2;
  std::string R3;
};

struct S2kPlotFunctionRow {
  std::string PlotFunc;
  std::string Type;
  std::string ObjectLabel;
  std::string DistType;
  double RelDist = 0;
  double AbsDist = 0;
  std::string Joint;
  std::string Component;
  std::string Mode;
};

struct S2kFunctionCosineRow {
  std::string Name;
  double Time = 0;
  double Value = 0;
  double Period = 0;
  double StepsPerCyc = 0;
  double NumCycles = 0;
  double Amplitude = 0;
};

struct S2kFunctionRampRow {
  std::string Name;
  double Time = 0;
  double Value = 0;
  double RampTime = 0;
  double Amplitude = 0;
  double MaxTime = 0;
};

struct S2kFunctionSawtoothRow {
  std::string Name;
  double Time = 0;
  double Value = 0;
  double Period = 0;
  double RampTime = 0;
  double NumCycles = 0;
  double Amplitude = 0;
};

struct S2kFunctionSineRow {
  std::string Name;
  double Time = 0;
  double Value = 0;
  double Period = 0;
  double StepsPerCyc = 0;
  double NumCycles = 0;
  double Amplitude = 0;
};

struct S2kFunctionTriangularRow {
  std::string Name;
  double Time = 0;
  double Value = 0;
  double Period = 0;
  double NumCycles = 0;
  double Amplitude = 0;
};

struct S2kFunctionUserPeriodicRow {
  std::string Name;
  double Time = 0;
  double Value = 0;
  double NumCycles = 0;
};

struct S2kGroupDefinitionRow {
  std::string GroupName;
  std::string Selection;
  std::string SectionCut;
  std::string Steel;
  std::string Concrete;
  std::string Aluminum;
  std::string ColdFormed;
  std::string Stage;
  std::string Bridge;
  std::string AutoSeismic;
  std::string AutoWind;
  std::string MassWeight;
};

struct S2kGroupAssignmentRow {
  std::string GroupName;
  std::string ObjectType;
  std::string ObjectLabel;
};

struct S2kGroupMassRow {
  std::string GroupName;
  double SelfMass = 0;
  double SelfWeight = 0;
  double TotalMassX = 0;
  double TotalMassY = 0;
  double TotalMassZ = 0;
};

struct S2kJointMassSourceRow {
  std::string Joint;
  double UX = 0;
  double UY = 0;
  double UZ = 0;
  double RX = 0;
  double RY = 0;
  double RZ = 0;
};

struct S2kSolidAutoMeshRow {
  std::string Solid;
  std::string AutoMesh;
  double Number1 = 0;
  double Number2 = 0;
  double Number3 = 0;
};

struct S2kSolidMaterialTemperatureRow {
  std::string Solid;
  double Temp = 0;
  std::string JtPattern;
};

struct S2kAreaSummaryRow {
  std::string Area;
  std::string Section;
  std::string StiffMod;
  std::string LocalAxes;
  std::string Springs;
  double MassPerArea = 0;
  std::string AutoMesh;
  double MatTemp = 0;
  std::string GravLoads;
  std::string UnifLoads;
  std::string UnifLoadsFr;
  std::string SPresLoads;
  std::string PPresLoads;
  std::string TempLoads;
  double RefTemp = 0;
  std::string RotateLoads;
  std::string WindCoeffs;
  double AreaArea = 0;
  double Perimeter = 0;
  double Volume = 0;
  double CentroidX = 0;
  double CentroidY = 0;
  double CentroidZ = 0;
};

struct S2kStoredTables {
  void Reset() {
    AreaRotateLoad.Reset(17);
    AreaUniformToFrameLoad.Reset(17);
    AreaWindCoefficient.Reset(17);
    AreaMaterialTemperature.Reset(17);
    CaseModalLoad.Reset(17);
    CaseModalHistoryDamping.Reset(17);
    CaseSpectrumModalDamping.Reset(17);
    CaseSpectrumProportionalDamping.Reset(17);
    CaseSpectrumModeDamping.Reset(17);
    ConstraintLocal.Reset(17);
    PlotFunction.Reset(17);
    FunctionCosine.Reset(17);
    FunctionRamp.Reset(17);
    FunctionSawtooth.Reset(17);
    FunctionSine.Reset(17);
    FunctionTriangular.Reset(17);
    FunctionUserPeriodic.Reset(17);
    GroupDefinition.Reset(17);
    GroupAssignment.Reset(17);
    GroupMass.Reset(17);
    JointMassSource.Reset(17);
    SolidAutoMesh.Reset(17);
    SolidMaterialTemperature.Reset(17);
    AreaSummary.Reset(10001);
  }

  CKeyedTable<S2kAreaRotateLoadRow> AreaRotateLoad;  // 115
  CKeyedTable<S2kAreaUniformToFrameLoadRow> AreaUniformToFrameLoad;  // 118
  CKeyedTable<S2kAreaWindCoefficientRow> AreaWindCoefficient;  // 120
  CKeyedTable<S2kAreaMaterialTemperatureRow> AreaMaterialTemperature;  // 123
  CKeyedTable<S2kCaseModalLoadRow> CaseModalLoad;  // 179
  CKeyedTable<S2kCaseModalHistoryDampingRow> CaseModalHistoryDamping;  // 183
  CKeyedTable<S2kCaseSpectrumModalDampingRow> CaseSpectrumModalDamping;  // 192
  CKeyedTable<S2kCaseSpectrumProportionalDampingRow> CaseSpectrumProportionalDamping;  // 193
  CKeyedTable<S2kCaseSpectrumModeDampingRow> CaseSpectrumModeDamping;  // 194
  CKeyedTable<S2kConstraintLocalRow> ConstraintLocal;  // 216
  CKeyedTable<S2kPlotFunctionRow> PlotFunction;  // 271
  CKeyedTable<S2kFunctionCosineRow> FunctionCosine;  // 282
  CKeyedTable<S2kFunctionRampRow> FunctionRamp;  // 284
  CKeyedTable<S2kFunctionSawtoothRow> FunctionSawtooth;  // 285
  CKeyedTable<S2kFunctionSineRow> FunctionSine;  // 286
  CKeyedTable<S2kFunctionTriangularRow> FunctionTriangular;  // 287
  CKeyedTable<S2kFunctionUserPeriodicRow> FunctionUserPeriodic;  // 288
  CKeyedTable<S2kGroupDefinitionRow> GroupDefinition;  // 311
  CKeyedTable<S2kGroupAssignmentRow> GroupAssignment;  // 312
  CKeyedTable<S2kGroupMassRow> GroupMass;  // 313
  CKeyedTable<S2kJointMassSourceRow> JointMassSource;  // 372
  CKeyedTable<S2kSolidAutoMeshRow> SolidAutoMesh;  // 481
  CKeyedTable<S2kSolidMaterialTemperatureRow> SolidMaterialTemperature;  // 488
  CKeyedTable<S2kAreaSummaryRow> AreaSummary;  // 501
};

/// Reads the stored tables, each by its keys, and keeps them to itself.
class CStoredTables : public CSubject {
 public:
  explicit CStoredTables(CS2kConverter& engine);

  /// Reads the rows of the stored table \p Table by the keys \p Keys.
  template <auto Table, const auto& Keys>
  int Parse();

 private:
  S2kStoredTables tables_;
};
