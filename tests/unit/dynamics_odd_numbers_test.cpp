// Analysis and history cases whose numbers are out of every range: infinite,
// NaN (inf - inf), beyond 32 bits. The run finishes and writes each block.
#include <gtest/gtest.h>

#include "test_support.h"

namespace {

const char* const kOddDynamics = R"(TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=M   Type=LinModal   InitialCond=Zero
   Case=B   Type=LinBuckling   InitialCond=Zero
   Case=S   Type=LinRespSpec   InitialCond=Zero
   Case=H   Type=NonModHist   InitialCond=Zero
   Case=D   Type=NonDirHist   InitialCond=Zero

TABLE:  "CASE - MODAL 1 - GENERAL"
   Case=M   ModeType=Ritz   MaxNumModes=1E999-1E999,0

TABLE:  "CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ"
   Case=M   LoadType="Load case"   LoadName=A   MaxCycles=1E999-1E999,0
   Case=M   LoadType="Load case"   LoadName=B   MaxCycles=-1E999
   Case=M   LoadType="Load case"   LoadName=C   MaxCycles=0

TABLE:  "CASE - BUCKLING 1 - GENERAL"
   Case=B   NumBuckMode=1E300   EigenTol=1E999

TABLE:  "CASE - BUCKLING 2 - LOAD ASSIGNMENTS"
   Case=B   LoadName=A   LoadSF=1E999-1E999,0

TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=S   ModalCombo=CQC   ConstDamp=-1E999

TABLE:  "CASE - MODAL HISTORY 1 - GENERAL"
   Case=H   OutSteps=1E999   StepSize=1E999-1E999,0   DampingType=Constant   ConstDamp=1E999

TABLE:  "CASE - MODAL HISTORY 5 - DAMPING OVERWRITES"
   Case=H   Mode=99999999999999999999   Damping=1E999

TABLE:  "CASE - MODAL HISTORY 6 - NONLINEAR PARAMETERS"
   Case=H   DTMax=1E999   ForceItMax=-1E999

TABLE:  "CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS"
   Case=H   LoadType=Accel   LoadName="Accel U2"   Function=F   TransAccSF=1E999-1E999,0

TABLE:  "CASE - DIRECT HISTORY 1 - GENERAL"
   Case=D   OutSteps=-1E999   StepSize=0

TABLE:  "CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING"
   Case=D   SpecifyType=Direct   MassCoeff=1E999   StiffCoeff=1E999-1E999,0

TABLE:  "CASE - DIRECT HISTORY 5 - NONLINEAR PARAMETERS"
   Case=D   DTMax=-1   MaxIter=1E999

TABLE:  "CASE - DIRECT HISTORY 2 - LOAD ASSIGNMENTS"
   Case=D   LoadType="Load case"   LoadName=A   Function=F   LoadSF=1E999

TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=F   Time=1E999-1E999,0   Value=-1E999

END TABLE DATA
)";

TEST(Robustness, OddNumbersInAnalysisAndHistoryCasesConvert) {
  TempFolder folder;
  RecordingUserInterface ui;
  ASSERT_EQ(0, ConvertText(folder, kOddDynamics, ui));
  EXPECT_EQ(std::vector<std::string>{"message IDS_S2KV8_Export_must_be_executed"}, ui.messages);
  const std::string tvt = ReadFile(folder / "model.tvt");
  for (const char* command : {"*ANAL-CTRL", "*SPEC-CTRL", "*EIGEN-CTRL", "*BUCK-CTRL", "*TFUNCTION", "*THLDCASE",
                              "*GROUND-ACC", "*DYN-SLOAD"})
    EXPECT_NE(std::string::npos, tvt.find(command)) << command;
  // -2147483648 / -1 has no whole result: no output step.
  const std::size_t caseD = tvt.find("\tNAME=D,      \n\t\t");
  ASSERT_NE(std::string::npos, caseD) << tvt;
  EXPECT_EQ(",    -1,     0,     1", tvt.substr(tvt.find(',', caseD + 16), 21)) << tvt;
  EXPECT_EQ(tvt.size() - 8, tvt.rfind("*ENDDATA"));
}

}  // namespace
