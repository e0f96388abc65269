// Rows and records of analysis cases, the mass source and the analysis
// controls.
#pragma once

#include <string>
#include <vector>

/// Table 102: an analysis case.
struct S2kAnalysisRow {
  std::string Case, Type, InitialCond, ModalCase;
};

/// Table 171: modes and tolerance of a buckling case.
struct S2kCaseBuckling1Row {
  std::string Case;
  double NumBuckMode = 1, EigenTol = 0.001;
};

/// Table 172: a load of a buckling case.
struct S2kCaseBuckling2Row {
  std::string Case, LoadType = "Load case", LoadName;
  double LoadSF = 0, TransAccSF = 0;
};

/// Table 178: the modes of a modal case.
struct S2kCaseModal1Row {
  std::string Case, ModeType;
  double MaxNumModes = 0, MinNumModes = 0, EigenShift = 0, EigenCutOff = 0, EigenTol = 0;
};

/// Table 180: a starting load of Ritz vectors.
struct S2kCaseModal3Row {
  std::string Case, LoadType, LoadName;
  double MaxCycles = 0, TargetPar = 0;
};

/// Table 190: the combination rules of a spectrum case.
struct S2kCaseSpectrum1Row {
  std::string Case, ModalCombo;
  double GMCf1 = 0, GMCf2 = 0;
  std::string DirCombo;
  double ABSSF = 0;
  std::string DampingType;
  double ConstDamp = 0, FuncDamp = 0;
};

/// Table 371: the mass source.
struct S2kMassSourceRow {
  std::string MassFrom, LoadCase;
  double Multiplier = 0;
};

/// *EIGEN-CTRL. KIND, CASE and iNOG grow together, one entry per Ritz load.
struct TvtEigenCtrlRec {
  std::string TYPE;
  int Defined = 0;
  int iFREQ = 3;
  int iITER = 20;
  int iDIM = 0;
  double TOL = 1e-06;
  std::string bINCNL = "NO";
  int iGNUM = 1;
  std::vector<std::string> KIND, CASE;
  std::vector<int> iNOG;
};

/// *SPEC-CTRL.
struct TvtSpecCtrlRec {
  std::string TYPE;
  double DAMPING = 0;
  int Defined = 0;
  std::string bADDSIGN = "NO";
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
  std::string bARDC = "YES", bANRC = "YES";
  int iTYPE = 0, iITER = 30, iSITER = 5;
  double TOL = 0.001;
};

/// *LOADTOMASS.
struct TvtLoadtomassRec {
  std::string DIR = "XYZ";
  std::string bNODAL = "YES", bBEAM = "YES", bFLOOR = "YES", bPRES = "YES";
  double GRAV = 9.806;
  std::vector<std::string> LCNAME;
  std::vector<double> FACTOR;
  int Defined = 0;
};
