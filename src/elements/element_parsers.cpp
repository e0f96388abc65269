// The row parsers of the element tables.
#include "elements/elements.h"

#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

using Area = S2kConnectivityAreaRow;
constexpr S2kField<Area> kConnectivityAreaKeys[] = {
    TextKey("Area=", &Area::Area),       TextKey("Joint1=", &Area::Joint1),       TextKey("Joint2=", &Area::Joint2),
    TextKey("Joint3=", &Area::Joint3),   TextKey("Joint4=", &Area::Joint4),       NumberKey("AreaArea=", &Area::AreaArea),
    NumberKey("Volume=", &Area::Volume),
};

using Frame = S2kConnectivityFrameRow;
constexpr S2kField<Frame> kConnectivityFrameKeys[] = {
    TextKey("Frame=", &Frame::Frame),
    TextKey("JointI=", &Frame::JointI),
    TextKey("JointJ=", &Frame::JointJ),
    NumberKey("Length=", &Frame::Length),
};

using Solid = S2kConnectivitySolidRow;
constexpr S2kField<Solid> kConnectivitySolidKeys[] = {
    TextKey("Solid=", &Solid::Solid),   TextKey("Joint1=", &Solid::Joint1), TextKey("Joint2=", &Solid::Joint2),
    TextKey("Joint3=", &Solid::Joint3), TextKey("Joint4=", &Solid::Joint4), TextKey("Joint5=", &Solid::Joint5),
    TextKey("Joint6=", &Solid::Joint6), TextKey("Joint7=", &Solid::Joint7), TextKey("Joint8=", &Solid::Joint8),
    NumberKey("Volume=", &Solid::Volume),
};

using Axes1 = S2kFrameLocalAxes1Row;
constexpr S2kField<Axes1> kFrameLocalAxes1Keys[] = {
    TextKey("Frame=", &Axes1::Frame),
    NumberKey("Angle=", &Axes1::Angle),
    FlagKey("MirrorAbt2=", &Axes1::MirrorAbt2),
    FlagKey("MirrorAbt3=", &Axes1::MirrorAbt3),
    FlagKey("AdvanceAxes=", &Axes1::AdvanceAxes),
};

using Axes2 = S2kFrameLocalAxes2Row;
constexpr S2kField<Axes2> kFrameLocalAxes2Keys[] = {
    TextKey("Frame=", &Axes2::Frame),         TextKey("LocalPlan=", &Axes2::LocalPlan),
    TextKey("PlOption1=", &Axes2::PlOption1), TextKey("PlCoordSys=", &Axes2::PlCoordSys),
    TextKey("CoordDir1=", &Axes2::CoordDir1), TextKey("CoordDir2=", &Axes2::CoordDir2),
    TextKey("PlVecJt1=", &Axes2::PlVecJt1),   TextKey("PlVecJt2=", &Axes2::PlVecJt2),
    NumberKey("PlVecX=", &Axes2::PlVecX),     NumberKey("PlVecY=", &Axes2::PlVecY),
    NumberKey("PlVecZ=", &Axes2::PlVecZ),
};

using SectionAssign = S2kAreaSectionAssignRow;
constexpr S2kField<SectionAssign> kAreaSectionAssignKeys[] = {
    TextKey("Area=", &SectionAssign::Area),
    TextKey("Section=", &SectionAssign::Section),
    TextKey("MatProp=", &SectionAssign::MatProp),
};

