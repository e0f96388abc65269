// Rows and records of link objects and link properties.
#pragma once

#include "s2k/text.h"
#include <array>
#include <string>

/// Table 203: the two joints of a link object.
struct S2kConnectivityLinkRow {
  CText Link, JointI, JointJ;
  double Length = 0;
};

/// Table 504: a link object, its type and property.
struct S2kLinkSummaryRow {
  CText Link, LinkType, LinkJoint, LinkProp;
  int LocalAxes = 0, GravLoads = 0;
  double Length = 0, CentroidX = 0, CentroidY = 0, CentroidZ = 0;
};

/// Table 351: gravity on links; stored, never read.
struct S2kLinkGravityRow {
  CText Link, LoadCase, CoordSys;
  double MultiplierX = 0, MultiplierY = 0, MultiplierZ = 0;
};

/// Table 352: the angle of a link's local axes.
struct S2kLinkLocalAxes1Row {
  CText Link;
  double Angle = 0;
  int AdvanceAxes = 0;
};

/// Table 353: a link's advanced local axes.
struct S2kLinkLocalAxes2Row {
  CText Link, LocalPlane, AxOption1, AxCoordSys, AxCoordDir, AxVecJt1, AxVecJt2, PlOption1, PlCoordSys,
      CoordDir1, CoordDir2, PlVecJt1, PlVecJt2;
  double AxVecX = 0, AxVecY = 0, AxVecZ = 0, PlVecX = 0, PlVecY = 0, PlVecZ = 0;
};

/// Table 354: a link property and its kind.
struct S2kLinkPropertyRow {
  CText Link, LinkType;
  double Mass = 0, Weight = 0, RotInert1 = 0, RotInert2 = 0, RotInert3 = 0, PDM2I = 0, PDM2J = 0, PDM3I = 0,
         PDM3J = 0, Color = 0;
};

/// Table 355: one degree of freedom of a linear property. Link= is the
/// property's name.
struct S2kLinkLinearRow {
  CText Link, DOF;
  double TransKE = 0, RotKE = 0, TransCE = 0, RotCE = 0, DJ = 0;
};

/// Tables 356 to 363: one degree of freedom of a property of one kind; each
/// table reads the keys of its kind.
struct S2kLinkDofRow {
  CText Link, DOF;
  int NonLinear = 0;
  double TransKE = 0, RotKE = 0, TransCE = 0, RotCE = 0, DJ = 0;
  double TransK = 0, RotK = 0, TransC = 0, RotC = 0, CExp = 0;  // damper
  double TransOpen = 0, RotOpen = 0;                            // gap, hook
  double TransYield = 0, RotYield = 0, Ratio = 0, YieldExp = 0;  // isolator, Wen
  double Slow = 0, Fast = 0, Rate = 0, Radius = 0;              // friction isolator
  CText Point;                                           // multi-linear
  double Force = 0, Displ = 0, Moment = 0, Rotation = 0;
};

/// Table 364: stored, never read.
struct S2kLinkPropertySummaryRow {
  CText Link, LinkType, LinkJoint, LinkProp;
};

/// A row of *ELASTICLINK.
struct TvtElasticlinkRec {
  CText LinkName;
  CText LINK = "GEN";
  CText iNODE1, iNODE2;
  double ANGLE = 0;
  double SDx = 0, SDy = 0, SDz = 0, SRx = 0, SRy = 0, SRz = 0;
  CText bSHEAR = "NO";
  double DRy = 0, DRz = 0;
  CText GROUP;
};

/// A row of *NL-LINK.
struct TvtNlLinkRec {
  CText LinkName, iNODE1, iNODE2, PROP;
  double ANGLE = 0;
  CText GROUP;
};

/// One degree of freedom of a nonlinear property, DX to RZ.
struct TvtNlPropSlot {
  CText bLD = "NO", bND = "NO";
  double STIF = 0, DSTIFF = 0, DAMP = 0, DEXP = 0, EFFDAMP = 0, STIFF = 0, OPEN = 0, YSTR = 0, PYS_RATIO = 0,
         YEXP = 0, PA = 0, PB = 0, FCS = 0, FCF = 0, RP = 0, RADIUS = 0;
};

/// A property of *NL-PROP.
struct TvtNlPropRec {
  CText NAME, TYPE;
  CText bSSL = "NO";
  CText DESC;
  double TW = 0, DY = 0, DZ = 0;
  CText bRIGDBR = "NO";
  double BSTIFF = 0;
  std::array<TvtNlPropSlot, 6> slot;
};
