// CStructureType: the active degrees of freedom (table 101) and *STRUCTYPE.
#pragma once

#include <string>

#include "frame/subject.h"

/// The six flags of the active degrees of freedom (table 101).
struct S2kActiveDofRec {
  int UX = 0, UY = 0, UZ = 0, RX = 0, RY = 0, RZ = 0;
};

/// The record of *STRUCTYPE.
struct TvtStructTypeRec {
  int iSTYP = 0;
  int iSMAS = 0;
  double GRAV = 9.806;
  double TEMPER = 0;
  std::string bALIGNBEAM = "NO";
  std::string bALIGNSLAB = "NO";
  int present = 0;
};

class CStructureType : public CSubject {
 public:
  using CSubject::CSubject;

  int ParseActiveDof();  // 101
  /// Fills the record of *STRUCTYPE from the active degrees of freedom.
  int ConvertStructType();
  int WriteStructType();
  /// iSMAS as the record holds it now: its default until the record is filled.
  int MassKind() const { return structType_.iSMAS; }

 private:
  S2kActiveDofRec activeDof_;
  TvtStructTypeRec structType_;
};