// " Type=" has its blank so that it is not found inside "AreaType=".
using Section = S2kAreaSectionRow;
constexpr S2kField<Section> kAreaSectionKeys[] = {
    TextKey("Section=", &Section::Section),     TextKey("Material=", &Section::Material),
    NumberKey("MatAngle=", &Section::MatAngle), TextKey("AreaType=", &Section::AreaType),
    TextKey(" Type=", &Section::Type),          NumberKey("Thickness=", &Section::Thickness),
    NumberKey("BendThick=", &Section::BendThick), NumberKey("Arc=", &Section::Arc),
    FlagKey("InComp=", &Section::InComp),       TextKey("CoordSys=", &Section::CoordSys),
    TextKey("Color=", &Section::Color),         NumberKey("TotalWt=", &Section::TotalWt),
    NumberKey("TotalMass=", &Section::TotalMass), NumberKey("F11Mod=", &Section::F11Mod),
    NumberKey("F22Mod=", &Section::F22Mod),     NumberKey("F12Mod=", &Section::F12Mod),
    NumberKey("M11Mod=", &Section::M11Mod),     NumberKey("M22Mod=", &Section::M22Mod),
    NumberKey("M12Mod=", &Section::M12Mod),     NumberKey("V13Mod=", &Section::V13Mod),
    NumberKey("V23Mode=", &Section::V23Mode),   NumberKey("MMod=", &Section::MMod),
    NumberKey("WMod=", &Section::WMod),
};

using PropAssign = S2kSolidPropAssignRow;
constexpr S2kField<PropAssign> kSolidPropAssignKeys[] = {
    TextKey("Solid=", &PropAssign::Solid),
    TextKey("SolidProp=", &PropAssign::SolidProp),
};

using Prop = S2kSolidPropRow;
constexpr S2kField<Prop> kSolidPropKeys[] = {
    TextKey("SolidProp=", &Prop::SolidProp),  TextKey("Material=", &Prop::Material),
    NumberKey("MatAngleA=", &Prop::MatAngleA), NumberKey("MatAngleB=", &Prop::MatAngleB),
    NumberKey("MatAngleC=", &Prop::MatAngleC), FlagKey("InComp=", &Prop::InComp),
    TextKey("Color=", &Prop::Color),          NumberKey("TotalWt=", &Prop::TotalWt),
    NumberKey("TotalMass=", &Prop::TotalMass),
};

using Summary = S2kSolidSummaryRow;
constexpr S2kField<Summary> kSolidSummaryKeys[] = {
    TextKey("Solid=", &Summary::Solid),           TextKey("SolidProp=", &Summary::SolidProp),
    TextKey("Springs=", &Summary::Springs),       TextKey("AutoMesh=", &Summary::AutoMesh),
    NumberKey("MatTemp=", &Summary::MatTemp),     TextKey("GravLoads=", &Summary::GravLoads),
    TextKey("SPresLoads=", &Summary::SPresLoads), TextKey("PPresLoads=", &Summary::PPresLoads),
    TextKey("TempLoads=", &Summary::TempLoads),   NumberKey("RefTemp=", &Summary::RefTemp),
    NumberKey("Volume=", &Summary::Volume),       NumberKey("CentroidX=", &Summary::CentroidX),
    NumberKey("CentroidY=", &Summary::CentroidY), NumberKey("CentroidZ=", &Summary::CentroidZ),
};

using Offset = S2kFrameOffsetRow;
constexpr S2kField<Offset> kFrameOffsetKeys[] = {
    TextKey("Frame=", &Offset::Frame),         TextKey("Type=", &Offset::Type),
    NumberKey("LengthI=", &Offset::LengthI),   NumberKey("LengthJ=", &Offset::LengthJ),
    NumberKey("RigidFactor=", &Offset::RigidFactor),
};

using Release = S2kFrameReleaseRow;
constexpr S2kField<Release> kFrameReleaseKeys[] = {
    TextKey("Frame=", &Release::Frame), FlagKey("PI=", &Release::PI),   FlagKey("V2I=", &Release::V2I),
    FlagKey("V3I=", &Release::V3I),     FlagKey("TI=", &Release::TI),   FlagKey("M2I=", &Release::M2I),
    FlagKey("M3I=", &Release::M3I),     FlagKey("PJ=", &Release::PJ),   FlagKey("V2J=", &Release::V2J),
    FlagKey("V3J=", &Release::V3J),     FlagKey("TJ=", &Release::TJ),   FlagKey("M2J=", &Release::M2J),
    FlagKey("M3J=", &Release::M3J),     FlagKey("PartialFix=", &Release::PartialFix),
};

