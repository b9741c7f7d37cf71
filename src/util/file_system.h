#pragma once
// The writes, renames and removals that replace files, behind an interface so a
// test can make any one of them fail as a crash would.
#include <cstdint>
#include <filesystem>
#include <span>

namespace kvl {

namespace fs = std::filesystem;

class FileSystem {
 public:
  virtual ~FileSystem() = default;
  // Writes the whole file and flushes it to the disk before returning.
  virtual void writeFile(const fs::path& path, std::span<const std::uint8_t> bytes) = 0;
  // Replaces `to` by `from` in one step.
  virtual void rename(const fs::path& from, const fs::path& to) = 0;
  // Deletes when present; a missing file is no error.
  virtual void remove(const fs::path& path) = 0;
  // Flushes a folder's entries (the renames and removals in it) to the disk.
  virtual void syncFolder(const fs::path& dir) = 0;
};

// The machine's own file system. It holds no state, so one serves every league.
FileSystem& RealFileSystem();

}  // namespace kvl
