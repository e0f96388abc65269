// The row parsers of each subject, gathered by ParseTable.
#pragma once

#include <vector>

#include "frame/converter.h"

const std::vector<S2kTableParser>& FrameTableParsers();
const std::vector<S2kTableParser>& StoredTableParsers();
const std::vector<S2kTableParser>& GeometryTableParsers();
const std::vector<S2kTableParser>& ElementTableParsers();
const std::vector<S2kTableParser>& MassTableParsers();
const std::vector<S2kTableParser>& PropertyTableParsers();
const std::vector<S2kTableParser>& SpringTableParsers();
const std::vector<S2kTableParser>& LoadCaseTableParsers();
const std::vector<S2kTableParser>& JointLoadTableParsers();
const std::vector<S2kTableParser>& FrameLoadTableParsers();
const std::vector<S2kTableParser>& PrestressTableParsers();
const std::vector<S2kTableParser>& TemperatureTableParsers();
const std::vector<S2kTableParser>& SurfaceTableParsers();
const std::vector<S2kTableParser>& AnalysisTableParsers();
const std::vector<S2kTableParser>& HistoryTableParsers();
const std::vector<S2kTableParser>& CombinationTableParsers();
const std::vector<S2kTableParser>& AutoLoadTableParsers();
const std::vector<S2kTableParser>& SpectrumTableParsers();
const std::vector<S2kTableParser>& LinkTableParsers();
const std::vector<S2kTableParser>& MovingLoadTableParsers();
