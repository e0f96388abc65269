// CS2kConverter: the engine of one run. Declared once here; each subject
// folder defines its own members.
#pragma once

#include <cstdio>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "frame/steps.h"
#include "frame/subject.h"
#include "tvt/output_file.h"
#include "quillmesh/quillmesh.hpp"
#include "s2k/input_file.h"
#include "s2k/fields.h"
#include "s2k/keyed_table.h"
#include "s2k/model.h"
#include "tvt/model.h"

class CS2kConverter {
 public:
  explicit CS2kConverter(quillmesh::UserInterface& ui);
  ~CS2kConverter();
  CS2kConverter(const CS2kConverter&) = delete;
  CS2kConverter& operator=(const CS2kConverter&) = delete;

  /// Reads, converts and writes. \returns 0 finished, 1 stopped, -1 failed.
  int Run(const std::string& inputPath);

  /// The subject of type \p T of this run, made on first use.
  template <class T>
  T& Get() {
    const std::size_t id = SubjectId<T>();
    if (id >= subjects_.size()) subjects_.resize(id + 1);
    if (!subjects_[id]) subjects_[id] = std::make_unique<T>(*this);
    return static_cast<T&>(*subjects_[id]);
  }

  // ---- frame/converter.cpp: the run and its stages -------------------------
  void ResetConversion();
  int ConvertModel();
  /// Runs the rows of \p steps, advancing the bar after each of the \p count
  /// numbers. \returns 0, 1 when the user stopped, -1 when a step failed.
  int RunSteps(std::span<const SRunStep> steps, int count);
  /// Shows the catalogue's text of \p key and waits for OK.
  void ShowMessage(const char* key);
  /// The same for the catalogue texts that take one text argument.
  void ShowMessage(const char* key, const std::string& argument);

  // ---- s2k/reader.cpp: lines to rows -----------------------------------------
  int ReadTables();
  /// The rows of the table being parsed, one text per row.
  const std::vector<std::string>& TableRows() const { return rowRows; }

  // ---- s2k/recognition.cpp: titles to tables ---------------------------------
  int RecogniseTable(const std::string& titleLine) const;
  int RecogniseMember(const std::string& titleLine, int index) const;
  int ParseTable(int tableId);
  /// Runs the shared row parser and counts the rows.
  template <class Row, std::size_t N>
  int ParseRows(const S2kField<Row> (&fields)[N], CKeyedTable<Row>& table) {
    parsedRowCount += static_cast<int>(rowRows.size());
    return ::ParseRows(rowRows, fields, table);
  }

  // ---- s2k/stored_tables.cpp: tables no conversion reads ---------------------
  int ParseAreaRotateLoad();
  int ParseAreaUniformToFrameLoad();
  int ParseAreaWindCoefficient();
  int ParseAreaMaterialTemperature();
  int ParseCaseModalLoad();
  int ParseCaseModalHistoryDamping();
  int ParseCaseSpectrumModalDamping();
  int ParseCaseSpectrumProportionalDamping();
  int ParseCaseSpectrumModeDamping();
  int ParseConstraintLocal();
  int ParsePlotFunction();
  int ParseFunctionCosine();
  int ParseFunctionRamp();
  int ParseFunctionSawtooth();
  int ParseFunctionSine();
  int ParseFunctionTriangular();
  int ParseFunctionUserPeriodic();
  int ParseGroupDefinition();
  int ParseGroupAssignment();
  int ParseGroupMass();
  int ParseJointMassSource();
  int ParseSolidAutoMesh();
  int ParseSolidMaterialTemperature();
  int ParseAreaSummary();

  // ---- tvt/writer.cpp: the TVT file ------------------------------------------
  int WriteOutput(const std::string& inputPath);
  int WriteCommands();
  /// Formats and writes to the TVT file. \returns 1; a file error is raised.
  int WriteText(const char* format, ...) __attribute__((format(printf, 2, 3)));
  int WriteVersionAndUnits();
  int WriteStructType();

  // ---- tvt/structure_type.cpp -------------------------------------------------
  int ParseActiveDof();
  /// Fills the record of *STRUCTYPE from the active degrees of freedom.
  int ConvertStructType();

  // ---- geometry/units.cpp -----------------------------------------------------
  int ParseCoordinateSystem();
  int ParseProgramControl();
  /// 9.806 in the model's length unit; 9.806 for a unit it doesn't know.
  double GravityInModelUnits() const;
  /// A temperature of the model's unit in Celsius; 0 for an unknown unit.
  double ToCelsius(double value) const;

