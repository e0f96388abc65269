// The JSON report of a run: every input, its code, its messages and the
// lines of each TVT command written.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "batch.h"

namespace cli {

/// The lines under each command of the TVT file at \p path, in the order
/// the commands first appear; a command met again adds to its count. Lines
/// that are empty or comments (';') don't count.
std::vector<std::pair<std::string, int>> CommandLineCounts(const std::string& path);

/// The report as JSON text; \p exitStatus is the run's.
std::string ReportJson(const std::vector<FileResult>& results, int exitStatus);

/// Writes \p json to \p path. \returns an empty text, or why it failed.
std::string WriteReport(const std::string& path, const std::string& json);

}  // namespace cli
