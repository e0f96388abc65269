// The step tables: which subject does what, in the order of the run. Frames
// refer to nodes, load cases and sections come after the elements that use
// them; element numbers exist only once *ELEMENT is written, so the commands
// that print them follow it.
#include "frame/steps.h"

#include "dynamics/analysis_controls.h"
#include "dynamics/links.h"
#include "dynamics/moving_loads.h"
#include "dynamics/response_spectrum.h"
#include "dynamics/time_history.h"
#include "elements/elements.h"
#include "elements/properties.h"
#include "elements/springs.h"
#include "frame/converter.h"
#include "geometry/geometry.h"
#include "geometry/masses.h"
#include "loads/frame_loads.h"
#include "loads/joint_loads.h"
#include "loads/load_cases.h"
#include "loads/load_combinations.h"
#include "loads/prestress_loads.h"
#include "loads/surface_loads.h"
#include "loads/temperature_loads.h"
#include "s2k/table_parsers.h"
#include "tvt/structure_type.h"

namespace {

constexpr SRunStep kConversionSteps[] = {
    // 1 joints; the joint number map comes last, once all joints are known
    {1, RunStep<&CGeometry::ConvertJoints>},
    {1, RunStep<&CGeometry::ConvertRestraints>},
    {1, RunStep<&CGeometry::ConvertJointLocalAxes>},
    {1, RunStep<&CSprings::ConvertJointSprings>},
    {1, RunStep<&CSprings::ConvertCoupledSprings>},
    {1, RunStep<&CJointLoads::ConvertJointForces>},
    {1, RunStep<&CMasses::ConvertJointMasses>},
    {1, RunStep<&CGeometry::ConvertConstraints>},
    {1, RunStep<&CJointLoads::ConvertJointGroundDisplacements>},
    {1, RunStep<&CGeometry::BuildJointNumberMapIfRenumbered>},
    // 2 frames
    {2, RunStep<&CFrameLoads::ConvertFrameGravity, 1>},
    {2, RunStep<&CElements::ConvertFrames>},
    {2, RunStep<&CElements::ConvertFrameReleases>},
    {2, RunStep<&CFrameLoads::ConvertFramePointLoads>},
    {2, RunStep<&CFrameLoads::ConvertFrameDistributedLoads>},
    {2, RunStep<&CPrestressLoads::ConvertFramePrestress>},
    {2, RunStep<&CPrestressLoads::ConvertFrameInitialForces>},
    {2, RunStep<&CTemperatureLoads::ConvertTemperatureLoads, 1>},
    {2, RunStep<&CElements::ConvertFrameOffsets>},
    {2, RunStep<&CSprings::ConvertLineSprings, 1>},
    {2, RunStep<&CMasses::ConvertFrameMasses>},
    // 3 links
    {3, RunStep<&CLinks::ConvertLinks>},
    // 4 areas
    {4, RunStep<&CElements::ConvertAreas>},
    {4, RunStep<&CSurfaceLoads::ConvertAreaUniformLoads>},
    {4, RunStep<&CSurfaceLoads::ConvertAreaSurfaceLoads>},
    {4, RunStep<&CFrameLoads::ConvertFrameGravity, 2>},
    {4, RunStep<&CMasses::ConvertAreaMasses>},
    {4, RunStep<&CSprings::ConvertLineSprings, 2>},
    {4, RunStep<&CTemperatureLoads::ConvertTemperatureLoads, 2>},
    // 5 solids
    {5, RunStep<&CElements::ConvertSolids>},
    {5, RunStep<&CTemperatureLoads::ConvertTemperatureLoads, 3>},
    // 6 load cases: self weight
    {6, RunStep<&CLoadCases::ConvertSelfWeight>},
    // 7 materials
    {7, RunStep<&CProperties::ConvertMaterials>},
    // 8 frame sections, nonprismatic sections, scale factors
    {8, RunStep<&CProperties::ConvertFrameSections>},
    // 9 area sections to thickness
    {9, RunStep<&CElements::ConvertAreaSections>},
    // 10 lanes; 11 vehicles of table 162; 12 vehicles of tables 163 and 164;
    // 13 vehicle classes; 14 moving load cases
    {10, RunStep<&CMovingLoads::ConvertLanes>},
    {11, RunStep<&CMovingLoads::ConvertStandardVehicles>},
    {12, RunStep<&CMovingLoads::ConvertGeneralVehicles>},
    {13, RunStep<&CMovingLoads::ConvertVehicleClasses>},
    {14, RunStep<&CMovingLoads::ConvertMovingCases>},
    {15, RunStep<&CResponseSpectrum::ConvertSpectrumFunctions>},
    {16, RunStep<&CResponseSpectrum::ConvertSpectrumLoads>},
    // 17 analysis cases, mass source, *STRUCTYPE
    {17, RunStep<&CAnalysisControls::ConvertAnalysisCases>},
    {17, RunStep<&CStructureType::ConvertStructType>},
    // 18 *ANAL-CTRL
    {18, RunStep<&CAnalysisControls::ConvertAnalysisControl>},
    // 19 load combinations
    {19, RunStep<&CLoadCombinations::ConvertCombinations>},
};

constexpr SRunStep kWriterSteps[] = {
    {1, RunStep<&CGeometry::WriteVersionAndUnits>},  // *VERSION, *UNIT
    {2, RunStep<&CStructureType::WriteStructType>},       // *STRUCTYPE
    {3, RunStep<&CGeometry::WriteNodes>},            // *NODE
    {4, RunStep<&CGeometry::WriteLocalAxes>},        // *LOCALAXIS
    {5, RunStep<&CElements::WriteElements>},         // *ELEMENT
    {6, RunStep<&CProperties::WriteMaterials>},        // *MATERIAL
    {7, RunStep<&CProperties::WriteSections>},         // *SECTION
    {8, RunStep<&CProperties::WriteSectionScales>},    // *SECT-SCALE
    {9, RunStep<&CElements::WriteThicknesses>},      // *THICKNESS
    {10, RunStep<&CGeometry::WriteConstraints>},     // *CONSTRAINT
    {11, RunStep<&CSprings::WriteSprings>},         // *SPRING
    {12, RunStep<&CSprings::WriteGeneralSprings>},  // *GSPRING, *GSPRTYPE
    {13, RunStep<&CLoadCases::WriteStaticLoads>},  // *STLDCASE and the load blocks of each case
    {14, RunStep<&CMasses::WriteNodalMasses>},     // *NODALMASS
    {15, RunStep<&CElements::WriteOffsets>},         // *OFFSET
    {16, RunStep<&CElements::WriteFrameReleases>},   // *FRAME-RLS
    {17, RunStep<&CPrestressLoads::WriteIniforce>},  // *INIFORCE
    {18, RunStep<&CLinks::WriteElasticLinks>},  // *ELASTICLINK
    {19, RunStep<&CLinks::WriteNlProps>},       // *NL-PROP
    {20, RunStep<&CLinks::WriteNlLinks>},       // *NL-LINK
    {21, RunStep<&CGeometry::WriteRigidLinks>},      // *RIGIDLINK
    {22, RunStep<&CMovingLoads::WriteLanes>},      // *LINELANE
    {23, RunStep<&CMovingLoads::WriteVehicles>},   // *VEHICLE
    {24, RunStep<&CMovingLoads::WriteVclasses>},   // *VCLASS
    {25, RunStep<&CMovingLoads::WriteMvldcases>},  // *MVLDCASE, *MOVE-CTRL
    {26, RunStep<&CResponseSpectrum::WriteSfunctions>},  // *SFUNCTION
    {27, RunStep<&CResponseSpectrum::WriteSpldcases>},   // *SPLDCASE
    {28, RunStep<&CAnalysisControls::WriteLoadToMass>},  // *LOADTOMASS
    {29, RunStep<&CAnalysisControls::WriteAnalCtrl>},    // *ANAL-CTRL
    {30, RunStep<&CAnalysisControls::WriteSpecCtrl>},    // *SPEC-CTRL
    {31, RunStep<&CAnalysisControls::WriteEigenCtrl>},   // *EIGEN-CTRL
    {32, RunStep<&CAnalysisControls::WriteBuckCtrl>},  // *BUCK-CTRL
    {33, RunStep<&CTimeHistory::WriteTfunctions>},  // *TFUNCTION
    {34, RunStep<&CTimeHistory::WriteThldcases>},   // *THLDCASE
    {35, RunStep<&CTimeHistory::WriteGroundAcc>},   // *GROUND-ACC
    {36, RunStep<&CTimeHistory::WriteDynSloads>},   // *DYN-SLOAD
    {37, RunStep<&CLoadCombinations::WriteLoadcomb>},  // *LOADCOMB
};

}  // namespace

std::span<const SRunStep> ConversionSteps() { return kConversionSteps; }
std::span<const SRunStep> WriterSteps() { return kWriterSteps; }

std::span<const std::vector<S2kTableParser>* const> TableParserLists() {
  static const std::vector<S2kTableParser>* const lists[] = {
      &FrameTableParsers(),    &StoredTableParsers(),  &GeometryTableParsers(), &MassTableParsers(),
      &PropertyTableParsers(), &ElementTableParsers(), &SpringTableParsers(),
      &LoadCaseTableParsers(),
      &JointLoadTableParsers(),
      &FrameLoadTableParsers(),
      &PrestressTableParsers(),
      &TemperatureTableParsers(),
      &SurfaceTableParsers(),
      &AnalysisTableParsers(),
      &LinkTableParsers(),
      &HistoryTableParsers(),
      &MovingLoadTableParsers(),
      &CombinationTableParsers(),
      &AutoLoadTableParsers(),
      &SpectrumTableParsers(),
  };
  return lists;
}
