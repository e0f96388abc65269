// The writer of *LOADCOMB.
#include "frame/converter.h"
#include "loads/load_combinations.h"
#include "tvt/term_lines.h"

int CLoadCombinations::WriteLoadcomb() {
  if (loadCombinations_.Empty()) return 1;
  engine.WriteText("%s\n", "*LOADCOMB    ; Combinations");
  engine.WriteText("; NAME=NAME, KIND, ACTIVE, iTYPE, DESC   ; line 1\n");
  engine.WriteText(";      ANAL1, LCNAME1, FACT1, ...        ; from line 2\n");
  for (int key = 1; key <= loadCombinations_.Count(); ++key) {
    const TvtLoadcombRec* rec = loadCombinations_.Lookup(key);
    if (!rec) continue;
    engine.WriteText("\tNAME=%s, %5s, %5s, %5d, %5s\n", rec->NAME.c_str(), rec->KIND.c_str(), rec->ACTIVE.c_str(),
                     rec->iTYPE, rec->DESC.c_str());
    engine.WriteText("\t\t");
    WriteTermLines(engine, rec->ANAL.size(), [&](std::size_t k) {
      engine.WriteText("%s, %5s, %5g", rec->ANAL[k].c_str(), rec->LCNAME[k].c_str(), rec->FACT[k]);
    });
    engine.WriteText("\n");
  }
  engine.WriteText("\n");
  return 1;
}
