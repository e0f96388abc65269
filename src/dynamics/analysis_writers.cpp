// The writers of *LOADTOMASS, *ANAL-CTRL, *SPEC-CTRL, *EIGEN-CTRL and *BUCK-CTRL.
#include "dynamics/analysis_controls.h"
#include "frame/converter.h"

int CAnalysisControls::WriteBuckCtrl() {
  // Two empty lines stand here in every file, buckling or not.
  engine.WriteText("\n\n");
  return 1;
}
