// The row parsers of the element tables.
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

int CS2kConverter::ParseAreaSectionAssign() { return ParseRows(kAreaSectionAssignKeys, sourceModel->AreaSectionAssign); }
int CS2kConverter::ParseAreaSection() { return ParseRows(kAreaSectionKeys, sourceModel->AreaSection); }
int CS2kConverter::ParseConnectivityArea() { return ParseRows(kConnectivityAreaKeys, sourceModel->ConnectivityArea); }
int CS2kConverter::ParseConnectivityFrame() { return ParseRows(kConnectivityFrameKeys, sourceModel->ConnectivityFrame); }
int CS2kConverter::ParseConnectivitySolid() { return ParseRows(kConnectivitySolidKeys, sourceModel->ConnectivitySolid); }
int CS2kConverter::ParseFrameLocalAxes1() { return ParseRows(kFrameLocalAxes1Keys, sourceModel->FrameLocalAxes1); }
int CS2kConverter::ParseFrameLocalAxes2() { return ParseRows(kFrameLocalAxes2Keys, sourceModel->FrameLocalAxes2); }
int CS2kConverter::ParseFrameOffset() { return ParseRows(kFrameOffsetKeys, sourceModel->FrameOffset); }
int CS2kConverter::ParseFrameRelease() { return ParseRows(kFrameReleaseKeys, sourceModel->FrameRelease); }
int CS2kConverter::ParseFramePartialFix() { return ParseRows(kFramePartialFixKeys, sourceModel->FramePartialFix); }
int CS2kConverter::ParseSolidPropAssign() { return ParseRows(kSolidPropAssignKeys, sourceModel->SolidPropAssign); }
int CS2kConverter::ParseSolidProp() { return ParseRows(kSolidPropKeys, sourceModel->SolidProp); }
int CS2kConverter::ParseSolidSummary() { return ParseRows(kSolidSummaryKeys, sourceModel->SolidSummary); }

const std::vector<S2kTableParser>& ElementTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {125, RunStep<&CS2kConverter::ParseAreaSectionAssign>}, {126, RunStep<&CS2kConverter::ParseAreaSection>},
      {201, RunStep<&CS2kConverter::ParseConnectivityArea>},  {202, RunStep<&CS2kConverter::ParseConnectivityFrame>},
      {204, RunStep<&CS2kConverter::ParseConnectivitySolid>}, {239, RunStep<&CS2kConverter::ParseFrameLocalAxes1>},
      {240, RunStep<&CS2kConverter::ParseFrameLocalAxes2>},   {243, RunStep<&CS2kConverter::ParseFrameOffset>},
      {250, RunStep<&CS2kConverter::ParseFrameRelease>},      {251, RunStep<&CS2kConverter::ParseFramePartialFix>},
      {489, RunStep<&CS2kConverter::ParseSolidPropAssign>},   {490, RunStep<&CS2kConverter::ParseSolidProp>},
      {505, RunStep<&CS2kConverter::ParseSolidSummary>},
  };
  return parsers;
}
