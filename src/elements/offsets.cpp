// End offsets to *OFFSET and releases to *FRAME-RLS.
#include <cmath>

#include "elements/elements.h"

#include "frame/converter.h"
#include "elements/properties.h"
#include "s2k/keys.h"

// Rigid zones first, then joint offsets; a joint offset replaces the rigid
// zone of its frame. Offsets in local axes are dropped.
int CElements::ConvertFrameOffsets() {
  auto& offsets = target_.Offsets;
  int counter = offsets.Count();
  int ok = 1;
  source_.FrameOffset.Walk([&](int, const S2kFrameOffsetRow& row) {
    if (!ok || !(std::fabs(row.LengthI) + std::fabs(row.LengthJ) > engine.ZeroTolerance)) return;
    TvtOffsetRec rec;
    rec.ELEM_LIST = row.Frame;
    rec.TYPE = "ELEMENT";
    rec.RGDXi = row.LengthI;
    rec.RGDXj = row.LengthJ;
    ok = offsets.SetAt(++counter, rec);
  });
  if (!ok) return 0;

  offsetFrames_.clear();
  offsets.Walk([&](int key, const TvtOffsetRec& rec) { offsetFrames_.try_emplace(rec.ELEM_LIST, key); });
  bool localSeen = false;
  engine.Get<CProperties>().FrameInsertions().Walk([&](int, const S2kFrameInsertionRow& row) {
    if (!ok) return;
    double sum = std::fabs(row.JtOffsetZJ) + std::fabs(row.JtOffsetYJ) + std::fabs(row.JtOffsetXJ) +
                 std::fabs(row.JtOffsetZI) + std::fabs(row.JtOffsetYI) + std::fabs(row.JtOffsetXI);
    if (!(sum > engine.ZeroTolerance)) return;
    TvtOffsetRec rec;
    rec.ELEM_LIST = row.Frame;
    rec.TYPE = row.CoordSys;
    UpperCase(rec.TYPE);
    if (row.CoordSys == "Local") {
      localSeen = true;
      return;
    }
    rec.RGDXi = row.JtOffsetXI;
    rec.RGDYi = row.JtOffsetYI;
    rec.RGDZi = row.JtOffsetZI;
    rec.RGDXj = row.JtOffsetXJ;
    rec.RGDYj = row.JtOffsetYJ;
    rec.RGDZj = row.JtOffsetZJ;
    int key = 0;
    if (FindOffsetByElement(row.Frame, key)) {
      engine.ShowMessage("IDS_S2KV8_OFFSET_REPLACE_GLOBAL", row.Frame);
    } else {
      key = ++counter;
      offsetFrames_.emplace(row.Frame, key);
    }
    ok = offsets.SetAt(key, rec);
  });
  if (localSeen) engine.ShowMessage("IDS_S2KV8_OFFSET_LOCAL_DIR");
  return ok;
}

int CElements::FindOffsetByElement(std::string_view name, int& key) {
  auto it = offsetFrames_.find(name);
  if (it == offsetFrames_.end()) return 0;
  key = it->second;
  return 1;
}

