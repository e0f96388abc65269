// Text-mode reading of the s2k file.
#include "s2k/input_file.h"

#include <algorithm>
#include <cstring>
#include <sys/stat.h>

bool S2kInputFile::Open(const std::string& path) {
  Close();
  file_ = std::fopen(path.c_str(), "rb");
  pos_ = len_ = 0;
  // A folder opens here but is no file to read.
  struct stat status {};
  if (file_ && (::fstat(fileno(file_), &status) != 0 || S_ISDIR(status.st_mode))) Close();
  lineNumber_ = 0;
  atLineStart_ = true;
  return file_ != nullptr;
}

void S2kInputFile::Close() {
  if (file_) std::fclose(file_);
  file_ = nullptr;
  pos_ = len_ = 0;
}

bool S2kInputFile::Fill() {
  if (!file_) return false;
  buffer_.resize(kBufferSize);
  pos_ = 0;
  len_ = std::fread(buffer_.data(), 1, buffer_.size(), file_);
  return len_ > 0;
}

// A line that lies whole in the buffer, newline and all, with no CR but one
// before the newline, is copied once. Others are gathered in raw_ and handed
// over only when they aren't empty, so that a read at the end leaves the
// caller's line as it was.
bool S2kInputFile::ReadLine(std::string& line) {
  if (pos_ < len_) {
    const char* text = buffer_.data() + pos_;
    if (const void* found = std::memchr(text, '\n', std::min(len_ - pos_, kMaxRead))) {
      const std::size_t newline = static_cast<std::size_t>(static_cast<const char*>(found) - text);
      const std::size_t plain = newline > 0 && text[newline - 1] == '\r' ? newline - 1 : newline;
      if (!std::memchr(text, '\r', plain)) {
        pos_ += newline + 1;
        if (atLineStart_) ++lineNumber_;
        atLineStart_ = true;
        if (const void* zero = std::memchr(text, '\0', plain)) {
          line.assign(text, static_cast<std::size_t>(static_cast<const char*>(zero) - text));
        } else if (plain == newline) {
          line.assign(text, newline + 1);
        } else {
          line.assign(text, plain);
          line.push_back('\n');
        }
        return true;
      }
    }
  }
  raw_.clear();
  while (raw_.size() < kMaxRead) {
    if (pos_ == len_ && !Fill()) break;
    const char* text = buffer_.data() + pos_;
    std::size_t avail = std::min(len_ - pos_, kMaxRead - raw_.size());
    const void* newline = std::memchr(text, '\n', avail);
    std::size_t plain = newline ? static_cast<std::size_t>(static_cast<const char*>(newline) - text) : avail;
    if (const void* cr = std::memchr(text, '\r', plain)) plain = static_cast<std::size_t>(static_cast<const char*>(cr) - text);
    raw_.append(text, plain);
    pos_ += plain;
    if (plain == avail) continue;
    char end = buffer_[pos_++];
    if (end == '\r') {
      // CR LF is one newline; a CR alone stays.
      if (pos_ == len_ && !Fill()) {
        raw_.push_back('\r');
        break;
      }
      if (buffer_[pos_] != '\n') {
        raw_.push_back('\r');
        continue;
      }
      ++pos_;
    }
    raw_.push_back('\n');
    break;
  }
  if (raw_.empty()) return false;
  if (atLineStart_) ++lineNumber_;
  atLineStart_ = raw_.back() == '\n';
  // Up to the first zero character.
  const void* zero = std::memchr(raw_.data(), '\0', raw_.size());
  line.assign(raw_.data(), zero ? static_cast<std::size_t>(static_cast<const char*>(zero) - raw_.data()) : raw_.size());
  return true;
}

// The reads of ReadLine, counted without making lines: a line of n
// characters before its newline takes n / 499 + 1 reads, a last line without
// one n / 499 rounded up. CR LF counts as the newline alone.
int S2kInputFile::CountLines(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) return 0;
  std::string buffer(kBufferSize, '\0');
  long long count = 0;
  std::size_t length = 0;  // characters of the current line so far
  bool lastWasCr = false;
  for (;;) {
    std::size_t got = std::fread(buffer.data(), 1, buffer.size(), file);
    if (got == 0) break;
    const char* text = buffer.data();
    const char* end = text + got;
    while (text < end) {
      const char* newline = static_cast<const char*>(std::memchr(text, '\n', static_cast<std::size_t>(end - text)));
      if (!newline) {
        length += static_cast<std::size_t>(end - text);
        lastWasCr = end[-1] == '\r';
        break;
      }
      length += static_cast<std::size_t>(newline - text);
      if (newline > text ? newline[-1] == '\r' : lastWasCr) --length;
      count += static_cast<long long>(length / kMaxRead) + 1;
      length = 0;
      lastWasCr = false;
      text = newline + 1;
    }
  }
  std::fclose(file);
  count += static_cast<long long>((length + kMaxRead - 1) / kMaxRead);
  return count > 0x7fffffff ? 0x7fffffff : static_cast<int>(count);
}
