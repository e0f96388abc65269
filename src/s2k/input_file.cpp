// Text-mode reading of the s2k file.
#include "s2k/input_file.h"

#include <cstring>

bool S2kInputFile::Open(const std::string& path) {
  Close();
  file_ = std::fopen(path.c_str(), "rb");
  if (file_) std::setvbuf(file_, nullptr, _IOFBF, 1 << 16);
  return file_ != nullptr;
}

void S2kInputFile::Close() {
  if (file_) std::fclose(file_);
  file_ = nullptr;
}

bool S2kInputFile::ReadLine(std::string& line) {
  if (!file_) return false;
  raw_.clear();
  while (static_cast<int>(raw_.size()) < kMaxRead) {
    int c = getc_unlocked(file_);
    if (c == EOF) break;
    if (c == '\r') {
      int next = getc_unlocked(file_);
      if (next == '\n')
        c = '\n';
      else if (next != EOF)
        ungetc(next, file_);
    }
    raw_.push_back(static_cast<char>(c));
    if (c == '\n') break;
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
