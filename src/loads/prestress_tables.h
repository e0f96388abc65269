// Rows and records of tendon prestress and initial forces of frames.
#pragma once

#include "s2k/text.h"
#include <string>

/// Table 245: an axial force for geometric stiffness.
struct S2kFramePDeltaRow {
  CText Frame, CoordSys, Direction;
  double Force = 0;
};

/// Table 246: a draped tendon in a frame.
struct S2kFramePatternsRow {
  CText Frame;
  double Tension = 0, DrapeI = 0, DrapeJ = 0, DrapeCenter = 0;
};

/// Table 247: the load case that holds a frame's tendon.
struct S2kFrameMultipliersRow {
  CText Frame, LoadCase;
  double Multiplier = 0;
};

/// A row of *PRESTRESS; the element number comes at writing.
struct TvtPrestressRec {
  CText ELEM_LIST;
  CText LTYPE;
  CText LCNAME;
  double TENS = 0, DI = 0, DM = 0, DJ = 0;
};

/// A row of *INIFORCE.
struct TvtIniforceRec {
  CText ELEM_LIST;
  CText DIR;
  double FORCE = 0;
};
