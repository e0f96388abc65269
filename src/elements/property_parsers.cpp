// The row parsers of the material and section tables.
#include "elements/properties.h"

#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

using Insertion = S2kFrameInsertionRow;
constexpr S2kField<Insertion> kFrameInsertionKeys[] = {
    TextKey("Frame=", &Insertion::Frame),
    TextKey("CardinalPt=", &Insertion::CardinalPt),
    TextKey("CoordSys=", &Insertion::CoordSys),
    NumberKey("JtOffsetXI=", &Insertion::JtOffsetXI),
    NumberKey("JtOffsetYI=", &Insertion::JtOffsetYI),
    NumberKey("JtOffsetZI=", &Insertion::JtOffsetZI),
    NumberKey("JtOffsetXJ=", &Insertion::JtOffsetXJ),
    NumberKey("JtOffsetYJ=", &Insertion::JtOffsetYJ),
    NumberKey("JtOffsetZJ=", &Insertion::JtOffsetZJ),
};

using Modifiers = S2kFrameModifiersRow;
constexpr S2kField<Modifiers> kFrameModifiersKeys[] = {
    TextKey("Frame=", &Modifiers::Frame),
    NumberKey("AMod=", &Modifiers::AMod),
    NumberKey("AS2Mod=", &Modifiers::AS2Mod),
    NumberKey("AS3Mod=", &Modifiers::AS3Mod),
    NumberKey("JMod=", &Modifiers::JMod),
    NumberKey("I22Mod=", &Modifiers::I22Mod),
    NumberKey("I33Mod=", &Modifiers::I33Mod),
    NumberKey("MassMod=", &Modifiers::MassMod),
    NumberKey("WeightMod=", &Modifiers::WeightMod),
};

using Assign = S2kFrameSectionAssignRow;
constexpr S2kField<Assign> kFrameSectionAssignKeys[] = {
    TextKey("Frame=", &Assign::Frame),
    TextKey("SectionType=", &Assign::SectionType),
    TextKey("AutoSelect=", &Assign::AutoSelect),
    TextKey("AnalSect=", &Assign::AnalSect),
    TextKey("DesignSect=", &Assign::DesignSect),
    TextKey("MatProp=", &Assign::MatProp),
};

using Section = S2kFrameSectionRow;
constexpr S2kField<Section> kFrameSectionKeys[] = {
    TextKey("SectionName=", &Section::SectionName),
    TextKey("Material=", &Section::Material),
    TextKey("Shape=", &Section::Shape),
    NumberKey("t3=", &Section::t3),
    NumberKey("t2=", &Section::t2),
    NumberKey("tf=", &Section::tf),
    NumberKey("tw=", &Section::tw),
    NumberKey("t2b=", &Section::t2b),
    NumberKey("tfb=", &Section::tfb),
    NumberKey("dis=", &Section::dis),
    NumberKey("Area=", &Section::Area),
    NumberKey("TorsConst=", &Section::TorsConst),
    NumberKey("I33=", &Section::I33),
    NumberKey("I22=", &Section::I22),
    NumberKey("AS2=", &Section::AS2),
    NumberKey("AS3=", &Section::AS3),
    NumberKey("S33=", &Section::S33),
    NumberKey("S22=", &Section::S22),
    NumberKey("Z33=", &Section::Z33),
    NumberKey("Z22=", &Section::Z22),
    NumberKey("R33=", &Section::R33),
    NumberKey("R22=", &Section::R22),
    TextKey("Color=", &Section::Color),
    NumberKey("TotalWt=", &Section::TotalWt),
    NumberKey("TotalMass=", &Section::TotalMass),
    NumberKey("AMod=", &Section::AMod),
    NumberKey("A2Mod=", &Section::A2Mod),
    NumberKey("A3Mod=", &Section::A3Mod),
    NumberKey("JMod=", &Section::JMod),
    NumberKey("I2Mod=", &Section::I2Mod),
    NumberKey("I3Mod=", &Section::I3Mod),
    NumberKey("MMod=", &Section::MMod),
    NumberKey("WMod=", &Section::WMod),
    TextKey("SectInFile=", &Section::SectInFile),
    TextKey("FileName=", &Section::FileName),
};