  // ---- geometry/geometry_parsers.cpp -------------------------------------------
  int ParseJointCoordinates();     // 333
  int ParseJointMasses();          // 331
  int ParseJointRestraints();      // 341
  int ParseJointConstraints();     // 332
  int ParseConstraintBeam();       // 211
  int ParseConstraintBody();       // 212
  int ParseConstraintDiaphragm();  // 213
  int ParseConstraintEqual();      // 214
  int ParseConstraintLine();       // 215
  int ParseConstraintPlate();      // 217
  int ParseConstraintRod();        // 218
  int ParseConstraintWeld();       // 219
  int ParseJointLocalAxes1();      // 336
  int ParseJointLocalAxes2();      // 337

  // ---- geometry/joints.cpp ------------------------------------------------------
  int ConvertJoints();
  int BuildJointNumberMap();
  /// The joint number map, made only when joints are renumbered.
  int BuildJointNumberMapIfRenumbered();
  int WriteNodes();
  /// The node number of a joint name, as every writer takes it: under
  /// renumbering 0 for a name that is no joint's, else atoi of the name.
  int NodeNumberOf(const std::string& name) const;

  // ---- geometry/restraints.cpp, geometry/constraints.cpp -----------------------
  int ConvertRestraints();
  int WriteConstraints();
  int ConvertConstraints();
  int WriteRigidLinks();
  /// How a family picks its master: the first member, or by added masses.
  enum class ConstraintMasterKind { FirstMember = 0, AlongAxis = 1, ByMass = 2 };
  /// The master and the slaves of constraint \p name. \returns 1 when a
  /// rigid link can be made, 0 for fewer than two members.
  int CollectConstraintJoints(const std::string& name, ConstraintMasterKind kind, std::string& outMaster,
                              std::string& outSlaves);
  void ConvertBeamConstraint(const std::string& name, int& counter);
  void ConvertBodyConstraint(const std::string& name, int& counter);
  void ConvertDiaphragmConstraint(const std::string& name, int& counter);
  void ConvertEqualConstraint(const std::string& name, int& counter);
  void ConvertLineConstraint(const std::string& name, int& counter);
  void ConvertLocalConstraint(const std::string& name, int& counter);
  void ConvertPlateConstraint(const std::string& name, int& counter);
  void ConvertRodConstraint(const std::string& name, int& counter);
  void ConvertWeldConstraint(const std::string& name, int& counter);
  /// Members of each constraint in table 332, and the walk position of the
  /// first mass row of each joint; filled while ConvertConstraints runs.
  std::unordered_map<std::string, std::vector<std::string>> constraintMembers;
  std::unordered_map<std::string, std::size_t> firstMassRowOf;

  // ---- geometry/local_axes.cpp --------------------------------------------------
  int ConvertJointLocalAxes();
  int WriteLocalAxes();
  /// Adds a rotation record M = Rz Ry Rx for angles in degrees.
  void RotationFromAngles(const std::string& joint, double x, double y, double z);
  /// 1 when \p joint has a rotation record.
  int HasJointLocalAxes(const std::string& joint) const;
  /// Turns (a, b, c) from the joint's local axes to global axes, or back;
  /// results below 1e-5 in size become 0. A joint without local axes keeps
  /// the vector. \returns 1, or 0 when the joint has no record while others do.
  int LocalToGlobal(const std::string& joint, double& a, double& b, double& c) const;
  int GlobalToLocal(const std::string& joint, double& a, double& b, double& c) const;
  /// The advanced form of table 337 for \p rec, when the joint has a row.
  void ApplyAdvancedLocalAxes(TvtLocalAxisRec& rec);

  // ---- geometry/masses.cpp, geometry/mass_parsers.cpp ---------------------------
  int ParseFrameMasses();
  int ParseAreaMasses();
  /// Merges \p record into the nodal mass of its joint. \returns the insert's result.
  int AddNodalMass(TvtNodalmassRec record);
  /// Adds \p m to the three masses of each joint of \p joints, in order.
  int LumpNodalMass(std::initializer_list<const std::string*> joints, double m);
  int ConvertJointMasses();
  int ConvertFrameMasses();
  int ConvertAreaMasses();
  int WriteNodalMasses();

  // ---- elements/property_parsers.cpp: tables 234, 248, 252, 253, 257, 381, 382 ----
  int ParseFrameInsertion();
  int ParseFrameModifiers();
  int ParseFrameSectionAssign();
  int ParseFrameSection();
  int ParseFrameNonprismatic();
  int ParseMaterial1();
  int ParseMaterial2();

