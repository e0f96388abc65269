// The TVT file: created at the start of writing, written through a buffer.
// Its failures are raised as TvtFileError and caught where writing begins.
#pragma once

#include <cstdio>
#include <memory>
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

  /// Writing in place: the end of what is buffered, with room for at least
  /// \p size bytes after it. The buffer may move; bytes put there since the
  /// last Commit are kept.
  char* Room(std::size_t size) {
    return used_ + size <= capacity_ ? buffer_.get() + used_ : Grow(size);
  }
  /// Keeps the bytes put at Room() up to \p end, as one Write of them would.
  void Commit(const char* end) {
    used_ = static_cast<std::size_t>(end - buffer_.get());
    if (used_ >= kBufferSize) Flush();
  }

 private:
  static constexpr std::size_t kBufferSize = 1 << 16;

  char* Grow(std::size_t size);
  void Flush();
  [[noreturn]] void Fail(const char* what, int error);

  int fd_ = -1;
  std::string path_;
  std::unique_ptr<char[]> buffer_;
  std::size_t capacity_ = 0;
  std::size_t used_ = 0;
};
