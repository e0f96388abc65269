// quillmesh inspect: what a file holds and what a conversion would make of
// it, as a table or as JSON.
#pragma once

#include "options.h"

namespace cli {

/// Inspects the one file of \p options. \returns the exit status: 0 read
/// to its end, 1 stopped, 2 failed.
int InspectFile(const Options& options);

}  // namespace cli
