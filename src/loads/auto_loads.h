// CAutoLoads: the automatic wind and seismic loads of load patterns, each
// carried code into its *WIND or *SEIS block.
#pragma once

#include <string>

#include "frame/subject.h"
#include "loads/auto_load_tables.h"
#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

class CAutoLoads : public CSubject {
 public:
  explicit CAutoLoads(CS2kConverter& engine);

  int ParseSeismicNbcc95();  // 133
  int ParseSeismicUbc97();   // 136
  int ParseWindAsce798();    // 146
  int ParseWindNbcc95();     // 149
  int ParseWindUbc97();      // 151

  /// The wind record of pattern \p LoadName under the code word \p AutoLoad;
  /// nothing for a code not carried or a pattern with no row. \returns 0
  /// when an insert fails.
  int ConvertAutoWind(const std::string& LoadName, const std::string& AutoLoad);
  /// The same for seismic loads.
  int ConvertAutoSeismic(const std::string& LoadName, const std::string& AutoLoad);

  /// The *WIND and *SEIS blocks of load case \p LoadCaseName.
  int WriteWind(const std::string& LoadCaseName);
  int WriteSeis(const std::string& LoadCaseName);

 private:
  CKeyedTable<S2kAutoSeismicNbcc95Row> seismicNbcc95_;  // 133
  CKeyedTable<S2kAutoSeismicUbc97Row> seismicUbc97_;    // 136
  CKeyedTable<S2kAutoWindAsce798Row> windAsce798_;      // 146
  CKeyedTable<S2kAutoWindNbcc95Row> windNbcc95_;        // 149
  CKeyedTable<S2kAutoWindUbc97Row> windUbc97_;          // 151

  CKeyedTable<TvtWindUbc1997Rec> windUbc1997_;
  CKeyedTable<TvtWindIbc2000Rec> windIbc2000_;
  CKeyedTable<TvtWindNbc1995Rec> windNbc1995_;
  CKeyedTable<TvtSeisUbc1997Rec> seisUbc1997_;
  CKeyedTable<TvtSeisNbc1995Rec> seisNbc1995_;

  CNameIndex<S2kAutoSeismicNbcc95Row> seismicNbcc95Names_{&S2kAutoSeismicNbcc95Row::LoadCase};
  CNameIndex<S2kAutoSeismicUbc97Row> seismicUbc97Names_{&S2kAutoSeismicUbc97Row::LoadCase};
  CNameIndex<S2kAutoWindAsce798Row> windAsce798Names_{&S2kAutoWindAsce798Row::LoadCase};
  CNameIndex<S2kAutoWindNbcc95Row> windNbcc95Names_{&S2kAutoWindNbcc95Row::LoadCase};
  CNameIndex<S2kAutoWindUbc97Row> windUbc97Names_{&S2kAutoWindUbc97Row::LoadCase};

  CNameIndex<TvtWindUbc1997Rec> windUbc1997Cases_{&TvtWindUbc1997Rec::LCNAME};
  CNameIndex<TvtWindIbc2000Rec> windIbc2000Cases_{&TvtWindIbc2000Rec::LCNAME};
  CNameIndex<TvtWindNbc1995Rec> windNbc1995Cases_{&TvtWindNbc1995Rec::LCNAME};
  CNameIndex<TvtSeisUbc1997Rec> seisUbc1997Cases_{&TvtSeisUbc1997Rec::LCNAME};
  CNameIndex<TvtSeisNbc1995Rec> seisNbc1995Cases_{&TvtSeisNbc1995Rec::LCNAME};
};
