// The load blocks of each static case, in the order they stand in the file.
#include "frame/converter.h"
#include "loads/auto_loads.h"
#include "loads/frame_loads.h"
#include "loads/joint_loads.h"
#include "loads/load_cases.h"
#include "loads/prestress_loads.h"
#include "loads/surface_loads.h"
#include "loads/temperature_loads.h"

namespace {

/// A block writer; one with an automatic load type runs only for a case of
/// that type that owns an automatic load.
struct SCaseBlockWriter {
  CaseStepFunction write;
  const char* autoLoadType = nullptr;
};

const SCaseBlockWriter kCaseBlockWriters[] = {
    {RunCaseStep<&CJointLoads::WriteConload>},
    {RunCaseStep<&CLoadCases::WriteSelfWeight>},
    {RunCaseStep<&CFrameLoads::WriteBeamload>},
    {RunCaseStep<&CTemperatureLoads::WriteEltemper>},
    {RunCaseStep<&CTemperatureLoads::WriteNdtemper>},
    {RunCaseStep<&CTemperatureLoads::WriteThergrad>},
    {RunCaseStep<&CJointLoads::WriteSpdisp>},
    {RunCaseStep<&CPrestressLoads::WritePrestress>},
    {RunCaseStep<&CSurfaceLoads::WritePressure>},
    {RunCaseStep<&CAutoLoads::WriteWind>, "W"},
    {RunCaseStep<&CAutoLoads::WriteSeis>, "E"},
};

}  // namespace

int CLoadCases::WriteLoadCaseBlocks() {
  staticCases_.Walk([&](int, const TvtStldcaseRec& rec) {
    for (const SCaseBlockWriter& writer : kCaseBlockWriters) {
      if (writer.autoLoadType && (rec.LCTYPE != writer.autoLoadType || !rec.bAutoLoad)) continue;
      writer.write(engine, rec.LCNAME);
    }
  });
  return 1;
}
