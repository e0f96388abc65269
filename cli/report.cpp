// The report: one JSON document for the whole run, its shape described in
// the README.
#include "report.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>

#include "json.h"
#include "quillmesh/quillmesh.hpp"

namespace cli {
namespace {

const char* StatusName(const FileResult& result) {
  if (!result.ran) return "not converted";
  return result.code == 0 ? "finished" : result.code == 1 ? "stopped" : "failed";
}

std::string OptionalString(bool present, const std::string& text) { return present ? JsonString(text) : "null"; }

}  // namespace

std::vector<std::pair<std::string, int>> CommandLineCounts(const std::string& path) {
  std::vector<std::pair<std::string, int>> counts;
  std::ifstream in(path, std::ios::binary);
  std::size_t current = 0;
  bool inCommand = false;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty() && line[0] == '*') {
      std::string name = line.substr(0, line.find_first_of(" \t,;"));
      for (current = 0; current < counts.size() && counts[current].first != name; ++current) {
      }
      if (current == counts.size()) counts.push_back({name, 0});
      inCommand = true;
    } else if (inCommand && !line.empty() && line[0] != ';') {
      ++counts[current].second;
    }
  }
  return counts;
}

std::string ReportJson(const std::vector<FileResult>& results, int exitStatus) {
  std::string json = "{\n  \"tool\": \"quillmesh\",\n  \"version\": " + JsonString(quillmesh::Version()) +
                     ",\n  \"exitStatus\": " + std::to_string(exitStatus) + ",\n  \"inputs\": [";
  for (std::size_t i = 0; i < results.size(); ++i) {
    const FileResult& result = results[i];
    json += i ? ",\n    {\n" : "\n    {\n";
    json += "      \"input\": " + JsonString(result.input) + ",\n";
    json += "      \"output\": " + JsonString(result.output) + ",\n";
    json += "      \"code\": " + (result.ran ? std::to_string(result.code) : std::string("null")) + ",\n";
    json += "      \"status\": " + JsonString(StatusName(result)) + ",\n";
    json += "      \"stopReason\": " + OptionalString(!result.stopReason.empty(), result.stopReason) + ",\n";
    json += "      \"messages\": [";
    for (std::size_t m = 0; m < result.messages.size(); ++m) {
      const MessageRecord& message = result.messages[m];
      json += m ? ",\n        " : "\n        ";
      json += "{\"key\": " + OptionalString(!message.key.empty(), message.key) +
              ", \"text\": " + JsonString(message.text) +
              ", \"argument\": " + OptionalString(message.hasArgument, message.argument) + "}";
    }
    json += result.messages.empty() ? "],\n" : "\n      ],\n";
    json += "      \"commands\": {";
    std::vector<std::pair<std::string, int>> counts;
    if (result.ran && result.code == 0) counts = CommandLineCounts(result.output);
    for (std::size_t c = 0; c < counts.size(); ++c)
      json += (c ? ", " : "") + JsonString(counts[c].first) + ": " + std::to_string(counts[c].second);
    json += "}\n    }";
  }
  json += results.empty() ? "]\n}\n" : "\n  ]\n}\n";
  return json;
}

std::string WriteReport(const std::string& path, const std::string& json) {
  // Written aside and then moved in place, so a failed write leaves no half report.
  std::string partial = path + ".partial";
  std::FILE* file = std::fopen(partial.c_str(), "wb");
  if (!file) return "cannot write the report " + path + ": " + std::strerror(errno);
  bool written = std::fwrite(json.data(), 1, json.size(), file) == json.size();
  int error = errno;
  if (std::fclose(file) != 0 && written) {
    written = false;
    error = errno;
  }
  if (written && std::rename(partial.c_str(), path.c_str()) != 0) {
    written = false;
    error = errno;
  }
  if (!written) {
    std::remove(partial.c_str());
    return "cannot write the report " + path + ": " + std::strerror(error);
  }
  return "";
}

}  // namespace cli