using Nonprismatic = S2kFrameNonprismaticRow;
constexpr S2kField<Nonprismatic> kFrameNonprismaticKeys[] = {
    TextKey("SectionName=", &Nonprismatic::SectionName),
    IntegerKey("NumSegments=", &Nonprismatic::NumSegments),
    IntegerKey("SegmentNum=", &Nonprismatic::SegmentNum),
    TextKey("StartSect=", &Nonprismatic::StartSect),
    TextKey("EndSect=", &Nonprismatic::EndSect),
    TextKey("LengthType=", &Nonprismatic::LengthType),
    NumberKey("AbsLength=", &Nonprismatic::AbsLength),
    NumberKey("VarLength=", &Nonprismatic::VarLength),
    TextKey("EI33Var=", &Nonprismatic::EI33Var),
    TextKey("EI22Var=", &Nonprismatic::EI22Var),
};

using Material1 = S2kMaterial1Row;
constexpr S2kField<Material1> kMaterial1Keys[] = {
    TextKey("Material=", &Material1::Material),
    TextKey("Type=", &Material1::Type),
    TextKey("DesignType=", &Material1::DesignType),
    NumberKey("UnitMass=", &Material1::UnitMass),
    NumberKey("UnitWeight=", &Material1::UnitWeight),
    NumberKey("E=", &Material1::E),
    NumberKey("U=", &Material1::U),
    NumberKey("A=", &Material1::A),
    IntegerKey("NumAdvance=", &Material1::NumAdvance),
    TextKey("Color=", &Material1::Color),
};

using Material2 = S2kMaterial2Row;
constexpr S2kField<Material2> kMaterial2Keys[] = {
    TextKey("Material=", &Material2::Material),
    NumberKey("Temp=", &Material2::Temp),
    NumberKey("E1=", &Material2::E1),
    NumberKey("E2=", &Material2::E2),
    NumberKey("E3=", &Material2::E3),
    NumberKey("G12=", &Material2::G12),
    NumberKey("G13=", &Material2::G13),
    NumberKey("G23=", &Material2::G23),
    NumberKey("U12=", &Material2::U12),
    NumberKey("U13=", &Material2::U13),
    NumberKey("U23=", &Material2::U23),
    NumberKey("U14=", &Material2::U14),
    NumberKey("U24=", &Material2::U24),
    NumberKey("U34=", &Material2::U34),
    NumberKey("U15=", &Material2::U15),
    NumberKey("U25=", &Material2::U25),
    NumberKey("U35=", &Material2::U35),
    NumberKey("U45=", &Material2::U45),
    NumberKey("U16=", &Material2::U16),
    NumberKey("U26=", &Material2::U26),
    NumberKey("U36=", &Material2::U36),
    NumberKey("U46=", &Material2::U46),
    NumberKey("U56=", &Material2::U56),
    NumberKey("A1=", &Material2::A1),
    NumberKey("A2=", &Material2::A2),
    NumberKey("A3=", &Material2::A3),
    NumberKey("A12=", &Material2::A12),
    NumberKey("A13=", &Material2::A13),
    NumberKey("A23=", &Material2::A23),
};

}  // namespace

int CProperties::ParseFrameInsertion() { return engine.ParseRows(kFrameInsertionKeys, source_.FrameInsertions); }
int CProperties::ParseFrameModifiers() { return engine.ParseRows(kFrameModifiersKeys, source_.FrameModifiers); }
int CProperties::ParseFrameSectionAssign() {
  return engine.ParseRows(kFrameSectionAssignKeys, source_.FrameSectionAssigns);
}
int CProperties::ParseFrameSection() { return engine.ParseRows(kFrameSectionKeys, source_.FrameSections); }
int CProperties::ParseFrameNonprismatic() {
  return engine.ParseRows(kFrameNonprismaticKeys, source_.FrameNonprismatic);
}
int CProperties::ParseMaterial1() { return engine.ParseRows(kMaterial1Keys, source_.Material1); }
int CProperties::ParseMaterial2() { return engine.ParseRows(kMaterial2Keys, source_.Material2); }

const std::vector<S2kTableParser>& PropertyTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {234, RunStep<&CProperties::ParseFrameInsertion>},
      {248, RunStep<&CProperties::ParseFrameModifiers>},
      {252, RunStep<&CProperties::ParseFrameSectionAssign>},
      {253, RunStep<&CProperties::ParseFrameSection>},
      {257, RunStep<&CProperties::ParseFrameNonprismatic>},
      {381, RunStep<&CProperties::ParseMaterial1>},
      {382, RunStep<&CProperties::ParseMaterial2>},
  };
  return parsers;
}
