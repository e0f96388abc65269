// CProperties: materials, frame sections, nonprismatic sections and the
// section assignments and insertion points of frames.
#pragma once

#include <string>

#include "elements/property_tables.h"
#include "frame/subject.h"
#include "s2k/name_index.h"

class CProperties : public CSubject {
 public:
  explicit CProperties(CS2kConverter& engine);

  // ---- property_parsers.cpp: tables 234, 248, 252, 253, 257, 381, 382 ----------
  int ParseFrameInsertion();
  int ParseFrameModifiers();
  int ParseFrameSectionAssign();
  int ParseFrameSection();
  int ParseFrameNonprismatic();
  int ParseMaterial1();
  int ParseMaterial2();

  // ---- materials.cpp ----------------------------------------------------------
  int ConvertMaterials();
  int WriteMaterials();
  /// The number of material \p name, as a walk of table 381 finds it: the
  /// row's key when found; else the key of the walk's last row; \p number
  /// untouched when the table is empty. \returns 1 when found, else 0.
  int FindMaterialNumber(std::string_view name, int& number) const;
  /// Material lookup of areas and solids: an empty material table leaves the
  /// number and counts as found.
  int FindElementMaterial(std::string_view name, int& number) const;
  /// Fills an orthotropic record from the first row of \p name in table 382.
  /// \returns 0 when there is none.
  int ConvertOrthotropicMaterial(const std::string& name, const std::string& type, double density, int key);

  // ---- sections.cpp, nonprismatic.cpp ---------------------------------------------
  int ConvertFrameSections();
  int WriteSections();
  int WriteSectionScales();
  /// The AREA and C lines of index \p end of a built section.
  void WriteSectionValues(const TvtSectionRec& rec, int end);
  /// The lines of a tapered section.
  void WriteTaperedSection(int iSEC, const TvtSectionRec& rec);
  /// The code of a shape word; empty for a word outside the shape table.
  /// \p BLT is set to 2.
  static std::string MapSectionShape(const std::string& shape, int& BLT);
  /// The key of the first row of table 253 named \p name in walk order; 0 for none.
  int FindFrameSectionKey(std::string_view name) const;
  /// The key of the first row of table 257 named \p name in walk order; 0 for none.
  int FindNonprismaticKey(const std::string& name) const;
  /// Sets \p offset from the insertion point of a frame of section \p name.
  /// \returns 0 when that frame has no insertion row (\p offset then empty).
  int FindSectionOffsetCode(const std::string& name, std::string& offset) const;
  /// Reduces a nonprismatic section to a tapered record. \returns 1 when the
  /// record is to be inserted, 0 when the section is dropped.
  int ConvertNonprismaticSection(const S2kFrameSectionRow& section, TvtSectionRec& rec);

  // ---- what frames and areas ask --------------------------------------------------
  /// iPRO and iMAT of the frame in row \p key of table 202: the row of table
  /// 252 with the same key counts, whatever frame it names. Left as they were
  /// when nothing is found.
  void FindFrameSection(int key, int& iPRO, int& iMAT) const;
  /// AnalSect of the first row of table 252 for frame \p name. \returns 1 when found.
  int FindFrameSectionName(const std::string& name, std::string& section) const;
  /// The first row in walk order of section, taper or material \p name, or nullptr.
  const S2kFrameSectionRow* FindFrameSectionRow(const std::string& name) const {
    return sectionNames_.Find(source_.FrameSections, name);
  }
  const S2kFrameNonprismaticRow* FindNonprismaticRow(const std::string& name) const {
    return nonprismaticNames_.Find(source_.FrameNonprismatic, name);
  }
  const S2kMaterial1Row* FindMaterialRow(const std::string& name) const {
    return materialNames_.Find(source_.Material1, name);
  }
  /// The insertion points of frames (table 234), in their walk.
  const CKeyedTable<S2kFrameInsertionRow>& FrameInsertions() const { return source_.FrameInsertions; }

 private:
  friend struct SubjectAccess;

  S2kPropertyTables source_;
  TvtPropertyTables target_;
  PropertyRunFlags flags_;
  CNameIndex<S2kMaterial1Row> materialNames_{&S2kMaterial1Row::Material};
  CNameIndex<S2kMaterial2Row> orthotropicNames_{&S2kMaterial2Row::Material};
  CNameIndex<S2kFrameSectionRow> sectionNames_{&S2kFrameSectionRow::SectionName};
  CNameIndex<S2kFrameSectionAssignRow> sectionAssignNames_{&S2kFrameSectionAssignRow::AnalSect};
  CNameIndex<S2kFrameSectionAssignRow> sectionAssignFrames_{&S2kFrameSectionAssignRow::Frame};
  CNameIndex<S2kFrameInsertionRow> insertionFrames_{&S2kFrameInsertionRow::Frame};
  CNameIndex<S2kFrameNonprismaticRow> nonprismaticNames_{&S2kFrameNonprismaticRow::SectionName};
};
