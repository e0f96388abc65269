// CS2kConverter: the engine of one run. Declared once here; each subject
// folder defines its own members.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "tvt/output_file.h"
#include "quillmesh/quillmesh.hpp"
#include "s2k/input_file.h"
#include "s2k/fields.h"
#include "s2k/keyed_table.h"
#include "s2k/model.h"
#include "tvt/model.h"

class CS2kConverter;

/// A table id and the member that parses its rows.
struct S2kTableParser {
  int tableId;
  int (CS2kConverter::*parse)();
};

class CS2kConverter {
 public:
  explicit CS2kConverter(quillmesh::UserInterface& ui);
  ~CS2kConverter();
  CS2kConverter(const CS2kConverter&) = delete;
  CS2kConverter& operator=(const CS2kConverter&) = delete;

  /// Reads, converts and writes. \returns 0 finished, 1 stopped, -1 failed.
  int Run(const std::string& inputPath);

  // ---- frame/converter.cpp: the run and its stages -------------------------
  void ResetConversion();
  int ConvertModel();
  /// Shows the catalogue's text of \p key and waits for OK.
  void ShowMessage(const char* key);
  /// The same for the catalogue texts that take one text argument.
  void ShowMessage(const char* key, const std::string& argument);

  // ---- s2k/reader.cpp: lines to rows -----------------------------------------
  int ReadTables();

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
  double GravityInModelUnits() const;
  double ToCelsius(double value) const;

  // ---- geometry/joints.cpp ------------------------------------------------------
  int ConvertJoints();
  int BuildJointNumberMap();
  int WriteNodes();
  /// The node number of a joint name, as every writer takes it.
  int NodeNumberOf(const std::string& name) const;

  // ---- geometry/restraints.cpp, geometry/constraints.cpp -----------------------
  int ConvertRestraints();
  int WriteConstraints();
  int ConvertConstraints();
  int WriteRigidLinks();

  // ---- geometry/local_axes.cpp --------------------------------------------------
  int ConvertJointLocalAxes();
  int WriteLocalAxes();

  // ---- geometry/masses.cpp, geometry/mass_parsers.cpp ---------------------------
  int ParseFrameMasses();
  int ParseAreaMasses();
  int ConvertJointMasses();
  int ConvertFrameMasses();
  int ConvertAreaMasses();
  int WriteNodalMasses();

  // ---- elements/materials.cpp --------------------------------------------------
  int ConvertMaterials();
  int WriteMaterials();

  // ---- elements/sections.cpp, elements/nonprismatic.cpp -----------------------
  int ConvertFrameSections();
  int WriteSections();
  int WriteSectionScales();

  // ---- elements/thickness.cpp ---------------------------------------------------
  int ConvertAreaSections();
  int WriteThickness();

  // ---- elements/frames.cpp ------------------------------------------------------
  int ConvertFrames();
  int WriteElements();

  // ---- elements/areas.cpp -------------------------------------------------------
  int ConvertAreas();
  int ConvertSolids();

  // ---- elements/offsets.cpp -----------------------------------------------------
  int ConvertEndOffsets();
  int ConvertFrameReleases();
  int WriteOffsets();
  int WriteFrameReleases();

  // ---- elements/springs.cpp, elements/spring_parsers.cpp -------------------------
  int ParseJointSprings();
  int ParseJointCoupledSprings();
  int ParseFrameSprings();
  int ParseAreaSprings();
  int ConvertJointSprings();
  int ConvertCoupledSprings();
  /// Lumps line springs onto joints: \p mode 1 frames, 2 areas.
  int ConvertLineSprings(int mode);
  int ConvertFrameSprings();
  int ConvertAreaSprings();
  int WriteSprings();
  int WriteGeneralSprings();

  // ---- conversion steps ---------------------------------------------------------
  int ConvertJointStep();
  int ConvertFrameStep();
  int ConvertAreaStep();
  int ConvertSolidStep();
  int ConvertAnalysisStep();

 private:
  quillmesh::UserInterface& ui_;

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

  // ---- run flags, cleared by ResetConversion --------------------------------------
  GeometryRunFlags geometryFlags;
  MassRunFlags massFlags;
  PropertyRunFlags propertyFlags;
  ElementRunFlags elementFlags;
  SpringRunFlags springFlags;
};
