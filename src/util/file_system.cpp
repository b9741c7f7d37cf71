#include "util/file_system.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "util/error.h"

namespace kvl {

namespace {

[[noreturn]] void Fail(const std::string& what, const fs::path& path) {
  throw KvlError(fmt::format("cannot {} {}: {}", what, path.string(), std::strerror(errno)));
}

class PosixFileSystem final : public FileSystem {
 public:
  void writeFile(const fs::path& path, std::span<const std::uint8_t> bytes) override {
    int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) Fail("write", path);
    std::size_t done = 0;
    while (done < bytes.size()) {
      ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) break;
      done += static_cast<std::size_t>(n);
    }
    bool ok = done == bytes.size() && ::fsync(fd) == 0;
    int saved = errno;
    ::close(fd);
    errno = saved;
    if (!ok) Fail("write", path);
  }

  void rename(const fs::path& from, const fs::path& to) override {
    if (::rename(from.c_str(), to.c_str()) != 0) Fail("rename " + from.string() + " to", to);
  }

  void remove(const fs::path& path) override {
    if (::unlink(path.c_str()) != 0 && errno != ENOENT) Fail("delete", path);
  }

  void syncFolder(const fs::path& dir) override {
    int fd = ::open(dir.empty() ? "." : dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) Fail("open the folder", dir);
    ::fsync(fd);  // some file systems refuse fsync on a folder; the renames stand anyway
    ::close(fd);
  }
};

}  // namespace

FileSystem& RealFileSystem() {
  static PosixFileSystem real;
  return real;
}

}  // namespace kvl
