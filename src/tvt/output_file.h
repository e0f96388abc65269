// The TVT file: created at the start of writing, written through a buffer.
// Its failures are raised as TvtFileError and caught where writing begins.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

struct TvtFileError {
  std::string text;  ///< the system's words, with the path
};

class TvtOutputFile {
 public:
  TvtOutputFile() = default;
  ~TvtOutputFile() { Abandon(); }
  TvtOutputFile(const TvtOutputFile&) = delete;
  TvtOutputFile& operator=(const TvtOutputFile&) = delete;

  /// Creates or truncates \p path. A file that is \p input itself can't be
  /// created, as the input is held open. Raises TvtFileError.
  void Create(const std::string& path, std::FILE* input);
  /// Raises TvtFileError when the write fails.
  void Write(std::string_view bytes);
  /// Writes what is buffered and closes. Raises TvtFileError.
  void Close();
  /// Closes without raising; what was buffered is written if it can be.
  void Abandon();
  bool IsOpen() const { return fd_ >= 0; }

 private:
  void Flush();
  [[noreturn]] void Fail(const char* what, int error);

  int fd_ = -1;
  std::string path_;
  std::string buffer_;
};
