#include "util/file_lock.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "util/error.h"

namespace kvl {

FileLock::FileLock(FileLock&& other) noexcept
    : remove_(other.remove_), fd_(std::exchange(other.fd_, -1)), file_(std::move(other.file_)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  if (this != &other) {
    release();
    remove_ = other.remove_;
    fd_ = std::exchange(other.fd_, -1);
    file_ = std::move(other.file_);
  }
  return *this;
}

namespace {

// True when `fd` is still the file at `file`: a holder that removes the file on
// release may have done so between our open and our lock.
bool StillThere(int fd, const fs::path& file) {
  struct stat open {}, named {};
  return ::fstat(fd, &open) == 0 && ::stat(file.c_str(), &named) == 0 && open.st_ino == named.st_ino &&
         open.st_dev == named.st_dev;
}

}  // namespace

bool FileLock::acquire(const fs::path& file) {
  release();
  for (;;) {
    int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) throw KvlError(fmt::format("cannot open the lock file {}: {}", file.string(), std::strerror(errno)));
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
      ::close(fd);
      return false;
    }
    if (StillThere(fd, file)) {
      fd_ = fd;
      file_ = file;
      return true;
    }
    ::close(fd);
  }
}

void FileLock::release() {
  if (fd_ >= 0 && remove_) ::unlink(file_.c_str());  // still locked, so no one takes the old file meanwhile
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
  file_.clear();
}

}  // namespace kvl
