// CTvtModel: the converted model, one keyed table per kind of TVT data.
#pragma once

#include <string>


class CS2kModel;

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

class CTvtModel {
 public:
  explicit CTvtModel(const CS2kModel& source) : sourceModel(source) {}

  void Reset() { StructType = {}; }

  const CS2kModel& sourceModel;
  TvtStructTypeRec StructType;
  double ZeroTolerance = 1e-15;
};
