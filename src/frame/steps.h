// The step tables of a run and the parser lists of every subject.
#pragma once

#include <span>
#include <vector>

#include "frame/subject.h"

/// One row of a step table: the step's number (the bar advances to it once
/// its last row has run) and a subject's member. A number without rows is a
/// step with nothing to do. Rows stand in ascending number.
struct SRunStep {
  int number;
  StepFunction run;
};

constexpr int kConversionStepCount = 19;
constexpr int kWriterStepCount = 37;

/// The conversion steps, in order.
std::span<const SRunStep> ConversionSteps();
/// The writer steps, in order.
std::span<const SRunStep> WriterSteps();
/// The parser list of every subject.
std::span<const std::vector<S2kTableParser>* const> TableParserLists();
