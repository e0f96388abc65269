// The readers of the stored tables.
#include "s2k/stored_tables.h"

#include "frame/converter.h"
#include "s2k/table_parsers.h"

CStoredTables::CStoredTables(CS2kConverter& engine) : CSubject(engine) { tables_.Reset(); }

template <auto Table, const auto& Keys>
int CStoredTables::Parse() {
  return engine.ParseRows(Keys, tables_.*Table);
}

namespace {

constexpr S2kField<S2kAreaRotateLoadRow> kAreaRotateLoadKeys[] = {
    TextKey("Area=", &S2kAreaRotateLoadRow::Area),
    TextKey("LoadCase=", &S2kAreaRotateLoadRow::LoadCase),
    NumberKey("AngularBel=", &S2kAreaRotateLoadRow::AngularBel),
};

constexpr S2kField<S2kAreaUniformToFrameLoadRow> kAreaUniformToFrameLoadKeys[] = {
    TextKey("Area=", &S2kAreaUniformToFrameLoadRow::Area),
    TextKey("LoadCase=", &S2kAreaUniformToFrameLoadRow::LoadCase),
    TextKey("CoordSys=", &S2kAreaUniformToFrameLoadRow::CoordSys),
    TextKey("Dir=", &S2kAreaUniformToFrameLoadRow::Dir),
    NumberKey("UnifLoad=", &S2kAreaUniformToFrameLoadRow::UnifLoad),
    TextKey("DistType=", &S2kAreaUniformToFrameLoadRow::DistType),
};

constexpr S2kField<S2kAreaWindCoefficientRow> kAreaWindCoefficientKeys[] = {
    TextKey("Area=", &S2kAreaWindCoefficientRow::Area),
    TextKey("LoadCase=", &S2kAreaWindCoefficientRow::LoadCase),
    TextKey("Windward=", &S2kAreaWindCoefficientRow::Windward),
    NumberKey("Cp=", &S2kAreaWindCoefficientRow::Cp),
    NumberKey("XComponent=", &S2kAreaWindCoefficientRow::XComponent),
    NumberKey("YComponent=", &S2kAreaWindCoefficientRow::YComponent),
    NumberKey("ZComponent=", &S2kAreaWindCoefficientRow::ZComponent),
};

constexpr S2kField<S2kAreaMaterialTemperatureRow> kAreaMaterialTemperatureKeys[] = {
    TextKey("Area=", &S2kAreaMaterialTemperatureRow::Area),
    NumberKey("Temp=", &S2kAreaMaterialTemperatureRow::Temp),
    TextKey("JtPattern=", &S2kAreaMaterialTemperatureRow::JtPattern),
};

constexpr S2kField<S2kCaseModalLoadRow> kCaseModalLoadKeys[] = {
    TextKey("Case=", &S2kCaseModalLoadRow::Case),
    TextKey("LoadType=", &S2kCaseModalLoadRow::LoadType),
    TextKey("LoadName=", &S2kCaseModalLoadRow::LoadName),
    NumberKey("TargetPar=", &S2kCaseModalLoadRow::TargetPar),
    TextKey("StatCorrect=", &S2kCaseModalLoadRow::StatCorrect),
};

constexpr S2kField<S2kCaseModalHistoryDampingRow> kCaseModalHistoryDampingKeys[] = {
    TextKey("Case=", &S2kCaseModalHistoryDampingRow::Case),
    NumberKey("Period=", &S2kCaseModalHistoryDampingRow::Period),
    NumberKey("Frequency=", &S2kCaseModalHistoryDampingRow::Frequency),
    NumberKey("Damping=", &S2kCaseModalHistoryDampingRow::Damping),
};

constexpr S2kField<S2kCaseSpectrumModalDampingRow> kCaseSpectrumModalDampingKeys[] = {
    TextKey("Case=", &S2kCaseSpectrumModalDampingRow::Case),
    NumberKey("Period=", &S2kCaseSpectrumModalDampingRow::Period),
    NumberKey("Frequency=", &S2kCaseSpectrumModalDampingRow::Frequency),
    NumberKey("Damping=", &S2kCaseSpectrumModalDampingRow::Damping),
};

constexpr S2kField<S2kCaseSpectrumProportionalDampingRow> kCaseSpectrumProportionalDampingKeys[] = {
    TextKey("Case=", &S2kCaseSpectrumProportionalDampingRow::Case),
    TextKey("SpecifyType=", &S2kCaseSpectrumProportionalDampingRow::SpecifyType),
    NumberKey("MassCoeff=", &S2kCaseSpectrumProportionalDampingRow::MassCoeff),
    NumberKey("StiffCoeff=", &S2kCaseSpectrumProportionalDampingRow::StiffCoeff),
    NumberKey("Period1=", &S2kCaseSpectrumProportionalDampingRow::Period1),
    NumberKey("Frequency1=", &S2kCaseSpectrumProportionalDampingRow::Frequency1),
    NumberKey("Damping1=", &S2kCaseSpectrumProportionalDampingRow::Damping1),
    NumberKey("Period2=", &S2kCaseSpectrumProportionalDampingRow::Period2),
    NumberKey("Frequency2=", &S2kCaseSpectrumProportionalDampingRow::Frequency2),
    NumberKey("Damping2=", &S2kCaseSpectrumProportionalDampingRow::Damping2),
};

constexpr S2kField<S2kCaseSpectrumModeDampingRow> kCaseSpectrumModeDampingKeys[] = {
    TextKey("Case=", &S2kCaseSpectrumModeDampingRow::Case),
    TextKey("Mode=", &S2kCaseSpectrumModeDampingRow::Mode),
    NumberKey("Damping=", &S2kCaseSpectrumModeDampingRow::Damping),
};

constexpr S2kField<S2kConstraintLocalRow> kConstraintLocalKeys[] = {
    TextKey("Name=", &S2kConstraintLocalRow::Name),
    TextKey("U1=", &S2kConstraintLocalRow::U1),
    TextKey("U2=", &S2kConstraintLocalRow::U2),
    TextKey("U3=", &S2kConstraintLocalRow::U3),
    TextKey("R1=", &S2kConstraintLocalRow::R1),
    TextKey("R2=", &S2kConstraintLocalRow::R2),
    TextKey("R3=", &S2kConstraintLocalRow::R3),
};

constexpr S2kField<S2kPlotFunctionRow> kPlotFunctionKeys[] = {
    TextKey("PlotFunc=", &S2kPlotFunctionRow::PlotFunc),
    TextKey("Type=", &S2kPlotFunctionRow::Type),
    TextKey("ObjectLabel=", &S2kPlotFunctionRow::ObjectLabel),
    TextKey("DistType=", &S2kPlotFunctionRow::DistType),
    NumberKey("RelDist=", &S2kPlotFunctionRow::RelDist),
    NumberKey("AbsDist=", &S2kPlotFunctionRow::AbsDist),
    TextKey("Joint=", &S2kPlotFunctionRow::Joint),
    TextKey("Component=", &S2kPlotFunctionRow::Component),
    TextKey("Mode=", &S2kPlotFunctionRow::Mode),
};

constexpr S2kField<S2kFunctionCosineRow> kFunctionCosineKeys[] = {
    TextKey("Name=", &S2kFunctionCosineRow::Name),
    NumberKey("Time=", &S2kFunctionCosineRow::Time),
    NumberKey("Value=", &S2kFunctionCosineRow::Value),
    NumberKey("Period=", &S2kFunctionCosineRow::Period),
    NumberKey("StepsPerCyc=", &S2kFunctionCosineRow::StepsPerCyc),
    NumberKey("NumCycles=", &S2kFunctionCosineRow::NumCycles),
    NumberKey("Amplitude=", &S2kFunctionCosineRow::Amplitude),
};

constexpr S2kField<S2kFunctionRampRow> kFunctionRampKeys[] = {
    TextKey("Name=", &S2kFunctionRampRow::Name),
    NumberKey("Time=", &S2kFunctionRampRow::Time),
    NumberKey("Value=", &S2kFunctionRampRow::Value),
    NumberKey("RampTime=", &S2kFunctionRampRow::RampTime),
    NumberKey("Amplitude=", &S2kFunctionRampRow::Amplitude),
    NumberKey("MaxTime=", &S2kFunctionRampRow::MaxTime),
};

constexpr S2kField<S2kFunctionSawtoothRow> kFunctionSawtoothKeys[] = {
    TextKey("Name=", &S2kFunctionSawtoothRow::Name),
    NumberKey("Time=", &S2kFunctionSawtoothRow::Time),
    NumberKey("Value=", &S2kFunctionSawtoothRow::Value),
    NumberKey("Period=", &S2kFunctionSawtoothRow::Period),
    NumberKey("RampTime=", &S2kFunctionSawtoothRow::RampTime),
    NumberKey("NumCycles=", &S2kFunctionSawtoothRow::NumCycles),
    NumberKey("Amplitude=", &S2kFunctionSawtoothRow::Amplitude),
};

constexpr S2kField<S2kFunctionSineRow> kFunctionSineKeys[] = {
    TextKey("Name=", &S2kFunctionSineRow::Name),
    NumberKey("Time=", &S2kFunctionSineRow::Time),
    NumberKey("Value=", &S2kFunctionSineRow::Value),
    NumberKey("Period=", &S2kFunctionSineRow::Period),
    NumberKey("StepsPerCyc=", &S2kFunctionSineRow::StepsPerCyc),
    NumberKey("NumCycles=", &S2kFunctionSineRow::NumCycles),
    NumberKey("Amplitude=", &S2kFunctionSineRow::Amplitude),
};

constexpr S2kField<S2kFunctionTriangularRow> kFunctionTriangularKeys[] = {
    TextKey("Name=", &S2kFunctionTriangularRow::Name),
    NumberKey("Time=", &S2kFunctionTriangularRow::Time),
    NumberKey("Value=", &S2kFunctionTriangularRow::Value),
    NumberKey("Period=", &S2kFunctionTriangularRow::Period),
    NumberKey("NumCycles=", &S2kFunctionTriangularRow::NumCycles),
    NumberKey("Amplitude=", &S2kFunctionTriangularRow::Amplitude),
};

constexpr S2kField<S2kFunctionUserPeriodicRow> kFunctionUserPeriodicKeys[] = {
    TextKey("Name=", &S2kFunctionUserPeriodicRow::Name),
    NumberKey("Time=", &S2kFunctionUserPeriodicRow::Time),
    NumberKey("Value=", &S2kFunctionUserPeriodicRow::Value),
    NumberKey("NumCycles=", &S2kFunctionUserPeriodicRow::NumCycles),
};

constexpr S2kField<S2kGroupDefinitionRow> kGroupDefinitionKeys[] = {
    TextKey("GroupName=", &S2kGroupDefinitionRow::GroupName),
    TextKey("Selection=", &S2kGroupDefinitionRow::Selection),
    TextKey("SectionCut=", &S2kGroupDefinitionRow::SectionCut),
    TextKey("Steel=", &S2kGroupDefinitionRow::Steel),
    TextKey("Concrete=", &S2kGroupDefinitionRow::Concrete),
    TextKey("Aluminum=", &S2kGroupDefinitionRow::Aluminum),
    TextKey("ColdFormed=", &S2kGroupDefinitionRow::ColdFormed),
    TextKey("Stage=", &S2kGroupDefinitionRow::Stage),
    TextKey("Bridge=", &S2kGroupDefinitionRow::Bridge),
    TextKey("AutoSeismic=", &S2kGroupDefinitionRow::AutoSeismic),
    TextKey("AutoWind=", &S2kGroupDefinitionRow::AutoWind),
    TextKey("MassWeight=", &S2kGroupDefinitionRow::MassWeight),
};

constexpr S2kField<S2kGroupAssignmentRow> kGroupAssignmentKeys[] = {
    TextKey("GroupName=", &S2kGroupAssignmentRow::GroupName),
    TextKey("ObjectType=", &S2kGroupAssignmentRow::ObjectType),
    TextKey("ObjectLabel=", &S2kGroupAssignmentRow::ObjectLabel),
};

constexpr S2kField<S2kGroupMassRow> kGroupMassKeys[] = {
    TextKey("GroupName=", &S2kGroupMassRow::GroupName),
    NumberKey("SelfMass=", &S2kGroupMassRow::SelfMass),
    NumberKey("SelfWeight=", &S2kGroupMassRow::SelfWeight),
    NumberKey("TotalMassX=", &S2kGroupMassRow::TotalMassX),
    NumberKey("TotalMassY=", &S2kGroupMassRow::TotalMassY),
    NumberKey("TotalMassZ=", &S2kGroupMassRow::TotalMassZ),
};

constexpr S2kField<S2kJointMassSourceRow> kJointMassSourceKeys[] = {
    TextKey("Joint=", &S2kJointMassSourceRow::Joint),
    NumberKey("UX=", &S2kJointMassSourceRow::UX),
    NumberKey("UY=", &S2kJointMassSourceRow::UY),
    NumberKey("UZ=", &S2kJointMassSourceRow::UZ),
    NumberKey("RX=", &S2kJointMassSourceRow::RX),
    NumberKey("RY=", &S2kJointMassSourceRow::RY),
    NumberKey("RZ=", &S2kJointMassSourceRow::RZ),
};

constexpr S2kField<S2kSolidAutoMeshRow> kSolidAutoMeshKeys[] = {
    TextKey("Solid=", &S2kSolidAutoMeshRow::Solid),
    TextKey("AutoMesh=", &S2kSolidAutoMeshRow::AutoMesh),
    NumberKey("Number1=", &S2kSolidAutoMeshRow::Number1),
    NumberKey("Number2=", &S2kSolidAutoMeshRow::Number2),
    NumberKey("Number3=", &S2kSolidAutoMeshRow::Number3),
};

constexpr S2kField<S2kSolidMaterialTemperatureRow> kSolidMaterialTemperatureKeys[] = {
    TextKey("Solid=", &S2kSolidMaterialTemperatureRow::Solid),
    NumberKey("Temp=", &S2kSolidMaterialTemperatureRow::Temp),
    TextKey("JtPattern=", &S2kSolidMaterialTemperatureRow::JtPattern),
};

constexpr S2kField<S2kAreaSummaryRow> kAreaSummaryKeys[] = {
    TextKey("Area=", &S2kAreaSummaryRow::Area),
    TextKey("Section=", &S2kAreaSummaryRow::Section),
    TextKey("StiffMod=", &S2kAreaSummaryRow::StiffMod),
    TextKey("LocalAxes=", &S2kAreaSummaryRow::LocalAxes),
    TextKey("Springs=", &S2kAreaSummaryRow::Springs),
    NumberKey("MassPerArea=", &S2kAreaSummaryRow::MassPerArea),
    TextKey("AutoMesh=", &S2kAreaSummaryRow::AutoMesh),
    NumberKey("MatTemp=", &S2kAreaSummaryRow::MatTemp),
    TextKey("GravLoads=", &S2kAreaSummaryRow::GravLoads),
    TextKey("UnifLoads=", &S2kAreaSummaryRow::UnifLoads),
    TextKey("UnifLoadsFr=", &S2kAreaSummaryRow::UnifLoadsFr),
    TextKey("SPresLoads=", &S2kAreaSummaryRow::SPresLoads),
    TextKey("PPresLoads=", &S2kAreaSummaryRow::PPresLoads),
    TextKey("TempLoads=", &S2kAreaSummaryRow::TempLoads),
    NumberKey("RefTemp=", &S2kAreaSummaryRow::RefTemp),
    TextKey("RotateLoads=", &S2kAreaSummaryRow::RotateLoads),
    TextKey("WindCoeffs=", &S2kAreaSummaryRow::WindCoeffs),
    NumberKey("AreaArea=", &S2kAreaSummaryRow::AreaArea),
    NumberKey("Perimeter=", &S2kAreaSummaryRow::Perimeter),
    NumberKey("Volume=", &S2kAreaSummaryRow::Volume),
    NumberKey("CentroidX=", &S2kAreaSummaryRow::CentroidX),
    NumberKey("CentroidY=", &S2kAreaSummaryRow::CentroidY),
    NumberKey("CentroidZ=", &S2kAreaSummaryRow::CentroidZ),
};

}  // namespace