// Flags and springs go from the source order P, V2, V3, T, M2, M3 to the
// target's Fx, Fy, Fz, Mx, My, Mz, which take P, V3, V2, T, M3, M2. A frame
// missing from a non-empty fixity table ends the conversion of releases.
int CElements::ConvertFrameReleases() {
  const auto& fixities = source_.FramePartialFix;
  bool stopped = false;
  int ok = 1;
  source_.FrameRelease.Walk([&](int key, const S2kFrameReleaseRow& row) {
    if (stopped || !ok) return;
    auto flags = [](int p, int v2, int v3, int t, int m2, int m3) {
      const int order[6] = {p, v3, v2, t, m3, m2};
      std::string text;
      for (int flag : order) text += flag ? '1' : '0';
      return text;
    };
    S2kFramePartialFixRow fixity;
    if (!fixities.Empty()) {
      const S2kFramePartialFixRow* found = partialFixFrames_.Find(fixities, row.Frame);
      if (!found) {
        stopped = true;
        return;
      }
      fixity = *found;
    }
    TvtFrameRlsRec rec;
    rec.ELEM_LIST = row.Frame;
    rec.FLAG_i = flags(row.PI, row.V2I, row.V3I, row.TI, row.M2I, row.M3I);
    rec.FLAG_j = flags(row.PJ, row.V2J, row.V3J, row.TJ, row.M2J, row.M3J);
    if (row.PartialFix) {
      // Only whether a spring is there survives, not its stiffness.
      auto unit = [&](double value) { return value < engine.ZeroTolerance ? 0.0 : 1.0; };
      rec.Fxi = unit(fixity.PI);
      rec.Fyi = unit(fixity.V3I);
      rec.Fzi = unit(fixity.V2I);
      rec.Mxi = unit(fixity.TI);
      rec.Myi = unit(fixity.M3I);
      rec.Mzi = unit(fixity.M2I);
      rec.Fxj = unit(fixity.PJ);
      rec.Fyj = unit(fixity.V3J);
      rec.Fzj = unit(fixity.V2J);
      rec.Mxj = unit(fixity.TJ);
      rec.Myj = unit(fixity.M3J);
      rec.Mzj = unit(fixity.M2J);
      flags_.ReleasePartialFixity = 1;
    }
    ok = target_.FrameReleases.SetAt(key, rec);
  });
  return ok;
}

int CElements::WriteOffsets() {
  const auto& table = target_.Offsets;
  if (table.Empty()) return 1;
  engine.WriteText("%s\n", "*OFFSET    ; Beam End Offsets");
  engine.WriteText("; ELEM_LIST, TYPE, RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj, GROUP  ; TYPE=GLOBAL\n");
  engine.WriteText("; ELEM_LIST, TYPE, RGDi, RGDj, GROUP                                ; TYPE=ELEMENT\n");
  table.ForEachKey([&](int, const TvtOffsetRec& rec) {
    int number = ElementNumberOf(rec.ELEM_LIST, "FRAME");
    if (rec.TYPE == "ELEMENT")
      engine.WriteText("\t%d, %5s, %5g, %5g,\n", number, rec.TYPE.c_str(), rec.RGDXi, rec.RGDXj);
    else if (rec.TYPE == "GLOBAL")
      engine.WriteText("\t%d, %5s, %5g, %5g, %5g, %5g, %5g, %5g,\n", number, rec.TYPE.c_str(), rec.RGDXi, rec.RGDYi,
                rec.RGDZi, rec.RGDXj, rec.RGDYj, rec.RGDZj);
  });
  engine.WriteText("\n");
  return 1;
}

int CElements::WriteFrameReleases() {
  const auto& table = target_.FrameReleases;
  if (table.Empty()) return 1;
  if (flags_.ReleaseWithOffset) engine.ShowMessage("IDS_S2KV8_BEAM_End_Off_Rls");
  if (flags_.ReleasePartialFixity) engine.ShowMessage("IDS_S2KV8_BEAM_End_Release");
  engine.WriteText("%s\n", "*FRAME-RLS    ; Beam End Release");
  engine.WriteText("; ELEM_LIST, FLAG-i, Fxi, Fyi, Fzi, Mxi, Myi, Mzi        ; 1st line\n");
  engine.WriteText(";            FLAG-j, Fxj, Fyj, Fzj, Mxj, Myj, Mzj, GROUP ; 2nd line\n");
  // Keys follow the release rows, so a conversion cut short leaves gaps: a
  // missing key writes the record before it again, or an empty one.
  TvtFrameRlsRec rec;
  for (int key = 1; key <= table.Count(); ++key) {
    table.Lookup(key, rec);
    int number = ElementNumberOf(rec.ELEM_LIST, "FRAME");
    engine.WriteText("\t%d, \t%s, %5g, %5g, %5g, %5g, %5g, %5g\n", number, rec.FLAG_i.c_str(), rec.Fxi, rec.Fyi, rec.Fzi,
              rec.Mxi, rec.Myi, rec.Mzi);
    engine.WriteText("\t\t%s, %5g, %5g, %5g, %5g, %5g, %5g,\n", rec.FLAG_j.c_str(), rec.Fxj, rec.Fyj, rec.Fzj, rec.Mxj,
              rec.Myj, rec.Mzj);
  }
  engine.WriteText("\n");
  return 1;
}
