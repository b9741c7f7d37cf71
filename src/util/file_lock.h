#pragma once
// An exclusive lock on a file, held from acquire until release or destruction.
// The lock is the kernel's (flock), so one left by a killed process never blocks.
#include <filesystem>

namespace kvl {

namespace fs = std::filesystem;

class FileLock {
 public:
  // With `removeOnRelease` the file goes with the lock, so it is there only while held.
  explicit FileLock(bool removeOnRelease = false) : remove_(removeOnRelease) {}
  ~FileLock() { release(); }
  FileLock(FileLock&& other) noexcept;
  FileLock& operator=(FileLock&& other) noexcept;
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  // Creates the file when missing; false when another holder has it. A file
  // that cannot be created is a KvlError naming it.
  bool acquire(const fs::path& file);
  void release();
  bool held() const { return fd_ >= 0; }
  const fs::path& file() const { return file_; }

 private:
  bool remove_;
  int fd_ = -1;
  fs::path file_;
};

}  // namespace kvl
