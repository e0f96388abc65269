// The writers of *SFUNCTION and *SPLDCASE.
#include "dynamics/response_spectrum.h"
#include "frame/converter.h"
#include "tvt/term_lines.h"

int CResponseSpectrum::WriteSfunctions() {
  if (functions_.Empty()) return 1;
  engine.WriteText("%s\n", "*SFUNCTION    ; Specturm Function");
  engine.WriteText("; FUNC=NAME, iTYPE, SCALE, GRAV, DESC          ; line 1\n");
  engine.WriteText(";      PERIOD1, VALUE1, PERIOD2, VALUE2, ...   ; from line 2\n");
  for (int key = 1; key <= functions_.Count(); ++key) {
    const TvtSfunctionRec* rec = functions_.Lookup(key);
    if (!rec) continue;
    engine.WriteText("\tFUNC=%s, %5d, %5g, %5g, %5s\n", rec->FUNC.c_str(), rec->iTYPE, rec->SCALE, rec->GRAV,
                     rec->DESC.c_str());
    engine.WriteText("\t\t");
    WriteTermLines(engine, rec->PERIOD.size(),
                   [&](std::size_t k) { engine.WriteText("%g, %5g", rec->PERIOD[k], rec->VALUE[k]); });
    engine.WriteText("\n");
  }
  engine.WriteText("\n");
  return 1;
}

int CResponseSpectrum::WriteSpldcases() {
  if (loads_.Empty()) return 1;
  if (spectrumLoadRefused_) engine.ShowMessage("IDS_S2KV8_RESP_SPLC_Not_Convert");
  engine.WriteText("%s\n", "*SPLDCASE    ; Spectrum Load Cases");
  engine.WriteText("; NAME, FUNC, DIR, ANGLE, SCALE, DESC\n");
  for (int key = 1; key <= loads_.Count(); ++key) {
    const TvtSpldcaseRec* rec = loads_.Lookup(key);
    if (!rec) continue;
    engine.WriteText("\t%s, %5s, %5s, %5g, %5g, %5s\n", rec->NAME.c_str(), rec->FUNC.c_str(), rec->DIR.c_str(),
                     rec->ANGLE, rec->SCALE, rec->DESC.c_str());
  }
  engine.WriteText("\n");
  return 1;
}