  // ---- elements/materials.cpp --------------------------------------------------
  int ConvertMaterials();
  int WriteMaterials();
  /// The number of material \p name, as a walk of table 381 finds it: the
  /// row's key when found; else the key of the walk's last row; \p number
  /// untouched when the table is empty. \returns 1 when found, else 0.
  int FindMaterialNumber(const std::string& name, int& number);
  /// Fills an orthotropic record from the first row of \p name in table 382.
  /// \returns 0 when there is none.
  int ConvertOrthotropicMaterial(const std::string& name, const std::string& type, double density, int key);

  // ---- elements/sections.cpp, elements/nonprismatic.cpp -----------------------
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
  int FindFrameSectionKey(const std::string& name);
  /// The key of the first row of table 257 named \p name in walk order; 0 for none.
  int FindNonprismaticKey(const std::string& name);
  /// Sets \p offset from the insertion point of a frame of section \p name.
  /// \returns 0 when that frame has no insertion row (\p offset then empty).
  int FindSectionOffsetCode(const std::string& name, std::string& offset);
  /// Reduces a nonprismatic section to a tapered record. \returns 1 when the
  /// record is to be inserted, 0 when the section is dropped.
  int ConvertNonprismaticSection(const S2kFrameSectionRow& section, TvtSectionRec& rec);

  // ---- elements/thickness.cpp ---------------------------------------------------
  int ConvertAreaSections();
  int WriteThicknesses();

  // ---- elements/frames.cpp ------------------------------------------------------
  int ConvertFrames();
  /// Decides the element numbers and writes frames, plates and solids; fills
  /// the element map that every later writer looks names up in.
  int WriteElements();
  /// iPRO and iMAT of the frame in row \p key of table 202: the row of table
  /// 252 with the same key counts, whatever frame it names. Left as they were
  /// when nothing is found.
  void FindFrameSection(int key, int& iPRO, int& iMAT);
  /// The first row of table 239 for \p name, its angle adjusted for advanced
  /// axes. \returns 0 when there is none.
  int FindFrameAngle(const std::string& name, S2kFrameLocalAxes1Row& row);
  /// Folds the advanced axes of \p name (table 240) into \p angle.
  void AdjustAngleForAdvancedAxes(const std::string& name, double& angle);
  /// Global coordinates of joint \p name, first row in walk order.
  /// \returns 0, with zeros, when there is no such joint.
  int FindJointGlobalCoordinates(const std::string& name, double& x, double& y, double& z);
  /// Whether element numbers are positions rather than names. Valid once
  /// *ELEMENT is written.
  int IsRenumbered() const;
  /// The number of the element \p name of \p kind ("FRAME", "AREA", "SOLID")
  /// from the element map, first match in walk order. An empty map gives 1
  /// and leaves \p number. \returns 0, \p number left, when not found.
  int FindElementNumber(const std::string& name, const std::string& kind, int& number);
  /// The element number every writer prints: the map's under renumbering
  /// (0 when not found), else atoi of the name.
  int ElementNumberOf(const std::string& name, const std::string& kind);
  /// Clears ElementNamesNumeric for a name with a character other than a digit.
  void NoteElementName(const std::string& name);
  /// The node of joint \p name by the model's node rule; under renumbering an
  /// unknown name leaves \p number as it was.
  void ResolveNodeNumber(const std::string& name, int& number);
  int DecideRenumbering();
  void WriteFrameLines(int frames);
  void WritePlateLines(int frames, int areas);
  void WriteSolidLines(int frames, int areas, int solids);

  CNameIndex<S2kJointCoordinatesRow> jointCoordinateNames{&S2kJointCoordinatesRow::Joint};
  CNameIndex<S2kFrameLocalAxes1Row> frameAngleNames{&S2kFrameLocalAxes1Row::Frame};
  CNameIndex<S2kFrameLocalAxes2Row> frameAdvancedAxesNames{&S2kFrameLocalAxes2Row::Frame};
  /// Kind, a zero character and name, to the first number in walk order.
  std::unordered_map<std::string, int> elementNumberIndex;
  int elementNumberIndexCount = -1;

  // ---- elements/areas.cpp -------------------------------------------------------
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
  /// Material lookup of areas and solids: an empty material table leaves the
  /// number and counts as found.
  int FindElementMaterial(const std::string& name, int& number);
  /// All four corners share one GlobalY; unknown joints lie at the origin.
  int IsFlatInY(const S2kConnectivityAreaRow& area);

  CNameIndex<S2kAreaSectionAssignRow> areaSectionAssignNames{&S2kAreaSectionAssignRow::Area};
  CNameIndex<S2kFrameSectionAssignRow> frameSectionAssignFrames{&S2kFrameSectionAssignRow::Frame};
  CNameIndex<S2kSolidPropRow> solidPropNames{&S2kSolidPropRow::SolidProp};
  CNameIndex<S2kAreaSectionRow> areaSectionRows{&S2kAreaSectionRow::Section};
  CNameIndex<S2kSolidPropAssignRow> solidPropAssignRows{&S2kSolidPropAssignRow::Solid};

