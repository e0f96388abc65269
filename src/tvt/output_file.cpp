// Creating and writing the TVT file.
#include "tvt/output_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

void TvtOutputFile::Fail(const char* what, int error) {
  std::string text = std::string(what) + " " + path_ + ": " + std::strerror(error);
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
  used_ = 0;
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
}

void TvtOutputFile::Write(std::string_view bytes) {
  char* at = Room(bytes.size());
  if (!bytes.empty()) std::memcpy(at, bytes.data(), bytes.size());
  Commit(at + bytes.size());
}

// A write longer than the room left: the buffer doubles, keeping the bytes
// put after the committed ones.
char* TvtOutputFile::Grow(std::size_t size) {
  std::size_t capacity = capacity_ ? capacity_ : 2 * kBufferSize;
  while (capacity < used_ + size) capacity *= 2;
  std::unique_ptr<char[]> buffer(new char[capacity]);
  if (capacity_) std::memcpy(buffer.get(), buffer_.get(), capacity_);
  buffer_ = std::move(buffer);
  capacity_ = capacity;
  return buffer_.get() + used_;
}

void TvtOutputFile::Flush() {
  std::size_t done = 0;
  while (done < used_) {
    ssize_t n = ::write(fd_, buffer_.get() + done, used_ - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      Fail("Cannot write", errno);
    }
    done += static_cast<std::size_t>(n);
  }
  used_ = 0;
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
