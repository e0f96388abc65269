// Creating and writing the TVT file.
#include "tvt/output_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr std::size_t kBufferSize = 1 << 16;
}

void TvtOutputFile::Fail(const char* what, int error) {
  std::string text = std::string(what) + " " + path_ + ": " + std::strerror(error);
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
  buffer_.clear();
  throw TvtFileError{text};
}

void TvtOutputFile::Create(const std::string& path, std::FILE* input) {
  path_ = path;
  struct stat in {}, out {};
  if (input && ::fstat(fileno(input), &in) == 0 && ::stat(path.c_str(), &out) == 0 &&
      in.st_dev == out.st_dev && in.st_ino == out.st_ino)
    Fail("Cannot create", ETXTBSY);
  fd_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (fd_ < 0) Fail("Cannot create", errno);
  buffer_.reserve(kBufferSize);
}

void TvtOutputFile::Write(std::string_view bytes) {
  buffer_.append(bytes);
  if (buffer_.size() >= kBufferSize) Flush();
}

void TvtOutputFile::Flush() {
  std::size_t done = 0;
  while (done < buffer_.size()) {
    ssize_t n = ::write(fd_, buffer_.data() + done, buffer_.size() - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      Fail("Cannot write", errno);
    }
    done += static_cast<std::size_t>(n);
  }
  buffer_.clear();
}

void TvtOutputFile::Close() {
  if (fd_ < 0) return;
  Flush();
  if (::close(fd_) != 0) {
    int error = errno;
    fd_ = -1;
    Fail("Cannot write", error);
  }
  fd_ = -1;
}

void TvtOutputFile::Abandon() {
  if (fd_ < 0) return;
  try {
    Flush();
  } catch (const TvtFileError&) {
    return;
  }
  ::close(fd_);
  fd_ = -1;
}
