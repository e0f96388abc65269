// The writers of *ELASTICLINK, *NL-PROP and *NL-LINK.
#include "dynamics/links.h"
#include "frame/converter.h"
#include "geometry/geometry.h"

int CLinks::WriteElasticLinks() {
  if (elasticLinks_.Empty()) return 1;
  // Behind the test for rows: single-joint links alone bring no message.
  if (singleJointLinkSeen_) engine.ShowMessage("IDS_S2KV8_LINK_Sinlge_Joint");
  engine.WriteText("%s\n", "*ELASTICLINK");
  engine.WriteText("; iNODE1, iNODE2, LINK, ANGLE, SDx, SDy, SDz, SRx, SRy, SRz, bSHEAR, DRy, DRz, GROUP   ; GEN\n");
  engine.WriteText("; iNODE1, iNODE2, LINK, ANGLE, bSHEAR, DRy, DRz, GROUP                                 ; RIGID\n");
  engine.WriteText("; iNODE1, iNODE2, LINK, ANGLE, SDx, bSHEAR, DRy, DRz, GROUP                            ; TENS,COMP\n");
  const CGeometry& geometry = engine.Get<CGeometry>();
  elasticLinks_.Walk([&](int, const TvtElasticlinkRec& rec) {
    engine.WriteText("\t%d, %5d, %5s, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5s, %5g, %5g, %5s\n",
                     geometry.NodeNumberOf(rec.iNODE1), geometry.NodeNumberOf(rec.iNODE2), rec.LINK.c_str(), rec.ANGLE,
                     rec.SDx, rec.SDy, rec.SDz, rec.SRx, rec.SRy, rec.SRz, rec.bSHEAR.c_str(), rec.DRy, rec.DRz,
                     rec.GROUP.c_str());
  });
  engine.WriteText("\n");
  return 1;
}

int CLinks::WriteNlProps() {
  if (nlProps_.Empty()) return 1;
  if (multiLinearLinkSeen_) engine.ShowMessage("IDS_S2KV8_LINK_Mult_Lin_Not_Convert");
  if (kinematicLinkSeen_) engine.ShowMessage("IDS_S2KV8_LINK_Mult_Kine_Not_Convert");
  engine.WriteText("%s\n", "*NL-PROP    ; Nonlinear Link Property");
  static const char* const kComments[] = {
      "; NAME, TYPE, TW, bSSL, DY, DZ, DESC",
      "; bLDX, DX, bNDX, [NL_PROP]",
      "; bLDY, DY, bNDY, [NL_PROP]",
      "; bLDZ, DZ, bNDZ, [NL_PROP]",
      "; bLRX, RX, bNRX, [NL_PROP]",
      "; bLRY, RY, bNRY, [NL_PROP]",
      "; bLRZ, RZ, bNRZ, [NL_PROP]",
      "; [NL_PROP] : DSTIFF, DAMP, DEXP, bRIGDBR, BSTIFF, EFFDAMP    ; Visco-elastic Damper Type",
      "; [NL_PROP] : STIFF, OPEN, EFFDAMP                            ; Gap Type or Hook Type",
      "; [NL_PROP] : STIFF, YSTR, PYS_RATIO, YEXP, PA, PB, EFFDAMP   ; Hysteretic System Type",
      "; [NL_PROP] : STIFF, YSTR, PYS_RATIO, PA, PB, EFFDAMP         ; Lead Rubber Bearing Type",
      "; [NL_PROP] : STIFF, FCS, FCF, RP, RADIUS, PA, PB, EFFDAMP    ; Friction Pendulum System Type",
  };
  for (const char* comment : kComments) engine.WriteText("%s\n", comment);
  nlProps_.Walk([&](int, const TvtNlPropRec& rec) {
    engine.WriteText("\t%s, %5s, %5g, %5s, %5g, %5g, %5s\n", rec.NAME.c_str(), rec.TYPE.c_str(), rec.TW,
                     rec.bSSL.c_str(), rec.DY, rec.DZ, rec.DESC.c_str());
    for (int k = 0; k < 6; ++k) {
      const TvtNlPropSlot& s = rec.slot[k];
      engine.WriteText("\t\t%s, %5g, %5s", s.bLD.c_str(), s.STIF, s.bND.c_str());
      if (s.bND != "YES") {
        engine.WriteText("\n");
        continue;
      }
      // The long isolator forms go to the DZ and RX lines, k counting from 0.
      const bool longForm = k == 2 || k == 3;
      if (rec.TYPE == "VD") {
        engine.WriteText(", %5g, %5g, %5g, %5s, %5g, %5g\n", s.DSTIFF, s.DAMP, s.DEXP, rec.bRIGDBR.c_str(),
                         rec.BSTIFF, s.EFFDAMP);
      } else if (rec.TYPE == "GAP" || rec.TYPE == "HOOK") {
        engine.WriteText(", %5g, %5g, %5g\n", s.STIFF, s.OPEN, s.EFFDAMP);
      } else if (rec.TYPE == "HS") {
        engine.WriteText(", %5g, %5g, %5g, %5g, %5g, %5g, %5g\n", s.STIFF, s.YSTR, s.PYS_RATIO, s.YEXP, s.PA, s.PB,
                         s.EFFDAMP);
      } else if (rec.TYPE == "LRBI" && longForm) {
        engine.WriteText(", %5g, %5g, %5g, %5g, %5g, %5g\n", s.STIFF, s.YSTR, s.PYS_RATIO, s.PA, s.PB, s.EFFDAMP);
      } else if (rec.TYPE == "FPSI" && longForm) {
        engine.WriteText(", %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g\n", s.STIFF, s.FCS, s.FCF, s.RP, s.RADIUS, s.PA,
                         s.PB, s.EFFDAMP);
      } else if (rec.TYPE == "LRBI" || rec.TYPE == "FPSI") {
        engine.WriteText(", %5g, %5g\n", s.STIFF, s.EFFDAMP);
      }
      // Any other kind gets no tail and no line end.
    }
  });
  engine.WriteText("\n");
  return 1;
}

int CLinks::WriteNlLinks() {
  if (nlLinks_.Empty()) return 1;
  engine.WriteText("%s\n", "*NL-LINK  ; Nonlinear Link");
  engine.WriteText("; iNODE1, iNODE2, PROP, ANGLE, GROUP\n");
  const CGeometry& geometry = engine.Get<CGeometry>();
  nlLinks_.Walk([&](int, const TvtNlLinkRec& rec) {
    engine.WriteText("\t%d, %5d, %5s, %5g, %5s\n", geometry.NodeNumberOf(rec.iNODE1), geometry.NodeNumberOf(rec.iNODE2),
                     rec.PROP.c_str(), rec.ANGLE, rec.GROUP.c_str());
  });
  engine.WriteText("\n");
  return 1;
}
