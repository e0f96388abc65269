// CElements: frames, areas and solids, their numbers in *ELEMENT, area
// thickness, end offsets and releases.
#pragma once

#include <string>
#include <unordered_map>

#include "elements/element_number_index.h"
#include "elements/element_tables.h"
#include "frame/subject.h"
#include "s2k/name_index.h"

class CElements : public CSubject {
 public:
  explicit CElements(CS2kConverter& engine);

  // ---- element_parsers.cpp -------------------------------------------------------
  int ParseAreaSectionAssign();  // 125
  int ParseAreaSection();        // 126
  int ParseConnectivityArea();   // 201
  int ParseConnectivityFrame();  // 202
  int ParseConnectivitySolid();  // 204
  int ParseFrameLocalAxes1();    // 239
  int ParseFrameLocalAxes2();    // 240
  int ParseFrameOffset();        // 243
  int ParseFrameRelease();       // 250
  int ParseFramePartialFix();    // 251
  int ParseSolidPropAssign();    // 489
  int ParseSolidProp();          // 490
  int ParseSolidSummary();       // 505

  // ---- frames.cpp -----------------------------------------------------------------
  int ConvertFrames();
  /// Decides the element numbers and writes frames, plates and solids; fills
  /// the element map that every later writer looks names up in.
  int WriteElements();
  /// The first row of table 239 for \p name, its angle adjusted for advanced
  /// axes. \returns 0 when there is none.
  int FindFrameAngle(std::string_view name, S2kFrameLocalAxes1Row& row);
  /// Folds the advanced axes of \p name (table 240) into \p angle.
  void AdjustAngleForAdvancedAxes(std::string_view name, double& angle);
  /// The same rule for one row of advanced axes (links have their own table).
  void AdjustAngleForAxesRow(const S2kFrameLocalAxes2Row& row, double& angle);
  /// Whether element numbers are positions rather than names. Valid once
  /// *ELEMENT is written.
  int IsRenumbered() const;
  /// The number of the element \p name of \p kind ("FRAME", "AREA", "SOLID")
  /// from the element map, first match in walk order. An empty map gives 1
  /// and leaves \p number. \returns 0, \p number left, when not found.
  int FindElementNumber(std::string_view name, std::string_view kind, int& number);
  /// The element number every writer prints: the map's under renumbering
  /// (0 when not found), else atoi of the name.
  int ElementNumberOf(std::string_view name, std::string_view kind);
  /// Clears ElementNamesNumeric for a name with a character other than a digit.
  void NoteElementName(std::string_view name);
  int DecideRenumbering();
  void WriteFrameLines(int frames);
  void WritePlateLines(int frames, int areas);
  void WriteSolidLines(int frames, int areas, int solids);
  /// The first row in walk order of a frame or area name, or nullptr.
  const S2kConnectivityFrameRow* FindFrameConnectivity(std::string_view frame) const;
  const S2kConnectivityAreaRow* FindAreaConnectivity(std::string_view area) const;
  const S2kConnectivitySolidRow* FindSolidConnectivity(std::string_view solid) const {
    return solidConnectivityByName_.Find(source_.ConnectivitySolid, solid);
  }
  /// The first row of table 126 named \p section in walk order, or nullptr.
  const S2kAreaSectionRow* FindAreaSectionRow(std::string_view section) const {
    return areaSectionRows_.Find(source_.AreaSection, section);
  }
  /// The row a whole walk of table 201 ends on, or nullptr for an empty table.
  const S2kConnectivityAreaRow* LastWalkedAreaConnectivity() const {
    return source_.ConnectivityArea.Lookup(areaConnectivityByName_.LastWalked(source_.ConnectivityArea));
  }
  /// The row a whole walk of table 202 ends on, or nullptr for an empty table.
  const S2kConnectivityFrameRow* LastWalkedFrameConnectivity() const {
    return source_.ConnectivityFrame.Lookup(frameConnectivityByName_.LastWalked(source_.ConnectivityFrame));
  }
  /// Frames, areas and solids of the model, all told.
  int ElementCount() const {
    return source_.ConnectivityFrame.Count() + source_.ConnectivityArea.Count() + source_.ConnectivitySolid.Count();
  }
  /// Raised by a frame load on a frame of zero length; the frame writer says so.
  void SetZeroLengthWarning() { flags_.ZeroLengthWarning = 1; }

  // ---- areas.cpp --------------------------------------------------------------------
  int ConvertAreas();
  int ConvertSolids();
  /// Kind 1: AnalSect of frame \p name (table 252); kind 2: Section of area
  /// \p name (table 125). \returns 1 when found.
  int FindAreaSectionName(const std::string& name, int kind, std::string& section);
  /// Element type, property, material and iSUB of an area of \p section.
  /// \returns 0 when no row of that name gives a known material.
  int FindAreaSectionData(const std::string& section, const S2kConnectivityAreaRow& area, int& iPRO, int& iMAT,
                          int& iSUB, std::string& TYPE);
  /// The material of solid \p name through its property. \returns 0 when
  /// no assigned property names a known material.
  int FindSolidMaterial(const std::string& name, int& number);
  /// All four corners share one GlobalY; unknown joints lie at the origin.
  int IsFlatInY(const S2kConnectivityAreaRow& area);

  // ---- thickness.cpp ----------------------------------------------------------------
  int ConvertAreaSections();
  int WriteThicknesses();

  // ---- offsets.cpp ------------------------------------------------------------------
  int ConvertFrameOffsets();
  int ConvertFrameReleases();
  int WriteOffsets();
  int WriteFrameReleases();
  /// The key of the first offset record of frame \p name in walk order.
  /// \returns 0 when there is none.
  int FindOffsetByElement(std::string_view name, int& key);

 private:
  friend struct SubjectAccess;

  S2kElementTables source_;
  TvtElementTables target_;
  ElementRunFlags flags_;
  int ElementsRenumbered = 0;
  int ElementNamesNumeric = 1;
  int solidNodeCount = 8;

  CKeyedTable<TvtElementMapEntry> elementNumberMap;
  CElementNumberIndex elementNumberIndex_;

  CNameIndex<S2kFrameLocalAxes1Row> frameAngleNames_{&S2kFrameLocalAxes1Row::Frame};
  CNameIndex<S2kFrameLocalAxes2Row> frameAdvancedAxesNames_{&S2kFrameLocalAxes2Row::Frame};
  CNameIndex<S2kAreaSectionAssignRow> areaSectionAssignNames_{&S2kAreaSectionAssignRow::Area};
  CNameIndex<S2kSolidPropRow> solidPropNames_{&S2kSolidPropRow::SolidProp};
  CNameIndex<S2kAreaSectionRow> areaSectionRows_{&S2kAreaSectionRow::Section};
  CNameIndex<S2kSolidPropAssignRow> solidPropAssignRows_{&S2kSolidPropAssignRow::Solid};
  CNameIndex<S2kFramePartialFixRow> partialFixFrames_{&S2kFramePartialFixRow::Frame};
  CNameIndex<S2kConnectivityFrameRow> frameConnectivityByName_{&S2kConnectivityFrameRow::Frame};
  CNameIndex<S2kConnectivityAreaRow> areaConnectivityByName_{&S2kConnectivityAreaRow::Area};
  CNameIndex<S2kConnectivitySolidRow> solidConnectivityByName_{&S2kConnectivitySolidRow::Solid};
  /// Frame names of the offset records, kept while the offsets are converted.
  std::unordered_map<CText, int, CTextHash, std::equal_to<>> offsetFrames_;
};