  // ---- elements/offsets.cpp -----------------------------------------------------
  int ConvertFrameOffsets();
  int ConvertFrameReleases();
  int WriteOffsets();
  int WriteFrameReleases();
  /// The key of the first offset record of frame \p name in walk order.
  /// \returns 0 when there is none.
  int FindOffsetByElement(const std::string& name, int& key);

  CNameIndex<S2kFramePartialFixRow> partialFixFrames{&S2kFramePartialFixRow::Frame};
  /// Frame names of the offset records, kept while the offsets are converted.
  std::unordered_map<std::string, int> offsetFrames;

  // ---- elements/element_parsers.cpp ------------------------------------------------
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

  // ---- elements/springs.cpp, elements/spring_parsers.cpp -------------------------
  int ParseJointSprings();
  int ParseJointCoupledSprings();
  int ParseFrameSprings();
  int ParseAreaSprings();
  int ConvertJointSprings();
  int ConvertCoupledSprings();
  /// Lumps line springs onto joints: \p mode 1 frames, 2 areas.
  int ConvertLineSprings(int mode);
  int WriteSprings();
  int WriteGeneralSprings();
  /// The first row in walk order of a frame or area name, or nullptr.
  const S2kConnectivityFrameRow* FindFrameConnectivity(const std::string& frame);
  const S2kConnectivityAreaRow* FindAreaConnectivity(const std::string& area);
  /// The node of a spring's joint list: the first joint's number when joints
  /// keep their numbers; under renumbering a list that is no joint's name
  /// leaves \p number as it was.
  void SpringNodeNumber(const std::string& nodeList, int& number) const;
  CNameIndex<S2kConnectivityFrameRow> frameConnectivityByName{&S2kConnectivityFrameRow::Frame};
  CNameIndex<S2kConnectivityAreaRow> areaConnectivityByName{&S2kConnectivityAreaRow::Area};


 private:
  quillmesh::UserInterface& ui_;
  std::vector<std::unique_ptr<CSubject>> subjects_;

 public:
  S2kInputFile inputFile;
  TvtOutputFile outputFile;
  std::vector<std::string> firstWords;
  std::vector<std::string> rowRows;
  std::vector<int> rowLines;
  std::unique_ptr<CS2kModel> sourceModel;
  std::unique_ptr<CTvtModel> targetModel;
  int parsedRowCount = 0;
  int ElementsRenumbered = 0;
  int ElementNamesNumeric = 1;
  int dynamicCasePresent = 0;
  double ZeroTolerance = 1e-15;
  int solidNodeCount = 8;

  CKeyedTable<TvtElementMapEntry> elementNumberMap;

  // ---- name lookups of the property tables, same first match as a walk ------------
  CNameIndex<S2kMaterial1Row> materialNames{&S2kMaterial1Row::Material};
  CNameIndex<S2kMaterial2Row> orthotropicNames{&S2kMaterial2Row::Material};
  CNameIndex<S2kFrameSectionRow> sectionNames{&S2kFrameSectionRow::SectionName};
  CNameIndex<S2kFrameSectionAssignRow> sectionAssignNames{&S2kFrameSectionAssignRow::AnalSect};
  CNameIndex<S2kFrameInsertionRow> insertionFrames{&S2kFrameInsertionRow::Frame};
  CNameIndex<S2kFrameNonprismaticRow> nonprismaticNames{&S2kFrameNonprismaticRow::SectionName};

  // ---- run flags, cleared by ResetConversion --------------------------------------
  GeometryRunFlags geometryFlags;
  MassRunFlags massFlags;
  PropertyRunFlags propertyFlags;
  ElementRunFlags elementFlags;
  SpringRunFlags springFlags;
};

template <class Class>
Class& SubjectOf(CS2kConverter& engine) {
  if constexpr (std::is_same_v<Class, CS2kConverter>)
    return engine;
  else
    return engine.Get<Class>();
}

template <auto Member, auto... Values>
int RunStep(CS2kConverter& engine) {
  using Class = typename subject_detail::MemberOf<decltype(Member)>::Class;
  return (SubjectOf<Class>(engine).*Member)(Values...);
}

template <auto Member>
int RunCaseStep(CS2kConverter& engine, const std::string& loadCase) {
  using Class = typename subject_detail::MemberOf<decltype(Member)>::Class;
  return (SubjectOf<Class>(engine).*Member)(loadCase);
}
