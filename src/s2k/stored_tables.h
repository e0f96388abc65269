// Tables whose rows are stored and that no conversion reads, so that every
// table of the format is read whole.
#pragma once

#include "s2k/text.h"
#include <string>

#include "frame/subject.h"
#include "s2k/keyed_table.h"

struct S2kAreaRotateLoadRow {
  CText Area;
  CText LoadCase;
  double AngularBel = 0;
};

struct S2kAreaUniformToFrameLoadRow {
  CText Area;
  CText LoadCase;
  CText CoordSys;
  CText Dir;
  double UnifLoad = 0;
  CText DistType;
};

struct S2kAreaWindCoefficientRow {
  CText Area;
  CText LoadCase;
  CText Windward;
  double Cp = 0;
  double XComponent = 0;
  double YComponent = 0;
  double ZComponent = 0;
};

struct S2kAreaMaterialTemperatureRow {
  CText Area;
  double Temp = 0;
  CText JtPattern;
};

struct S2kCaseModalLoadRow {
  CText Case;
  CText LoadType;
  CText LoadName;
  double TargetPar = 0;
  CText StatCorrect;
};

struct S2kCaseModalHistoryDampingRow {
  CText Case;
  double Period = 0;
  double Frequency = 0;
  double Damping = 0;
};

struct S2kCaseSpectrumModalDampingRow {
  CText Case;
  double Period = 0;
  double Frequency = 0;
  double Damping = 0;
};

struct S2kCaseSpectrumProportionalDampingRow {
  CText Case;
  CText SpecifyType;
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
  CText Case;
  CText Mode;
  double Damping = 0;
};

struct S2kConstraintLocalRow {
  CText Name;
  CText U1;
  CText U2;
  CText U3;
  CText R1;
  CText R2;
  CText R3;
};

struct S2kPlotFunctionRow {
  CText PlotFunc;
  CText Type;
  CText ObjectLabel;
  CText DistType;
  double RelDist = 0;
  double AbsDist = 0;
  CText Joint;
  CText Component;
  CText Mode;
};

struct S2kFunctionCosineRow {
  CText Name;
  double Time = 0;
  double Value = 0;
  double Period = 0;
  double StepsPerCyc = 0;
  double NumCycles = 0;
  double Amplitude = 0;
};

struct S2kFunctionRampRow {
  CText Name;
  double Time = 0;
  double Value = 0;
  double RampTime = 0;
  double Amplitude = 0;
  double MaxTime = 0;
};

struct S2kFunctionSawtoothRow {
  CText Name;
  double Time = 0;
  double Value = 0;
  double Period = 0;
  double RampTime = 0;
  double NumCycles = 0;
  double Amplitude = 0;
};

struct S2kFunctionSineRow {
  CText Name;
  double Time = 0;
  double Value = 0;
  double Period = 0;
  double StepsPerCyc = 0;
  double NumCycles = 0;
  double Amplitude = 0;
};

struct S2kFunctionTriangularRow {
  CText Name;
  double Time = 0;
  double Value = 0;
  double Period = 0;
  double NumCycles = 0;
  double Amplitude = 0;
};

struct S2kFunctionUserPeriodicRow {
  CText Name;
  double Time = 0;
  double Value = 0;
  double NumCycles = 0;
};

struct S2kGroupDefinitionRow {
  CText GroupName;
  CText Selection;
  CText SectionCut;
  CText Steel;
  CText Concrete;
  CText Aluminum;
  CText ColdFormed;
  CText Stage;
  CText Bridge;
  CText AutoSeismic;
  CText AutoWind;
  CText MassWeight;
};

struct S2kGroupAssignmentRow {
  CText GroupName;
  CText ObjectType;
  CText ObjectLabel;
};

struct S2kGroupMassRow {
  CText GroupName;
  double SelfMass = 0;
  double SelfWeight = 0;
  double TotalMassX = 0;
  double TotalMassY = 0;
  double TotalMassZ = 0;
};

struct S2kJointMassSourceRow {
  CText Joint;
  double UX = 0;
  double UY = 0;
  double UZ = 0;
  double RX = 0;
  double RY = 0;
  double RZ = 0;
};

struct S2kSolidAutoMeshRow {
  CText Solid;
  CText AutoMesh;
  double Number1 = 0;
  double Number2 = 0;
  double Number3 = 0;
};

struct S2kSolidMaterialTemperatureRow {
  CText Solid;
  double Temp = 0;
  CText JtPattern;
};

struct S2kAreaSummaryRow {
  CText Area;
  CText Section;
  CText StiffMod;
  CText LocalAxes;
  CText Springs;
  double MassPerArea = 0;
  CText AutoMesh;
  double MatTemp = 0;
  CText GravLoads;
  CText UnifLoads;
  CText UnifLoadsFr;
  CText SPresLoads;
  CText PPresLoads;
  CText TempLoads;
  double RefTemp = 0;
  CText RotateLoads;
  CText WindCoeffs;
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