const std::vector<S2kTableParser>& StoredTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {115, RunStep<&CStoredTables::Parse<&S2kStoredTables::AreaRotateLoad, kAreaRotateLoadKeys>>},
      {118, RunStep<&CStoredTables::Parse<&S2kStoredTables::AreaUniformToFrameLoad, kAreaUniformToFrameLoadKeys>>},
      {120, RunStep<&CStoredTables::Parse<&S2kStoredTables::AreaWindCoefficient, kAreaWindCoefficientKeys>>},
      {123, RunStep<&CStoredTables::Parse<&S2kStoredTables::AreaMaterialTemperature, kAreaMaterialTemperatureKeys>>},
      {179, RunStep<&CStoredTables::Parse<&S2kStoredTables::CaseModalLoad, kCaseModalLoadKeys>>},
      {183, RunStep<&CStoredTables::Parse<&S2kStoredTables::CaseModalHistoryDamping, kCaseModalHistoryDampingKeys>>},
      {192, RunStep<&CStoredTables::Parse<&S2kStoredTables::CaseSpectrumModalDamping, kCaseSpectrumModalDampingKeys>>},
      {193, RunStep<&CStoredTables::Parse<&S2kStoredTables::CaseSpectrumProportionalDamping, kCaseSpectrumProportionalDampingKeys>>},
      {194, RunStep<&CStoredTables::Parse<&S2kStoredTables::CaseSpectrumModeDamping, kCaseSpectrumModeDampingKeys>>},
      {216, RunStep<&CStoredTables::Parse<&S2kStoredTables::ConstraintLocal, kConstraintLocalKeys>>},
      {271, RunStep<&CStoredTables::Parse<&S2kStoredTables::PlotFunction, kPlotFunctionKeys>>},
      {282, RunStep<&CStoredTables::Parse<&S2kStoredTables::FunctionCosine, kFunctionCosineKeys>>},
      {284, RunStep<&CStoredTables::Parse<&S2kStoredTables::FunctionRamp, kFunctionRampKeys>>},
      {285, RunStep<&CStoredTables::Parse<&S2kStoredTables::FunctionSawtooth, kFunctionSawtoothKeys>>},
      {286, RunStep<&CStoredTables::Parse<&S2kStoredTables::FunctionSine, kFunctionSineKeys>>},
      {287, RunStep<&CStoredTables::Parse<&S2kStoredTables::FunctionTriangular, kFunctionTriangularKeys>>},
      {288, RunStep<&CStoredTables::Parse<&S2kStoredTables::FunctionUserPeriodic, kFunctionUserPeriodicKeys>>},
      {311, RunStep<&CStoredTables::Parse<&S2kStoredTables::GroupDefinition, kGroupDefinitionKeys>>},
      {312, RunStep<&CStoredTables::Parse<&S2kStoredTables::GroupAssignment, kGroupAssignmentKeys>>},
      {313, RunStep<&CStoredTables::Parse<&S2kStoredTables::GroupMass, kGroupMassKeys>>},
      {372, RunStep<&CStoredTables::Parse<&S2kStoredTables::JointMassSource, kJointMassSourceKeys>>},
      {481, RunStep<&CStoredTables::Parse<&S2kStoredTables::SolidAutoMesh, kSolidAutoMeshKeys>>},
      {488, RunStep<&CStoredTables::Parse<&S2kStoredTables::SolidMaterialTemperature, kSolidMaterialTemperatureKeys>>},
      {501, RunStep<&CStoredTables::Parse<&S2kStoredTables::AreaSummary, kAreaSummaryKeys>>},
  };
  return parsers;
}
