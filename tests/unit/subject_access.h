// The private tables and flags of the subjects, for tests that set up or
// inspect one step's data directly.
#pragma once

#include "elements/elements.h"
#include "elements/properties.h"
#include "elements/springs.h"
#include "frame/converter.h"
#include "geometry/geometry.h"
#include "geometry/masses.h"

struct SubjectAccess {
  template <class S>
  static auto& Source(CS2kConverter& engine) { return engine.Get<S>().source_; }
  template <class S>
  static auto& Target(CS2kConverter& engine) { return engine.Get<S>().target_; }
  template <class S>
  static auto& Flags(CS2kConverter& engine) { return engine.Get<S>().flags_; }
  static int& ElementsRenumbered(CS2kConverter& engine) { return engine.Get<CElements>().ElementsRenumbered; }
  static int& ElementNamesNumeric(CS2kConverter& engine) { return engine.Get<CElements>().ElementNamesNumeric; }
  static CKeyedTable<TvtElementMapEntry>& ElementNumberMap(CS2kConverter& engine) {
    return engine.Get<CElements>().elementNumberMap;
  }
};

template <class S>
auto& SourceOf(CS2kConverter& engine) { return SubjectAccess::Source<S>(engine); }
template <class S>
auto& TargetOf(CS2kConverter& engine) { return SubjectAccess::Target<S>(engine); }
