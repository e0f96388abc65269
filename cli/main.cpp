// quillmesh: converts the s2k files named on the command line.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "quillmesh/quillmesh.hpp"
#include "quillmesh/terminal.hpp"

namespace {

constexpr int kFinished = 0;
constexpr int kStopped = 1;
constexpr int kFailed = 2;
constexpr int kUsage = 64;

void PrintUsage(std::FILE* out) {
  std::fputs(
      "usage: quillmesh [options] FILE.s2k...\n"
      "Converts SAP2000 V8 text models (.s2k) into TVT files written beside them.\n"
      "\n"
      "options:\n"
      "  --message-keys   print the catalogue key behind each message\n"
      "  --no-progress    no progress display, even on a terminal\n"
      "  --help           show this help\n"
      "  --version        show the version\n"
      "\n"
      "Messages go to stderr as they come; the path of each TVT file to stdout.\n"
      "Ctrl-C or Esc stops a conversion.\n"
      "exit status: 0 finished, 1 stopped, 2 failed, 64 usage error\n",
      out);
}

}  // namespace

int main(int argc, char** argv) {
  quillmesh::TerminalOptions options;
  std::vector<std::string> files;
  bool optionsDone = false;
  for (int i = 1; i < argc; ++i) {
    std::string arg = argv[i];
    if (!optionsDone && arg == "--") {
      optionsDone = true;
    } else if (!optionsDone && arg == "--help") {
      PrintUsage(stdout);
      return kFinished;
    } else if (!optionsDone && arg == "--version") {
      std::printf("quillmesh 0.1.0\n");
      return kFinished;
    } else if (!optionsDone && arg == "--message-keys") {
      options.messageKeys = true;
    } else if (!optionsDone && arg == "--no-progress") {
      options.progress = false;
    } else if (!optionsDone && arg.size() > 1 && arg[0] == '-') {
      std::fprintf(stderr, "quillmesh: unknown option %s\n", arg.c_str());
      PrintUsage(stderr);
      return kUsage;
    } else {
      files.push_back(arg);
    }
  }
  if (files.empty()) {
    std::fprintf(stderr, "quillmesh: no input file\n");
    PrintUsage(stderr);
    return kUsage;
  }

  int status = kFinished;
  for (const std::string& file : files) {
    options.inputPath = file;
    quillmesh::TerminalUserInterface ui(options);
    std::string outputPath;
    int code = quillmesh::Convert(ui, outputPath);
    if (code == 0) {
      std::printf("%s\n", outputPath.c_str());
      std::fflush(stdout);
    } else if (code == 1) {
      if (ui.StopReason().empty()) std::fprintf(stderr, "quillmesh: %s: stopped\n", file.c_str());
      return kStopped;  // a stop ends the whole batch
    } else {
      std::fprintf(stderr, "quillmesh: %s: conversion failed\n", file.c_str());
      status = kFailed;
    }
  }
  return status;
}
