// CS2kConverter: the run of one conversion. It reads the tables, runs the
// step tables and writes the file; every subject of the model is an object
// of its own, made on first use by Get and dropped when the next run starts.
#pragma once

#include <cstdio>
#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "frame/steps.h"
#include "frame/subject.h"
#include "tvt/formats.h"
#include "tvt/output_file.h"
#include "quillmesh/quillmesh.hpp"
#include "s2k/input_file.h"
#include "s2k/fields.h"
#include "s2k/keyed_table.h"
#include "s2k/table_rows.h"

/// A table as the reader leaves it, before its rows are parsed.
struct S2kTableRead {
  int line;                               ///< the title's line in the file, from 1
  const std::string& title;               ///< the title line as read
  int tableId;                            ///< 0 when not recognised
  const S2kTableRows& rows;               ///< the rows kept, one text each
  int unkeptRows;                         ///< the rows of a table not recognised
};

class CS2kConverter {
 public:
  explicit CS2kConverter(quillmesh::UserInterface& ui);
  ~CS2kConverter();
  CS2kConverter(const CS2kConverter&) = delete;
  CS2kConverter& operator=(const CS2kConverter&) = delete;

  /// Reads, converts and writes; with \p lastStage 1 it only reads.
  /// \returns 0 finished, 1 stopped, -1 failed.
  int Run(const std::string& inputPath, int lastStage = 3);

  /// Told of each table as its reading ends; empty in a conversion.
  std::function<void(const S2kTableRead&)> onTableRead;

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
  const S2kTableRows& TableRows() const { return rowRows; }

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

  // ---- tvt/writer.cpp: the TVT file ------------------------------------------
  int WriteOutput(const std::string& inputPath);
  int WriteCommands();
  /// Formats and writes to the TVT file. \returns 1; a file error is raised.
  int WriteText(const char* format, ...) __attribute__((format(printf, 2, 3)));

 private:
  quillmesh::UserInterface& ui_;
  std::vector<std::unique_ptr<CSubject>> subjects_;
  TvtFormats formats_;  ///< WriteText's, taken apart once

 public:
  S2kInputFile inputFile;
  TvtOutputFile outputFile;
  std::vector<std::string> firstWords;
  S2kTableRows rowRows;
  int parsedRowCount = 0;
  double ZeroTolerance = 1e-15;
};

template <auto Member, auto... Values>
int RunStep(CS2kConverter& engine) {
  using Class = typename subject_detail::MemberOf<decltype(Member)>::Class;
  return (engine.Get<Class>().*Member)(Values...);
}

template <auto Member>
int RunCaseStep(CS2kConverter& engine, const std::string& loadCase) {
  using Class = typename subject_detail::MemberOf<decltype(Member)>::Class;
  return (engine.Get<Class>().*Member)(loadCase);
}