using Fixity = S2kFramePartialFixRow;
constexpr S2kField<Fixity> kFramePartialFixKeys[] = {
    TextKey("Frame=", &Fixity::Frame), NumberKey("PI=", &Fixity::PI),   NumberKey("V2I=", &Fixity::V2I),
    NumberKey("V3I=", &Fixity::V3I),   NumberKey("TI=", &Fixity::TI),   NumberKey("M2I=", &Fixity::M2I),
    NumberKey("M3I=", &Fixity::M3I),   NumberKey("PJ=", &Fixity::PJ),   NumberKey("V2J=", &Fixity::V2J),
    NumberKey("V3J=", &Fixity::V3J),   NumberKey("TJ=", &Fixity::TJ),   NumberKey("M2J=", &Fixity::M2J),
    NumberKey("M3J=", &Fixity::M3J),
};

}  // namespace

int CElements::ParseAreaSectionAssign() { return engine.ParseRows(kAreaSectionAssignKeys, source_.AreaSectionAssign); }
int CElements::ParseAreaSection() { return engine.ParseRows(kAreaSectionKeys, source_.AreaSection); }
int CElements::ParseConnectivityArea() { return engine.ParseRows(kConnectivityAreaKeys, source_.ConnectivityArea); }
int CElements::ParseConnectivityFrame() { return engine.ParseRows(kConnectivityFrameKeys, source_.ConnectivityFrame); }
int CElements::ParseConnectivitySolid() { return engine.ParseRows(kConnectivitySolidKeys, source_.ConnectivitySolid); }
int CElements::ParseFrameLocalAxes1() { return engine.ParseRows(kFrameLocalAxes1Keys, source_.FrameLocalAxes1); }
int CElements::ParseFrameLocalAxes2() { return engine.ParseRows(kFrameLocalAxes2Keys, source_.FrameLocalAxes2); }
int CElements::ParseFrameOffset() { return engine.ParseRows(kFrameOffsetKeys, source_.FrameOffset); }
int CElements::ParseFrameRelease() { return engine.ParseRows(kFrameReleaseKeys, source_.FrameRelease); }
int CElements::ParseFramePartialFix() { return engine.ParseRows(kFramePartialFixKeys, source_.FramePartialFix); }
int CElements::ParseSolidPropAssign() { return engine.ParseRows(kSolidPropAssignKeys, source_.SolidPropAssign); }
int CElements::ParseSolidProp() { return engine.ParseRows(kSolidPropKeys, source_.SolidProp); }
int CElements::ParseSolidSummary() { return engine.ParseRows(kSolidSummaryKeys, source_.SolidSummary); }

const std::vector<S2kTableParser>& ElementTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {125, RunStep<&CElements::ParseAreaSectionAssign>}, {126, RunStep<&CElements::ParseAreaSection>},
      {201, RunStep<&CElements::ParseConnectivityArea>},  {202, RunStep<&CElements::ParseConnectivityFrame>},
      {204, RunStep<&CElements::ParseConnectivitySolid>}, {239, RunStep<&CElements::ParseFrameLocalAxes1>},
      {240, RunStep<&CElements::ParseFrameLocalAxes2>},   {243, RunStep<&CElements::ParseFrameOffset>},
      {250, RunStep<&CElements::ParseFrameRelease>},      {251, RunStep<&CElements::ParseFramePartialFix>},
      {489, RunStep<&CElements::ParseSolidPropAssign>},   {490, RunStep<&CElements::ParseSolidProp>},
      {505, RunStep<&CElements::ParseSolidSummary>},
  };
  return parsers;
}
