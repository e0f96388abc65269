// quillmesh: converts the s2k files named on the command line.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "batch.h"
#include "inspect.h"
#include "options.h"
#include "report.h"
#include "quillmesh/quillmesh.hpp"

namespace {

constexpr int kUsage = 64;
constexpr int kReportFailed = 2;

}  // namespace

int main(int argc, char** argv) {
  cli::Options options;
  std::string error = cli::ParseArguments(std::vector<std::string>(argv + 1, argv + argc), options);
  if (!error.empty()) {
    std::fprintf(stderr, "quillmesh: %s\n", error.c_str());
    cli::PrintUsage(stderr);
    return kUsage;
  }
  switch (options.command) {
    case cli::Command::Help:
      cli::PrintUsage(stdout);
      return 0;
    case cli::Command::Version:
      std::printf("quillmesh %s\n", quillmesh::Version());
      return 0;
    case cli::Command::Inspect:
      return cli::InspectFile(options);
    case cli::Command::Convert:
      break;
  }
  std::vector<cli::FileResult> results = cli::ConvertAll(options);
  int status = 0;
  for (const cli::FileResult& result : results) status = std::max(status, cli::ExitStatusOf(result));
  if (!options.reportPath.empty()) {
    std::string failure = cli::WriteReport(options.reportPath, cli::ReportJson(results, status));
    if (!failure.empty()) {
      std::fprintf(stderr, "quillmesh: %s\n", failure.c_str());
      status = kReportFailed;
    }
  }
  return status;
}
