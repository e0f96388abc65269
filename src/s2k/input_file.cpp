// Text-mode reading of the s2k file.
#include "s2k/input_file.h"

#include <algorithm>
#include <cstring>

bool S2kInputFile::Open(const std::string& path) {
  Close();
  file_ = std::fopen(path.c_str(), "rb");
  pos_ = len_ = 0;
  return file_ != nullptr;
}

void S2kInputFile::Close() {
  if (file_) std::fclose(file_);
  file_ = nullptr;
  pos_ = len_ = 0;
}

bool S2kInputFile::Fill() {
  if (!file_) return false;
  buffer_.resize(1 << 16);
  pos_ = 0;
  len_ = std::fread(buffer_.data(), 1, buffer_.size(), file_);
  return len_ > 0;
}

bool S2kInputFile::ReadLine(std::string& line) {
  raw_.clear();
  while (raw_.size() < kMaxRead) {
    if (pos_ == len_ && !Fill()) break;
    const char* text = buffer_.data() + pos_;
    std::size_t avail = std::min(len_ - pos_, kMaxRead - raw_.size());
    std::size_t plain = 0;
    while (plain < avail && text[plain] != '\n' && text[plain] != '\r') ++plain;
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
  line.assign(raw_.c_str());  // up to the first zero character
  return true;
}

int S2kInputFile::CountLines(const std::string& path) {
  S2kInputFile counter;
  if (!counter.Open(path)) return 0;
  int count = 0;
  std::string line;
  while (counter.ReadLine(line)) ++count;
  return count;
}
