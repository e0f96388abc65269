// One engine per file; with -j N, N worker threads take the files in turn.
// Each file's messages are printed together, in the order of the files.
#include "batch.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>

#include "quillmesh/quillmesh.hpp"
#include "quillmesh/terminal.hpp"

namespace cli {
namespace {

std::atomic<bool> userStopped{false};

void ConvertOne(const Options& options, bool prefix, bool live, FileResult& result) {
  quillmesh::TerminalOptions terminal;
  terminal.inputPath = result.input;
  terminal.messageKeys = options.messageKeys;
  terminal.progress = options.progress && live;
  if (prefix) terminal.messagePrefix = result.input + ": ";
  MessageKeepingInterface ui(terminal, result, live);
  result.ran = true;
  result.code = quillmesh::ConvertPath(result.input, ui);
  result.stopReason = ui.StopReason();
  if (ui.StoppedByUser()) userStopped = true;
}

// The lines that close a file: its output path on stdout, or why it has none.
void PrintEnd(const FileResult& result) {
  if (!result.ran) {
    std::fprintf(stderr, "quillmesh: %s: not converted, the run was stopped\n", result.input.c_str());
  } else if (result.code == 0) {
    std::printf("%s\n", result.output.c_str());
    std::fflush(stdout);
  } else if (result.code == 1) {
    if (result.stopReason.empty()) std::fprintf(stderr, "quillmesh: %s: stopped\n", result.input.c_str());
  } else {
    std::fprintf(stderr, "quillmesh: %s: conversion failed\n", result.input.c_str());
  }
  std::fflush(stderr);
}

}  // namespace

int ExitStatusOf(const FileResult& result) {
  if (!result.ran || result.code == 1) return 1;
  return result.code == 0 ? 0 : 2;
}

std::vector<FileResult> ConvertAll(const Options& options) {
  std::vector<FileResult> results(options.files.size());
  for (std::size_t i = 0; i < results.size(); ++i) {
    results[i].input = options.files[i];
    results[i].output = quillmesh::OutputPathFor(options.files[i]);
  }
  const bool prefix = results.size() > 1;
  const std::size_t workers = std::min<std::size_t>(static_cast<std::size_t>(options.jobs), results.size());
  userStopped = false;
  // Ctrl-C and Esc are held for the whole batch, so that a stop that falls
  // between two files is not forgotten: the next file stops at once.
  quillmesh::TerminalOptions quiet;
  quiet.progress = false;
  quillmesh::TerminalUserInterface batchStop(quiet);
  batchStop.OpenProgress(0);

  if (workers <= 1) {
    for (FileResult& result : results) {
      if (!userStopped) ConvertOne(options, prefix, true, result);
      PrintEnd(result);
    }
    return results;
  }

  std::mutex lock;
  std::condition_variable doneChanged;
  std::vector<char> done(results.size(), 0);
  std::atomic<std::size_t> next{0};
  std::vector<std::thread> threads;
  for (std::size_t w = 0; w < workers; ++w)
    threads.emplace_back([&] {
      for (std::size_t i; (i = next++) < results.size();) {
        if (!userStopped) ConvertOne(options, prefix, false, results[i]);
        std::lock_guard<std::mutex> hold(lock);
        done[i] = 1;
        doneChanged.notify_all();
      }
    });
  for (std::size_t i = 0; i < results.size(); ++i) {
    std::unique_lock<std::mutex> hold(lock);
    doneChanged.wait(hold, [&] { return done[i] != 0; });
    hold.unlock();
    std::fputs(results[i].printed.c_str(), stderr);
    PrintEnd(results[i]);
  }
  for (std::thread& thread : threads) thread.join();
  return results;
}

}  // namespace cli
