// The s2k file read as text: reads of at most 499 characters that keep the
// newline, with CR LF taken as one newline.
#pragma once

#include <cstdio>
#include <string>

class S2kInputFile {
 public:
  S2kInputFile() = default;
  ~S2kInputFile() { Close(); }
  S2kInputFile(const S2kInputFile&) = delete;
  S2kInputFile& operator=(const S2kInputFile&) = delete;

  bool Open(const std::string& path);
  void Close();
  bool IsOpen() const { return file_ != nullptr; }
  /// The open file, for telling it apart from the output.
  std::FILE* Handle() const { return file_; }

  /// Reads the next line into \p line, cut at its first zero character.
  /// At the end of the file \returns false and leaves \p line as it was.
  bool ReadLine(std::string& line);

  /// The line of the file that the last read came from, from 1.
  int LineNumber() const { return lineNumber_; }

  /// Counts the reads up to the end of the file at \p path.
  static int CountLines(const std::string& path);

 private:
  bool Fill();

  static constexpr std::size_t kMaxRead = 499;
  static constexpr std::size_t kBufferSize = 1 << 16;
  std::FILE* file_ = nullptr;
  std::string raw_;
  std::string buffer_;
  std::size_t pos_ = 0, len_ = 0;
  int lineNumber_ = 0;
  bool atLineStart_ = true;
};
