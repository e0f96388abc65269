// Rows and records of analysis cases, the mass source and the analysis
// controls.
#pragma once

#include "s2k/text.h"
#include <string>
#include <vector>

/// Table 102: an analysis case.
struct S2kAnalysisRow {
  CText Case, Type, InitialCond, ModalCase;
};

/// Table 171: modes and tolerance of a buckling case.
struct S2kCaseBuckling1Row {
  CText Case;
  double NumBuckMode = 1, EigenTol = 0.001;
};

/// Table 172: a load of a buckling case.
struct S2kCaseBuckling2Row {
  CText Case, LoadType = "Load case", LoadName;
  double LoadSF = 0, TransAccSF = 0;
};

/// Table 178: the modes of a modal case.
struct S2kCaseModal1Row {
  CText Case, ModeType;
  double MaxNumModes = 0, MinNumModes = 0, EigenShift = 0, EigenCutOff = 0, EigenTol = 0;
};

/// Table 180: a starting load of Ritz vectors.
struct S2kCaseModal3Row {
  CText Case, LoadType, LoadName;
  double MaxCycles = 0, TargetPar = 0;
};

/// Table 190: the combination rules of a spectrum case.
struct S2kCaseSpectrum1Row {
  CText Case, ModalCombo;
  double GMCf1 = 0, GMCf2 = 0;
  CText DirCombo;
  double ABSSF = 0;
  CText DampingType;
  double ConstDamp = 0, FuncDamp = 0;
};

/// Table 371: the mass source.
struct S2kMassSourceRow {
  CText MassFrom, LoadCase;
  double Multiplier = 0;
};

/// *EIGEN-CTRL. KIND, CASE and iNOG grow together, one entry per Ritz load.
struct TvtEigenCtrlRec {
  CText TYPE;
  int Defined = 0;
  int iFREQ = 3;
  int iITER = 20;
  int iDIM = 0;
  double TOL = 1e-06;
  CText bINCNL = "NO";
  int iGNUM = 1;
  std::vector<std::string> KIND, CASE;
  std::vector<int> iNOG;
};

/// *SPEC-CTRL.
struct TvtSpecCtrlRec {
  CText TYPE;
  double DAMPING = 0;
  int Defined = 0;
  CText bADDSIGN = "NO";
};

/// *BUCK-CTRL.
struct TvtBuckCtrlRec {
  int iMODENUM = 0;
  int iITER = 30;
  double TOL = 0;
  std::vector<std::string> LCNAME;
  std::vector<double> FACT;
};

/// *ANAL-CTRL.
struct TvtAnalCtrlRec {
  CText bARDC = "YES", bANRC = "YES";
  int iTYPE = 0, iITER = 30, iSITER = 5;
  double TOL = 0.001;
};

/// *LOADTOMASS.
struct TvtLoadtomassRec {
  CText DIR = "XYZ";
  CText bNODAL = "YES", bBEAM = "YES", bFLOOR = "YES", bPRES = "YES";
  double GRAV = 9.806;
  std::vector<std::string> LCNAME;
  std::vector<double> FACTOR;
  int Defined = 0;
};
